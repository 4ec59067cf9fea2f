#include "station/Handlung.h"

#include "engine/Laufzeitfehler.h"

namespace vesk {

Meldungen Ausfuehren(const Handlung& handlung, Station& station, const Kataloge& kataloge) {
  try {
    return handlung(station, kataloge);
  } catch (const Laufzeitfehler& fehler) {
    return {{Fehlermeldung(fehler.art)}};
  }
}

}  // namespace vesk
