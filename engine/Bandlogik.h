#pragma once
#include <span>

namespace vesk {

/// Frequencies (MHz) at which one calculation is made.
struct Auswertefrequenzen {
  float grenzwert = 0;  ///< personal-protection limit
  float hsm = 0;        ///< pacemaker limits
  float lambda = 0;     ///< wavelength, near and far field

  bool operator==(const Auswertefrequenzen&) const = default;
};

/// One amateur band: a frequency from `von` to `bis` (both inclusive) is calculated at the least favourable
/// frequencies of the band. All in MHz.
struct Amateurband {
  const char* name;
  const char* kennung;  ///< label in the antenna catalogue
  float von;
  float bis;
  Auswertefrequenzen auswertung;
};

/// The band table, in the order in which it is searched.
std::span<const Amateurband> Amateurbaender();

/// The band that holds the frequency (MHz), or null.
const Amateurband* AmateurbandVon(float qrg);

/// Frequencies for an entered frequency (MHz): those of its band in the amateur-band mode, else itself.
Auswertefrequenzen Bandlogik(float qrg, bool afu);

/// Whether calculations are defined at this frequency: 0.003 MHz to 300 GHz, both inclusive.
bool ImRechenbereich(float qrg);

}  // namespace vesk
