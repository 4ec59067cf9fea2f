#pragma once
#include <optional>
#include <vector>

#include "station/Zonen.h"

/// Several antennas in use at the same time.
namespace vesk {

/// Where the squares of the ratios of field strength to limit of all antennas together reach 1, for one kind
/// of distance. Of the columns of one antenna the worst counts: they share it. Seen from above, at any of the
/// heights. `raster`: m between the points that are computed. None: fewer than two antennas have such a zone.
std::vector<Umriss> Summenumriss(const Lageplan& plan, const std::vector<Zone>& zonen, Winkelkurve art,
                                 const std::optional<Hoehen>& hoehen = std::nullopt, double raster = 0.25);

}  // namespace vesk
