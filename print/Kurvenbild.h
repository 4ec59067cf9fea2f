#pragma once
#include <QColor>
#include <QString>
#include <array>
#include <vector>

#include "print/Blatt.h"
#include "station/Kurven.h"

/// A chart of curves on two logarithmic axes, for screen and paper.
namespace vesk {

/// Curves are told apart by dashes and marks; colours only help.
inline constexpr std::size_t AnzahlKurvenstile = 5;

struct Bildpunkt {
  double x = 0;
  double y = 0;
  bool voll = false;  ///< a filled mark: where the station is

  bool operator==(const Bildpunkt&) const = default;
};

struct Bildkurve {
  QString name;  ///< of the legend
  std::size_t stil = 0;
  Kurve linie;
  std::vector<Bildpunkt> punkte;

  bool operator==(const Bildkurve&) const = default;
};

/// A frequency or power that matters, as a line through the whole chart.
struct Bildmarke {
  double x = 0;
  QString name;
  bool betont = false;

  bool operator==(const Bildmarke&) const = default;
};

/// `von` < `bis`, both greater than 0.
struct Bildachse {
  QString titel;  ///< with its unit
  double von = 1;
  double bis = 10;

  bool operator==(const Bildachse&) const = default;
};

struct Kurvenbild {
  QString titel;
  QString untertitel;
  Bildachse x;
  QString y;  ///< title of the other axis; it reaches as far as the values
  std::vector<Bildkurve> kurven;
  std::vector<Bildmarke> marken;
  QString leer;  ///< stands in the place of a chart without curves

  bool operator==(const Kurvenbild&) const = default;
};

struct Bildfarben {
  QColor grund = Qt::white;
  QColor schrift = Qt::black;
  QColor gitter{0xA0, 0xA0, 0xA0};
  QColor feingitter{0xD0, 0xD0, 0xD0};
  std::array<QColor, AnzahlKurvenstile> kurven{Qt::black, Qt::black, Qt::black, Qt::black, Qt::black};
  double punkt = 8;  ///< size of the letters
};

/// `flaeche` in mm. Without `farben` black on white.
void KurvenbildMalen(Blatt& blatt, const QRectF& flaeche, const Kurvenbild& bild,
                     const Bildfarben& farben = {});

/// What the legend says, for those who do not see it.
QString Bildtext(const Kurvenbild& bild);

}  // namespace vesk
