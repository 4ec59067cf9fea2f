#pragma once
#include <QString>
#include <string>

namespace vesk {

class Benutzerspeicher;

/// Directories of a running program.
struct Verzeichnisse {
  QString programm;         ///< the user's files and catalogues
  QString daten;            ///< what is shipped: catalogues, tips, help pages; empty when it is not found
  std::string hindernis{};  ///< why nothing can be put into `programm`; what is shipped is read where it is
};

/// `gewuenscht` is --verzeichnis; else the directory of the executable (`anwendung`) when it is writable and
/// holds user.dat or Kabel.txt; else the per-user data directory. Changes nothing on the disk. `programm` is
/// empty when its name cannot be told as a text: another directory must not take its place.
Verzeichnisse VerzeichnisseBestimmen(const QString& gewuenscht, const QString& anwendung);

/// Where the user's own directory cannot be told as a text, what is remembered goes to `programm`.
void MerkspeicherBestimmen(const Verzeichnisse& verzeichnisse);

/// Creates the program directory if it is missing and copies the shipped catalogues and tips there, so that
/// the user may edit them. A file is copied once: one that the user has deleted stays deleted, as long as he
/// has not deleted all of them. Returns why nothing can be written there; empty: it can.
std::string MitgelieferteKopieren(const Verzeichnisse& verzeichnisse, Benutzerspeicher& speicher);

}  // namespace vesk
