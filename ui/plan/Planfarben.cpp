#include "ui/plan/Planfarben.h"

#include <QApplication>

#include "ui/charts/Kurvenblick.h"

namespace vesk {

Planfarben PlanfarbenAus(const QPalette& palette) {
  const Bildfarben farben = FarbenAus(palette);
  return {.grund = farben.grund,
          .schrift = farben.schrift,
          .raster = farben.feingitter,
          .gebaeude = farben.gitter,
          .zonen = {farben.kurven[0], farben.kurven[2], farben.kurven[1]},
          .punkt = farben.punkt};
}

double Bildschirmmass(const QWidget& widget) {
  constexpr double ZollInMillimeter = 25.4;
  return widget.logicalDpiX() / ZollInMillimeter * widget.fontMetrics().height() /
         QFontMetrics(QApplication::font()).height();
}

}  // namespace vesk
