#include <gtest/gtest.h>

#include "persistence/Kabeldatei.h"
#include "persistence/Katalogdateien.h"
#include "tests/Tabelle.h"
#include "tests/persistence/Ordner.h"

namespace vesk {
namespace {

using Liste = std::vector<std::string>;

const std::string Defekt = "Fehler in Kabeldatendatei: Kabel.txt - RG213 geladen.\n";
const std::string A = "A,1,2,3,4,5,6,7,8,9,10,11,12\r\n";
const std::string Null = "B,1,2,3,4,5,6,7,8,9,10,11,0\r\n";  // the last value has no logarithm
const std::string RG213Zeile = "RG213,0.56,0.8,1.28,1.86,2.66,4.23,6.12,9.18,16.17,25.9,42.3,79.7\r\n";

TEST(KabelLaden, ListetWasLesbarWar) {
  for (const Tabellenzeile& zeile : Tabelle("persistence/Kabellisten.csv")) {
    SCOPED_TRACE(zeile.text);
    const Kabelkatalog katalog =
        KabelLaden(Ersetzt(Ersetzt(zeile["datei"], "{A}", A), "{RG213}", RG213Zeile));
    std::string liste;
    for (const std::string& name : katalog.liste) liste += name + '|';
    EXPECT_EQ(liste, zeile["liste"] + "Anderes Kabel|");
    EXPECT_EQ(katalog.auswahl, zeile.Zahl("auswahl"));
    EXPECT_EQ(katalog.Kabelanzahl + 1, int(katalog.liste.size()));
    const std::string stelle = zeile["stelle"].empty() ? "" : "Kabel.txt, Eintrag " + zeile["stelle"];
    const std::string fehler = katalog.fehler ? Laufzeitfehler(*katalog.fehler).what() : "";
    EXPECT_EQ(katalog.Meldung, stelle.empty() || !fehler.empty() ? "" : Defekt + stelle);
    EXPECT_EQ(fehler, zeile["fehler"]);
    EXPECT_EQ(katalog.fehlerstelle, fehler.empty() ? "" : stelle);
  }
}

float D100(const Kabelkatalog& katalog, int auswahl, float f, bool erwartet = true) {
  bool Pruefergebnis = !erwartet;
  const float wert = KabelwertErmitteln(katalog, auswahl, f, Pruefergebnis);
  EXPECT_EQ(Pruefergebnis, erwartet) << f;
  return wert;
}

TEST(KabelLaden, JedesGanzeKabelBehaeltSeineWerte) {
  for (const std::string& fehler : {std::string("B,1,2,3"), std::string("B,0"), Null + A}) {
    const Kabelkatalog katalog = KabelLaden(A + A + fehler);
    for (const int n : {0, 1}) EXPECT_FLOAT_EQ(D100(katalog, n, 100), 7) << fehler;
    if (fehler.starts_with(Null)) {
      for (const int n : {2, 3}) EXPECT_FLOAT_EQ(D100(katalog, n, 500), 9);
      EXPECT_EQ(D100(katalog, 2, 3000, false), -1000) << "where its values have no logarithm";
    } else if (fehler != "B,0") {
      EXPECT_FLOAT_EQ(D100(katalog, 2, 100), 6.12F) << "RG213 has its own";
      EXPECT_EQ(D100(katalog, 3, 100), 0) << "another cable has none";
    }
  }
}

TEST(KabelwertErmitteln, EndetAnDenGrenzen) {
  const Kabelkatalog katalog = KabelLaden(RG213Zeile);
  EXPECT_EQ(D100(katalog, 0, 0.999F, false), -1000);
  EXPECT_EQ(D100(katalog, 0, 5000.5F, false), -1000);
  EXPECT_EQ(D100(katalog, -1, 100, false), -1000);
  EXPECT_EQ(D100(katalog, 1, 100), 0);
  EXPECT_THROW(D100(katalog, 20, 100), Laufzeitfehler);
}

TEST(KabeldaempfungRechnen, FelderVorherUndNachher) {
  constexpr D100Farbe farben[] = {D100Farbe::Unveraendert, D100Farbe::Weiss, D100Farbe::Rot};
  for (const Tabellenzeile& z : Tabelle("persistence/Kabeldaempfung.csv")) {
    Kabelfelder felder{z["mhz"], z["d100"], z["laenge"], z["vd"], z["stecker"], z["vgesamt"]};
    const Kabelfelder nachher{
        z["mhz"],        z["nachD100"],          z["laenge"], z["nachDaempfung"], z["stecker"],
        z["nachGesamt"], farben[z.Zahl("farbe")]};
    KabeldaempfungRechnen(KabelOhneDatei(), z.Zahl("kabel"), felder);
    EXPECT_EQ(felder, nachher) << z.text << ": " << felder.D100 << " " << felder.Gesamtdaempfung;
  }
}

TEST(Katalogdateien, GelieferteKabel) {
  const Kabelkatalog katalog = KabelLaden(Inhalt(std::string(VESK_DATEN) + "/Kabel.txt"));
  EXPECT_EQ(katalog.fehler, std::nullopt);
  EXPECT_EQ(katalog.Meldung, "");
  ASSERT_LT(katalog.Kabelanzahl, KabelMax) << "with twenty cables another one cannot be chosen";
  EXPECT_EQ(katalog.auswahl, 0);
  for (int n = 0; n < katalog.Kabelanzahl; ++n) EXPECT_GT(D100(katalog, n, 5000), D100(katalog, n, 1)) << n;
}

TEST(Katalogdateien, WasNichtStimmtWirdGesagt) {
  const Ordner ordner;
  const auto gesagt = [&] {
    Meldungen meldungen;
    KatalogeLesen(ordner.pfad, meldungen);
    std::string texte;
    for (const auto& meldung : meldungen) texte += meldung.hinweis.titel + ": " + meldung.hinweis.text + "|";
    return texte;
  };
  const std::string titel = "Vesk - Fehlermeldung: ";
  EXPECT_EQ(gesagt(), titel + "Kabeldatendatei: Kabel.txt nicht gefunden. - RG213 geladen.|");
  Anlegen(ordner / "Kabel.txt", A + "B,0");
  Anlegen(ordner / "Antennen.txt", "[A]\nX,Yagi,144,1,1,430");
  EXPECT_EQ(gesagt(), titel + Laufzeitfehler(Fehlerart::Typ).what() + "\nKabel.txt, Eintrag 2: B|" +
                          "Hinweis: Fehler in Antennendatei: Antennen.txt|");
  for (const char* name : {"Kabel.txt", "Antennen.txt"}) {
    std::filesystem::remove(ordner / name);
    std::filesystem::create_directory(ordner / name);
  }
  const std::string grund = "\nUnter diesem Namen gibt es ein Verzeichnis.|";
  EXPECT_EQ(gesagt(), titel + "Fehler in Kabeldatendatei: Kabel.txt - RG213 geladen." + grund +
                          "Hinweis: Fehler in Antennendatei: Antennen.txt" + grund);
}

}  // namespace
}  // namespace vesk
