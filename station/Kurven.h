#pragma once
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "station/Handlung.h"

/// What the charts of the station show. Every point is a calculation of its own.
namespace vesk {

/// Without `y` nothing is defined at `x`, and the curve is interrupted.
struct Kurvenpunkt {
  double x = 0;
  std::optional<double> y;

  bool operator==(const Kurvenpunkt&) const = default;
};
using Kurve = std::vector<Kurvenpunkt>;  ///< rising in x

/// 1, 2 or 5 times a power of ten, not above resp. not below `wert`, which is greater than 0.
double RundUnten(double wert);
double RundOben(double wert);

/// The order in which limits stand everywhere.
enum class Grenzwertart { OhneHSM, HSMvde, HSM306 };
inline constexpr std::size_t AnzahlGrenzwertarten = 3;
inline constexpr std::array<const char*, AnzahlGrenzwertarten> Grenzwertartnamen = {"ohne HSM", "HSM VDE",
                                                                                    "HSM 306"};
/// One value for each; none: no limit is defined.
using Dreiwerte = std::array<std::optional<double>, AnzahlGrenzwertarten>;

/// V/m
Dreiwerte Feldstaerken(const Grenzwerte& grenzwerte);
/// Distances in m, in power mode powers in W.
Dreiwerte Ausgabewerte(const Rechenergebnis& ergebnis);

/// A quantity that depends on the limits, over another one.
struct Kurvenschar {
  std::array<Kurve, AnzahlGrenzwertarten> kurven;  ///< all empty: the inputs do not suffice
  double jetzt = 0;                                ///< where the station is
  Dreiwerte werte;                                 ///< there
  std::string grund;                               ///< why there are no curves
};
/// Distance (m) over the power of the transmitter (W), resp. permitted power over the distance, with the
/// inputs of the main window otherwise. The station is at its power and the distance without pacemaker, in
/// power mode at its distance and the power that belongs to it.
Kurvenschar AbstandUeberLeistung(const Station& s);
Kurvenschar LeistungUeberAbstand(const Station& s);

struct Kabelkurve {
  std::string name;
  Kurve kurve;                  ///< dB per 100 m over MHz
  std::optional<double> jetzt;  ///< at the frequency of the station
};
/// Entries of the cable list that the chart shows: those chosen, or the cable in use.
std::vector<int> GezeigteKabel(const Station& s, const Kataloge& k);
std::vector<Kabelkurve> Kabelkurven(const Station& s, const Kataloge& k);

/// The limits (V/m) at each frequency (MHz) itself.
struct Grenzwertkurve {
  std::string name;
  Grenzwertart art;
  std::int16_t typ;  ///< signal type, of HSM VDE
  Kurve kurve;
};
/// A frequency that matters, with the limits that hold for it.
struct Grenzwertmarke {
  std::string name;  ///< letters of the columns; empty: the frequency of the main window
  Grenzwerte grenzwerte;
  std::int16_t typ;
};
struct Grenzwertbild {
  double von = 0, bis = 0;  ///< MHz
  std::vector<Grenzwertkurve> kurven;
  std::vector<Grenzwertmarke> marken;
};
/// From `von` to `bis` MHz, steps of the regulation included; one curve of HSM VDE for each of the signal
/// types.
std::vector<Grenzwertkurve> Grenzwertkurven(double von, double bis, const std::vector<std::int16_t>& typen);
/// All limits, with the frequencies of the used columns.
Grenzwertbild GrenzwerteDerStation(const Station& s);

}  // namespace vesk
