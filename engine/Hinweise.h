#pragma once
#include <string>

#include "Berechnung.h"

namespace vesk {

/// Text of a message box (UTF-8). A question has the buttons Ja and Nein, any other box OK.
struct Hinweis {
  std::string titel;
  std::string text;
  bool frage = false;
};

/// The common error box. An empty title becomes "Vesk - Fehlermeldung".
Hinweis Fehlermeldung(const std::string& text, const std::string& titel = {});
Hinweis Fehlermeldung(Fehlerart art);

/// Frequency outside the range of the calculation.
Hinweis BereichsHinweis();
/// Frequency outside the range of DIN VDE 0848 Teil 3-1.
Hinweis HSMBereichsHinweis();
/// Frequency, power or distance missing.
Hinweis EingabeHinweis();
/// Near field beyond the distances of Nahfeldflags (1 to 7).
Hinweis NahfeldHinweis(int flags, Modus modus);
/// No interference threshold defined at the frequency.
Hinweis HSMHinweis();

}  // namespace vesk
