#pragma once
#include <QListWidget>

namespace vesk {

/// List whose entry the user chooses: by mouse, also the one already selected, or by keys. A selection by the
/// program announces nothing, and an entry once chosen cannot be deselected.
class Auswahlliste : public QListWidget {
  Q_OBJECT
 public:
  using QListWidget::QListWidget;

 Q_SIGNALS:
  void gewaehlt(int zeile);
  /// Enter on the list.
  void bestaetigt();

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override;
  void mouseReleaseEvent(QMouseEvent* ereignis) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* ereignis) const override;
};

/// List that only shows: its selection answers no mouse and no key.
class Anzeigeliste : public QListWidget {
  Q_OBJECT
 public:
  using QListWidget::QListWidget;

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* ereignis) const override;
};

}  // namespace vesk
