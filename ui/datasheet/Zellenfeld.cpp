#include "ui/datasheet/Zellenfeld.h"

#include <QFocusEvent>
#include <QMouseEvent>

namespace vesk {

void Zellenfeld::mouseReleaseEvent(QMouseEvent* ereignis) {
  Textfeld::mouseReleaseEvent(ereignis);
  if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->position().toPoint())) {
    Q_EMIT geklickt();
  }
}

void Zellenfeld::focusOutEvent(QFocusEvent* ereignis) {
  Textfeld::focusOutEvent(ereignis);
  // A long text shows its beginning again; a menu, a box or another window does not move the cursor.
  const Qt::FocusReason grund = ereignis->reason();
  if (grund == Qt::TabFocusReason || grund == Qt::BacktabFocusReason || grund == Qt::MouseFocusReason ||
      grund == Qt::OtherFocusReason) {
    setCursorPosition(0);
  }
}

}  // namespace vesk
