#include "ui/info/Hilfetaste.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTabWidget>
#include <QVariant>
#include <QWidget>

#include "platform/Plattform.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Of the control or of the nearest one that it lies in; 0 if its window has no help. Tabs stand for the page
/// in front.
int Hilfekontext(const QWidget& control) {
  const auto* karten = qobject_cast<const QTabWidget*>(control.parentWidget());
  for (const QWidget* stelle = karten != nullptr ? karten->currentWidget() : &control; stelle != nullptr;
       stelle = stelle->parentWidget()) {
    const int nummer = stelle->property(HilfekontextEigenschaft).toInt();
    if (nummer != 0 || stelle->isWindow()) return nummer;
  }
  return 0;
}

}  // namespace

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
