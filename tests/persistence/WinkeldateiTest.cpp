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

namespace fs = std::filesystem;

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
    EXPECT_EQ(daten.ganz, zeile["ganz"] == "ja") << zeile.text;
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
  void Laden(const fs::path& pfad) { fragen.Datei(pfad), ablauf.Oeffnen(); }
  /// Saving asks this.
  void Speichern(const std::string& frage, Antwort antwort) {
    fragen.Erwarten("Winkel-Datei speichern", frage, antwort);
    ablauf.Speichern();
    fragen.AllesGezeigt();
  }
  Ordner ordner;
  Station s;
  Antwortliste fragen;
  Winkelablauf ablauf{s, fragen};
};

TEST_F(WinkelablaufTest, EineDateiErsetztNichtsUngefragt) {
  Anlegen(ordner / "h-b.ang", "[B]\n\n\n0\n3\n");
  const char* frage = "Die Winkeltabelle wurde geändert. Änderungen verwerfen?";
  fragen.Erwarten("Winkel-Datei laden", frage, Antwort::Nein);
  ablauf.Oeffnen();
  fragen.Erwarten("Winkel-Datei laden", frage, Antwort::Ja);
  fragen.Datei(std::nullopt);
  ablauf.Oeffnen();
  EXPECT_EQ(s.winkel.antenne, "getippt");
  fragen.Erwarten("Winkel-Datei laden", frage, Antwort::Ja);
  fragen.Datei(ordner / "h-b.ang");
  ablauf.Oeffnen();
  EXPECT_EQ(s.winkel.antenne, "B");
  EXPECT_EQ(s.winkel.frequenz, "145") << "none in the file: that of the main window";
  EXPECT_EQ(s.Datenblattspalten[0].Winkel[1], "3");
  s.winkel.gewinn = "12";
  ablauf.Speichern();
  EXPECT_EQ(WinkelLesen(Inhalt(ordner / "h-b.ang")).gewinn, "12");
}

TEST_F(WinkelablaufTest, SpeichernFragtWoEtwasVerlorenGinge) {
  Anlegen(ordner / "Winkel.ang", "[fremd]");
  const std::string frage = "Die Datei Winkel.ang gibt es bereits.\nSoll sie mit den Daten aus diesem";
  Speichern(frage, Antwort::Nein);
  EXPECT_EQ(Inhalt(ordner / "Winkel.ang"), "[fremd]");
  fragen.Datei(ordner / "fehlt/x.ang");
  fragen.Fehler("Die Datei x.ang konnte nicht gespeichert werden.\nDas Verzeichnis gibt es nicht.");
  ablauf.SpeichernUnter();
  EXPECT_EQ(s.winkel.datei, PfadAlsUtf8(ordner / "Winkel.ang")) << "a failure keeps the name";
  EXPECT_TRUE(s.winkel.bearbeitet);
  Speichern(frage, Antwort::Ja);
  EXPECT_FALSE(s.winkel.bearbeitet);
  EXPECT_EQ(Inhalt(ordner / "Winkel-alt.ang"), "[fremd]");
  ablauf.Speichern();  // its own file by now
  s.winkel.antenne = "andere";
  s.winkel.dateiGelesen = false;
  Speichern("Die Datei Winkel.ang gibt es bereits. Soll sie überschrieben werden?", Antwort::Ja);
  EXPECT_EQ(ordner.Anzahl(), 2) << "what the program itself has written is no foreign table";

  s.winkel.datei.clear();
  fragen.Datei(ordner / "neu.ang");
  ablauf.Speichern();
  EXPECT_EQ(WinkelLesen(Inhalt(ordner / "neu.ang")).antenne, "andere");

  s.winkel.antenne = "dritte";
  s.winkel.datei = PfadAlsUtf8(ordner / "Winkel.ang");
  s.winkel.dateiGelesen = false;
  fragen.Datei(ordner / "Winkel.ang");
  Winkelablauf(s, fragen).SpeichernUnter();
  EXPECT_EQ(WinkelLesen(Inhalt(ordner / "Winkel-alt2.ang")).antenne, "andere") << "the dialog has asked";
}

