#include "print/Kurvenbild.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "print/Kurvenachse.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr double Kurvenstaerke = 0.4;  // mm
constexpr double Markenradius = 1.0;
constexpr double Luft = 1.5;  // between neighbouring texts

/// The name of a mark in its place above the chart.
struct Markenname {
  const Bildmarke* marke;
  double links;
  std::size_t zeile;  ///< from the chart upwards
};

class Zeichnung {
 public:
  Zeichnung(Blatt& blatt, const Kurvenbild& bild, const Bildfarben& farben)
      : blatt_(blatt), bild_(bild), farben_(farben), klein_{.punkt = farben.punkt, .farbe = farben.schrift} {}
  void Zeichnen(const QRectF& flaeche);

 private:
  double Zeile() const { return Zeilenhoehe(klein_); }
  void Kopf(QRectF& platz);
  void Legende(QRectF& platz);
  std::vector<Markenname> Markennamen(const Achsenskala& x) const;
  Schrift Markenschrift(const Bildmarke& marke) const;
  void Gitter(const Achsenskala& x, const Achsenskala& y);
  void Achsenzahlen(const Achsenskala& x, const Achsenskala& y);
  void Marken(const std::vector<Markenname>& namen, const Achsenskala& x, const QRectF& feld);
  void Kurve(const Bildkurve& kurve, const Achsenskala& x, const Achsenskala& y);
  void Punktmarke(QPointF ort, std::size_t stil, bool voll);
  QPen Stift(std::size_t stil) const;
  double Zahlenbreite(const Achsenskala& skala) const;

  Blatt& blatt_;
  const Kurvenbild& bild_;
  const Bildfarben& farben_;
  const Schrift klein_;
};

QPen Zeichnung::Stift(std::size_t stil) const {
  // In multiples of the line's thickness.
  const std::array<QList<qreal>, AnzahlKurvenstile> Strichmuster = {
      {{}, {7, 3}, {1.5, 2}, {7, 2.5, 1.5, 2.5}, {14, 4}}};
  QPen stift(farben_.kurven.at(stil), Kurvenstaerke * Blatt::Einheit, Qt::SolidLine, Qt::FlatCap,
             Qt::RoundJoin);
  if (!Strichmuster.at(stil).isEmpty()) stift.setDashPattern(Strichmuster.at(stil));
  return stift;
}

void Zeichnung::Zeichnen(const QRectF& flaeche) {
  blatt_.Flaeche(flaeche, farben_.grund);
  QRectF platz = flaeche;
  Kopf(platz);
  if (bild_.kurven.empty()) {
    blatt_.Absatz(platz.topLeft() + QPointF(0, Zeile()), platz.width(), bild_.leer, klein_);
    return;
  }
  Legende(platz);
  const Bildachse bereich = Wertebereich(bild_);
  platz.adjust(0, 0, -Luft, -2 * Zeile() - 1.5 * Luft);
  Achsenskala y{bereich.von, bereich.bis, platz.bottom(), 0};
  platz.setLeft(platz.left() + Zahlenbreite(y) + Luft);
  const Achsenskala x{bild_.x.von, bild_.x.bis, platz.left(), platz.width()};
  const std::vector<Markenname> namen = Markennamen(x);
  // A chart that follows the input shall not jump at once.
  std::size_t zeilen = std::min<std::size_t>(bild_.marken.size(), 3);
  for (const Markenname& name : namen) zeilen = std::max(zeilen, name.zeile + 1);
  platz.setTop(platz.top() + static_cast<double>(zeilen) * Zeile() + Luft);
  y.laenge = -platz.height();
  if (platz.height() < Zeile() || platz.width() < Zeile()) return;
  Gitter(x, y);
  Marken(namen, x, platz);
  Achsenzahlen(x, y);
  for (const Bildkurve& kurve : bild_.kurven) Kurve(kurve, x, y);
}

void Zeichnung::Kopf(QRectF& platz) {
  Schrift fett = klein_;
  fett.fett = true;
  for (const auto& [text, schrift] : {std::pair{bild_.titel, fett}, {bild_.untertitel, klein_}}) {
    if (text.isEmpty()) continue;
    platz.setTop(platz.top() + blatt_.Absatz(platz.topLeft(), platz.width(), text, schrift));
  }
}

