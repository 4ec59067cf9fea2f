#include "ui/datasheet/Zellenfeld.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QToolTip>

#include "ui/basis/Einpassen.h"

namespace vesk {

namespace {

struct Stufe {
  qreal groesse;
  int breite;  ///< percent of the usual width
};
constexpr Stufe Stufen[] = {{1, 100}, {1, 90}, {0.95, 82}, {0.9, 75}, {0.85, 70}, {0.8, 66}};

}  // namespace

Zellenfeld::Zellenfeld(Signalton& ton, QWidget* eltern) : Textfeld(ton, eltern) {
  connect(this, &QLineEdit::textChanged, this, [this] { Einpassen(parentWidget()->font()); });
}

bool Zellenfeld::Passt(const QFont& schrift) const {
  constexpr int Innenrand = 2;  // which a line edit leaves on both sides
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect flaeche = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  return QFontMetrics(schrift).horizontalAdvance(text()) <= flaeche.width() - 2 * Innenrand - 1;
}

void Zellenfeld::Einpassen(const QFont& schrift) {
  QFont neu = schrift;
  for (const Stufe& stufe : Stufen) {
    neu = Vergroessert(schrift, stufe.groesse);
    neu.setItalic(font().italic());
    neu.setStretch(stufe.breite);
    if (Passt(neu)) break;
  }
  if (neu != font()) setFont(neu);
}

/// The longest text in figures, written as narrow as it may be.
QSize Zellenfeld::sizeHint() const {
  constexpr qreal Schmal = 0.56;
  const QFontMetrics mass(parentWidget()->font());
  const qreal breite = Schmal * maxLength() * mass.horizontalAdvance(QLatin1Char('0'));
  return {qCeil(breite) + mass.averageCharWidth() * 2, Textfeld::sizeHint().height()};
}

bool Zellenfeld::event(QEvent* ereignis) {
  if (ereignis->type() == QEvent::ToolTip && !Passt(font())) {
    const QString ganz = Qt::convertFromPlainText(text()) + toolTip().toHtmlEscaped();
    QToolTip::showText(static_cast<QHelpEvent*>(ereignis)->globalPos(), ganz, this);
    return true;
  }
  return Textfeld::event(ereignis);
}

void Zellenfeld::resizeEvent(QResizeEvent* ereignis) {
  Textfeld::resizeEvent(ereignis);
  Einpassen(parentWidget()->font());
}

void Zellenfeld::paintEvent(QPaintEvent* ereignis) {
  Textfeld::paintEvent(ereignis);
  const bool dunkel = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
  if (hasFocus() || !dunkel) return;
  constexpr QColor Schatten(0, 0, 0, 70);
  QPainter(this).fillRect(rect(), Schatten);
}

void Zellenfeld::mouseReleaseEvent(QMouseEvent* ereignis) {
  Textfeld::mouseReleaseEvent(ereignis);
  if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->position().toPoint())) {
    Q_EMIT geklickt();
  }
}

void Zellenfeld::focusOutEvent(QFocusEvent* ereignis) {
  Textfeld::focusOutEvent(ereignis);
  // A long text shows its beginning again; a menu, a box or another window does not move the cursor.
  const Qt::FocusReason grund = ereignis->reason();
  if (grund == Qt::TabFocusReason || grund == Qt::BacktabFocusReason || grund == Qt::MouseFocusReason ||
      grund == Qt::OtherFocusReason) {
    setCursorPosition(0);
  }
}

}  // namespace vesk
