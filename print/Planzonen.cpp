#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "print/Planteile.h"

using namespace Qt::StringLiterals;

/// The zones on the plan, seen from above.
namespace vesk {

namespace {

constexpr double Veraltetgrau = 0.55;  // of the way from the letters to the ground

QColor Zonenfarbe(const Planfarben& farben, Winkelkurve art, bool veraltet) {
  if (veraltet) return Gemischt(farben.schrift, farben.grund, Veraltetgrau);
  return farben.zonen.at(static_cast<std::size_t>(art));
}

/// Corners of the outlines that can be seen, the farthest from the antenna first; then places outside.
std::vector<QPointF> Linienorte(const Planzeichner& z, const Bildzone& zone, QPointF mast, QSizeF groesse) {
  constexpr std::size_t Hoechstens = 48;
  std::vector<QPointF> orte;
  for (const Umriss& umriss : zone.umrisse) {
    const std::size_t schritt = std::max<std::size_t>(1, umriss.size() / Hoechstens);
    for (std::size_t i = 0; i < umriss.size(); i += schritt) {
      const QPointF ort = z.abbildung.Nach(umriss[i]);
      if (z.flaeche.contains(ort)) orte.push_back(ort);
    }
  }
  const double gleich = z.mm(1);
  const auto weite = [&](QPointF ort) { return std::round(QLineF(mast, ort).length() / gleich); };
  std::stable_sort(orte.begin(), orte.end(), [&](QPointF a, QPointF b) { return weite(a) > weite(b); });
  return MitAussenorten(std::move(orte), mast, groesse);
}

}  // namespace

QString Zonenkuerzel(Winkelkurve art) {
  const std::array kuerzel = {u"oHSM"_s, u"306"_s, u"VDE"_s};
  return kuerzel.at(static_cast<std::size_t>(art));
}

QPen Zonenstift(const Planzeichner& z, Winkelkurve art, bool zusammen, bool veraltet) {
  static const std::array<std::vector<double>, 3> Striche = {{{4, 1}, {4, 1, 0.8, 1}, {1.4, 0.9}}};
  constexpr double Eine = 0.35;  // mm
  constexpr double Alle = 0.7;
  return z.Stift(Zonenfarbe(z.farben, art, veraltet), zusammen ? Alle : Eine,
                 Striche.at(static_cast<std::size_t>(art)));
}

bool Sichtbar(const Planschichten& schichten, Winkelkurve art) {
  return schichten[static_cast<std::size_t>(Planschicht::OhneHSM) + static_cast<std::size_t>(art)];
}

void ZonenMalen(const Planzeichner& z, const Planbild& bild, const Planschichten& schichten) {
  for (const Bildzone& zone : bild.zonen) {
    if (!Sichtbar(schichten, zone.art)) continue;
    const QPen stift = Zonenstift(z, zone.art, !zone.antenne, zone.veraltet);
    for (const Umriss& umriss : zone.umrisse) z.Umrissen(z.Nach(umriss), stift);
  }
}

QString Zonentext(const Planbild& bild, const Bildzone& zone) {
  QString text = Zonenkuerzel(zone.art);
  if (!zone.antenne) {
    text = u"Summe "_s + text;
  } else {
    const auto& objekte = bild.plan.objekte;
    const auto antennen = std::count_if(objekte.begin(), objekte.end(),
                                        [](const Planobjekt& o) { return o.art == Planart::Antenne; });
    if (antennen > 1) text = Antennennummer(bild.plan, *zone.antenne) + u": "_s + text;
    text += u' ' + Planzahl(zone.abstand) + u" m"_s;
  }
  return zone.veraltet ? text + u" veraltet"_s : text;
}

void ZonenBeschriften(const Planzeichner& z, const Planbild& bild, const Planschichten& schichten,
                      Schilder& schilder) {
  const auto bezeichnet = [&](const Bildzone& zone) {
    Bezeichnet zeichen{{Zonentext(bild, zone)}, {}, Zonenfarbe(z.farben, zone.art, zone.veraltet)};
    for (const Umriss& umriss : zone.umrisse) zeichen.ecken += z.Nach(umriss);
    return zeichen;
  };
  const auto sichtbar = [&](const QPolygonF& ecken) { return z.flaeche.intersects(ecken.boundingRect()); };
  std::vector<Bezeichnet> kleine;
  std::vector<const Bildzone*> grosse;
  for (const Bildzone& zone : bild.zonen) {
    Bezeichnet zeichen = bezeichnet(zone);
    if (!Sichtbar(schichten, zone.art) || !sichtbar(zeichen.ecken)) continue;
    if (schilder.Klein(zeichen)) {
      kleine.push_back(std::move(zeichen));
    } else {
      grosse.push_back(&zone);
    }
  }
  schilder.Beschriften(std::move(kleine));
  for (const Bildzone* zone : grosse) {
    const QPointF mast = zone->antenne ? z.abbildung.Nach(bild.plan.objekte.at(*zone->antenne).punkte.front())
                                       : z.flaeche.center();
    const Bezeichnet zeichen = bezeichnet(*zone);
    const auto orte = Linienorte(z, *zone, mast, schilder.Groesse(zeichen.zeilen));
    schilder.Hinweisen(schilder.Setzen(zeichen.zeilen, orte, zeichen.farbe), zeichen.ecken, zeichen.farbe);
  }
}

}  // namespace vesk
