#include "Zelle.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "Farben.h"

namespace vesk {

void Zelle::Faerben(const QColor& grund, const QColor& schrift) {
  if (grund == grund_ && schrift == schrift_) return;
  grund_ = grund;
  schrift_ = schrift;
  QPalette palette = this->palette();
  palette.setColor(QPalette::Base, grund);
  palette.setColor(QPalette::Text, schrift);
  setPalette(palette);
}

void Zelle::Zeigen(const QString& text) {
  if (text == this->text()) return;
  setText(text);
  setCursorPosition(0);
}

void Zelle::keyPressEvent(QKeyEvent* ereignis) {
  switch (ereignis->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
      Q_EMIT zeilenwechsel(1);
      return;
    case Qt::Key_Up:
      Q_EMIT zeilenwechsel(-1);
      return;
    default:
      Textfeld::keyPressEvent(ereignis);
  }
}

void Zelle::mouseReleaseEvent(QMouseEvent* ereignis) {
  Textfeld::mouseReleaseEvent(ereignis);
  if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->position().toPoint())) {
    Q_EMIT geklickt();
  }
}

void Zelle::focusOutEvent(QFocusEvent* ereignis) {
  Textfeld::focusOutEvent(ereignis);
  // A long text shows its beginning again; a menu, a box or another window does not move the cursor.
  const Qt::FocusReason grund = ereignis->reason();
  if (grund == Qt::TabFocusReason || grund == Qt::BacktabFocusReason || grund == Qt::MouseFocusReason ||
      grund == Qt::OtherFocusReason) {
    setCursorPosition(0);
  }
}

}  // namespace vesk
