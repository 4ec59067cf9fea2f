#pragma once
#include <QPixmap>

namespace vesk {

/// The program's picture, an antenna with its waves, in a square of `groesse` logical pixels.
QPixmap Programmbild(int groesse, qreal skalierung);

}  // namespace vesk
