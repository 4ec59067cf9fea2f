#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "persistence/Dateistand.h"

namespace vesk {

/// What is typed but not saved yet, kept beside the user's files for the case that the program or the machine
/// dies. The copy goes when its content is safe; one that remains was left by a crash.
class Rettung {
 public:
  struct Fund {
    std::filesystem::path pfad;
    std::filesystem::path datei;  ///< the user's file; empty: a new callsign without a file
    std::string bytes;
  };

  /// `bytes` is what stands safely in the file, or what nobody will miss.
  void Gesichert(std::string bytes);
  /// Keeps `bytes` for the user's file `datei` when they differ from what is safe.
  void Sichern(const std::filesystem::path& verzeichnis, const std::filesystem::path& datei,
               const std::string& bytes);
  /// What was found is worked on again; its copy stays until it is safe.
  void Fortsetzen(const Fund& fund);

  /// Copies in `verzeichnis` that no running program holds and that are newer than their files. One that says
  /// what its file says goes; one that a later saving has overtaken is put beside the file as "…-alt.dat".
  static std::vector<Fund> Suchen(const std::filesystem::path& verzeichnis);

 private:
  void Entfernen();

  std::string sicher_;
  std::string zuletzt_;
  std::filesystem::path pfad_;
  Dateistand stand_;
};

}  // namespace vesk
