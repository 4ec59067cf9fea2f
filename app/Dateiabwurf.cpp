#include "app/Dateiabwurf.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include "ui/basis/Ablauf.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

QStringList Dateien(const QDropEvent& ereignis) {
  QStringList dateien;
  const QList<QUrl> orte = ereignis.mimeData()->urls();
  for (const QUrl& ort : orte) {
    if (ort.isLocalFile()) dateien << ort.toLocalFile();
  }
  return dateien;
}

}  // namespace

bool Dateiabwurf::eventFilter(QObject* objekt, QEvent* ereignis) {
  auto* control = qobject_cast<QWidget*>(objekt);
  if (control == nullptr || !control->window()->objectName().startsWith(u"frm"_s)) return false;
  switch (ereignis->type()) {
    case QEvent::Show:
      // Otherwise no drag over the window is told at all.
      if (control->isWindow()) control->setAcceptDrops(true);
      return false;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      break;
    default:
      return false;
  }
  auto* wurf = static_cast<QDropEvent*>(ereignis);
  const QStringList dateien = Dateien(*wurf);
  if (dateien.isEmpty()) return false;
  wurf->setDropAction(Qt::CopyAction);
  wurf->accept();
  if (ereignis->type() != QEvent::Drop) return true;
  // The program that the files come from waits until the event is answered; a box must not hold it up.
  QMetaObject::invokeMethod(
      this,
      [this, dateien] {
        for (const QString& datei : dateien) ablauf_.DateiOeffnen(datei);
      },
      Qt::QueuedConnection);
  return true;
}

}  // namespace vesk
