#include "print/Svg.h"

#include <QBuffer>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr int JeMillimeter = 100;  // units of the drawing

QString Zahl(double wert) {
  return QString::number(wert, 'f', 2);
}

QString Farbe(const QColor& farbe) {
  return farbe.name(QColor::HexRgb);
}

QString Pfadtext(const QPainterPath& pfad) {
  QString text;
  for (int i = 0; i < pfad.elementCount(); ++i) {
    const QPainterPath::Element& e = pfad.elementAt(i);
    const QChar art = e.isMoveTo() ? u'M' : e.isLineTo() ? u'L' : e.isCurveTo() ? u'C' : u' ';
    text += art + Zahl(e.x) + u' ' + Zahl(e.y);
  }
  return text;
}

/// What the papers are drawn with: lines and filled shapes of one colour, letters, and pictures. Nothing is
/// cut off: what clips draws nothing beyond its clip.
class Svgwerk : public QPaintEngine {
 public:
  explicit Svgwerk(QXmlStreamWriter& xml) : QPaintEngine(AllFeatures), xml_(xml) {}
  bool begin(QPaintDevice* /*geraet*/) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState& /*stand*/) override {}

  void drawPath(const QPainterPath& pfad) override { Schreiben(pfad, painter()->brush()); }
  void drawPolygon(const QPointF* punkte, int zahl, PolygonDrawMode art) override {
    QPainterPath pfad;
    pfad.addPolygon(QPolygonF(QList<QPointF>(punkte, punkte + zahl)));
    if (art != PolylineMode) pfad.closeSubpath();
    Schreiben(pfad, art == PolylineMode ? QBrush(Qt::NoBrush) : painter()->brush());
  }
  void drawLines(const QLineF* linien, int zahl) override {
    QPainterPath pfad;
    for (int i = 0; i < zahl; ++i) {
      pfad.moveTo(linien[i].p1());
      pfad.lineTo(linien[i].p2());
    }
    Schreiben(pfad, Qt::NoBrush);
  }

  void drawTextItem(const QPointF& punkt, const QTextItem& stueck) override {
    const QFont font = stueck.font();
    xml_.writeStartElement(u"text"_s);
    Verwandlung();
    Eigenschaft(u"x"_s, punkt.x());
    Eigenschaft(u"y"_s, punkt.y());
    xml_.writeAttribute(u"font-family"_s, u"Arial, Liberation Sans, Helvetica, sans-serif"_s);
    Eigenschaft(u"font-size"_s, font.pixelSize());
    if (font.bold()) xml_.writeAttribute(u"font-weight"_s, u"bold"_s);
    if (font.italic()) xml_.writeAttribute(u"font-style"_s, u"italic"_s);
    // Another font than the one here must not run into its neighbours.
    Eigenschaft(u"textLength"_s, stueck.width());
    xml_.writeAttribute(u"lengthAdjust"_s, u"spacingAndGlyphs"_s);
    xml_.writeAttribute(u"fill"_s, Farbe(painter()->pen().color()));
    xml_.writeAttribute(u"xml:space"_s, u"preserve"_s);
    xml_.writeCharacters(stueck.text());
    xml_.writeEndElement();
  }

  void drawImage(const QRectF& ziel, const QImage& bild, const QRectF& ausschnitt,
                 Qt::ImageConversionFlags /*art*/) override {
    QByteArray png;
    QBuffer puffer(&png);
    bild.copy(ausschnitt.toAlignedRect()).save(&puffer, "PNG");
    xml_.writeStartElement(u"image"_s);
    Verwandlung();
    Eigenschaft(u"x"_s, ziel.x());
    Eigenschaft(u"y"_s, ziel.y());
    Eigenschaft(u"width"_s, ziel.width());
    Eigenschaft(u"height"_s, ziel.height());
    Eigenschaft(u"opacity"_s, painter()->opacity());
    xml_.writeAttribute(u"preserveAspectRatio"_s, u"none"_s);
    xml_.writeAttribute(u"xlink:href"_s, u"data:image/png;base64,"_s + QString::fromLatin1(png.toBase64()));
    xml_.writeEndElement();
  }
  void drawPixmap(const QRectF& ziel, const QPixmap& bild, const QRectF& ausschnitt) override {
    drawImage(ziel, bild.toImage(), ausschnitt, Qt::AutoColor);
  }

 private:
  void Eigenschaft(const QString& name, double wert) { xml_.writeAttribute(name, Zahl(wert)); }

  void Verwandlung() {
    const QTransform t = painter()->combinedTransform();
    if (t.isIdentity()) return;
    xml_.writeAttribute(
        u"transform"_s,
        u"matrix(%1 %2 %3 %4 %5 %6)"_s.arg(t.m11()).arg(t.m12()).arg(t.m21()).arg(t.m22()).arg(t.dx()).arg(
            t.dy()));
  }

  void Schreiben(const QPainterPath& pfad, const QBrush& fuellung) {
    const QPen stift = painter()->pen();
    xml_.writeStartElement(u"path"_s);
    Verwandlung();
    xml_.writeAttribute(u"d"_s, Pfadtext(pfad));
    const bool gefuellt = fuellung.style() != Qt::NoBrush;
    xml_.writeAttribute(u"fill"_s, gefuellt ? Farbe(fuellung.color()) : u"none"_s);
    if (stift.style() == Qt::NoPen) {
      xml_.writeAttribute(u"stroke"_s, u"none"_s);
    } else {
      Strich(stift);
    }
    xml_.writeEndElement();
  }

  void Strich(const QPen& stift) {
    xml_.writeAttribute(u"stroke"_s, Farbe(stift.color()));
    Eigenschaft(u"stroke-width"_s, stift.widthF());
    xml_.writeAttribute(u"stroke-linejoin"_s, stift.joinStyle() == Qt::RoundJoin ? u"round"_s : u"miter"_s);
    if (stift.style() == Qt::SolidLine) return;
    QStringList striche;
    for (const double laenge : stift.dashPattern()) striche.append(Zahl(laenge * stift.widthF()));
    xml_.writeAttribute(u"stroke-dasharray"_s, striche.join(u' '));
  }

  QXmlStreamWriter& xml_;
};

