#pragma once
#include <QStringView>
#include <span>

#include "platform/Plattform.h"

class QWidget;

namespace vesk {

/// One row of a window's tooltip table. `name` is an object name; of a control array the name before "_",
/// then every element gets the text. In a grid, of which one index runs through all cells, `teiler` and
/// `rest` pick the elements whose index leaves that remainder.
struct Feldhilfe {
  QStringView name;
  QStringView text;
  int teiler = 1;
  int rest = 0;
};

/// Writes the table's texts to the controls of `fenster`, or empties exactly those tooltips. Screen readers
/// are told them in both cases.
void TooltipsSetzen(QWidget& fenster, std::span<const Feldhilfe> tabelle, bool an);

/// Disables a control and says why, instead of its tooltip and also when tooltips are off; with no reason it
/// can be used.
void Sperren(QWidget& control, const QString& grund);

/// One row of a window's table of help context numbers.
struct Hilfenummer {
  QStringView name;
  int kontext;
};

void HilfenummernSetzen(QWidget& fenster, std::span<const Hilfenummer> tabelle);

}  // namespace vesk
