#pragma once
#include <functional>

#include "Ausgabe.h"

namespace vesk {

class frmVesk;
struct Plattform;
struct Zustand;

/// The central calculation as the user sees it: from the record through the engine into the fields of the
/// main window, with the notes in their order.
class Rechengang {
 public:
  /// `nebenfelder` receives every calculation that writes fields, for the angle page and the copy button.
  using Nebenfelder = std::function<void(const Rechenergebnis&, const Feldtexte&)>;

  Rechengang(Zustand& zustand, Plattform& plattform, frmVesk& hauptfenster, Nebenfelder nebenfelder);

  /// Calculates from the record. Without `meldungen` no box appears. Does nothing while it is running (a box
  /// of a calculation is open). Throws Laufzeitfehler after what was computed is shown.
  void Berechnen(bool meldungen);

  /// Only the frequencies for `mhz`: record, column heads and, with `hinweis`, the note on the range.
  void Bandlogik(float mhz, bool hinweis);

  bool Laeuft() const { return laeuft_; }

 private:
  /// Column heads; before them the note on the range and the cursor back in the frequency.
  void FrequenzZeigen(const Feldtexte& texte, bool hinweis);
  void Hinweise(const Rechenergebnis& ergebnis);

  Zustand& zustand_;
  Plattform& plattform_;
  frmVesk& hauptfenster_;
  Nebenfelder nebenfelder_;
  bool laeuft_ = false;
};

}  // namespace vesk
