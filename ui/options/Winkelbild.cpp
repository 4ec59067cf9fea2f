#include "ui/options/Winkelbild.h"

#include <QPainter>

#include "ui/charts/Kurvenblick.h"

namespace vesk {

Winkelbild::Winkelbild(QWidget* eltern) : QWidget(eltern) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Winkelbild::Zeigen(const Polardaten& daempfung, const Polardaten& abstaende) {
  daempfung_ = daempfung;
  abstaende_ = abstaende;
  update();
}

QSize Winkelbild::sizeHint() const {
  return {24 * fontMetrics().height(), 27 * fontMetrics().height()};
}

QSize Winkelbild::minimumSizeHint() const {
  return {18 * fontMetrics().height(), 22 * fontMetrics().height()};
}

void Winkelbild::paintEvent(QPaintEvent* /*ereignis*/) {
  QPainter maler(this);
  maler.setFont(font());
  const QRectF oben(0, 0, width(), height() / 2.0);
  const Bildfarben farben = FarbenAus(palette());
  polardiagramm::paint(maler, oben, daempfung_, farben);
  polardiagramm::paint(maler, oben.translated(0, oben.height()), abstaende_, farben);
}

}  // namespace vesk
