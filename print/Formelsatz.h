#pragma once
#include <QLineF>
#include <QString>
#include <vector>

#include "print/Blatt.h"
#include "station/Rechenweg.h"

/// Setting of formulas.
namespace vesk {

/// A measured piece of a formula: a text, strokes, or pieces of it. Millimetres; heights and strokes count
/// from the left end of its base line, down is positive.
struct Kasten {
  double breite = 0;
  double ueber = 0;  ///< above the base line
  double unter = 0;  ///< below it
  QPointF ort{};     ///< of its base line on that of the whole
  QString text{};
  Schrift schrift{};
  double streckung = 1;  ///< of a text, upright
  std::vector<QLineF> striche{};
  std::vector<Kasten> teile{};
};

/// What stands for a quantity.
enum class Einsatz { Symbole, Zahlen };

Kasten Formelkasten(const Ausdruck& formel, Einsatz einsatz, double punkt);
/// Symbol in italics, its index low.
Kasten Symbolkasten(const Groesse& groesse, double punkt);
/// Result = symbols = numbers = value, the first "=" at `gleich` from the left; broken before an "=" where it
/// would be wider than `breite`, smaller where even a side of it alone would.
Kasten Gleichungskasten(const Gleichung& gleichung, double punkt, double gleich, double breite);

/// `grund` is the left end of the base line.
void Malen(Blatt& blatt, QPointF grund, const Kasten& kasten);

}  // namespace vesk
