#include <charconv>

#include "engine/Zahlen.h"
#include "station/Haupthandlungen.h"
#include "station/Optionen.h"
#include "station/Rechnung.h"
#include "station/Spalten.h"

namespace vesk {

namespace {

Kabelfelder Felder(const Datenblattspalte& satz) {
  return {.QRG = satz.QRG,
          .D100 = satz.D100,
          .KabelLaenge = satz.KabelLaenge,
          .Kabeldaempfung = satz.Kabeldaempfung,
          .Stecker = satz.Stecker,
          .Gesamtdaempfung = satz.Gesamtdaempfung};
}

Kabeleingaben Eingaben(const Datenblattspalte& satz) {
  return {satz.KabelIndex, satz.QRG, satz.KabelLaenge, satz.D100, satz.Stecker};
}

/// The positions of the cable tab.
void KabelInSatz(const Datenblattspalte& von, Datenblattspalte& nach) {
  nach.KabelIndex = von.KabelIndex;
  for (const auto text : Kabeltexte) nach.*text = von.*text;
}

/// The total goes to the main window and to the column: with a length, or typed by the user and no older than
/// what he has typed in the main window.
void VerlusteWeitergeben(Station& s, bool mitLaenge) {
  const Datenblattspalte& optionen = s.Datenblattspalten[0];
  const bool weitergeben = mitLaenge || (!optionen.Gesamtdaempfung.empty() && !s.verlusteGetippt);
  if (weitergeben) {
    s.werte.DaempfungText = optionen.Gesamtdaempfung;
    s.verlusteGetippt = false;
  }
  if (!SpalteFolgt(s)) return;
  FaktorenInSpalte(s);
  SpaltensatzAendern(s, [&](Datenblattspalte& satz) { KabelInSatz(optionen, satz); });
  if (weitergeben) ZelleSetzen(s, s.werte.Spalte, ZeileVerluste, optionen.Gesamtdaempfung);
}

/// What a frequency that is being typed would give.
void FrequenzVersuchen(Station& s, const Kataloge& k, const std::string& text) {
  try {
    if (Zahl(text) == 0) return;
    if (s.werte.Spalte == 0 && !s.ergebnis) BandlogikZeigen(s, text);
    Kabeldaempfung(s, k);
    if (s.werte.Spalte == 0) Berechnen(s);
  } catch (const Laufzeitfehler&) {
    return;
  }
}

}  // namespace

int Kabelindex(const Datenblattspalte& satz, const Kataloge& k) {
  const std::string& text = satz.KabelIndex;
  int index = -1;
  const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), index);
  const bool gut = fehler == std::errc() && ende == text.data() + text.size() && index >= 0 &&
                   index < static_cast<int>(k.kabel.liste.size());
  return gut ? index : -1;
}

int Kabelindex(const Station& s, const Kataloge& k) {
  return Kabelindex(s.Datenblattspalten[0], k);
}

bool AnderesKabelGewaehlt(const Station& s, const Kataloge& k) {
  const int index = Kabelindex(s, k);
  return index >= 0 && k.kabel.liste.at(std::size_t(index)) == AnderesKabel;
}

Meldungen KabelGewaehlt(Station& s, const Kataloge& k, int index) {
  Datenblattspalte& optionen = s.Datenblattspalten[0];
  optionen.KabelIndex = std::to_string(index);
  const bool anderes = AnderesKabelGewaehlt(s, k);
  optionen.D100 = anderes ? "0" : "";
  D100Faerben(s, k);
  return KabelGleich(s, k);
}

void D100Faerben(Station& s, const Kataloge& k) {
  const bool fehlt = AnderesKabelGewaehlt(s, k) && !Positiv(s.Datenblattspalten[0].D100);
  s.farbeD100 = fehlt ? D100Farbe::Rot : D100Farbe::Unveraendert;
}

Meldungen KabelGleich(Station& s, const Kataloge& k) {
  Kabeldaempfung(s, k);
  return Neurechnen(s, k);
}

Meldungen KabelfeldGetippt(Station& s, const Kataloge& k, Kabelfeld feld, const std::string& text) {
  Meldungen meldungen;
  if (feld == Kabelfeld::QRG) meldungen = FeldBetreten(s, k, Eingabefeld::KabelQRG);
  s.Datenblattspalten[0].*Kabeltexte.at(std::size_t(feld)) = text;
  if (feld == Kabelfeld::Gesamtdaempfung) s.verlusteGetippt = false;
  // On the way to 145 the user types 1 and 14; what such a frequency would say is said when the field is
  // left.
  if (feld == Kabelfeld::QRG) FrequenzVersuchen(s, k, text);
  return meldungen;
}

Meldungen KabelfeldGeklickt(Station& s, const Kataloge& k, Kabelfeld feld) {
  if (feld == Kabelfeld::Stecker || feld == Kabelfeld::Gesamtdaempfung) return {};
  return KabelfeldGetippt(s, k, feld, {});
}

bool KabelAktuell(const Station& s) {
  const Datenblattspalte& optionen = s.Datenblattspalten[0];
  const std::string& laenge = optionen.KabelLaenge;
  const bool ohneLaenge = laenge.find_first_of("123456789") == std::string::npos;
  return ohneLaenge || s.kabelstand == Eingaben(optionen);
}

void KabelstandMerken(Station& s) {
  s.kabelstand = Eingaben(s.Datenblattspalten[0]);
}

void Kabeldaempfung(Station& s, const Kataloge& k) {
  Datenblattspalte& optionen = s.Datenblattspalten[0];
  const bool mitLaenge = Zahl(optionen.KabelLaenge) != 0;
  if (optionen.QRG.empty()) optionen.QRG = s.werte.QRGText;
  Kabelfelder felder = Felder(optionen);
  // The loss per 100 m that a catalogue cable shows belongs to another cable or frequency.
  if (mitLaenge && !AnderesKabelGewaehlt(s, k)) felder.D100.clear();
  KabeldaempfungRechnen(k.kabel, Kabelindex(s, k), felder);
  optionen.D100 = felder.D100;
  optionen.Kabeldaempfung = felder.Kabeldaempfung;
  optionen.Gesamtdaempfung = felder.Gesamtdaempfung;
  if (felder.farbe != D100Farbe::Unveraendert) s.farbeD100 = felder.farbe;
  KabelstandMerken(s);
  VerlusteWeitergeben(s, mitLaenge);
}

void FrequenzUebergeben(Station& s, const Kataloge& k) {
  s.Datenblattspalten[0].QRG = s.werte.QRGText;
  // Without a length the loss may have been typed in the main window.
  if (Zahl(s.Datenblattspalten[0].KabelLaenge) != 0) Kabeldaempfung(s, k);
}

Meldungen KabelfrequenzVerlassen(Station& s, const Kataloge& k, bool rechnen) {
  std::string& text = s.Datenblattspalten[0].QRG;
  // An emptied field gets its frequency back, and the loss, which had followed what was typed, too.
  const bool geleert = text.empty();
  if (geleert) text = s.werte.QRGText;
  if (text == s.beimBetreten && !geleert) return {};
  s.werte.QRGText = text;
  if (SpalteFolgt(s)) ZelleSetzen(s, s.werte.Spalte, ZeileFrequenz, text);
  FrequenzUebergeben(s, k);
  s.beimBetreten = s.frequenzUebergeben = text;
  if (!rechnen) return {};
  if (s.werte.Spalte == 0 && !EingabenVollstaendig(s)) {
    return Positiv(text) ? BandlogikZeigen(s, text) : Meldungen{};
  }
  return Neurechnen(s, k);
}

}  // namespace vesk
