#pragma once

namespace vesk {

/// Limit of the electric field strength (V/m) for persons without a pacemaker at f (MHz), Vfg 306/97.
/// `qrg` is the entered frequency: above 300 GHz the limit is 61 V/m whatever f. 0 below 3 kHz: none.
float Grenzwert(float qrg, float f);

}  // namespace vesk
