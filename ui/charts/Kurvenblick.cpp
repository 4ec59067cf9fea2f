#include "ui/charts/Kurvenblick.h"

#include <QApplication>
#include <QPainter>
#include <utility>

#include "ui/basis/Zugang.h"

namespace vesk {

namespace {

constexpr double ZollInMillimeter = 25.4;

// Green, yellow and red as in the main window: without pacemaker, HSM VDE, HSM 306.
constexpr std::array<QColor, AnzahlKurvenstile> AufHell = {QColor(0x00, 0x78, 0x3C), QColor(0xA0, 0x68, 0x00),
                                                           QColor(0xC0, 0x20, 0x20), QColor(0x20, 0x58, 0xC0),
                                                           QColor(0x80, 0x30, 0xA0)};
constexpr std::array<QColor, AnzahlKurvenstile> AufDunkel = {
    QColor(0x60, 0xE0, 0x90), QColor(0xF0, 0xD0, 0x40), QColor(0xFF, 0x80, 0x80), QColor(0x80, 0xB8, 0xFF),
    QColor(0xD8, 0xA0, 0xFF)};

QColor Gemischt(const QColor& a, const QColor& b, double anteilB) {
  const auto mischen = [&](int x, int y) { return qRound(x * (1 - anteilB) + y * anteilB); };
  return {mischen(a.red(), b.red()), mischen(a.green(), b.green()), mischen(a.blue(), b.blue())};
}

}  // namespace

Bildfarben FarbenAus(const QPalette& palette) {
  constexpr double Gitter = 0.4;
  constexpr double Feingitter = 0.18;
  constexpr double Punkt = 8.5;
  const QColor grund = palette.color(QPalette::Base);
  const QColor schrift = palette.color(QPalette::Text);
  const bool dunkel = grund.lightness() < schrift.lightness();
  return {.grund = grund,
          .schrift = schrift,
          .gitter = Gemischt(grund, schrift, Gitter),
          .feingitter = Gemischt(grund, schrift, Feingitter),
          .kurven = dunkel ? AufDunkel : AufHell,
          .punkt = Punkt};
}

Kurvenblick::Kurvenblick(QWidget* eltern) : QWidget(eltern) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  ZugangsrolleSetzen(*this, QAccessible::Graphic);
}

void Kurvenblick::Zeigen(Maler maler, const QString& text) {
  maler_ = std::move(maler);
  setAccessibleDescription(text);
  update();
}

QSize Kurvenblick::sizeHint() const {
  return {80 * fontMetrics().averageCharWidth(), 20 * fontMetrics().height()};
}

QSize Kurvenblick::minimumSizeHint() const {
  return {30 * fontMetrics().averageCharWidth(), 9 * fontMetrics().height()};
}

void Kurvenblick::paintEvent(QPaintEvent* /*ereignis*/) {
  constexpr double Rand = 1.5;  // mm
  QPainter maler(this);
  const Bildfarben farben = FarbenAus(palette());
  maler.fillRect(rect(), farben.grund);
  // In a window that has been made to fit the screen, the chart gets smaller with the letters.
  const double jeMillimeter =
      logicalDpiX() / ZollInMillimeter * fontMetrics().height() / QFontMetrics(QApplication::font()).height();
  if (maler_) {
    Blatt blatt(maler, jeMillimeter);
    const QRectF flaeche(QPointF(0, 0), QSizeF(size()) / jeMillimeter);
    maler_(blatt, flaeche.adjusted(Rand, Rand, -Rand, -Rand), farben);
  }
  maler.setPen(palette().color(QPalette::Mid));
  maler.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace vesk