/// The title of the other axis, and the curves behind it in as many lines as they need.
void Zeichnung::Legende(QRectF& platz) {
  double x = platz.left();
  double grund = platz.top() + Oberlaenge(klein_);
  blatt_.Text({x, grund}, bild_.y, klein_);
  x += Textbreite(bild_.y, klein_) + 3 * Luft;
  for (const Bildkurve& kurve : bild_.kurven) {
    const double muster = kurve.linie.empty() ? 3 : 9;
    const double breite = muster + Luft + Textbreite(kurve.name, klein_);
    if (x + breite > platz.right() && x > platz.left()) {
      x = platz.left();
      grund += Zeile();
    }
    const double mitte = grund - Oberlaenge(klein_) / 3;
    if (!kurve.linie.empty()) {
      blatt_.Maler().setPen(Stift(kurve.stil));
      blatt_.Maler().drawLine(QPointF(x, mitte) * Blatt::Einheit,
                              QPointF(x + muster, mitte) * Blatt::Einheit);
    }
    if (!kurve.punkte.empty()) {
      const bool voll =
          std::all_of(kurve.punkte.begin(), kurve.punkte.end(), [](const auto& p) { return p.voll; });
      Punktmarke({x + muster / 2, mitte}, kurve.stil, voll);
    }
    blatt_.Text({x + muster + Luft, grund}, kurve.name, klein_);
    x += breite + 3 * Luft;
  }
  platz.setTop(grund + Zeile() / 2);
}

Schrift Zeichnung::Markenschrift(const Bildmarke& marke) const {
  Schrift schrift = klein_;
  schrift.fett = marke.betont;
  return schrift;
}

/// Names stand in the first of the lines above the chart that has room.
std::vector<Markenname> Zeichnung::Markennamen(const Achsenskala& x) const {
  constexpr std::size_t Hoechstens = 8;  // lines; a name that finds no room in them is left out
  std::array<double, Hoechstens> frei{};
  frei.fill(x.anfang - Zeile());
  std::vector<Markenname> namen;
  for (const Bildmarke& marke : bild_.marken) {
    if (marke.x < x.von || marke.x > x.bis) continue;
    const double breite = Textbreite(marke.name, Markenschrift(marke));
    const double links = std::min(x.Ort(marke.x) - breite / 2, x.anfang + x.laenge + Luft - breite);
    const auto* zeile = std::find_if(frei.begin(), frei.end(), [&](double ende) { return ende <= links; });
    if (zeile == frei.end()) continue;
    namen.push_back({&marke, links, static_cast<std::size_t>(zeile - frei.begin())});
    frei.at(namen.back().zeile) = links + breite + Luft / 2;
  }
  return namen;
}

double Zeichnung::Zahlenbreite(const Achsenskala& skala) const {
  // Charts one below the other shall begin at the same place.
  double breite = Textbreite(u"1000"_s, klein_);
  for (const Achsenstrich& strich : Achsenstriche(skala))
    breite = std::max(breite, Textbreite(Achsenzahl(strich.wert), klein_));
  return breite;
}

void Zeichnung::Gitter(const Achsenskala& x, const Achsenskala& y) {
  constexpr double Feinstes = 12;  // mm a decade; below, lines would run together
  constexpr double Haar = 0.1;
  const auto gitter = [&](const Achsenskala& skala, auto linie) {
    for (const bool haupt : {false, true}) {
      for (const Achsenstrich& strich : Achsenstriche(skala)) {
        if ((strich.ziffer == 1) != haupt || (!haupt && skala.Dekade() < Feinstes)) continue;
        linie(skala.Ort(strich.wert), haupt ? farben_.gitter : farben_.feingitter);
      }
    }
  };
  gitter(x, [&](double ort, const QColor& farbe) {
    blatt_.Linie({ort, y.anfang}, {ort, y.anfang + y.laenge}, Haar, farbe);
  });
  gitter(y, [&](double ort, const QColor& farbe) {
    blatt_.Linie({x.anfang, ort}, {x.anfang + x.laenge, ort}, Haar, farbe);
  });
  constexpr double Rand = 0.25;
  const QPointF ecke(x.anfang, y.anfang);
  for (const QPointF ende : {ecke + QPointF(x.laenge, 0), ecke + QPointF(0, y.laenge)}) {
    blatt_.Linie(ecke, ende, Rand, farben_.schrift);
  }
}