TEST_F(WinkelablaufTest, WasEinAnderesProgrammGeschriebenHat) {
  const fs::path datei = ordner / "a.ang";
  const std::string frage = "a.ang wurde inzwischen von einem anderen Programm geändert.";
  Anlegen(datei, "[A]\n1\n");
  s.winkel.bearbeitet = false;
  Laden(datei);
  Anlegen(datei, "[B]\n2\n");
  Speichern(frage, Antwort::Nein);
  EXPECT_EQ(Inhalt(datei), "[B]\n2\n");
  fragen.Erwarten("Winkel-Datei speichern", frage, Antwort::Ja);
  fragen.Datei(datei);  // where it already is
  ablauf.SpeichernUnter();
  EXPECT_EQ(Inhalt(ordner / "a-alt.ang") + *WinkelLesen(Inhalt(datei)).antenne, "[B]\n2\nA");

  fs::remove(datei);
  ablauf.Speichern();
  Anlegen(ordner / "b.ang", "[B]\n2\n");
  s.winkel.datei = PfadAlsUtf8(ordner / "b.ang");  // as after taking back
  Speichern("b.ang gibt es bereits.", Antwort::Nein);
  fs::remove(datei);
  fs::create_directory(datei);
  s.winkel.datei = PfadAlsUtf8(datei);
  fragen.Fehler("a.ang konnte nicht gespeichert werden.\nUnter diesem Namen gibt es ein Verzeichnis.");
  ablauf.Speichern();
}

TEST_F(WinkelablaufTest, WasInKeineTabellePasst) {
  const std::string bytes = "[A]\n1\n2\n0\n1\n2\n3\n4\n5\n6\n7\n8\ngemessen 1987\n";
  Anlegen(ordner / "a.ang", bytes);
  s.winkel.bearbeitet = false;
  fragen.Erwarten("Winkel-Datei laden", "a.ang enthält noch anderes als eine Winkeltabelle.");
  Laden(ordner / "a.ang");
  fragen.Datei(ordner / "a.ang");
  ablauf.SpeichernUnter();
  EXPECT_EQ(Inhalt(ordner / "a-alt.ang"), bytes) << "the dialog has asked only whether it may be replaced";
  EXPECT_EQ(WinkelLesen(Inhalt(ordner / "a.ang")).daempfung[8], "8");
  ablauf.Speichern();
  EXPECT_EQ(ordner.Anzahl(), 2);
}

/// What the file's character set lacks is refused, what its format lacks is replaced: nothing silently.
TEST_F(WinkelablaufTest, FremdeBuchstaben) {
  s.winkel.antenne = "Yagi [2m]";
  ablauf.Speichern();
  EXPECT_EQ(s.winkel.antenne, "Yagi (2m)");
  fs::remove(ordner / "Winkel.ang");
  s.winkel.bearbeitet = true;
  s.winkel.antenne = "Łódź ΩΩ";
  fragen.Fehler(
      "Winkel.ang konnte nicht gespeichert werden.\nEine Winkeldatei kann diese Zeichen im Namen der "
      "Antenne nicht aufnehmen: ŁźΩΩ");
  ablauf.Speichern();
  EXPECT_TRUE(s.winkel.bearbeitet && ordner.Anzahl() == 0);

  const std::string bytes = "[Großer Ω]\n\n\n0\n";
  Anlegen(ordner / "o.ang", bytes);
  s.winkel.bearbeitet = false;
  fragen.Erwarten("Winkel-Datei laden", "Hier steht statt ihrer ein Fragezeichen: Ω");
  EXPECT_TRUE(ablauf.Oeffnen(ordner / "o.ang"));
  EXPECT_EQ(s.winkel.antenne, "Großer ?");
  fragen.Erwarten("Winkel-Datei speichern", "o.ang gibt es bereits.", Antwort::Nein);
  ablauf.Speichern();
  EXPECT_EQ(Inhalt(ordner / "o.ang"), bytes);
}

}  // namespace
}  // namespace vesk
