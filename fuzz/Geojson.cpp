#include <cmath>

#include "fuzz/Vorrat.h"
#include "persistence/Lageplandatei.h"

/// Outlines of whatever file are such as a plan can take, or there are none and the reason.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  Vorrat vorrat(daten, laenge);
  Lageplan plan;
  if (vorrat.Ja()) plan.geo = Geopunkt{7, 51};
  const Geojsonlesung lesung = GeojsonLesen(vorrat.Rest(), plan);
  Pruefen(lesung.fehler.empty() != lesung.objekte.empty());
  Pruefen(lesung.geo.has_value() == (lesung.fehler.empty() && !plan.geo));
  for (const Planobjekt& objekt : lesung.objekte) {
    Pruefen(objekt.punkte.size() >= 3);
    for (const Punkt& punkt : objekt.punkte) Pruefen(std::hypot(punkt.x, punkt.y) < 1.01 * plangrenzen::Ort);
    plan.objekte.push_back(objekt);
  }
  if (Planueberschreitung(plan)) return 0;
  Pruefen(LageplanLesen(LageplanBytes(plan)).plan == plan);
  return 0;
}
