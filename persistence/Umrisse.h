#pragma once
#include <string_view>
#include <vector>

#include "persistence/Lageplandatei.h"

/// Outlines in the coordinates of a map, on their way to the plan.
namespace vesk {

/// `umrisse`: their points are longitude and latitude in degrees, or east and north of UTM, also with the
/// zone before the east. `system`: number of the EPSG that says which; 0: what they look like.
Geojsonlesung Einpassen(std::vector<Planobjekt> umrisse, int system, const Lageplan& plan);

}  // namespace vesk
