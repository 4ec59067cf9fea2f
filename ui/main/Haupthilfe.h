#pragma once
#include <span>

#include "ui/basis/Feldhilfe.h"

namespace vesk {

/// Tooltips of the main window that do not depend on a mode.
std::span<const Feldhilfe> HauptTooltips();

/// Tooltips of the main window that depend on distance (`leistung` false) or power mode.
std::span<const Feldhilfe> HauptTooltipsModus(bool leistung);

std::span<const Hilfenummer> HauptHilfenummern();

}  // namespace vesk
