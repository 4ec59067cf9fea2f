#include "Farben.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPalette>
#include <QWidget>

namespace vesk {

namespace {

struct Rollen {
  QPalette::ColorRole flaeche;
  QPalette::ColorRole schrift;
};

Rollen RollenVon(const QWidget& widget) {
  if (qobject_cast<const QLineEdit*>(&widget) != nullptr) return {QPalette::Base, QPalette::Text};
  if (qobject_cast<const QAbstractButton*>(&widget) != nullptr)
    return {QPalette::Button, QPalette::ButtonText};
  return {QPalette::Window, QPalette::WindowText};
}

}  // namespace

void Hintergrund(QWidget& widget, const QColor& farbe) {
  const Rollen rollen = RollenVon(widget);
  QPalette palette = widget.palette();
  palette.setColor(rollen.flaeche, farbe);
  palette.setColor(rollen.schrift, Qt::black);
  widget.setPalette(palette);
  if (rollen.flaeche == QPalette::Window) widget.setAutoFillBackground(true);
}

void HintergrundDesThemas(QWidget& widget) {
  widget.setPalette(QPalette());
}

QColor Hintergrundfarbe(const QWidget& widget) {
  return widget.palette().color(RollenVon(widget).flaeche);
}

void Textfarbe(QWidget& widget, const QColor& farbe) {
  QPalette palette = widget.palette();
  palette.setColor(RollenVon(widget).schrift, farbe);
  widget.setPalette(palette);
}

}  // namespace vesk
