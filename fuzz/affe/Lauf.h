#pragma once
#include <QString>

namespace vesk::affe {

struct Zaehler {
  int ereignisse = 0;
  int aktuell = 0;    ///< results that stood beside their own inputs
  int programme = 0;  ///< starts on one directory
};

/// Starts the program again and again on one directory until `ereignisse` have happened. What is wrong, or
/// nothing.
QString Laufen(unsigned saat, int ereignisse, Zaehler& zaehler);

}  // namespace vesk::affe
