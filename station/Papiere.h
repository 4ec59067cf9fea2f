#pragma once
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "station/Handlung.h"

/// What is filed with the regulator: which columns and diagrams it holds, and what is still open.
namespace vesk {

/// Columns (1 to 7) that hold anything.
std::vector<int> BenutzteSpalten(const Station& s);

/// dB, sector by sector.
using Winkeldaempfungen = std::array<std::string, AnzahlSektoren>;
/// The whole text is one number with a decimal point. What Zahl cuts off, as from "3,5", would make it
/// another.
bool IstZahl(std::string_view text);

/// What an angle diagram shows: the table of the angle page, or that of a column.
struct Winkelblatt {
  std::string bezug;  ///< "Spalte A"; empty: the angle page
  std::string antenne;
  std::string gewinn;     ///< dBi
  std::string frequenz;   ///< MHz
  std::string AntEinPWR;  ///< W
  Winkelebene ebene = Winkelebene::Keine;
  Winkeldaempfungen daempfung;
  Sektortabelle tabelle;  ///< all sectors or, when there is nothing to show or a fault, none

  bool operator==(const Winkelblatt&) const = default;
};

/// The angle page as it stands, its figures computed from what stands there. Without attenuations beside the
/// main direction there is nothing to show.
Winkelblatt WinkelblattDerSeite(const Station& s);
/// Power and signal type of the angle page from the column of the largest power at the page's frequency or in
/// its amateur band. False: there is none.
bool WinkelseiteAusSpalte(Station& s);

/// Whether a diagram shows the angle attenuation of a column (1 to 7).
enum class Winkelbeleg {
  Unnoetig,  ///< it claims none
  Diagramm,
  Unvollstaendig,    ///< its record does not hold nine numbers
  Fremd,             ///< no sector has this attenuation
  NichtBerechenbar,  ///< a fault
};
Winkelbeleg WinkelbelegDerSpalte(const Station& s, int spalte);
/// The diagrams of the columns that claim an angle attenuation.
std::vector<Winkelblatt> WinkelblaetterDerSpalten(const Station& s);
/// The angle page or a column has a table to draw, which may still have no limit at its frequency.
bool HatWinkeltabelle(const Station& s);

/// Where the user mends what is open.
struct BeimBenutzer {
  std::size_t feld;  ///< by the order of Benutzerfelder
  bool operator==(const BeimBenutzer&) const = default;
};
struct InZelle {
  int spalte;  ///< 1 to 7
  Zeile zeile;
  bool operator==(const InZelle&) const = default;
};
struct ImWinkelblatt {
  bool operator==(const ImWinkelblatt&) const = default;
};
struct ImLageplan {
  std::optional<std::size_t> objekt;  ///< index in the plan
  bool operator==(const ImLageplan&) const = default;
};
using Papierort = std::variant<BeimBenutzer, InZelle, ImWinkelblatt, ImLageplan>;

/// One thing that is open before filing.
struct Befund {
  std::string text;  ///< a whole German sentence that names the column
  Papierort ort;

  bool operator==(const Befund&) const = default;
};

/// All that is open, in the order of the papers; nothing: they can be filed.
std::vector<Befund> PapierePruefen(const Station& s, const Kataloge& k);
/// The cable that a column names gives other losses than those that were computed from it: a record knows its
/// cable by the place in the list only, which whoever edits the catalogue changes. None: it gives them, or
/// they are typed.
std::optional<std::string> Kabelabweichung(const Station& s, const Kataloge& k, int spalte);

/// Opens the window in which `ort` is. No column becomes the current one.
Meldungen ZumBefund(Station& s, const Kataloge& k, const Papierort& ort);

}  // namespace vesk
