#include "print/Blatt.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <cmath>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr double MillimeterJePunkt = 25.4 / 72;
constexpr double RandLinks = 20;
constexpr double RandRechts = 12;
constexpr double RandOben = 12;
constexpr double RandUnten = 22;  // holds the footer

QFontMetricsF Masse(const Schrift& schrift) {
  return QFontMetricsF(Papierschrift(schrift));
}

/// The toolkit measures a tab in one way and draws it in another; on paper it is a blank.
QString OhneTabs(QString text) {
  return text.replace(u'\t', u' ');
}

/// What of a text can stand in one line at all: more characters that have a width never fit beside each
/// other.
QString Zeilenanfang(const QString& text) {
  constexpr qsizetype Laengste = 1000;
  const bool mitten = text.size() > Laengste && text.at(Laengste - 1).isHighSurrogate();
  return OhneTabs(text.left(mitten ? Laengste - 1 : Laengste));
}

/// Length of the longest head of `text` that is no wider than `breite`, at least one character, and never
/// through the midst of one.
qsizetype Passend(const QString& text, const QFont& font, double breite) {
  QTextLayout satz(Zeilenanfang(text), font);
  QTextOption ueberall;
  ueberall.setWrapMode(QTextOption::WrapAnywhere);
  satz.setTextOption(ueberall);
  satz.beginLayout();
  QTextLine zeile = satz.createLine();
  zeile.setLineWidth(breite);
  satz.endLayout();
  return zeile.textLength();
}

QPointF Einheiten(QPointF punkt) {
  return punkt * Blatt::Einheit;
}

QRectF Einheiten(const QRectF& flaeche) {
  return {flaeche.topLeft() * Blatt::Einheit, flaeche.size() * Blatt::Einheit};
}

}  // namespace

QPageLayout Seitenlayout(Blattformat format) {
  const bool hoch = format == Blattformat::Hoch || format == Blattformat::HochA3;
  const bool a4 = format == Blattformat::Hoch || format == Blattformat::Quer;
  return {QPageSize(a4 ? QPageSize::A4 : QPageSize::A3),
          hoch ? QPageLayout::Portrait : QPageLayout::Landscape,
          {},
          QPageLayout::Millimeter};
}

QSizeF Blattgroesse(Blattformat format) {
  return Seitenlayout(format).fullRect().size();
}

QRectF Satzspiegel(Blattformat format) {
  return QRectF({0, 0}, Blattgroesse(format)).adjusted(RandLinks, RandOben, -RandRechts, -RandUnten);
}

QFont Papierschrift(const Schrift& schrift) {
  QFont font(u"Arial"_s);
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(static_cast<int>(std::lround(schrift.punkt * MillimeterJePunkt * Blatt::Einheit)));
  // Screen hinting would shift what stands right on paper.
  font.setHintingPreference(QFont::PreferNoHinting);
  // Pairs like "11" would be set closer, and columns of digits would not align.
  font.setKerning(false);
  font.setBold(schrift.fett);
  font.setItalic(schrift.kursiv);
  return font;
}

double Textbreite(const QString& text, const Schrift& schrift) {
  return Masse(schrift).horizontalAdvance(OhneTabs(text)) / Blatt::Einheit;
}

double Zeilenhoehe(const Schrift& schrift) {
  constexpr double Durchschuss = 1.2;  // of the size
  return schrift.punkt * MillimeterJePunkt * Durchschuss;
}

double Oberlaenge(const Schrift& schrift) {
  return Masse(schrift).ascent() / Blatt::Einheit;
}

QStringList Umbrechen(const QString& text, const Schrift& schrift, double breite, qsizetype hoechstens) {
  const QFont font = Papierschrift(schrift);
  QStringList zeilen;
  for (QString rest : text.split(u'\n')) {
    do {
      qsizetype laenge = Passend(rest, font, breite * Blatt::Einheit);
      if (laenge < rest.size()) {
        const qsizetype leer = rest.lastIndexOf(u' ', laenge);
        if (leer > 0) laenge = leer;
      }
      zeilen.append(rest.first(laenge).trimmed());
      rest = rest.sliced(laenge).trimmed();
    } while (!rest.isEmpty() && zeilen.size() < hoechstens);
    if (zeilen.size() >= hoechstens) break;
  }
  return zeilen;
}

