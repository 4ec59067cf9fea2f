#include "ui/basis/Auswahlliste.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace vesk {

void Auswahlliste::keyPressEvent(QKeyEvent* ereignis) {
  const bool enter = ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter;
  const int vorher = currentRow();
  if (!enter) QListWidget::keyPressEvent(ereignis);
  const bool nochmals = enter || ereignis->key() == Qt::Key_Space;
  if (currentRow() >= 0 && (nochmals || currentRow() != vorher)) Q_EMIT gewaehlt(currentRow());
  if (enter) Q_EMIT bestaetigt();
}

void Auswahlliste::mouseReleaseEvent(QMouseEvent* ereignis) {
  QListWidget::mouseReleaseEvent(ereignis);
  const QModelIndex unterMaus = indexAt(ereignis->position().toPoint());
  if (ereignis->button() == Qt::LeftButton && unterMaus.isValid() && currentRow() >= 0) {
    Q_EMIT gewaehlt(currentRow());
  }
}

QItemSelectionModel::SelectionFlags Auswahlliste::selectionCommand(const QModelIndex& index,
                                                                   const QEvent* /*ereignis*/) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

QItemSelectionModel::SelectionFlags Anzeigeliste::selectionCommand(const QModelIndex& /*index*/,
                                                                   const QEvent* /*ereignis*/) const {
  return QItemSelectionModel::NoUpdate;
}

}  // namespace vesk
