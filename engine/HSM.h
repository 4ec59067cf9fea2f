#pragma once
#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "engine/Frequenzbereich.h"

namespace vesk {

/// A row of the thresholds of Vfg 306/97: from Uu (V) at fu to Uo at fo (MHz), linear in the logarithm of the
/// frequency.
struct HSM306Zeile {
  double fu;
  float fo;
  double Uu, Uo;
  double ln;  ///< ln(fo / fu)
};

/// Peak field strength in V/m = threshold in V / frequency in MHz * Spitzenfeld306.
inline constexpr double Spitzenfeld306 = 415;

/// Null outside 0.05 to 50 MHz, both inclusive.
const HSM306Zeile* HSM306ZeileFuer(float f);
/// Ends of the thresholds, MHz.
inline constexpr float HSM306Von = 0.05F;
inline constexpr float HSM306Bis = 50.0F;

/// Pacemaker limit after Vfg 306/97. All 0 outside 0.05 to 50 MHz.
struct HSM306Werte {
  float Uss = 0;          ///< interference threshold, V
  float Spitzenfeld = 0;  ///< peak field strength, V/m
  float Grenzwert = 0;    ///< effective field strength, V/m

  bool operator==(const HSM306Werte&) const = default;
};

/// A row of the thresholds of DIN VDE 0848 Teil 3-1: U0 * (f / f0) ^ p; p = 0 is a constant.
struct HSMvdeZeile {
  Frequenzbereich bereich;
  double U0;  ///< V
  double f0;  ///< MHz
  double p;
};

/// A conversion of the threshold into a peak field strength (V/m): Uss * faktor * Z * (f / f0) ^ p.
struct Umrechnung {
  double faktor;
  double Z;  ///< wave impedance of free space, Ohm, where the standard names it; else 1
  double p;
};

/// The conversions at a frequency; the smallest peak field strength rules.
struct Umrechnungszeile {
  Frequenzbereich bereich;
  double f0;  ///< MHz
  int anzahl;
  std::array<Umrechnung, 3> umrechnungen;
};

/// Thresholds of a signal type, 0 AM, 1 TV, any other GSM, without a gap.
std::span<const HSMvdeZeile> HSMvdeZeilen(std::int16_t grenzwerttyp);
/// Null where the draft has none.
const Umrechnungszeile* UmrechnungszeileFuer(float f);
/// Peak field strength (V/m) of one conversion of the row at f (MHz).
double Spitzenfeld(const Umrechnungszeile& zeile, std::size_t umrechnung, float Uss, float f);

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
