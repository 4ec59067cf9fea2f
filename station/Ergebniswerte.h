#pragma once
#include <array>
#include <string>
#include <vector>

#include "engine/Ausgabe.h"
#include "station/Optionen.h"

/// The results of each window, as they are shown and told.
namespace vesk {

struct Ergebniswert {
  std::string name;       ///< of its field, with the unit in brackets at the end
  std::string text;       ///< empty: there is no result
  bool veraltet = false;  ///< belongs to other inputs

  bool operator==(const Ergebniswert&) const = default;
};
using Ergebniswerte = std::vector<Ergebniswert>;

/// "Sicherheitsabstand ohne HSM 1.99 Meter"
std::string InWorten(const Ergebniswert& wert);

/// The output fields of the main window, those that count most first.
inline constexpr std::array Ausgabefolge = {
    Feld::AusgabeOhneHSM,   Feld::AusgabeHSMvde,   Feld::AusgabeHSM306,   Feld::Strahlung,
    Feld::GrenzwertOhneHSM, Feld::GrenzwertHSMvde, Feld::GrenzwertHSM306, Feld::UssVDE,
    Feld::Uss306,           Feld::Nahfeld,         Feld::Fernfeld,
};
/// In that order. `texte` are those of the result that is shown.
Ergebniswerte Hauptwerte(const Station& s, const Feldtexte& texte);

Ergebniswert FaktorDerSendeart(const Station& s);

/// The fields of the cable tab that a calculation writes.
inline constexpr std::array Kabelergebnisse = {Kabelfeld::Gesamtdaempfung, Kabelfeld::Kabeldaempfung,
                                               Kabelfeld::D100};
/// In that order.
Ergebniswerte Kabelwerte(const Station& s);

/// Outputs of a sector on the angle page: EIRP, and the distances ohne HSM, HSM VDE and HSM 306.
inline constexpr std::size_t AnzahlWinkelspalten = 4;
/// Sector by sector.
Ergebniswerte Winkelwerte(const Station& s);

/// Rows 10 to 12 of the data sheet, column by column.
Ergebniswerte Blattwerte(const Station& s);

}  // namespace vesk
