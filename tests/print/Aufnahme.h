#pragma once
#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include "print/Mappe.h"

namespace vesk {

/// One run of letters; lengths in mm from the upper left corner of the sheet.
struct Textstelle {
  QString text;
  QPointF grund;  ///< where it begins on the base line
  double breite;
  QRectF tinte;  ///< what its letters cover
  double punkt;  ///< size in points
  QColor farbe;
  bool fett;
  bool kursiv;
};

/// One stroke; shapes and curves are taken apart into theirs. One that is only filled has no width.
struct Strich {
  QLineF linie;
  double staerke;
  QColor farbe;
};

/// What a page bears, in the order in which it was painted.
struct Aufnahme {
  std::vector<Textstelle> texte;
  std::vector<Strich> striche;

  /// All of it, runs that join each other as one, anything else in lines of its own.
  QString Wortlaut() const {
    QString alles;
    QPointF ende;
    for (const Textstelle& t : texte) {
      if (QLineF(ende, t.grund).length() > 0.1) alles += u'\n';
      alles += t.text;
      ende = t.grund + QPointF(t.breite, 0);
    }
    return alles + u'\n';
  }
};

/// Takes down what is painted; 100 units to the millimetre.
class Aufnahmegeraet : public QPaintDevice {
 public:
  static constexpr double JeMillimeter = 100;
  Aufnahme aufnahme;

  QPaintEngine* paintEngine() const override { return &werk_; }

 protected:
  int metric(PaintDeviceMetric was) const override {
    if (was == PdmDevicePixelRatioScaled) return QPaintDevice::metric(was);
    if (was == PdmDevicePixelRatio) return 1;
    return was == PdmWidth || was == PdmHeight ? int(297 * JeMillimeter) : int(25.4 * JeMillimeter);
  }

 private:
  class Werk : public QPaintEngine {
   public:
    explicit Werk(Aufnahme& ziel) : QPaintEngine(AllFeatures), ziel_(ziel) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

    void drawTextItem(const QPointF& punkt, const QTextItem& stueck) override {
      const QFont font = stueck.font();
      const QTransform mm = Abbild() * InMillimeter();
      const QRectF tinte = QFontMetricsF(font).tightBoundingRect(stueck.text()).translated(punkt);
      ziel_.texte.push_back({stueck.text(), mm.map(punkt), stueck.width() * Mass(), mm.mapRect(tinte),
                             font.pixelSize() * Mass() * 72 / 25.4, painter()->pen().color(), font.bold(),
                             font.italic()});
    }
    void drawPath(const QPainterPath& pfad) override {
      for (const QPolygonF& zug : pfad.toSubpathPolygons(Abbild())) Zug(zug);
    }
    void drawPolygon(const QPointF* punkte, int zahl, PolygonDrawMode art) override {
      QPolygonF zug(QList<QPointF>(punkte, punkte + zahl));
      if (art != PolylineMode) zug.append(zug.first());
      Zug(Abbild().map(zug));
    }
    void drawLines(const QLineF* linien, int zahl) override {
      for (int i = 0; i < zahl; ++i) Zug(Abbild().map(QPolygonF({linien[i].p1(), linien[i].p2()})));
    }

   private:
    QTransform Abbild() const { return painter()->combinedTransform(); }
    QTransform InMillimeter() const { return QTransform::fromScale(1 / JeMillimeter, 1 / JeMillimeter); }
    double Mass() const { return (Abbild() * InMillimeter()).map(QLineF(0, 0, 1, 0)).length(); }
    void Zug(const QPolygonF& einheiten) {
      const QPen stift = painter()->pen();
      const bool gezogen = stift.style() != Qt::NoPen;
      const QPolygonF mm = InMillimeter().map(einheiten);
      for (qsizetype i = 1; i < mm.size(); ++i) {
        ziel_.striche.push_back({{mm[i - 1], mm[i]},
                                 gezogen ? stift.widthF() * Mass() : 0,
                                 gezogen ? stift.color() : painter()->brush().color()});
      }
    }
    Aufnahme& ziel_;
  };
  mutable Werk werk_{aufnahme};
};

/// A page of its own, and one of a binder with what every page bears.
inline Aufnahme Aufnehmen(const Seite& seite) {
  Aufnahmegeraet geraet;
  QPainter maler(&geraet);
  Blatt blatt(maler, Aufnahmegeraet::JeMillimeter);
  seite.malen(blatt);
  return geraet.aufnahme;
}
inline Aufnahme Aufnehmen(const Mappe& mappe, std::size_t seite) {
  Aufnahmegeraet geraet;
  QPainter maler(&geraet);
  SeiteMalen(mappe, seite, maler, Aufnahmegeraet::JeMillimeter);
  return geraet.aufnahme;
}

inline void AllesIn(QRectF flaeche, const Aufnahme& inhalt) {
  constexpr double Haar = 0.3;  // italics and thick lines
  flaeche.adjust(-Haar, -Haar, Haar, Haar);
  for (const Textstelle& t : inhalt.texte) {
    EXPECT_TRUE(t.tinte.isEmpty() || flaeche.contains(t.tinte)) << qPrintable(t.text);
  }
  for (const Strich& strich : inhalt.striche) {
    EXPECT_TRUE(flaeche.contains(strich.linie.p1()) && flaeche.contains(strich.linie.p2()));
  }
}

inline void NichtsUeberdeckt(const std::vector<Textstelle>& texte) {
  for (std::size_t i = 0; i < texte.size(); ++i) {
    // Italic letters of a formula lean over their neighbours.
    const QRectF tinte = texte[i].tinte.adjusted(0.3, 0.1, -0.3, -0.1);
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(tinte.isValid() && tinte.intersects(texte[j].tinte))
          << qPrintable(texte[i].text + QStringLiteral(" | ") + texte[j].text);
    }
  }
}

}  // namespace vesk
