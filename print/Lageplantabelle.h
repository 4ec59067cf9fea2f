#pragma once
#include "print/Mappe.h"
#include "station/Zonen.h"

namespace vesk {

/// The pages behind the plan: the zones' figures column by column, where the antennas stand, and whether the
/// zones stay where the operator can keep people out.
std::vector<Seite> Lageplantabelle(const Station& s, const std::vector<Zone>& zonen);

}  // namespace vesk
