#pragma once
#include <optional>

namespace vesk {

/// What can be printed: the binder of all documents, one of them, or the charts, which are in no binder.
enum class Papierart {
  Mappe,
  Antrag,
  Datenblatt,
  RegTP,
  Benutzer,
  Winkel,
  Rechenweg,
  Diagramme,
  Lageplan,
  Blockbild
};

/// The distances that an angle diagram shows.
enum class Winkelkurve { OhneHSM, HSM306, HSMvde };

/// What the preview shows.
struct Papierwahl {
  Papierart art = Papierart::Mappe;
  std::optional<Winkelkurve> kurve{};  ///< of the angle diagrams; none: all that have a limit
  bool passend = false;                ///< diagrams at the scale that fits the page, not at the angle page's

  bool operator==(const Papierwahl&) const = default;
};

}  // namespace vesk
