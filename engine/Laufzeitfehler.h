#pragma once
#include <cmath>
#include <limits>
#include <stdexcept>

namespace vesk {

/// The kinds of fault that end the handler of a user's event. What was computed before stays.
enum class Fehlerart { Gleitkomma, Ueberlauf, Index, Typ };

/// Thrown where a calculation or a list access cannot go on; caught at the handler that answered the user
/// and shown there with its German text (UTF-8).
class Laufzeitfehler : public std::runtime_error {
 public:
  explicit Laufzeitfehler(Fehlerart art);
  Fehlerart art;
};

/// Throws Gleitkomma for a non-finite value and Ueberlauf for a finite one.
[[noreturn]] void KeinSingle(double wert);

/// `wert` as the single that the record stores; throws as KeinSingle when it is none.
inline float AlsSingle(double wert) {
  const auto single = static_cast<float>(wert);
  if (!(std::abs(single) <= std::numeric_limits<float>::max())) [[unlikely]]
    KeinSingle(wert);
  return single;
}

}  // namespace vesk
