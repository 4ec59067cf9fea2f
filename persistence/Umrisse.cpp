#include "persistence/Umrisse.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "persistence/Abbildung.h"

namespace vesk {

namespace {

constexpr int Grad = 0;
constexpr int OhneZone = -1;
constexpr int Unbekannt = -2;

/// Zone of UTM, or one of the above.
int Zone(int system) {
  switch (system) {
    case 84:  // the name of the system of GeoJSON ends with it
    case 4258:
    case 4326:
    case 4979:
      return Grad;
    case 4647:
      return 32;
    case 5650:
      return 33;
    default:
      // ETRS89 and WGS 84
      for (const int ohneZone : {25800, 32600}) {
        if (system > ohneZone && system <= ohneZone + 60) return system - ohneZone;
      }
      return Unbekannt;
  }
}

struct Ausdehnung {
  Punkt von{std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
  Punkt bis{std::numeric_limits<double>::lowest(), std::numeric_limits<double>::lowest()};

  explicit Ausdehnung(const std::vector<Planobjekt>& umrisse) {
    for (const Planobjekt& umriss : umrisse) {
      for (const Punkt& punkt : umriss.punkte) {
        von = {std::min(von.x, punkt.x), std::min(von.y, punkt.y)};
        bis = {std::max(bis.x, punkt.x), std::max(bis.y, punkt.y)};
      }
    }
  }
  bool In(Punkt unten, Punkt oben) const {
    return von.x >= unten.x && bis.x <= oben.x && von.y >= unten.y && bis.y <= oben.y;
  }
};

/// Numbers of a degree, or those of UTM in Europe.
bool Passt(const Ausdehnung& ausdehnung, int zone) {
  if (zone == Grad) return ausdehnung.In({-180, -84}, {180, 84});
  return ausdehnung.In({100'000, 3'500'000}, {900'000, 8'000'000});
}

/// Takes the number of the zone off the easting: 32 in 32 500 000.
std::optional<int> ZoneAbnehmen(std::vector<Planobjekt>& umrisse) {
  constexpr double Million = 1'000'000;
  const Ausdehnung ausdehnung(umrisse);
  const double zone = std::floor(ausdehnung.von.x / Million);
  if (zone < 1 || zone > 60 || std::floor(ausdehnung.bis.x / Million) != zone) return std::nullopt;
  for (Planobjekt& umriss : umrisse) {
    for (Punkt& punkt : umriss.punkte) punkt.x -= zone * Million;
  }
  return static_cast<int>(zone);
}

double Kilometer(Geopunkt a, Geopunkt b) {
  constexpr double JeGrad = 111.2;
  const double schmaler = std::cos(a.breite * std::numbers::pi / 180);
  return JeGrad * std::hypot((a.laenge - b.laenge) * schmaler, a.breite - b.breite);
}

Geopunkt Ort(Punkt punkt, int zone) {
  return zone == Grad ? Geopunkt{punkt.x, punkt.y} : AusUtm(zone, punkt.x, punkt.y);
}

Geopunkt Mitte(const Ausdehnung& a, int zone) {
  return Ort({std::midpoint(a.von.x, a.bis.x), std::midpoint(a.von.y, a.bis.y)}, zone);
}

std::string Tausender(std::size_t zahl) {
  std::string text = std::to_string(zahl);
  for (std::size_t stelle = text.size(); stelle > 3;) text.insert(stelle -= 3, ".");
  return text;
}

/// What a plan cannot take, as a German sentence.
std::optional<std::string> ZuViel(const std::vector<Planobjekt>& umrisse, const Lageplan& plan) {
  std::size_t ecken = 0;
  std::size_t meiste = 0;
  for (const Planobjekt& umriss : umrisse) {
    ecken += umriss.punkte.size();
    meiste = std::max(meiste, umriss.punkte.size());
  }
  std::size_t belegt = 0;
  for (const Planobjekt& objekt : plan.objekte) belegt += objekt.punkte.size();
  namespace grenzen = plangrenzen;
  if (umrisse.size() + plan.objekte.size() <= grenzen::Objekte && meiste <= grenzen::Ecken &&
      ecken + belegt <= grenzen::AlleEcken) {
    return std::nullopt;
  }
  return "Sie enthält " + Tausender(umrisse.size()) + " Umrisse mit " + Tausender(ecken) +
         " Ecken, davon bis zu " + Tausender(meiste) + " in einem Umriß. Ein Lageplan faßt " +
         Tausender(grenzen::Objekte) + " Objekte mit " + Tausender(grenzen::AlleEcken) + " Ecken, davon " +
         Tausender(grenzen::Ecken) + " je Umriß; auf Ihrem sind schon " + Tausender(plan.objekte.size()) +
         " Objekte. Bitte wählen Sie einen kleineren Ausschnitt der Karte.";
}

/// Puts the points of an outline on the plan, rounded to the millimetre; those that fall together are one.
void Umlegen(Umriss& umriss, int zone, Geopunkt mitte, const Lageplan& plan) {
  const Punkt null = Abgebildet(mitte, mitte.laenge);
  const Punkt ost = Richtung(plan, 90);
  const Punkt nord = Richtung(plan, 0);
  const auto gerundet = [](double meter) { return std::round(meter * 1000) / 1000; };
  for (Punkt& punkt : umriss) {
    const Punkt karte = Abgebildet(Ort(punkt, zone), mitte.laenge);
    const Punkt weg{karte.x - null.x, karte.y - null.y};
    punkt = {gerundet(plan.bezug.x + weg.x * ost.x + weg.y * nord.x),
             gerundet(plan.bezug.y + weg.x * ost.y + weg.y * nord.y)};
  }
  umriss.erase(std::unique(umriss.begin(), umriss.end()), umriss.end());
  while (umriss.size() > 1 && umriss.front() == umriss.back()) umriss.pop_back();
}

/// Of the coordinates, the number before them taken off; none: `lesung` says why not.
std::optional<int> ZoneBestimmen(std::vector<Planobjekt>& umrisse, int system, const Lageplan& plan,
                                 Geojsonlesung& lesung) {
  const std::optional<int> vorangestellt = ZoneAbnehmen(umrisse);
  const Ausdehnung ausdehnung(umrisse);
  const int anschein = vorangestellt.value_or(Passt(ausdehnung, Grad) ? Grad : OhneZone);
  const int zone = system == 0 ? anschein : Zone(system);
  if (zone == Unbekannt) {
    lesung.fehler = "Das Koordinatensystem EPSG:" + std::to_string(system) +
                    " kennt Vesk nicht. Es liest WGS 84 (Länge, Breite) und UTM (EPSG:25832 und 25833).";
    return std::nullopt;
  }
  if (!Passt(ausdehnung, zone) || vorangestellt.value_or(zone) != zone) {
    lesung.fehler =
        "Ihre Koordinaten sind weder Grad (Länge, Breite) noch UTM, oder sie passen nicht zum angegebenen "
        "Koordinatensystem.";
    return std::nullopt;
  }
  if (zone != OhneZone) return zone;
  const auto fern = [&](int wo) { return plan.geo ? Kilometer(*plan.geo, Mitte(ausdehnung, wo)) : 0; };
  const int naehere = fern(33) < fern(32) ? 33 : 32;
  lesung.hinweis =
      "Die Datei nennt keine Zone der UTM-Koordinaten; angenommen ist " + std::to_string(naehere) + ".\n";
  return naehere;
}

/// How far the farthest point is from `mitte`, in kilometres.
double Reichweite(const std::vector<Planobjekt>& umrisse, int zone, Geopunkt mitte) {
  double kilometer = 0;
  for (const Planobjekt& umriss : umrisse) {
    for (const Punkt& punkt : umriss.punkte) {
      kilometer = std::max(kilometer, Kilometer(mitte, Ort(punkt, zone)));
    }
  }
  return kilometer;
}

}  // namespace

Geojsonlesung Einpassen(std::vector<Planobjekt> umrisse, int system, const Lageplan& plan) {
  Geojsonlesung lesung;
  if (auto satz = ZuViel(umrisse, plan)) {
    lesung.fehler = std::move(*satz);
    return lesung;
  }
  const std::optional<int> zone = ZoneBestimmen(umrisse, system, plan, lesung);
  if (!zone) return lesung;
  const Geopunkt mitte = plan.geo.value_or(Mitte(Ausdehnung(umrisse), *zone));
  const double kilometer = Reichweite(umrisse, *zone, mitte);
  if (kilometer * 1000 > plangrenzen::Ort) {
    lesung.fehler = "Ihre Umrisse liegen bis zu " +
                    Tausender(static_cast<std::size_t>(std::ceil(kilometer))) +
                    " km vom Bezugspunkt des Lageplans entfernt; er reicht 10 km weit.";
    return lesung;
  }
  for (Planobjekt& umriss : umrisse) Umlegen(umriss.punkte, *zone, mitte, plan);
  const auto zuWenig = [](const Planobjekt& umriss) { return umriss.punkte.size() < 3; };
  if (const auto anzahl = std::erase_if(umrisse, zuWenig); anzahl > 0) {
    lesung.hinweis +=
        "Umrisse mit weniger als drei Ecken sind ausgelassen: " + std::to_string(anzahl) + ".\n";
  }
  if (umrisse.empty()) {
    lesung.fehler = "Sie enthält keine Flächen.";
    return lesung;
  }
  lesung.objekte = std::move(umrisse);
  if (!plan.geo) lesung.geo = mitte;
  return lesung;
}

}  // namespace vesk
