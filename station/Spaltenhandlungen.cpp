#include "station/Datenblatt.h"
#include "station/Haupthandlungen.h"
#include "station/Optionen.h"
#include "station/Spalten.h"
#include "station/Winkel.h"

namespace vesk {

namespace {

Spaltenfarben& Farben(Station& s, int spalte) {
  return s.spaltenfarben.at(static_cast<std::size_t>(spalte) - 1);
}

void SpalteWaehlen(Station& s, const Kataloge& k, int spalte) {
  Abschliessen(s, k);
  s.inArbeit.reset();
  s.werte.LetzteSpalte = s.werte.Spalte;
  s.werte.Spalte = static_cast<std::int16_t>(spalte);
  s.rot.reset();
}

void SpalteLeeren(Station& s, int spalte) {
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) s.Zellen.at(Zellenindex(spalte, Zeile(zeile))).clear();
  s.Datenblattspalten.at(static_cast<std::size_t>(spalte)) = LeereSpalte();
}

}  // namespace

Meldungen ZelleGetippt(Station& s, const Kataloge&, std::size_t index, const std::string& text) {
  const int spalte = static_cast<int>(index) / AnzahlZeilen + 1;
  ZelleSetzen(s, spalte, Zeile(index % AnzahlZeilen + 1), text);
  if (spalte == s.werte.Spalte && index == Zellenindex(spalte, ZeileVerluste)) s.verlusteGetippt = true;
  return {};
}

Meldungen ZelleGeklickt(Station& s, const Kataloge& k, int spalte) {
  SpalteWaehlen(s, k, spalte);
  return SpalteUebernehmen(s, k, Satz::Laden, true);
}

Meldungen KopfGeklickt(Station& s, const Kataloge& k, int spalte) {
  SpalteWaehlen(s, k, spalte);
  return SpalteUebernehmen(s, k, Satz::Laden, false);
}

Meldungen SpalteLoeschen(Station& s, const Kataloge& k, int spalte) {
  SpalteWaehlen(s, k, spalte);
  // A refused question counts as a change, too; so the next save writes the file in any case.
  s.UserGeaendert = true;
  Meldung frage{Bestaetigung("Vesk", Spaltenname(spalte) + " wirklich löschen?")};
  frage.danach = [spalte](Station& t, const Kataloge& kataloge, Antwort antwort) {
    if (antwort == Antwort::Ja) {
      // Its figures may be the main window's, which then stand nowhere.
      if (t.ergebnis && t.ergebnis->eingabe.texte[0] == Zelle(t, spalte, ZeileFrequenz))
        t.ergebnis->kopiert = false;
      SpalteLeeren(t, spalte);
      Farben(t, spalte) = {};
    }
    return SatzLaden(t, kataloge);
  };
  return {frage};
}

Meldungen SpalteRechnen(Station& s, const Kataloge& k) {
  return SpalteUebernehmen(s, k, Satz::Laden, false);
}

Meldungen DatenblattLoeschen(Station&, const Kataloge&) {
  Meldung frage{Bestaetigung("Vesk", "Datenblatt wirklich löschen?")};
  frage.danach = [](Station& s, const Kataloge& k, Antwort antwort) {
    s.leerKopierbar = true;
    if (s.ergebnis) s.ergebnis->kopiert = false;
    return antwort == Antwort::Ja ? DatenblattLeeren(s, k) : Meldungen{};
  };
  return {frage};
}

Meldungen DatenblattLeeren(Station& s, const Kataloge& k) {
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    SpalteLeeren(s, spalte);
    Farben(s, spalte) = {Toenung::Keine, false, false};
  }
  s.rot.reset();
  s.UserGeaendert = true;
  const auto winkel = s.Datenblattspalten[0].Winkel;
  s.Datenblattspalten[0] = LeereSpalte();
  s.Datenblattspalten[0].Winkel = winkel;
  Meldungen meldungen = SatzLaden(s, k);
  if (s.werte.Spalte == 0) Anhaengen(meldungen, WinkelUebernehmen(s, {}, {}));
  return meldungen;
}

Meldungen SpalteKopieren(Station& s, const Kataloge&) {
  const int quelle = s.werte.Spalte;
  const std::string frei = NaechsteFreieSpalte(s.Zellen);
  if (quelle == 0 || frei.empty()) return {};
  const int ziel = frei.front() - 'A' + 1;
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    ZelleSetzen(s, ziel, Zeile(zeile), Zelle(s, quelle, Zeile(zeile)));
  }
  SatzSetzen(s, ziel, s.Datenblattspalten.at(static_cast<std::size_t>(quelle)));
  Farben(s, ziel).ohneHSM = Farben(s, quelle).ohneHSM;
  Farben(s, ziel).rueckwaerts = Farben(s, quelle).rueckwaerts;
  return {};
}

Meldungen OptionenSchalten(Station& s, const Kataloge&, bool an) {
  s.OptionenBeruecksichtigen = an;
  return {};
}

Meldungen DatenblattSchliessen(Station& s, const Kataloge& k) {
  s.fenster.datenblatt = false;
  return OptionenVerbergen(s, k);
}

Meldungen DatenblattVerbergen(Station& s, const Kataloge&) {
  s.fenster.datenblatt = false;
  return {};
}

}  // namespace vesk
