#include <cstdlib>
#include <functional>
#include <random>

#include "engine/Zahlen.h"
#include "station/Verlauf.h"
#include "tests/station/Tisch.h"

namespace vesk {
namespace {

/// A user who does anything at any time. After every action each figure that counts as up to date is computed
/// anew from the inputs beside it.
class Zufallsbenutzer : public Tisch {
 public:
  explicit Zufallsbenutzer(unsigned saat) : zufall_(saat) { s.einstellungen.Meldungen = saat % 2 == 0; }

  void Handeln() {
    letzte = Zahl(taten_.size());
    const Station vorher = s;
    antworten = {Zahl(2) == 0 ? Antwort::Ja : Antwort::Nein, Zahl(2) == 0 ? Antwort::Ja : Antwort::Nein};
    gesagt.clear();
    taten_[letzte]();
    verlauf_.Merken(vorher, s);
    if (Zahl(500) == 0) HinUndHer();
  }

  void Pruefen() {
    if (Aktuell(s)) ErgebnisPruefen();
    for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
      if (!SpalteVeraltet(s, spalte)) SpaltePruefen(spalte);
    }
    ASSERT_EQ(s.Datenblattspalten[0].Zyklusfaktor, Formatieren(s.werte.Zyklusfaktor));
    ASSERT_EQ(s.Datenblattspalten[0].Modulationsfaktor, Formatieren(s.werte.Modulationsfaktor));
    ASSERT_EQ(s.Datenblattspalten[0].Grenzwerttyp, s.werte.Grenzwerttyp);
    if (s.zyklus >= 0) {
      ASSERT_EQ(s.werte.Zyklusfaktor, ZyklusfaktorVon(s.zyklus));
    }
    const Sendeartwahl wahl = ModulationsFaktorErmitteln(s.kreuze);
    if (wahl.anzahl > 0) {
      ASSERT_GE(s.werte.Modulationsfaktor, wahl.faktor);
    }
  }

  std::size_t letzte = 0;

 private:
  /// Takes back some steps and repeats as many: what the user entered is there again. Then goes back once
  /// more.
  void HinUndHer() {
    Station jetzt = s;
    const std::size_t schritte = 1 + Zahl(150);
    std::size_t zurueck = 0;
    while (zurueck < schritte && verlauf_.Zurueck(s)) ++zurueck;
    for (std::size_t i = 0; i < zurueck; ++i) ASSERT_TRUE(verlauf_.Vor(s));
    if (zurueck == 0) return;
    jetzt.inArbeit.reset();
    jetzt.UserGeaendert = true;
    jetzt.winkel.bearbeitet = s.winkel.bearbeitet;
    ASSERT_EQ(s, jetzt);
    verlauf_.Zurueck(s);
    ASSERT_NE(s, jetzt);
  }

  std::size_t Zahl(std::size_t grenze) { return zufall_() % grenze; }
  int Nummer(std::size_t grenze) { return static_cast<int>(Zahl(grenze)); }
  int Spalte() { return Nummer(7) + 1; }
  std::string Text() {
    static constexpr const char* texte[] = {"14.2", "145",  "435", "7.05", "0.5",  "100",  "750", "0",    "",
                                            "-3",   "3.33", "50",  "1e9",  "1e99", "2600", "10",  "0.001"};
    return texte[Zahl(std::size(texte))];
  }

  void ErgebnisPruefen() {
    Rechenwerte werte;
    for (const auto text : Eingabetexte) werte.*text = s.werte.*text;
    werte.Modulationsfaktor = s.werte.Modulationsfaktor;
    werte.Zyklusfaktor = s.werte.Zyklusfaktor;
    werte.Grenzwerttyp = s.werte.Grenzwerttyp;
    const Feldtexte texte = Ausgabetexte(Berechnen(werte, {s.modus, s.einstellungen.AFu}), '.');
    ASSERT_EQ(Ohne(), texte[Feld::AusgabeOhneHSM]);
    ASSERT_EQ(HSM306(), texte[Feld::AusgabeHSM306]);
    ASSERT_EQ(Ausgabe(Feld::AusgabeHSMvde), texte[Feld::AusgabeHSMvde]);
  }

  /// One of the four ways of calculating the column gives its figures.
  void SpaltePruefen(int spalte) {
    if (Blatt(spalte, ZeileOhneHSM) + Blatt(spalte, ZeileHSM306) + Blatt(spalte, ZeileHSMvde) == "") return;
    bool haelt = false;
    for (const int art : {0, 1, 2, 3}) {
      Rechenwerte werte = Spaltenwerte(s, spalte);
      const bool zurueck = art % 2 == 1;
      if (zurueck) werte.PWRText = Blatt(spalte, ZeileOhneHSM);
      const Feldtexte texte =
          Ausgabetexte(Berechnen(werte, {zurueck ? Modus::Leistung : Modus::Abstand, art > 1}), '.');
      haelt = haelt || texte[Feld::AusgabeOhneHSM] == Blatt(spalte, zurueck ? ZeileLeistung : ZeileOhneHSM);
    }
    ASSERT_TRUE(haelt) << "Spalte " << spalte;
  }

