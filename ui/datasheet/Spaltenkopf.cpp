#include "ui/datasheet/Spaltenkopf.h"

#include <QKeyEvent>
#include <QPainter>

#include "ui/basis/Anzeige.h"
#include "ui/basis/Farben.h"
#include "ui/basis/Zugang.h"

namespace vesk {

Spaltenkopf::Spaltenkopf(QWidget* eltern) : Klicklabel(eltern) {
  ZugangsrolleSetzen(*this, QAccessible::Button);
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
    case Qt::Key_Delete:
      Q_EMIT geklickt(Qt::RightButton);
      return;
    default:
      Klicklabel::keyPressEvent(ereignis);
  }
}

void Spaltenkopf::Zeichnen(const QString& zeichen) {
  if (zeichen == zeichen_) return;
  zeichen_ = zeichen;
  update();
}

void Spaltenkopf::paintEvent(QPaintEvent* ereignis) {
  Klicklabel::paintEvent(ereignis);
  QPainter(this).drawText(contentsRect().adjusted(0, 0, -fontMetrics().averageCharWidth() / 2, 0),
                          Qt::AlignRight | Qt::AlignVCenter, zeichen_);
}

}  // namespace vesk
