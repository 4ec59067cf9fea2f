#pragma once
#include <QStyledItemDelegate>

#include "ui/plan/Planfeld.h"

namespace vesk {

/// A cell of numbers is edited in a field of the plan; Enter does not leave it with a text that means
/// nothing.
class Zahlenzelle : public QStyledItemDelegate {
  Q_OBJECT
 public:
  Zahlenzelle(Ablauf& ablauf, Deuter deuter, QObject* eltern);

  QWidget* createEditor(QWidget* eltern, const QStyleOptionViewItem& option,
                        const QModelIndex& zelle) const override;
  void setEditorData(QWidget* feld, const QModelIndex& zelle) const override;
  void setModelData(QWidget* feld, QAbstractItemModel* modell, const QModelIndex& zelle) const override;

 Q_SIGNALS:
  void eingegeben(const QWidget* feld, int zeile, int spalte, const QString& wert) const;
  void beanstandet(const QString& grund) const;

 protected:
  bool eventFilter(QObject* feld, QEvent* ereignis) override;

 private:
  Ablauf& ablauf_;
  Deuter deuter_;
};

}  // namespace vesk
