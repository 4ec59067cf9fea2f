#include "print/Planrahmen.h"

#include <QPainter>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr double Zeilenabstand = 4.4;
constexpr double Feldzeile = 5.4;
constexpr Schrift Klein{7};

QString Zonenlegende(Winkelkurve art) {
  return Zonenkuerzel(art) + u": Abstand "_s + QString::fromUtf8(Zonenname(art));
}

Legendenzeile Objektlegende(const QString& text, Planart art, Nutzung nutzung = Nutzung::Eigen) {
  Planobjekt muster;
  muster.art = art;
  muster.punkte = {{0, 0}, {8, 0}, {8, 3}, {0, 3}};
  muster.nutzung = nutzung;
  if (!Artzeile(art).umriss) muster.punkte = {{4, 1.5}};
  if (art == Planart::Baum) muster.radius = 1.5;
  return {text, [muster](const Planzeichner& z) { ObjektMalen(z, muster); }};
}

void ZonenEintragen(const Planbild& bild, Legende& legende) {
  for (const bool zusammen : {false, true}) {
    for (const Winkelkurve art : {Winkelkurve::OhneHSM, Winkelkurve::HSMvde, Winkelkurve::HSM306}) {
      const bool da = std::any_of(bild.zonen.begin(), bild.zonen.end(), [&](const Bildzone& zone) {
        return zone.art == art && zone.antenne.has_value() != zusammen;
      });
      if (!da) continue;
      const QString text =
          zusammen ? u"Summe "_s + Zonenkuerzel(art) + u": alle zugleich"_s : Zonenlegende(art);
      legende.push_back({text, [=](const Planzeichner& z) {
                           z.Linie({z.abbildung.Nach({0, 1.5}), z.abbildung.Nach({8, 1.5})},
                                   Zonenstift(z, art, zusammen, false));
                         }});
    }
  }
}

/// The part of the plan's signs that depends on whose a building is, is told apart by it.
void ObjekteEintragen(const Lageplan& plan, Legende& legende) {
  struct Eintrag {
    QString text;
    Planart art;
    Nutzung nutzung = Nutzung::Eigen;
  };
  const Eintrag eintraege[] = {
      {u"Antenne mit Nummer"_s, Planart::Antenne},
      {u"kontrollierter Bereich"_s, Planart::Bereich},
      {u"eigenes Grundstück"_s, Planart::Grundstueck},
      {u"Nachbargrundstück"_s, Planart::Nachbar},
      {u"E: eigenes Gebäude"_s, Planart::Gebaeude, Nutzung::Eigen},
      {u"N: Gebäude des Nachbarn"_s, Planart::Gebaeude, Nutzung::Nachbar},
      {u"A: anderes Gebäude"_s, Planart::Gebaeude, Nutzung::Andere},
      {u"Baum"_s, Planart::Baum},
  };
  for (const Eintrag& e : eintraege) {
    const bool da = std::any_of(plan.objekte.begin(), plan.objekte.end(), [&](const Planobjekt& o) {
      return o.art == e.art && (o.art != Planart::Gebaeude || o.nutzung == e.nutzung);
    });
    if (da) legende.push_back(Objektlegende(e.text, e.art, e.nutzung));
  }
}

}  // namespace

int Planmassstab(QSizeF meter, QSizeF platz, int gewuenscht) {
  // Up to 1:500 those of a scale ruler.
  constexpr std::array Uebliche = {50,   100,  200,  250,   300,   400,   500,    1000,
                                   2000, 2500, 5000, 10000, 20000, 50000, 100000, 200000};
  constexpr double Millimeter = 1000;
  const auto passt = [&](int n) {
    return meter.width() * Millimeter <= platz.width() * n &&
           meter.height() * Millimeter <= platz.height() * n;
  };
  if (gewuenscht > 0 && passt(gewuenscht)) return gewuenscht;
  const auto erster =
      std::find_if(Uebliche.begin(), Uebliche.end(), [&](int n) { return n > gewuenscht && passt(n); });
  return erster == Uebliche.end() ? std::max(gewuenscht, Uebliche.back()) : *erster;
}

Planabbildung Papierabbildung(const QRectF& meter, const QRectF& platz, int massstab) {
  Planabbildung abbildung;
  abbildung.jeMillimeter = Blatt::Einheit;
  abbildung.jeMeter = 1000 * Blatt::Einheit / massstab;
  const QPointF mitte(meter.center().x(), -meter.center().y());
  abbildung.ursprung = platz.center() * Blatt::Einheit - mitte * abbildung.jeMeter;
  return abbildung;
}

Legende LegendeVon(const Planbild& bild) {
  Legende legende;
  ZonenEintragen(bild, legende);
  ObjekteEintragen(bild.plan, legende);
  if (!bild.plan.bezugsname.empty()) {
    legende.push_back({u"Bezugspunkt"_s, [](const Planzeichner& z) {
                         BezugspunktMalen(z, z.abbildung.Nach({4, 1.5}));
                       }});
  }
  return legende;
}

