#include "engine/Zahlen.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "engine/Laufzeitfehler.h"

namespace {

/// What was read, shown and read again is the same number: two places and one step of single apart at most.
void Pruefen(float wert) {
  const double nochmals = vesk::Zahl(vesk::Formatieren(wert));
  if (std::abs(nochmals - wert) > 0.005 + std::abs(wert) * 1e-6) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  float wert = 0;
  try {
    wert = vesk::Zahl({reinterpret_cast<const char*>(daten), laenge});
  } catch (const vesk::Laufzeitfehler&) {
    return 0;
  }
  Pruefen(wert);
  return 0;
}
