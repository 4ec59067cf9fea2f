#pragma once
#include <array>
#include <string>

#include "Datenblattspalte.h"
#include "Rechenwerte.h"

namespace vesk {

/// The operator's personal data, in the order of the file. UTF-8.
struct Benutzer {
  std::string Name;
  std::string Strasse;
  std::string Ort;
  std::string Telefon;
  std::string Telefax;
  std::string Rufzeichen;
  std::string Klasse;
  std::string Standort;

  bool operator==(const Benutzer&) const = default;
};

/// The four stored switches and the notes that the user does not want to see again in this run.
struct Einstellungen {
  bool ToolTips = false;
  bool AFu = true;
  bool Fenster = false;
  bool Meldungen = true;

  bool HSMHinweisAus = false;      ///< message flag 0, not stored
  bool NahfeldHinweisAus = false;  ///< message flag 1, not stored
  bool FaktorMeldungAus = false;   ///< not stored

  bool operator==(const Einstellungen&) const = default;
};

/// The one shared state of a running program; owned by the program, passed by reference.
struct Zustand {
  Rechenwerte werte;
  std::array<std::string, AnzahlZellen> Zellen;
  std::array<Datenblattspalte, AnzahlSpalten + 1> Datenblattspalten;  ///< 0: working record of the windows
  Benutzer benutzer;
  Einstellungen einstellungen;
  bool UserGeaendert = false;

  std::string Fusszeile;               ///< user's text before the program's own footer of the printouts
  std::string UserDatei = "user.dat";  ///< bare name
  std::string UserVerzeichnis;         ///< shown in the title of the data sheet
  std::string ProgrammVerzeichnis;
  std::string Arbeitsverzeichnis;  ///< where the file is written
};

}  // namespace vesk