double Legendenhoehe(const Legende& legende) {
  const std::size_t zeilen = (legende.size() + 1) / 2;
  return Zeilenabstand * static_cast<double>(zeilen);
}

void LegendeMalen(Blatt& blatt, const QRectF& platz, const Legende& legende) {
  constexpr double Einzug = 10;
  const std::size_t links = (legende.size() + 1) / 2;
  for (std::size_t i = 0; i < legende.size(); ++i) {
    const std::size_t zeile = i < links ? i : i - links;
    const double breite = platz.width() / 2;
    const QPointF ecke =
        platz.topLeft() + QPointF(i < links ? 0 : breite, Zeilenabstand * static_cast<double>(zeile));
    Planabbildung abbildung;
    abbildung.jeMeter = abbildung.jeMillimeter = Blatt::Einheit;
    abbildung.ursprung = (ecke + QPointF(0, 3.4)) * Blatt::Einheit;
    blatt.Maler().save();
    blatt.Maler().setClipRect(
        QRectF((ecke - QPointF(1, 0.4)) * Blatt::Einheit, QSizeF(Einzug, Zeilenabstand) * Blatt::Einheit));
    legende[i].muster(Planzeichner(blatt.Maler(), abbildung, {}));
    blatt.Maler().restore();
    blatt.Einzeiler(ecke + QPointF(Einzug, 2.9), breite - Einzug - 1, legende[i].text, Klein, 4);
  }
}

void NordpfeilMalen(Blatt& blatt, QPointF mitte, double nord) {
  constexpr double Laenge = 7;
  constexpr double Breite = 2.4;
  QPainter& maler = blatt.Maler();
  maler.save();
  maler.translate(mitte * Blatt::Einheit);
  maler.rotate(nord);
  maler.scale(Blatt::Einheit, Blatt::Einheit);
  maler.setPen(QPen(Qt::black, 0.25, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  const QPointF spitze(0, -Laenge);
  const QPointF kerbe(0, Laenge * 0.5);
  for (const bool links : {true, false}) {
    maler.setBrush(links ? Qt::black : Qt::white);
    maler.drawPolygon(QPolygonF({spitze, {links ? -Breite : Breite, Laenge * 0.8}, kerbe}));
  }
  const QPointF n = maler.transform().map(QPointF(0, -Laenge - 2.4)) - maler.transform().map(QPointF());
  const double jeMillimeter =
      QLineF({}, maler.transform().map(QPointF(1, 0)) - maler.transform().map(QPointF())).length();
  maler.restore();
  blatt.Text(mitte + n / jeMillimeter + QPointF(0, 1.4), u"N"_s, {.punkt = 11, .fett = true}, Buendig::Mitte);
}

void MassstabsbalkenMalen(Blatt& blatt, QPointF ecke, int massstab) {
  constexpr int Teile = 5;
  constexpr double Kleinster = 0.006;  // of the scale's number, m
  constexpr double Hoehe = 1.6;
  const double schritt = RundeMeter(Kleinster * massstab);
  const double breite = schritt * 1000 / massstab;
  for (int i = 0; i <= Teile; ++i) {
    const QPointF ort = ecke + QPointF(i * breite, 0);
    const QString zahl = QString::number(i * schritt) + (i == Teile ? u" m"_s : QString());
    blatt.Text(ort + QPointF(0, 2.9), zahl, Klein, Buendig::Mitte);
    if (i == Teile) break;
    const QRectF teil(ort + QPointF(0, 4), QSizeF(breite, Hoehe));
    if (i % 2 == 0) blatt.Flaeche(teil, Qt::black);
    blatt.Rahmen(teil, 0.2);
  }
}

double Schriftfeldhoehe(const Schriftfeld& feld) {
  return Feldzeile * static_cast<double>(feld.size());
}

void SchriftfeldMalen(Blatt& blatt, const QRectF& platz, const Schriftfeld& feld) {
  constexpr double Einzug = 20;
  double oben = platz.top();
  for (const auto& [name, text] : feld) {
    if (oben > platz.top()) blatt.Linie({platz.left(), oben}, {platz.right(), oben}, 0.1);
    blatt.Text({platz.left() + 1.5, oben + 3.7}, name, Klein);
    const double breite = platz.width() - Einzug - 1.5;
    blatt.Einzeiler({platz.left() + Einzug, oben + 3.8}, breite, text, {.punkt = 9, .fett = true}, 5);
    oben += Feldzeile;
  }
  blatt.Rahmen({platz.topLeft(), QPointF(platz.right(), oben)}, 0.3);
}

}  // namespace vesk
