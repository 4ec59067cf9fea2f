#include "station/Optionen.h"

#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Haupthandlungen.h"
#include "station/Rechnung.h"
#include "station/Spalten.h"

namespace vesk {

namespace {

void GrenzwerttypSetzen(Station& s, std::int16_t typ) {
  s.werte.Grenzwerttyp = typ;
  ArbeitssatzFaktoren(s);
  SpaltensatzAendern(s, [typ](Datenblattspalte& satz) { satz.Grenzwerttyp = typ; });
}

void SendeartenGelten(Station& s) {
  const Sendeartwahl wahl = ModulationsFaktorErmitteln(s.kreuze);
  s.werte.Modulationsfaktor = wahl.faktor;
  s.SelectedModes = wahl.text;
  FaktorenInSpalte(s);
  if (SpalteFolgt(s)) ZelleSetzen(s, s.werte.Spalte, ZeileBetriebsarten, wahl.text);
}

/// A factor below 1 obliges the operator.
Meldungen WarnMeldungFaktor(const Station& s) {
  if (!(Faktor(s.werte) < 1.0F)) return {};
  if (!s.einstellungen.Meldungen || s.einstellungen.FaktorMeldungAus) return {};
  Meldung meldung{FaktorHinweis()};
  meldung.danach = [](Station& t, const Kataloge&, Antwort antwort) {
    t.einstellungen.FaktorMeldungAus = antwort != Antwort::Ja;
    return Meldungen{};
  };
  return {meldung};
}

Meldungen FaktorGeaendert(Station& s, const Kataloge& k) {
  Meldungen meldungen = WarnMeldungFaktor(s);
  Anhaengen(meldungen, Neurechnen(s, k));
  return meldungen;
}

Meldungen KabelfeldVerlassen(Station& s, const Kataloge& k) {
  if (s.inArbeit != Eingabefeld::KabelQRG) return {};
  return FeldVerlassen(s, k, Eingabefeld::KabelQRG);
}

}  // namespace

void OptionenVorbelegen(Station& s, const Kataloge& k) {
  Datenblattspalte& optionen = s.Datenblattspalten[0];
  optionen = LeereSpalte();
  optionen.KabelIndex = std::to_string(k.kabel.auswahl);
  optionen.Winkel[0] = "0";
  s.kreuze = {};
  s.kreuze.back() = true;
  s.zyklus = AnzahlZyklen - 1;
  s.werte.Zyklusfaktor = 1.0F;
  s.werte.Grenzwerttyp = GrenzwertAM;
  SendeartenGelten(s);
}

void FaktorenInSpalte(Station& s) {
  ArbeitssatzFaktoren(s);
  if (!SpalteFolgt(s)) return;
  SpaltensatzAendern(s, [&s](Datenblattspalte& satz) {
    satz.Modulationsfaktor = Formatieren(s.werte.Modulationsfaktor);
    satz.Zyklusfaktor = Formatieren(s.werte.Zyklusfaktor);
  });
}

void ArbeitssatzFaktoren(Station& s) {
  Datenblattspalte& optionen = s.Datenblattspalten[0];
  optionen.Modulationsfaktor = Formatieren(s.werte.Modulationsfaktor);
  optionen.Zyklusfaktor = Formatieren(s.werte.Zyklusfaktor);
  optionen.Grenzwerttyp = s.werte.Grenzwerttyp;
}

Meldungen BetriebsartGeklickt(Station& s, const Kataloge& k, int index) {
  // A single mode is ticked or unticked; what excludes others decides below.
  Sendeartkreuze kreuze = s.kreuze;
  kreuze.at(std::size_t(index)) = !kreuze.at(std::size_t(index));
  const auto folge = OptionModulation(kreuze, index);
  GrenzwerttypSetzen(s, folge->typ);
  s.kreuze = folge->kreuze;
  SendeartenGelten(s);
  return FaktorGeaendert(s, k);
}

Meldungen ZyklusGeklickt(Station& s, const Kataloge& k, int index) {
  s.zyklus = index;
  s.werte.Zyklusfaktor = ZyklusfaktorVon(index);
  ArbeitssatzFaktoren(s);
  if (SpalteFolgt(s)) {
    SpaltensatzAendern(
        s, [&s](Datenblattspalte& satz) { satz.Zyklusfaktor = Formatieren(s.werte.Zyklusfaktor); });
  }
  return FaktorGeaendert(s, k);
}

Meldungen GrenzwerttypGeklickt(Station& s, const Kataloge& k, int index) {
  GrenzwerttypSetzen(s, static_cast<std::int16_t>(index));
  return Neurechnen(s, k);
}

void WinkeldaempfungSetzen(Station& s, const std::string& text) {
  s.werte.WinkelDaempfungText = text;
  s.Datenblattspalten[0].Winkeldaempfung = text;
  if (!SpalteFolgt(s)) return;
  SpaltensatzAendern(s, [&](Datenblattspalte& satz) { satz.Winkeldaempfung = text; });
  ZelleSetzen(s, s.werte.Spalte, ZeileWinkel, text);
}

void WinkelInSpalte(Station& s) {
  if (!SpalteFolgt(s)) return;
  SpaltensatzAendern(s, [&s](Datenblattspalte& satz) { satz.Winkel = s.Datenblattspalten[0].Winkel; });
}

Meldungen OptionenSchliessen(Station& s, const Kataloge& k) {
  Meldungen meldungen = Ausfuehren(OptionenVerbergen, s, k);
  s.OptionenBeruecksichtigen = false;
  return meldungen;
}

Meldungen OptionenVerbergen(Station& s, const Kataloge& k) {
  s.fenster.optionen = false;
  return KabelfeldVerlassen(s, k);
}

}  // namespace vesk
