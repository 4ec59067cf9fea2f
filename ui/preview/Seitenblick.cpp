#include "ui/preview/Seitenblick.h"

#include <QLabel>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>

#include "ui/basis/Zugang.h"

using namespace Qt::StringLiterals;

namespace vesk {

QImage Seitenbild(const Mappe& mappe, std::size_t seite, double jeMillimeter, double pixelJePunkt) {
  const QSizeF groesse = Blattgroesse(Seitenformat(mappe, seite)) * jeMillimeter;
  QImage bild((groesse * pixelJePunkt).toSize(), QImage::Format_RGB32);
  bild.setDevicePixelRatio(pixelJePunkt);
  bild.fill(Qt::white);
  QPainter maler(&bild);
  maler.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  SeiteMalen(mappe, seite, maler, jeMillimeter);
  maler.setPen(Qt::gray);
  maler.drawRect(QRectF({0.5, 0.5}, groesse - QSizeF(1, 1)));
  return bild;
}

Seitenblick::Seitenblick(QWidget* eltern) : QScrollArea(eltern), imgSeite(new QLabel(this)) {
  setObjectName(u"rolSeite"_s);
  ZugangsrolleSetzen(*this, QAccessible::Document);
  imgSeite->setObjectName(u"imgSeite"_s);
  imgSeite->setAlignment(Qt::AlignCenter);
  imgSeite->setWordWrap(true);
  setAlignment(Qt::AlignCenter);
  setBackgroundRole(QPalette::Dark);
  setWidget(imgSeite);
  setFocusPolicy(Qt::StrongFocus);
}

void Seitenblick::Zeigen(const Mappe& mappe, std::size_t seite) {
  const bool andere = mappe_ != &mappe || seite_ != seite;
  mappe_ = &mappe;
  seite_ = seite;
  setAccessibleName(u"Seite %1 von %2"_s.arg(seite + 1).arg(Seitenzahl(mappe)));
  Malen();
  if (andere) ensureVisible(0, 0);
}

void Seitenblick::Leeren(const QString& grund) {
  mappe_ = nullptr;
  imgSeite->setPixmap({});
  imgSeite->setText(grund);
  setAccessibleName(grund);
  imgSeite->resize(viewport()->size());
}

void Seitenblick::Vergroesserung(double wert) {
  vergroesserung_ = wert;
  Malen();
}

double Seitenblick::Jetzt() const {
  if (vergroesserung_ > 0 || mappe_ == nullptr) return vergroesserung_;
  const QSizeF blatt = Blattgroesse(Seitenformat(*mappe_, seite_)) * (logicalDpiX() / 25.4);
  constexpr int Rand = 12;
  const QSizeF platz = QSizeF(maximumViewportSize()) - QSizeF(Rand, Rand);
  const double breite = (platz.width() - verticalScrollBar()->sizeHint().width()) / blatt.width();
  const double ganz = std::min(platz.width() / blatt.width(), platz.height() / blatt.height());
  constexpr double KleinstesGanzes = 0.1;
  return std::clamp(vergroesserung_ == Seitenbreite ? breite : ganz, KleinstesGanzes, Groesste);
}

void Seitenblick::resizeEvent(QResizeEvent* ereignis) {
  QScrollArea::resizeEvent(ereignis);
  if (mappe_ == nullptr) imgSeite->resize(viewport()->size());
  if (vergroesserung_ <= 0) Malen();
}

void Seitenblick::wheelEvent(QWheelEvent* ereignis) {
  const int drehung = ereignis->angleDelta().y();
  QScrollBar& rolle = *verticalScrollBar();
  const bool amEnde = rolle.value() == (drehung < 0 ? rolle.maximum() : rolle.minimum());
  if (drehung == 0 || !amEnde) {
    rad_ = 0;
    return QScrollArea::wheelEvent(ereignis);
  }
  ereignis->accept();
  rad_ += drehung;
  constexpr int Raste = 120;
  if (std::abs(rad_) < Raste) return;
  rad_ = 0;
  const std::size_t vorher = seite_;
  Q_EMIT geblaettert(drehung < 0 ? 1 : -1);
  if (seite_ < vorher) rolle.setValue(rolle.maximum());
}

void Seitenblick::Malen() {
  if (mappe_ == nullptr) return;
  const QImage bild = Seitenbild(*mappe_, seite_, Jetzt() * logicalDpiX() / 25.4, devicePixelRatioF());
  imgSeite->setPixmap(QPixmap::fromImage(bild));
  imgSeite->adjustSize();
}

}  // namespace vesk
