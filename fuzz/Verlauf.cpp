#include "station/Verlauf.h"

#include <array>

#include "fuzz/Benutzer.h"

namespace vesk {

namespace {

/// What the user has entered, all over the windows.
bool GleicheEingaben(const Station& a, const Station& b) {
  return Eingaben(a) == Eingaben(b) && a.Zellen == b.Zellen && a.Datenblattspalten == b.Datenblattspalten &&
         a.benutzer == b.benutzer && a.kreuze == b.kreuze && a.zyklus == b.zyklus &&
         a.AntennenIndex == b.AntennenIndex && a.Fusszeile == b.Fusszeile;
}

/// Without what going back and forth changes on purpose.
Station Verglichen(Station s) {
  s.inArbeit.reset();
  s.UserGeaendert = true;
  s.winkel.bearbeitet = true;
  return s;
}

class Zeitreisender : public Probebenutzer {
 public:
  explicit Zeitreisender(Vorrat& vorrat) : Probebenutzer(vorrat), vorrat_(vorrat) {
    s.einstellungen.Meldungen = vorrat_.Ja();
    anfang_ = s;
  }

  void Handeln() {
    const Station vorher = s;
    feld_ = nullptr;
    const std::size_t tat = vorrat_.Wahl(Taten.size());
    if (tat == 0) {
      HinUndHer(1 + vorrat_.Wahl(8));
      return;
    }
    (this->*Taten.at(tat))();
    verlauf_.Merken(vorher, s, feld_);
  }

  /// All that was entered can be taken back to where the file began, and be repeated to where it stands.
  void AllesHinUndHer() {
    const Station ende = s;
    int zurueck = 0;
    while (verlauf_.Zurueck(s)) ++zurueck;
    vesk::Pruefen(GleicheEingaben(s, anfang_));
    Pruefen();
    for (; zurueck > 0; --zurueck) vesk::Pruefen(verlauf_.Vor(s));
    vesk::Pruefen(GleicheEingaben(s, ende));
  }

 private:
  /// What has been taken back and repeated is there again. Sometimes it is only taken back.
  void HinUndHer(std::size_t schritte) {
    const Station jetzt = Verglichen(s);
    std::size_t zurueck = 0;
    while (zurueck < schritte && verlauf_.Zurueck(s)) ++zurueck;
    if (vorrat_.Ja()) return;
    for (std::size_t i = 0; i < zurueck; ++i) vesk::Pruefen(verlauf_.Vor(s));
    vesk::Pruefen(Verglichen(s) == jetzt);
  }

  std::size_t Wahl(std::size_t anzahl) { return vorrat_.Wahl(anzahl); }
  int Nummer(std::size_t anzahl) { return static_cast<int>(Wahl(anzahl)); }

