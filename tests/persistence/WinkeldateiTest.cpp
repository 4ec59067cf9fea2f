#include <gtest/gtest.h>

#include "engine/Zahlen.h"
#include "persistence/Pfade.h"
#include "persistence/Winkelablauf.h"
#include "persistence/Winkeldatei.h"
#include "station/Sektoren.h"
#include "tests/Tabelle.h"
#include "tests/persistence/Antwortliste.h"
#include "tests/persistence/Ordner.h"

namespace vesk {
namespace {

const Winkeldaten Beispieldaten{
    "Yagi \"Süd\" [alt]",
    "15.3",
    "144",
    {"0.00", "0.85", "3.33", "11.25", "12.92", "14.58", "16.67", "17.50", "20.00"}};

TEST(Winkeldatei, SchreibtZwoelfZeilenUndLiestSieZurueck) {
  const std::string bytes = WinkelSchreiben(Beispieldaten);
  EXPECT_EQ(bytes,
            "\"[Yagi 'S\xFC"
            "d' (alt)]\"\r\n\"15.3\"\r\n\"144\"\r\n\"0.00\"\r\n\"0.85\"\r\n\"3.33\"\r\n\"11.25\"\r\n"
            "\"12.92\"\r\n\"14.58\"\r\n\"16.67\"\r\n\"17.50\"\r\n\"20.00\"\r\n");
  EXPECT_EQ(WinkelLesen(bytes).antenne, "Yagi 'Süd' (alt)");
  EXPECT_EQ(WinkelLesen(bytes).daempfung, Beispieldaten.daempfung);
}

TEST(Winkeldatei, VerstehtVonHandGeschriebenes) {
  for (const Tabellenzeile& zeile : Tabelle("persistence/Winkeldateien.csv")) {
    const GeleseneWinkeldaten daten = WinkelLesen(zeile["datei"]);
    std::string ist =
        daten.antenne.value_or("-") + '|' + daten.gewinn.value_or("-") + '|' + daten.frequenz.value_or("-");
    for (const std::string& wert : daten.daempfung) ist += '|' + wert;
    EXPECT_EQ(ist, zeile["gelesen"]) << zeile.text;
  }
}

TEST(Winkeldatei, EbeneStehtImNamen) {
  EXPECT_EQ(EbeneAusName("H-beam.ang"), Winkelebene::Horizontal);
  EXPECT_EQ(EbeneAusName("v-.ang"), Winkelebene::Vertikal);
  for (const char* name : {"hbeam.ang", "h", ""}) EXPECT_EQ(EbeneAusName(name), Winkelebene::Keine) << name;
}

TEST(Sektoren, Tabelle) {
  // EIRP and the three distances of each sector, as the fields show them.
  const auto texte = [](const Sektoreingabe& eingabe, float qrg, std::int16_t typ) {
    std::string text;
    for (const Sektor& sektor : SektorenRechnen(eingabe, GrenzwerteBestimmen(qrg, true, typ)).sektoren) {
      for (const std::optional<float>& wert :
           {std::optional(sektor.EIRP), std::optional(sektor.ohneHSM), sektor.HSM306, sektor.HSMvde}) {
        text += wert ? Formatieren(*wert) + " " : "- ";
      }
    }
    return text;
  };
  EXPECT_EQ(texte({"347.59", "15.3", Beispieldaten.daempfung}, 144, GrenzwertTV).substr(0, 84),
            "11777.89 21.61 - 230.58 9684.28 19.60 - 209.08 5471.01 14.73 - 157.15 883.22 5.92 - ");
  EXPECT_EQ(texte({"100", "7.15", {"0,85"}}, 14.2F, GrenzwertAM).substr(0, 24), "518.80 4.54 19.01 10.11 ")
      << "a comma ends a number";
}

TEST(Sektoren, FehlerBeendenDieTabelle) {
  Grenzwerte grenzwerte = GrenzwerteBestimmen(144, true, GrenzwertAM);
  Sektoreingabe eingabe{"0", "15.3", Beispieldaten.daempfung};
  EXPECT_EQ(SektorenRechnen(eingabe, grenzwerte).fehler, Fehlerart::Gleitkomma);
  eingabe.AntEinPWR = "100";
  eingabe.daempfung[3] = "-9999";
  EXPECT_EQ(SektorenRechnen(eingabe, grenzwerte).sektoren.size(), 3U);
  grenzwerte.ohneHSM = 0;
  EXPECT_EQ(SektorenRechnen({"100", "0", {}}, grenzwerte).fehler, Fehlerart::Gleitkomma);
}

struct WinkelablaufTest : testing::Test {
  WinkelablaufTest() {
    s.winkel.datei = PfadAlsUtf8(ordner / "Winkel.ang");
    s.winkel.antenne = "getippt";
    s.winkel.bearbeitet = true;
    s.werte.QRGText = "145";
  }
  Ordner ordner;
  Station s;
  Antwortliste fragen;
};

TEST_F(WinkelablaufTest, EineDateiErsetztNichtsUngefragt) {
  Anlegen(ordner / "h-b.ang", "[B]\n\n\n0\n3\n");
  const char* frage = "Die Winkeltabelle wurde geändert. Änderungen verwerfen?";
  fragen.Erwarten("Winkel-Datei laden", frage, Antwort::Nein);
  WinkelOeffnen(s, fragen);
  fragen.Erwarten("Winkel-Datei laden", frage, Antwort::Ja);
  fragen.Datei(std::nullopt);
  WinkelOeffnen(s, fragen);
  EXPECT_EQ(s.winkel.antenne, "getippt");
  fragen.Erwarten("Winkel-Datei laden", frage, Antwort::Ja);
  fragen.Datei(ordner / "h-b.ang");
  WinkelOeffnen(s, fragen);
  EXPECT_EQ(s.winkel.antenne, "B");
  EXPECT_EQ(s.winkel.frequenz, "145") << "none in the file: that of the main window";
  EXPECT_EQ(s.Datenblattspalten[0].Winkel[1], "3");
  s.winkel.gewinn = "12";
  WinkelSpeichern(s, fragen);
  EXPECT_EQ(WinkelLesen(Inhalt(ordner / "h-b.ang")).gewinn, "12");
}

TEST_F(WinkelablaufTest, SpeichernFragtWoEtwasVerlorenGinge) {
  Anlegen(ordner / "Winkel.ang", "[fremd]");
  const char* frage = "Die Datei Winkel.ang gibt es bereits. Soll sie überschrieben werden?";
  fragen.Erwarten("Winkel-Datei speichern", frage, Antwort::Nein);
  WinkelSpeichern(s, fragen);
  EXPECT_EQ(Inhalt(ordner / "Winkel.ang"), "[fremd]");
  fragen.Datei(ordner / "fehlt/x.ang");
  fragen.Fehler("Die Datei x.ang konnte nicht gespeichert werden.\nDas Verzeichnis gibt es nicht.");
  WinkelSpeichernUnter(s, fragen);
  EXPECT_EQ(s.winkel.datei, PfadAlsUtf8(ordner / "Winkel.ang")) << "a failure keeps the name";
  EXPECT_TRUE(s.winkel.bearbeitet);
  fragen.Erwarten("Winkel-Datei speichern", frage, Antwort::Ja);
  WinkelSpeichern(s, fragen);
  EXPECT_FALSE(s.winkel.bearbeitet);
  WinkelSpeichern(s, fragen);  // its own file by now

  s.winkel.datei.clear();
  fragen.Datei(ordner / "neu.ang");
  WinkelSpeichern(s, fragen);
  EXPECT_EQ(WinkelLesen(Inhalt(ordner / "neu.ang")).antenne, "getippt");
}

/// The file's character set lacks them; nothing is replaced silently.
TEST_F(WinkelablaufTest, FremdeBuchstaben) {
  s.winkel.antenne = "Łódź ΩΩ";
  fragen.Fehler(
      "Winkel.ang konnte nicht gespeichert werden.\nEine Winkeldatei kann diese Zeichen im Namen der "
      "Antenne nicht aufnehmen: ŁźΩΩ");
  WinkelSpeichern(s, fragen);
  EXPECT_TRUE(s.winkel.bearbeitet && ordner.Anzahl() == 0);

  const std::string bytes = "[Großer Ω]\n\n\n0\n";
  Anlegen(ordner / "o.ang", bytes);
  s.winkel.bearbeitet = false;
  fragen.Erwarten("Winkel-Datei laden", "Hier steht statt ihrer ein Fragezeichen: Ω");
  EXPECT_TRUE(WinkelOeffnen(s, fragen, ordner / "o.ang"));
  EXPECT_EQ(s.winkel.antenne, "Großer ?");
  fragen.Erwarten("Winkel-Datei speichern", "o.ang gibt es bereits.", Antwort::Nein);
  WinkelSpeichern(s, fragen);
  EXPECT_EQ(Inhalt(ordner / "o.ang"), bytes);
}

}  // namespace
}  // namespace vesk
