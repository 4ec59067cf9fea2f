#pragma once
#include <string>
#include <string_view>

#include "station/Antennenkatalog.h"

namespace vesk {

/// Reads the bytes of Antennen.txt: sections "[maker]", per antenna type, kind and up to nine groups of band,
/// gain and elements, closed by "#"; Windows-1252.
Antennenkatalog AntennenLaden(std::string_view bytes);
/// Antennen.txt is there and cannot be read, for a reason.
Antennenkatalog AntennenUnlesbar(const std::string& grund);

}  // namespace vesk
