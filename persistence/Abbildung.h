#pragma once
#include "station/Lageplan.h"

/// Maps of the earth's surface (GRS 80, the ellipsoid of ETRS89 and, to a tenth of a millimetre, WGS 84).
namespace vesk {

/// Metres to the east of the meridian `laenge0` (degrees), and to the north of the equator along it, of a
/// place less than 10° away from it: transverse Mercator projection without a scale factor. Exact to a
/// thousandth of a millimetre.
Punkt Abgebildet(Geopunkt ort, double laenge0);
/// And back.
Geopunkt Zurueckgebildet(Punkt punkt, double laenge0);

/// UTM of the northern hemisphere; `ost` without the number of the zone, which is 1 to 60.
Geopunkt AusUtm(int zone, double ost, double nord);

}  // namespace vesk
