#include "fuzz/Papier.h"

namespace vesk {

namespace {

constexpr std::size_t Papierarten = 10;

/// One document each time. The two that hold the others come seldom and with few texts: what they add is how
/// the others lie in them, and they take as long as all of them.
Papierart Art(std::size_t wahl, std::size_t laenge) {
  constexpr std::size_t Kurz = 128;
  const bool eigene = wahl < Papierarten && (wahl > 1 || laenge <= Kurz);
  return static_cast<Papierart>(eigene ? wahl : 2 + wahl % (Papierarten - 2));
}

void Fuzzen(Vorrat& vorrat, std::size_t laenge) {
  const std::size_t art = vorrat.Wahl(32);
  const std::size_t seite = vorrat.Wahl(64);
  const std::size_t kurve = vorrat.Wahl(4);
  const bool bild = vorrat.Wahl(8) == 7;
  Kataloge k = Probekataloge();
  Station s = Grundlage(vorrat.Wahl(32) == 7 ? 7 : 1);
  OptionenVorbelegen(s, k);
  s.papiere.passend = vorrat.Ja();
  s.modus = vorrat.Ja() ? Modus::Leistung : Modus::Abstand;
  s.papiere.art = Art(art, laenge);
  if (kurve < 3) s.papiere.kurve = static_cast<Winkelkurve>(kurve);
  vorrat.Zeile();
  Auslegen(vorrat, laenge, s, k, seite, bild);
}

}  // namespace

}  // namespace vesk

/// A paper of a station that holds any texts: choices in the first line, then the texts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  vesk::Vorrat vorrat(daten, laenge);
  vesk::Fuzzen(vorrat, laenge);
  return 0;
}
