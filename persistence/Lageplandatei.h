#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "station/Lageplan.h"

/// The plan of the plot as a file (JSON, UTF-8) beside the user's file: "user.lageplan" for "user.dat".
namespace vesk {

std::filesystem::path Lageplanpfad(const std::filesystem::path& userdatei);

/// What this program does not know is kept in the `rest` of each object, also from later versions.
std::string LageplanBytes(const Lageplan& plan);

struct Lageplanlesung {
  Lageplan plan;
  std::string fehler;   ///< German; not empty: nothing could be read
  std::string hinweis;  ///< German; not empty: something was left out or put right
};
Lageplanlesung LageplanLesen(std::string_view bytes);

/// Outlines of a land registry (GeoJSON, WGS 84 or UTM 32/33 of ETRS89), placed around the plan's reference
/// point: into a plan without position this brings the position, too.
struct Geojsonlesung {
  std::vector<Planobjekt> objekte;
  std::optional<Geopunkt> geo;  ///< of the reference point, when the plan had none
  std::string fehler;           ///< German; not empty: nothing could be read
  std::string hinweis;
};
Geojsonlesung GeojsonLesen(std::string_view bytes, const Lageplan& plan);

}  // namespace vesk
