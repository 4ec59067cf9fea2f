#include "station/Rechnung.h"

#include "engine/Ausgabe.h"
#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Optionen.h"
#include "station/Spalten.h"

namespace vesk {

namespace {

Meldung Rechenhinweis(Hinweis hinweis) {
  Meldung meldung{std::move(hinweis)};
  meldung.zurRechnung = true;
  return meldung;
}

Meldung Bereichsmeldung() {
  Meldung meldung = Rechenhinweis(BereichsHinweis());
  meldung.zurFrequenz = true;
  return meldung;
}

/// Where the user's answer to a note is kept that he may switch off.
bool Einstellungen::*Abgestellt(Hinweisart art) {
  if (art == Hinweisart::Nahfeld) return &Einstellungen::NahfeldHinweisAus;
  return art == Hinweisart::HSM ? &Einstellungen::HSMHinweisAus : nullptr;
}

Meldungen Hinweise(const Station& s, const Rechenergebnis& e) {
  Meldungen meldungen;
  for (const Hinweisart art : FaelligeHinweise(e)) {
    if (art == Hinweisart::Bereich) {
      meldungen.push_back(Bereichsmeldung());
      continue;
    }
    const auto aus = Abgestellt(art);
    if (!s.einstellungen.Meldungen || (aus != nullptr && s.einstellungen.*aus)) continue;
    Meldung& meldung = meldungen.emplace_back(Rechenhinweis(HinweisZu(art, e)));
    if (aus == nullptr) continue;
    meldung.danach = [aus](Station& t, const Kataloge&, Antwort antwort) {
      t.einstellungen.*aus = antwort != Antwort::Ja;
      return Meldungen{};
    };
  }
  if (e.fehler) meldungen.push_back(Rechenhinweis(Fehlermeldung(*e.fehler)));
  return meldungen;
}

void WinkelseiteFuellen(Station& s, const Rechenergebnis& e) {
  Winkelseite& seite = s.winkel;
  // A column that is looked at takes nothing from a table that the user has not saved.
  if (s.werte.Spalte == 0 || !seite.bearbeitet) {
    // The file that the table came from holds another gain or frequency then.
    if (seite.gewinn != s.werte.GewinnText || seite.frequenz != s.werte.QRGText) seite.dateiGelesen = false;
    seite.gewinn = s.werte.GewinnText;
    seite.frequenz = s.werte.QRGText;
    seite.kopfGetippt = false;
  }
  if (e.AntEinPWR) seite.AntEinPWR = Formatieren(*e.AntEinPWR);
  if (e.WEIRP) seite.EIRPausRechnung = true;
}

Blockfarbe FarbeNach(float Uss) {
  return Uss == 0 ? Blockfarbe::Grau : Blockfarbe::Berechnet;
}

}  // namespace

Recheneingabe Eingaben(const Station& s) {
  Recheneingabe eingabe;
  for (std::size_t i = 0; i < Eingabetexte.size(); ++i) eingabe.texte[i] = s.werte.*Eingabetexte[i];
  eingabe.modus = s.modus;
  eingabe.afu = s.einstellungen.AFu;
  eingabe.faktor = Faktor(s.werte);
  eingabe.grenzwerttyp = s.werte.Grenzwerttyp;
  return eingabe;
}

bool Aktuell(const Station& s) {
  return s.ergebnis && s.ergebnis->zahlen.vollstaendig && s.ergebnis->eingabe == Eingaben(s);
}

bool Kopierbar(const Station& s) {
  if (NaechsteFreieSpalte(s.Zellen).empty()) return false;
  if (!s.ergebnis) return s.leerKopierbar;
  // The record that goes with the figures holds the cable that they were computed with.
  return Aktuell(s) && KabelAktuell(s) && !s.ergebnis->kopiert;
}

bool EingabenVollstaendig(const Station& s) {
  return Positiv(s.werte.QRGText) && Positiv(s.werte.PWRText);
}

Meldungen Berechnen(Station& s) {
  const Rechenergebnis e = Berechnen(s.werte, {.modus = s.modus, .afu = s.einstellungen.AFu});
  if (e.begonnen) {
    s.ergebnis = Ergebnis{Eingaben(s), e};
    s.koepfe = e.grenzwerte.frequenz;
    s.leerKopierbar = false;
    for (Pruefmarke* marke : {&s.markeQRG, &s.markePWR}) {
      if (*marke == Pruefmarke::Fehlt) *marke = Pruefmarke::Gut;
    }
    if (e.EIRP) s.StrahlungTitel = *Ausgabetexte(e, '.')[Feld::StrahlungTitel];
    if (e.vollstaendig) {
      s.farbe306 = FarbeNach(e.grenzwerte.hsm306.Uss);
      s.farbeVDE = FarbeNach(e.grenzwerte.hsmVDE.Uss);
    }
    WinkelseiteFuellen(s, e);
  }
  return Hinweise(s, e);
}

Meldungen BandlogikZeigen(Station& s, const std::string& text) {
  if (s.ergebnis && s.ergebnis->eingabe.texte[0] != text) AusgabenLeeren(s);
  const float mhz = Zahl(text);
  const Auswertefrequenzen frequenz = Bandlogik(mhz, s.einstellungen.AFu);
  const bool dieselbe = s.ergebnis && s.ergebnis->zahlen.grenzwerte.QRG == mhz &&
                        s.ergebnis->zahlen.grenzwerte.frequenz == frequenz;
  if (!dieselbe) AusgabenLeeren(s);
  s.koepfe = frequenz;
  return ImRechenbereich(mhz) ? Meldungen{} : Meldungen{Bereichsmeldung()};
}

void AusgabenLeeren(Station& s) {
  s.ergebnis.reset();
  s.koepfe.reset();
  s.leerKopierbar = false;
  s.markePWR = Pruefmarke::Keine;
}

void switchLeistung(Station& s) {
  AusgabenLeeren(s);
  s.werte.PWRText.clear();
  s.modus = s.modus == Modus::Leistung ? Modus::Abstand : Modus::Leistung;
  s.modusGewechselt = true;
  s.modustipsVomSchalter = true;
}

Meldungen Neurechnen(Station& s, const Kataloge& k) {
  if (s.werte.Spalte == 0) return Berechnen(s);
  return s.OptionenBeruecksichtigen ? SpalteUebernehmen(s, k, Satz::Behalten, false) : Meldungen{};
}

}  // namespace vesk
