#pragma once
#include <string>

#include "station/Handlung.h"

/// Where the user stands, and how he goes on.
namespace vesk {

/// What is to be done next, with the action that does it; without one the user has to type something.
struct Schritt {
  std::string text;
  Handlung tun{};
  bool zurLeistung = false;  ///< power or distance is missing, otherwise the frequency
  bool speichern = false;    ///< the file is to be saved
};
Schritt NaechsterSchritt(const Station& s, const Kataloge& k);

/// Why the copy button cannot be used; empty when it can.
std::string WarumNichtKopierbar(const Station& s);

/// The result shown belongs to other inputs, or to another cable, than those that stand there now.
bool ErgebnisVeraltet(const Station& s);

/// What the colours of the main window say, in whole sentences: missing inputs, a result that is out of date,
/// limits that are not defined, the near field, a factor below 1. Empty when there is nothing to say.
std::string Farbensinn(const Station& s);

/// Of the values in force, for the status line: "0.50, AM".
std::string FaktorUndTyp(const Station& s);
/// Cable and length of the cable tab: "RG 213, 20 m"; empty while there is no length.
std::string Kabelangabe(const Station& s, const Kataloge& k);

/// F5: the current column or, without one, the main window.
Meldungen Rechnen(Station& s, const Kataloge& k);
/// Copies what stands in the main window, and calculates it before when it has to be.
Meldungen RechnenUndKopieren(Station& s, const Kataloge& k);
/// Makes a column (1 to 7) the current one. An empty one leaves the inputs of the main window.
Meldungen SpalteAufsuchen(Station& s, const Kataloge& k, int spalte);

}  // namespace vesk
