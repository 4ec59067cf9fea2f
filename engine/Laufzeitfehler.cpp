#include "Laufzeitfehler.h"

#include <cmath>
#include <limits>

namespace vesk {

namespace {

const char* Text(Fehlerart art) {
  switch (art) {
    case Fehlerart::Gleitkomma:
      return "Gleitkommafehler in der Berechnung.";
    case Fehlerart::Ueberlauf:
      return "Überlauf";
    case Fehlerart::Index:
      return "Index außerhalb des gültigen Bereichs";
    case Fehlerart::Typ:
      return "Typen unverträglich";
  }
  return "";
}

}  // namespace

Laufzeitfehler::Laufzeitfehler(Fehlerart welche) : std::runtime_error(Text(welche)), art(welche) {}

float AlsSingle(double wert) {
  if (!std::isfinite(wert)) throw Laufzeitfehler(Fehlerart::Gleitkomma);
  const auto single = static_cast<float>(wert);
  if (!std::isfinite(single)) throw Laufzeitfehler(Fehlerart::Ueberlauf);
  return single;
}

}  // namespace vesk
