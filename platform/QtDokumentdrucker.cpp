#include "platform/QtDokumentdrucker.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace vesk {

bool QtDokumentdrucker::Drucken(const QTextDocument& dokument, const QString& titel) {
  QPrinter drucker(QPrinter::HighResolution);
  drucker.setDocName(titel);
  QPrintDialog dialog(&drucker, QApplication::activeWindow());
  if (dialog.exec() != QDialog::Accepted) return false;
  dokument.print(&drucker);
  return true;
}

}  // namespace vesk
