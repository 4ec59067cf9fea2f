#include "ui/basis/Kurzlabel.h"

#include <QPainter>
#include <QStyle>

namespace vesk {

Kurzlabel::Kurzlabel(QWidget* eltern) : QLabel(eltern) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void Kurzlabel::Zeigen(const QString& text, bool tooltip) {
  if (text != this->text()) setText(text);
  // Names of files and antennas are no markup.
  setToolTip(tooltip ? Qt::convertFromPlainText(text) : QString());
}

QSize Kurzlabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 8, QLabel::minimumSizeHint().height()};
}

void Kurzlabel::paintEvent(QPaintEvent*) {
  QPainter maler(this);
  style()->drawItemText(&maler, contentsRect(), int(Qt::AlignVCenter | Qt::AlignLeft), palette(), isEnabled(),
                        fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()),
                        foregroundRole());
}

}  // namespace vesk
