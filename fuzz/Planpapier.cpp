#include "fuzz/Papier.h"

namespace vesk {

namespace {

/// An object of each kind, sound as long as the bytes do not shift its corners or its figures.
Lageplan Probeplan(Vorrat vorrat) {
  const auto versatz = [&] { return double(vorrat.Bits<std::int16_t>()) / 8; };
  Lageplan plan;
  plan.summe = vorrat.Ja();
  plan.format = vorrat.Ja() ? Planformat::A3 : Planformat::A4;
  plan.massstab = Planmassstaebe.at(vorrat.Wahl(Planmassstaebe.size()));
  const bool drehbar = vorrat.Ja();
  const auto ebene = static_cast<Winkelebene>(vorrat.Wahl(3));
  for (std::size_t i = 0; i < AnzahlPlanarten; ++i) {
    Planobjekt objekt{.art = static_cast<Planart>(i), .hoehe = std::abs(versatz()), .radius = 2};
    const double ecke = 3 * double(i);
    objekt.punkte = {{ecke, ecke}, {ecke + 9, ecke}, {ecke + 9, ecke + 7}, {ecke, ecke + 7}};
    if (!Artzeile(objekt.art).umriss) objekt.punkte.resize(1);
    for (Punkt& punkt : objekt.punkte) punkt = {punkt.x + versatz(), punkt.y + versatz()};
    objekt.spalten = 0x7F;
    objekt.drehbar = drehbar;
    objekt.von = versatz() / 16;
    objekt.bis = versatz() / 16;
    objekt.ebene = ebene;
    plan.objekte.push_back(std::move(objekt));
  }
  plan.nord = versatz() / 32;
  plan.bezugsname = "Grenzstein";
  return Planueberschreitung(plan) ? Lageplan() : plan;
}

void Fuzzen(Vorrat& vorrat, std::size_t laenge) {
  const std::size_t seite = vorrat.Wahl(64);
  const bool bild = vorrat.Wahl(8) == 7;
  Kataloge k = Probekataloge();
  Station s = Grundlage(vorrat.Wahl(32) == 7 ? 7 : 1);
  OptionenVorbelegen(s, k);
  s.papiere.art = Papierart::Lageplan;
  vorrat.Zeile();
  const std::string plan = vorrat.Zeile();
  s.lageplan = Probeplan({reinterpret_cast<const std::uint8_t*>(plan.data()), plan.size()});
  Auslegen(vorrat, laenge, s, k, seite, bild);
}

}  // namespace

}  // namespace vesk

/// The site plan of a station that holds any texts: choices in the first line, the plan in the second, then
/// the texts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  vesk::Vorrat vorrat(daten, laenge);
  vesk::Fuzzen(vorrat, laenge);
  return 0;
}
