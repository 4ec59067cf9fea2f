#include "engine/Zahlen.h"
#include "station/Optionen.h"
#include "station/Rechnung.h"
#include "station/Spalten.h"
#include "station/Text.h"

namespace vesk {

namespace {

bool AntennePasst(const Station& s, const Kataloge& k, Antennenwahl& wahl) {
  const auto& antennen = k.antennen.Antennen;
  if (s.AntennenIndex < 0 || std::size_t(s.AntennenIndex) >= antennen.size()) return false;
  wahl = AntenneWaehlen(antennen[std::size_t(s.AntennenIndex)], s.werte.QRGText);
  return wahl.Passt();
}

void AntenneEintragen(Station& s, const std::string& typ, const std::string& gewinn) {
  const auto eintragen = [&](Datenblattspalte& satz) {
    satz.Antenne = typ;
    satz.Gewinn = gewinn;
  };
  s.werte.GewinnText = gewinn;
  eintragen(s.Datenblattspalten[0]);
  if (!SpalteFolgt(s)) return;
  SpaltensatzAendern(s, eintragen);
  ZelleSetzen(s, s.werte.Spalte, ZeileGewinn, gewinn);
  ZelleSetzen(s, s.werte.Spalte, ZeileAntenne, typ);
}

/// An attenuation belongs to the antenna that it was read from.
Meldung DaempfungNochGueltig() {
  Meldung frage{
      {"Winkeldämpfung",
       "Die Antenne wurde gewechselt. Gilt die eingetragene Winkeldämpfung auch für die neue Antenne?\n"
       "Bei \"Nein\" wird sie auf 0 gesetzt.",
       Knoepfe::JaNein, Symbol::Frage, Antwort::Nein}};
  frage.danach = [](Station& s, const Kataloge& k, Antwort antwort) {
    if (antwort == Antwort::Nein) WinkeldaempfungSetzen(s, "0");
    return Neurechnen(s, k);
  };
  return frage;
}

bool NichtNull(const std::string& text) {
  try {
    return Zahl(text) != 0;
  } catch (const Laufzeitfehler&) {
    return true;
  }
}

}  // namespace

Meldungen AntenneGewaehlt(Station& s, const Kataloge& k, int index) {
  s.AntennenIndex = index;
  s.antenneNehmbar = true;
  Antennenwahl wahl;
  if (!AntennePasst(s, k, wahl)) return {};
  const Antenne& antenne = k.antennen.Antennen.at(std::size_t(index));
  s.winkel.antenne = OhneBlanks(antenne.hersteller + ' ' + antenne.typ);
  s.winkel.gewinn = *wahl.gewinn;
  s.winkel.frequenz = s.werte.QRGText;
  s.winkel.kopfGetippt = false;
  return {};
}

Meldungen AntenneNehmen(Station& s, const Kataloge& k) {
  s.antenneNehmbar = false;
  Antennenwahl wahl;
  if (!AntennePasst(s, k, wahl)) {
    if (!Positiv(s.werte.QRGText)) return {};
    return {{MitHilfe(
        Fehlermeldung("Die Antenne paßt nicht zur Frequenzvorgabe.\nBitte eine andere Antenne wählen!",
                      "Fehler"),
        HilfeAntenne)}};
  }
  const std::string& typ = k.antennen.Antennen.at(std::size_t(s.AntennenIndex)).typ;
  const bool andere = s.Datenblattspalten[0].Antenne != typ;
  AntenneEintragen(s, typ, *wahl.gewinn);
  Meldungen meldungen = Neurechnen(s, k);
  // What the calculation has to say comes once, after the answer.
  if (andere && NichtNull(s.werte.WinkelDaempfungText)) return {DaempfungNochGueltig()};
  return meldungen;
}

}  // namespace vesk