class Svgblatt : public QPaintDevice {
 public:
  Svgblatt(QXmlStreamWriter& xml, QSizeF millimeter) : werk_(xml), millimeter_(millimeter) {}
  QPaintEngine* paintEngine() const override { return &werk_; }

 protected:
  int metric(PaintDeviceMetric was) const override {
    constexpr double Zoll = 25.4;
    switch (was) {
      case PdmWidth:
        return static_cast<int>(millimeter_.width() * JeMillimeter);
      case PdmHeight:
        return static_cast<int>(millimeter_.height() * JeMillimeter);
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return QPaintDevice::metric(was);
      default:
        return static_cast<int>(Zoll * JeMillimeter);
    }
  }

 private:
  mutable Svgwerk werk_;
  QSizeF millimeter_;
};

}  // namespace

QByteArray Svg(const Mappe& mappe, std::size_t seite) {
  QByteArray svg;
  QXmlStreamWriter xml(&svg);
  const QSizeF blatt = Blattgroesse(Seitenformat(mappe, seite));
  xml.writeStartDocument();
  xml.writeStartElement(u"svg"_s);
  xml.writeDefaultNamespace(u"http://www.w3.org/2000/svg"_s);
  xml.writeNamespace(u"http://www.w3.org/1999/xlink"_s, u"xlink"_s);
  xml.writeAttribute(u"width"_s, u"%1mm"_s.arg(blatt.width()));
  xml.writeAttribute(u"height"_s, u"%1mm"_s.arg(blatt.height()));
  xml.writeAttribute(u"viewBox"_s,
                     u"0 0 %1 %2"_s.arg(blatt.width() * JeMillimeter).arg(blatt.height() * JeMillimeter));
  xml.writeTextElement(u"title"_s, mappe.titel);
  Svgblatt geraet(xml, blatt);
  {
    QPainter maler(&geraet);
    maler.fillRect(QRectF({0, 0}, blatt * JeMillimeter), Qt::white);
    SeiteMalen(mappe, seite, maler, JeMillimeter);
  }
  xml.writeEndDocument();
  return svg;
}

}  // namespace vesk
