#include "tests/station/Tisch.h"

namespace vesk {
namespace {

using enum Eingabefeld;

struct Spalten : testing::Test, Tisch {};

TEST_F(Spalten, KabelfrequenzEinerSpalte) {
  Eingeben("144").Kabel("RG213", "20").Rechnen().Kopieren();
  const std::string vorher = Blatt(1, ZeileOhneHSM);
  Tun(ZelleGeklickt, 1);
  Tippen(KabelQRG, "14.2");
  EXPECT_TRUE(SpalteVeraltet(s, 1));
  Verlassen();
  EXPECT_FALSE(SpalteVeraltet(s, 1));
  EXPECT_NE(Blatt(1, ZeileOhneHSM), vorher);
  EXPECT_EQ(Blatt(1, ZeileVerluste), "0.45");
  EXPECT_EQ(Blatt(1, ZeileFrequenz), "14.2");

  // Passing through changes nothing, whatever frequency stands there.
  s.Datenblattspalten[0].QRG = "435";
  const Station ruhe = s;
  Tun(FeldBetreten, KabelQRG).Tun(FeldVerlassen, KabelQRG);
  s.beimBetreten = ruhe.beimBetreten;
  EXPECT_EQ(s, ruhe);
}

TEST_F(Spalten, SpalteNachHandarbeit) {
  Eingeben("14.2").Rechnen().Kopieren();
  EXPECT_TRUE(Haelt(s, 1));
  Zelle(1, ZeileLeistung, "1000");
  EXPECT_TRUE(SpalteVeraltet(s, 1));
  EXPECT_EQ(Blatt(1, ZeileOhneHSM), "1.99");  // nothing is rewritten unasked
  Tun(KopfGeklickt, 1);
  EXPECT_FALSE(SpalteVeraltet(s, 1));
  EXPECT_EQ(Blatt(1, ZeileOhneHSM), "6.30");
  for (const Zeile zeile : {ZeileFrequenz, ZeileVerluste, ZeileGewinn, ZeileWinkel, ZeileHSM306}) {
    const std::string text = Blatt(1, zeile);
    EXPECT_TRUE(SpalteVeraltet(Zelle(1, zeile, "7.05").s, 1)) << zeile;
    EXPECT_FALSE(SpalteVeraltet(Zelle(1, zeile, text).s, 1)) << zeile;
  }
  s.Datenblattspalten[1].Zyklusfaktor = "0.50";
  EXPECT_TRUE(SpalteVeraltet(s, 1));
}

TEST_F(Spalten, RueckwaertsUndExaktHaelt) {
  Tun(ModusGeklickt).Eingeben("14.2", "10", "2.15", "1").Rechnen().Kopieren();
  EXPECT_EQ(Blatt(1, ZeileLeistung), "1934.55");
  EXPECT_TRUE(s.spaltenfarben[0].rueckwaerts);
  EXPECT_TRUE(Haelt(s, 1));
  EXPECT_TRUE(SpalteVeraltet(Zelle(1, ZeileOhneHSM, "9").s, 1));
  Tun(ModusGeklickt).Tun(AFuUmschalten).Eingeben("14.2").Rechnen().Kopieren();
  Tun(AFuUmschalten);
  EXPECT_TRUE(Haelt(s, 2));
}

TEST_F(Spalten, BetriebsartVonHandMachtNieKuerzer) {
  Tun(BetriebsartGeklickt, 0).Eingeben("14.2").Rechnen().Kopieren();
  EXPECT_EQ(Blatt(1, ZeileOhneHSM), "1.26");
  EXPECT_EQ(s.spaltenfarben[0].ohneHSM, Toenung::Blass);  // tinted when it is calculated or read
  Zelle(1, ZeileBetriebsarten, "fm");
  EXPECT_TRUE(SpalteVeraltet(s, 1));
  for (const bool optionen : {true, false}) {
    Tun(OptionenSchalten, optionen).Tun(ZelleGeklickt, 1);
    EXPECT_EQ(s.werte.Modulationsfaktor, 1.0F);
    EXPECT_EQ(Blatt(1, ZeileOhneHSM), "1.99");
  }
  Tun(SpalteRechnen).Zelle(1, ZeileBetriebsarten, "cw").Tun(KopfGeklickt, 1);
  EXPECT_EQ(Blatt(1, ZeileOhneHSM), "1.26");
  EXPECT_EQ(s.spaltenfarben[0].ohneHSM, Toenung::Kraeftig);
}

TEST_F(Spalten, SpaltenLoeschenUndKopieren) {
  Tun(ZyklusGeklickt, 2).Tun(ModusGeklickt).Eingeben("14.2", "10").Rechnen().Kopieren();
  Tun(SpalteKopieren);  // no column is the current one
  EXPECT_EQ(Blatt(2, ZeileLeistung), "");
  Zelle(3, ZeileFrequenz, "7").Zelle(3, ZeileLeistung, "5");
  s.spaltenfarben[0].ohneHSM = Toenung::Kraeftig;
  s.werte.Spalte = 1;
  Tun(SpalteKopieren);
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile)
    EXPECT_EQ(Blatt(2, Zeile(zeile)), Blatt(1, Zeile(zeile)));
  EXPECT_EQ(s.Datenblattspalten[2], s.Datenblattspalten[1]);
  EXPECT_EQ(s.Datenblattspalten[2].Zyklusfaktor, "0.50");
  EXPECT_EQ(s.spaltenfarben[1], (Spaltenfarben{Toenung::Kraeftig, true, true}));

