#include "print/Polardiagramm.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace vesk::polardiagramm {

using namespace Qt::StringLiterals;

namespace {

constexpr int Sektorgrad = 10;

/// Rings of the scale, `anzahl` of them `schritt` units apart.
struct Ringe {
  double schritt = 1;
  int anzahl = 1;
};

/// Steps of 1, 2 or 5 times a power of ten, so that four to ten of them reach `hoechster`.
Ringe RingeBis(double hoechster) {
  if (!(hoechster > 0)) return {};
  const double zehner = std::pow(10.0, std::floor(std::log10(hoechster / 4)));
  const double anteil = hoechster / 4 / zehner;
  const double schritt = zehner * (anteil >= 5 ? 5 : anteil >= 2 ? 2 : 1);
  return {schritt, static_cast<int>(std::ceil(hoechster / schritt))};
}

class Zeichnung {
 public:
  Zeichnung(QPainter& maler, const QRectF& flaeche, const Polardaten& daten, const Bildfarben& farben);
  void Zeichnen();

 private:
  void SkalaBestimmen();
  double Radius(double wert) const;
  /// `grad` from the main direction, clockwise.
  QPointF Punkt(double grad, double radius) const;

  void Gitter();
  void Gradzahlen();
  void Ringzahlen();
  void Kurve(const Polarkurve& kurve);
  void Legende(QRectF platz);
  void Balken(QPointF mitte);
  /// Thinnest line of the device on a screen, where paper would lose it.
  QPen Gitterstift() const { return QPen(farben_.gitter, daten_.massstab ? zeile_ / 30 : 0); }
  QPen Kurvenstift(const Polarkurve& kurve) const;

