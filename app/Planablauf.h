#pragma once
#include "persistence/Rueckfragen.h"
#include "station/Handlung.h"

/// What comes onto the plan from files.
namespace vesk {

/// Outlines of a land registry are added to the objects of the plan.
Meldungen GeojsonEinlesen(Station& s, const Kataloge& k, Rueckfragen& rueckfragen);
/// A picture below the plan, in place of the one that it has. It lies there with a width of 100 m, beginning
/// at the reference point, until it is calibrated. One that cannot be shown is not taken.
Meldungen HintergrundWaehlen(Station& s, const Kataloge& k, Rueckfragen& rueckfragen);

}  // namespace vesk
