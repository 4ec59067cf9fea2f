#include <gtest/gtest.h>

#include "Kabelkatalog.h"
#include "Testdaten.h"

namespace vesk {
namespace {

using Liste = std::vector<std::string>;

const std::string Defekt = "Fehler in Kabeldatendatei: Kabel.txt - RG213 geladen.";
const std::string A = "A,1,2,3,4,5,6,7,8,9,10,11,12\r\n";
const std::string RG213Zeile = "RG213,0.56,0.8,1.28,1.86,2.66,4.23,6.12,9.18,16.17,25.9,42.3,79.7\r\n";

std::string Vielfach(const std::string& zeile, int anzahl) {
  std::string bytes;
  for (int i = 0; i < anzahl; ++i) bytes += zeile;
  return bytes;
}

struct Ladefall {
  const char* name;
  std::string bytes;
  Liste liste;
  int auswahl;
  int anzahl;
  std::string meldung;
  std::optional<Fehlerart> fehler;
};

void PrintTo(const Ladefall& fall, std::ostream* strom) {
  *strom << fall.name;
}

class KabelLadenTest : public testing::TestWithParam<Ladefall> {};

TEST_P(KabelLadenTest, ListetWasLesbarWar) {
  const Ladefall& fall = GetParam();
  const Kabelkatalog katalog = KabelLaden(fall.bytes);
  EXPECT_EQ(katalog.liste, fall.liste);
  EXPECT_EQ(katalog.auswahl, fall.auswahl);
  EXPECT_EQ(katalog.Kabelanzahl, fall.anzahl);
  EXPECT_EQ(katalog.Meldung, fall.meldung);
  EXPECT_EQ(katalog.fehler, fall.fehler);
}

INSTANTIATE_TEST_SUITE_P(
    Dateien, KabelLadenTest,
    testing::Values(
        Ladefall{"leer", "", {"Anderes Kabel"}, -1, 0, "", {}},
        Ladefall{"nurLeerzeilen", "\r\n  \r\n", {"Anderes Kabel"}, -1, 0, "", {}},
        Ladefall{"zweiKabel", A + RG213Zeile, {"A", "RG213", "Anderes Kabel"}, 1, 2, "", {}},
        Ladefall{"ohneZeilenendeAmSchluss",
                 RG213Zeile.substr(0, RG213Zeile.size() - 2),
                 {"RG213", "Anderes Kabel"},
                 0,
                 1,
                 "",
                 {}},
        Ladefall{"nurLF",
                 "A,1,2,3,4,5,6,7,8,9,10,11,12\nB,1,2,3,4,5,6,7,8,9,10,11,12\n",
                 {"A", "B", "Anderes Kabel"},
                 -1,
                 2,
                 "",
                 {}},
        Ladefall{"AnfuehrungMitKomma",
                 "\"1/2 Zoll, gut\" , 1 ,\"2\",3,4,5,6,7,8,9,10,11,12",
                 {"1/2 Zoll, gut", "Anderes Kabel"},
                 -1,
                 1,
                 "",
                 {}},
        Ladefall{
            "WerteUeberZeilen", "A\n1,2,3,4,5,6\n7,8,9,10,11\n12\n", {"A", "Anderes Kabel"}, -1, 1, "", {}},
        Ladefall{"LeerzeileZwischenKabeln", A + "\r\n" + A, {"A", "A", "Anderes Kabel"}, -1, 2, "", {}},
        Ladefall{"Windows1252",
                 "H\xFChner,1,2,3,4,5,6,7,8,9,10,11,12",
                 {"Hühner", "Anderes Kabel"},
                 -1,
                 1,
                 "",
                 {}},
        Ladefall{"alsUtf8Gespeichert",
                 "\xEF\xBB\xBFHühner,1,2,3,4,5,6,7,8,9,10,11,12",
                 {"Hühner", "Anderes Kabel"},
                 -1,
                 1,
                 "",
                 {}},
        Ladefall{"abgeschnitten", A + "B,1,2,3", {"A", "RG213", "Anderes Kabel"}, 0, 1, Defekt, {}},
        Ladefall{"nurEinName", "B\r\n", {"RG213", "Anderes Kabel"}, 0, 1, Defekt, {}},
        Ladefall{"NullImWert", A + "B,1,0,3,4,5,6,7,8,9,10,11,12", {"A"}, -1, 1, "", Fehlerart::Typ},
        Ladefall{"TextStattZahl", "RG213,x,2,3,4,5,6,7,8,9,10,11,12", {}, -1, 0, "", Fehlerart::Typ},
        Ladefall{"NullAmEnde",
                 A + "B,1,2,3,4,5,6,7,8,9,10,11,0",
                 {"A", "B", "Anderes Kabel"},
                 -1,
                 2,
                 "",
                 Fehlerart::Gleitkomma},
        Ladefall{"negativerWert",
                 "B,1,2,3,-4,5,6,7,8,9,10,11,12",
                 {"B", "Anderes Kabel"},
                 -1,
                 1,
                 "",
                 Fehlerart::Gleitkomma},
        Ladefall{"zuGross", "B,1e99,2", {}, -1, 0, "", Fehlerart::Ueberlauf},
        Ladefall{"einundzwanzig", Vielfach(A, 21), Liste(20, "A"), -1, 20, "", Fehlerart::Index}),
    [](const auto& fall) { return fall.param.name; });

TEST(KabelLaden, OhneDateiBleibtRG213) {
  const Kabelkatalog katalog = KabelOhneDatei();
  EXPECT_EQ(katalog.liste, (Liste{"RG213", "Anderes Kabel"}));
  EXPECT_EQ(katalog.auswahl, 0);
  EXPECT_EQ(katalog.Meldung, "Kabeldatendatei: Kabel.txt nicht gefunden. - RG213 geladen.");
}

float D100(const Kabelkatalog& katalog, int auswahl, float f, bool erwartet = true) {
  bool Pruefergebnis = !erwartet;
  const float wert = KabelwertErmitteln(katalog, auswahl, f, Pruefergebnis);
  EXPECT_EQ(Pruefergebnis, erwartet) << f;
  return wert;
}

TEST(KabelLaden, NachEinemFehlerTraegtDerErsteEintragDieWerteVonRG213) {
  const Kabelkatalog katalog = KabelLaden(A + A + "B,1,2,3");
  EXPECT_EQ(katalog.liste, (Liste{"A", "A", "RG213", "Anderes Kabel"}));
  EXPECT_FLOAT_EQ(D100(katalog, 0, 100), 6.12F);
  for (const int ohneWerte : {1, 2, 3}) EXPECT_EQ(D100(katalog, ohneWerte, 100), 0) << ohneWerte;
}

TEST(KabelLaden, NullAmEndeLaesstDieAnderenKabelBrauchbar) {
  const Kabelkatalog katalog = KabelLaden(RG213Zeile + "B,1,2,3,4,5,6,7,8,9,10,11,0");
  EXPECT_FLOAT_EQ(D100(katalog, 0, 100), 6.12F);
  EXPECT_FLOAT_EQ(D100(katalog, 1, 500), 9);
  EXPECT_EQ(D100(katalog, 1, 2000), 0);
}

TEST(KabelwertErmitteln, TrifftDieGitterpunkteUndEndetAnDenGrenzen) {
  const Kabelkatalog katalog = KabelLaden(RG213Zeile);
  const std::array<float, KabelFrequenzen> werte = {0.56F, 0.8F,  1.28F,  1.86F, 2.66F, 4.23F,
                                                    6.12F, 9.18F, 16.17F, 25.9F, 42.3F, 79.7F};
  for (std::size_t j = 0; j < werte.size(); ++j)
    EXPECT_NEAR(D100(katalog, 0, Kabelfrequenz[j]), werte[j], 1e-4);
  EXPECT_EQ(D100(katalog, 0, 0.999F, false), -1000);
  EXPECT_EQ(D100(katalog, 0, 5000.5F, false), -1000);
  EXPECT_EQ(D100(katalog, -1, 100, false), -1000);
  EXPECT_EQ(D100(katalog, 1, 100), 0);
  bool Pruefergebnis = false;
  EXPECT_THROW(static_cast<void>(KabelwertErmitteln(katalog, 20, 100, Pruefergebnis)), Laufzeitfehler);
}

struct Daempfungsfall {
  const char* QRG;
  const char* laenge;
  const char* stecker;
  const char* d100;
  const char* daempfung;
  const char* gesamt;
};

TEST(KabeldaempfungRechnen, RG213) {
  const Kabelkatalog katalog = KabelOhneDatei();
  constexpr std::array<Daempfungsfall, 16> Faelle = {{
      {"1", "100", "0", "0.56", "0.56", "0.56"},
      {"1.5", "30", "0.2", "0.69", "0.21", "0.41"},
      {"2", "100", "0", "0.80", "0.80", "0.80"},
      {"3.6", "20", "0.5", "1.08", "0.22", "0.72"},
      {"7.05", "20", "0.5", "1.54", "0.31", "0.81"},
      {"14.2", "20", "0.5", "2.23", "0.45", "0.95"},
      {"28.5", "25", "0.3", "3.18", "0.80", "1.10"},
      {"50", "15", "0.5", "4.23", "0.63", "1.13"},
      {"100", "10", "0", "6.12", "0.61", "0.61"},
      {"144", "20", "0.5", "7.58", "1.52", "2.02"},
      {"145", "20", "0.5", "7.61", "1.52", "2.02"},
      {"435", "15", "1", "14.84", "2.23", "3.23"},
      {"500", "10", "0", "16.17", "1.62", "1.62"},
      {"1296", "10", "0.4", "31.12", "3.11", "3.51"},
      {"4999", "10", "0", "79.69", "7.97", "7.97"},
      {"5000", "10", "0.5", "79.70", "7.97", "8.47"},
  }};
  for (const Daempfungsfall& fall : Faelle) {
    Kabelfelder felder{.QRG = fall.QRG, .KabelLaenge = fall.laenge, .Stecker = fall.stecker};
    bool Pruefergebnis = false;
    KabeldaempfungRechnen(katalog, 0, felder, Pruefergebnis);
    EXPECT_TRUE(Pruefergebnis);
    EXPECT_EQ(felder.farbe, D100Farbe::Weiss);
    EXPECT_EQ(felder.D100, fall.d100) << fall.QRG;
    EXPECT_EQ(felder.Kabeldaempfung, fall.daempfung) << fall.QRG;
    EXPECT_EQ(felder.Gesamtdaempfung, fall.gesamt) << fall.QRG;
  }
}

TEST(KabeldaempfungRechnen, OhneLaengeBleibtAllesStehen) {
  Kabelfelder felder{
      .QRG = "144", .D100 = "3", .KabelLaenge = "", .Kabeldaempfung = "x", .Gesamtdaempfung = "1.5"};
  const Kabelfelder vorher = felder;
  bool Pruefergebnis = false;
  KabeldaempfungRechnen(KabelOhneDatei(), 0, felder, Pruefergebnis);
  EXPECT_TRUE(Pruefergebnis);
  EXPECT_EQ(felder, vorher);
}

TEST(KabeldaempfungRechnen, AusserhalbDesGittersZaehltDerGetippteWert) {
  for (const char* QRG : {"0.5", "5001"}) {
    Kabelfelder felder{.QRG = QRG, .D100 = "4", .KabelLaenge = "20", .Stecker = "0.5"};
    bool Pruefergebnis = true;
    KabeldaempfungRechnen(KabelOhneDatei(), 0, felder, Pruefergebnis);
    EXPECT_FALSE(Pruefergebnis);
    EXPECT_EQ(felder.farbe, D100Farbe::Rot);
    EXPECT_EQ(felder.D100, "4");
    EXPECT_EQ(felder.Kabeldaempfung, "0.80");
    EXPECT_EQ(felder.Gesamtdaempfung, "1.30");

    felder.D100 = "0";
    KabeldaempfungRechnen(KabelOhneDatei(), 0, felder, Pruefergebnis);
    EXPECT_EQ(felder.farbe, D100Farbe::Rot);
    EXPECT_EQ(felder.D100 + felder.Kabeldaempfung + felder.Gesamtdaempfung, "");
  }
}

TEST(KabeldaempfungRechnen, AnderesKabelNimmtDenGetipptenWert) {
  const Kabelkatalog katalog = KabelOhneDatei();
  Kabelfelder felder{.QRG = "144", .D100 = "4.5", .KabelLaenge = "20", .Stecker = ""};
  bool Pruefergebnis = false;
  KabeldaempfungRechnen(katalog, 1, felder, Pruefergebnis);
  EXPECT_TRUE(Pruefergebnis);
  EXPECT_EQ(felder.farbe, D100Farbe::Weiss);
  EXPECT_EQ(felder.D100, "4.50");
  EXPECT_EQ(felder.Gesamtdaempfung, "0.90");
}

TEST(KabelLaden, GelieferteDatei) {
  const Kabelkatalog katalog = KabelLaden(Lieferdatei("Kabel.txt"));
  EXPECT_EQ(katalog.fehler, std::nullopt);
  EXPECT_EQ(katalog.Meldung, "");
  ASSERT_EQ(katalog.Kabelanzahl, KabelMax);
  EXPECT_EQ(katalog.auswahl, 0);
  EXPECT_EQ(katalog.liste.at(19), "Hühnerleiter 450");
  for (int n = 0; n < KabelMax; ++n) EXPECT_GT(D100(katalog, n, 5000), D100(katalog, n, 1)) << n;
}

}  // namespace
}  // namespace vesk
