#include "print/Planteile.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <optional>

#include "engine/Zahlen.h"
#include "print/Blatt.h"

namespace vesk {

namespace {

QRectF Zeichenflaeche(const QPainter& maler) {
  if (maler.hasClipping()) return maler.clipBoundingRect();
  return maler.combinedTransform().inverted().mapRect(QRectF(maler.viewport()));
}

/// What of a line lies in the area.
std::optional<QLineF> Beschnitten(const QLineF& linie, const QRectF& flaeche) {
  double von = 0;
  double bis = 1;
  const auto grenze = [&](double richtung, double platz) {
    if (richtung == 0) return platz >= 0;
    const double t = platz / richtung;
    (richtung < 0 ? von : bis) = richtung < 0 ? std::max(von, t) : std::min(bis, t);
    return von <= bis;
  };
  const bool darin =
      grenze(-linie.dx(), linie.x1() - flaeche.left()) && grenze(linie.dx(), flaeche.right() - linie.x1()) &&
      grenze(-linie.dy(), linie.y1() - flaeche.top()) && grenze(linie.dy(), flaeche.bottom() - linie.y1());
  if (!darin) return std::nullopt;
  return QLineF(von == 0 ? linie.p1() : linie.pointAt(von), bis == 1 ? linie.p2() : linie.pointAt(bis));
}

}  // namespace

Planzeichner::Planzeichner(QPainter& m, const Planabbildung& a, const Planfarben& f)
    : maler(m), abbildung(a), farben(f), flaeche(Zeichenflaeche(m)) {}

QPolygonF Planzeichner::Nach(const Umriss& umriss) const {
  QPolygonF ecken;
  ecken.reserve(static_cast<qsizetype>(umriss.size()));
  for (const Punkt& punkt : umriss) ecken.append(abbildung.Nach(punkt));
  return ecken;
}

QPen Planzeichner::Stift(const QColor& farbe, double staerke, const std::vector<double>& striche) const {
  QPen stift(farbe, mm(staerke), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
  QList<qreal> muster;
  for (const double laenge : striche) muster.append(laenge / staerke);
  if (!muster.isEmpty()) stift.setDashPattern(muster);
  return stift;
}

void Planzeichner::Umrissen(const QPolygonF& ecken, const QPen& stift) const {
  maler.setPen(stift);
  maler.setBrush(Qt::NoBrush);
  if (flaeche.contains(ecken.boundingRect())) {
    maler.drawPolygon(ecken);
    return;
  }
  QPolygonF zug;
  const auto beenden = [&] {
    if (zug.size() > 1) maler.drawPolyline(zug);
    zug.clear();
  };
  for (qsizetype i = 0; i < ecken.size(); ++i) {
    const auto linie = Beschnitten({ecken[i], ecken[(i + 1) % ecken.size()]}, flaeche);
    if (!linie || zug.isEmpty() || zug.last() != linie->p1()) beenden();
    if (!linie) continue;
    if (zug.isEmpty()) zug.append(linie->p1());
    zug.append(linie->p2());
  }
  beenden();
}

void Planzeichner::Linie(const QLineF& linie, const QPen& stift) const {
  const auto sichtbar = Beschnitten(linie, flaeche);
  if (!sichtbar) return;
  maler.setPen(stift);
  maler.drawLine(*sichtbar);
}

void Planzeichner::Schraffieren(const QPolygonF& ecken, double grad, double abstand,
                                const QPen& stift) const {
  const QTransform zurueck = QTransform().rotate(grad);
  const QTransform hin = QTransform().rotate(-grad);
  const QPolygonF gedreht = hin.map(ecken);
  const QRectF grenzen = gedreht.boundingRect() & hin.mapRect(flaeche);
  maler.setPen(stift);
  for (const double y : Vielfache(mm(abstand), grenzen.top(), grenzen.bottom())) {
    std::vector<double> schnitte;
    for (qsizetype i = 0; i < gedreht.size(); ++i) {
      const QPointF a = gedreht[i];
      const QPointF b = gedreht[(i + 1) % gedreht.size()];
      if ((a.y() <= y) == (b.y() <= y)) continue;
      schnitte.push_back(a.x() + (y - a.y()) * (b.x() - a.x()) / (b.y() - a.y()));
    }
    std::sort(schnitte.begin(), schnitte.end());
    for (std::size_t i = 1; i < schnitte.size(); i += 2) {
      const auto linie = Beschnitten(zurueck.map(QLineF(schnitte[i - 1], y, schnitte[i], y)), flaeche);
      if (linie) maler.drawLine(*linie);
    }
  }
}

void Planzeichner::RandSchraffieren(const QPolygonF& ecken, const QPen& stift) const {
  constexpr double Abstand = 2.5;  // mm
  constexpr double Laenge = 1.8;
  double inhalt = 0;
  for (qsizetype i = 0; i < ecken.size(); ++i) {
    const QPointF a = ecken[i] - ecken[0];
    const QPointF b = ecken[(i + 1) % ecken.size()] - ecken[0];
    inhalt += a.x() * b.y() - b.x() * a.y();
  }
  const double innen = inhalt < 0 ? -1 : 1;
  for (qsizetype i = 0; i < ecken.size(); ++i) {
    const auto kante = Beschnitten({ecken[i], ecken[(i + 1) % ecken.size()]}, flaeche);
    if (!kante || kante->length() == 0) continue;
    const QPointF laengs = QPointF(kante->dx(), kante->dy()) / kante->length();
    const QPointF hinein = (laengs + innen * QPointF(-laengs.y(), laengs.x())) * mm(Laenge) / std::sqrt(2.0);
    for (const double weg : Vielfache(mm(Abstand), 0, kante->length() - mm(Laenge))) {
      const QPointF fuss = kante->p1() + laengs * weg;
      Linie({fuss, fuss + hinein}, stift);
    }
  }
}

void Planzeichner::Kreis(QPointF mitte, double radius, const QPen& stift) const {
  const QPointF ecke(mm(radius), mm(radius));
  const QRectF kreis(mitte - ecke, mitte + ecke);
  if (!flaeche.contains(kreis)) return;
  maler.setPen(stift);
  maler.setBrush(farben.grund);
  maler.drawEllipse(kreis);
}

QColor Gemischt(const QColor& eine, const QColor& andere, double anteil) {
  const auto mitte = [anteil](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * anteil)); };
  return {mitte(eine.red(), andere.red()), mitte(eine.green(), andere.green()),
          mitte(eine.blue(), andere.blue())};
}

QString Planzahl(double meter) {
  // The figures of the sheet are singles: rounded as such they are the same here.
  return QString::fromStdString(Formatieren(static_cast<float>(meter)));
}

std::vector<double> Vielfache(double schritt, double von, double bis) {
  const double erstes = std::ceil(von / schritt);
  std::vector<double> alle;
  for (int i = 0; (erstes + i) * schritt <= bis; ++i) alle.push_back((erstes + i) * schritt);
  return alle;
}

double RundeMeter(double mindestens) {
  double dekade = std::pow(10, std::floor(std::log10(std::max(mindestens, 1e-3))));
  for (const double ziffer : {1., 2., 5.}) {
    if (ziffer * dekade >= mindestens) return ziffer * dekade;
  }
  return 10 * dekade;
}

}  // namespace vesk
