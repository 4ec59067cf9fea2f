#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "print/Blatt.h"
#include "print/Planteile.h"

/// The texts of a drawing.
namespace vesk {

namespace {

double Ueberdeckung(const QRectF& a, const QRectF& b) {
  const QRectF gemeinsam = a & b;
  return gemeinsam.isEmpty() ? 0 : gemeinsam.width() * gemeinsam.height();
}

/// Moved inwards as far as necessary.
QRectF Hineingerueckt(QRectF platz, const QRectF& flaeche) {
  platz.moveRight(std::min(platz.right(), flaeche.right()));
  platz.moveBottom(std::min(platz.bottom(), flaeche.bottom()));
  platz.moveLeft(std::max(platz.left(), flaeche.left()));
  platz.moveTop(std::max(platz.top(), flaeche.top()));
  return platz;
}

}  // namespace

QFont Schilder::Font(bool fett) const {
  constexpr double MillimeterJePunkt = 25.4 / 72;
  QFont font = Papierschrift({.punkt = zeichner_.farben.punkt, .fett = fett});
  const double hoehe = zeichner_.mm(zeichner_.farben.punkt * MillimeterJePunkt);
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(hoehe))));
  return font;
}

QSizeF Schilder::Groesse(const QStringList& zeilen, bool fett) const {
  const QFontMetricsF mass(Font(fett));
  double breite = 0;
  for (const QString& zeile : zeilen) breite = std::max(breite, mass.horizontalAdvance(zeile));
  return {breite + 0.3 * mass.height(), mass.height() * static_cast<double>(zeilen.size())};
}

QRectF Schilder::Setzen(const QStringList& ganze, const std::vector<QPointF>& orte, const QColor& farbe,
                        bool fett) {
  // Of a place: what is covered of the text, how far it must be moved to be seen, and the order wished for.
  constexpr double JeStelle = 0.01;
  constexpr double JeDeckung = 8;
  const QFont font = Font(fett);
  const QFontMetricsF mass(font);
  const double platz = zeichner_.flaeche.width() - mass.height();
  QStringList zeilen;
  for (const QString& zeile : ganze) zeilen << mass.elidedText(zeile, Qt::ElideRight, platz);
  const QSizeF groesse = Groesse(zeilen, fett);
  QRectF bester;
  double kosten = HUGE_VAL;
  for (std::size_t i = 0; i < orte.size() && kosten > JeStelle * static_cast<double>(i); ++i) {
    const QRectF gewuenscht({orte[i].x() - groesse.width() / 2, orte[i].y() - groesse.height() / 2}, groesse);
    const QRectF hier = Hineingerueckt(gewuenscht, zeichner_.flaeche);
    double diese = JeStelle * static_cast<double>(i) +
                   QLineF(hier.topLeft(), gewuenscht.topLeft()).length() / groesse.height();
    for (const QRectF& anderer : belegt_) {
      diese += JeDeckung * Ueberdeckung(hier, anderer) / (groesse.width() * groesse.height());
    }
    if (diese >= kosten) continue;
    kosten = diese;
    bester = hier;
  }
  if (bester.isEmpty()) return bester;
  belegt_.push_back(bester);
  QPainter& maler = zeichner_.maler;
  maler.fillRect(bester, zeichner_.farben.grund);
  maler.setFont(font);
  maler.setPen(farbe);
  double grund = bester.top() + mass.ascent();
  for (const QString& zeile : zeilen) {
    maler.drawText(QPointF(bester.center().x() - mass.horizontalAdvance(zeile) / 2, grund), zeile);
    grund += mass.height();
  }
  return bester;
}

