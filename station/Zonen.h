#pragma once
#include <array>
#include <optional>
#include <vector>

#include "station/Papierwahl.h"
#include "station/Station.h"

/// The zones around the antennas of the plan, computed from the columns of the data sheet.
namespace vesk {

/// m over ground.
struct Hoehen {
  double von = 0;
  double bis = 0;
};
/// Where people stand.
inline constexpr Hoehen UeberGrund{0, 2};

/// How far a column's distance reaches. Without an angle table the same in all directions. A table holds on
/// both sides of its main direction, behind it the sectors are mirrored, and across its plane it is the same
/// all around: that is never too little.
struct Spaltenzone {
  int spalte = 0;               ///< 1 to 7
  std::optional<double> hoehe;  ///< row 1, m over ground; none: not a number, then it counts at every height
  std::array<double, AnzahlSektoren> abstand{};  ///< m, by sector from the main direction
  Winkelebene ebene = Winkelebene::Keine;
  double von = 0;  ///< main directions that it has, clockwise from here, degrees from north
  double bis = 0;
  bool veraltet = false;  ///< the sheet shows figures of other inputs

  bool operator==(const Spaltenzone&) const = default;
};

/// What stays free around one antenna for one kind of distance.
struct Zone {
  std::size_t antenne = 0;  ///< index in the plan
  Winkelkurve art = Winkelkurve::OhneHSM;
  std::vector<Spaltenzone> spalten;  ///< those that have a limit of this kind; never empty

  bool operator==(const Zone&) const = default;
};

/// "ohne HSM", "HSM 306", "HSM VDE"
const char* Zonenname(Winkelkurve art);

/// One column of an antenna; with `leistung` (W) instead of row 6. None: no figures, or no limit.
std::optional<Spaltenzone> SpaltenzoneBestimmen(const Station& s, const Planobjekt& antenne, int spalte,
                                                Winkelkurve art,
                                                const std::optional<std::string>& leistung = std::nullopt);
/// All zones of the plan, antenna by antenna.
std::vector<Zone> ZonenBestimmen(const Station& s);

/// The greatest distance of a zone, m.
double Hoechstabstand(const Zone& zone);
bool Veraltet(const Zone& zone);
/// Where the antenna stands.
Punkt Mast(const Lageplan& plan, const Zone& zone);

/// m from the mast in the horizontal, in any direction from `azimut` to `azimut` + `breite` degrees and at
/// any of the heights; without heights the greatest at all.
double Reichweite(const Spaltenzone& spalte, double azimut, double breite,
                  const std::optional<Hoehen>& hoehen = std::nullopt);

/// The square of the ratio of field strength to limit, `weite` m from the mast in the horizontal: the
/// greatest in any direction from `azimut` to `azimut` + `breite` and at any of the heights. 1 at the reach.
double Feldverhaeltnis(const Spaltenzone& spalte, double azimut, double breite, double weite,
                       const std::optional<Hoehen>& hoehen = std::nullopt);

/// Seen from above, the outline in which the zone is at any of the heights. Its edges touch the zone from
/// outside. Empty: the zone is not at these heights.
Umriss Grundriss(const Lageplan& plan, const Zone& zone, const std::optional<Hoehen>& hoehen = std::nullopt);

/// Seen from the side: x is along `nachRechts` (degrees from north) from the plan's origin, y is the height
/// over ground. One outline for each column of the zone that has a height.
std::vector<Umriss> Seitenriss(const Lageplan& plan, const Zone& zone, double nachRechts);

}  // namespace vesk
