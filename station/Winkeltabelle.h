#pragma once
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace vesk {

/// Sectors of 10 degrees from the main direction to 90 degrees; the pattern is the same on both sides of it.
inline constexpr std::size_t AnzahlSektoren = 9;

/// Contents of an angle file. Texts are kept as they stand (UTF-8), also where they are no numbers.
struct Winkeldaten {
  std::string antenne;
  std::string gewinn;                                 ///< dBi
  std::string frequenz;                               ///< MHz
  std::array<std::string, AnzahlSektoren> daempfung;  ///< dB below the main lobe

  bool operator==(const Winkeldaten&) const = default;
};

enum class Winkelebene { Keine, Horizontal, Vertikal };

/// Plane of the pattern, which a file bears at the head of its bare name: "h-" or "v-".
inline Winkelebene EbeneAusName(std::string_view dateiname) {
  if (dateiname.starts_with("h-") || dateiname.starts_with("H-")) return Winkelebene::Horizontal;
  if (dateiname.starts_with("v-") || dateiname.starts_with("V-")) return Winkelebene::Vertikal;
  return Winkelebene::Keine;
}

}  // namespace vesk
