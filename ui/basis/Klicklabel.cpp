#include "ui/basis/Klicklabel.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace vesk {

void Klicklabel::keyPressEvent(QKeyEvent* ereignis) {
  switch (ereignis->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!ereignis->isAutoRepeat()) Q_EMIT geklickt(Qt::LeftButton);
      return;
    default:
      QLabel::keyPressEvent(ereignis);
  }
}

void Klicklabel::mousePressEvent(QMouseEvent* ereignis) {
  ereignis->accept();
  Q_EMIT geklickt(ereignis->button());
}

}  // namespace vesk
