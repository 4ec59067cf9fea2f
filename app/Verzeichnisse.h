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
/// holds user.dat or Kabel.txt; else the per-user data directory. Changes nothing on the disk.
Verzeichnisse VerzeichnisseBestimmen(const QString& gewuenscht, const QString& anwendung);

/// Creates the program directory if it is missing and copies the shipped catalogues and tips there, so that
/// the user may edit them. A file is copied once: one that the user has deleted stays deleted.
void MitgelieferteKopieren(const Verzeichnisse& verzeichnisse, Benutzerspeicher& speicher);

}  // namespace vesk
