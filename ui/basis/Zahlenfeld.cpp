#include "Zahlenfeld.h"

#include <QApplication>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>

#include "Plattform.h"
#include "Rechenwerte.h"
#include "Tastenfilter.h"

namespace vesk {

Zahlenfeld::Zahlenfeld(Rechenwerte& werte, Signalton& ton, QWidget* eltern)
    : Filterfeld(eltern), werte_(werte), ton_(ton) {
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* jetzt) { FokusGewechselt(jetzt); });
}

void Zahlenfeld::keyPressEvent(QKeyEvent* ereignis) {
  const QString text = ereignis->text();
  const bool befehl =
      (ereignis->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const bool getippt = text.size() == 1 && (text.at(0).isPrint() || text.at(0) == QLatin1Char('\r') ||
                                            ereignis->key() == Qt::Key_Backspace);
  if (befehl || !getippt || isReadOnly()) {
    Filterfeld::keyPressEvent(ereignis);
    return;
  }
  const int code = ereignis->key() == Qt::Key_Backspace ? 8 : text.at(0).unicode();
  const Filterantwort antwort = KeyPress(code, werte_);
  if (antwort.piep) ton_.Piep();
  Q_EMIT gefiltert(antwort.zeichen);
  if (antwort.zeichen == 0) return;
  if (antwort.zeichen == code) {
    Filterfeld::keyPressEvent(ereignis);
    return;
  }
  QKeyEvent ersatz(ereignis->type(), antwort.zeichen, ereignis->modifiers(), QString(QChar(antwort.zeichen)));
  Filterfeld::keyPressEvent(&ersatz);
}

void Zahlenfeld::inputMethodEvent(QInputMethodEvent* ereignis) {
  // Composed characters never show while they are composed; only digits can come of them.
  if (!ereignis->commitString().isEmpty()) Einfuegen(ereignis->commitString());
}

void Zahlenfeld::mousePressEvent(QMouseEvent* ereignis) {
  Q_EMIT gedrueckt();
  Filterfeld::mousePressEvent(ereignis);
}

void Zahlenfeld::mouseDoubleClickEvent(QMouseEvent* ereignis) {
  Filterfeld::mouseDoubleClickEvent(ereignis);
  if (ereignis->button() == Qt::LeftButton) Q_EMIT doppelklick();
}

void Zahlenfeld::focusInEvent(QFocusEvent* ereignis) {
  Filterfeld::focusInEvent(ereignis);
  if (betreten_) return;
  betreten_ = true;
  Q_EMIT betreten();
}

void Zahlenfeld::FokusGewechselt(const QWidget* jetzt) {
  if (!betreten_ || jetzt == nullptr || jetzt == this) return;
  // Menus, boxes and dialogs take the focus only for a while.
  if (qobject_cast<const QMenuBar*>(jetzt) != nullptr || qobject_cast<const QMenu*>(jetzt) != nullptr) return;
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && modal != window()) return;
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

}  // namespace vesk
