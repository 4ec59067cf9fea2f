#pragma once

namespace vesk {

struct Rechenwerte;

struct Filterantwort {
  int zeichen;  ///< code to enter; 0: swallowed
  bool piep;    ///< the character was refused
};

/// Common key filter of all numeric fields. `zeichen` is a character code (Enter 13, Backspace 8). Sets
/// EnterGedrueckt; withdraws MinusErlaubt except after an accepted minus sign.
Filterantwort KeyPress(int zeichen, Rechenwerte& werte);

}  // namespace vesk
