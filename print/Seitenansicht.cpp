#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

#include "print/Planteile.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

struct Spanne {
  double von = std::numeric_limits<double>::max();
  double bis = std::numeric_limits<double>::lowest();

  void Aufnehmen(double wert) {
    von = std::min(von, wert);
    bis = std::max(bis, wert);
  }
};

/// How far an object reaches along a direction.
Spanne Entlang(const Planobjekt& objekt, Punkt richtung) {
  Spanne spanne;
  for (const Punkt& p : objekt.punkte) {
    const double ort = p.x * richtung.x + p.y * richtung.y;
    spanne.Aufnehmen(ort - objekt.radius);
    spanne.Aufnehmen(ort + objekt.radius);
  }
  return spanne;
}

/// Of an antenna's columns, each once; none: no column with a zone says so.
std::vector<double> Antennenhoehen(const std::vector<Zone>& zonen, std::size_t antenne) {
  std::vector<double> hoehen;
  for (const Zone& zone : zonen) {
    if (zone.antenne != antenne) continue;
    for (const Spaltenzone& spalte : zone.spalten) {
      if (spalte.hoehe) hoehen.push_back(*spalte.hoehe);
    }
  }
  std::sort(hoehen.begin(), hoehen.end());
  hoehen.erase(std::unique(hoehen.begin(), hoehen.end()), hoehen.end());
  return hoehen;
}

/// What is drawn of a station from one side.
class Seitenbild {
 public:
  Seitenbild(QPainter& maler, const Station& s, double nachRechts, const Planabbildung& abbildung,
             const Planschichten& schichten, const Planfarben& farben)
      : plan_(s.lageplan),
        nachRechts_(nachRechts),
        achse_(Richtung(plan_, nachRechts)),
        tiefe_(Richtung(plan_, nachRechts - 90)),
        zonen_(ZonenBestimmen(s)),
        schichten_(schichten),
        z_(maler, abbildung, farben),
        ueberGrund_(z_),
        schilder_(z_) {
    ueberGrund_.flaeche.setBottom(std::clamp(Ort(0, 0).y(), z_.flaeche.top(), z_.flaeche.bottom()));
  }

  void Malen() {
    for (const std::size_t i : VonHinten()) {
      const Planobjekt& o = plan_.objekte[i];
      o.art == Planart::Baum ? BaumMalen(o) : GebaeudeMalen(o);
    }
    BodenMalen();
    BereichMalen();
    for (std::size_t i = 0; i < plan_.objekte.size(); ++i) MastMalen(i);
    PersonenhoeheMalen();
    Hoehenskala();
    ZonenMalen();
    schilder_.Beschriften(std::move(zeichen_));
    for (const auto& [zeilen, orte, fuss] : texte_) {
      const QRectF platz = schilder_.Setzen(zeilen, orte, z_.farben.schrift);
      if (fuss && platz.bottom() < fuss->y()) schilder_.Hinweisen(platz, {*fuss}, z_.farben.schrift);
    }
  }

 private:
  QPointF Ort(double laengs, double hoehe) const { return z_.abbildung.Nach({laengs, hoehe}); }
  bool Gezeigt(Planschicht schicht) const { return Sichtbar(schichten_, schicht); }

  /// Buildings and trees, the farthest first.
  std::vector<std::size_t> VonHinten() const {
    std::vector<std::size_t> folge;
    for (std::size_t i = 0; i < plan_.objekte.size(); ++i) {
      const Planobjekt& o = plan_.objekte[i];
      const bool haus = o.art == Planart::Gebaeude && Gezeigt(Planschicht::Gebaeude);
      const bool baum = o.art == Planart::Baum && Gezeigt(Planschicht::Baeume);
      if ((haus || baum) && !o.punkte.empty()) folge.push_back(i);
    }
    const auto vorn = [&](std::size_t i) { return Entlang(plan_.objekte[i], tiefe_).von; };
    std::stable_sort(folge.begin(), folge.end(), [&](auto a, auto b) { return vorn(a) > vorn(b); });
    return folge;
  }

