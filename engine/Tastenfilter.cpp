#include "engine/Tastenfilter.h"

namespace vesk {

Filterantwort KeyPress(int zeichen, Tastenmarken& marken) {
  constexpr int Rueckschritt = 8;
  constexpr int Enter = 13;
  marken.EnterGedrueckt = false;
  if (zeichen == '-' && marken.MinusErlaubt) return {zeichen, false};

  marken.MinusErlaubt = false;
  if ((zeichen >= '0' && zeichen <= '9') || zeichen == '.' || zeichen == Rueckschritt)
    return {zeichen, false};
  if (zeichen == ',') return {'.', false};
  if (zeichen == Enter) {
    marken.EnterGedrueckt = true;
    return {0, false};
  }
  return {0, true};
}

}  // namespace vesk
