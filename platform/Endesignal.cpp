#include "platform/Endesignal.h"

#include <QEvent>

namespace vesk {

bool Endesignal::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() != QEvent::Quit) return QObject::eventFilter(objekt, ereignis);
  // The toolkit would close one window after the other, and end only when none of them objects.
  Q_EMIT verlangt();
  return true;
}

}  // namespace vesk
