#include "ui/basis/Klicklabel.h"

#include <QMouseEvent>

namespace vesk {

void Klicklabel::mousePressEvent(QMouseEvent* ereignis) {
  ereignis->accept();
  Q_EMIT geklickt(ereignis->button());
}

}  // namespace vesk
