#pragma once
#include <array>
#include <cstdint>
#include <string>

namespace vesk {

/// Pacemaker limit after Vfg 306/97. All 0 outside 0.05 to 50 MHz.
struct HSM306Werte {
  float Uss = 0;          ///< interference threshold, V
  float Spitzenfeld = 0;  ///< peak field strength, V/m
  float Grenzwert = 0;    ///< effective field strength, V/m

  bool operator==(const HSM306Werte&) const = default;
};

/// Pacemaker limit after DIN VDE 0848 Teil 3-1 (draft of 11.11.98).
struct HSMvdeWerte {
  bool ausserhalb = false;  ///< f is outside 30 kHz to 2.5 GHz
  float Uss = 0;            ///< interference threshold, V; 0: none at this frequency
  float Grenzwert = 0;      ///< V/m; 0: none
  /// Candidate peak field strengths in units of 0.00001 V/m, ascending; the limit is the first one / sqrt(2).
  std::array<std::int64_t, 3> Kandidaten{};
  int Anzahl = 0;

  bool operator==(const HSMvdeWerte&) const = default;
};

/// f in MHz.
HSM306Werte HSM306(float f);

/// f in MHz; `grenzwerttyp` 0 AM, 1 TV, any other GSM.
HSMvdeWerte HSMvde(float f, std::int16_t grenzwerttyp);

/// A candidate as the zero-padded text of the list, "00017.44400".
std::string Kandidatentext(std::int64_t hunderttausendstel);

}  // namespace vesk
