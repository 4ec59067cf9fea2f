#pragma once
#include <optional>

#include "station/Handlung.h"

/// The columns of the data sheet: what holds, and what the user does with them.
namespace vesk {

/// What a column (1 to 7) is calculated from: texts of rows 3 and 6 to 9, factors and signal type.
Rechenwerte Spaltenwerte(const Station& s, int spalte);
/// The mode factor of a column: the larger of its record's and the largest that row 5 names. A text can leave
/// a mode out, a hand edit can add one; the distance is never too short.
float SpaltenModulationsfaktor(const Station& s, int spalte);
/// Product of mode and cycle factor that a column (1 to 7) is calculated with; of column 0 the one in force.
float Spaltenfaktor(const Station& s, int spalte);

/// The way of calculating that gives a column's figures from its inputs, which are rows 3 and 5 to 9 and its
/// record: forwards (rows 10 to 12) or backwards (row 6 from row 10), in either frequency mode. None: they
/// are of other inputs, or there are no figures.
std::optional<Rechenart> HaltendeArt(const Station& s, int spalte);
/// A column's figures belong to its inputs.
bool Haelt(const Station& s, int spalte);
/// Rows 10 to 12 show figures that do not hold.
bool SpalteVeraltet(const Station& s, int spalte);

/// Text of a cell resp. record of a column (1 to 7); a real change is one of the user's data.
void ZelleSetzen(Station& s, int spalte, Zeile zeile, const std::string& text);
void SatzSetzen(Station& s, int spalte, const Datenblattspalte& satz);
/// The current column takes what an option says.
inline bool SpalteFolgt(const Station& s) {
  return s.werte.Spalte != 0 && s.OptionenBeruecksichtigen;
}
/// Changes the record of the current column by `aendern(satz)`.
template <typename Aendern>
void SpaltensatzAendern(Station& s, Aendern aendern) {
  if (s.werte.Spalte == 0) return;
  Datenblattspalte satz = s.Datenblattspalten.at(static_cast<std::size_t>(s.werte.Spalte));
  aendern(satz);
  SatzSetzen(s, s.werte.Spalte, satz);
}

/// How a column is taken over.
enum class Satz { Laden, Behalten };  ///< whether its record goes into the options
/// Takes the current column into the main window and calculates it. With `still` nothing is said and cells of
/// a column that cannot be calculated stay.
Meldungen SpalteUebernehmen(Station& s, const Kataloge& k, Satz satz, bool still);
/// Shows a column's record in the options (0: the working record). Asks before it replaces an angle table
/// that the user has not saved.
Meldungen SatzLaden(Station& s, const Kataloge& k);
/// No column is the current one.
void SpalteVerlassen(Station& s);
/// Takes back the red marks of the column that was current before.
void MarkenZuruecknehmen(Station& s);

Meldungen ZelleGetippt(Station& s, const Kataloge& k, std::size_t index, const std::string& text);
Meldungen ZelleGeklickt(Station& s, const Kataloge& k, int spalte);
/// Left button on a head.
Meldungen KopfGeklickt(Station& s, const Kataloge& k, int spalte);
/// Any other button: clears the column after a question.
Meldungen SpalteLoeschen(Station& s, const Kataloge& k, int spalte);
/// cmdRechnen
Meldungen SpalteRechnen(Station& s, const Kataloge& k);
/// mnuDelete
Meldungen DatenblattLoeschen(Station& s, const Kataloge& k);
/// Without that question.
Meldungen DatenblattLeeren(Station& s, const Kataloge& k);
/// mnuSpalteKopieren
Meldungen SpalteKopieren(Station& s, const Kataloge& k);
/// chkOptionen
Meldungen OptionenSchalten(Station& s, const Kataloge& k, bool an);
/// mnuBeenden; the frame of the window
Meldungen DatenblattSchliessen(Station& s, const Kataloge& k);
Meldungen DatenblattVerbergen(Station& s, const Kataloge& k);

}  // namespace vesk
