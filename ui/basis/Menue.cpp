#include "ui/basis/Menue.h"

#include <QAction>
#include <QMenu>

namespace vesk {

void MenueFuellen(QMenu& menue, std::span<const Menueeintrag> eintraege, Ablauf& ablauf) {
  menue.setToolTipsVisible(true);
  for (const Menueeintrag& eintrag : eintraege) {
    QAction* aktion = menue.addAction(eintrag.beschriftung.toString());
    aktion->setObjectName(eintrag.name.toString());
    aktion->setCheckable(eintrag.schalter);
    aktion->setSeparator(eintrag.tun == nullptr && eintrag.gesperrt.isEmpty());
    aktion->setEnabled(eintrag.gesperrt.isEmpty());
    aktion->setShortcut(QKeySequence(eintrag.taste.toString()));
    aktion->setToolTip(eintrag.gesperrt.toString());
    if (eintrag.tun != nullptr) {
      QObject::connect(aktion, &QAction::triggered, &menue, [&ablauf, tun = eintrag.tun] { tun(ablauf); });
    }
  }
}

}  // namespace vesk
