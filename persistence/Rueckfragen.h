#pragma once
#include <filesystem>
#include <optional>
#include <string>

#include "engine/Hinweise.h"

namespace vesk {

/// What a file dialog is to offer. `filter` in the form "User Dateien (*.dat)"; `endung` without a dot is
/// added to a name that has none. Texts are UTF-8.
struct Dateiwahl {
  std::string titel;
  std::string filter;
  std::string endung;
  std::filesystem::path verzeichnis;
  std::string vorschlag{};
};

/// What the handling of files asks the user in its midst. Before each question the windows show the station.
class Rueckfragen {
 public:
  virtual ~Rueckfragen() = default;
  virtual Antwort Fragen(const Hinweis& hinweis) = 0;
  /// The full path, or nothing when the user cancels. Zum Speichern asks before overwriting.
  virtual std::optional<std::filesystem::path> ZumOeffnen(const Dateiwahl& wahl) = 0;
  virtual std::optional<std::filesystem::path> ZumSpeichern(const Dateiwahl& wahl) = 0;
};

}  // namespace vesk