  void Buchstabe() {
    feld_ = &s.werte.QRGText;
    Tippen(Eingabefeld::QRG, s.werte.QRGText + static_cast<char>('0' + Wahl(10)));
  }
  void Eingabe() { Tippen(Eingabefeld(Wahl(6)), Text()); }
  void Verlassen() {
    if (s.inArbeit) Tun(FeldVerlassen, *s.inArbeit);
  }
  void Rechnen() { Tun(BerechnenVerlangt); }
  void Kopieren() { Tun(InFreieSpalteKopieren); }
  void Zelle() { Tun(ZelleGetippt, Wahl(AnzahlZellen), Text()); }
  void Kopf() { Tun(KopfGeklickt, Spalte()); }
  void SpalteWeg() { Tun(SpalteLoeschen, Spalte()); }
  void SpalteNochmals() { Tun(SpalteKopieren); }
  void BlattWeg() { Tun(DatenblattLoeschen); }
  void Modus() { Tun(AbstandUmschalten); }
  void Afu() { Tun(AFuUmschalten); }
  void Betriebsart() { Tun(BetriebsartGeklickt, Nummer(8)); }
  void Zyklus() { Tun(ZyklusGeklickt, Nummer(6)); }
  void Typ() { Tun(GrenzwerttypGeklickt, Nummer(3)); }
  void Kabel() { Tun(KabelGewaehlt, Nummer(k.kabel.liste.size())); }
  void Kabeltext() { Tun(KabelfeldGetippt, Kabelfeld(1 + Wahl(5)), Text()); }
  void Antenne() { Tun(AntenneGewaehlt, Nummer(k.antennen.Antennen.size())); }
  void Nehmen() { Tun(AntenneNehmen); }
  void Winkel() { Tun(WinkeldaempfungGetippt, Wahl(AnzahlSektoren), Text()); }
  void Winkelkopf() { Tun(WinkelGetippt, Winkelfeld(Wahl(5)), Text()); }
  void Sektoren() { Tun(SektorenBerechnen); }
  void Sektor() { Tun(WinkeldaempfungNehmen, Wahl(AnzahlSektoren)); }
  void Beispiel() { Tun(WinkelBeispiel); }
  void Person() { Tun(BenutzerGetippt, Wahl(Benutzerfelder.size()), Text()); }
  void PersonWeg() { Tun(BenutzerLoeschen); }
  void Schalter() { Tun(Wahl(2) == 0 ? TooltipsUmschalten : WarnmeldungenUmschalten); }
  void Optionen() { Tun(OptionenSchalten, Wahl(2) == 0); }
  void Hauptfenster() { Tun(HauptfensterAktiviert); }
  void Schliessen() { Tun(OptionenSchliessen); }
  /// The same data under another name, and the data of another operator.
  void SpeichernUnter() { s.UserDatei += 'x'; }
  void AndereDatei() {
    s.UserDatei += 'y';
    s.benutzer.Name += 'y';
    anfang_ = s;
  }

  using Tat = void (Zeitreisender::*)();
  static constexpr std::array<Tat, 33> Taten = {
      nullptr,  // back and forth
      &Zeitreisender::Buchstabe,
      &Zeitreisender::Eingabe,
      &Zeitreisender::Verlassen,
      &Zeitreisender::Rechnen,
      &Zeitreisender::Kopieren,
      &Zeitreisender::Zelle,
      &Zeitreisender::Kopf,
      &Zeitreisender::SpalteWeg,
      &Zeitreisender::SpalteNochmals,
      &Zeitreisender::BlattWeg,
      &Zeitreisender::Modus,
      &Zeitreisender::Afu,
      &Zeitreisender::Betriebsart,
      &Zeitreisender::Zyklus,
      &Zeitreisender::Typ,
      &Zeitreisender::Kabel,
      &Zeitreisender::Kabeltext,
      &Zeitreisender::Antenne,
      &Zeitreisender::Nehmen,
      &Zeitreisender::Winkel,
      &Zeitreisender::Winkelkopf,
      &Zeitreisender::Sektoren,
      &Zeitreisender::Sektor,
      &Zeitreisender::Beispiel,
      &Zeitreisender::Person,
      &Zeitreisender::PersonWeg,
      &Zeitreisender::Schalter,
      &Zeitreisender::Optionen,
      &Zeitreisender::Hauptfenster,
      &Zeitreisender::Schliessen,
      &Zeitreisender::SpeichernUnter,
      &Zeitreisender::AndereDatei,
  };

  Vorrat& vorrat_;
  Verlauf verlauf_;
  Station anfang_;
  const void* feld_ = nullptr;
};

}  // namespace

}  // namespace vesk

/// Somebody works, takes back and repeats, each action by a byte and what belongs to it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  constexpr std::size_t Hoechstens = vesk::Verlauf::MaxSchritte;  // then the first ones would be forgotten
  vesk::Vorrat vorrat(daten, laenge);
  vesk::Zeitreisender benutzer(vorrat);
  for (std::size_t i = 0; i < Hoechstens && !vorrat.Leer(); ++i) benutzer.Handeln();
  benutzer.Pruefen();
  benutzer.AllesHinUndHer();
  return 0;
}
