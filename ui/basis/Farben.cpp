#include "Farben.h"

#include <QLineEdit>
#include <QPalette>
#include <QWidget>

namespace vesk {

namespace {

bool IstFeld(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr;
}

QPalette::ColorRole Flaeche(const QWidget& widget) {
  return IstFeld(widget) ? QPalette::Base : QPalette::Window;
}

QPalette::ColorRole Schrift(const QWidget& widget) {
  return IstFeld(widget) ? QPalette::Text : QPalette::WindowText;
}

}  // namespace

void Hintergrund(QWidget& widget, const QColor& farbe) {
  QPalette palette = widget.palette();
  palette.setColor(Flaeche(widget), farbe);
  palette.setColor(Schrift(widget), Qt::black);
  widget.setPalette(palette);
  if (!IstFeld(widget)) widget.setAutoFillBackground(true);
}

void HintergrundDesThemas(QWidget& widget) {
  widget.setPalette(QPalette());
}

QColor Hintergrundfarbe(const QWidget& widget) {
  return widget.palette().color(Flaeche(widget));
}

void Textfarbe(QWidget& widget, const QColor& farbe) {
  QPalette palette = widget.palette();
  palette.setColor(Schrift(widget), farbe);
  widget.setPalette(palette);
}

}  // namespace vesk
