#pragma once
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "engine/Berechnung.h"
#include "engine/Laufzeitfehler.h"
#include "station/Winkeltabelle.h"

namespace vesk {

/// Inputs of the sector table, as they stand in the fields.
struct Sektoreingabe {
  std::string AntEinPWR;                              ///< W at the antenna input
  std::string gewinn;                                 ///< dBi
  std::array<std::string, AnzahlSektoren> daempfung;  ///< dB

  bool operator==(const Sektoreingabe&) const = default;
};

/// One sector. A pacemaker distance without a limit at the frequency has no value.
struct Sektor {
  float EIRP = 0;     ///< W
  float ohneHSM = 0;  ///< m
  std::optional<float> HSM306;
  std::optional<float> HSMvde;

  bool operator==(const Sektor&) const = default;
};

/// The sectors as far as the calculation got.
struct Sektortabelle {
  std::vector<Sektor> sektoren;
  std::optional<Fehlerart> fehler;

  bool operator==(const Sektortabelle&) const = default;
};

/// Radiated power and safety distances sector by sector. The factors of mode and cycle do not enter here.
Sektortabelle SektorenRechnen(const Sektoreingabe& eingabe, const Grenzwerte& grenzwerte);

}  // namespace vesk
