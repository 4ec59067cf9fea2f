#pragma once
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "Berechnung.h"
#include "Laufzeitfehler.h"
#include "Winkeldatei.h"

namespace vesk {

/// Inputs of the sector table, as they stand in the fields.
struct Sektoreingabe {
  std::string AntEinPWR;                              ///< W at the antenna input
  std::string gewinn;                                 ///< dBi
  std::array<std::string, AnzahlSektoren> daempfung;  ///< dB
};

/// One sector. A pacemaker distance without a limit at the frequency has no value.
struct Sektor {
  float EIRP = 0;     ///< W
  float ohneHSM = 0;  ///< m
  std::optional<float> HSM306;
  std::optional<float> HSMvde;
};

/// The sectors as far as the calculation got.
struct Sektortabelle {
  std::vector<Sektor> sektoren;
  std::optional<Fehlerart> fehler;
};

/// Radiated power and safety distances sector by sector. The factors of mode and cycle do not enter here.
Sektortabelle SektorenRechnen(const Sektoreingabe& eingabe, const Grenzwerte& grenzwerte);

}  // namespace vesk
