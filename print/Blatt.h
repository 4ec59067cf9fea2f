#pragma once
#include <QColor>
#include <QPageLayout>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QStringList>
#include <limits>

class QFont;
class QPainter;
class QPen;

/// Drawing on paper. All lengths are millimetres from the upper left corner of the sheet, sizes of letters
/// are points; letters are "Arial" or what the system has with the same widths.
namespace vesk {

enum class Blattformat { Hoch, Quer, HochA3, QuerA3 };  ///< without a name of its own: A4

/// For those who feed the paper; without margins.
QPageLayout Seitenlayout(Blattformat format);
QSizeF Blattgroesse(Blattformat format);
/// Where a page's own content may stand: inside the margins, above the footer. The left margin leaves room
/// for the holes of a file.
QRectF Satzspiegel(Blattformat format);

struct Schrift {
  double punkt = 9;
  bool fett = false;
  bool kursiv = false;
  QColor farbe{0, 0, 0};
};

double Textbreite(const QString& text, const Schrift& schrift);
/// From one base line to the next, resp. from the top of a line to its base line.
double Zeilenhoehe(const Schrift& schrift);
double Oberlaenge(const Schrift& schrift);

/// Lines no wider than `breite`, broken at blanks, a word that is too long anywhere. At least one line,
/// at most `hoechstens`: the rest is left out.
QStringList Umbrechen(const QString& text, const Schrift& schrift, double breite,
                      qsizetype hoechstens = std::numeric_limits<qsizetype>::max());
/// The same style, made smaller until the text fits into one line of `breite`, but not below `mindestens`
/// points.
Schrift Eingepasst(const QString& text, Schrift schrift, double breite, double mindestens);

/// `text` in one line of `breite`, with an ellipsis for what does not fit.
QString Gekuerzt(const QString& text, const Schrift& schrift, double breite);

enum class Buendig { Links, Mitte, Rechts };

/// One page being painted.
class Blatt {
 public:
  /// `maler` stands at the upper left corner of the sheet and counts `jeMillimeter` units to the millimetre.
  Blatt(QPainter& maler, double jeMillimeter);
  ~Blatt();
  Blatt(const Blatt&) = delete;
  Blatt& operator=(const Blatt&) = delete;

  /// `punkt` is on the base line.
  void Text(QPointF punkt, const QString& text, const Schrift& schrift = {},
            Buendig buendig = Buendig::Links);
  /// In one line of `breite`: made smaller, but not below `mindestens` points, and then shortened.
  void Einzeiler(QPointF punkt, double breite, const QString& text, const Schrift& schrift, double mindestens,
                 Buendig buendig = Buendig::Links);
  /// A number whose decimal point, or whose end where it has none, stands right of `punkt`; its digits have
  /// one width. Anything else is centred at the point.
  void Zahl(QPointF punkt, const QString& text, const Schrift& schrift = {});
  /// Broken lines from the upper left corner. Returns their height.
  double Absatz(QPointF ecke, double breite, const QString& text, const Schrift& schrift = {});

  void Linie(QPointF von, QPointF bis, double staerke = 0.15, const QColor& farbe = Qt::black);
  void Rahmen(const QRectF& flaeche, double staerke = 0.15);
  void Flaeche(const QRectF& flaeche, const QColor& farbe);

  /// For what is drawn otherwise; counts `Einheit` units to the millimetre.
  QPainter& Maler() { return maler_; }
  static constexpr double Einheit = 100;

 private:
  QPainter& maler_;
};

/// The font of a style in the units of Blatt::Maler().
QFont Papierschrift(const Schrift& schrift);

}  // namespace vesk
