#include "UserDatei.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "../tests/persistence/Muster.h"

namespace {

void Pruefen(bool gut) {
  if (!gut) std::abort();
}

/// What was read once is written and read again without any further change.
void Pruefen(vesk::Zustand gelesen) {
  vesk::FaktorenNormalisieren(gelesen);
  const std::string geschrieben = UserDateiSchreiben(gelesen);
  vesk::Zustand nochmals;
  const vesk::Lesebericht bericht = vesk::UserDateiLesen(geschrieben, nochmals);
  Pruefen(GleicherInhalt(gelesen, nochmals));
  Pruefen(bericht.version == vesk::Dateiversion::Aktuell && bericht.verlustfrei && bericht.etwasGelesen);
  Pruefen(UserDateiSchreiben(nochmals) == geschrieben);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  const std::string_view bytes(reinterpret_cast<const char*>(daten), laenge);
  vesk::Zustand leer;
  vesk::UserDateiLesen(bytes, leer);
  Pruefen(leer);
  // What the file does not say stays: a full state before must not end up anywhere else.
  vesk::Zustand voll = vesk::Musterstand();
  vesk::UserDateiLesen(bytes, voll);
  Pruefen(voll);
  return 0;
}