Schrift Eingepasst(const QString& text, Schrift schrift, double breite, double mindestens) {
  const double weit = Textbreite(text, schrift);
  if (weit <= breite) return schrift;
  // Sizes are rounded to the units of the painter; a hair below the exact one is safe.
  constexpr double Knapp = 0.995;
  schrift.punkt = std::max(mindestens, schrift.punkt * breite / weit * Knapp);
  return schrift;
}

QString Gekuerzt(const QString& text, const Schrift& schrift, double breite) {
  const QString anfang = Zeilenanfang(text);
  if (anfang.size() == text.size() && Textbreite(text, schrift) <= breite) return text;
  const QString mehr = u" …"_s;
  return Umbrechen(anfang, schrift, breite - Textbreite(mehr, schrift), 1).first() + mehr;
}

Blatt::Blatt(QPainter& maler, double jeMillimeter) : maler_(maler) {
  maler_.save();
  maler_.scale(jeMillimeter / Einheit, jeMillimeter / Einheit);
}

Blatt::~Blatt() {
  maler_.restore();
}

void Blatt::Text(QPointF punkt, const QString& text, const Schrift& schrift, Buendig buendig) {
  if (text.isEmpty()) return;
  if (buendig != Buendig::Links) {
    const double breite = Textbreite(text, schrift);
    punkt.rx() -= buendig == Buendig::Mitte ? breite / 2 : breite;
  }
  maler_.setFont(Papierschrift(schrift));
  maler_.setPen(schrift.farbe);
  maler_.drawText(Einheiten(punkt), OhneTabs(text));
}

void Blatt::Einzeiler(QPointF punkt, double breite, const QString& text, const Schrift& schrift,
                      double mindestens, Buendig buendig) {
  const Schrift passend = Eingepasst(Zeilenanfang(text), schrift, breite, mindestens);
  Text(punkt, Gekuerzt(text, passend, breite), passend, buendig);
}

void Blatt::Zahl(QPointF punkt, const QString& text, const Schrift& schrift) {
  bool zahl = false;
  text.toDouble(&zahl);
  if (!zahl) return Text(punkt, text, schrift, Buendig::Mitte);
  const qsizetype komma = text.indexOf(u'.');
  punkt.rx() -= Textbreite(komma < 0 ? text : text.first(komma), schrift);
  Text(punkt, text, schrift);
}

double Blatt::Absatz(QPointF ecke, double breite, const QString& text, const Schrift& schrift) {
  const QStringList zeilen = Umbrechen(text, schrift, breite);
  double y = ecke.y() + Oberlaenge(schrift);
  for (const QString& zeile : zeilen) {
    Text({ecke.x(), y}, zeile, schrift);
    y += Zeilenhoehe(schrift);
  }
  return static_cast<double>(zeilen.size()) * Zeilenhoehe(schrift);
}

void Blatt::Linie(QPointF von, QPointF bis, double staerke, const QColor& farbe) {
  maler_.setPen(QPen(farbe, staerke * Einheit, Qt::SolidLine, Qt::FlatCap));
  maler_.drawLine(QLineF(Einheiten(von), Einheiten(bis)));
}

void Blatt::Rahmen(const QRectF& flaeche, double staerke) {
  maler_.setPen(QPen(Qt::black, staerke * Einheit, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  maler_.setBrush(Qt::NoBrush);
  maler_.drawRect(Einheiten(flaeche));
}

void Blatt::Flaeche(const QRectF& flaeche, const QColor& farbe) {
  maler_.fillRect(Einheiten(flaeche), farbe);
}

}  // namespace vesk
