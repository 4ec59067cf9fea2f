#pragma once
#include "station/Formel.h"

/// The sections of a way.
namespace vesk {

namespace zeichen {
inline constexpr Zeichen f{"f", "", "MHz"};
inline constexpr Zeichen fE{"f", "E", "MHz"};
inline constexpr Zeichen fHSM{"f", "HSM", "MHz"};
inline constexpr Zeichen fLambda{"f", "λ", "MHz"};
inline constexpr Zeichen fKabel{"f", "K", "MHz"};
inline constexpr Zeichen P{"P", "", "W"};
inline constexpr Zeichen PAnt{"P", "Ant", "W"};
inline constexpr Zeichen EIRP{"EIRP", "", "W"};
inline constexpr Zeichen G{"G", "", "dBi"};
inline constexpr Zeichen a{"a", "", "dB"};
inline constexpr Zeichen aKabel{"a", "K", "dB"};
inline constexpr Zeichen aStecker{"a", "S", "dB"};
inline constexpr Zeichen w{"w", "", "dB"};
inline constexpr Zeichen l{"l", "", "m"};
inline constexpr Zeichen F{"F", "", ""};
inline constexpr Zeichen FModus{"F", "M", ""};
inline constexpr Zeichen FZyklus{"F", "Z", ""};
inline constexpr Zeichen E{"E", "", "V/m"};
inline constexpr Zeichen E306{"E", "306", "V/m"};
inline constexpr Zeichen EVDE{"E", "VDE", "V/m"};
inline constexpr Zeichen d{"d", "", "m"};
inline constexpr Zeichen d306{"d", "306", "m"};
inline constexpr Zeichen dVDE{"d", "VDE", "m"};
inline constexpr Zeichen Lambda{"λ", "", "m"};
inline constexpr Zeichen Nahfeld{"r", "nah", "m"};
inline constexpr Zeichen Fernfeld{"r", "fern", "m"};
}  // namespace zeichen

/// What a column's way is told from.
struct Spaltenrechnung {
  const Station& s;
  const Kataloge& k;
  int spalte;
  const Datenblattspalte& satz;
  bool haelt;                             ///< the sheet shows what follows from the inputs
  Rechenart art;                          ///< in which it does; else that of a new calculation
  Rechenwerte werte;                      ///< inputs; row 6 is the power also where it was computed
  Rechenergebnis zahlen;                  ///< from them to the distances
  std::optional<Rechenergebnis> zurueck;  ///< from row 10 to row 6
};

const char* Signaltyp(std::int16_t grenzwerttyp);
/// An evaluation frequency under its own symbol, or the entered one where the calculation is exact.
Groesse Auswertefrequenz(const Spaltenrechnung& r, const Zeichen& zeichen, float mhz);
/// An input as it is calculated with.
Ausdruck Eingabe(const Zeichen& zeichen, const std::string& getippt);

// In the order of the paper. A section without lines is left out.
Rechenabschnitt Eingabenabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Frequenzabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Kabelabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Winkelabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Leistungsabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Wellenabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Personenschutzabschnitt(const Spaltenrechnung& r);
Rechenabschnitt HSM306Abschnitt(const Spaltenrechnung& r);
Rechenabschnitt HSMvdeAbschnitt(const Spaltenrechnung& r);
Rechenabschnitt Faktorabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Rueckwaertsabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Abstandsabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Nahfeldabschnitt(const Spaltenrechnung& r);
Rechenabschnitt Fehlerabschnitt(const Spaltenrechnung& r);

}  // namespace vesk
