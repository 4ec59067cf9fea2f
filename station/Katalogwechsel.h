#pragma once
#include "station/Handlung.h"

namespace vesk {

/// Other catalogues have taken the place of those that the station chose from. Its cables are found again by
/// their names, wherever they stand now; losses of one that has other values there are out of date. The
/// antenna, which stands in its record with its name, is no longer selected in the list. Says which cables
/// are missing.
Meldungen KatalogeGewechselt(Station& s, const Kataloge& vorher, const Kataloge& jetzt);

}  // namespace vesk
