#pragma once
#include "app/Verzeichnisse.h"
#include "platform/Druckerlader.h"
#include "platform/Plattform.h"
#include "platform/QtPlattform.h"
#include "ui/info/Hilfesystem.h"

namespace vesk {

/// The real platform of a running program.
struct Desktop {
  explicit Desktop(const Verzeichnisse& verzeichnisse)
      : hilfe(verzeichnisse.daten + QLatin1StringView("/hilfe"), boxen, drucker) {}

  QtMeldungsboxen boxen;
  QtDateidialoge dialoge;
  QtBenutzerspeicher speicher;
  QtSignalton ton;
  Druckerlader drucker;
  QtBetrachter betrachter;
  QtFortschrittsanzeige fortschritt;
  Hilfesystem hilfe;
  Plattform plattform{boxen, dialoge, hilfe, speicher, ton, drucker, betrachter, fortschritt};
};

}  // namespace vesk
