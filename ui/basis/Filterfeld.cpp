#include "ui/basis/Filterfeld.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>

#include "platform/Plattform.h"

namespace vesk {

Filterfeld::Filterfeld(Signalton& ton, QWidget* eltern) : QLineEdit(eltern), ton_(ton) {
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* jetzt) { FokusGewechselt(jetzt); });
}

Filterfeld::~Filterfeld() {
  // While the rest of it goes, the focus does.
  disconnect(qApp, nullptr, this, nullptr);
}

void Filterfeld::focusInEvent(QFocusEvent* ereignis) {
  QLineEdit::focusInEvent(ereignis);
  if (betreten_) return;
  betreten_ = true;
  Q_EMIT betreten();
}

void Filterfeld::FokusGewechselt(const QWidget* jetzt) {
  if (!betreten_ || jetzt == nullptr || jetzt == this) return;
  // Menus, boxes and dialogs take the focus only for a while.
  if (qobject_cast<const QMenuBar*>(jetzt) != nullptr || qobject_cast<const QMenu*>(jetzt) != nullptr) return;
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && modal != window()) return;
  betreten_ = false;
  Q_EMIT verlassen();
}

bool Filterfeld::FreieZugriffstaste(const QKeyEvent& ereignis) {
  const bool mitAlt = (ereignis.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0;
  const bool mitStrg = (ereignis.modifiers() & Qt::ControlModifier) != 0;  // AltGr on some keyboards
  return mitAlt && !mitStrg && ereignis.text().size() == 1 && ereignis.text().at(0).isPrint();
}

void Filterfeld::keyPressEvent(QKeyEvent* ereignis) {
  if (FreieZugriffstaste(*ereignis)) {
    ereignis->ignore();
    return;
  }
  if (ereignis->matches(QKeySequence::Paste)) {
    Einfuegen(QApplication::clipboard()->text());
    return;
  }
  QLineEdit::keyPressEvent(ereignis);
}

void Filterfeld::inputMethodEvent(QInputMethodEvent* ereignis) {
  if (isReadOnly()) return;
  if (ereignis->commitString().isEmpty()) {
    QLineEdit::inputMethodEvent(ereignis);
    return;
  }
  QInputMethodEvent gefiltert(ereignis->preeditString(), ereignis->attributes());
  gefiltert.setCommitString(Filtern(ereignis->commitString()), ereignis->replacementStart(),
                            ereignis->replacementLength());
  QLineEdit::inputMethodEvent(&gefiltert);
}

void Filterfeld::mouseReleaseEvent(QMouseEvent* ereignis) {
  if (ereignis->button() == Qt::MiddleButton && QApplication::clipboard()->supportsSelection()) {
    Einfuegen(QApplication::clipboard()->text(QClipboard::Selection));
    return;
  }
  QLineEdit::mouseReleaseEvent(ereignis);
}

void Filterfeld::contextMenuEvent(QContextMenuEvent* ereignis) {
  QMenu* menue = createStandardContextMenu();
  if (menue == nullptr) return;
  menue->setAttribute(Qt::WA_DeleteOnClose);
  // The toolkit gives its entries no names; only the text of its own catalogue tells which one pastes.
  const QString beschriftung = QLineEdit::tr("&Paste");
  const QList<QAction*> aktionen = menue->actions();
  for (QAction* aktion : aktionen) {
    if (!aktion->text().startsWith(beschriftung)) continue;
    disconnect(aktion, nullptr, this, nullptr);
    connect(aktion, &QAction::triggered, this, [this] { Einfuegen(QApplication::clipboard()->text()); });
  }
  menue->popup(ereignis->globalPos());
}

void Filterfeld::dropEvent(QDropEvent* ereignis) {
  if (isReadOnly() || !ereignis->mimeData()->hasText()) return;
  setCursorPosition(cursorPositionAt(ereignis->position().toPoint()));
  Einfuegen(ereignis->mimeData()->text());
  ereignis->setDropAction(Qt::CopyAction);
  ereignis->accept();
}

void Filterfeld::Einfuegen(const QString& text) {
  if (isReadOnly()) return;
  const QString rest = Filtern(text);
  if (!rest.isEmpty()) insert(rest);
}

void Filterfeld::Piep() {
  ton_.Piep();
}

}  // namespace vesk
