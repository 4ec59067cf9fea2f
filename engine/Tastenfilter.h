#pragma once

namespace vesk {

/// What the filter keeps from one key to the next; each field has its own.
struct Tastenmarken {
  bool MinusErlaubt = false;    ///< the next minus sign passes
  bool EnterGedrueckt = false;  ///< Enter was the last key
};

struct Filterantwort {
  int zeichen;  ///< code to enter; 0: swallowed
  bool piep;    ///< the character was refused
};

/// Common key filter of all numeric fields. `zeichen` is a character code (Enter 13, Backspace 8). Sets
/// EnterGedrueckt; withdraws MinusErlaubt except after an accepted minus sign.
Filterantwort KeyPress(int zeichen, Tastenmarken& marken);

}  // namespace vesk
