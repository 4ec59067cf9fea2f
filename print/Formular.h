#pragma once
#include <array>
#include <functional>
#include <vector>

#include "print/Mappe.h"
#include "station/Datenblatt.h"

/// What the two forms of the data sheet share: captions and seven columns below their letters, the operator
/// above them, notes below.
namespace vesk {

/// With colours and rules between groups of rows, or black with a frame around every cell.
enum class Formart { Eigene, Behoerde };

/// What is to be known of a column beside its texts.
struct Spaltenlage {
  bool benutzt = false;
  bool rueckwaerts = false;    ///< its power was computed from its distance
  bool veraltet = false;       ///< its distances do not belong to its inputs
  bool ohneGrenzwert = false;  ///< a pacemaker distance is missing for want of a limit
};
using Spaltenlagen = std::array<Spaltenlage, AnzahlSpalten>;
Spaltenlagen LagenDerSpalten(const Station& s);

/// What the end of a page does not tear apart.
struct Streifen {
  double hoehe = 0;  ///< mm
  std::function<void(Blatt&, double oben)> malen;
  bool imGitter = false;  ///< stands below the letters
};
using Streifenfolge = std::vector<Streifen>;
inline void Anhaengen(Streifenfolge& folge, const Streifenfolge& weitere) {
  folge.insert(folge.end(), weitere.begin(), weitere.end());
}

struct Gitterzelle {
  QString text;
  QColor farbe{0, 0, 0};
};
struct Gitterzeile {
  QString nummer = {};
  QString beschriftung = {};
  std::array<Gitterzelle, AnzahlSpalten> zellen = {};
  double linie = 0;  ///< thickness of a rule above it, mm
};
inline constexpr double Hauptlinie = 0.35;
inline constexpr double Nebenlinie = 0.1;
/// `luft` mm are left free above and below the text.
Streifenfolge Gitterstreifen(const Gitterzeile& zeile, Formart art, double luft);
/// The twelve rows.
Streifenfolge Datenblattstreifen(const Station& s, const Spaltenlagen& lagen, Formart art);

/// The notes that hold for columns.
Streifenfolge Hinweisstreifen(const Spaltenlagen& lagen, Formart art);
/// "Spalte B: …", "Spalten A, B und D: …"; nothing without a column.
Streifenfolge Spaltenhinweis(const std::vector<int>& spalten, const QString& satz);
inline Streifen Abstandstreifen(double hoehe) {
  return {hoehe, [](Blatt&, double) {}};
}
/// What the operator has stated, or a line to write it on.
Streifenfolge Angabestreifen(const QString& beschriftung, const std::vector<std::string>& angaben);

/// Pages in landscape; the letters stand above the rows of each.
Dokument Formular(const QString& titel, const Station& s, const Spaltenlagen& lagen, Formart art,
                  const Streifenfolge& folge);

}  // namespace vesk
