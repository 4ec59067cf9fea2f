#include "tests/station/Tisch.h"

namespace vesk {
namespace {

using enum Eingabefeld;

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

TEST(Kabelkatalog, KabelOhneLogarithmusSagtDortNichts) {
  Kabelkatalog katalog;
  katalog.Kabelanzahl = 1;
  katalog.kabel[0].Kabelkoeffizient[0] = 0.5F;
  bool gefunden = false;
  KabelwertErmitteln(katalog, 0, 1.5F, gefunden);
  EXPECT_TRUE(gefunden);
  KabelwertErmitteln(katalog, 0, 3000, gefunden);
  EXPECT_FALSE(gefunden);
  EXPECT_EQ(KabelwertErmitteln(katalog, 1, 3000, gefunden), 0);  // a cable of the user's own
  EXPECT_TRUE(gefunden);
}

}  // namespace
}  // namespace vesk
