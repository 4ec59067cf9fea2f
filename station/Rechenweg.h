#pragma once
#include <optional>
#include <string>
#include <vector>

#include "station/Handlung.h"

/// The way of a calculation, as a value: what the papers print and whoever has a pocket calculator can check.
namespace vesk {

/// A quantity with the digits that are printed for it. A constant has no symbol.
struct Groesse {
  std::string symbol;   ///< "P", "λ"
  std::string index;    ///< "Ant"; set low
  std::string zahl;     ///< decimal point, no grouping
  std::string einheit;  ///< "V/m"; empty for a pure number

  bool operator==(const Groesse&) const = default;
};

/// A formula: a quantity, or an operation on its parts.
struct Ausdruck {
  enum class Art {
    Groesse,
    Summe,
    Differenz,  ///< first part minus the others
    Produkt,
    Bruch,        ///< first part over the second
    Wurzel,       ///< square root of the only part
    Potenz,       ///< first part to the power of the second
    Logarithmus,  ///< ln of the only part
  };
  Art art = Art::Groesse;
  Groesse groesse{};
  std::vector<Ausdruck> teile{};
};

/// `ergebnis` = `formel` with symbols = `formel` with numbers = the result's digits. The numbers put in carry
/// all digits of the value that the engine goes on with; a result is rounded, so that what the printed
/// numbers give differs from it by less than one unit of its last digit (without a point: of the last that is
/// not 0).
struct Gleichung {
  Groesse ergebnis;
  Ausdruck formel;
};

/// One line of the way: words, an input with its unit, or an equation. Beside an input the words name it; its
/// `zahl` may be words, too ("Antenne": "Dipol"). Before an equation they say what it is.
struct Rechenzeile {
  std::string text{};
  std::optional<Groesse> eingabe{};
  std::optional<Gleichung> gleichung{};
};

struct Rechenabschnitt {
  std::string titel;
  std::vector<Rechenzeile> zeilen;
};

/// The way of a used column (1 to 7), from its inputs to its distances, the first section being the inputs.
/// With every figure the rule that it comes from. A column that cannot be calculated tells why, after its
/// inputs.
std::vector<Rechenabschnitt> Rechenweg(const Station& s, const Kataloge& k, int spalte);

}  // namespace vesk
