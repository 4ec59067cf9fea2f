#pragma once
#include <QRectF>
#include <QSizeF>

#include "print/Planbild.h"

/// Which part of the plan is seen, and how large.
namespace vesk {

/// `rahmen` in m with y upwards, whole and in the middle of a widget of this size.
Planabbildung Eingepasst(const QRectF& rahmen, const QSizeF& groesse, double jeMillimeter);
/// Larger by `faktor` within what can be drawn; what is at `fest` stays there.
Planabbildung Vergroessert(Planabbildung abbildung, double faktor, QPointF fest);

/// What a plan with its zones and the picture below it takes up, in m with y upwards, with a margin; of an
/// empty plan the surroundings of its reference point. `hintergrund`: size in picture elements, or empty.
QRectF Planrahmen(const Planbild& bild, const QSizeF& hintergrund);

}  // namespace vesk
