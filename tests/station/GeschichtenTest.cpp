#include "station/Spaltenstand.h"
#include "tests/station/Tisch.h"

namespace vesk {
namespace {

using enum Eingabefeld;

/// RG213, 50 m at 435 MHz; then the user clicks into the frequency, types 14.2 and goes on without leaving
/// it.
struct KabelFolgt : testing::Test, Tisch {
  KabelFolgt() {
    Eingeben("435").Kabel("RG213", "50").Rechnen();
    EXPECT_EQ(s.werte.DaempfungText + '|' + Ohne(), "7.42|0.82");
    Tun(FeldBetreten, QRG).Tun(EingabeGeklickt, QRG).Tun(EingabeGetippt, QRG, std::string("14.2"));
    EXPECT_FALSE(s.ergebnis);
  }
};

TEST_F(KabelFolgt, JedemWegHinaus) {
  const Station vorher = s;
  const auto wege = {Handlung(BerechnenVerlangt), Handlung(AFuUmschalten), Handlung(AbstandUmschalten),
                     Handlung(ModusGeklickt),
                     Handlung([](Station& t, const Kataloge& n) { return FeldVerlassen(t, n, QRG); })};
  for (const Handlung& weg : wege) {
    s = vorher;
    Tun(weg);
    EXPECT_EQ(s.werte.DaempfungText + '|' + s.Datenblattspalten[0].QRG, "1.11|14.2");
    EXPECT_EQ(Kopierbar(s), s.modus == Modus::Abstand);
    EXPECT_TRUE(s.modus == Modus::Leistung || !s.einstellungen.AFu || Ohne() == "1.75");
  }
}

TEST_F(KabelFolgt, AuchDemSpeichern) {
  Abschliessen(s, k);
  EXPECT_EQ(s.werte.DaempfungText, "1.11");
  EXPECT_FALSE(s.ergebnis);
}

struct Geschichte : testing::Test, Tisch {};

TEST_F(Geschichte, KopierenKommtNichtMitAltenErgebnissenZurueck) {
  Eingeben("14.2").Rechnen();
  EXPECT_TRUE(Kopierbar(s));
  Tippen(Gewinn, "5");
  EXPECT_FALSE(Kopierbar(s));
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    antworten = {antwort, antwort};
    Tun(DatenblattLoeschen).Tun(SpalteLoeschen, 1);
    EXPECT_FALSE(Kopierbar(s));
  }
  Rechnen();
  EXPECT_TRUE(Kopierbar(s));
  Tun(EingabeGeklickt, PWR).Tun(DatenblattLoeschen).Kopieren();
  EXPECT_EQ(Blatt(1, ZeileFrequenz), "14.2");  // inputs alone
  EXPECT_EQ(Blatt(1, ZeileOhneHSM), "");
}

TEST_F(Geschichte, FelderMeldenSichInBeliebigerFolge) {
  Eingeben("14.2").Rechnen();
  const std::string vorher = s.winkel.AntEinPWR;
  Tun(FeldBetreten, PWR).Tun(FeldBetreten, Gewinn).Tun(FeldVerlassen, PWR);  // passed through
  EXPECT_EQ(s.winkel.AntEinPWR, vorher);
  EXPECT_EQ(s.inArbeit, Gewinn);
  Tun(FeldBetreten, QRG).Tun(EingabeGetippt, QRG, std::string("7.05"));
  Tun(FeldBetreten, Rufzeichen);  // a window that opened over the field
  EXPECT_TRUE(Aktuell(s));
  Tun(EingabeGetippt, QRG, std::string("145"));  // back again, which nobody has told
  EXPECT_EQ(s.inArbeit, QRG);
  Tun(BerechnenVerlangt);
  EXPECT_EQ(s.koepfe->hsm, 144.0F);
}

TEST_F(Geschichte, GewinnUndLeereFelderNachDemVerlassen) {
  const std::pair<std::string, const char*> faelle[] = {
      {"150", "100"}, {"100", "100"}, {"-3", "-3"}, {"", "0"}, {std::string(400, '9'), "100"}};
  for (const auto& [getippt, bleibt] : faelle)
    EXPECT_EQ(Tippen(Gewinn, getippt).Verlassen().s.werte.GewinnText, bleibt);
  EXPECT_EQ(Tippen(Winkel, "").Verlassen().s.werte.WinkelDaempfungText, "0");
}

TEST_F(Geschichte, OptionenSchliessenMitFrequenzInArbeit) {
  Eingeben("14.2").Kabel("RG213", "50").Rechnen();
  Tippen(KabelQRG, "435").Tun(OptionenSchliessen);
  EXPECT_TRUE(Aktuell(s) && !s.OptionenBeruecksichtigen);
  EXPECT_EQ(s.werte.QRGText + '|' + s.werte.DaempfungText + '|' + Ohne(), "435|7.42|0.82");
  s.ergebnis->kopiert = true;
  Tun(FeldBetreten, QRG).Verlassen();
  EXPECT_TRUE(s.ergebnis->kopiert) << "handed on already";
}

TEST_F(Geschichte, LeistungsmodusGibtDerWinkelseiteKeinenAbstand) {
  Tun(AbstandUmschalten).Eingeben("14.2", "3", "0", "3").Rechnen();
  EXPECT_EQ(Ohne(), "452.71");
  EXPECT_EQ(s.winkel.AntEinPWR, "226.89");
  Tippen(PWR, "4").Verlassen();
  EXPECT_EQ(s.winkel.AntEinPWR, "226.89");
  Tun(AbstandUmschalten).Tippen(PWR, "50").Verlassen();
  EXPECT_EQ(s.winkel.AntEinPWR, "50");
}

TEST_F(Geschichte, WinkeltabelleBleibtUndIhreDateiAuch) {
  Eingeben("144").Rechnen().Kopieren();
  s.winkel.datei = "/H-Beam.ang";
  s.winkel.dateiGelesen = true;
  Tun(WinkeldaempfungGetippt, std::size_t{1}, std::string("3"));
  antworten = {Antwort::Nein};
  Tun(ZelleGeklickt, 1);
  EXPECT_EQ(s.Datenblattspalten[0].Winkel[1] + s.winkel.datei, "3/H-Beam.ang");
  Tun(ZelleGeklickt, 1);
  EXPECT_EQ(s.Datenblattspalten[0].Winkel[1] + s.winkel.datei + s.winkel.herkunft, "aus Spalte A");
  s.winkel.datei = "/H-Beam.ang";
  s.Datenblattspalten[1].Winkel[2] = "7";
  Tun(ModusGeklickt).Tun(ZelleGeklickt, 1);
  EXPECT_EQ(s.Datenblattspalten[0].Winkel[2] + s.winkel.datei, "7");
  EXPECT_EQ(s.modus, Modus::Abstand);
  Tun(WinkeldaempfungGetippt, std::size_t{3}, std::string("5"));
  EXPECT_EQ(s.Datenblattspalten[1].Winkel[3], "5");
}

TEST_F(Geschichte, SektorenVeralten) {
  Tun(WinkelBeispiel);
  EXPECT_TRUE(SektorAktuell(s, 0) && EIRPAktuell(s, 0));
  EXPECT_EQ(EIRPText(s, 0), "11777.89");
  Tun(WinkeldaempfungGetippt, std::size_t{1}, std::string("1"));
  EXPECT_TRUE(SektorAktuell(s, 0));
  EXPECT_FALSE(SektorAktuell(s, 1));
  Eingeben("14.2").Rechnen();
  EXPECT_FALSE(SektorAktuell(s, 0));
  EXPECT_TRUE(EIRPAktuell(s, 0));
  EXPECT_EQ(EIRPText(s, 0), "100.00");
  EXPECT_EQ(s.koepfe->grenzwert, 14.0F);
  Tun(SektorenBerechnen).Tun(AFuUmschalten);
  EXPECT_FALSE(SektorAktuell(s, 3));
}

TEST_F(Geschichte, AntenneUndWinkeldaempfung) {
  Eingeben("144", "100", "0", "0", "3");
  int gezaehlt = 0;
  for (int i = 0; gezaehlt < 2; ++i) {
    if (!AntenneWaehlen(k.antennen.Antennen.at(std::size_t(i)), "144").Passt()) continue;
    antworten = {++gezaehlt == 1 ? Antwort::Ja : Antwort::Nein};
    s.einstellungen.Meldungen = false;
    Tun(AntenneGewaehlt, i).Tun(AntenneNehmen);
    EXPECT_TRUE(Gesagt("Winkeldämpfung"));
    gesagt.clear();
    EXPECT_EQ(s.werte.WinkelDaempfungText, gezaehlt == 1 ? "3" : "0");
    EXPECT_TRUE(Aktuell(s));
  }
  Tun(AntenneGewaehlt, 0).Tippen(QRG, "0.5").Verlassen().Tun(AntenneNehmen);
  EXPECT_TRUE(Gesagt("Fehler"));
}

TEST_F(Geschichte, VerlusteVonHand) {
  Eingeben("14.2", "100", "0", "1.5").Rechnen();
  Tun(KabelGleich).Kabel("RG213", "");
  EXPECT_EQ(s.werte.DaempfungText, "1.5");
  Tippen(QRG, "7.05").Verlassen();
  EXPECT_EQ(s.werte.DaempfungText, "1.5");
  Tun(KabelfeldGetippt, Kabelfeld::Gesamtdaempfung, std::string("3")).Tun(KabelGleich);
  EXPECT_EQ(s.werte.DaempfungText, "3");
  EXPECT_TRUE(Aktuell(s));
  Tippen(Daempfung, "2").Tun(KabelGleich);
  EXPECT_EQ(s.werte.DaempfungText, "2") << "typed later";
  // A loss per 100 m of another frequency or cable is never used.
  Kabel("RG213", "50").Tippen(QRG, "0.5").Verlassen();
  EXPECT_EQ(s.werte.DaempfungText, "0");
  Tippen(QRG, "14.2").Verlassen().Kabel("Anderes Kabel", "50");
  EXPECT_EQ(s.Datenblattspalten[0].D100, "0.00");
}

TEST_F(Geschichte, ZuLangeZahlWirdNichtKopiert) {
  Eingeben("14.2", "100", "0.0000000000000000001").Rechnen();
  ASSERT_TRUE(Kopierbar(s));
  Kopieren();
  EXPECT_TRUE(Gesagt("Vesk - Fehlermeldung"));
  EXPECT_EQ(Blatt(1, ZeileFrequenz), "");
  EXPECT_TRUE(Kopierbar(s));
}

TEST_F(Geschichte, FehlerUndAndereFrequenz) {
  Eingeben("0.002").Rechnen();  // no limit below 3 kHz
  EXPECT_TRUE(Gesagt("Vesk - Fehlermeldung"));
  EXPECT_EQ(Ausgabe(Feld::Strahlung), "100.00");
  EXPECT_FALSE(Kopierbar(s));
  Eingeben("14.2").Rechnen();
  // Heads never stand over another frequency's figures.
  Tippen(PWR, "").Tun(AFuUmschalten);
  EXPECT_FALSE(s.ergebnis);
  Tun(AFuUmschalten).Eingeben("14.2").Rechnen().Tippen(PWR, "").Tippen(QRG, "145").Verlassen();
  EXPECT_FALSE(s.ergebnis);
  EXPECT_EQ(s.koepfe->hsm, 144.0F);
}

TEST_F(Geschichte, RoteMarken) {
  Eingeben("14.2", "0").Rechnen();
  EXPECT_EQ(s.markePWR, Pruefmarke::Fehlt);
  EXPECT_TRUE(Gesagt("Felder bitte korrekt ausfüllen"));
  Tippen(PWR, "100").Tippen(QRG, "7").Verlassen();
  EXPECT_EQ(s.markePWR, Pruefmarke::Gut);
  Zelle(3, ZeileFrequenz, "7").Tun(ZelleGeklickt, 3);
  EXPECT_TRUE(s.rot[Zellenindex(3, ZeileLeistung)]);
  EXPECT_EQ(Spaltenstand(s, 3), "Spalte C: Sendeleistung fehlt, noch nicht gerechnet");
  Zelle(3, ZeileLeistung, "5");
  EXPECT_EQ(Spaltenstand(s, 3), "Spalte C: noch nicht gerechnet");
  Tun(ZelleGeklickt, 4);
  EXPECT_FALSE(s.rot[Zellenindex(3, ZeileLeistung)]);
}

TEST_F(Geschichte, ErgebnisGehoertZuAllemWasDanebenSteht) {
  Eingeben("14.2").Rechnen();
  const Station vorher = s;
  int nummer = 0;
  const auto pruefen = [&](auto aendern) {
    s = vorher;
    EXPECT_TRUE(Kopierbar(s));
    aendern(s);
    EXPECT_FALSE(Kopierbar(s)) << nummer++;
  };
  for (const auto text : Eingabetexte) pruefen([&](Station& t) { t.werte.*text = "1"; });
  pruefen([](Station& t) { t.modus = Modus::Leistung; });
  pruefen([](Station& t) { t.einstellungen.AFu = false; });
  pruefen([](Station& t) { t.werte.Zyklusfaktor = 0.5F; });
  pruefen([](Station& t) { t.werte.Grenzwerttyp = GrenzwertTV; });
  pruefen([](Station& t) { t.ergebnis->zahlen.vollstaendig = false; });
  pruefen([this](Station&) { Kopieren(); });
  EXPECT_EQ(Kopieren().Blatt(2, ZeileFrequenz), "");
}

TEST_F(Geschichte, KlasseFolgtDemRufzeichen) {
  const auto rufzeichen = [this](const std::string& text) {
    Tun(FeldBetreten, Rufzeichen).Tun(BenutzerGetippt, std::size_t{5}, text).Tun(FeldVerlassen, Rufzeichen);
    return s.benutzer.Klasse;
  };
  const std::pair<const char*, const char*> faelle[] = {{"dl1abc", "1"}, {"DB1A", "2"}, {"dc", "2"},
                                                        {"dd1", "2"},    {"DO7X", "3"}, {"D", "1"}};
  for (const auto& [text, klasse] : faelle) EXPECT_EQ(rufzeichen(text), klasse) << text;
  Tun(BenutzerGetippt, std::size_t{6}, std::string("a"));
  EXPECT_EQ(rufzeichen("d"), "A") << "typed by hand";
  EXPECT_EQ(rufzeichen("do1"), "3");
}

TEST_F(Geschichte, OperatorPruefenUndLoeschen) {
  s.benutzer = {"Eva", "Weg 1", "Ort", "", "", "DL1ABC", "1", ""};
  s.klasseEntschieden = "DL1ABC";
  EXPECT_TRUE(UserCheck(s, true).empty());
  constexpr auto Gut = Pruefmarke::Gut, Keine = Pruefmarke::Keine, Fehlt = Pruefmarke::Fehlt;
  using Marken = std::array<Pruefmarke, 8>;
  EXPECT_EQ(s.benutzermarken, (Marken{Gut, Gut, Gut, Keine, Keine, Gut, Gut, Keine}));
  s.benutzer.Ort.clear();
  EXPECT_TRUE(UserCheck(s, true).at(0).hinweis.text.ends_with("Datenblatt trotzdem drucken?"));
  const Hinweis hinweis = UserCheck(s, false).at(0).hinweis;
  EXPECT_TRUE(hinweis.text.starts_with("Die violetten Felder") && hinweis.knoepfe == Knoepfe::OK);
  EXPECT_EQ(s.benutzermarken, (Marken{Gut, Gut, Fehlt, Keine, Keine, Gut, Gut, Fehlt}));
  for (const bool loeschen : {false, true}) {
    s.fenster.benutzer = true;
    s.UserGeaendert = false;
    antworten = {loeschen ? Antwort::Ja : Antwort::Nein};
    Tun(BenutzerLoeschen);
    EXPECT_EQ(s.benutzer == Benutzer(), loeschen);
    EXPECT_TRUE(s.UserGeaendert == loeschen && !s.fenster.benutzer);
  }
}

TEST_F(Geschichte, TitelUndFusszeile) {
  s.UserDatei = "a.dat";
  for (const int laenge : {39, 40}) {
    s.UserVerzeichnis.clear();
    for (int i = 0; i < laenge; ++i) s.UserVerzeichnis += "ö";
    const std::string datei = laenge == 39 ? s.UserVerzeichnis + "\\a.dat" : "a.dat";
    EXPECT_EQ(TitelDatenblatt(s), "Datenblatt  Vfg 306/97 Anlage Blatt 5.2  -  " + datei);
  }
  s.benutzer.Rufzeichen = "DL1ABC";
  EXPECT_EQ(TitelBenutzerfenster(s), "Persönliche Daten DL1ABC");
  s.Fusszeile = "OV Köln ";
  EXPECT_TRUE(DruckFusszeile(s).starts_with("OV Köln Erstellt mit Vesk v 2.5.1 - "));
}

}  // namespace
}  // namespace vesk
