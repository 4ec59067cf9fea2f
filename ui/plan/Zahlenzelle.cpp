#include "ui/plan/Zahlenzelle.h"

#include <QKeyEvent>
#include <utility>

using namespace Qt::StringLiterals;

namespace vesk {

Zahlenzelle::Zahlenzelle(Ablauf& ablauf, Deuter deuter, QObject* eltern)
    : QStyledItemDelegate(eltern), ablauf_(ablauf), deuter_(std::move(deuter)) {}

QWidget* Zahlenzelle::createEditor(QWidget* eltern, const QStyleOptionViewItem& /*option*/,
                                   const QModelIndex& zelle) const {
  const QString zugang = zelle.model()->headerData(zelle.column(), Qt::Horizontal).toString();
  auto* feld = new Planfeld(ablauf_, u"txtZelle"_s, u"%1, Punkt %2"_s.arg(zugang).arg(zelle.row() + 1),
                            deuter_, eltern);
  feld->setFrame(false);
  const int zeile = zelle.row();
  const int spalte = zelle.column();
  connect(feld, &Planfeld::eingegeben, this,
          [this, feld, zeile, spalte](const QString& wert) { Q_EMIT eingegeben(feld, zeile, spalte, wert); });
  connect(feld, &Planfeld::beanstandet, this, &Zahlenzelle::beanstandet);
  return feld;
}

void Zahlenzelle::setEditorData(QWidget* feld, const QModelIndex& zelle) const {
  static_cast<Planfeld*>(feld)->Zeigen(zelle.data().toString());
}

/// What is typed counts already.
void Zahlenzelle::setModelData(QWidget* /*feld*/, QAbstractItemModel* /*modell*/,
                               const QModelIndex& /*zelle*/) const {}

bool Zahlenzelle::eventFilter(QObject* feld, QEvent* ereignis) {
  if (ereignis->type() == QEvent::KeyPress) {
    const int taste = static_cast<QKeyEvent*>(ereignis)->key();
    const bool enter = taste == Qt::Key_Return || taste == Qt::Key_Enter;
    const auto* eingabe = static_cast<Planfeld*>(feld);
    if (enter && eingabe->Unklar()) return true;
    if (taste == Qt::Key_Escape && eingabe->isModified()) return false;  // the field takes it back first
  }
  return QStyledItemDelegate::eventFilter(feld, ereignis);
}

}  // namespace vesk
