#pragma once
#include <cstdint>

#include "Laufzeitfehler.h"
#include "Zustand.h"

namespace vesk {

/// Changes a column's option record (0: the working record) by `aendern(satz)`; else as FeldSetzen.
template <typename Aendern>
void SatzAendern(Zustand& zustand, std::int16_t spalte, Aendern aendern) {
  if (spalte < 0 || spalte > AnzahlSpalten) throw Laufzeitfehler(Fehlerart::Index);
  Datenblattspalte& satz = zustand.Datenblattspalten.at(static_cast<std::size_t>(spalte));
  const Datenblattspalte vorher = satz;
  aendern(satz);
  if (spalte > 0 && satz != vorher) zustand.UserGeaendert = true;
}

/// Writes one field of a column's option record (0: the working record). A real change of a column that is
/// kept in the user's file marks the data as changed. Throws Laufzeitfehler(Index) for a column beyond 7.
template <typename Wert>
void FeldSetzen(Zustand& zustand, std::int16_t spalte, Wert Datenblattspalte::*feld, const Wert& wert) {
  if (spalte < 0 || spalte > AnzahlSpalten) throw Laufzeitfehler(Fehlerart::Index);
  Wert& ziel = zustand.Datenblattspalten.at(static_cast<std::size_t>(spalte)).*feld;
  if (ziel == wert) return;
  ziel = wert;
  if (spalte > 0) zustand.UserGeaendert = true;
}

}  // namespace vesk
