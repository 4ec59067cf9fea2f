#include <algorithm>
#include <cmath>
#include <numbers>

#include "station/Zonen.h"

namespace vesk {

namespace {

constexpr double Bogen = std::numbers::pi / 180;
constexpr int Strahlen = 360;  // one a degree

/// A ray in the horizontal, by degrees from the direction of the view to the right.
struct Strahl {
  double abstand;  ///< m, in the slice through the antenna
  double kosinus;
};
using Strahlenkranz = std::array<Strahl, Strahlen>;

Strahlenkranz KranzBilden(const Spaltenzone& spalte, double nachRechts) {
  Strahlenkranz kranz{};
  for (std::size_t grad = 0; grad < kranz.size(); ++grad) {
    const auto weiter = static_cast<double>(grad);
    kranz.at(grad) = {Reichweite(spalte, nachRechts + weiter, 0), std::cos(weiter * Bogen)};
  }
  return kranz;
}

/// How far a slice of a column's zone goes along the view, m from the mast.
struct Ausschlag {
  double nachRechts = 0;
  double nachLinks = 0;
};

/// Of a horizontal table, which alone reaches differently far in different directions.
Ausschlag Ausgeschlagen(const Strahlenkranz& kranz, double ueberAntenne) {
  Ausschlag weit;
  for (const Strahl& strahl : kranz) {
    if (strahl.abstand <= std::abs(ueberAntenne)) continue;
    const double laengs =
        std::sqrt(strahl.abstand * strahl.abstand - ueberAntenne * ueberAntenne) * strahl.kosinus;
    weit = {std::max(weit.nachRechts, laengs), std::max(weit.nachLinks, -laengs)};
  }
  return weit;
}

/// One column, which has a height.
Umriss Spaltenriss(const Spaltenzone& spalte, double mitte, double nachRechts) {
  const bool horizontal = spalte.ebene == Winkelebene::Horizontal;
  const Strahlenkranz kranz = horizontal ? KranzBilden(spalte, nachRechts) : Strahlenkranz{};
  const double radius = *std::max_element(spalte.abstand.begin(), spalte.abstand.end());
  Umriss rechts;
  Umriss links;
  for (int grad = -90; grad <= 90; ++grad) {
    const double z = *spalte.hoehe + radius * std::sin(grad * Bogen);
    Ausschlag weit;
    if (horizontal) {
      weit = Ausgeschlagen(kranz, z - *spalte.hoehe);
    } else {
      weit.nachRechts = weit.nachLinks = Reichweite(spalte, nachRechts, 0, Hoehen{z, z});
    }
    rechts.push_back({mitte + weit.nachRechts, z});
    links.push_back({mitte - weit.nachLinks, z});
  }
  rechts.insert(rechts.end(), links.rbegin(), links.rend());
  return rechts;
}

}  // namespace

Umriss Grundriss(const Lageplan& plan, const Zone& zone, const std::optional<Hoehen>& hoehen) {
  constexpr double Kleinste = 0.001;  // m; keeps the outline from touching itself at the mast
  const double aussen = 1 / std::cos(Bogen / 2);
  const Punkt mast = Mast(plan, zone);
  Umriss umriss;
  double vorige = -1;
  bool leer = true;
  const auto ecke = [&](int grad, double weite) {
    const Punkt r = Richtung(plan, grad);
    umriss.push_back({mast.x + r.x * weite, mast.y + r.y * weite});
  };
  for (int grad = 0; grad < Strahlen; ++grad) {
    double weite = 0;
    for (const Spaltenzone& spalte : zone.spalten) {
      weite = std::max(weite, Reichweite(spalte, grad, 1, hoehen));
    }
    leer = leer && weite == 0;
    weite = std::max(weite * aussen, Kleinste);
    if (weite != vorige) ecke(grad, weite);
    ecke((grad + 1) % Strahlen, weite);
    vorige = weite;
  }
  if (umriss.front() == umriss.back()) umriss.pop_back();
  return leer ? Umriss{} : umriss;
}

std::vector<Umriss> Seitenriss(const Lageplan& plan, const Zone& zone, double nachRechts) {
  std::vector<Umriss> umrisse;
  const Punkt achse = Richtung(plan, nachRechts);
  const Punkt mast = Mast(plan, zone);
  const double mitte = mast.x * achse.x + mast.y * achse.y;
  for (const Spaltenzone& spalte : zone.spalten) {
    if (spalte.hoehe) umrisse.push_back(Spaltenriss(spalte, mitte, nachRechts));
  }
  return umrisse;
}

}  // namespace vesk
