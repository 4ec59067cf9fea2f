#pragma once
#include <QStringList>
#include <functional>
#include <vector>

#include "print/Blatt.h"
#include "print/Planteile.h"

/// What stands around the plan on paper. Lengths are mm.
namespace vesk {

/// The largest usual scale 1 : n with which `meter` fit on `platz`, and none larger than `gewuenscht`, unless
/// that is 0. A wish that fits is fulfilled.
int Planmassstab(QSizeF meter, QSizeF platz, int gewuenscht);

/// From metres to the units of Blatt::Maler(), the middle of the metres in the middle of the place.
Planabbildung Papierabbildung(const QRectF& meter, const QRectF& platz, int massstab);

struct Legendenzeile {
  QString text;
  /// Draws a sample in 8 x 3 metres, of which one is a millimetre.
  std::function<void(const Planzeichner&)> muster;
};
using Legende = std::vector<Legendenzeile>;
/// Only what is on the plan.
Legende LegendeVon(const Planbild& bild);
double Legendenhoehe(const Legende& legende);
void LegendeMalen(Blatt& blatt, const QRectF& platz, const Legende& legende);

/// `nord`: degrees clockwise from upwards.
void NordpfeilMalen(Blatt& blatt, QPointF mitte, double nord);
inline constexpr double Nordpfeilhoehe = 22;
/// Five parts of a round length, 30 to 75 mm in all.
void MassstabsbalkenMalen(Blatt& blatt, QPointF ecke, int massstab);
inline constexpr double Balkenhoehe = 8;

/// Captions with their texts in a frame.
using Schriftfeld = std::vector<std::pair<QString, QString>>;
double Schriftfeldhoehe(const Schriftfeld& feld);
void SchriftfeldMalen(Blatt& blatt, const QRectF& platz, const Schriftfeld& feld);

}  // namespace vesk