  const Station voll = s;
  s.UserGeaendert = false;
  antworten = {Antwort::Nein};
  Tun(SpalteLoeschen, 1);
  EXPECT_TRUE(s.UserGeaendert && s.werte.Spalte == 1);
  EXPECT_TRUE(s.Zellen == voll.Zellen && s.spaltenfarben == voll.spaltenfarben);
  Tun(SpalteLoeschen, 1);
  EXPECT_EQ(Blatt(1, ZeileFrequenz) + Blatt(1, ZeileOhneHSM), "");
  EXPECT_EQ(s.Datenblattspalten[1], LeereSpalte());
  EXPECT_EQ(LeereSpalte().Modulationsfaktor + LeereSpalte().Reserve[0] + LeereSpalte().Reserve[2], "1.0013");
  EXPECT_EQ(s.spaltenfarben[0], Spaltenfarben());
  EXPECT_EQ(Blatt(2, ZeileFrequenz), "14.2");
  EXPECT_EQ(s.Datenblattspalten[2], voll.Datenblattspalten[2]);
  Zelle(1, ZeileHoehe, "9").Tun(SpalteKopieren);  // the first free one is itself
  EXPECT_EQ(Blatt(4, ZeileHoehe), "");

  Tun(HauptfensterAktiviert).Tun(DatenblattLoeschen);
  EXPECT_EQ(s.Zellen, (std::array<std::string, AnzahlZellen>{}));
  for (int spalte = 0; spalte <= AnzahlSpalten; ++spalte) {
    Datenblattspalte leer = LeereSpalte();
    if (spalte == 0) leer.Winkel = s.Datenblattspalten[0].Winkel;
    EXPECT_EQ(s.Datenblattspalten.at(std::size_t(spalte)), leer) << spalte;
  }
  for (const Spaltenfarben& farben : s.spaltenfarben) {
    EXPECT_EQ(farben, (Spaltenfarben{Toenung::Keine, false, false}));
  }
}

TEST_F(Spalten, KopierterSatzHatDieFaktorenDerRechnung) {
  Eingeben("14.2").Rechnen().Kopieren();
  Tun(ZelleGeklickt, 1).Tun(OptionenSchalten, false).Tun(ZyklusGeklickt, 0);
  EXPECT_EQ(s.Datenblattspalten[1].Zyklusfaktor, "1.00");
  EXPECT_FALSE(Kopierbar(s));
  Tun(HauptfensterAktiviert).Rechnen();
  EXPECT_EQ(Ohne(), "0.81");
  Kopieren();
  EXPECT_EQ(Blatt(2, ZeileOhneHSM), "0.81");
  EXPECT_EQ(s.Datenblattspalten[2].Zyklusfaktor, "0.17");
  EXPECT_TRUE(Haelt(s, 2));
}

/// 14.2 MHz, 100 W, RG213 of 50 m: 1.11 dB, 1.75 m.
struct MitKabel : testing::Test, Tisch {
  MitKabel() { Eingeben("14.2").Kabel("RG213", "50").Rechnen(); }
  const std::string lang = std::string(45, '9');
};

TEST_F(MitKabel, GeleerteKabelfrequenzGibtAuchDieVerlusteZurueck) {
  Tippen(KabelQRG, "435").Tun(KabelfeldGeklickt, Kabelfeld::QRG).Verlassen();
  EXPECT_EQ(s.Datenblattspalten[0].QRG, "14.2");
  EXPECT_EQ(s.werte.DaempfungText, "1.11");
  EXPECT_EQ(Ohne(), "1.75");
}

TEST_F(MitKabel, EinFehlerBeimFolgenHaeltAuchDieBerechnungAuf) {
  Tun(KabelfeldGetippt, Kabelfeld::Stecker, lang).Tippen(QRG, "435").Verlassen();
  for (int i = 0; i < 2; ++i) {
    Tun(BerechnenVerlangt);
    EXPECT_EQ(gesagt.back(), "Vesk - Fehlermeldung");
    EXPECT_FALSE(Kopierbar(s));
  }
  Tun(KabelfeldGetippt, Kabelfeld::Stecker, std::string()).Tun(BerechnenVerlangt);
  EXPECT_EQ(s.werte.DaempfungText, "7.42");
}

TEST_F(MitKabel, VonHandGetippteVerlusteBleibenOhneLaenge) {
  Tun(KabelfeldGetippt, Kabelfeld::KabelLaenge, std::string());
  Tun(KabelfeldGetippt, Kabelfeld::Gesamtdaempfung, std::string("3")).Tun(KabelGleich);
  Tippen(Daempfung, "5").Rechnen().Kopieren().Tun(ZelleGeklickt, 1).Kabel("RG58", "");
  EXPECT_EQ(Blatt(1, ZeileVerluste), "5");
  Zelle(1, ZeileVerluste, "4").Kabel("RG213", "");
  EXPECT_EQ(Blatt(1, ZeileVerluste), "4");
}

TEST_F(MitKabel, OhneKabelfrequenzGiltDieDerRechnung) {
  Tun(DatenblattLoeschen).Kabel("RG213", "50");
  EXPECT_EQ(s.werte.DaempfungText, "1.11");
  Zelle(1, ZeileFrequenz, "14.2").Zelle(1, ZeileLeistung, "100").Tun(ZelleGeklickt, 1).Kabel("RG213", "50");
  EXPECT_EQ(Blatt(1, ZeileVerluste), "1.11");
}

TEST_F(MitKabel, GetippteLaengeZaehltErstMitIhrenVerlusten) {
  Tun(KabelfeldGetippt, Kabelfeld::KabelLaenge, std::string("20"));
  EXPECT_FALSE(KabelAktuell(s) || Kopierbar(s));
  EXPECT_EQ(Kopieren().Blatt(1, ZeileFrequenz), "");
  Rechnen().Kopieren();
  EXPECT_EQ(Blatt(1, ZeileVerluste), "0.45");
  EXPECT_EQ(s.Datenblattspalten[1].KabelLaenge, "20");
  Tun(ZelleGeklickt, 1);
  EXPECT_TRUE(KabelAktuell(s));
}

TEST_F(MitKabel, EineAndereTabelleBringtIhrenNamenMit) {
  Zelle(1, ZeileAntenne, "Yagi").Zelle(1, ZeileFrequenz, "145").Zelle(1, ZeileLeistung, "10");
  s.Datenblattspalten[1].Winkel[1] = "3";
  Tun(WinkelGetippt, Winkelfeld::Antenne, std::string("H-Beam")).Tun(ZelleGeklickt, 1);
  EXPECT_EQ(gesagt.back(), "Winkeldämpfung");
  EXPECT_EQ(s.winkel.antenne + s.winkel.frequenz, "Yagi145");
}

TEST_F(MitKabel, LoeschenErlaubtDasKopierenNurBisZumNaechstenStand) {
  Kopieren().Tun(DatenblattLoeschen);
  EXPECT_TRUE(Kopierbar(s));
  Tun(EingabeGeklickt, QRG);
  EXPECT_FALSE(Kopierbar(s));
}

TEST_F(MitKabel, ErsteEIRPGehoertZurWinkelseite) {
  EXPECT_TRUE(EIRPAktuell(s, 0));
  for (const Winkelfeld feld : {Winkelfeld::Gewinn, Winkelfeld::Frequenz, Winkelfeld::AntEinPWR}) {
    const Station vorher = s;
    EXPECT_FALSE(EIRPAktuell(Tun(WinkelGetippt, feld, std::string("7")).s, 0));
    s = vorher;
  }
}

TEST_F(MitKabel, EineSpalteLaesstDieGetippteWinkelseite) {
  Kopieren();
  Tun(WinkelGetippt, Winkelfeld::Gewinn, std::string("12")).Tun(ZelleGeklickt, 1);
  EXPECT_EQ(s.winkel.gewinn, "12");
  s.winkel.bearbeitet = false;
  s.winkel.dateiGelesen = true;
  Tun(HauptfensterAktiviert).Rechnen();
  EXPECT_EQ(s.winkel.gewinn, "0");
  EXPECT_FALSE(s.winkel.dateiGelesen);  // the file holds another gain
}

TEST_F(MitKabel, SchliessenMitFehlerSchliesstGanz) {
  Tun(OptionenOeffnen).Tippen(KabelQRG, "435").Tun(KabelfeldGetippt, Kabelfeld::KabelLaenge, lang);
  Tun(OptionenSchliessen);
  EXPECT_FALSE(s.fenster.optionen || s.OptionenBeruecksichtigen);
  EXPECT_EQ(gesagt.back(), "Vesk - Fehlermeldung");
}

TEST_F(MitKabel, WerImHauptfensterTipptVerlaesstDieSpalte) {
  Kopieren().Tun(ZelleGeklickt, 1).Tippen(QRG, "435").Verlassen();
  EXPECT_EQ(Blatt(1, ZeileVerluste), "1.11");
  EXPECT_EQ(s.werte.Spalte, 0);
  EXPECT_EQ(s.werte.DaempfungText, "7.42");
}

}  // namespace
}  // namespace vesk
