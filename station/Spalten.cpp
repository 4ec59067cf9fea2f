#include "station/Spalten.h"

#include <algorithm>

#include "engine/Ausgabe.h"
#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Optionen.h"
#include "station/Rechnung.h"
#include "station/Winkel.h"

namespace vesk {

namespace {

struct Quelle {
  Zeile zeile;
  std::string Rechenwerte::*text;
};
constexpr Quelle Quellen[] = {
    {ZeileFrequenz, &Rechenwerte::QRGText},           {ZeileLeistung, &Rechenwerte::PWRText},
    {ZeileVerluste, &Rechenwerte::DaempfungText},     {ZeileGewinn, &Rechenwerte::GewinnText},
    {ZeileWinkel, &Rechenwerte::WinkelDaempfungText},
};

struct Ergebniszeile {
  Zeile zeile;
  Feld feld;
  std::string Datenblattspalte::*satz;
};
constexpr Ergebniszeile Ergebniszeilen[] = {
    {ZeileOhneHSM, Feld::AusgabeOhneHSM, &Datenblattspalte::AbstandOhneHSM},
    {ZeileHSM306, Feld::AusgabeHSM306, &Datenblattspalte::AbstandHSM306},
    {ZeileHSMvde, Feld::AusgabeHSMvde, &Datenblattspalte::AbstandHSMvde},
};

const Datenblattspalte& SatzVon(const Station& s, int spalte) {
  return s.Datenblattspalten.at(static_cast<std::size_t>(spalte));
}

Spaltenfarben& Farben(Station& s, int spalte) {
  return s.spaltenfarben.at(static_cast<std::size_t>(spalte) - 1);
}

std::int16_t GueltigerTyp(std::int16_t typ) {
  return typ >= GrenzwertAM && typ <= GrenzwertGSM ? typ : std::int16_t{GrenzwertAM};
}

/// Rows 10 to 12 are what calculating forwards gives.
bool HaeltVorwaerts(const Station& s, int spalte, const Feldtexte& texte) {
  return std::all_of(std::begin(Ergebniszeilen), std::end(Ergebniszeilen),
                     [&](const Ergebniszeile& z) { return Zelle(s, spalte, z.zeile) == texte[z.feld]; });
}

/// Row 6 is the power for the distance in row 10; pacemaker distances, which are not known then, are missing
/// or those of that power.
bool HaeltRueckwaerts(const Station& s, int spalte, Rechenwerte werte, bool afu, const Feldtexte& vorwaerts) {
  for (const Ergebniszeile& z : {Ergebniszeilen[1], Ergebniszeilen[2]}) {
    const std::string& zelle = Zelle(s, spalte, z.zeile);
    if (!zelle.empty() && zelle != vorwaerts[z.feld]) return false;
  }
  werte.PWRText = Zelle(s, spalte, ZeileOhneHSM);
  const Rechenergebnis e = Berechnen(werte, {.modus = Modus::Leistung, .afu = afu});
  return e.vollstaendig && Ausgabetexte(e, '.')[Feld::AusgabeOhneHSM] == Zelle(s, spalte, ZeileLeistung);
}

/// Frequency and power of the current column must be numbers above 0; marks its cells.
bool Pruefen(Station& s) {
  MarkenZuruecknehmen(s);
  for (const Zeile zeile : {ZeileFrequenz, ZeileLeistung}) {
    s.rot[Zellenindex(s.werte.Spalte, zeile)] = !Positiv(Zelle(s, s.werte.Spalte, zeile));
  }
  return EingabenVollstaendig(s);
}

/// The results of the column just calculated. One that a cell would cut is refused.
void ErgebnisseEintragen(Station& s, int spalte) {
  const Feldtexte texte = Ausgabetexte(s.ergebnis->zahlen, '.');
  for (const Ergebniszeile& z : Ergebniszeilen) {
    if (texte[z.feld]->size() > MaxZellenlaenge) throw Laufzeitfehler(Fehlerart::Ueberlauf);
  }
  for (const Ergebniszeile& z : Ergebniszeilen) {
    ZelleSetzen(s, spalte, z.zeile, *texte[z.feld]);
    // They repeat the cells; on their own they are no change of the user's data.
    s.Datenblattspalten.at(static_cast<std::size_t>(spalte)).*z.satz = *texte[z.feld];
  }
}

/// Modes, cycle and signal type of the current column (0: of the working record, which holds no modes, so its
/// boxes stand).
void SendeartLaden(Station& s) {
  const int spalte = s.werte.Spalte;
  const Zykluswahl zyklus = ZyklusAusText(SatzVon(s, spalte).Zyklusfaktor);
  s.zyklus = zyklus.option;
  s.werte.Zyklusfaktor = zyklus.faktor;
  s.werte.Grenzwerttyp = GueltigerTyp(SatzVon(s, spalte).Grenzwerttyp);
  if (spalte == 0) {
    const Sendeartwahl wahl = ModulationsFaktorErmitteln(s.kreuze);
    s.SelectedModes = wahl.text;
    s.werte.Modulationsfaktor = wahl.faktor;
  } else {
    const std::string& zelle = Zelle(s, spalte, ZeileBetriebsarten);
    s.werte.Modulationsfaktor = SpaltenModulationsfaktor(s, spalte);
    const Sendeartwahl wahl = ModulationsFaktorErmitteln(s.kreuze);
    if (!s.OptionenBeruecksichtigen) {
      s.kreuze = ModulationsArtAnkreuzen(zelle);
      s.SelectedModes = ModulationsFaktorErmitteln(s.kreuze).text;
    } else if (wahl.text != zelle || wahl.faktor != s.werte.Modulationsfaktor) {
      // Otherwise the cell, which holds three abbreviations at most, was written from more boxes.
      s.kreuze = KreuzeAusKuerzeln(zelle);
      s.SelectedModes = zelle;
    }
  }
  ArbeitssatzFaktoren(s);
}

}  // namespace

float SpaltenModulationsfaktor(const Station& s, int spalte) {
  const float satz = FaktorAusText(SatzVon(s, spalte).Modulationsfaktor);
  const Sendeartwahl genannt =
      ModulationsFaktorErmitteln(KreuzeAusKuerzeln(Zelle(s, spalte, ZeileBetriebsarten)));
  return genannt.anzahl == 0 ? satz : std::max(satz, genannt.faktor);
}

float Spaltenfaktor(const Station& s, int spalte) {
  return Faktor(spalte == 0 ? s.werte : Spaltenwerte(s, spalte));
}

Rechenwerte Spaltenwerte(const Station& s, int spalte) {
  Rechenwerte werte;
  for (const Quelle& quelle : Quellen) werte.*quelle.text = Zelle(s, spalte, quelle.zeile);
  werte.Modulationsfaktor = SpaltenModulationsfaktor(s, spalte);
  werte.Zyklusfaktor = ZyklusAusText(SatzVon(s, spalte).Zyklusfaktor).faktor;
  werte.Grenzwerttyp = GueltigerTyp(SatzVon(s, spalte).Grenzwerttyp);
  return werte;
}

std::optional<Rechenart> HaltendeArt(const Station& s, int spalte) {
  const Rechenwerte werte = Spaltenwerte(s, spalte);
  // Without pacemaker distances both directions can hold.
  const bool rueckwaerts = s.spaltenfarben.at(static_cast<std::size_t>(spalte) - 1).rueckwaerts;
  for (const bool afu : {true, false}) {
    Rechenwerte kopie = werte;
    const Rechenergebnis e = Berechnen(kopie, {.modus = Modus::Abstand, .afu = afu});
    const Feldtexte texte = e.vollstaendig ? Ausgabetexte(e, '.') : Feldtexte();
    const bool vorwaerts = HaeltVorwaerts(s, spalte, texte);
    if ((rueckwaerts || !vorwaerts) && HaeltRueckwaerts(s, spalte, werte, afu, texte)) {
      return Rechenart{.modus = Modus::Leistung, .afu = afu};
    }
    if (vorwaerts) return Rechenart{.modus = Modus::Abstand, .afu = afu};
  }
  return std::nullopt;
}

bool Haelt(const Station& s, int spalte) {
  return HaltendeArt(s, spalte).has_value();
}

bool SpalteVeraltet(const Station& s, int spalte) {
  const bool leer = std::all_of(std::begin(Ergebniszeilen), std::end(Ergebniszeilen),
                                [&](const auto& z) { return Zelle(s, spalte, z.zeile).empty(); });
  return !leer && !Haelt(s, spalte);
}

void ZelleSetzen(Station& s, int spalte, Zeile zeile, const std::string& text) {
  std::string& zelle = s.Zellen.at(Zellenindex(spalte, zeile));
  if (zelle == text) return;
  zelle = text;
  s.UserGeaendert = true;
}

void SatzSetzen(Station& s, int spalte, const Datenblattspalte& satz) {
  Datenblattspalte& ziel = s.Datenblattspalten.at(static_cast<std::size_t>(spalte));
  if (ziel == satz) return;
  ziel = satz;
  s.UserGeaendert = true;
}

void SpalteVerlassen(Station& s) {
  s.werte.LetzteSpalte = s.werte.Spalte;
  s.werte.Spalte = 0;
}

void MarkenZuruecknehmen(Station& s) {
  const int spalte = s.werte.LetzteSpalte;
  if (spalte < 1 || spalte > AnzahlSpalten) return;
  for (const Zeile zeile : {ZeileFrequenz, ZeileLeistung}) s.rot.reset(Zellenindex(spalte, zeile));
}

Meldungen SatzLaden(Station& s, const Kataloge& k) {
  const Datenblattspalte satz = SatzVon(s, s.werte.Spalte);
  if (s.werte.Spalte == 0) {
    SendeartLaden(s);
    D100Faerben(s, k);
    return {};
  }
  Datenblattspalte& optionen = s.Datenblattspalten[0];
  const auto winkel = optionen.Winkel;
  const auto reserve = optionen.Reserve;
  optionen = satz;
  optionen.Winkel = winkel;
  optionen.Reserve = reserve;
  KabelstandMerken(s);
  SendeartLaden(s);
  D100Faerben(s, k);
  // A loss that is not the cable tab's was typed.
  s.verlusteGetippt = Zelle(s, s.werte.Spalte, ZeileVerluste) != satz.Gesamtdaempfung;
  return WinkelUebernehmen(s, satz.Winkel, "aus " + Spaltenname(s.werte.Spalte));
}

Meldungen SpalteUebernehmen(Station& s, const Kataloge& k, Satz satz, bool still) {
  const int spalte = s.werte.Spalte;
  if (spalte == 0) return {};
  s.modus = Modus::Leistung;
  switchLeistung(s);
  Meldungen meldungen;
  if (satz == Satz::Laden) {
    meldungen = SatzLaden(s, k);
  } else {
    SendeartLaden(s);
  }

  for (const Quelle& quelle : Quellen) s.werte.*quelle.text = Zelle(s, spalte, quelle.zeile);
  s.frequenzUebergeben = s.werte.QRGText;
  if (!Pruefen(s)) {
    if (still) return meldungen;
    for (const Ergebniszeile& z : Ergebniszeilen) ZelleSetzen(s, spalte, z.zeile, {});
    meldungen.push_back({EingabeHinweis()});
    return meldungen;
  }
  Farben(s, spalte).ohneHSM = Faktor(s.werte) < 1.0F ? Toenung::Kraeftig : Toenung::Blass;
  Meldungen hinweise = Berechnen(s);
  if (!still) Anhaengen(meldungen, std::move(hinweise));
  if (Aktuell(s)) ErgebnisseEintragen(s, spalte);
  return meldungen;
}

}  // namespace vesk