  QPainter& maler_;
  const QRectF flaeche_;
  const Polardaten& daten_;
  const Bildfarben& farben_;
  const double zeile_;  ///< height of a text line
  Ringe ringe_;
  double randwert_ = 1;  ///< what the rim stands for
  QPointF mitte_;
  double radius_ = 0;
};

Zeichnung::Zeichnung(QPainter& maler, const QRectF& flaeche, const Polardaten& daten,
                     const Bildfarben& farben)
    : maler_(maler),
      flaeche_(flaeche),
      daten_(daten),
      farben_(farben),
      zeile_(QFontMetricsF(maler.font()).height()) {
  SkalaBestimmen();
  // From top to bottom: title, degrees at the rim, half disc, numbers of the rings, legend.
  const double oben = (daten_.titel.isEmpty() ? 1.6 : 2.8) * zeile_;
  const double unten = 2.6 * zeile_;
  const double seite = 2.2 * zeile_;
  radius_ = daten.massstab
                ? daten.massstab->rand
                : std::max(0.0, std::min(flaeche.width() / 2 - seite, flaeche.height() - oben - unten));
  mitte_ = QPointF(flaeche.center().x(), flaeche.top() + oben + radius_);
}

void Zeichnung::SkalaBestimmen() {
  if (daten_.massstab) {
    constexpr double Rundung = 1e-9;
    randwert_ = daten_.massstab->rand / daten_.massstab->jeEinheit;
    ringe_ = RingeBis(randwert_);
    ringe_.anzahl = static_cast<int>(std::floor(randwert_ / ringe_.schritt + Rundung));
    return;
  }
  double hoechster = 0;
  for (const Polarkurve& kurve : daten_.kurven) {
    for (const auto& wert : kurve.werte) hoechster = std::max(hoechster, wert.value_or(0));
  }
  if (daten_.skala == Polarskala::Abstand) {
    ringe_ = RingeBis(hoechster);
  } else {
    // The centre lies one ring below the weakest sector, so that it is seen to radiate.
    constexpr double Schritt = 10;
    constexpr double Mindestens = 3;
    constexpr double Hoechstens = 10;
    ringe_ = {Schritt,
              static_cast<int>(std::clamp(std::floor(hoechster / Schritt) + 1, Mindestens, Hoechstens))};
  }
  randwert_ = ringe_.schritt * ringe_.anzahl;
}

double Zeichnung::Radius(double wert) const {
  const double anteil = std::clamp(wert / randwert_, 0.0, 1.0);
  return radius_ * (daten_.skala == Polarskala::Daempfung ? 1 - anteil : anteil);
}

QPointF Zeichnung::Punkt(double grad, double radius) const {
  const double bogen = grad * std::numbers::pi / 180;
  return mitte_ + QPointF(radius * std::sin(bogen), -radius * std::cos(bogen));
}

void Zeichnung::Zeichnen() {
  maler_.save();
  maler_.setRenderHint(QPainter::Antialiasing);
  maler_.fillRect(flaeche_, farben_.grund);
  maler_.setPen(farben_.schrift);
  if (!daten_.titel.isEmpty()) {
    maler_.drawText(QRectF(flaeche_.left(), flaeche_.top(), flaeche_.width(), 1.2 * zeile_), Qt::AlignCenter,
                    daten_.titel + u" ["_s + daten_.einheit + u']');
  }
  if (radius_ > zeile_) {
    Gitter();
    for (const Polarkurve& kurve : daten_.kurven) Kurve(kurve);
    Gradzahlen();
    Ringzahlen();
  }
  const QRectF unten(flaeche_.left(), mitte_.y() + 1.2 * zeile_, flaeche_.width(), 1.2 * zeile_);
  if (daten_.massstab) {
    Balken({mitte_.x(), unten.bottom()});
  } else {
    Legende(unten);
  }
  maler_.restore();
}

void Zeichnung::Gitter() {
  constexpr int Viertelgrad = 16 * 90;
  maler_.setBrush(Qt::NoBrush);
  maler_.setPen(Gitterstift());
  for (int i = 0; i <= ringe_.anzahl; ++i) {
    const double r = Radius(i * ringe_.schritt);
    maler_.drawArc(QRectF(mitte_ - QPointF(r, r), mitte_ + QPointF(r, r)), 0, 2 * Viertelgrad);
  }
  for (int grad = -90; grad <= 90; grad += Sektorgrad) maler_.drawLine(mitte_, Punkt(grad, radius_));
}

void Zeichnung::Gradzahlen() {
  const int schritt = daten_.massstab ? Sektorgrad : 3 * Sektorgrad;
  maler_.setPen(farben_.schrift);
  for (int grad = -90; grad <= 90; grad += schritt) {
    QPointF ort = Punkt(grad, radius_ + 0.9 * zeile_);
    if (std::abs(grad) == 90) ort.ry() -= 0.5 * zeile_;  // clear of the numbers of the rings
    const QRectF platz(ort.x() - 2 * zeile_, ort.y() - zeile_, 4 * zeile_, 2 * zeile_);
    maler_.drawText(platz, Qt::AlignCenter, QString::number(std::abs(grad)) + u"°"_s);
  }
}

void Zeichnung::Ringzahlen() {
  const QFontMetricsF mass(maler_.font());
  // From the rim inwards; a number that would touch the one before is left out.
  double frei = 2 * radius_;
  for (int i = 0; i <= ringe_.anzahl; ++i) {
    const int ring = daten_.skala == Polarskala::Abstand ? ringe_.anzahl - i : i;
    const double wert = ring * ringe_.schritt;
    QString text = QString::number(wert);
    if (daten_.massstab && i == 0) text += u' ' + daten_.einheit;
    const double breite = mass.horizontalAdvance(text) + 0.4 * zeile_;
    const double x = Radius(wert);
    if (x + breite / 2 > frei) continue;
    frei = x - breite / 2;
    maler_.drawText(QRectF(mitte_.x() + frei, mitte_.y() + 0.1 * zeile_, breite, zeile_), Qt::AlignCenter,
                    text);
  }
}

void Zeichnung::Kurve(const Polarkurve& kurve) {
  // A sector has one value, so the curve is a flight of arcs; a sector without a value leaves a gap.
  constexpr double Mindestens = 0.01;  // of a line: 0 is a point, not nothing
  QPainterPath pfad;
  bool verbunden = false;
  for (int i = -static_cast<int>(PolarSektoren); i < static_cast<int>(PolarSektoren); ++i) {
    const auto sektor = static_cast<std::size_t>(i < 0 ? -i - 1 : i);
    const std::optional<double>& wert = kurve.werte.at(sektor);
    if (wert) {
      const double r = std::max(Radius(*wert), Mindestens * zeile_);
      const QPointF anfang = Punkt(i * Sektorgrad, r);
      if (verbunden) {
        pfad.lineTo(anfang);
      } else {
        pfad.moveTo(anfang);
      }
      const QRectF kreis(mitte_ - QPointF(r, r), mitte_ + QPointF(r, r));
      pfad.arcTo(kreis, 90 - i * Sektorgrad, -Sektorgrad);
    }
    verbunden = wert.has_value();
  }
  maler_.setPen(Kurvenstift(kurve));
  maler_.setBrush(Qt::NoBrush);
  maler_.drawPath(pfad);
}

QPen Zeichnung::Kurvenstift(const Polarkurve& kurve) const {
  constexpr float Grau = 0.6F;
  QColor farbe = farben_.kurven.at(kurve.stil);
  if (kurve.veraltet) {
    farbe = farben_.schrift;
    farbe.setAlphaF(Grau);
  }
  return QPen(farbe, zeile_ / 8, kurve.strich, Qt::FlatCap, Qt::RoundJoin);
}

void Zeichnung::Legende(QRectF platz) {
  const QFontMetricsF mass(maler_.font());
  const double strich = 2 * zeile_;
  const double abstand = 0.4 * zeile_;
  double breite = -abstand;
  std::vector<const Polarkurve*> kurven;
  for (const Polarkurve& kurve : daten_.kurven) {
    const auto& werte = kurve.werte;
    if (std::any_of(werte.begin(), werte.end(), [](const auto& wert) { return wert.has_value(); })) {
      kurven.push_back(&kurve);
    }
  }
  for (const Polarkurve* kurve : kurven) {
    breite += strich + mass.horizontalAdvance(kurve->name) + 3 * abstand;
  }
  double x = platz.center().x() - breite / 2;
  for (const Polarkurve* kurve : kurven) {
    const double y = platz.center().y();
    maler_.setPen(Kurvenstift(*kurve));
    maler_.drawLine(QPointF(x, y), QPointF(x + strich, y));
    x += strich + abstand;
    maler_.setPen(farben_.schrift);
    const double text = mass.horizontalAdvance(kurve->name) + abstand;
    maler_.drawText(QRectF(x, platz.top(), text, platz.height()), Qt::AlignLeft | Qt::AlignVCenter,
                    kurve->name);
    x += text + abstand;
  }
}

void Zeichnung::Balken(QPointF mitte) {
  const QFontMetricsF mass(maler_.font());
  const int teile = (ringe_.anzahl + 1) / 2;
  const double hoehe = zeile_ / 3;
  const double breite = Radius(ringe_.schritt);
  maler_.setPen(QPen(farben_.schrift, zeile_ / 30, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  for (int i = 0; i <= teile; ++i) {
    const double x = mitte.x() + (i - teile / 2.0) * breite;
    QString text = QString::number(i * ringe_.schritt);
    if (i == teile) text += u' ' + daten_.einheit;
    if (i == 0 || i == teile || mass.horizontalAdvance(text) < 0.9 * breite) {
      const QRectF platz(x - breite / 2, mitte.y() + hoehe, breite, 1.3 * zeile_);
      maler_.drawText(platz, Qt::AlignCenter | Qt::TextDontClip, text);
    }
    if (i == teile) break;
    maler_.setBrush(i % 2 == 0 ? farben_.schrift : farben_.grund);
    maler_.drawRect(QRectF(x, mitte.y(), breite, hoehe));
  }
}

}  // namespace

void paint(QPainter& maler, const QRectF& flaeche, const Polardaten& daten, const Bildfarben& farben) {
  Zeichnung(maler, flaeche, daten, farben).Zeichnen();
}

}  // namespace vesk::polardiagramm