  /// What has just been copied or calculated without a fault holds.
  void MussHalten(int spalte) {
    ASSERT_TRUE(spalte == 0 || Gesagt("Vesk - Fehlermeldung") || !SpalteVeraltet(s, spalte)) << spalte;
  }
  void KopierenUndPruefen() {
    const std::string frei = NaechsteFreieSpalte(s.Zellen);
    const bool vorher = s.ergebnis && s.ergebnis->kopiert;
    Kopieren();
    const bool kopiert = !vorher && s.ergebnis && s.ergebnis->kopiert;
    // Without the options a row of modes that was there before may claim others; in power mode rows 11 and 12
    // stay as they were.
    if (kopiert && s.OptionenBeruecksichtigen && s.modus == Modus::Abstand)
      MussHalten(frei.front() - 'A' + 1);
  }

  const std::vector<std::function<void()>> taten_ = {
      [this] { Tippen(Eingabefeld(Zahl(6)), Text()); },
      [this] { Tun(EingabeGeklickt, Eingabefeld(Zahl(5))); },
      [this] { Verlassen(); },
      [this] { Tun(BerechnenVerlangt); },
      [this] { Eingeben(Text(), Text(), Text(), Text(), Text()).Rechnen(); },
      [this] { KopierenUndPruefen(); },
      [this] { Tun(AFuUmschalten); },
      [this] { Tun(Zahl(2) == 0 ? AbstandUmschalten : ModusGeklickt); },
      [this] { Tun(HauptfensterAktiviert); },
      [this] { Tun(WarnmeldungenUmschalten); },
      [this] { Tun(BetriebsartGeklickt, Nummer(8)); },
      [this] { Tun(ZyklusGeklickt, Nummer(6)); },
      [this] { Tun(GrenzwerttypGeklickt, Nummer(3)); },
      [this] { Tun(KabelGewaehlt, Nummer(k.kabel.liste.size())); },
      [this] { Tun(KabelGleich); },
      [this] { Tun(KabelfeldGetippt, Kabelfeld(1 + Zahl(5)), Text()); },
      [this] { Tun(KabelfeldGeklickt, Kabelfeld(Zahl(6))); },
      [this] { Tun(AntenneGewaehlt, Nummer(k.antennen.Antennen.size())); },
      [this] { Tun(AntenneNehmen); },
      [this] { Tun(SektorenBerechnen); },
      [this] { Tun(WinkeldaempfungGetippt, Zahl(9), Text()); },
      [this] { Tun(WinkeldaempfungNehmen, Zahl(9)); },
      [this] { Tun(Zahl(2) == 0 ? WinkelBeispiel : WinkelLoeschen); },
      [this] { Tun(Zahl(2) == 0 ? OptionenSchliessen : OptionenVerbergen); },
      [this] { Tun(OptionenSchalten, Zahl(3) != 0); },
      [this] { Tun(ZelleGetippt, Zahl(AnzahlZellen), Text()); },
      [this] { Zelle(Spalte(), ZeileBetriebsarten, Zahl(2) == 0 ? "fm" : "cw ssb"); },
      [this] { Tun(ZelleGeklickt, Spalte()); },
      [this] { Tun(KopfGeklickt, Spalte()), MussHalten(s.werte.Spalte); },
      [this] { Tun(SpalteRechnen), MussHalten(s.werte.Spalte); },
      [this] { Tun(SpalteLoeschen, Spalte()); },
      [this] { Tun(SpalteKopieren); },
      [this] { Zahl(20) == 0 ? Tun(DatenblattLoeschen) : Verlassen(); },
  };
  std::mt19937 zufall_;
  Verlauf verlauf_;
};

/// VESK_ZUFALL: number of actions, 100,000 unless told otherwise.
TEST(Zufall, KeineZahlNebenFremdenEingaben) {
  const char* anzahl = std::getenv("VESK_ZUFALL");
  const int handlungen = anzahl != nullptr ? std::atoi(anzahl) : 100000;
  constexpr int JeBenutzer = 2000;
  int aktuell = 0;
  for (int i = 0; i < handlungen; i += JeBenutzer) {
    const auto saat = static_cast<unsigned>(i / JeBenutzer);
    Zufallsbenutzer benutzer(saat);
    for (int j = 0; j < JeBenutzer; ++j) {
      benutzer.Handeln();
      benutzer.Pruefen();
      if (testing::Test::HasFatalFailure()) FAIL() << "Saat " << saat << ", " << j << ": " << benutzer.letzte;
      aktuell += Aktuell(benutzer.s) ? 1 : 0;
    }
  }
  EXPECT_GT(aktuell, handlungen / 20);  // a user who never gets a figure proves nothing
}

}  // namespace
}  // namespace vesk
