#include "ui/plan/Planriss.h"

#include <QPainter>

#include "ui/basis/Zugang.h"
#include "ui/plan/Planansicht.h"
#include "ui/plan/Planfarben.h"

using namespace Qt::StringLiterals;

namespace vesk {

Planriss::Planriss(QWidget* eltern) : QWidget(eltern) {
  setObjectName(u"picSeite"_s);
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  ZugangsrolleSetzen(*this, QAccessible::Graphic);
  BlickAus(blick_);
}

QSize Planriss::sizeHint() const {
  return {60 * fontMetrics().averageCharWidth(), 9 * fontMetrics().height()};
}

QSize Planriss::minimumSizeHint() const {
  return {20 * fontMetrics().averageCharWidth(), 4 * fontMetrics().height()};
}

void Planriss::Neumalen() {
  gemalt_ = {};
  update();
}

void Planriss::Zeigen(const Station& s) {
  station_ = s;
  Neumalen();
}

void Planriss::SchichtenZeigen(const Planschichten& schichten) {
  schichten_ = schichten;
  Neumalen();
}

void Planriss::BlickAus(int azimut) {
  blick_ = azimut;
  setAccessibleName(
      u"Seitenansicht aus %1 Grad (%2)"_s.arg(azimut).arg(QString::fromLatin1(Himmelsrichtung(azimut))));
  Neumalen();
}

void Planriss::resizeEvent(QResizeEvent* ereignis) {
  QWidget::resizeEvent(ereignis);
  Neumalen();
}

void Planriss::changeEvent(QEvent* ereignis) {
  QWidget::changeEvent(ereignis);
  Neumalen();
}

void Planriss::paintEvent(QPaintEvent* /*ereignis*/) {
  QPainter maler(this);
  if (gemalt_.isNull()) {
    constexpr double Links = -90;  // who looks south has west on the right
    constexpr double Rand = 0.06;
    constexpr double Unten = 8;  // mm below the ground, for the names of directions and areas
    const Planfarben farben = PlanfarbenAus(palette());
    gemalt_ = QPixmap(size() * devicePixelRatioF());
    gemalt_.setDevicePixelRatio(devicePixelRatioF());
    gemalt_.fill(farben.grund);
    QPainter hinein(&gemalt_);
    hinein.setRenderHint(QPainter::Antialiasing);
    hinein.setFont(font());
    const double nachRechts = Vollkreis(blick_ + Links);
    QRectF rahmen = Seitenausdehnung(station_, nachRechts);
    const double rand = Rand * std::max(rahmen.width(), rahmen.height());
    rahmen.adjust(-rand, 0, rand, rand);
    const double mm = Bildschirmmass(*this);
    const QSizeF platz(width(), std::max(height() - Unten * mm, height() / 2.0));
    SeitenansichtMalen(hinein, station_, nachRechts, Eingepasst(rahmen, platz, mm), schichten_, farben);
  }
  maler.drawPixmap(0, 0, gemalt_);
  maler.setPen(palette().color(QPalette::Mid));
  maler.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace vesk
