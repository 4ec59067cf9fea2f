#pragma once
#include <span>
#include <string>
#include <string_view>

#include "rechnen/Optionen.h"

namespace vesk {

/// How to use it; `name` is what it is called by.
std::string Rechenhilfe(std::string_view name);

/// Does `vesk rechnen`; `argumente` are those after its name. Returns the exit code: 0, or 1 for a fault of
/// the calculation (what was computed is printed) or a row of the batch that is wrong. Throws Eingabefehler
/// for wrong or missing input, with nothing on the output, and std::runtime_error for a batch that cannot be
/// read.
int Rechnen(std::string_view name, std::span<const std::string> argumente, char dezimaltrenner,
            const Stroeme& stroeme);

}  // namespace vesk