void Schilder::Hinweisen(const QRectF& platz, const QPolygonF& ecken, const QColor& farbe) {
  constexpr double Fern = 2;  // mm
  QLineF kuerzeste(0, 0, HUGE_VAL, 0);
  for (const QPointF& ecke : ecken) {
    const QLineF linie({std::clamp(ecke.x(), platz.left(), platz.right()),
                        std::clamp(ecke.y(), platz.top(), platz.bottom())},
                       ecke);
    if (linie.length() < kuerzeste.length()) kuerzeste = linie;
  }
  if (ecken.isEmpty() || platz.isEmpty() || kuerzeste.length() < zeichner_.mm(Fern)) return;
  zeichner_.Linie(kuerzeste, zeichner_.Stift(farbe, 0.13));
}

void Schilder::Danebensetzen(const Bezeichnet& zeichen) {
  constexpr int Weiteste = 6;
  const double luft = zeichner_.mm(1.5);
  const QSizeF groesse = Groesse(zeichen.zeilen);
  const QPolygonF& ecken = zeichen.ecken;
  const QRectF kasten = ecken.boundingRect();
  std::vector<QPointF> orte;
  for (int weite = 0; weite < Weiteste; ++weite) {
    const double x = kasten.width() / 2 + luft + (1 + weite) * groesse.width() / 2;
    for (const double hinauf : {0., -1., 1., -2., 2., -3., 3.}) {
      for (const double seite : {1., -1.}) {
        orte.push_back(kasten.center() + QPointF(seite * x, hinauf * 1.1 * groesse.height()));
      }
    }
  }
  Hinweisen(Setzen(zeichen.zeilen, orte, zeichen.farbe), ecken, zeichen.farbe);
}

std::vector<QPointF> Nebenorte(QPointF punkt, QSizeF groesse, double luft) {
  std::vector<QPointF> orte;
  for (const double weite : {luft, luft + groesse.height()}) {
    const double x = groesse.width() / 2 + weite;
    const double y = groesse.height() / 2 + weite;
    for (const QPointF& weg : {QPointF(x, 0), QPointF(-x, 0), QPointF(0, -y), QPointF(0, y), QPointF(x, -y),
                               QPointF(-x, -y), QPointF(x, y), QPointF(-x, y)}) {
      orte.push_back(punkt + weg);
    }
  }
  return orte;
}

std::vector<QPointF> MitAussenorten(std::vector<QPointF> orte, QPointF mitte, QSizeF groesse) {
  const std::size_t amRand = orte.size();
  for (std::size_t i = 0; i < amRand; ++i) {
    const QLineF weg(mitte, orte[i]);
    if (weg.length() == 0) continue;
    const QPointF hinaus = QPointF(weg.dx(), weg.dy()) / weg.length();
    orte.push_back(orte[i] + QPointF(hinaus.x() * groesse.width(), hinaus.y() * groesse.height()));
  }
  return orte;
}

double Schilder::Anteil(const Bezeichnet& zeichen) const {
  return zeichen.ecken.boundingRect().width() / Groesse(zeichen.zeilen).width();
}

bool Schilder::Klein(const Bezeichnet& zeichen) const {
  return Anteil(zeichen) < 1.5;
}

void Schilder::Beschriften(std::vector<Bezeichnet> zeichen) {
  const auto grosse =
      std::stable_partition(zeichen.begin(), zeichen.end(), [&](const Bezeichnet& z) { return Klein(z); });
  for (const Bezeichnet& z : zeichen) {
    if (Anteil(z) < 1) Freihalten(z.ecken.boundingRect());
  }
  for (auto z = zeichen.begin(); z != grosse; ++z) Danebensetzen(*z);
  for (auto z = grosse; z != zeichen.end(); ++z) {
    std::vector<QPointF> orte(z->ecken.begin(), z->ecken.end());
    std::stable_sort(orte.begin(), orte.end(), [](QPointF a, QPointF b) { return a.y() < b.y(); });
    const QPointF mitte = (orte.front() + orte.back()) / 2;
    Setzen(z->zeilen, MitAussenorten(orte, mitte, Groesse(z->zeilen)), z->farbe);
  }
}

}  // namespace vesk
