#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "station/Winkeltabelle.h"

namespace vesk {

/// What a file holds: items that are missing are no value (rows: empty).
struct GeleseneWinkeldaten {
  std::optional<std::string> antenne;
  std::optional<std::string> gewinn;
  std::optional<std::string> frequenz;
  std::array<std::string, AnzahlSektoren> daempfung;
  bool ganz = true;  ///< all that stands in the file; writing it again loses nothing
};

/// One value per line, quoted or not; several quoted values may share a line. A comma outside quotes is part
/// of the value, so that a decimal comma written by hand does not shift the rows. Windows-1252.
GeleseneWinkeldaten WinkelLesen(std::string_view bytes);

/// Twelve quoted lines. A quote in a text becomes an apostrophe, brackets within the name become round ones
/// (they enclose it in the file).
std::string WinkelSchreiben(const Winkeldaten& daten);

}  // namespace vesk
