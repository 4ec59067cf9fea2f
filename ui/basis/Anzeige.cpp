#include "ui/basis/Anzeige.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QVariant>

#include "ui/basis/Farben.h"

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

template <typename Control>
void TextSetzen(Control& control, const std::string& text) {
  if (const QString neu = QString::fromStdString(text); neu != control.text()) control.setText(neu);
}

}  // namespace

void Schreiben(QLineEdit& feld, const std::string& text) {
  const QString neu = QString::fromStdString(text);
  const QString alt = feld.text();
  if (neu == alt) return;
  const bool nurSchreibweise = neu.compare(alt, Qt::CaseInsensitive) == 0;
  const int schreibmarke = nurSchreibweise ? feld.cursorPosition() : 0;
  feld.setText(neu);
  feld.setCursorPosition(schreibmarke);
}

void Schreiben(QLabel& label, const std::string& text) {
  TextSetzen(label, text);
}

void Schreiben(QAbstractButton& knopf, const std::string& text) {
  TextSetzen(knopf, text);
}

void Faerben(QWidget& widget, const QColor& grund, const QColor& schrift) {
  const Rollen rollen = RollenVon(widget);
  QPalette palette = widget.palette();
  const bool gesetzt = widget.testAttribute(Qt::WA_SetPalette);
  if (gesetzt && palette.color(rollen.flaeche) == grund && palette.color(rollen.schrift) == schrift) return;
  palette.setColor(rollen.flaeche, grund);
  palette.setColor(rollen.schrift, schrift);
  widget.setPalette(palette);
  if (rollen.flaeche == QPalette::Window) widget.setAutoFillBackground(true);
}

void ThemaFaerben(QWidget& widget) {
  if (widget.testAttribute(Qt::WA_SetPalette)) widget.setPalette(QPalette());
}

void ErgebnisFaerben(QLineEdit& feld, const QColor& grund, bool veraltet, const QColor& schrift) {
  Faerben(feld, grund, veraltet ? farben::Veraltet : schrift);
  feld.setProperty("Veraltet", veraltet);
}

void Ankreuzen(QAbstractButton& knopf, bool an) {
  if (knopf.isChecked() == an) return;
  QButtonGroup* gruppe = an ? nullptr : knopf.group();
  const bool gruppeAllein = gruppe != nullptr && gruppe->exclusive();
  const bool allein = knopf.autoExclusive();
  if (gruppeAllein) gruppe->setExclusive(false);
  if (!an) knopf.setAutoExclusive(false);
  knopf.setChecked(an);
  knopf.setAutoExclusive(allein);
  if (gruppeAllein) gruppe->setExclusive(true);
}

}  // namespace vesk
