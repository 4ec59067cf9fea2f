#include "ui/basis/Programmbild.h"

#include <QPainter>

namespace vesk {

QPixmap Programmbild(int groesse, qreal skalierung) {
  QPixmap bild(QSize(groesse, groesse) * skalierung);
  bild.setDevicePixelRatio(skalierung);
  bild.fill(Qt::transparent);

  QPainter maler(&bild);
  maler.setRenderHint(QPainter::Antialiasing);
  maler.scale(groesse / 64.0, groesse / 64.0);
  maler.setPen(Qt::NoPen);
  maler.setBrush(QColor(0x1F, 0x4E, 0x79));
  maler.drawRoundedRect(QRectF(0, 0, 64, 64), 12, 12);

  maler.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  maler.setBrush(Qt::NoBrush);
  maler.drawPolyline(QPolygonF({QPointF(22, 56), QPointF(32, 24), QPointF(42, 56)}));
  maler.drawLine(QPointF(26, 44), QPointF(38, 44));
  maler.setPen(QPen(QColor(0xFF, 0xC8, 0x3D), 4, Qt::SolidLine, Qt::RoundCap));
  for (const double radius : {12.0, 21.0}) {
    const QRectF kreis(32 - radius, 24 - radius, 2 * radius, 2 * radius);
    maler.drawArc(kreis, -40 * 16, 80 * 16);
    maler.drawArc(kreis, 140 * 16, 80 * 16);
  }
  return bild;
}

}  // namespace vesk
