#pragma once
#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "print/Kurvenbild.h"

class QPainter;
class QRectF;

namespace vesk {

inline constexpr std::size_t PolarSektoren = 9;

/// One quantity over the sectors of 10 degrees, from the main direction to 90 degrees.
struct Polarkurve {
  QString name{};        ///< of the legend
  std::size_t stil = 0;  ///< its colour
  Qt::PenStyle strich = Qt::SolidLine;
  std::array<std::optional<double>, PolarSektoren> werte{};
  bool veraltet = false;  ///< of other inputs than those shown: grey
};

/// What the radius means.
enum class Polarskala {
  Daempfung,  ///< dB below the main lobe: 0 at the rim, growing inwards
  Abstand,    ///< 0 in the centre, growing outwards
};

/// A true scale, for paper.
struct Polarmassstab {
  double jeEinheit;  ///< painter units for one unit of the curves
  double rand;       ///< radius of the picture in painter units; no curve goes beyond it
};

struct Polardaten {
  QString titel;  ///< may be empty
  QString einheit;
  Polarskala skala = Polarskala::Abstand;
  std::vector<Polarkurve> kurven;  ///< later ones lie on top
  /// Of distances; a bar scale takes the place of the legend. None: as large as the area allows.
  std::optional<Polarmassstab> massstab = std::nullopt;
};

namespace polardiagramm {

/// Draws the front half, mirrored about the main direction (up). The font is the painter's. Without `farben`
/// black on white.
void paint(QPainter& maler, const QRectF& flaeche, const Polardaten& daten, const Bildfarben& farben = {});

}  // namespace polardiagramm
}  // namespace vesk
