#pragma once
#include <QFont>
#include <QLineF>
#include <QPen>
#include <QPolygonF>
#include <QStringList>
#include <utility>
#include <vector>

#include "print/Planbild.h"

/// What plan, side view and legend are drawn of.
namespace vesk {

/// Draws nothing beyond `flaeche`, so that neither paper nor screen has to cut.
struct Planzeichner {
  Planzeichner(QPainter& maler, const Planabbildung& abbildung, const Planfarben& farben);

  /// mm of paper in units of the painter
  double mm(double laenge) const { return laenge * abbildung.jeMillimeter; }
  QPolygonF Nach(const Umriss& umriss) const;
  /// Lengths in mm; `striche`: dashes and the gaps behind them.
  QPen Stift(const QColor& farbe, double staerke, const std::vector<double>& striche = {}) const;

  void Umrissen(const QPolygonF& ecken, const QPen& stift) const;
  void Linie(const QLineF& linie, const QPen& stift) const;
  /// Lines `abstand` mm apart, turned by `grad` from the horizontal.
  void Schraffieren(const QPolygonF& ecken, double grad, double abstand, const QPen& stift) const;
  /// Short strokes inwards along the edge.
  void RandSchraffieren(const QPolygonF& ecken, const QPen& stift) const;
  /// Filled with the ground; `radius` in mm.
  void Kreis(QPointF mitte, double radius, const QPen& stift) const;

  QPainter& maler;
  Planabbildung abbildung;
  Planfarben farben;
  QRectF flaeche;  ///< what can be seen
};

/// `anteil` of the second colour.
QColor Gemischt(const QColor& eine, const QColor& andere, double anteil);

/// What bears a text, and the points that are to be seen of it.
struct Bezeichnet {
  QStringList zeilen;
  QPolygonF ecken;
  QColor farbe;
};

/// Texts of one drawing, each where it covers least of the others.
class Schilder {
 public:
  explicit Schilder(const Planzeichner& zeichner) : zeichner_(zeichner) {}

  void Freihalten(const QRectF& platz) { belegt_.push_back(platz); }
  /// Lines centred around one of the places, the first ones preferred; never beyond what can be seen. What
  /// they take up there.
  QRectF Setzen(const QStringList& zeilen, const std::vector<QPointF>& orte, const QColor& farbe,
                bool fett = false);
  /// Too small to bear its text.
  bool Klein(const Bezeichnet& zeichen) const;
  /// Small ones have their texts beside them; the smallest stay free of letters.
  void Beschriften(std::vector<Bezeichnet> zeichen);
  /// A line from what letters take up to what they belong to, unless they stand there.
  void Hinweisen(const QRectF& platz, const QPolygonF& ecken, const QColor& farbe);
  /// What such lines take up.
  QSizeF Groesse(const QStringList& zeilen, bool fett = false) const;

 private:
  QFont Font(bool fett) const;
  double Anteil(const Bezeichnet& zeichen) const;
  void Danebensetzen(const Bezeichnet& zeichen);

  const Planzeichner& zeichner_;
  std::vector<QRectF> belegt_;
};

/// Places for a text of this size: right of a point, then around it, nearer and farther.
std::vector<QPointF> Nebenorte(QPointF punkt, QSizeF groesse, double luft);
/// Behind places on a line around `mitte` those beside it, farther from there.
std::vector<QPointF> MitAussenorten(std::vector<QPointF> orte, QPointF mitte, QSizeF groesse);

/// Without its texts.
void ObjektMalen(const Planzeichner& zeichner, const Planobjekt& objekt);
void Gebaeudeschraffur(const Planzeichner& zeichner, const QPolygonF& ecken, Nutzung nutzung);
void BezugspunktMalen(const Planzeichner& zeichner, QPointF ort);
/// "E", "N", "A": in the buildings
QString Nutzungskuerzel(Nutzung nutzung);
/// What stands in a building or beside a tree, its height below; `breite`: mm.
QStringList Objektzeilen(const Planobjekt& objekt, double breite = 42);

/// `zusammen`: of all antennas together.
QPen Zonenstift(const Planzeichner& zeichner, Winkelkurve art, bool zusammen, bool veraltet);
bool Sichtbar(const Planschichten& schichten, Winkelkurve art);
bool Sichtbar(const Planschichten& schichten, Planschicht schicht);
void ZonenMalen(const Planzeichner& zeichner, const Planbild& bild, const Planschichten& schichten);
void ZonenBeschriften(const Planzeichner& zeichner, const Planbild& bild, const Planschichten& schichten,
                      Schilder& schilder);
/// "2: VDE 8.35 m"
QString Zonentext(const Planbild& bild, const Bildzone& zone);

/// "1", "2" … in the order of the plan; "1 Vertikal" with its name.
QString Antennennummer(const Lageplan& plan, std::size_t antenne);
QString Antennentext(const Lageplan& plan, std::size_t antenne);

/// "8.35", as the data sheet rounds it
QString Planzahl(double meter);
/// The multiples of `schritt` from `von` to `bis`.
std::vector<double> Vielfache(double schritt, double von, double bis);
/// A round number of metres, no less than `mindestens`.
double RundeMeter(double mindestens);

}  // namespace vesk
