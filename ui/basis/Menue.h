#pragma once
#include <QStringView>
#include <span>

#include "ui/basis/Ablauf.h"

class QMenu;

namespace vesk {

/// One row of a window's menu table; one that does nothing and says no reason is a separator.
struct Menueeintrag {
  QStringView name{};
  QStringView beschriftung{};
  void (*tun)(Ablauf&) = nullptr;
  QStringView gesperrt{};  ///< why the entry cannot be used: its tooltip
  bool schalter = false;   ///< bears a check mark
  QStringView taste{};     ///< shortcut
};

/// For the table: an entry that stands for one command, or for one action on the station.
template <Befehl befehl>
void Befehlend(Ablauf& ablauf) {
  ablauf.Befehlen(befehl);
}
template <auto handlung>
void Tuend(Ablauf& ablauf) {
  ablauf.Tun(handlung);
}

void MenueFuellen(QMenu& menue, std::span<const Menueeintrag> eintraege, Ablauf& ablauf);

}  // namespace vesk
