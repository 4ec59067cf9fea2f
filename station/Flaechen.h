#pragma once
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "station/Lageplan.h"

/// Areas on the plan.
namespace vesk {

/// Why an outline encloses no area, as a German sentence; none: it does.
std::optional<std::string> Umrissfehler(const Umriss& umriss);

/// m²
double Flaecheninhalt(const Umriss& umriss);
/// On the edge counts as inside.
bool Innerhalb(const Umriss& umriss, Punkt punkt);
/// To the nearest edge, from either side.
double Randabstand(const Umriss& umriss, Punkt punkt);

/// Several sound outlines as one area.
class Gebiet {
 public:
  explicit Gebiet(const std::vector<Umriss>& umrisse);
  ~Gebiet();
  Gebiet(Gebiet&&) noexcept;
  Gebiet& operator=(Gebiet&&) noexcept;

  bool leer() const;
  bool Enthaelt(Punkt punkt) const;
  /// 0 inside.
  double Abstand(Punkt punkt) const;
  /// To its edge, from either side.
  double Rand(Punkt punkt) const;
  /// Corners of what of an outline lies outside, and points within each part of it.
  std::vector<Punkt> Ausserhalb(const Umriss& umriss) const;
  /// Corners of what of an outline lies inside, and points within each part of it.
  std::vector<Punkt> Gemeinsam(const Umriss& umriss) const;

 private:
  struct Polygone;
  std::unique_ptr<Polygone> polygone_;
};

}  // namespace vesk
