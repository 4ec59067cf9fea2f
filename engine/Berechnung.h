#pragma once
#include <optional>

#include "engine/Bandlogik.h"
#include "engine/HSM.h"
#include "engine/Laufzeitfehler.h"
#include "engine/Rechenwerte.h"

namespace vesk {

enum class Modus {
  Abstand,   ///< power in, distances out
  Leistung,  ///< distance in, powers out
};

/// How a calculation is to be made.
struct Rechenart {
  Modus modus = Modus::Abstand;
  bool afu = true;  ///< least favourable frequency of the amateur band
};

/// The root of 30 in d = sqrt(30 * EIRP) / E (m, W, V/m), at the four digits that all figures rest on.
inline constexpr double Wurzel30 = 5.477;

inline constexpr double Lichtgeschwindigkeit = 299.7925;  ///< m * MHz
inline constexpr double Pi = 3.141592654;                 ///< the near field ends at Lambda / (2 Pi)
inline constexpr double FernfeldInLambda = 4;             ///< where the far field begins

/// Numbers that enter a calculation beside frequency and signal type.
struct Stationswerte {
  float PWR = 0;        ///< W; the given distance in m in power mode
  float Gewinn = 0;     ///< dBi
  float Daempfung = 0;  ///< dB
  float Winkel = 0;     ///< dB
  float Faktor = 1;     ///< product of mode and cycle factor
};

/// Bits of Nahfeldflags: the radiating near field reaches beyond this distance.
enum Nahfeldbits { NahfeldOhneHSM = 1, NahfeldHSM306 = 2, NahfeldHSMvde = 4 };

/// Near and far field and the three limits at one frequency.
struct Grenzwerte {
  float QRG = 0;  ///< as entered, MHz
  Auswertefrequenzen frequenz;
  bool ausserhalb = false;  ///< QRG is outside the range of the calculation
  float ohneHSM = 0;        ///< V/m; 0: none defined
  HSM306Werte hsm306;
  HSMvdeWerte hsmVDE;
  float Lambda = 0;    ///< m
  float Nahfeld = 0;   ///< end of the reactive near field, m
  float Fernfeld = 0;  ///< begin of the far field, m

  bool operator==(const Grenzwerte&) const = default;
};

/// One calculation. What has no value was not reached (a fault) or does not belong to the mode.
struct Rechenergebnis {
  Modus modus = Modus::Abstand;
  bool begonnen = false;  ///< frequency and power (or distance) were greater than 0
  Grenzwerte grenzwerte;
  std::optional<float> EIRP;       ///< W, without angle attenuation; distance mode
  std::optional<float> AntEinPWR;  ///< power at the antenna input, W; in power mode of the power ohneHSM
  std::optional<float> WEIRP;    ///< W: with angle attenuation; in power mode belonging to the power ohneHSM
  std::optional<float> ohneHSM;  ///< distance in m, in power mode the largest power in W
  std::optional<float> HSM306;
  std::optional<float> HSMvde;
  bool vollstaendig = false;  ///< near-field flags are set
  int Nahfeldflags = 0;
  std::optional<Fehlerart> fehler;

  bool operator==(const Rechenergebnis&) const = default;
};

/// Frequencies and limits at the entered frequency (MHz).
Grenzwerte GrenzwerteBestimmen(float qrg, bool afu, std::int16_t grenzwerttyp);

/// Wavelength, near and far field. Throws Laufzeitfehler for a wavelength that is no single.
void FelderBestimmen(Grenzwerte& grenzwerte);

/// Limits, thresholds and peak field of the record back to 0, as at the start of every calculation.
void GrenzwerteZuruecksetzen(Rechenwerte& werte);
/// Frequencies, limits, thresholds and peak field into the record.
void GrenzwerteEintragen(const Grenzwerte& grenzwerte, Rechenwerte& werte);

/// Distances or powers from numbers. `ergebnis.grenzwerte` is given; the rest is filled as far as the
/// calculation gets. Throws Laufzeitfehler.
void AusgabenBestimmen(const Stationswerte& station, Modus modus, Rechenergebnis& ergebnis);

/// The central calculation on the texts of the record; the record receives frequencies and limits, empty
/// gain, loss and angle texts become "0". A fault is told in the result and nothing is thrown.
Rechenergebnis Berechnen(Rechenwerte& werte, const Rechenart& art);

}  // namespace vesk
