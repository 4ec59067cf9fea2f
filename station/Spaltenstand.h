#pragma once
#include <string>

namespace vesk {

struct Station;

/// What the colours of a column (1 to 7) say, in words: "Spalte B: rückwärts gerechnet, Faktor unter 1".
std::string Spaltenstand(const Station& s, int spalte);

}  // namespace vesk
