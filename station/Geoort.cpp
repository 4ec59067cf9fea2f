#include <algorithm>
#include <cmath>
#include <numbers>

#include "station/Planbearbeitung.h"

namespace vesk {

std::optional<Geopunkt> GeoVersetzt(const Lageplan& plan, Punkt vorher) {
  constexpr double Bogen = std::numbers::pi / 180;
  // Of the ellipsoid of WGS 84: radius in m, and the square of the eccentricity.
  constexpr double Radius = 6'378'137;
  constexpr double Exzentrizitaet2 = 6.69437999e-3;
  if (!plan.geo || plan.bezug == vorher) return plan.geo;
  const Punkt weg{plan.bezug.x - vorher.x, plan.bezug.y - vorher.y};
  const Punkt nord = Richtung(plan, 0);
  const Punkt ost = Richtung(plan, 90);
  const double sinus = std::sin(plan.geo->breite * Bogen);
  const double kosinus = std::max(std::cos(plan.geo->breite * Bogen), 1e-3);
  const double teiler = 1 - Exzentrizitaet2 * sinus * sinus;
  const double quer = Radius / std::sqrt(teiler);
  const double laengs = quer * (1 - Exzentrizitaet2) / teiler;
  return Geopunkt{
      .laenge = std::clamp(plan.geo->laenge + (weg.x * ost.x + weg.y * ost.y) / (quer * kosinus) / Bogen,
                           -180.0, 180.0),
      .breite =
          std::clamp(plan.geo->breite + (weg.x * nord.x + weg.y * nord.y) / laengs / Bogen, -90.0, 90.0)};
}

}  // namespace vesk
