#pragma once
#include <span>
#include <stdexcept>
#include <string>

#include "Berechnung.h"

namespace vesk {

/// What `vesk rechnen` was asked to calculate. The texts in `werte` carry a decimal point.
struct Rechenauftrag {
  Rechenwerte werte;
  Rechenart art;
  bool json = false;
  bool hilfe = false;
};

/// Wrong or missing input of the command line; what() is the German message.
class Eingabefehler : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the arguments after "rechnen". Throws Eingabefehler.
Rechenauftrag RechenauftragLesen(std::span<const std::string> argumente);

}  // namespace vesk
