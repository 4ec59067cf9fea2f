#include "ui/datasheet/Spaltenkopf.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "ui/basis/Anzeige.h"
#include "ui/basis/Farben.h"

namespace vesk {

Spaltenkopf::Spaltenkopf(QWidget* eltern) : Klicklabel(eltern) {
  setAlignment(Qt::AlignCenter);
  setFocusPolicy(Qt::TabFocus);
  // The press of the right button asks a question; no menu may open above it.
  setContextMenuPolicy(Qt::PreventContextMenu);
  setMargin(2);
}

void Spaltenkopf::Markieren(bool aktuell) {
  if (aktuell == (frameShape() == QFrame::Box)) return;
  setFrameStyle(aktuell ? int(QFrame::Box) | int(QFrame::Plain) : int(QFrame::NoFrame));
  setLineWidth(1);
  setMargin(aktuell ? 1 : 2);  // the border takes the place of the margin: nothing moves
  if (aktuell) {
    Faerben(*this, farben::Spaltenmarke);
  } else {
    ThemaFaerben(*this);
  }
}

void Spaltenkopf::keyPressEvent(QKeyEvent* ereignis) {
  switch (ereignis->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Q_EMIT geklickt(Qt::LeftButton);
      return;
    case Qt::Key_Delete:
      Q_EMIT geklickt(Qt::RightButton);
      return;
    default:
      Klicklabel::keyPressEvent(ereignis);
  }
}

void Spaltenkopf::focusInEvent(QFocusEvent* ereignis) {
  Klicklabel::focusInEvent(ereignis);
  update();
}

void Spaltenkopf::focusOutEvent(QFocusEvent* ereignis) {
  Klicklabel::focusOutEvent(ereignis);
  update();
}

void Spaltenkopf::paintEvent(QPaintEvent* ereignis) {
  Klicklabel::paintEvent(ereignis);
  if (!hasFocus()) return;
  QPainter maler(this);
  QStyleOptionFocusRect rahmen;
  rahmen.initFrom(this);
  rahmen.state |= QStyle::State_KeyboardFocusChange;
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rahmen, &maler, this);
}

}  // namespace vesk
