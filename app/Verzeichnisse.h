#pragma once
#include <QString>

namespace vesk {

class Benutzerspeicher;

/// Directories of a running program.
struct Verzeichnisse {
  QString programm;  ///< the user's files and catalogues
  QString daten;     ///< what is shipped: catalogues, tips, help pages; empty when it is not found
};

/// `gewuenscht` is --verzeichnis; else the directory of the executable (`anwendung`) when it is writable and
/// holds user.dat or Kabel.txt; else the per-user data directory. Creates the directory if it is missing.
Verzeichnisse VerzeichnisseBestimmen(const QString& gewuenscht, const QString& anwendung);

/// Copies the shipped catalogues and tips into the program directory, so that the user may edit them. A file
/// is copied there once: one that the user has deleted stays deleted.
void MitgelieferteKopieren(const Verzeichnisse& verzeichnisse, Benutzerspeicher& speicher);

}  // namespace vesk
