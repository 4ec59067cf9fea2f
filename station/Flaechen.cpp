#include "station/Flaechen.h"

#include <algorithm>
#include <boost/geometry/algorithms/area.hpp>
#include <boost/geometry/algorithms/centroid.hpp>
#include <boost/geometry/algorithms/correct.hpp>
#include <boost/geometry/algorithms/covered_by.hpp>
#include <boost/geometry/algorithms/difference.hpp>
#include <boost/geometry/algorithms/distance.hpp>
#include <boost/geometry/algorithms/for_each.hpp>
#include <boost/geometry/algorithms/intersection.hpp>
#include <boost/geometry/algorithms/is_valid.hpp>
#include <boost/geometry/algorithms/point_on_surface.hpp>
#include <boost/geometry/algorithms/union.hpp>
#include <boost/geometry/geometries/multi_polygon.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>
#include <boost/geometry/strategies/strategies.hpp>
#include <limits>

namespace vesk {

namespace {

namespace bg = boost::geometry;
using Ort = bg::model::d2::point_xy<double>;
using Polygon = bg::model::polygon<Ort>;
using Polygonmenge = bg::model::multi_polygon<Polygon>;

Polygon AlsPolygon(const Umriss& umriss) {
  Polygon polygon;
  for (const Punkt& p : umriss) bg::append(polygon.outer(), Ort(p.x, p.y));
  bg::correct(polygon);
  return polygon;
}

template <typename Ring>
void Anhaengen(std::vector<Punkt>& ecken, const Ring& ring) {
  for (const Ort& ort : ring) ecken.push_back({ort.x(), ort.y()});
}

/// All corners may lie on one border, as those of an area that another one surrounds.
std::vector<Punkt> EckenUndInneres(const Polygonmenge& menge) {
  std::vector<Punkt> punkte;
  for (const Polygon& polygon : menge) {
    Anhaengen(punkte, polygon.outer());
    for (const auto& loch : polygon.inners()) Anhaengen(punkte, loch);
    Ort innen(0, 0);
    bg::point_on_surface(polygon, innen);
    Ort mitte(0, 0);
    bg::centroid(polygon, mitte);
    for (const Ort& ort : {innen, mitte}) {
      if (bg::covered_by(ort, polygon)) punkte.push_back({ort.x(), ort.y()});
    }
  }
  return punkte;
}

/// To the nearest edge of one ring.
template <typename Ring>
double Rand(const Ring& ring, const Ort& ort) {
  double abstand = std::numeric_limits<double>::infinity();
  bg::for_each_segment(
      ring, [&](const auto& kante) { abstand = std::min(abstand, double{bg::distance(ort, kante)}); });
  return abstand;
}

}  // namespace

std::optional<std::string> Umrissfehler(const Umriss& umriss) {
  constexpr double Mindestkante = 0.001;  // m
  if (umriss.size() < 3) return "Ein Umriß braucht mindestens drei Ecken.";
  for (std::size_t i = 0; i < umriss.size(); ++i) {
    const Punkt& p = umriss[i];
    const Punkt& q = umriss[(i + 1) % umriss.size()];
    if (std::hypot(p.x - q.x, p.y - q.y) < Mindestkante) {
      return "Zwei aufeinander folgende Ecken liegen am selben Ort (Ecke " + std::to_string(i + 1) + ").";
    }
  }
  if (!bg::is_valid(AlsPolygon(umriss))) return "Der Umriß überschneidet sich selbst.";
  return std::nullopt;
}

double Flaecheninhalt(const Umriss& umriss) {
  return bg::area(AlsPolygon(umriss));
}

bool Innerhalb(const Umriss& umriss, Punkt punkt) {
  return bg::covered_by(Ort(punkt.x, punkt.y), AlsPolygon(umriss));
}

double Randabstand(const Umriss& umriss, Punkt punkt) {
  return Rand(AlsPolygon(umriss).outer(), Ort(punkt.x, punkt.y));
}

struct Gebiet::Polygone {
  Polygonmenge menge;
};

Gebiet::Gebiet(const std::vector<Umriss>& umrisse) : polygone_(std::make_unique<Polygone>()) {
  for (const Umriss& umriss : umrisse) {
    if (umriss.empty()) continue;  // of nothing and nothing the library takes no measure
    Polygonmenge vereinigt;
    bg::union_(polygone_->menge, AlsPolygon(umriss), vereinigt);
    polygone_->menge = std::move(vereinigt);
  }
}

Gebiet::~Gebiet() = default;
Gebiet::Gebiet(Gebiet&&) noexcept = default;
Gebiet& Gebiet::operator=(Gebiet&&) noexcept = default;

bool Gebiet::leer() const {
  return polygone_->menge.empty();
}

bool Gebiet::Enthaelt(Punkt punkt) const {
  return bg::covered_by(Ort(punkt.x, punkt.y), polygone_->menge);
}

double Gebiet::Abstand(Punkt punkt) const {
  return Enthaelt(punkt) ? 0 : Rand(punkt);
}

double Gebiet::Rand(Punkt punkt) const {
  const Ort ort(punkt.x, punkt.y);
  double abstand = std::numeric_limits<double>::infinity();
  for (const Polygon& polygon : polygone_->menge) {
    abstand = std::min(abstand, vesk::Rand(polygon.outer(), ort));
    for (const auto& loch : polygon.inners()) abstand = std::min(abstand, vesk::Rand(loch, ort));
  }
  return abstand;
}

std::vector<Punkt> Gebiet::Ausserhalb(const Umriss& umriss) const {
  Polygonmenge rest;
  bg::difference(AlsPolygon(umriss), polygone_->menge, rest);
  return EckenUndInneres(rest);
}

std::vector<Punkt> Gebiet::Gemeinsam(const Umriss& umriss) const {
  Polygonmenge gemeinsam;
  bg::intersection(AlsPolygon(umriss), polygone_->menge, gemeinsam);
  return EckenUndInneres(gemeinsam);
}

}  // namespace vesk
