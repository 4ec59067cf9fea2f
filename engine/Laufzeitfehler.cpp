#include "engine/Laufzeitfehler.h"

#include <cmath>

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

void KeinSingle(double wert) {
  throw Laufzeitfehler(std::isfinite(wert) ? Fehlerart::Ueberlauf : Fehlerart::Gleitkomma);
}

}  // namespace vesk
