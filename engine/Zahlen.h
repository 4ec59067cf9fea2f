#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace vesk {

/// Number at the head of a text: leading blanks, a sign, digits with at most one point, a whole exponent.
/// What follows is ignored, a comma ends the number, a text without a number is 0.
/// Throws Laufzeitfehler(Ueberlauf) when the number is beyond the range of single.
float Zahl(std::string_view text);

/// Whether the number of a text is greater than 0; one beyond the range of single counts, too, so that the
/// calculation tells what is wrong with it.
bool Positiv(std::string_view text);

/// "#0.00" with a point whatever the locale. The shortest decimal that reads back as the same single is
/// rounded to two places, halves away from zero; never "-0.00".
std::string Formatieren(float wert);

/// At least one integer digit, `stellen` decimals after `trenner`, no grouping; rounding as above, from the
/// shortest decimal of the single resp. the double.
std::string Formatieren(float wert, int stellen, char trenner);
std::string Formatieren(double wert, int stellen, char trenner);

/// Logarithm to base 10 as ln(wert) / ln(10). Throws Laufzeitfehler(Gleitkomma) for wert <= 0.
double Log10(float wert);

/// Position of a cell in the data sheet: (spalte - 1) * 12 + (zeile - 1), both counted from 1.
/// Throws Laufzeitfehler(Ueberlauf) outside 16 bits.
std::int16_t Gitterindex(std::int16_t spalte, std::int16_t zeile);

}  // namespace vesk
