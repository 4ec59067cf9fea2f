#pragma once
#include <utility>

#include "station/Lageplanhandlungen.h"

/// What the user does with the plan, for the loop.
namespace vesk {

/// `tun` changes the plan as it stands then.
template <typename Tun>
Handlung PlanAendern(Tun tun) {
  return [tun = std::move(tun)](Station& s, const Kataloge& k) {
    Lageplan plan = s.lageplan;
    tun(plan);
    return LageplanSetzen(s, k, plan);
  };
}

/// `tun` changes one object of it.
template <typename Tun>
Handlung ObjektAendern(std::size_t objekt, Tun tun) {
  return PlanAendern([objekt, tun = std::move(tun)](Lageplan& plan) {
    if (objekt < plan.objekte.size()) tun(plan.objekte[objekt]);
  });
}

}  // namespace vesk
