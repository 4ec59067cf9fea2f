#pragma once
#include <span>

#include "Feldhilfe.h"

namespace vesk {

/// Tooltips of the user-data window.
std::span<const Feldhilfe> BenutzerTooltips();

}  // namespace vesk
