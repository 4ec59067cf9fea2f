#include "Feldfolge.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <algorithm>
#include <iterator>
#include <utility>

#include "Tastenfilter.h"

namespace vesk {

Feldfolge::Feldfolge(Rechenwerte& werte, std::vector<QWidget*> felder, QObject* eltern)
    : QObject(eltern), werte_(werte), felder_(std::move(felder)) {
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
  const bool enter = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
  if (!enter && taste->key() != Qt::Key_Down && taste->key() != Qt::Key_Up) return false;
  if (enter && qobject_cast<QAbstractButton*>(objekt) != nullptr) return false;

  // The field never sees the key, so the filter hears of Enter here.
  if (enter) KeyPress('\r', werte_);
  const auto erreichbar = [](const QWidget* feld) { return feld->isEnabled() && feld->isVisible(); };
  const auto hier = std::find(felder_.begin(), felder_.end(), objekt);
  if (taste->key() == Qt::Key_Up) {
    const auto ziel = std::find_if(std::make_reverse_iterator(hier), felder_.rend(), erreichbar);
    if (ziel != felder_.rend()) (*ziel)->setFocus(Qt::OtherFocusReason);
  } else {
    const auto ziel = std::find_if(hier + 1, felder_.end(), erreichbar);
    if (ziel != felder_.end()) (*ziel)->setFocus(Qt::OtherFocusReason);
  }
  return true;
}

}  // namespace vesk
