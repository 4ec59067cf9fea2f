#pragma once
#include <QPalette>
#include <QWidget>

#include "print/Planbild.h"

namespace vesk {

/// The plan in the colours of the desktop.
Planfarben PlanfarbenAus(const QPalette& palette);
/// Units of a widget's painter for a millimetre of paper. In a window that has been made to fit the screen,
/// drawings get smaller with the letters.
double Bildschirmmass(const QWidget& widget);

}  // namespace vesk
