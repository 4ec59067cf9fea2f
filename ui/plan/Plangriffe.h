#pragma once
#include <QColor>

#include "print/Planbild.h"
#include "station/Planbearbeitung.h"

/// What lies over the plan while it is edited: the chosen object with its handles and what is being drawn.
namespace vesk {

struct Grifffarben {
  QColor strich;
  QColor grund;  ///< below letters
};

/// `bewegt`: the mouse holds it; then it tells the lengths of the edges that change with it.
void WahlMalen(QPainter& maler, const Planabbildung& abbildung, const Lageplan& plan, const Planstelle& wahl,
               bool bewegt, const Grifffarben& farben);

/// Where positions are told from, also when it has no name.
void BezugMalen(QPainter& maler, const Planabbildung& abbildung, Punkt bezug, const QColor& farbe);

/// `ecken` and the edge from the last of them to `zeiger`, with its length.
void StrichMalen(QPainter& maler, const Planabbildung& abbildung, const Lageplan& plan, const Umriss& ecken,
                 Punkt zeiger, const Grifffarben& farben);

}  // namespace vesk