  void GebaeudeMalen(const Planobjekt& o) {
    const Spanne breite = Entlang(o, achse_);
    const QRectF kasten(Ort(breite.von, o.hoehe), Ort(breite.bis, 0));
    const QRectF sichtbar = kasten & z_.flaeche;
    if (sichtbar.isEmpty()) return;
    z_.maler.fillRect(sichtbar, z_.farben.grund);
    const QPolygonF ecken({kasten.topLeft(), kasten.topRight(), kasten.bottomRight(), kasten.bottomLeft()});
    Gebaeudeschraffur(z_, ecken, o.nutzung);
    z_.Umrissen(ecken, z_.Stift(z_.farben.schrift, 0.3));
    const QStringList zeilen = Objektzeilen(o);
    const QSizeF groesse = schilder_.Groesse(zeilen);
    std::vector<QPointF> orte;
    if (groesse.width() < 1.5 * kasten.width() && groesse.height() < kasten.height()) {
      const QPointF frei((sichtbar.width() - groesse.width()) / 2,
                         (sichtbar.height() - groesse.height()) / 2);
      for (const double y : {0., 1., -1.}) {
        for (const double x : {0., -1., 1.}) {
          orte.push_back(sichtbar.center() + QPointF(x * std::max(0., frei.x()), y * frei.y()));
        }
      }
    }
    for (const double hinauf : {0.6, 1.2, 1.8, 2.4, 3.}) {
      for (const double seite : {0., -0.6, 0.6, -1.2, 1.2, -1.8, 1.8, -2.4, 2.4}) {
        orte.push_back(
            {sichtbar.center().x() + seite * groesse.width(), sichtbar.top() - hinauf * groesse.height()});
      }
    }
    texte_.push_back({zeilen, orte, QPointF(sichtbar.center().x(), sichtbar.top())});
  }

  void BaumMalen(const Planobjekt& o) {
    const double mitte = Entlang(o, achse_).von + o.radius;
    const double stamm = std::max(o.hoehe - 2 * o.radius, o.hoehe / 4);
    const QPen stift = z_.Stift(z_.farben.schrift, 0.2, {0.5, 0.5});
    QPolygonF krone;
    for (int grad = 0; grad < 360; grad += 10) {
      const Punkt r{std::cos(grad * M_PI / 180), std::sin(grad * M_PI / 180)};
      krone << Ort(mitte + o.radius * r.x, (stamm + o.hoehe) / 2 + (o.hoehe - stamm) / 2 * r.y);
    }
    z_.Umrissen(krone, stift);
    z_.Linie({Ort(mitte, 0), Ort(mitte, stamm)}, stift);
    std::vector<QPointF> orte = Nebenorte(Ort(mitte, o.hoehe), schilder_.Groesse(Objektzeilen(o)), 0);
    orte.insert(orte.begin(), Ort(mitte, (stamm + o.hoehe) / 2));
    texte_.push_back({Objektzeilen(o), orte, std::nullopt});
  }

  /// Where the ground is not to be seen, these are not either.
  void BodenMalen() {
    const double y = Ort(0, 0).y();
    const QPointF links(z_.flaeche.left(), y);
    const QPointF rechts(z_.flaeche.right(), y);
    z_.Linie({links, rechts}, z_.Stift(z_.farben.schrift, 0.5));
    const QPointF tief(0, z_.mm(1.5));
    z_.Schraffieren(QPolygonF({links, rechts, rechts + tief, links + tief}), -45, 1.2,
                    z_.Stift(z_.farben.schrift, 0.13));
    for (const bool ende : {false, true}) {
      const QString name = QString::fromLatin1(Himmelsrichtung(nachRechts_ + (ende ? 0 : 180)));
      schilder_.Setzen({name}, {(ende ? rechts : links) + QPointF(0, z_.mm(6))}, z_.farben.schrift, true);
    }
  }

  void BereichMalen() {
    if (!Gezeigt(Planschicht::Bereich)) return;
    for (const Planobjekt& o : plan_.objekte) {
      if (o.art != Planart::Bereich || o.punkte.empty()) continue;
      const Spanne breite = Entlang(o, achse_);
      const QPointF tief(0, z_.mm(2.6));
      z_.Linie({Ort(breite.von, 0) + tief, Ort(breite.bis, 0) + tief}, z_.Stift(z_.farben.schrift, 0.9));
      for (const double ende : {breite.von, breite.bis}) {
        z_.Linie({Ort(ende, 0) + 1.6 * tief, Ort(ende, UeberGrund.bis)}, z_.Stift(z_.farben.schrift, 0.25));
      }
      texte_.push_back(
          {{u"kontrollierter Bereich"_s}, {Ort((breite.von + breite.bis) / 2, 0) + 2 * tief}, std::nullopt});
    }
  }

  void MastMalen(std::size_t i) {
    const Planobjekt& o = plan_.objekte[i];
    const std::vector<double> hoehen = Antennenhoehen(zonen_, i);
    if (o.art != Planart::Antenne || hoehen.empty() || !Gezeigt(Planschicht::Antennen)) return;
    const double x = Entlang(o, achse_).von;
    z_.Linie({Ort(x, 0), Ort(x, hoehen.back())}, z_.Stift(z_.farben.schrift, 0.6));
    for (const double hoehe : hoehen) {
      const QPointF spitze = Ort(x, hoehe);
      z_.Kreis(spitze, 0.9, z_.Stift(z_.farben.schrift, 0.3));
      const QStringList zeilen{(hoehe == hoehen.back() ? Antennentext(plan_, i) + u' ' : QString()) +
                               u"h "_s + Planzahl(hoehe) + u" m"_s};
      const QPointF ecke(z_.mm(0.9), z_.mm(0.9));
      zeichen_.push_back({zeilen, QRectF(spitze - ecke, spitze + ecke), z_.farben.schrift});
    }
  }

