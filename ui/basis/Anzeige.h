#pragma once
#include <QColor>
#include <string>

class QAbstractButton;
class QLabel;
class QLineEdit;
class QWidget;

/// Writing to controls: each writes only what differs from what is there, so that cursor, selection and
/// focus of the user survive.
namespace vesk {

struct Ergebniswert;

/// UTF-8. A changed field shows its head, not its tail; under the user's hands the cursor stays when only
/// the case of the letters changes.
void Schreiben(QLineEdit& feld, const std::string& text);
void Schreiben(QLabel& label, const std::string& text);
void Schreiben(QAbstractButton& knopf, const std::string& text);

/// Background through the palette (Base of fields, Button of buttons, Window of labels). The text is black,
/// so that pale colours stay readable in a dark theme. A field whose colour warns bears a sign, too.
void Faerben(QWidget& widget, const QColor& grund, const QColor& schrift = Qt::black);
/// Background and text colour of the theme again.
void ThemaFaerben(QWidget& widget);
/// A result that does not belong to the inputs beside it is grey and slanted, and bears the property
/// "Veraltet".
void ErgebnisFaerben(QLineEdit& feld, const QColor& grund, bool veraltet, const QColor& schrift = Qt::black);
/// Text and name, too.
void ErgebnisZeigen(QLineEdit& feld, const Ergebniswert& wert, const QColor& grund);

/// Also takes the mark from the only checked button of an exclusive group.
void Ankreuzen(QAbstractButton& knopf, bool an);

}  // namespace vesk
