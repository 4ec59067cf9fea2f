#include <unistd.h>

#include <QByteArray>
#include <QtGlobal>
#include <algorithm>
#include <array>
#include <csignal>

#include "platform/System.h"

namespace vesk {

void SchreibgrenzenAlsFehler() {
  std::signal(SIGXFSZ, SIG_IGN);
}

void KeinenBusStarten() {
  constexpr const char* Adresse = "DBUS_SESSION_BUS_ADDRESS";
  if (!qEnvironmentVariableIsEmpty(Adresse)) return;
  const QByteArray laufzeit = qgetenv("XDG_RUNTIME_DIR");
  const QByteArray ort = laufzeit.isEmpty() ? "/run/user/" + QByteArray::number(getuid()) : laufzeit;
  // Where systemd listens for it.
  qputenv(Adresse, "unix:path=" + ort + "/bus");
}

bool BildschirmVorhanden() {
  constexpr std::array Namen = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
  return !std::all_of(Namen.begin(), Namen.end(), qEnvironmentVariableIsEmpty);
}

}  // namespace vesk