  void PersonenhoeheMalen() {
    const double y = Ort(0, UeberGrund.bis).y();
    z_.Linie({{z_.flaeche.left(), y}, {z_.flaeche.right(), y}},
             z_.Stift(z_.farben.schrift, 0.18, {0.4, 0.8}));
    schilder_.Setzen({u"Personen 2 m"_s}, {{z_.flaeche.right(), y - z_.mm(2)}}, z_.farben.schrift);
  }

  void Hoehenskala() {
    constexpr double Engste = 8;  // mm
    const double schritt = std::max(1., RundeMeter(z_.mm(Engste) / z_.abbildung.jeMeter));
    const double unten = std::max(0., z_.abbildung.Von(z_.flaeche.bottomLeft()).y);
    const double oben = z_.abbildung.Von(z_.flaeche.topLeft()).y;
    const double x = z_.flaeche.left();
    for (const double hoehe : Vielfache(schritt, unten, oben)) {
      const QPointF ort(x, Ort(0, hoehe).y());
      z_.Linie({ort, ort + QPointF(z_.mm(2), 0)}, z_.Stift(z_.farben.schrift, 0.3));
      const QString zahl = QString::number(hoehe) + u" m"_s;
      const double mitte = z_.mm(2.5) + schilder_.Groesse({zahl}).width() / 2;
      schilder_.Setzen({zahl}, {ort + QPointF(mitte, 0)}, z_.farben.schrift);
    }
  }

  void ZonenMalen() {
    const Planbild namen{plan_, {}, {}};
    for (const Zone& zone : zonen_) {
      if (!Sichtbar(schichten_, zone.art)) continue;
      const QPen stift = Zonenstift(z_, zone.art, false, Veraltet(zone));
      // Of the columns only what is outermost.
      QPainterPath alle;
      for (const Umriss& umriss : Seitenriss(plan_, zone, nachRechts_)) {
        QPainterPath eine;
        eine.addPolygon(z_.Nach(umriss));
        eine.closeSubpath();
        alle = alle.united(eine);
      }
      QPolygonF sichtbar;
      for (const QPolygonF& ecken : alle.toSubpathPolygons()) {
        ueberGrund_.Umrissen(ecken, stift);
        std::copy_if(ecken.begin(), ecken.end(), std::back_inserter(sichtbar),
                     [&](QPointF ecke) { return ueberGrund_.flaeche.contains(ecke); });
      }
      if (!Gezeigt(Planschicht::Masse) || sichtbar.isEmpty()) continue;
      zeichen_.push_back(
          {{Zonentext(namen, {zone.art, zone.antenne, {}, Hoechstabstand(zone), Veraltet(zone)})},
           sichtbar,
           stift.color()});
    }
  }

  const Lageplan& plan_;
  const double nachRechts_;
  const Punkt achse_;
  const Punkt tiefe_;
  const std::vector<Zone> zonen_;
  const Planschichten& schichten_;
  const Planzeichner z_;
  Planzeichner ueberGrund_;
  Schilder schilder_;
  std::vector<Bezeichnet> zeichen_;
  struct Text {
    QStringList zeilen;
    std::vector<QPointF> orte;
    std::optional<QPointF> fuss;  ///< that a line leads to from a place above it
  };
  std::vector<Text> texte_;  ///< placed after what is computed
};

}  // namespace

void SeitenansichtMalen(QPainter& maler, const Station& s, double nachRechts, const Planabbildung& abbildung,
                        const Planschichten& schichten, const Planfarben& farben) {
  maler.save();
  Seitenbild(maler, s, nachRechts, abbildung, schichten, farben).Malen();
  maler.restore();
}

QRectF Seitenausdehnung(const Station& s, double nachRechts) {
  constexpr double Mindesthoehe = 4;
  Spanne breite;
  Spanne hoehe{0, Mindesthoehe};
  for (const Planobjekt& o : s.lageplan.objekte) {
    if (o.punkte.empty()) continue;
    const Spanne diese = Entlang(o, Richtung(s.lageplan, nachRechts));
    breite.Aufnehmen(diese.von);
    breite.Aufnehmen(diese.bis);
    if (Artzeile(o.art).hoehe) hoehe.Aufnehmen(o.hoehe);
  }
  for (const Zone& zone : ZonenBestimmen(s)) {
    for (const Umriss& umriss : Seitenriss(s.lageplan, zone, nachRechts)) {
      for (const Punkt& p : umriss) {
        breite.Aufnehmen(p.x);
        hoehe.Aufnehmen(p.y);
      }
    }
  }
  if (breite.von > breite.bis) breite = {-10, 10};
  return {breite.von, 0, breite.bis - breite.von, hoehe.bis};
}

}  // namespace vesk
