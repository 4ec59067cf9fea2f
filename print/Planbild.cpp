#include "print/Planbild.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "print/Planteile.h"
#include "print/Satz.h"
#include "station/Summenzone.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

Planschicht SchichtVon(Planart art) {
  switch (art) {
    case Planart::Grundstueck:
    case Planart::Nachbar:
      return Planschicht::Grundstuecke;
    case Planart::Bereich:
      return Planschicht::Bereich;
    case Planart::Gebaeude:
      return Planschicht::Gebaeude;
    case Planart::Baum:
      return Planschicht::Baeume;
    case Planart::Beschriftung:
      return Planschicht::Beschriftungen;
    case Planart::Antenne:
      break;
  }
  return Planschicht::Antennen;
}

void HintergrundMalen(const Planzeichner& z, const Hintergrund& hintergrund, const QImage& bild) {
  const Punkt erster = hintergrund.bildpunkte[0];
  const Punkt zweiter = hintergrund.bildpunkte[1];
  const double entfernt = std::hypot(zweiter.x - erster.x, zweiter.y - erster.y);
  if (bild.isNull() || !(entfernt > 0) || !(hintergrund.abstand > 0)) return;
  const double jeBildpunkt = hintergrund.abstand / entfernt * z.abbildung.jeMeter;
  const QPointF ecke = z.abbildung.Nach(hintergrund.ort) - QPointF(erster.x, erster.y) * jeBildpunkt;
  const QRectF ganz(ecke, bild.deviceIndependentSize() * jeBildpunkt);
  const QRectF sichtbar = ganz & z.flaeche;
  if (sichtbar.isEmpty()) return;
  const double jeEinheit = bild.width() / ganz.width();
  const QRectF ausschnitt((sichtbar.topLeft() - ecke) * jeEinheit, sichtbar.size() * jeEinheit);
  z.maler.save();
  z.maler.setOpacity(hintergrund.deckung);
  z.maler.setRenderHint(QPainter::SmoothPixmapTransform);
  z.maler.drawImage(sichtbar, bild, ausschnitt);
  z.maler.restore();
}

void RasterMalen(const Planzeichner& z) {
  constexpr double Engstes = 5;  // mm
  const double schritt = RundeMeter(z.mm(Engstes) / z.abbildung.jeMeter);
  const Punkt von = z.abbildung.Von(z.flaeche.bottomLeft());
  const Punkt bis = z.abbildung.Von(z.flaeche.topRight());
  const QPen stift = z.Stift(z.farben.raster, 0.1);
  for (const double x : Vielfache(schritt, von.x, bis.x)) {
    z.Linie({z.abbildung.Nach({x, von.y}), z.abbildung.Nach({x, bis.y})}, stift);
  }
  for (const double y : Vielfache(schritt, von.y, bis.y)) {
    z.Linie({z.abbildung.Nach({von.x, y}), z.abbildung.Nach({bis.x, y})}, stift);
  }
}

/// The middle of what can be seen of it, and places inside above and below; then those beside it.
std::vector<QPointF> Flaechenorte(const Planzeichner& z, const QPolygonF& ecken, QSizeF groesse) {
  constexpr double Reihenabstand = 4;  // mm
  const QRectF ganz = ecken.boundingRect();
  const QRectF sichtbar = ganz & z.flaeche;
  if (sichtbar.isEmpty() || ecken.isEmpty()) return {};
  std::vector<QPointF> orte{sichtbar.center()};
  for (int reihe = 1; reihe <= 12; ++reihe) {
    for (const double seite : {0., -1., 1.}) {
      for (const double hinauf : {-1., 1.}) {
        const QPointF ort =
            sichtbar.center() + QPointF(seite * sichtbar.width() / 4, hinauf * reihe * z.mm(Reihenabstand));
        if (ecken.containsPoint(ort, Qt::OddEvenFill)) orte.push_back(ort);
      }
    }
  }
  for (const double seite : {-0.5, 0.5}) {
    orte.push_back(sichtbar.center() + seite * QPointF(0, sichtbar.height() + groesse.height()));
    orte.push_back(sichtbar.center() + seite * QPointF(sichtbar.width() + groesse.width(), 0));
  }
  return orte;
}

void NebenPunkt(const Planzeichner& z, const QStringList& zeilen, QPointF ort, Schilder& schilder,
                bool fett) {
  if (zeilen.isEmpty() || !z.flaeche.contains(ort)) return;
  schilder.Setzen(zeilen, Nebenorte(ort, schilder.Groesse(zeilen, fett), z.mm(1.8)), z.farben.schrift, fett);
}

