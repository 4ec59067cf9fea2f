#pragma once
#include <array>

#include "Feldhilfe.h"

namespace vesk {

/// Tooltips of the data sheet; those of the cells belong to a row each.
extern const std::array<Feldhilfe, 8> DatenblattTooltips;

extern const std::array<Hilfenummer, 5> DatenblattHilfenummern;

}  // namespace vesk
