#include "station/Bandkennung.h"

#include <array>
#include <charconv>

#include "engine/Bandlogik.h"
#include "engine/Laufzeitfehler.h"
#include "engine/Zahlen.h"

namespace vesk {

std::string Bandkennung(std::string_view text) {
  float f = 0;
  try {
    f = Zahl(text);
  } catch (const Laufzeitfehler&) {
    return {};  // beyond every frequency
  }
  if (!(f > 0)) return {};
  if (const Amateurband* const band = AmateurbandVon(f)) return band->kennung;
  constexpr std::size_t Kennungsbreite = 5;
  std::array<char, 128> puffer{};
  char* const ende =
      std::to_chars(puffer.data(), puffer.data() + puffer.size(), f, std::chars_format::fixed).ptr;
  return std::string(puffer.data(), ende).substr(0, Kennungsbreite);
}

}  // namespace vesk
