#pragma once
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/Hinweise.h"

namespace vesk {

/// Which operating modes are ticked, in the order of `Sendearten`.
using Sendeartkreuze = std::array<bool, Sendearten.size()>;

/// What follows from the ticked modes.
struct Sendeartwahl {
  std::string text;  ///< abbreviations of the first three
  int anzahl = 0;
  float faktor = 1.0F;
};

/// Largest factor of the ticked modes. Four or more count as continuous full power, and so does none.
Sendeartwahl ModulationsFaktorErmitteln(const Sendeartkreuze& kreuze);

/// Boxes and signal type after the user's click on one box.
struct Sendeartfolge {
  Sendeartkreuze kreuze;
  Grenzwerttypen typ;
};

/// ATV, GSM and "Alle" exclude every other mode and cannot be unticked; the others may be combined.
/// Nothing for an index that is no mode.
std::optional<Sendeartfolge> OptionModulation(const Sendeartkreuze& kreuze, int index);

/// Modes named in a data-sheet cell, by names or by the designations of emission. The keys are found anywhere
/// in the text. "alle" names the seven single modes.
Sendeartkreuze ModulationsArtAnkreuzen(std::string_view zelle);

/// The same for a cell that the program wrote from the boxes: "alle" is the box "Alle".
Sendeartkreuze KreuzeAusKuerzeln(std::string_view zelle);

inline constexpr int AnzahlZyklen = 6;

/// Share of transmit time in the averaging period of six minutes: (index + 1) minutes of it.
float ZyklusfaktorVon(int index);

/// Cycle option and factor that a stored factor text stands for.
struct Zykluswahl {
  int option;  ///< -1: none has this factor
  float faktor;
};
Zykluswahl ZyklusAusText(std::string_view text);

/// A stored factor. What cannot reduce a power (next to nothing or less, above 1, no number) counts as full
/// power.
float FaktorAusText(std::string_view text);

/// A factor below 1 obliges the operator.
Hinweis FaktorHinweis();

}  // namespace vesk