void Zeichnung::Achsenzahlen(const Achsenskala& x, const Achsenskala& y) {
  const double platz = Zahlenbreite(x) + Luft;
  const double grund = y.anfang + Oberlaenge(klein_) + Luft;
  double frei = x.anfang - Luft - Zahlenbreite(y);  // as far as the numbers of the other axis
  for (const Achsenstrich& strich : Achsenstriche(x)) {
    const QString text = Achsenzahl(strich.wert);
    const double breite = Textbreite(text, klein_);
    const double mitte = std::min(x.Ort(strich.wert), x.anfang + x.laenge - breite / 2);
    if (!Beschriftet(strich, x.Dekade(), platz) || mitte - breite / 2 < frei) continue;
    blatt_.Text({mitte, grund}, text, klein_, Buendig::Mitte);
    frei = mitte + breite / 2 + Luft;
  }
  blatt_.Text({x.anfang + x.laenge, grund + Zeile()}, bild_.x.titel, klein_, Buendig::Rechts);
  frei = y.anfang + Zeile();
  for (const Achsenstrich& strich : Achsenstriche(y)) {
    const double mitte = y.Ort(strich.wert);
    if (!Beschriftet(strich, y.Dekade(), Zeile() * 0.8) || mitte > frei - Zeile() * 0.8) continue;
    blatt_.Text({x.anfang - Luft / 2, mitte + Oberlaenge(klein_) / 3}, Achsenzahl(strich.wert), klein_,
                Buendig::Rechts);
    frei = mitte;
  }
}

void Zeichnung::Marken(const std::vector<Markenname>& namen, const Achsenskala& x, const QRectF& feld) {
  for (const Bildmarke& marke : bild_.marken) {
    if (marke.x < x.von || marke.x > x.bis) continue;
    const double ort = x.Ort(marke.x);
    blatt_.Linie({ort, feld.bottom()}, {ort, feld.top()}, marke.betont ? 0.35 : 0.15, farben_.schrift);
  }
  for (const Markenname& name : namen) {
    const double grund = feld.top() - Luft / 2 - static_cast<double>(name.zeile) * Zeile();
    blatt_.Text({name.links, grund}, name.marke->name, Markenschrift(*name.marke));
  }
}

void Zeichnung::Kurve(const Bildkurve& kurve, const Achsenskala& x, const Achsenskala& y) {
  QPainterPath pfad;
  bool verbunden = false;
  for (const Kurvenpunkt& punkt : kurve.linie) {
    const bool da = punkt.y && *punkt.y > 0;
    if (da) {
      const QPointF ort = QPointF(x.Ort(punkt.x), y.Ort(*punkt.y)) * Blatt::Einheit;
      if (verbunden) {
        pfad.lineTo(ort);
      } else {
        pfad.moveTo(ort);
      }
    }
    verbunden = da;
  }
  blatt_.Maler().setPen(Stift(kurve.stil));
  blatt_.Maler().setBrush(Qt::NoBrush);
  blatt_.Maler().drawPath(pfad);
  for (const Bildpunkt& punkt : kurve.punkte) {
    if (punkt.y > 0 && punkt.x >= x.von && punkt.x <= x.bis)
      Punktmarke({x.Ort(punkt.x), y.Ort(punkt.y)}, kurve.stil, punkt.voll);
  }
}

/// Circle, square, triangle, diamond, triangle on its head.
void Zeichnung::Punktmarke(QPointF ort, std::size_t stil, bool voll) {
  constexpr double r = Markenradius * Blatt::Einheit;
  QPainter& maler = blatt_.Maler();
  maler.setPen(QPen(farben_.kurven.at(stil), Kurvenstaerke * 0.75 * Blatt::Einheit));
  maler.setBrush(voll ? farben_.kurven.at(stil) : farben_.grund);
  const QPointF m = ort * Blatt::Einheit;
  switch (stil) {
    case 0:
      return maler.drawEllipse(m, r, r);
    case 1:
      return maler.drawRect(QRectF(m - QPointF(r, r) * 0.85, m + QPointF(r, r) * 0.85));
    case 2:
      return maler.drawPolygon(
          QPolygonF{m + QPointF(0, -r), m + QPointF(r, r * 0.8), m + QPointF(-r, r * 0.8)});
    case 3:
      return maler.drawPolygon(
          QPolygonF{m + QPointF(0, -r), m + QPointF(r, 0), m + QPointF(0, r), m + QPointF(-r, 0)});
    default:
      return maler.drawPolygon(
          QPolygonF{m + QPointF(0, r), m + QPointF(r, -r * 0.8), m + QPointF(-r, -r * 0.8)});
  }
}

}  // namespace

void KurvenbildMalen(Blatt& blatt, const QRectF& flaeche, const Kurvenbild& bild, const Bildfarben& farben) {
  blatt.Maler().save();
  blatt.Maler().setRenderHint(QPainter::Antialiasing);
  Zeichnung(blatt, bild, farben).Zeichnen(flaeche);
  blatt.Maler().restore();
}

QString Bildtext(const Kurvenbild& bild) {
  if (bild.kurven.empty()) return bild.leer;
  QStringList texte{bild.untertitel};
  for (const Bildkurve& kurve : bild.kurven) texte << kurve.name;
  texte.removeAll(QString());
  return texte.join(u"; "_s);
}

}  // namespace vesk
