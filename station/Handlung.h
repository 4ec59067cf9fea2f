#pragma once
#include <functional>
#include <utility>
#include <vector>

#include "engine/Hinweise.h"
#include "station/Antennenkatalog.h"
#include "station/Kabelkatalog.h"
#include "station/Station.h"

namespace vesk {

/// What the user chooses from, read once at the start.
struct Kataloge {
  Kabelkatalog kabel;
  Antennenkatalog antennen;
};

struct Meldung;
/// What an action has to say or to ask, in this order, after the windows show the station.
using Meldungen = std::vector<Meldung>;

/// What the user did: changes the station, leaves it finished, and returns what is to be said.
using Handlung = std::function<Meldungen(Station&, const Kataloge&)>;

struct Meldung {
  Hinweis hinweis;
  /// What the answer to a question does; empty: nothing.
  std::function<Meldungen(Station&, const Kataloge&, Antwort)> danach{};
  bool zurFrequenz = false;  ///< the cursor goes back into the frequency of the main window
  bool zurRechnung = false;  ///< belongs to a calculation; another one makes it pointless
};

/// Runs the answer to a user's event. A run-time error ends it and is told; what it has written stays.
Meldungen Ausfuehren(const Handlung& handlung, Station& station, const Kataloge& kataloge);

inline void Anhaengen(Meldungen& meldungen, Meldungen weitere) {
  for (Meldung& meldung : weitere) meldungen.push_back(std::move(meldung));
}

}  // namespace vesk
