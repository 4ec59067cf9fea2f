#include "Tastenfilter.h"

#include "Rechenwerte.h"

namespace vesk {

Filterantwort KeyPress(int zeichen, Rechenwerte& werte) {
  constexpr int Rueckschritt = 8;
  constexpr int Enter = 13;
  werte.EnterGedrueckt = false;
  if (zeichen == '-' && werte.MinusErlaubt) return {zeichen, false};

  werte.MinusErlaubt = false;
  if ((zeichen >= '0' && zeichen <= '9') || zeichen == '.' || zeichen == Rueckschritt)
    return {zeichen, false};
  if (zeichen == ',') return {'.', false};
  if (zeichen == Enter) {
    werte.EnterGedrueckt = true;
    return {0, false};
  }
  return {0, true};
}

}  // namespace vesk
