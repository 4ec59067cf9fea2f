#pragma once
#include <string>
#include <string_view>

#include "persistence/Dateien.h"
#include "station/Station.h"

/// The user's file: operator, switches, data sheet. Bytes in, values out; no file is touched here.
namespace vesk {

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
  bool User = false;         ///< section was there
  bool bekannt = false;      ///< at least one section of the user's file was there
  bool abgebrochen = false;  ///< the file ends too early: in the midst of a section, or sections are missing
  bool verlustfrei = true;   ///< rewriting the file loses nothing that stands in it
};

/// Reads into `station`; every cell becomes black, the columns met get their tints. An item that is missing
/// or cannot be read leaves its target as it was; nothing is an error. UserGeaendert and the factors in force
/// are not touched.
Lesebericht UserDateiLesen(std::string_view bytes, Station& station);

/// Why the file `name` cannot be used as a user's file; `ganz`: one that ends too early cannot either.
Fehlergrund WarumUnbrauchbar(const std::string& name, const Gelesen& datei, bool ganz);

/// The file, byte for byte (Windows-1252, CR LF).
std::string UserDateiSchreiben(const Station& station);

/// Before writing: factors of the columns that are 0, no number or above 1 become "1.00". Negative ones stay.
void FaktorenNormalisieren(Station& station);

/// What a missing file stands for: factors "1" and signal type AM in all columns, all else as it is.
void UserDateiVorgaben(Station& station);

/// Note on a file of an older version; `bericht` says which. Its line breaks are CR.
std::string Migrationsmeldung(const Lesebericht& bericht, std::string_view datei);

}  // namespace vesk
