#pragma once
#include <filesystem>
#include <string_view>
#include <utility>

#include "persistence/Dateisystem.h"

namespace vesk {

/// The new content of a file on its way: written to ".name.neu" beside the file, then renamed over it. The
/// name is fixed, so that a crash leaves one remainder at most, which the next saving takes over; a lock on
/// it keeps two savers apart. All functions throw std::system_error.
class Neufassung {
 public:
  explicit Neufassung(const std::filesystem::path& pfad);
  ~Neufassung();
  Neufassung(const Neufassung&) = delete;
  Neufassung& operator=(const Neufassung&) = delete;

  void Schreiben(std::string_view bytes);
  /// Permissions for a file that is new.
  void RechteWie(const Deskriptor& vorbild);
  /// Flushes and renames. From here on the new content stands in the file.
  void Ersetzen();
  /// Makes the renaming last.
  void VerzeichnisSichern() const;
  /// The open file, still locked.
  Deskriptor Abgeben() { return std::move(datei_); }

 private:
  std::filesystem::path ziel_;
  std::filesystem::path neben_;
  Deskriptor datei_;
  bool zielVorhanden_ = false;
  bool ersetzt_ = false;
};

/// German reason for an error number of the system.
const char* Fehlertext(int nummer);

}  // namespace vesk
