#pragma once
#include <QString>
#include <vector>

#include "print/Kurvenbild.h"

/// The logarithmic axes of a chart.
namespace vesk {

/// One axis on the paper: `laenge` mm from `anfang`, which may run upwards.
struct Achsenskala {
  double von, bis;
  double anfang, laenge;

  double Ort(double wert) const;
  /// mm
  double Dekade() const;
};

/// A round number of the axis, with its first digit.
struct Achsenstrich {
  double wert;
  int ziffer;
};
std::vector<Achsenstrich> Achsenstriche(const Achsenskala& skala);
QString Achsenzahl(double wert);
/// Whether the axis has room for a number that takes `platz` mm of it.
bool Beschriftet(const Achsenstrich& strich, double dekade, double platz);

/// The range of all values in round numbers, no less than a decade.
Bildachse Wertebereich(const Kurvenbild& bild);

}  // namespace vesk
