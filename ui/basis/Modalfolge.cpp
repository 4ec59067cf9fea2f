#include "ui/basis/Modalfolge.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace vesk {

void ZuModalemFenster(QWidget& fenster) {
  const QWidget* modal = QApplication::activeModalWidget();
  fenster.winId();  // the native window must exist to belong to another one
  QWindow* zu = modal != nullptr ? modal->windowHandle() : nullptr;
  if (fenster.windowHandle()->transientParent() == zu) return;
  fenster.hide();  // desktops learn whose it is when it appears
  fenster.windowHandle()->setTransientParent(zu);
}

}  // namespace vesk
