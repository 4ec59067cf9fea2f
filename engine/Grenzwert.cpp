#include "engine/Grenzwert.h"

#include <cmath>

namespace vesk {

float Grenzwert(float qrg, float f) {
  const float umschaltung = qrg <= 300000.0F ? 2000.0F : 0.0F;
  const auto wurzel = [f] { return std::sqrt(static_cast<double>(f)); };
  if (f >= umschaltung) return 61.0F;
  if (f >= 400.0F) return static_cast<float>(1.375 * wurzel());
  if (f >= 10.0F) return 27.5F;
  if (f >= 1.0F) return static_cast<float>(87.0 / wurzel());
  // Two rows of the regulation with the same value: 0.15 to 1 MHz and 3 to 150 kHz.
  if (f >= 0.15F) return 87.0F;
  if (f >= 0.003F) return 87.0F;
  return 0.0F;
}

}  // namespace vesk
