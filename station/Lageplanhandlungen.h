#pragma once
#include "station/Handlung.h"

/// What the user does with the plan.
namespace vesk {

/// The plan as the user has made it. One beyond the limits is refused with a note.
Meldungen LageplanSetzen(Station& s, const Kataloge& k, const Lageplan& plan);
/// mnuLageplan: opens its window.
Meldungen LageplanOeffnen(Station& s, const Kataloge& k);
Meldungen LageplanSchliessen(Station& s, const Kataloge& k);

}  // namespace vesk
