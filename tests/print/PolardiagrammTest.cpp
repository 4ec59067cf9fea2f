#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "Polardiagramm.h"

namespace vesk {
namespace {

using namespace Qt::StringLiterals;

constexpr QRect Flaeche(20, 30, 400, 260);

Polardaten Daten(Polarskala skala, std::initializer_list<std::optional<double>> werte) {
  Polardaten daten{.titel = u"Titel"_s, .einheit = u"m"_s, .skala = skala, .kurven = {}};
  Polarkurve kurve{.name = u"Kurve"_s, .farbe = Qt::red, .strich = Qt::SolidLine, .werte = {}};
  std::copy(werte.begin(), werte.end(), kurve.werte.begin());
  daten.kurven.push_back(kurve);
  return daten;
}

QImage Bild(const Polardaten& daten) {
  QImage bild(440, 320, QImage::Format_RGB32);
  bild.fill(Qt::black);
  QPainter maler(&bild);
  polardiagramm::paint(maler, Flaeche, daten);
  return bild;
}

bool Rot(QRgb farbe) {
  return qRed(farbe) > 150 && qGreen(farbe) < 130 && qBlue(farbe) < 130;
}

/// Where the curve was drawn; the sample line of the legend, which is straight and below, is left out.
QRect Kurvenrahmen(const QImage& bild) {
  QRect rahmen;
  for (int y = Flaeche.top(); y < Flaeche.top() + Flaeche.height() * 3 / 4; ++y) {
    for (int x = Flaeche.left(); x <= Flaeche.right(); ++x) {
      if (Rot(bild.pixel(x, y))) rahmen |= QRect(x, y, 1, 1);
    }
  }
  return rahmen;
}

TEST(Polardiagramm, BleibtInSeinerFlaecheUndIstWeiss) {
  const QImage bild = Bild(Daten(Polarskala::Abstand, {5, 4, 3, 2, 1, 1, 1, 1, 1}));
  for (int x = 0; x < bild.width(); ++x) {
    EXPECT_EQ(bild.pixel(x, Flaeche.top() - 1), qRgb(0, 0, 0));
    EXPECT_EQ(bild.pixel(x, Flaeche.bottom() + 1), qRgb(0, 0, 0));
  }
  EXPECT_EQ(bild.pixel(Flaeche.topLeft()), qRgb(255, 255, 255));
  EXPECT_EQ(bild.pixel(Flaeche.bottomRight()), qRgb(255, 255, 255));
}

TEST(Polardiagramm, DieHaelftenSindSpiegelbilder) {
  const QImage bild = Bild(Daten(Polarskala::Abstand, {5, 5, 4, 4, 2, 2, 1, 1, 3}));
  const QRect rahmen = Kurvenrahmen(bild);
  EXPECT_NEAR(rahmen.left() + rahmen.right(), Flaeche.left() + Flaeche.right(), 3);
}

TEST(Polardiagramm, AbstandWaechstNachAussenDaempfungNachInnen) {
  const QRect weit = Kurvenrahmen(Bild(Daten(Polarskala::Abstand, {10, 10, 10, 10, 10, 10, 10, 10, 10})));
  const QRect vorn = Kurvenrahmen(Bild(Daten(Polarskala::Abstand, {10, 1, 1, 1, 1, 1, 1, 1, 1})));
  EXPECT_EQ(vorn.top(), weit.top());
  EXPECT_LT(vorn.width(), weit.width() / 2);

  const QRect ohne = Kurvenrahmen(Bild(Daten(Polarskala::Daempfung, {0, 0, 0, 0, 0, 0, 0, 0, 0})));
  const QRect stark = Kurvenrahmen(Bild(Daten(Polarskala::Daempfung, {0, 20, 20, 20, 20, 20, 20, 20, 20})));
  EXPECT_EQ(stark.top(), ohne.top());
  EXPECT_LT(stark.width(), ohne.width() / 2);
}

TEST(Polardiagramm, SektorenOhneWertBleibenLeer) {
  EXPECT_TRUE(Kurvenrahmen(Bild(Daten(Polarskala::Abstand, {}))).isNull());
  const QRect seite = Kurvenrahmen(Bild(Daten(Polarskala::Abstand, {{}, {}, {}, {}, {}, {}, {}, {}, 10})));
  const QRect rundum = Kurvenrahmen(Bild(Daten(Polarskala::Abstand, {10, 10, 10, 10, 10, 10, 10, 10, 10})));
  EXPECT_EQ(seite.width(), rundum.width());
  EXPECT_GT(seite.top(), rundum.center().y());
}

TEST(Polardiagramm, UnsinnigeWerteUndWinzigeFlaechen) {
  for (const double wert : {0.0, -5.0, 1e-30, 1e30}) {
    static_cast<void>(Bild(Daten(Polarskala::Abstand, {wert, wert})));
    static_cast<void>(Bild(Daten(Polarskala::Daempfung, {wert, wert})));
  }
  QImage bild(10, 10, QImage::Format_RGB32);
  QPainter maler(&bild);
  polardiagramm::paint(maler, bild.rect(), Daten(Polarskala::Abstand, {1}));
}

}  // namespace
}  // namespace vesk
