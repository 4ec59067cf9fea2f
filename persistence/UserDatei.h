#pragma once
#include <bitset>
#include <string>
#include <string_view>

#include "Zustand.h"

/// The user's file: operator, switches, data sheet. Bytes in, values out; no file is touched here.
namespace vesk {

/// Longest text of a field, in characters; the windows have the same limit.
inline constexpr std::size_t MaxFeldlaenge = 32767;
/// Longest text of a data-sheet cell.
inline constexpr std::size_t MaxZellenlaenge = 20;

enum class Dateiversion {
  Ohne,         ///< no version in the file
  Aktuell,      ///< "251" or later
  Umwandelbar,  ///< from "220": read, then to be rewritten
  ZuAlt,        ///< before "220": reading stopped at the version
};

/// What reading found. The caller shows messages, copies and rewrites.
struct Lesebericht {
  Dateiversion version = Dateiversion::Ohne;
  std::string versionstext;
  bool User = false;      ///< section was there: the titles are to be set
  bool ToolTips = false;  ///< section was there: a stored mark counts at the start
  bool AFu = false;
  std::bitset<AnzahlSpalten> Spalten;  ///< records met, bit 0 is A: their tints are to be set
  bool etwasGelesen = false;           ///< at least one value was taken over
  bool verlustfrei = true;             ///< rewriting the file loses nothing that stands in it
};

/// Reads into `zustand`. An item that is missing or cannot be read leaves its target as it was; nothing is
/// an error. UserGeaendert and the factors in force are not touched.
Lesebericht UserDateiLesen(std::string_view bytes, Zustand& zustand);

/// The file, byte for byte (Windows-1252, CR LF).
std::string UserDateiSchreiben(const Zustand& zustand);

/// Before writing: factors of the columns that are 0, no number or above 1 become "1.00". Negative ones stay.
void FaktorenNormalisieren(Zustand& zustand);

/// What a missing file stands for: factors "1" and signal type AM in all columns, all else as it is.
void UserDateiVorgaben(Zustand& zustand);

/// Product of the two factors of a record; below 1 the column's distance is tinted as reduced.
float Faktorprodukt(const Datenblattspalte& spalte);

/// Footer of all printouts: the user's text and the program's own line.
std::string DruckFusszeile(const Zustand& zustand);

/// Note on a file of an older version; `bericht` says which. Its line breaks are CR.
std::string Migrationsmeldung(const Lesebericht& bericht, std::string_view datei);

std::string TitelBenutzerfenster(const Zustand& zustand);
std::string TitelHauptfenster(const Zustand& zustand);
std::string TitelDatenblatt(const Zustand& zustand);

}  // namespace vesk
