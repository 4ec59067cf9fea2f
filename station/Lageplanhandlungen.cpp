#include "station/Lageplanhandlungen.h"

namespace vesk {

Meldungen LageplanSetzen(Station& s, const Kataloge&, const Lageplan& plan) {
  if (s.lageplan == plan) return {};
  if (const auto satz = Planueberschreitung(plan)) {
    return {{.hinweis = {.titel = "Lageplan", .text = *satz}}};
  }
  s.lageplan = plan;
  s.UserGeaendert = true;
  return {};
}

Meldungen LageplanOeffnen(Station& s, const Kataloge&) {
  s.fenster.lageplan = true;
  return {};
}

Meldungen LageplanSchliessen(Station& s, const Kataloge&) {
  s.fenster.lageplan = false;
  return {};
}

}  // namespace vesk
