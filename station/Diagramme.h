#pragma once
#include "station/Handlung.h"

/// What the user does with the charts.
namespace vesk {

/// mnuDiagramme
Meldungen DiagrammeOeffnen(Station& s, const Kataloge& k);
Meldungen DiagrammeSchliessen(Station& s, const Kataloge& k);
Meldungen DiagrammWaehlen(Station& s, const Kataloge& k, Diagrammart art);
/// An entry of the cable list. One more than the chart can tell apart is not taken, and it says so.
Meldungen KabelAnkreuzen(Station& s, const Kataloge& k, int kabel, bool an);
/// Shows the charts in the preview, from where they are printed or saved.
Meldungen DiagrammeDrucken(Station& s, const Kataloge& k);

}  // namespace vesk
