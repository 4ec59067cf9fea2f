#pragma once
#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "station/Datenblattspalte.h"
#include "station/Winkeltabelle.h"

/// The plot of the station, drawn to scale. Lengths are metres, angles are degrees from north, clockwise.
namespace vesk {

/// On the drawing: x to the right, y upwards.
struct Punkt {
  double x = 0;
  double y = 0;

  bool operator==(const Punkt&) const = default;
};

/// Corners of a closed outline, the first one not repeated, in either sense of turning.
using Umriss = std::vector<Punkt>;

enum class Planart { Grundstueck, Bereich, Gebaeude, Nachbar, Baum, Beschriftung, Antenne };
inline constexpr std::size_t AnzahlPlanarten = 7;

/// What a kind of object has.
struct Planartzeile {
  const char* name;
  const char* mehrzahl;
  const char* kennung;  ///< in the file
  bool umriss;          ///< an outline; otherwise one point
  bool hoehe;
};
inline constexpr std::array<Planartzeile, AnzahlPlanarten> Planarten = {{
    {"Grundstück", "Grundstücke", "grundstueck", true, false},
    {"Kontrollierter Bereich", "Kontrollierte Bereiche", "bereich", true, false},
    {"Gebäude", "Gebäude", "gebaeude", true, true},
    {"Nachbargrundstück", "Nachbargrundstücke", "nachbar", true, false},
    {"Baum", "Bäume", "baum", false, true},
    {"Beschriftung", "Beschriftungen", "beschriftung", false, false},
    {"Antenne", "Antennen", "antenne", false, false},
}};
constexpr const Planartzeile& Artzeile(Planart art) {
  return Planarten.at(static_cast<std::size_t>(art));
}

/// Who is in a building.
enum class Nutzung { Eigen, Nachbar, Andere };
inline constexpr std::array<const char*, 3> Nutzungsnamen = {"eigenes", "des Nachbarn", "anderes"};

/// Anything on the plan. Height over ground and main direction of an antenna are those of rows 1 and 2 of its
/// columns.
struct Planobjekt {
  Planart art = Planart::Gebaeude;
  std::string name;  ///< UTF-8; what a label says, whose a plot is and how it is used
  Umriss punkte;
  double hoehe = 0;   ///< of buildings and trees
  double radius = 0;  ///< of a tree's crown
  Nutzung nutzung = Nutzung::Eigen;

  std::bitset<AnzahlSpalten> spalten;  ///< that an antenna serves, A first
  bool drehbar = false;
  double von = 0;  ///< main directions of a rotatable antenna, clockwise from here
  double bis = 360;
  Winkelebene ebene = Winkelebene::Keine;  ///< of its columns' angle tables; none: they are not used

  std::string rest;  ///< JSON object of what another version has written here

  bool operator==(const Planobjekt&) const = default;
};

/// WGS 84, degrees.
struct Geopunkt {
  double laenge = 0;  ///< east
  double breite = 0;  ///< north

  bool operator==(const Geopunkt&) const = default;
};

/// A map or an aerial picture below the drawing, with two points of it whose distance is known.
struct Hintergrund {
  std::string datei;                ///< path, as seen from the plan's file
  std::array<Punkt, 2> bildpunkte;  ///< picture elements from its upper left corner, y downwards
  double abstand = 0;               ///< of the two
  Punkt ort;                        ///< where the first of them lies on the plan
  double deckung = 0.5;             ///< 0: invisible to 1

  std::string rest;

  bool operator==(const Hintergrund&) const = default;
};

enum class Planformat { A4, A3 };

struct Lageplan {
  std::vector<Planobjekt> objekte;
  Punkt bezug;                  ///< that positions are told from
  std::string bezugsname;       ///< "Grenzstein Südwest"
  std::optional<Geopunkt> geo;  ///< of the reference point
  double nord = 0;              ///< where north is: degrees clockwise from upwards
  std::optional<Hintergrund> hintergrund;
  bool summe = false;  ///< the antennas can be used at the same time
  Planformat format = Planformat::A4;
  int massstab = 0;  ///< n of 1 : n on paper; 0: the largest usual one that fits

  std::string rest;

  bool operator==(const Lageplan&) const = default;
};

namespace plangrenzen {
inline constexpr double Ort = 10'000;  ///< m from the origin, in both directions
inline constexpr double Hoehe = 1'000;
inline constexpr double Radius = 100;
inline constexpr std::size_t Objekte = 500;
inline constexpr std::size_t Ecken = 1'000;  ///< of one outline
inline constexpr std::size_t AlleEcken = 5'000;
inline constexpr std::size_t Textlaenge = 200;  ///< characters
inline constexpr int Bildseite = 20'000;        ///< picture elements
}  // namespace plangrenzen

/// Scales of the paper; 0 fits.
inline constexpr std::array<int, 6> Planmassstaebe = {0, 100, 200, 250, 500, 1000};

inline bool LageplanLeer(const Lageplan& plan) {
  return plan == Lageplan{};
}

/// 0 <= result < 360.
double Vollkreis(double grad);
/// Unit vector on the drawing of a direction from north.
Punkt Richtung(const Lageplan& plan, double azimut);
/// Direction from north of a vector on the drawing. Of none: north.
double Azimut(const Lageplan& plan, Punkt vektor);
/// "N", "NO" … of a direction from north.
const char* Himmelsrichtung(double azimut);

/// What makes an object useless, as a German sentence without its name; none: it is sound. What is wrong is
/// kept and shown, but counts as if it were not there.
std::optional<std::string> Planfehler(const Planobjekt& objekt);
/// What lies beyond the limits above, as a whole German sentence; none: the plan can be worked with.
std::optional<std::string> Planueberschreitung(const Lageplan& plan);

/// "Gebäude „Garage“", without a name "Gebäude 2".
std::string Objektname(const Lageplan& plan, std::size_t objekt);
/// "Antenne „Vertikal“ (Spalten A, C)" has this list: "A, C".
std::string Spaltenliste(const Planobjekt& antenne);

}  // namespace vesk
