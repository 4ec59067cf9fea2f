#include <gtest/gtest.h>

#include "persistence/Antennendatei.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Katalogdateien.h"
#include "persistence/Tips.h"
#include "persistence/Winkelablauf.h"
#include "tests/persistence/Programmlauf.h"

namespace vesk {
namespace {

TEST_F(DateiablaufTest, EineZuGrosseDateiBleibtUnberuehrt) {
  const std::string bytes = MusterMit("groß") + std::string(grenzen::UserDatei, ' ');
  Anlegen(user, bytes);
  Lauf lauf(ordner.pfad, nullptr, "user.dat konnte nicht gelesen werden.\nSie ist größer als 1 MB;");
  EXPECT_NE(lauf.station.benutzer.Name, "groß");
  lauf.fragen.Fehler("größer als 1 MB");
  lauf.Laden(user);
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    EXPECT_EQ(Inhalt(user), bytes);
    lauf.fragen.Erwarten("Vesk", "user.dat konnte nicht gelesen werden.\nSoll sie", antwort);
    lauf.Speichern("klein");
  }
  EXPECT_EQ(NameIn(user), "klein");
  EXPECT_EQ(Inhalt(ordner / "user-alt.dat"), bytes);

  lauf.Aendern("zu viel");
  for (Datenblattspalte& spalte : lauf.station.Datenblattspalten) spalte.Winkel.fill(std::string(30000, '1'));
  lauf.fragen.Fehler("konnte nicht gespeichert werden.\nSie ist größer als 1 MB");
  lauf.ablauf.UserSpeichern();
  EXPECT_EQ(NameIn(user), "klein") << "what could not be read again does not replace it";
  EXPECT_TRUE(lauf.station.UserGeaendert);
}

TEST(Grenzen, WasUebrigeDateienHalten) {
  const Ordner ordner;
  const fs::path tips = ordner / "TIPOFDAY.TXT";
  Anlegen(tips, "kurz\n" + std::string(5000, 'x'));
  EXPECT_EQ(TipsLaden(tips), (std::vector<std::string>{"kurz", std::string(grenzen::Tip, 'x') + "…"}));
  Anlegen(tips, std::string(grenzen::Tips + 1, '\n'));
  ASSERT_EQ(TipsLaden(tips).size(), 1U);
  EXPECT_NE(TipsLaden(tips)[0].find("TIPOFDAY.TXT konnte nicht gelesen werden.\nSie ist größer als 64 KB"),
            std::string::npos);

  Station s;
  Antwortliste fragen;
  Anlegen(ordner / "x.ang", std::string(grenzen::Winkel + 1, '1'));
  fragen.Fehler("x.ang konnte nicht gelesen werden.\nSie ist größer als 512 KB");
  EXPECT_FALSE(Winkelablauf(s, fragen).Oeffnen(ordner / "x.ang"));

  Meldungen meldungen;
  Anlegen(ordner / "Kabel.txt", std::string(grenzen::Kabel + 1, 'x'));
  Anlegen(ordner / "Antennen.txt", std::string(grenzen::Antennen + 1, 'x'));
  KatalogeLesen(ordner.pfad, meldungen);
  ASSERT_EQ(meldungen.size(), 2U);
  EXPECT_TRUE(meldungen[0].hinweis.text.find("größer als 256 KB") != std::string::npos &&
              meldungen[1].hinweis.text.find("größer als 8 MB") != std::string::npos);
}

TEST(Grenzen, WasAusEinerDateiInEinerMeldungSteht) {
  const std::string lang = "a\n" + std::string(200000, 'x');
  Station s;
  const Lesebericht bericht = UserDateiLesen("[Version],\"24" + lang + "\"", s);
  EXPECT_TRUE(Migrationsmeldung(bericht, "user.dat").starts_with("Daten aus Programmversion 24a….\r"));
  const Ordner ordner;
  Anlegen(ordner / "Kabel.txt", "Kabel " + std::string(200000, 'x') + ",1,2");
  Meldungen meldungen;
  KatalogeLesen(ordner.pfad, meldungen);
  EXPECT_LT(meldungen.at(0).hinweis.text.size(), 200U);
}

/// What is shipped stands in for what could not be copied into the directory.
TEST(Katalogdateien, Ersatz) {
  const Ordner ordner;
  const Ordner daten;
  Anlegen(daten / "Kabel.txt", "A,1,2,3,4,5,6,7,8,9,10,11,12");
  Anlegen(daten / "Antennen.txt", "[A]\nX,Yagi,144,1,1\n#");
  Anlegen(ordner / "Antennen.txt", "[B]\nY,Yagi,144,1,1\n#");
  Meldungen meldungen;
  const Kataloge kataloge = KatalogeLesen(ordner.pfad, meldungen, daten.pfad);
  EXPECT_EQ(kataloge.kabel.liste.front() + kataloge.antennen.Antennen.at(0).hersteller, "AB");
  EXPECT_TRUE(meldungen.empty());
}

}  // namespace
}  // namespace vesk
