#pragma once
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "station/Flaechen.h"
#include "station/Zonen.h"

/// Whether the zones stay where the operator can keep people out.
namespace vesk {

enum class Passt {
  ImGrundriss,  ///< at every height
  InDerHoehe,   ///< it leaves the area only above people, and above or below what stands there
  Nicht,
};

/// Where a zone is among people whom the operator cannot keep out.
struct Verstoss {
  Punkt ort;         ///< the farthest
  double ueber = 0;  ///< m beyond the edge of the area; m that a building is inside the zone
  std::optional<std::size_t> gebaeude;  ///< index in the plan; none: over ground

  bool operator==(const Verstoss&) const = default;
};

struct Passung {
  Passt passt = Passt::ImGrundriss;
  double imGrundriss = 0;  ///< m beyond the edge of the area at any height
  std::vector<Verstoss> verstoesse;

  bool operator==(const Passung&) const = default;
};

/// What a zone is checked against: the controlled areas as one, and the buildings of others, which are never
/// controlled. Only sound outlines count.
struct Planpruefung {
  explicit Planpruefung(const Lageplan& plan);

  struct Haus {
    std::size_t objekt;  ///< index in the plan
    Umriss umriss;
    Gebiet gebiet;
    double hoehe;  ///< m; of one that tells none the greatest there is
  };
  Gebiet bereich;
  std::vector<Haus> haeuser;
};

/// Less than this beyond an edge is none: distances are told in centimetres.
inline constexpr double Passungstoleranz = 0.005;  // m

/// The outlines of what is checked at any of the heights, without heights at all.
using Schnitt = std::function<std::vector<Umriss>(const std::optional<Hoehen>&)>;

Passung PassungPruefen(const Planpruefung& pruefung, const Schnitt& schnitt);
Passung PassungPruefen(const Planpruefung& pruefung, const Lageplan& plan, const Zone& zone);
/// Whether it is anything but Passt::Nicht, which is found faster.
bool Passend(const Planpruefung& pruefung, const Lageplan& plan, const Zone& zone);

/// What would make a zone fit, each alone; what has no value does not help.
struct Abhilfe {
  struct Leistung {
    int spalte;
    double watt;  ///< at most, rounded down

    bool operator==(const Leistung&) const = default;
  };
  std::vector<Leistung> leistungen;  ///< of the columns that do not fit
  std::optional<double> hoehe;       ///< of the antenna at least, m over ground, rounded up to 0.1
  struct Verschiebung {
    double weite;   ///< m, rounded up to 0.1
    double azimut;  ///< degrees
    Punkt ort;      ///< of the mast then

    bool operator==(const Verschiebung&) const = default;
  };
  std::optional<Verschiebung> verschiebung;

  bool operator==(const Abhilfe&) const = default;
};
Abhilfe AbhilfeSuchen(const Station& s, const Zone& zone);

/// What of the plan is open before filing, or of no use as it stands, as German sentences with the object
/// (index in the plan) that they are about. Without a plan nothing is.
struct Planbefund {
  std::string text;
  std::optional<std::size_t> objekt;

  bool operator==(const Planbefund&) const = default;
};
std::vector<Planbefund> LageplanPruefen(const Station& s);
/// "reicht im NO über Grund 2,30 m über den kontrollierten Bereich hinaus"; `von`: that the direction is told
/// from.
std::string Verstosstext(const Lageplan& plan, Punkt von, const Verstoss& verstoss);
/// "Es würde passen: mit höchstens 62 W in Spalte A; …" or that nothing of this kind helps.
std::string Abhilfetext(const Abhilfe& abhilfe);

}  // namespace vesk
