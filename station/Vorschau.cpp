#include "station/Vorschau.h"

#include <algorithm>

#include "engine/Laufzeitfehler.h"
#include "engine/Zahlen.h"
#include "station/Haupthandlungen.h"
#include "station/Operator.h"
#include "station/Papiere.h"

namespace vesk {

namespace {

Meldungen Zeigen(Station& s, const Papierwahl& wahl) {
  s.papiere = wahl;
  VorschauRufen(s);
  return {};
}

/// Asks when operator's data are missing.
Meldungen NachPruefung(Station& s, Papierart art) {
  Meldungen meldungen = UserCheck(s, true);
  if (meldungen.empty()) return Zeigen(s, {art});
  meldungen.front().danach = [art](Station& t, const Kataloge& k, Antwort antwort) {
    return antwort == Antwort::Ja ? Zeigen(t, {art}) : BenutzerOeffnen(t, k);
  };
  return meldungen;
}

}  // namespace

void VorschauRufen(Station& s) {
  s.fenster.vorschau = true;
  ++s.fenster.vorschauRufe;
}

Meldungen PapiereZeigen(Station& s, const Kataloge&) {
  return Zeigen(s, {Papierart::Mappe, std::nullopt, true});
}

Meldungen AntragZeigen(Station& s, const Kataloge&) {
  return NachPruefung(s, Papierart::Antrag);
}

Meldungen BenutzerdatenZeigen(Station& s, const Kataloge&) {
  return NachPruefung(s, Papierart::Benutzer);
}

Meldungen FormblattZeigen(Station& s, const Kataloge&) {
  return Zeigen(s, {Papierart::Datenblatt});
}

Meldungen FormblattRegTPZeigen(Station& s, const Kataloge&) {
  return Zeigen(s, {Papierart::RegTP});
}

Meldungen WinkeldiagrammZeigen(Station& s, const Kataloge&, Winkelkurve kurve) {
  if (WinkelblattDerSeite(s).tabelle.sektoren.empty()) {
    return {
        {{"Winkeldiagramm",
          "Es gibt noch nichts zu zeichnen.\nDas Diagramm braucht Antenneneingangsleistung, Gewinn, Frequenz "
          "und die neun Dämpfungen."}}};
  }
  return Zeigen(s, {Papierart::Winkel, kurve});
}

Meldungen PapierWaehlen(Station& s, const Kataloge&, Papierart art) {
  s.papiere.art = art;
  return {};
}

Meldungen KurveWaehlen(Station& s, const Kataloge&, std::optional<Winkelkurve> kurve) {
  s.papiere.kurve = kurve;
  return {};
}

Meldungen MassstabWaehlen(Station& s, const Kataloge&, const std::string& text) {
  const std::string zahl = text.substr(text.find(':') + 1);
  s.papiere.passend = !Positiv(zahl);
  if (!s.papiere.passend) s.winkel.massstab = zahl.substr(zahl.find_first_not_of(' '));
  return {};
}

Meldungen VorschauSchliessen(Station& s, const Kataloge&) {
  s.fenster.vorschau = false;
  return {};
}

double Massstabszahl(const Station& s) {
  constexpr double Vorgabe = 100;
  constexpr double Groesste = 1'000'000;
  if (!Positiv(s.winkel.massstab)) return Vorgabe;
  try {
    return std::min(double{Zahl(s.winkel.massstab)}, Groesste);
  } catch (const Laufzeitfehler&) {
    return Groesste;
  }
}

std::optional<double> Papiermassstab(const Station& s) {
  return s.papiere.passend ? std::nullopt : std::optional(Massstabszahl(s));
}

}  // namespace vesk
