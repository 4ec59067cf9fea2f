#include "persistence/Jsontext.h"

#include <algorithm>

namespace vesk {

bool ZuTief(std::string_view json) {
  constexpr int Hoechstens = 32;
  int tiefe = 0;
  bool imText = false;
  for (std::size_t i = 0; i < json.size(); ++i) {
    const char zeichen = json[i];
    if (imText && zeichen == '\\') {
      ++i;
    } else if (zeichen == '"') {
      imText = !imText;
    } else if (!imText && (zeichen == '[' || zeichen == '{')) {
      if (++tiefe > Hoechstens) return true;
    } else if (!imText && (zeichen == ']' || zeichen == '}')) {
      --tiefe;
    }
  }
  return false;
}

std::string Beschaedigt(std::string_view json, std::size_t byte) {
  const std::string_view davor = json.substr(0, byte == 0 ? 0 : byte - 1);
  return "Sie ist beschädigt (Zeile " + std::to_string(1 + std::count(davor.begin(), davor.end(), '\n')) +
         ").";
}

}  // namespace vesk
