#include "Zahlenfeld.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

#include "Plattform.h"
#include "Rechenwerte.h"
#include "Tastenfilter.h"

namespace vesk {

namespace {

/// Whether the focus only rests elsewhere and will come back by itself.
bool NurUnterbrochen(const QFocusEvent& ereignis) {
  switch (ereignis.reason()) {
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
      return true;
    case Qt::ActiveWindowFocusReason:
      return QApplication::activeWindow() == nullptr || QApplication::activeModalWidget() != nullptr;
    default:
      return false;
  }
}

}  // namespace

Zahlenfeld::Zahlenfeld(Rechenwerte& werte, Signalton& ton, QWidget* eltern)
    : QLineEdit(eltern), werte_(werte), ton_(ton) {}

void Zahlenfeld::keyPressEvent(QKeyEvent* ereignis) {
  if (ereignis->matches(QKeySequence::Paste)) {
    Einfuegen(QApplication::clipboard()->text());
    return;
  }
  const QString text = ereignis->text();
  const bool befehl =
      (ereignis->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const bool getippt = text.size() == 1 && (text.at(0).isPrint() || text.at(0) == QLatin1Char('\r') ||
                                            ereignis->key() == Qt::Key_Backspace);
  if (befehl || !getippt || isReadOnly()) {
    QLineEdit::keyPressEvent(ereignis);
    return;
  }
  const int code = ereignis->key() == Qt::Key_Backspace ? 8 : text.at(0).unicode();
  const Filterantwort antwort = KeyPress(code, werte_);
  if (antwort.piep) ton_.Piep();
  Q_EMIT gefiltert(antwort.zeichen);
  if (antwort.zeichen == 0) return;
  if (antwort.zeichen == code) {
    QLineEdit::keyPressEvent(ereignis);
    return;
  }
  QKeyEvent ersatz(ereignis->type(), antwort.zeichen, ereignis->modifiers(), QString(QChar(antwort.zeichen)));
  QLineEdit::keyPressEvent(&ersatz);
}

void Zahlenfeld::inputMethodEvent(QInputMethodEvent* ereignis) {
  // Composed characters never show while they are composed; only digits can come of them.
  if (!ereignis->commitString().isEmpty()) Einfuegen(ereignis->commitString());
}

void Zahlenfeld::mousePressEvent(QMouseEvent* ereignis) {
  Q_EMIT gedrueckt();
  QLineEdit::mousePressEvent(ereignis);
}

void Zahlenfeld::mouseReleaseEvent(QMouseEvent* ereignis) {
  if (ereignis->button() == Qt::MiddleButton && QApplication::clipboard()->supportsSelection()) {
    Einfuegen(QApplication::clipboard()->text(QClipboard::Selection));
    return;
  }
  QLineEdit::mouseReleaseEvent(ereignis);
}

void Zahlenfeld::mouseDoubleClickEvent(QMouseEvent* ereignis) {
  QLineEdit::mouseDoubleClickEvent(ereignis);
  if (ereignis->button() == Qt::LeftButton) Q_EMIT doppelklick();
}

void Zahlenfeld::contextMenuEvent(QContextMenuEvent* ereignis) {
  QMenu* menue = createStandardContextMenu();
  if (menue == nullptr) return;
  menue->setAttribute(Qt::WA_DeleteOnClose);
  if (auto* einfuegen = menue->findChild<QAction*>(QStringLiteral("edit-paste"))) {
    einfuegen->disconnect(SIGNAL(triggered(bool)));
    connect(einfuegen, &QAction::triggered, this, [this] { Einfuegen(QApplication::clipboard()->text()); });
  }
  menue->popup(ereignis->globalPos());
}

void Zahlenfeld::dropEvent(QDropEvent* ereignis) {
  if (isReadOnly() || !ereignis->mimeData()->hasText()) return;
  setCursorPosition(cursorPositionAt(ereignis->position().toPoint()));
  Einfuegen(ereignis->mimeData()->text());
  ereignis->setDropAction(Qt::CopyAction);
  ereignis->accept();
}

void Zahlenfeld::focusInEvent(QFocusEvent* ereignis) {
  QLineEdit::focusInEvent(ereignis);
  if (betreten_) return;
  betreten_ = true;
  Q_EMIT betreten();
}

void Zahlenfeld::focusOutEvent(QFocusEvent* ereignis) {
  QLineEdit::focusOutEvent(ereignis);
  if (!betreten_ || NurUnterbrochen(*ereignis)) return;
  betreten_ = false;
  Q_EMIT verlassen();
}

QString Zahlenfeld::Filtern(const QString& text) {
  // A minus sign may only lead what is pasted, and only where the field may be negative.
  QString rest;
  bool piep = false;
  for (const QChar zeichen : text.trimmed()) {
    const bool minusDanach = zeichen == QLatin1Char('-') && !rest.isEmpty();
    const Filterantwort antwort = minusDanach ? Filterantwort{0, true} : KeyPress(zeichen.unicode(), werte_);
    piep = piep || antwort.piep;
    if (antwort.zeichen >= ' ') rest += QChar(antwort.zeichen);
  }
  if (piep) ton_.Piep();
  return rest;
}

void Zahlenfeld::Einfuegen(const QString& text) {
  if (isReadOnly()) return;
  const QString rest = Filtern(text);
  if (!rest.isEmpty()) insert(rest);
}

}  // namespace vesk
