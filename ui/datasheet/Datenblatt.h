#pragma once
#include <array>
#include <string>

#include "Datenblattspalte.h"

namespace vesk {

/// Texts of the cells by grid index (see Gitterindex).
using Datenblattzellen = std::array<std::string, AnzahlZellen>;

/// A column (1 to 7) counts as free when its frequency or its power is empty.
bool SpalteFrei(const Datenblattzellen& zellen, std::int16_t spalte);

/// Letter "A" to "G" of the first free column; empty when none is free.
std::string NaechsteFreieSpalte(const Datenblattzellen& zellen);

/// Record of a cleared column: factors "1.00", signal type AM, positions 26 to 28 "1", "2", "3".
Datenblattspalte LeereSpalte();

}  // namespace vesk
