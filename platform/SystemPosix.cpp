#include <QtGlobal>
#include <algorithm>
#include <array>
#include <csignal>

#include "platform/System.h"

namespace vesk {

void SchreibgrenzenAlsFehler() {
  std::signal(SIGXFSZ, SIG_IGN);
}

bool BildschirmVorhanden() {
  constexpr std::array Namen = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
  return !std::all_of(Namen.begin(), Namen.end(), qEnvironmentVariableIsEmpty);
}

}  // namespace vesk
