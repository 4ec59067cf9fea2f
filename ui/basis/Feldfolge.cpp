#include "ui/basis/Feldfolge.h"

#include <QKeyEvent>
#include <QPushButton>
#include <algorithm>
#include <iterator>
#include <utility>

namespace vesk {

namespace {

template <typename Stelle>
void ErstesErreichbare(Stelle von, Stelle bis, Qt::FocusReason grund) {
  const auto erreichbar = [](const QWidget* feld) { return feld->isEnabled() && feld->isVisible(); };
  const auto ziel = std::find_if(von, bis, erreichbar);
  if (ziel != bis) (*ziel)->setFocus(grund);
}

}  // namespace

Feldfolge::Feldfolge(std::vector<QWidget*> felder, QObject* eltern, Folgetasten tasten)
    : QObject(eltern), felder_(std::move(felder)), tasten_(tasten) {
  QWidget* vorher = nullptr;
  for (QWidget* feld : felder_) {
    feld->installEventFilter(this);
    if (vorher != nullptr) QWidget::setTabOrder(vorher, feld);
    vorher = feld;
  }
}

bool Feldfolge::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() != QEvent::KeyPress) return false;
  const auto* taste = static_cast<QKeyEvent*>(ereignis);
  if ((taste->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  switch (taste->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (tasten_ != Folgetasten::EnterAufAb) return false;
      if (taste->isAutoRepeat()) return true;
      if (auto* knopf = qobject_cast<QPushButton*>(objekt)) {
        knopf->click();
      } else {
        Wechseln(objekt, true);
      }
      return true;
    case Qt::Key_Down:
      if (tasten_ == Folgetasten::Auf) return false;
      Wechseln(objekt, true);
      return true;
    case Qt::Key_Up:
      Wechseln(objekt, false);
      return true;
    default:
      return false;
  }
}

void Feldfolge::Wechseln(const QObject* von, bool vor) const {
  const auto hier = std::find(felder_.begin(), felder_.end(), von);
  if (vor) {
    ErstesErreichbare(std::next(hier), felder_.end(), Qt::TabFocusReason);
  } else {
    ErstesErreichbare(std::make_reverse_iterator(hier), felder_.rend(), Qt::BacktabFocusReason);
  }
}

}  // namespace vesk
