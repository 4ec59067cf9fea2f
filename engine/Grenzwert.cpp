#include "engine/Grenzwert.h"

#include <array>
#include <cmath>
#include <limits>

namespace vesk {

namespace {

constexpr float HoechsteFrequenz = 300000;
constexpr float ohneEnde = std::numeric_limits<float>::infinity();

// The regulation has two rows of the same value up to 1 MHz. The step at 2 GHz is its own, too.
constexpr std::array<Grenzwertzeile, 6> Grenzwertzeilen = {{
    {{0.003F, 0.15F}, 87.0, 0},
    {{0.15F, 1}, 87.0, 0},
    {{1, 10}, 87.0, -0.5},
    {{10, 400}, 27.5, 0},
    {{400, 2000}, 1.375, 0.5},
    {{2000, ohneEnde}, 61.0, 0},
}};

}  // namespace

const Grenzwertzeile* GrenzwertzeileFuer(float qrg, float f) {
  return qrg <= HoechsteFrequenz ? ZeileFuer(Grenzwertzeilen, f) : &Grenzwertzeilen.back();
}

float Grenzwert(float qrg, float f) {
  const Grenzwertzeile* const zeile = GrenzwertzeileFuer(qrg, f);
  if (zeile == nullptr) return 0;
  if (zeile->exponent == 0) return static_cast<float>(zeile->faktor);
  const double wurzel = std::sqrt(static_cast<double>(f));
  return static_cast<float>(zeile->exponent > 0 ? zeile->faktor * wurzel : zeile->faktor / wurzel);
}

}  // namespace vesk
