#include <gtest/gtest.h>

#include "Spaltenkopie.h"
#include "Spaltenskript.h"

namespace vesk {

namespace {

class Kopie : public testing::Test {
 protected:
  Kopie() {
    fenster.Zelle(1, 3) = "7.1";
    fenster.Zelle(1, 6) = "100";
    for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
      if (zeile != ZeileLeistung) fenster.Zelle(2, zeile) = "alt";
    }
    Rechenwerte& w = zustand.werte;
    w.QRGText = "14.2";
    w.PWRText = "10";
    w.DaempfungText = "1";
    w.GewinnText = "2.15";
    w.WinkelDaempfungText = "0";
    zustand.Datenblattspalten[0] = LeereSpalte();
    zustand.Datenblattspalten[0].Stecker = "0.5";
    zustand.Datenblattspalten[0].Reserve[1] = "mein";
  }
  std::string Spalte(int spalte) {
    std::string text;
    for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) text += fenster.Zelle(spalte, zeile) + '|';
    return text;
  }

  Zustand zustand;
  Spaltenskript fenster{zustand};
};

TEST_F(Kopie, ImAbstandsmodus) {
  EXPECT_TRUE(InFreieSpalteKopieren(zustand, fenster));
  EXPECT_EQ(Spalte(2), "alt|alt|14.2|alt|cw ssb |10|1|2.15|0|1.99|41.91|22.29|");
  EXPECT_EQ(fenster.Log(), std::vector<std::string>{"schwarz 2"});
  EXPECT_EQ(zustand.Datenblattspalten[2], zustand.Datenblattspalten[0]);
  EXPECT_EQ(zustand.Datenblattspalten[2].AbstandHSMvde, "22.29");
  EXPECT_EQ(zustand.Datenblattspalten[2].Reserve[1], "mein");
  EXPECT_TRUE(zustand.UserGeaendert);
}

TEST_F(Kopie, ImLeistungsmodus) {
  fenster.modus_ = Modus::Leistung;
  fenster.ergebnisse.ohneHSM = "1934.55";
  EXPECT_TRUE(InFreieSpalteKopieren(zustand, fenster));
  EXPECT_EQ(Spalte(2), "alt|alt|14.2|alt|cw ssb |1934.55|1|2.15|0|10|alt|alt|");
  EXPECT_EQ(fenster.Log(), std::vector<std::string>{"türkis 2"});
}

TEST_F(Kopie, OhneOptionenBleibenDieBetriebsarten) {
  fenster.optionen = false;
  fenster.ergebnisse = {"1.99", "50 KHz", "noch"};
  EXPECT_TRUE(InFreieSpalteKopieren(zustand, fenster));
  EXPECT_EQ(Spalte(2), "alt|alt|14.2|alt|alt|10|1|2.15|0|1.99|alt|alt|");
  EXPECT_EQ(zustand.Datenblattspalten[2].Stecker, "0.5") << "der Satz geht immer mit";
}

TEST_F(Kopie, VollesBlatt) {
  for (int spalte = 2; spalte <= AnzahlSpalten; ++spalte) {
    fenster.Zelle(spalte, 3) = " ";
    fenster.Zelle(spalte, 6) = "0";
  }
  const Zustand vorher = zustand;
  EXPECT_FALSE(InFreieSpalteKopieren(zustand, fenster));
  EXPECT_EQ(zustand.Zellen, vorher.Zellen);
  EXPECT_EQ(zustand.Datenblattspalten, vorher.Datenblattspalten);
  EXPECT_FALSE(zustand.UserGeaendert);
}

TEST_F(Kopie, GleicherTextMitAnderemSatzIstEineAenderung) {
  InFreieSpalteKopieren(zustand, fenster);
  fenster.Zelle(1, 6).clear();
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) fenster.Zelle(1, zeile) = fenster.Zelle(2, zeile);
  fenster.Zelle(1, 3) = "";
  zustand.werte.QRGText = "";
  zustand.UserGeaendert = false;
  InFreieSpalteKopieren(zustand, fenster);
  EXPECT_EQ(zustand.Datenblattspalten[1].Stecker, "0.5");
  EXPECT_TRUE(zustand.UserGeaendert);
}

}  // namespace

}  // namespace vesk
