#include "ui/basis/Anzeige.h"

#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QVariant>
#include <algorithm>

#include "station/Ergebniswerte.h"
#include "ui/basis/Farben.h"

using namespace Qt::StringLiterals;

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

/// What a colour says, for those who cannot tell it from the others: a sign at the head of the field.
struct Farbzeichen {
  QColor farbe;
  char16_t zeichen;
  QStringView sinn;
};
constexpr Farbzeichen Zeichen[] = {
    {farben::Rot, u'!', u"Angabe fehlt"},
    {farben::Nahfeld, u'N', u"im Nahfeld"},
};

QIcon Bild(QChar zeichen, const QWidget& feld) {
  constexpr int Groesse = 16;
  QPixmap bild(QSize(Groesse, Groesse) * feld.devicePixelRatioF());
  bild.setDevicePixelRatio(feld.devicePixelRatioF());
  bild.fill(Qt::transparent);
  QPainter maler(&bild);
  QFont schrift = feld.font();
  schrift.setPixelSize(std::min(feld.fontInfo().pixelSize(), Groesse));
  schrift.setBold(true);
  maler.setFont(schrift);
  maler.drawText(QRect(0, 0, Groesse, Groesse), Qt::AlignCenter, zeichen);
  return QPixmap(bild);
}

void Bezeichnen(QLineEdit& feld, const QColor& grund) {
  for (const Farbzeichen& art : Zeichen) {
    const QString name = u"zeichen"_s + art.zeichen;
    auto* zeichen = feld.findChild<QAction*>(name, Qt::FindDirectChildrenOnly);
    const bool zeigen = art.farbe == grund;
    if (zeichen == nullptr && zeigen) {
      zeichen = feld.addAction(Bild(art.zeichen, feld), QLineEdit::LeadingPosition);
      zeichen->setObjectName(name);
      zeichen->setText(art.sinn.toString());
    }
    if (zeichen != nullptr) zeichen->setVisible(zeigen);
  }
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
  // Names of files, cables and antennas may look like markup.
  label.setTextFormat(Qt::PlainText);
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
  palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 170));
  widget.setPalette(palette);
  if (auto* feld = qobject_cast<QLineEdit*>(&widget)) Bezeichnen(*feld, grund);
  if (rollen.flaeche == QPalette::Window) widget.setAutoFillBackground(true);
}

void ThemaFaerben(QWidget& widget) {
  if (!widget.testAttribute(Qt::WA_SetPalette)) return;
  widget.setPalette(QPalette());
  if (auto* feld = qobject_cast<QLineEdit*>(&widget)) Bezeichnen(*feld, QColor());
}

void ErgebnisFaerben(QLineEdit& feld, const QColor& grund, bool veraltet, const QColor& schrift) {
  Faerben(feld, grund, veraltet ? farben::Veraltet : schrift);
  if (feld.font().italic() != veraltet) {
    QFont art;
    if (veraltet) art.setItalic(true);
    feld.setFont(art);
  }
  feld.setProperty("Veraltet", veraltet);
}

void ErgebnisZeigen(QLineEdit& feld, const Ergebniswert& wert, const QColor& grund) {
  if (const QString name = QString::fromStdString(wert.name); name != feld.accessibleName()) {
    feld.setAccessibleName(name);
  }
  Schreiben(feld, wert.text);
  ErgebnisFaerben(feld, grund, wert.veraltet);
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
