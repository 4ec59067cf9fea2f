#pragma once
#include <filesystem>
#include <string_view>
#include <utility>

namespace vesk {

/// Owner of an open file. Closing it also gives up its lock.
class Deskriptor {
 public:
  Deskriptor() = default;
  explicit Deskriptor(int fd) : fd_(fd) {}
  Deskriptor(Deskriptor&& anderer) noexcept : fd_(std::exchange(anderer.fd_, -1)) {}
  Deskriptor& operator=(Deskriptor&& anderer) noexcept {
    std::swap(fd_, anderer.fd_);
    return *this;
  }
  Deskriptor(const Deskriptor&) = delete;
  Deskriptor& operator=(const Deskriptor&) = delete;
  ~Deskriptor();

  explicit operator bool() const { return fd_ >= 0; }
  int operator*() const { return fd_; }

 private:
  int fd_ = -1;
};

/// Whether `pfad` leads to the very file that is open.
bool SelbeDatei(const Deskriptor& datei, const std::filesystem::path& pfad);

enum class Sperre { Erhalten, Belegt };
/// Tries the advisory lock of the open file without waiting. It ends with the process at the latest, so no
/// crash leaves one behind. Where the file system knows no locks, every try succeeds.
Sperre SperreVersuchen(const Deskriptor& datei);

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
  void RechteUebernehmen();

  std::filesystem::path ziel_;
  std::filesystem::path neben_;
  Deskriptor datei_;
  bool zielVorhanden_ = false;
  bool ersetzt_ = false;
};

/// German reason for an error number of the system.
const char* Fehlertext(int nummer);

}  // namespace vesk
