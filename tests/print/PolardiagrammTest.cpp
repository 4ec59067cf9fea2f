#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "print/Polardiagramm.h"

namespace vesk {
namespace {

constexpr QRect Flaeche(20, 30, 400, 260);
const Bildfarben Farben = [] {
  Bildfarben farben{.grund = QColor(0, 0, 60), .schrift = Qt::white};
  farben.kurven[1] = Qt::red;
  return farben;
}();
using Werte = std::array<std::optional<double>, PolarSektoren>;

QImage Bild(Polarskala skala, const Werte& werte) {
  const Polarkurve kurve{.name = QStringLiteral("Kurve"), .stil = 1, .werte = werte};
  QImage bild(440, 320, QImage::Format_RGB32);
  bild.fill(Qt::black);
  QPainter maler(&bild);
  polardiagramm::paint(maler, Flaeche, {QStringLiteral("Titel"), QStringLiteral("m"), skala, {kurve}},
                       Farben);
  return bild;
}

/// Where the curve was drawn; the sample line of the legend, which lies below, is left out.
QRect Kurvenrahmen(Polarskala skala, const Werte& werte) {
  const QImage bild = Bild(skala, werte);
  QRect rahmen;
  for (int y = Flaeche.top(); y < Flaeche.top() + Flaeche.height() * 3 / 4; ++y) {
    for (int x = Flaeche.left(); x <= Flaeche.right(); ++x) {
      const QColor farbe = bild.pixelColor(x, y);
      if (farbe.red() > 150 && farbe.green() < 130 && farbe.blue() < 130) rahmen |= QRect(x, y, 1, 1);
    }
  }
  return rahmen;
}

QRect Rundum() {
  return Kurvenrahmen(Polarskala::Abstand, {9, 9, 9, 9, 9, 9, 9, 9, 9});
}

TEST(Polardiagramm, JederSektorAufBeidenSeitenAnSeinemOrt) {
  EXPECT_TRUE(Kurvenrahmen(Polarskala::Abstand, {}).isNull());
  const QRect vorn = Kurvenrahmen(Polarskala::Abstand, {9});
  EXPECT_EQ(vorn.top(), Rundum().top());
  EXPECT_LT(vorn.width(), Rundum().width() / 4);
  const QRect seite = Kurvenrahmen(Polarskala::Abstand, Werte{{{}, {}, {}, {}, {}, {}, {}, {}, 9}});
  EXPECT_EQ(seite.width(), Rundum().width());
  EXPECT_GT(seite.top(), Rundum().center().y());
  for (const QRect& rahmen : {vorn, seite}) {
    EXPECT_NEAR(rahmen.left() + rahmen.right(), Flaeche.left() + Flaeche.right(), 3);
  }
}

TEST(Polardiagramm, AbstandWaechstNachAussenDaempfungNachInnen) {
  const QRect kurz = Kurvenrahmen(Polarskala::Abstand, {10, 1, 1, 1, 1, 1, 1, 1, 1});
  const QRect stark = Kurvenrahmen(Polarskala::Daempfung, {0, 20, 20, 20, 20, 20, 20, 20, 20});
  for (const QRect& rahmen : {kurz, stark}) EXPECT_LT(rahmen.width(), Rundum().width() / 2);
  EXPECT_EQ(stark.top(), Kurvenrahmen(Polarskala::Daempfung, {0, 0, 0, 0, 0, 0, 0, 0, 0}).top());
}

TEST(Polardiagramm, BleibtInSeinerFlaeche) {
  const QImage bild = Bild(Polarskala::Abstand, {5, 4, 3, 2, 1, 1, 1, 1, 1});
  for (const QPoint& ecke : {Flaeche.topLeft(), Flaeche.bottomRight()})
    EXPECT_EQ(bild.pixelColor(ecke), Farben.grund);
  for (const Polarskala skala : {Polarskala::Abstand, Polarskala::Daempfung}) {
    for (const double wert : {0.0, -5.0, 1e-30, 1e30}) {
      QImage neben = Bild(skala, {1, wert});
      QPainter(&neben).fillRect(Flaeche, Qt::black);
      QImage schwarz = neben;
      schwarz.fill(Qt::black);
      EXPECT_EQ(neben, schwarz) << wert;
    }
  }
}

}  // namespace
}  // namespace vesk
