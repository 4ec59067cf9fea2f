#include "Feldhilfe.h"

#include <QString>
#include <QWidget>

namespace vesk {

namespace {

/// Runs `tun` for the control of that name, or for every element of the control array of that name.
template <typename Tun>
void JeControl(QWidget& fenster, QStringView name, Tun tun) {
  const QString einzeln = name.toString();
  const QString feld = einzeln + QLatin1Char('_');
  for (QWidget* kind : fenster.findChildren<QWidget*>()) {
    const QString kindname = kind->objectName();
    if (kindname != einzeln) {
      if (!kindname.startsWith(feld)) continue;
      bool zahl = false;
      static_cast<void>(QStringView(kindname).mid(feld.size()).toInt(&zahl));
      if (!zahl) continue;
    }
    tun(*kind);
  }
}

}  // namespace

void TooltipsSetzen(QWidget& fenster, std::span<const Feldhilfe> tabelle, bool an) {
  for (const Feldhilfe& zeile : tabelle) {
    JeControl(fenster, zeile.name,
              [&](QWidget& kind) { kind.setToolTip(an ? zeile.text.toString() : QString()); });
  }
}

void HilfenummernSetzen(QWidget& fenster, std::span<const Hilfenummer> tabelle) {
  for (const Hilfenummer& zeile : tabelle) {
    JeControl(fenster, zeile.name,
              [&](QWidget& kind) { kind.setProperty(HilfekontextEigenschaft, zeile.kontext); });
  }
}

}  // namespace vesk
