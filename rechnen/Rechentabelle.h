#pragma once
#include <iosfwd>

#include "rechnen/Felder.h"

namespace vesk {

/// A calculation for people: input, fields and limits in columns, and the notes. `trenner` is the decimal
/// separator of the frequencies.
void TabelleSchreiben(const Rechnung& rechnung, char trenner, std::ostream& aus);

}  // namespace vesk