void Beschriften(const Planzeichner& z, const Planobjekt& objekt, Schilder& schilder) {
  constexpr double Schmalste = 16;  // mm
  constexpr double Breiteste = 42;
  const QPolygonF ecken = z.Nach(objekt.punkte);
  const double breite = ecken.boundingRect().width() / z.mm(1);
  const bool flaeche = Artzeile(objekt.art).umriss;
  const QStringList zeilen =
      Objektzeilen(objekt, flaeche ? std::clamp(breite, Schmalste, Breiteste) : Breiteste);
  if (zeilen.isEmpty()) return;
  if (flaeche) {
    schilder.Setzen(zeilen, Flaechenorte(z, ecken, schilder.Groesse(zeilen)), z.farben.schrift);
  } else if (objekt.art == Planart::Beschriftung) {
    const QPointF ort = z.abbildung.Nach(objekt.punkte.front());
    if (z.flaeche.contains(ort)) schilder.Setzen(zeilen, {ort}, z.farben.schrift);
  } else {
    NebenPunkt(z, zeilen, z.abbildung.Nach(objekt.punkte.front()), schilder, false);
  }
}

constexpr double Pfeillaenge = 9;  // mm

/// `laenge` mm from the antenna
QPointF InRichtung(const Planzeichner& z, const Lageplan& plan, std::size_t antenne, double azimut,
                   double laenge) {
  const Punkt r = Richtung(plan, azimut);
  return z.abbildung.Nach(plan.objekte.at(antenne).punkte.front()) + QPointF(r.x, -r.y) * z.mm(laenge);
}

void RichtungMalen(const Planzeichner& z, const Lageplan& plan, const Bildrichtung& richtung) {
  constexpr double Laenge = Pfeillaenge;
  const QPen stift = z.Stift(z.farben.schrift, 0.35);
  const auto spitze = [&](double azimut, double laenge) {
    return InRichtung(z, plan, richtung.antenne, azimut, laenge);
  };
  for (const double azimut : {richtung.von, richtung.bis}) {
    z.Linie({spitze(azimut, 1.3), spitze(azimut, Laenge)}, stift);
    for (const double seite : {-9., 9.}) {
      z.Linie({spitze(azimut + seite, Laenge * 0.8), spitze(azimut, Laenge)}, stift);
    }
  }
  constexpr double Bogenstueck = 5;  // degrees
  for (const double weiter : Vielfache(Bogenstueck, 0, richtung.bis - richtung.von)) {
    const double bis = std::min(richtung.von + weiter + Bogenstueck, richtung.bis);
    z.Linie({spitze(richtung.von + weiter, Laenge * 0.7), spitze(bis, Laenge * 0.7)}, stift);
  }
}

/// What is computed of the antennas and bears most of the plan's sense has the first choice of places.
void AllesBeschriften(const Planzeichner& z, const Planbild& bild, const Planschichten& schichten) {
  Schilder schilder(z);
  const auto& objekte = bild.plan.objekte;
  const auto gezeigt = [&](const Planobjekt& o) {
    return Sichtbar(schichten, SchichtVon(o.art)) && !o.punkte.empty();
  };
  constexpr double Symbol = 1.6;  // mm
  for (const Planobjekt& o : objekte) {
    if (o.art != Planart::Antenne || !gezeigt(o)) continue;
    const QPointF ecke(z.mm(Symbol), z.mm(Symbol));
    const QPointF ort = z.abbildung.Nach(o.punkte.front());
    schilder.Freihalten({ort - ecke, ort + ecke});
  }
  for (const Bildrichtung& richtung : bild.richtungen) {
    for (const double azimut : {richtung.von, richtung.bis}) {
      const QPointF fuss = InRichtung(z, bild.plan, richtung.antenne, azimut, Symbol);
      schilder.Freihalten(
          QRectF(fuss, InRichtung(z, bild.plan, richtung.antenne, azimut, Pfeillaenge)).normalized());
    }
  }
  for (std::size_t i = 0; i < objekte.size(); ++i) {
    if (objekte[i].art != Planart::Antenne || !gezeigt(objekte[i])) continue;
    NebenPunkt(z, {Antennentext(bild.plan, i)}, z.abbildung.Nach(objekte[i].punkte.front()), schilder, true);
  }
  if (Sichtbar(schichten, Planschicht::Masse)) ZonenBeschriften(z, bild, schichten, schilder);
  if (Sichtbar(schichten, Planschicht::Beschriftungen)) {
    NebenPunkt(z, Umbrechen(Papiertext(bild.plan.bezugsname), {.punkt = 8}, 40, 2),
               z.abbildung.Nach(bild.plan.bezug), schilder, false);
  }
  for (const Planart art : {Planart::Beschriftung, Planart::Gebaeude, Planart::Baum, Planart::Nachbar,
                            Planart::Grundstueck, Planart::Bereich}) {
    for (const Planobjekt& o : objekte) {
      if (o.art == art && gezeigt(o)) Beschriften(z, o, schilder);
    }
    if (art != Planart::Baum) continue;
    // What is said of a plot stands between its buildings.
    for (const Planobjekt& o : objekte) {
      if (o.art == Planart::Gebaeude && gezeigt(o)) schilder.Freihalten(z.Nach(o.punkte).boundingRect());
    }
  }
}

}  // namespace

