#pragma once
#include "engine/Frequenzbereich.h"

namespace vesk {

/// A row of the limits of Vfg 306/97: faktor * f ^ exponent.
struct Grenzwertzeile {
  Frequenzbereich bereich;
  double faktor;    ///< V/m at 1 MHz
  double exponent;  ///< 0.5, -0.5 or 0
};

/// The row for an evaluation at f (MHz) of the entered frequency `qrg` (MHz): above 300 GHz the last one
/// whatever f; null below 3 kHz.
const Grenzwertzeile* GrenzwertzeileFuer(float qrg, float f);

/// Limit of the electric field strength (V/m) for persons without a pacemaker at f, Vfg 306/97. 0: none.
float Grenzwert(float qrg, float f);

}  // namespace vesk
