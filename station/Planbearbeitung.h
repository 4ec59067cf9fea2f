#pragma once
#include <bitset>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "station/Lageplan.h"

/// What drawing and moving on the plan computes, without a screen.
namespace vesk {

/// A decimal number with comma or point and blanks around it. None: the text is anything else.
std::optional<double> Dezimalzahl(std::string_view text);
/// With at most three decimals: "12.5".
std::string Dezimaltext(double zahl);

/// A length in m, alone or with a direction: "12,5", "12,5;90", "12,5<90".
struct Mass {
  double laenge = 0;
  std::optional<double> azimut;  ///< degrees from north

  bool operator==(const Mass&) const = default;
};
/// None: the text says no length greater than 0.
std::optional<Mass> MassLesen(std::string_view text);
/// As the field beside the drawing shows it: "12.5 m < 90°".
std::string Masstext(const Lageplan& plan, Punkt von, Punkt bis);
/// Without a direction of its own the length lies towards `ziel`, and to the north when that is `von`.
Punkt Abgetragen(const Lageplan& plan, Punkt von, const Mass& mass, Punkt ziel);

/// Latitude and longitude in degrees, as maps tell them: "50,7374; 7,0982" or "50.7374, 7.0982".
std::optional<Geopunkt> GeoLesen(std::string_view text);
std::string Geotext(const Geopunkt& punkt);

/// Where the plan's reference point is, when its position was that of `vorher`. Right to the centimetre
/// within 200 m.
std::optional<Geopunkt> GeoVersetzt(const Lageplan& plan, Punkt vorher);

/// What a point sticks to: the nearest corner, right angles to the edge before, the grid; in this order.
struct Fang {
  double raster = 0.5;  ///< m, counted from the reference point; 0: none
  bool winkel = true;
  bool ecken = true;
  double weite = 0;  ///< m: how near a corner has to be
};
/// `linie`: the corners before this one, of which the last two make the edge before; the first edge keeps to
/// the directions of the drawing. `ecken`: those to stick to.
Punkt Gefangen(const Lageplan& plan, const Fang& fang, Punkt punkt, const Umriss& linie,
               const std::vector<Punkt>& ecken);

/// An object of the plan or one of its corners.
struct Planstelle {
  std::size_t objekt = 0;
  std::optional<std::size_t> ecke;

  bool operator==(const Planstelle&) const = default;
};
using Artenwahl = std::bitset<AnzahlPlanarten>;

/// All corners of the plan but those that are being moved.
std::vector<Punkt> Fangecken(const Lageplan& plan, const std::optional<Planstelle>& ohne);
/// What the user means by a place: a corner of the chosen object, a point or an edge nearer than `weite`
/// (m), else the smallest outline around it; of several alike the chosen one. Only kinds in `sichtbar` count.
std::optional<Planstelle> StelleBei(const Lageplan& plan, Punkt punkt, double weite,
                                    const Artenwahl& sichtbar, const std::optional<std::size_t>& gewaehlt);
/// The corner where the edge nearest to a place begins. `umriss` has corners.
std::size_t NaechsteKante(const Umriss& umriss, Punkt punkt);

/// The plan with an object or a corner moved by `weg`.
Lageplan Verschoben(Lageplan plan, const Planstelle& stelle, Punkt weg);
/// With one more corner behind `stelle.ecke`; without `ort` in the middle of that edge.
Lageplan MitEcke(Lageplan plan, const Planstelle& stelle, const std::optional<Punkt>& ort = std::nullopt);
/// None: without this corner no area would be left.
std::optional<Lageplan> OhneEcke(Lageplan plan, const Planstelle& stelle);
/// The controlled area has the outlines of the plots, whatever it had before. Without a plot unchanged.
Lageplan BereichWieGrundstueck(Lageplan plan);

/// An object of this kind with usual measures; outlines are a square whose lower left corner is at `ort`.
Planobjekt NeuesPlanobjekt(Planart art, Punkt ort);

/// Where a place of the plan lies on the picture, in picture elements.
Punkt Bildstelle(const Hintergrund& bild, Punkt ort);
/// The other way round.
Punkt Planort(const Hintergrund& bild, Punkt stelle);
/// The distance of two places of the plan, as the picture lies now, is `abstand` in truth; the first of them
/// stays where it is. None: the two places are the same, one lies beside the picture, or `abstand` is not
/// greater than 0.
std::optional<Hintergrund> Geeicht(Hintergrund bild, Punkt erste, Punkt zweite, double abstand);

}  // namespace vesk
