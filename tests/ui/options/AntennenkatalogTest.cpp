#include <gtest/gtest.h>

#include <algorithm>

#include "Antennenkatalog.h"
#include "Bandkennung.h"
#include "Testdaten.h"

namespace vesk {
namespace {

using Texte = std::vector<std::string>;

TEST(Bandkennung, BereicheUndDieZahlSelbst) {
  constexpr std::array<std::array<const char*, 2>, 32> Faelle = {{
      {"1", "1.8"},        {"1.85", "1.8"},    {"1.9", "1.9"},   {"3.6", "3.6"},     {"3.81", "3.81"},
      {"7.05", "7"},       {"10.1", "10"},     {"14.2", "14"},   {"18.068", "18"},   {"18.1", "18.1"},
      {"21", "21"},        {"21.2", "21.2"},   {"24.9", "24"},   {"28.5", "28"},     {"29.7", "28"},
      {"50.1", "50"},      {"145", "144"},     {"150", "144"},   {"435", "430"},     {"1296", "1240"},
      {"2400", "2400"},    {"3400", "3400"},   {"5760", "5600"}, {"10368", "10000"}, {"24048", "24000"},
      {"27", "27"},        {"", ""},           {"0", ""},        {"-14", ""},        {"0.1365", "0.136"},
      {"122250", "12225"}, {"14,2 MHz", "14"},
  }};
  for (const auto& [text, kennung] : Faelle) EXPECT_EQ(Bandkennung(text), kennung) << text;
}

/// Column text of a list line without the blanks around it.
std::string Spalte(const std::string& zeile, std::size_t von, std::size_t breite) {
  std::string text = zeile.substr(von - 1, breite);
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

TEST(AntennenLaden, AbschnitteListenzeilenUndFeldbreiten) {
  const Antennenkatalog katalog = AntennenLaden(
      "[Hersteller lang]\r\nTyp mit Ueberlaenge,Art mit Ueberlaenge,144,12.345,123456,#\r\n"
      "B,Yagi,14.1,-3,2,21.2,7,3,#\r\n[C]\r\n\"D, gross\",Helix,430,12,77,#\r\n");
  ASSERT_EQ(katalog.Antennen.size(), 3U);
  EXPECT_EQ(katalog.Meldung, "");

  const Antenne& erste = katalog.Antennen[0];
  EXPECT_EQ(erste.hersteller, "Hersteller");
  EXPECT_EQ(erste.typ, "Typ mit Ue");
  EXPECT_EQ(erste.art, "Art mit Ueberla");
  EXPECT_EQ(erste.baender[0].gewinn, "12.35");
  EXPECT_EQ(erste.baender[0].elemente, "123");
  EXPECT_EQ(katalog.Antennen[1].baender[1].kennung, "21.2");
  EXPECT_EQ(katalog.Antennen[2].typ, "D, gross");

  for (const std::string& zeile : katalog.zeilen) EXPECT_EQ(zeile.size(), 100U);
  EXPECT_EQ(Spalte(katalog.zeilen[0], 1, 10), "Herstelle");
  EXPECT_EQ(Spalte(katalog.zeilen[0], 11, 90), "Typ mit Uebe");
  EXPECT_EQ(Spalte(katalog.zeilen[1], 1, 10), "");
  EXPECT_EQ(Spalte(katalog.zeilen[2], 1, 10), "C");
}

TEST(AntennenLaden, Kopf) {
  const std::string kopf = Antennenkopf();
  EXPECT_EQ(kopf.size(), 100U);
  EXPECT_EQ(kopf.find("Herst."), 0U);
  EXPECT_EQ(kopf.find("Typ"), 26U);
  EXPECT_EQ(kopf.find("MHz"), 71U);
  EXPECT_EQ(kopf.find("dBi"), 85U);
  EXPECT_EQ(kopf.find("el"), 96U);
}

const std::string Neun = "1,1,1,2,1,1,3,1,1,4,1,1,5,1,1,6,1,1,7,1,1,8,1,1,9,1,1";

struct Ladefall {
  const char* name;
  std::string bytes;
  Texte typen;                       ///< of the entries, in order
  std::vector<std::size_t> baender;  ///< of each of them
  bool meldung;
  std::optional<Fehlerart> fehler;
};

void PrintTo(const Ladefall& fall, std::ostream* strom) {
  *strom << fall.name;
}

class AntennenLadenTest : public testing::TestWithParam<Ladefall> {};

TEST_P(AntennenLadenTest, BehaeltWasLesbarWar) {
  const Ladefall& fall = GetParam();
  const Antennenkatalog katalog = AntennenLaden(fall.bytes);
  Texte typen;
  std::vector<std::size_t> baender;
  for (const Antenne& antenne : katalog.Antennen) {
    typen.push_back(antenne.typ);
    baender.push_back(antenne.baender.size());
  }
  EXPECT_EQ(typen, fall.typen);
  EXPECT_EQ(baender, fall.baender);
  EXPECT_EQ(katalog.zeilen.size(), typen.size());
  EXPECT_EQ(katalog.Meldung, fall.meldung ? "Fehler in Antennendatei: Antennen.txt" : "");
  EXPECT_EQ(katalog.fehler, fall.fehler);
}

INSTANTIATE_TEST_SUITE_P(
    Dateien, AntennenLadenTest,
    testing::Values(
        Ladefall{"leer", "", {}, {}, false, {}}, Ladefall{"nurAbschnitt", "[A]\r\n", {}, {}, false, {}},
        Ladefall{"leererAbschnitt", "[A]\n[B]\nX,Yagi,144,1,1,#\n", {"X"}, {1}, false, {}},
        Ladefall{"ohneAbschnitt", "X,Yagi,144,1,1,#\n", {"X"}, {1}, false, {}},
        Ladefall{"uebrigesSchlusszeichen",
                 "[A]\n # \nX,Yagi,144,1,1,#,#\nY,Yagi,#",
                 {"X", "Y"},
                 {1, 0},
                 false,
                 {}},
        Ladefall{"Leerzeilen", "[A]\n\nX,Yagi,144,1,1,#\n\n[B]\nY,Yagi,#\n\n", {"X", "Y"}, {1, 0}, false, {}},
        Ladefall{
            "SchlussFehltVorAbschnitt", "[A]\nX,Yagi,144,1,1\n[B]\nY,Yagi,#", {"X", "Y"}, {1, 0}, false, {}},
        Ladefall{"SchlussFehltAmEnde", "[A]\nX,Yagi,144,1,1\r\n", {"X"}, {1}, false, {}},
        Ladefall{"endetNachTyp", "[A]\nX", {"X"}, {0}, false, {}},
        Ladefall{"endetNachBand", "[A]\nX,Yagi,144,1,1,430", {"X"}, {1}, true, {}},
        Ladefall{"endetNachGewinn", "[A]\nX,Yagi,144,1,1,430,12\n", {"X"}, {1}, true, {}},
        Ladefall{"BandOhneZahl", "[A]\nX,Yagi,Band,1,1,430,12,2,#", {"X"}, {1}, false, {}},
        Ladefall{"neunGruppen", "[A]\nX,Yagi," + Neun + ",#\nY,Yagi,#", {"X", "Y"}, {9, 0}, false, {}},
        Ladefall{"neunGruppenDateiende", "[A]\nX,Yagi," + Neun, {"X"}, {9}, false, {}},
        Ladefall{
            "neunGruppenAbschnitt", "[A]\nX,Yagi," + Neun + "\n[B]\nY,Yagi,#", {"X", "Y"}, {9, 0}, false, {}},
        Ladefall{"zehnGruppen",
                 "[A]\nX,Yagi," + Neun + ",50,1,1,#\nY,Yagi,#",
                 {"X"},
                 {9},
                 false,
                 Fehlerart::Index},
        Ladefall{"GewinnZuGross", "[A]\nX,Yagi,144,1e99,1,#", {"X"}, {0}, false, Fehlerart::Ueberlauf}),
    [](const auto& fall) { return fall.param.name; });

TEST(AntenneWaehlen, MarkiertDasPassendeBand) {
  const Antennenkatalog katalog = AntennenLaden("[A]\nX,Yagi,50,9.5,5,144,12,10,430,14.25,0,#");
  const Antennenwahl wahl = AntenneWaehlen(katalog.Antennen[0], "145");
  EXPECT_EQ(wahl.zeilen,
            (Texte{"   50  -   9.50  -    5 el. ", "  144  -  12.00  -   10 el. ", "  430  -  14.25"}));
  EXPECT_EQ(wahl.markiert, 1);
  EXPECT_EQ(wahl.gewinn, "12.00");
  EXPECT_TRUE(wahl.Passt());
}

struct Wahlfall {
  const char* antenne;
  const char* QRG;
  int markiert;
  std::optional<std::string> gewinn;
};

TEST(AntenneWaehlen, OhnePassendesBandGiltNurDerDipol) {
  const std::vector<Wahlfall> faelle = {
      {"X,Yagi,21,7,3,#", "21", 0, "7.00"},     {"X,Yagi,21,7,3,#", "21.2", -1, {}},
      {"X,Dipol,21,7,1,#", "21.2", -1, "2.15"}, {"X,Dipol  ,7,7,1,#", "", -1, "2.15"},
      {"X,Dipol,21,7,1,#", "21", 0, "7.00"},    {"X,Yagi,144,7,3,145,9,3,#", "144", 1, "9.00"},
      {"X,Yagi,27,7,3,#", "27.0", 0, "7.00"},   {"X,Yagi,#", "144", -1, {}},
      {"X,Faltdipol,14,7,1,#", "7", -1, {}},
  };
  for (const Wahlfall& fall : faelle) {
    const Antennenwahl wahl = AntenneWaehlen(AntennenLaden(fall.antenne).Antennen.at(0), fall.QRG);
    EXPECT_EQ(wahl.markiert, fall.markiert) << fall.antenne << " " << fall.QRG;
    EXPECT_EQ(wahl.gewinn, fall.gewinn) << fall.antenne << " " << fall.QRG;
  }
}

TEST(AntenneWaehlen, HelixNenntIhreLaenge) {
  const Antennenwahl wahl =
      AntenneWaehlen(AntennenLaden("H,Helix,430,12.3,77,1240,12.3,0,#").Antennen.at(0), "435");
  EXPECT_EQ(wahl.zeilen, (Texte{"  430  -  12.30  -   77cm", " 1240  -  12.30"}));
}

TEST(Antennensuche, AlleWorteMuessenVorkommen) {
  const Antennenkatalog katalog = AntennenLaden(
      "[Österreich]\nWY144,Yagi,430,14,10,#\nKurz,Yagi,144,12,0,#\n3el,Mehrband-Yagi,14,8,3,#\n"
      "[B]\nDipol KW,Dipol,3.5,2.15,1,#\n");
  // Umlauts of the file are Windows-1252; this one is not, so it is put in as the reader would.
  std::vector<Antenne> antennen = katalog.Antennen;
  for (Antenne& antenne : antennen) {
    if (antenne.hersteller != "B") antenne.hersteller = "Österreich";
  }
  const Antennensuche suche(antennen);
  const auto nummern = [&](const char* eingabe) {
    std::string text;
    const std::vector<bool> treffer = suche.Treffer(eingabe);
    for (std::size_t i = 0; i < treffer.size(); ++i) {
      if (treffer[i]) text += std::to_string(i);
    }
    return text;
  };
  constexpr std::array<std::array<const char*, 2>, 14> Faelle = {{
      {"", "0123"},
      {"   ", "0123"},
      {"yagi", "012"},
      {"YAGI 144", "01"},
      {"144 yagi", "01"},
      {"yagi 145", "1"},
      {"14,2", "2"},
      {"14.2", "2"},
      {"3el", "2"},
      {"öster", "012"},
      {"ÖSTER kurz", "1"},
      {"3,6 dipol", "3"},
      {"yagi 7", ""},
      {"99999999999999999999", ""},
  }};
  for (const auto& [eingabe, erwartet] : Faelle) EXPECT_EQ(nummern(eingabe), erwartet) << eingabe;
}

TEST(AntennenLaden, GelieferteDatei) {
  const Antennenkatalog katalog = AntennenLaden(Lieferdatei("Antennen.txt"));
  EXPECT_EQ(katalog.Meldung, "");
  EXPECT_EQ(katalog.fehler, std::nullopt);
  EXPECT_EQ(katalog.Antennen.size(), 79U);
  const std::vector<bool> treffer = Antennensuche(katalog.Antennen).Treffer("yagi 1296");
  EXPECT_EQ(std::count(treffer.begin(), treffer.end(), true), 5);
}

}  // namespace
}  // namespace vesk
