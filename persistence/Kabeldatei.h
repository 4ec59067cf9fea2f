#pragma once
#include <string>
#include <string_view>

#include "station/Kabelkatalog.h"

namespace vesk {

/// Reads the bytes of Kabel.txt: per cable a name and twelve numbers, Windows-1252. Whatever fails, every
/// whole cable before it can be used.
Kabelkatalog KabelLaden(std::string_view bytes);
/// There is no Kabel.txt: RG213 only.
Kabelkatalog KabelOhneDatei();
/// Kabel.txt is there and cannot be read, for a reason: RG213 only.
Kabelkatalog KabelUnlesbar(const std::string& grund);

}  // namespace vesk