Planbild PlanbildVon(const Station& s) {
  Planbild bild{s.lageplan, {}, {}};
  const std::vector<Zone> zonen = ZonenBestimmen(s);
  std::array<bool, 3> veraltet{};
  for (const Zone& zone : zonen) {
    bild.zonen.push_back(
        {zone.art, zone.antenne, {Grundriss(s.lageplan, zone)}, Hoechstabstand(zone), Veraltet(zone)});
    veraltet.at(static_cast<std::size_t>(zone.art)) |= Veraltet(zone);
    for (const Spaltenzone& spalte : zone.spalten) {
      const Bildrichtung richtung{zone.antenne, spalte.von, spalte.bis};
      const auto& alle = bild.richtungen;
      if (spalte.bis - spalte.von < 360 && std::find(alle.begin(), alle.end(), richtung) == alle.end()) {
        bild.richtungen.push_back(richtung);
      }
    }
  }
  if (!s.lageplan.summe) return bild;
  for (const Winkelkurve art : {Winkelkurve::OhneHSM, Winkelkurve::HSM306, Winkelkurve::HSMvde}) {
    auto umrisse = Summenumriss(s.lageplan, zonen, art);
    if (umrisse.empty()) continue;
    bild.zonen.push_back(
        {art, std::nullopt, std::move(umrisse), 0, veraltet.at(static_cast<std::size_t>(art))});
  }
  return bild;
}

QRectF Planausdehnung(const Planbild& bild) {
  QPolygonF punkte;
  for (const Planobjekt& o : bild.plan.objekte) {
    for (const Punkt& p : o.punkte) {
      punkte << QPointF(p.x - o.radius, p.y - o.radius) << QPointF(p.x + o.radius, p.y + o.radius);
    }
  }
  for (const Bildzone& zone : bild.zonen) {
    for (const Umriss& umriss : zone.umrisse) {
      for (const Punkt& p : umriss) punkte << QPointF(p.x, p.y);
    }
  }
  constexpr double Leere = 10;
  return punkte.isEmpty() ? QRectF(-Leere, -Leere, 2 * Leere, 2 * Leere) : punkte.boundingRect();
}

bool Sichtbar(const Planschichten& schichten, Planschicht schicht) {
  return schichten[static_cast<std::size_t>(schicht)];
}

void PlanMalen(QPainter& maler, const Planbild& bild, const Planabbildung& abbildung,
               const Planschichten& schichten, const Planfarben& farben, const QImage& hintergrund) {
  maler.save();
  const Planzeichner z(maler, abbildung, farben);
  const auto& plan = bild.plan;
  if (plan.hintergrund && Sichtbar(schichten, Planschicht::Hintergrund)) {
    HintergrundMalen(z, *plan.hintergrund, hintergrund);
  }
  if (Sichtbar(schichten, Planschicht::Raster)) RasterMalen(z);
  const auto malen = [&](Planart art) {
    if (!Sichtbar(schichten, SchichtVon(art))) return;
    for (const Planobjekt& o : plan.objekte) {
      if (o.art == art && !o.punkte.empty()) ObjektMalen(z, o);
    }
  };
  for (const Planart art :
       {Planart::Nachbar, Planart::Grundstueck, Planart::Bereich, Planart::Gebaeude, Planart::Baum}) {
    malen(art);
  }
  if (!plan.bezugsname.empty() && Sichtbar(schichten, Planschicht::Beschriftungen)) {
    BezugspunktMalen(z, abbildung.Nach(plan.bezug));
  }
  ZonenMalen(z, bild, schichten);
  if (Sichtbar(schichten, Planschicht::Antennen)) {
    for (const Bildrichtung& richtung : bild.richtungen) RichtungMalen(z, plan, richtung);
  }
  malen(Planart::Antenne);
  AllesBeschriften(z, bild, schichten);
  maler.restore();
}

}  // namespace vesk
