#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "print/Planteile.h"
#include "print/Satz.h"

using namespace Qt::StringLiterals;

/// The single signs of the plan.
namespace vesk {

namespace {

/// A crown of its real size, the trunk as a cross.
void BaumMalen(const Planzeichner& z, const Planobjekt& baum) {
  constexpr int Ecken = 48;
  constexpr double Kreuz = 1;  // mm
  const QPointF ort = z.abbildung.Nach(baum.punkte.front());
  const double radius = std::max(baum.radius * z.abbildung.jeMeter, z.mm(Kreuz));
  QPolygonF krone;
  for (int i = 0; i < Ecken; ++i) {
    const double bogen = 2 * std::numbers::pi * i / Ecken;
    krone << ort + QPointF(std::cos(bogen), std::sin(bogen)) * radius;
  }
  const QPen stift = z.Stift(z.farben.schrift, 0.2);
  z.Umrissen(krone, z.Stift(z.farben.schrift, 0.2, {0.5, 0.5}));
  z.Linie({ort - QPointF(z.mm(Kreuz), 0), ort + QPointF(z.mm(Kreuz), 0)}, stift);
  z.Linie({ort - QPointF(0, z.mm(Kreuz)), ort + QPointF(0, z.mm(Kreuz))}, stift);
}

}  // namespace

void Gebaeudeschraffur(const Planzeichner& z, const QPolygonF& ecken, Nutzung nutzung) {
  constexpr double Dicht = 2;  // mm
  constexpr double Weit = 4;
  const QPen stift = z.Stift(Gemischt(z.farben.gebaeude, z.farben.schrift, 0.3), 0.13);
  if (nutzung != Nutzung::Andere) z.Schraffieren(ecken, -45, Dicht, stift);
  if (nutzung == Nutzung::Nachbar) z.Schraffieren(ecken, 45, Dicht, stift);
  if (nutzung == Nutzung::Andere) z.Schraffieren(ecken, 45, Weit, stift);
}

void ObjektMalen(const Planzeichner& z, const Planobjekt& objekt) {
  const QColor& schwarz = z.farben.schrift;
  const QPolygonF ecken = z.Nach(objekt.punkte);
  switch (objekt.art) {
    case Planart::Grundstueck:
      return z.Umrissen(ecken, z.Stift(schwarz, 0.5));
    case Planart::Nachbar:
      return z.Umrissen(ecken, z.Stift(schwarz, 0.18));
    case Planart::Bereich:
      z.RandSchraffieren(ecken, z.Stift(schwarz, 0.18));
      return z.Umrissen(ecken, z.Stift(schwarz, 0.9));
    case Planart::Gebaeude:
      Gebaeudeschraffur(z, ecken, objekt.nutzung);
      return z.Umrissen(ecken, z.Stift(schwarz, 0.3));
    case Planart::Baum:
      return BaumMalen(z, objekt);
    case Planart::Antenne:
      z.Kreis(ecken.front(), 1.3, z.Stift(schwarz, 0.35));
      z.Linie({ecken.front() - QPointF(0, z.mm(0.35)), ecken.front() + QPointF(0, z.mm(0.35))},
              z.Stift(schwarz, 0.7));
      break;
    case Planart::Beschriftung:
      break;
  }
}

void BezugspunktMalen(const Planzeichner& z, QPointF ort) {
  constexpr double Arm = 1.8;  // mm
  const QPen stift = z.Stift(z.farben.schrift, 0.2);
  z.Kreis(ort, 0.9, stift);
  z.Linie({ort - QPointF(z.mm(Arm), 0), ort + QPointF(z.mm(Arm), 0)}, stift);
  z.Linie({ort - QPointF(0, z.mm(Arm)), ort + QPointF(0, z.mm(Arm))}, stift);
}

QString Nutzungskuerzel(Nutzung nutzung) {
  constexpr std::array Kuerzel = {u'E', u'N', u'A'};
  return QChar(Kuerzel.at(static_cast<std::size_t>(nutzung)));
}

QStringList Objektzeilen(const Planobjekt& objekt, double breite) {
  constexpr qsizetype Hoechstens = 4;
  const bool gebaeude = objekt.art == Planart::Gebaeude;
  QString text = Papiertext(objekt.name);
  if (gebaeude) text = (Nutzungskuerzel(objekt.nutzung) + u' ' + text).trimmed();
  QStringList zeilen;
  if (!text.isEmpty()) zeilen = Umbrechen(text, {.punkt = 8}, breite, Hoechstens);
  if (Artzeile(objekt.art).hoehe && objekt.hoehe > 0) {
    zeilen.append(u"h "_s + Planzahl(objekt.hoehe) + u" m"_s);
  }
  return zeilen;
}

QString Antennennummer(const Lageplan& plan, std::size_t antenne) {
  const auto bis = plan.objekte.begin() + static_cast<std::ptrdiff_t>(antenne) + 1;
  return QString::number(std::count_if(plan.objekte.begin(), bis,
                                       [](const Planobjekt& o) { return o.art == Planart::Antenne; }));
}

QString Antennentext(const Lageplan& plan, std::size_t antenne) {
  constexpr double Breite = 42;  // mm
  const QString name = Papiertext(plan.objekte.at(antenne).name);
  const QString nummer = Antennennummer(plan, antenne);
  return name.isEmpty() ? nummer : Umbrechen(nummer + u' ' + name, {.punkt = 8}, Breite, 1).first();
}

}  // namespace vesk
