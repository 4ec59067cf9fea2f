#include "ui/info/Hilfetaste.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWidget>

#include "platform/Plattform.h"
#include "ui/basis/Feldhilfe.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Hilfenummer Blockanfaenge[] = {
    {u"frmVesk", 1001}, {u"frmDatenblatt", 2001}, {u"frmOptions", 2100}, {u"frmLstg", 3001},
    {u"frmUser", 4001}, {u"frmTip", 4001},        {u"frmInfo", 4001},
};

}  // namespace

int Hilfekontext(const QWidget& control) {
  for (const QWidget* stelle = &control; stelle != nullptr; stelle = stelle->parentWidget()) {
    const int nummer = stelle->property(HilfekontextEigenschaft).toInt();
    if (nummer != 0) return nummer;
    if (stelle->isWindow()) break;
  }
  const QString fenster = control.window()->objectName();
  for (const Hilfenummer& block : Blockanfaenge) {
    if (block.name == fenster) return block.kontext;
  }
  return 0;
}

Hilfetaste::Hilfetaste(Hilfe& hilfe, QObject* eltern) : QObject(eltern), hilfe_(hilfe) {}

bool Hilfetaste::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(ereignis)->key() != Qt::Key_F1)
    return false;
  const auto* control = qobject_cast<QWidget*>(objekt);
  if (control == nullptr) return false;
  if (QApplication::activePopupWidget() != nullptr) {
    while (QWidget* menue = QApplication::activePopupWidget()) {
      if (!menue->close()) break;
    }
    hilfe_.Aufrufen(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt, 0);
    return true;
  }
  const int nummer = Hilfekontext(*control);
  if (nummer == 0) return false;
  hilfe_.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, nummer);
  return true;
}

}  // namespace vesk
