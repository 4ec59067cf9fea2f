#include "ui/plan/Planansicht.h"

#include <algorithm>

#include "station/Planbearbeitung.h"

namespace vesk {

namespace {

constexpr double Kleinste = 0.02;  // units per m: all that a plan can hold
constexpr double Groesste = 1000;

}  // namespace

Planabbildung Eingepasst(const QRectF& rahmen, const QSizeF& groesse, double jeMillimeter) {
  const double faktor = std::min(groesse.width() / rahmen.width(), groesse.height() / rahmen.height());
  const double jeMeter = std::clamp(faktor, Kleinste, Groesste);
  const QPointF mitte = rahmen.center();
  return {{groesse.width() / 2 - mitte.x() * jeMeter, groesse.height() / 2 + mitte.y() * jeMeter},
          jeMeter,
          jeMillimeter};
}

Planabbildung Vergroessert(Planabbildung abbildung, double faktor, QPointF fest) {
  const double jeMeter = std::clamp(abbildung.jeMeter * faktor, Kleinste, Groesste);
  const double verhaeltnis = jeMeter / abbildung.jeMeter;
  abbildung.ursprung = fest + (abbildung.ursprung - fest) * verhaeltnis;
  abbildung.jeMeter = jeMeter;
  return abbildung;
}

QRectF Planrahmen(const Planbild& bild, const QSizeF& hintergrund) {
  constexpr double Rand = 0.08;         // of its size
  constexpr double Kleinster = 1;       // m
  constexpr double Mindestbreite = 10;  // m; an antenna alone has no size
  QRectF rahmen = Planausdehnung(bild);
  if (bild.plan.objekte.empty()) rahmen.translate(bild.plan.bezug.x, bild.plan.bezug.y);
  if (bild.plan.hintergrund && !hintergrund.isEmpty()) {
    const Punkt oben = Planort(*bild.plan.hintergrund, {});
    const Punkt unten = Planort(*bild.plan.hintergrund, {hintergrund.width(), hintergrund.height()});
    const QRectF flaeche(QPointF(oben.x, unten.y), QPointF(unten.x, oben.y));
    rahmen = bild.plan.objekte.empty() ? flaeche : rahmen.united(flaeche);
  }
  const double rand = std::max(Kleinster, Rand * std::max(rahmen.width(), rahmen.height()));
  const double quer = std::max(rand, (Mindestbreite - rahmen.width()) / 2);
  const double hoch = std::max(rand, (Mindestbreite - rahmen.height()) / 2);
  return rahmen.adjusted(-quer, -hoch, quer, hoch);
}

}  // namespace vesk
