#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "persistence/Dateisystem.h"

namespace vesk {

/// The new content of a file on its way: written to ".name.neu" beside the file, then renamed over it. The
/// name is fixed, so that a crash leaves one remainder at most, which the next saving takes over; a lock on
/// it keeps two savers apart. All functions throw std::system_error.
class Neufassung {
 public:
  /// A file that is there keeps its permissions. With `vorbild` one that is not there gets those of that
  /// file, and without such a file it is for its owner alone.
  explicit Neufassung(const std::filesystem::path& pfad,
                      std::optional<std::filesystem::path> vorbild = std::nullopt);
  ~Neufassung();
  Neufassung(const Neufassung&) = delete;
  Neufassung& operator=(const Neufassung&) = delete;

  void Schreiben(std::string_view bytes);
  /// Flushes and renames. From here on the new content stands in the file.
  void Ersetzen();
  /// Makes the renaming last.
  void VerzeichnisSichern() const;
  /// The open file, still locked.
  Deskriptor Abgeben() { return std::move(datei_); }

 private:
  std::filesystem::path ziel_;
  std::filesystem::path neben_;
  std::optional<std::filesystem::path> vorbild_;
  Deskriptor datei_;
  bool ersetzt_ = false;
};

/// German reason for an error number of the system.
const char* Fehlertext(int nummer);
/// The same with the name of a foreign file that stands in the way.
std::string Fehlertext(const std::system_error& fehler);

}  // namespace vesk
