#include <QGuiApplication>

#include "platform/Endesignal.h"

namespace vesk {

Endesignal::Endesignal(QObject* eltern) : QObject(eltern) {}

void Endesignal::Lauschen() {
  qGuiApp->installEventFilter(this);
  // Windows waits only until this returns.
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Endesignal::verlangt, Qt::DirectConnection);
}

Endesignal::~Endesignal() = default;

}  // namespace vesk
