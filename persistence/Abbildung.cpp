#include "persistence/Abbildung.h"

#include <cmath>
#include <complex>
#include <numbers>

// Series of Krüger (1912) up to the fourth power of the third flattening, the form in which the surveys use
// them. An angle and a distance on the map are one complex number: that makes the mapping conformal.
namespace vesk {

namespace {

constexpr double Bogen = std::numbers::pi / 180;
constexpr double GrosseHalbachse = 6'378'137;
constexpr double Abplattung = 1 / 298.257222101;

constexpr double n = Abplattung / (2 - Abplattung);
constexpr double n2 = n * n;
constexpr double n3 = n2 * n;
constexpr double n4 = n3 * n;

/// Of the circle whose circumference is that of a meridian.
constexpr double Radius = GrosseHalbachse / (1 + n) * (1 + n2 / 4 + n4 / 64);

using Reihe = std::array<double, 4>;
constexpr Reihe Hin = {n / 2 - n2 * 2 / 3 + n3 * 5 / 16 + n4 * 41 / 180,
                       n2 * 13 / 48 - n3 * 3 / 5 + n4 * 557 / 1440, n3 * 61 / 240 - n4 * 103 / 140,
                       n4 * 49561 / 161280};
constexpr Reihe Zurueck = {n / 2 - n2 * 2 / 3 + n3 * 37 / 96 - n4 / 360, n2 / 48 + n3 / 15 - n4 * 437 / 1440,
                           n3 * 17 / 480 - n4 * 37 / 840, n4 * 4397 / 161280};
/// From the latitude on the sphere to that on the ellipsoid.
constexpr Reihe Breite = {n * 2 - n2 * 2 / 3 - n3 * 2 + n4 * 116 / 45,
                          n2 * 7 / 3 - n3 * 8 / 5 - n4 * 227 / 45, n3 * 56 / 15 - n4 * 136 / 35,
                          n4 * 4279 / 630};

template <typename Winkel>
Winkel Summe(const Reihe& reihe, Winkel winkel) {
  Winkel summe = 0;
  double faches = 0;
  for (const double glied : reihe) summe += glied * std::sin(winkel * (faches += 2));
  return summe;
}

}  // namespace

Punkt Abgebildet(Geopunkt ort, double laenge0) {
  const double exzentrizitaet = std::sqrt(Abplattung * (2 - Abplattung));
  const double sinus = std::sin(ort.breite * Bogen);
  const double laenge = (ort.laenge - laenge0) * Bogen;
  // Tangent of the latitude on the sphere.
  const double t = std::sinh(std::atanh(sinus) - exzentrizitaet * std::atanh(exzentrizitaet * sinus));
  const std::complex<double> kugel(std::atan2(t, std::cos(laenge)),
                                   std::atanh(std::sin(laenge) / std::sqrt(1 + t * t)));
  const std::complex<double> karte = Radius * (kugel + Summe(Hin, kugel));
  return {karte.imag(), karte.real()};
}

Geopunkt Zurueckgebildet(Punkt punkt, double laenge0) {
  const std::complex<double> karte(punkt.y / Radius, punkt.x / Radius);
  const std::complex<double> kugel = karte - Summe(Zurueck, karte);
  const double breite = std::asin(std::sin(kugel.real()) / std::cosh(kugel.imag()));
  const double laenge = std::atan2(std::sinh(kugel.imag()), std::cos(kugel.real()));
  return {laenge0 + laenge / Bogen, (breite + Summe(Breite, breite)) / Bogen};
}

Geopunkt AusUtm(int zone, double ost, double nord) {
  constexpr double Massstab = 0.9996;
  constexpr double Mitte = 500'000;
  return Zurueckgebildet({(ost - Mitte) / Massstab, nord / Massstab}, zone * 6 - 183);
}

}  // namespace vesk
