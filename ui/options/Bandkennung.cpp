#include "Bandkennung.h"

#include <array>
#include <charconv>

#include "Zahlen.h"

namespace vesk {

namespace {

struct Bereich {
  float von;  ///< MHz, both ends included
  float bis;
  std::string_view kennung;
};

// 21 MHz is a single point: an operator who types 21.2 wants that frequency, not the band.
constexpr std::array<Bereich, 18> Bereiche = {{
    {1, 1.89F, "1.8"},
    {3, 3.8F, "3.6"},
    {7, 7.1F, "7"},
    {10, 10.15F, "10"},
    {14, 14.35F, "14"},
    {18, 18.068F, "18"},
    {21, 21, "21"},
    {24, 24.99F, "24"},
    {28, 29.7F, "28"},
    {50, 55, "50"},
    {100, 150, "144"},
    {430, 440, "430"},
    {1200, 1300, "1240"},
    {2000, 2600, "2400"},
    {3000, 3500, "3400"},
    {5000, 5900, "5600"},
    {10000, 10500, "10000"},
    {24000, 25000, "24000"},
}};

constexpr std::size_t Kennungsbreite = 5;

}  // namespace

std::string Bandkennung(std::string_view text) {
  const float f = Zahl(text);
  if (!(f > 0)) return {};
  for (const Bereich& bereich : Bereiche) {
    if (f >= bereich.von && f <= bereich.bis) return std::string(bereich.kennung);
  }
  std::array<char, 128> puffer{};
  char* const ende =
      std::to_chars(puffer.data(), puffer.data() + puffer.size(), f, std::chars_format::fixed).ptr;
  return std::string(puffer.data(), ende).substr(0, Kennungsbreite);
}

}  // namespace vesk
