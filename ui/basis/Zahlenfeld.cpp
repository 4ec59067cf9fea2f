#include "ui/basis/Zahlenfeld.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRegularExpression>

namespace vesk {

namespace {

/// The number in a pasted text: blanks around it and a unit behind it ("14,2 MHz", "3 V/m") are left out. No
/// number, or more than one: empty.
QString EineZahl(const QString& text) {
  static const QRegularExpression muster(
      QStringLiteral(R"(^\s*(-?(?:\d+[.,]?\d*|[.,]\d+))\s*[^\s\d.,+-]*\s*$)"));
  return muster.match(text).captured(1).replace(u',', u'.');
}

}  // namespace

QString Zahlenfeld::OhneAuswahl() const {
  const int von = selectionStart();
  return von < 0 ? text() : text().remove(von, selectionLength());
}

int Zahlenfeld::Einfuegestelle() const {
  return hasSelectedText() ? selectionStart() : cursorPosition();
}

Filterantwort Zahlenfeld::Pruefen(int zeichen) {
  const QString rest = OhneAuswahl();
  const bool vorn = Einfuegestelle() == 0;
  marken_.MinusErlaubt = vorzeichen_ && vorn && !rest.contains(u'-');
  const Filterantwort antwort = KeyPress(zeichen, marken_);
  const bool zweiterPunkt = antwort.zeichen == '.' && rest.contains(u'.');
  const bool vorDemMinus = antwort.zeichen >= ' ' && vorn && rest.startsWith(u'-');
  return zweiterPunkt || vorDemMinus ? Filterantwort{0, true} : antwort;
}

void Zahlenfeld::keyPressEvent(QKeyEvent* ereignis) {
  const QString text = ereignis->text();
  const bool befehl =
      (ereignis->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const bool rueckschritt = ereignis->key() == Qt::Key_Backspace;
  const bool steuerung =
      text.isEmpty() || (text.at(0) < u' ' && text.at(0) != u'\r') || text.at(0) == u'\x7F';
  if (befehl || isReadOnly() || (steuerung && !rueckschritt)) {
    Filterfeld::keyPressEvent(ereignis);
    return;
  }
  const int getippt = text.size() == 1 ? text.at(0).unicode() : 0;
  const int code = rueckschritt ? 8 : getippt;
  const Filterantwort antwort = Pruefen(code);
  if (antwort.piep) Piep();
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
  // Composed characters never show while they are composed; only a number can come of them.
  const QString& text = ereignis->commitString();
  if (isReadOnly()) return;
  if (text.size() == 1) {
    QKeyEvent taste(QEvent::KeyPress, text.at(0).unicode(), Qt::NoModifier, text);
    keyPressEvent(&taste);
  } else if (!text.isEmpty()) {
    Einfuegen(text);
  }
}

void Zahlenfeld::mousePressEvent(QMouseEvent* ereignis) {
  Q_EMIT gedrueckt();
  Filterfeld::mousePressEvent(ereignis);
}

void Zahlenfeld::mouseDoubleClickEvent(QMouseEvent* ereignis) {
  Filterfeld::mouseDoubleClickEvent(ereignis);
  if (ereignis->button() == Qt::LeftButton) Q_EMIT doppelklick();
}

QString Zahlenfeld::Filtern(const QString& text) {
  QString zahl = EineZahl(text);
  const bool zweiterPunkt = zahl.contains(u'.') && OhneAuswahl().contains(u'.');
  // Its first character decides whether the number fits where it goes.
  if (zahl.isEmpty() || zweiterPunkt || Pruefen(zahl.at(0).unicode()).piep) {
    Piep();
    return {};
  }
  return zahl;
}

}  // namespace vesk
