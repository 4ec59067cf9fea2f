#include "ui/plan/Plangriffe.h"

#include <QPainter>
#include <cmath>

namespace vesk {

namespace {

constexpr double Griffgroesse = 1.6;  // mm

void GriffMalen(QPainter& maler, const Planabbildung& abbildung, Punkt ecke, bool voll,
                const Grifffarben& farben) {
  const double halb = Griffgroesse * abbildung.jeMillimeter / 2;
  maler.setPen(QPen(farben.strich, 1.5));
  maler.setBrush(voll ? farben.strich : farben.grund);
  const QPointF mitte = abbildung.Nach(ecke);
  maler.drawRect(QRectF(mitte - QPointF(halb, halb), mitte + QPointF(halb, halb)));
}

/// In the middle of an edge, on a ground of its own.
void MassMalen(QPainter& maler, const Planabbildung& abbildung, const Lageplan& plan, Punkt von, Punkt bis,
               const Grifffarben& farben) {
  if (von == bis) return;
  const QString text = QString::fromStdString(Masstext(plan, von, bis));
  QRectF feld = maler.boundingRect(QRectF(), Qt::AlignCenter, text);
  feld.adjust(-3, -1, 3, 1);
  feld.moveCenter((abbildung.Nach(von) + abbildung.Nach(bis)) / 2);
  maler.fillRect(feld, farben.grund);
  maler.setPen(farben.strich);
  maler.drawText(feld, Qt::AlignCenter, text);
}

void KreuzMalen(QPainter& maler, QPointF mitte, double halb, const QColor& farbe) {
  maler.setPen(QPen(farbe, 1));
  maler.drawLine(mitte - QPointF(halb, 0), mitte + QPointF(halb, 0));
  maler.drawLine(mitte - QPointF(0, halb), mitte + QPointF(0, halb));
}

}  // namespace

void BezugMalen(QPainter& maler, const Planabbildung& abbildung, Punkt bezug, const QColor& farbe) {
  const QPointF mitte = abbildung.Nach(bezug);
  maler.setBrush(Qt::NoBrush);
  KreuzMalen(maler, mitte, 2 * abbildung.jeMillimeter, farbe);
  maler.drawEllipse(mitte, abbildung.jeMillimeter, abbildung.jeMillimeter);
}

void WahlMalen(QPainter& maler, const Planabbildung& abbildung, const Lageplan& plan, const Planstelle& wahl,
               bool bewegt, const Grifffarben& farben) {
  const Planobjekt& objekt = plan.objekte.at(wahl.objekt);
  const Umriss& ecken = objekt.punkte;
  if (ecken.empty()) return;
  QPolygonF rand;
  for (const Punkt ecke : ecken) rand << abbildung.Nach(ecke);
  maler.setBrush(Qt::NoBrush);
  maler.setPen(QPen(farben.strich, 2, Qt::DashLine));
  if (Artzeile(objekt.art).umriss) {
    maler.drawPolygon(rand);
  } else {
    const double umkreis = 2.5 * abbildung.jeMillimeter;
    return maler.drawEllipse(rand.front(), umkreis, umkreis);
  }
  for (std::size_t i = 0; i < ecken.size(); ++i) {
    GriffMalen(maler, abbildung, ecken[i], wahl.ecke == i, farben);
  }
  if (!bewegt || !wahl.ecke || ecken.size() < 2) return;
  const std::size_t ecke = *wahl.ecke;
  MassMalen(maler, abbildung, plan, ecken[(ecke + ecken.size() - 1) % ecken.size()], ecken[ecke], farben);
  MassMalen(maler, abbildung, plan, ecken[ecke], ecken[(ecke + 1) % ecken.size()], farben);
}

void StrichMalen(QPainter& maler, const Planabbildung& abbildung, const Lageplan& plan, const Umriss& ecken,
                 Punkt zeiger, const Grifffarben& farben) {
  QPolygonF linie;
  for (const Punkt ecke : ecken) linie << abbildung.Nach(ecke);
  maler.setBrush(Qt::NoBrush);
  maler.setPen(QPen(farben.strich, 2));
  maler.drawPolyline(linie);
  for (const Punkt ecke : ecken) GriffMalen(maler, abbildung, ecke, false, farben);
  const QPointF ende = abbildung.Nach(zeiger);
  if (!ecken.empty()) {
    maler.setPen(QPen(farben.strich, 2, Qt::DashLine));
    maler.drawLine(linie.back(), ende);
    MassMalen(maler, abbildung, plan, ecken.back(), zeiger, farben);
  }
  KreuzMalen(maler, ende, 2 * abbildung.jeMillimeter, farben.strich);
}

}  // namespace vesk
