#pragma once
#include <array>
#include <cstddef>
#include <optional>
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

/// What a file holds: items that are missing are no value (rows: empty).
struct GeleseneWinkeldaten {
  std::optional<std::string> antenne;
  std::optional<std::string> gewinn;
  std::optional<std::string> frequenz;
  std::array<std::string, AnzahlSektoren> daempfung;
};

/// One value per line, quoted or not; several quoted values may share a line. A comma outside quotes is part
/// of the value, so that a decimal comma written by hand does not shift the rows. Windows-1252.
GeleseneWinkeldaten WinkelLesen(std::string_view bytes);

/// Twelve quoted lines. A quote in a text becomes an apostrophe, brackets within the name become round ones
/// (they enclose it in the file).
std::string WinkelSchreiben(const Winkeldaten& daten);

enum class Winkelebene { Keine, Horizontal, Vertikal };

/// Plane of the pattern, which the file bears at the head of its bare name: "h-" or "v-".
Winkelebene EbeneAusName(std::string_view dateiname);

}  // namespace vesk
