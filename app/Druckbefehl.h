#pragma once
#include <QString>
#include <span>
#include <string>

#include "print/Mappe.h"
#include "rechnen/Optionen.h"

namespace vesk {

/// What `vesk drucken` was asked for. Names of files are as given.
struct Druckbefehl {
  Papierauftrag papiere;  ///< without its date
  QString datei;
  QString nach;
  QString winkeldatei;  ///< empty: none
  QString verzeichnis;  ///< of the catalogues; empty: the program's own
  bool hilfe = false;
};

/// Reads the arguments after "drucken". Throws Eingabefehler.
Druckbefehl DruckbefehlLesen(std::span<const std::string> argumente);

/// Writes the PDF, or as SVG the first page; what it reads stays as it is. Returns what is wrong with
/// catalogues and plan, one sentence a line. Needs no display. Throws std::runtime_error with the German
/// message, and Eingabefehler when what it writes would take the place of what is read.
std::string PapiereSchreiben(const Druckbefehl& befehl);

}  // namespace vesk
