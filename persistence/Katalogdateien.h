#pragma once
#include <filesystem>

#include "station/Handlung.h"

namespace vesk {

/// Reads Kabel.txt and Antennen.txt of a directory. What is wrong with them is added to `meldungen`; whatever
/// they hold, the catalogues can be used.
Kataloge KatalogeLesen(const std::filesystem::path& verzeichnis, Meldungen& meldungen);

}  // namespace vesk
