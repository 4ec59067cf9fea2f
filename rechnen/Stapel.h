#pragma once
#include "rechnen/Optionen.h"
#include "rechnen/Rechenauftrag.h"

namespace vesk {

/// Calculates the rows of the table on `stroeme.ein` one after the other, with memory that does not depend on
/// their number; what a row does not tell is taken from the call. Writes a table like it, or JSON objects
/// with `dezimaltrenner` in the column heads, one a line. Returns 1 when a row is wrong or could not be
/// calculated to its end, else 0. Throws Eingabefehler, before anything is written, for a wrong head, and
/// std::runtime_error when the stream cannot be read.
int StapelRechnen(const Rechenaufruf& aufruf, char dezimaltrenner, const Stroeme& stroeme);

}  // namespace vesk
