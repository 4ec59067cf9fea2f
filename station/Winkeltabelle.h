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

/// Caption of a table in that plane.
constexpr const char* Ebenentitel(Winkelebene ebene) {
  constexpr std::array<const char*, 3> Titel = {"Winkeldämpfung von Richtantennen",
                                                "Horizontale Winkeldämpfung von Richtantennen",
                                                "Vertikale Winkeldämpfung von Richtantennen"};
  return Titel.at(static_cast<std::size_t>(ebene));
}

/// Degrees of a sector: "00 - 10" to "80 - 90".
inline std::string Sektorname(std::size_t sektor) {
  const auto grad = [](std::size_t zehner) { return std::to_string(zehner) + '0'; };
  return grad(sektor) + " - " + grad(sektor + 1);
}

}  // namespace vesk
