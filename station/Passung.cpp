#include "station/Passung.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vesk {

namespace {

std::vector<Umriss> Kontrolliert(const Lageplan& plan) {
  std::vector<Umriss> umrisse;
  for (const Planobjekt& objekt : plan.objekte) {
    if (objekt.art == Planart::Bereich && !Planfehler(objekt)) umrisse.push_back(objekt.punkte);
  }
  return umrisse;
}

struct Rechteck {
  Punkt von{HUGE_VAL, HUGE_VAL};
  Punkt bis{-HUGE_VAL, -HUGE_VAL};
};

Rechteck Ausdehnung(const Umriss& umriss) {
  Rechteck r;
  for (const Punkt& p : umriss) {
    r.von = {std::min(r.von.x, p.x), std::min(r.von.y, p.y)};
    r.bis = {std::max(r.bis.x, p.x), std::max(r.bis.y, p.y)};
  }
  return r;
}

bool Beruehren(const Rechteck& a, const Rechteck& b) {
  return a.von.x <= b.bis.x && b.von.x <= a.bis.x && a.von.y <= b.bis.y && b.von.y <= a.bis.y;
}

/// The farthest of these outlines beyond the area.
Verstoss UeberDenBereich(const Gebiet& bereich, const std::vector<Umriss>& umrisse) {
  Verstoss weitester;
  for (const Umriss& umriss : umrisse) {
    // Its own corners, those where the edge of the area goes through it, and what the area surrounds.
    std::vector<Punkt> punkte = umriss;
    const std::vector<Punkt> rest = bereich.leer() ? std::vector<Punkt>{} : bereich.Ausserhalb(umriss);
    punkte.insert(punkte.end(), rest.begin(), rest.end());
    for (const Punkt& punkt : punkte) {
      const double ueber = bereich.Abstand(punkt);
      if (ueber > weitester.ueber) weitester = {punkt, ueber, std::nullopt};
    }
  }
  return weitester;
}

/// Points along the walls, so close that none between them matters.
std::vector<Punkt> Waende(const Umriss& umriss) {
  constexpr double Schritt = 0.25;  // m
  constexpr int Hoechstens = 200;
  std::vector<Punkt> punkte;
  for (std::size_t i = 0; i < umriss.size(); ++i) {
    const Punkt& p = umriss[i];
    const Punkt& q = umriss[(i + 1) % umriss.size()];
    const double laenge = std::hypot(q.x - p.x, q.y - p.y);
    const int teile = std::clamp(static_cast<int>(std::ceil(laenge / Schritt - 1e-6)), 1, Hoechstens);
    for (int t = 0; t < teile; ++t) {
      const double anteil = static_cast<double>(t) / teile;
      punkte.push_back({p.x + (q.x - p.x) * anteil, p.y + (q.y - p.y) * anteil});
    }
  }
  return punkte;
}

/// From there on in steps to where the building is deepest inside.
void Vertiefen(const Planpruefung::Haus& haus, const Gebiet& zone, Verstoss& verstoss) {
  constexpr double Weitester = 2;  // m
  constexpr double Feinster = 0.001;
  for (double schritt = Weitester; schritt > Feinster;) {
    const Punkt von = verstoss.ort;
    for (int achtel = 0; achtel < 8; ++achtel) {
      const double winkel = achtel * std::numbers::pi / 4;
      const Punkt ort{von.x + schritt * std::cos(winkel), von.y + schritt * std::sin(winkel)};
      if (!haus.gebiet.Enthaelt(ort) || !zone.Enthaelt(ort)) continue;
      if (const double tiefe = zone.Rand(ort); tiefe > verstoss.ueber) {
        verstoss = {ort, tiefe, verstoss.gebaeude};
      }
    }
    if (verstoss.ort == von) schritt /= 2;
  }
}

/// Nearly how far the building is inside the outline; none: not at all.
std::optional<Verstoss> ImGebaeude(const Planpruefung::Haus& haus, const Umriss& umriss, const Gebiet& zone) {
  const std::vector<Punkt> gemeinsam = haus.gebiet.Gemeinsam(umriss);
  if (gemeinsam.empty()) return std::nullopt;
  std::vector<Punkt> kandidaten = Waende(haus.umriss);
  kandidaten.insert(kandidaten.end(), gemeinsam.begin(), gemeinsam.end());
  Verstoss tiefster{gemeinsam.front(), 0, haus.objekt};
  for (const Punkt& punkt : kandidaten) {
    if (!zone.Enthaelt(punkt)) continue;
    const double tiefe = zone.Rand(punkt);
    if (tiefe > tiefster.ueber) tiefster = {punkt, tiefe, haus.objekt};
  }
  if (tiefster.ueber < Passungstoleranz) return std::nullopt;
  return tiefster;
}

std::optional<Verstoss> ImHaus(const Planpruefung::Haus& haus, const std::vector<Umriss>& umrisse) {
  const Rechteck rechteck = Ausdehnung(haus.umriss);
  std::optional<Verstoss> tiefster;
  for (const Umriss& umriss : umrisse) {
    if (!Beruehren(Ausdehnung(umriss), rechteck)) continue;
    const Gebiet zone({umriss});
    auto verstoss = ImGebaeude(haus, umriss, zone);
    if (!verstoss) continue;
    Vertiefen(haus, zone, *verstoss);
    if (!tiefster || verstoss->ueber > tiefster->ueber) tiefster = verstoss;
  }
  return tiefster;
}

/// The same without how far.
bool Trifft(const Planpruefung::Haus& haus, const Umriss& umriss) {
  if (umriss.empty() || !Beruehren(Ausdehnung(umriss), Ausdehnung(haus.umriss))) return false;
  const Gebiet zone({umriss});
  const auto innen = [&](Punkt ecke) { return zone.Enthaelt(ecke) && zone.Rand(ecke) >= Passungstoleranz; };
  return std::any_of(haus.umriss.begin(), haus.umriss.end(), innen) ||
         ImGebaeude(haus, umriss, zone).has_value();
}

}  // namespace

