#pragma once
#include <iosfwd>
#include <span>
#include <string>

namespace vesk {

/// `vesk rechnen …`: one calculation in the terminal, without a display. Returns the exit code: 0; 1 a fault
/// of the calculation (what was computed is printed); 2 wrong or missing input (nothing on `aus`).
int Rechnen(std::span<const std::string> argumente, char dezimaltrenner, std::ostream& aus,
            std::ostream& fehler);

/// The German text of `vesk --help`.
std::string Hilfetext();

}  // namespace vesk
