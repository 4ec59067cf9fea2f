#include "station/Haupthandlungen.h"

#include "engine/Ausgabe.h"
#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Operator.h"
#include "station/Optionen.h"
#include "station/Rechnung.h"
#include "station/Spalten.h"

namespace vesk {

namespace {

constexpr float HoechsterGewinn = 100;  // dBi

std::string& Text(Station& s, Eingabefeld feld) {
  switch (feld) {
    case Eingabefeld::KabelQRG:
      return s.Datenblattspalten[0].QRG;
    case Eingabefeld::Rufzeichen:
      return s.benutzer.Rufzeichen;
    default:
      return s.werte.*Eingabetexte.at(static_cast<std::size_t>(feld));
  }
}

/// A number of more digits than the record can hold is surely too high; its sign tells in which direction.
bool GewinnZuHoch(const std::string& text) {
  try {
    return Zahl(text) > HoechsterGewinn;
  } catch (const Laufzeitfehler&) {
    return text.find('-') == std::string::npos;
  }
}

/// The text of a field that is left; of a frequency only what follows it.
void Abnehmen(Station& s, Eingabefeld feld) {
  std::string& text = Text(s, feld);
  switch (feld) {
    case Eingabefeld::PWR:
      // In power mode the field holds a distance.
      if (!text.empty() && text != s.beimBetreten && s.modus == Modus::Abstand) s.winkel.AntEinPWR = text;
      break;
    case Eingabefeld::Gewinn:
      if (GewinnZuHoch(text)) text = "100";
      [[fallthrough]];
    case Eingabefeld::Daempfung:
    case Eingabefeld::Winkel:
      if (text.empty()) text = "0";
      break;
    case Eingabefeld::Rufzeichen:
      KlasseBestimmen(s);
      break;
    case Eingabefeld::QRG:
    case Eingabefeld::KabelQRG:
      break;
  }
}

/// False when the frequency is the one handed on already, or none.
bool FrequenzAbnehmen(Station& s, const Kataloge& k) {
  if (s.werte.QRGText == s.frequenzUebergeben) return false;
  const bool frequenz = Positiv(s.werte.QRGText);
  if (frequenz) FrequenzUebergeben(s, k);
  s.frequenzUebergeben = s.werte.QRGText;
  return frequenz;
}

/// What the frequency alone tells, until there is a power.
Meldungen RechnenOderBand(Station& s) {
  if (EingabenVollstaendig(s)) return Berechnen(s);
  if (Positiv(s.werte.QRGText)) return BandlogikZeigen(s, s.werte.QRGText);
  AusgabenLeeren(s);
  return {};
}

}  // namespace

Meldungen EingabeGetippt(Station& s, const Kataloge& k, Eingabefeld feld, const std::string& text) {
  Meldungen meldungen = FeldBetreten(s, k, feld);
  // Whoever types here works in the main window.
  if (feld <= Eingabefeld::Winkel && s.werte.Spalte != 0) SpalteVerlassen(s);
  Text(s, feld) = text;
  if (feld == Eingabefeld::Daempfung) s.verlusteGetippt = true;
  return meldungen;
}

Meldungen EingabeGeklickt(Station& s, const Kataloge& k, Eingabefeld feld) {
  Meldungen meldungen = EingabeGetippt(s, k, feld, {});
  if (feld == Eingabefeld::QRG) s.frequenzUebergeben.clear();
  if (feld == Eingabefeld::QRG || feld == Eingabefeld::PWR) AusgabenLeeren(s);
  return meldungen;
}

Meldungen FeldBetreten(Station& s, const Kataloge& k, Eingabefeld feld) {
  if (s.inArbeit == feld) return {};
  // A toolkit may tell of the new field before it tells of the old one, or of the old one not at all.
  Meldungen meldungen;
  if (s.inArbeit) {
    meldungen = Ausfuehren(
        [](Station& t, const Kataloge& kataloge) { return FeldVerlassen(t, kataloge, *t.inArbeit); }, s, k);
  }
  s.inArbeit = feld;
  s.beimBetreten = Text(s, feld);
  return meldungen;
}

Meldungen FeldVerlassen(Station& s, const Kataloge& k, Eingabefeld feld) {
  if (s.inArbeit != feld) return {};
  s.inArbeit.reset();
  Abnehmen(s, feld);
  if (feld == Eingabefeld::KabelQRG) return KabelfrequenzVerlassen(s, k, true);
  if (feld == Eingabefeld::QRG && FrequenzAbnehmen(s, k)) return RechnenOderBand(s);
  return {};
}

void Abschliessen(Station& s, const Kataloge& k) {
  if (s.inArbeit) Abnehmen(s, *s.inArbeit);
  if (s.inArbeit == Eingabefeld::KabelQRG) KabelfrequenzVerlassen(s, k, false);
  FrequenzAbnehmen(s, k);
  if (s.werte.Spalte == 0 && !KabelAktuell(s)) Kabeldaempfung(s, k);
  if (s.inArbeit) s.beimBetreten = Text(s, *s.inArbeit);
}

Meldungen BerechnenVerlangt(Station& s, const Kataloge& k) {
  Abschliessen(s, k);
  SpalteVerlassen(s);
  MarkenZuruecknehmen(s);
  s.markeQRG = Positiv(s.werte.QRGText) ? Pruefmarke::Gut : Pruefmarke::Fehlt;
  s.markePWR = Positiv(s.werte.PWRText) ? Pruefmarke::Gut : Pruefmarke::Fehlt;
  if (!EingabenVollstaendig(s)) return {{EingabeHinweis()}};
  return Berechnen(s);
}

Meldungen InFreieSpalteKopieren(Station& s, const Kataloge& k) {
  Abschliessen(s, k);
  if (!Kopierbar(s)) return {};
  const Feldtexte texte = s.ergebnis ? Ausgabetexte(s.ergebnis->zahlen, '.') : Feldtexte();
  const std::string ohneHSM = texte[Feld::AusgabeOhneHSM].value_or("");
  const std::string HSM306 = texte[Feld::AusgabeHSM306].value_or("");
  const std::string HSMvde = texte[Feld::AusgabeHSMvde].value_or("");
  const Rechenwerte& w = s.werte;
  // A cell would cut a longer number, which then would be another number.
  for (const std::string* zahl : {&w.QRGText, &w.PWRText, &w.GewinnText, &w.DaempfungText,
                                  &w.WinkelDaempfungText, &ohneHSM, &HSM306, &HSMvde}) {
    if (zahl->size() > MaxZellenlaenge) throw Laufzeitfehler(Fehlerart::Ueberlauf);
  }

  const int spalte = NaechsteFreieSpalte(s.Zellen).front() - 'A' + 1;
  const bool abstand = s.modus == Modus::Abstand;
  ZelleSetzen(s, spalte, ZeileFrequenz, w.QRGText);
  ZelleSetzen(s, spalte, ZeileGewinn, w.GewinnText);
  ZelleSetzen(s, spalte, ZeileVerluste, w.DaempfungText);
  ZelleSetzen(s, spalte, ZeileWinkel, w.WinkelDaempfungText);
  if (s.OptionenBeruecksichtigen) ZelleSetzen(s, spalte, ZeileBetriebsarten, s.SelectedModes);
  ZelleSetzen(s, spalte, ZeileLeistung, abstand ? w.PWRText : ohneHSM);
  ZelleSetzen(s, spalte, ZeileOhneHSM, abstand ? ohneHSM : w.PWRText);
  if (abstand) {
    ZelleSetzen(s, spalte, ZeileHSM306, HSM306);
    ZelleSetzen(s, spalte, ZeileHSMvde, HSMvde);
  }
  Datenblattspalte& satz = s.Datenblattspalten[0];
  satz.AbstandOhneHSM = ohneHSM;
  satz.AbstandHSM306 = HSM306;
  satz.AbstandHSMvde = HSMvde;
  SatzSetzen(s, spalte, satz);
  s.spaltenfarben.at(static_cast<std::size_t>(spalte) - 1).rueckwaerts = !abstand;
  if (s.ergebnis) s.ergebnis->kopiert = true;
  s.leerKopierbar = false;
  return {};
}

Meldungen AFuUmschalten(Station& s, const Kataloge& k) {
  Abschliessen(s, k);
  s.einstellungen.AFu = !s.einstellungen.AFu;
  s.afutipVomSchalter = true;
  s.UserGeaendert = true;
  return RechnenOderBand(s);
}

Meldungen AbstandUmschalten(Station& s, const Kataloge& k) {
  Abschliessen(s, k);
  s.UserGeaendert = true;
  switchLeistung(s);
  return {};
}

Meldungen ModusGeklickt(Station& s, const Kataloge& k) {
  Abschliessen(s, k);
  switchLeistung(s);
  return SpalteRechnen(s, k);
}

Meldungen TooltipsUmschalten(Station& s, const Kataloge&) {
  s.einstellungen.ToolTips = !s.einstellungen.ToolTips;
  s.modustipsVomSchalter = s.afutipVomSchalter = false;
  s.UserGeaendert = true;
  return {};
}

Meldungen WarnmeldungenUmschalten(Station& s, const Kataloge&) {
  Einstellungen& e = s.einstellungen;
  e.Meldungen = !e.Meldungen;
  // Whoever switches the warnings on wants to see them all again.
  if (e.Meldungen) e.HSMHinweisAus = e.NahfeldHinweisAus = e.FaktorMeldungAus = false;
  s.UserGeaendert = true;
  return {};
}

Meldungen FensterUmschalten(Station& s, const Kataloge&) {
  s.einstellungen.Fenster = !s.einstellungen.Fenster;
  s.fenster.optionen = s.fenster.datenblatt = s.einstellungen.Fenster;
  s.UserGeaendert = true;
  return {};
}

Meldungen HauptfensterAktiviert(Station& s, const Kataloge&) {
  SpalteVerlassen(s);
  return {};
}

Meldungen OptionenOeffnen(Station& s, const Kataloge&) {
  s.fenster.optionen = true;
  return {};
}

Meldungen DatenblattOeffnen(Station& s, const Kataloge&) {
  s.fenster.optionen = s.fenster.datenblatt = s.fenster.dateimenue = true;
  return {};
}

Meldungen BenutzerOeffnen(Station& s, const Kataloge&) {
  s.fenster.benutzer = true;
  return {};
}

Meldungen Sagen(Station&, const Kataloge&, const Hinweis& hinweis) {
  return {{hinweis}};
}

}  // namespace vesk
