#pragma once
#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <array>
#include <bitset>
#include <optional>
#include <vector>

#include "station/Zonen.h"

class QPainter;

/// The plan as a drawing to scale, for screen and paper.
namespace vesk {

/// What of the drawing can be hidden.
enum class Planschicht {
  Hintergrund,
  Raster,
  Grundstuecke,  ///< the own one and the neighbours'
  Bereich,
  Gebaeude,
  Baeume,
  Beschriftungen,
  Antennen,
  OhneHSM,  ///< zones, in the order of Winkelkurve
  HSM306,
  HSMvde,
  Masse,  ///< dimensions of the zones
};
inline constexpr std::size_t AnzahlPlanschichten = 12;
using Planschichten = std::bitset<AnzahlPlanschichten>;

/// One outline of the drawing that was computed.
struct Bildzone {
  Winkelkurve art = Winkelkurve::OhneHSM;
  std::optional<std::size_t> antenne;  ///< index in the plan; none: all of them together
  std::vector<Umriss> umrisse;
  double abstand = 0;  ///< m; of all together: 0
  bool veraltet = false;

  bool operator==(const Bildzone&) const = default;
};

/// Where an antenna radiates to: one main direction, or those that it can be turned to.
struct Bildrichtung {
  std::size_t antenne = 0;  ///< index in the plan
  double von = 0;           ///< degrees from north
  double bis = 0;           ///< clockwise from there; the same: one direction

  bool operator==(const Bildrichtung&) const = default;
};

/// A value: what is drawn.
struct Planbild {
  Lageplan plan;
  std::vector<Bildzone> zonen;
  std::vector<Bildrichtung> richtungen;

  bool operator==(const Planbild&) const = default;
};
Planbild PlanbildVon(const Station& s);

/// What the drawing takes up, in metres with y upwards; without anything on the plan 10 m around its origin.
QRectF Planausdehnung(const Planbild& bild);
/// The same of the side view, from the ground to the highest of it, at least 4 m.
QRectF Seitenausdehnung(const Station& s, double nachRechts);

/// From metres on the plan to units of a painter and back.
struct Planabbildung {
  QPointF ursprung;         ///< where the plan's origin is
  double jeMeter = 1;       ///< painter units
  double jeMillimeter = 1;  ///< painter units of a millimetre of paper, for lines and letters

  QPointF Nach(Punkt punkt) const {
    return {ursprung.x() + punkt.x * jeMeter, ursprung.y() - punkt.y * jeMeter};
  }
  Punkt Von(QPointF punkt) const {
    return {(punkt.x() - ursprung.x()) / jeMeter, (ursprung.y() - punkt.y()) / jeMeter};
  }
};

/// "oHSM", "306", "VDE": on the lines
QString Zonenkuerzel(Winkelkurve art);

/// Kinds of zones are told apart by dashes and letters, areas by hatching; colours only help.
struct Planfarben {
  QColor grund = Qt::white;
  QColor schrift = Qt::black;
  QColor raster{0xD0, 0xD0, 0xD0};
  QColor gebaeude{0xC8, 0xC8, 0xC8};
  std::array<QColor, 3> zonen{Qt::black, Qt::black, Qt::black};  ///< in the order of Winkelkurve
  double punkt = 8;                                              ///< size of the letters
};

/// Nothing is drawn beyond the painter's clip, or without one beyond its viewport. `hintergrund`: the picture
/// of the plan, or none.
void PlanMalen(QPainter& maler, const Planbild& bild, const Planabbildung& abbildung,
               const Planschichten& schichten, const Planfarben& farben = {}, const QImage& hintergrund = {});

/// Seen from the side, x along `nachRechts` (degrees from north), y the height over ground: the ground, the
/// buildings, the controlled area as a line on the ground, masts and zones.
void SeitenansichtMalen(QPainter& maler, const Station& s, double nachRechts, const Planabbildung& abbildung,
                        const Planschichten& schichten, const Planfarben& farben = {});

/// The picture below the plan, as seen from the user's file, no larger than memory and paper need: its
/// deviceIndependentSize is the one that the file has. None: there is none, or `grund` says why it cannot be
/// shown, in German.
QImage PlanhintergrundLaden(const Station& s, QString& grund);

}  // namespace vesk