Planpruefung::Planpruefung(const Lageplan& plan) : bereich(Kontrolliert(plan)) {
  for (std::size_t i = 0; i < plan.objekte.size(); ++i) {
    const Planobjekt& objekt = plan.objekte[i];
    if (objekt.art != Planart::Gebaeude || objekt.nutzung == Nutzung::Eigen || Planfehler(objekt)) continue;
    const double hoehe = objekt.hoehe > 0 ? objekt.hoehe : plangrenzen::Hoehe;
    haeuser.push_back({i, objekt.punkte, Gebiet({objekt.punkte}), hoehe});
  }
}

Passung PassungPruefen(const Planpruefung& pruefung, const Schnitt& schnitt) {
  Passung passung;
  const std::vector<Umriss> ganz = schnitt(std::nullopt);
  passung.imGrundriss = UeberDenBereich(pruefung.bereich, ganz).ueber;
  bool beruehrt = false;
  for (const Planpruefung::Haus& haus : pruefung.haeuser) {
    if (!ImHaus(haus, ganz)) continue;
    beruehrt = true;
    if (const auto verstoss = ImHaus(haus, schnitt(Hoehen{0, haus.hoehe}))) {
      passung.verstoesse.push_back(*verstoss);
    }
  }
  if (passung.imGrundriss >= Passungstoleranz) {
    const Verstoss ueberGrund = UeberDenBereich(pruefung.bereich, schnitt(UeberGrund));
    if (ueberGrund.ueber >= Passungstoleranz) {
      passung.verstoesse.insert(passung.verstoesse.begin(), ueberGrund);
    }
    beruehrt = true;
  }
  if (!passung.verstoesse.empty()) {
    passung.passt = Passt::Nicht;
  } else if (beruehrt) {
    passung.passt = Passt::InDerHoehe;
  }
  return passung;
}

bool Passend(const Planpruefung& pruefung, const Lageplan& plan, const Zone& zone) {
  const Umriss ueberGrund = Grundriss(plan, zone, UeberGrund);
  const auto ausserhalb = [&](Punkt p) { return pruefung.bereich.Abstand(p) >= Passungstoleranz; };
  if (std::any_of(ueberGrund.begin(), ueberGrund.end(), ausserhalb)) return false;
  if (!ueberGrund.empty() && UeberDenBereich(pruefung.bereich, {ueberGrund}).ueber >= Passungstoleranz) {
    return false;
  }
  const Umriss ganz = Grundriss(plan, zone);
  return std::none_of(pruefung.haeuser.begin(), pruefung.haeuser.end(), [&](const auto& haus) {
    return Beruehren(Ausdehnung(ganz), Ausdehnung(haus.umriss)) &&
           Trifft(haus, Grundriss(plan, zone, Hoehen{0, haus.hoehe}));
  });
}

Passung PassungPruefen(const Planpruefung& pruefung, const Lageplan& plan, const Zone& zone) {
  return PassungPruefen(pruefung, [&](const std::optional<Hoehen>& hoehen) {
    Umriss umriss = Grundriss(plan, zone, hoehen);
    return umriss.empty() ? std::vector<Umriss>{} : std::vector<Umriss>{std::move(umriss)};
  });
}

}  // namespace vesk
