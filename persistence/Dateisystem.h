#pragma once
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

/// What reading, locking and replacing files ask of the operating system; each system has a source file of
/// its own. Failures are std::system_error with an errno number of the generic category.
namespace vesk {

/// Owner of an open file. Closing it also gives up its lock.
class Deskriptor {
 public:
  Deskriptor() = default;
  explicit Deskriptor(int nummer) : nummer_(nummer) {}
  Deskriptor(Deskriptor&& anderer) noexcept : nummer_(std::exchange(anderer.nummer_, -1)) {}
  Deskriptor& operator=(Deskriptor&& anderer) noexcept {
    std::swap(nummer_, anderer.nummer_);
    return *this;
  }
  Deskriptor(const Deskriptor&) = delete;
  Deskriptor& operator=(const Deskriptor&) = delete;
  ~Deskriptor();

  explicit operator bool() const { return nummer_ != -1; }
  int operator*() const { return nummer_; }

 private:
  int nummer_ = -1;
};

/// A regular file; none when nothing stands under that name. Never waits, whatever stands there.
Deskriptor ZumLesenOeffnen(const std::filesystem::path& pfad);
/// A file for writing that was not there before; none when anything stands under that name. `vertraulich`:
/// for its owner alone.
Deskriptor NeuAnlegen(const std::filesystem::path& pfad, bool vertraulich);
/// A file for writing that an earlier call of NeuAnlegen has left: regular, this user's own and under this
/// name alone; none when nothing stands there. Fails with EEXIST where it is anything else. Follows no link.
Deskriptor RestOeffnen(const std::filesystem::path& pfad, bool vertraulich);

std::uintmax_t Groesse(const Deskriptor& datei);
/// Up to `hoechstens` bytes from where the last reading ended; 0: the file has ended.
std::size_t Lesen(const Deskriptor& datei, char* ziel, std::size_t hoechstens);
/// All bytes.
void Schreiben(const Deskriptor& datei, std::string_view bytes);
void Leeren(const Deskriptor& datei);
/// Waits until the disk has what was written.
void Festschreiben(const Deskriptor& datei);

/// Fails when the file is write-protected: renaming would pass over that.
void SchreibrechtPruefen(const std::filesystem::path& pfad);
/// Where a system keeps them with the file: its permissions, as far as there is such a file ...
void RechteWie(const Deskriptor& datei, const std::filesystem::path& vorbild);
/// ... and its owner, too.
void RechteUndEigentuemerWie(const Deskriptor& datei, const std::filesystem::path& vorbild);

/// Puts the file `von` in the place of `nach` in one step. Fails with EBUSY where another program that has
/// the file open stands in the way.
void Umbenennen(const std::filesystem::path& von, const std::filesystem::path& nach);
/// Makes renamings in a directory last.
void VerzeichnisFestschreiben(const std::filesystem::path& verzeichnis);

/// Whether `pfad` leads to the very file that is open.
bool SelbeDatei(const Deskriptor& datei, const std::filesystem::path& pfad);
/// When the file was last written, only to be compared with another one's; 0: there is none.
std::int64_t Aenderungszeit(const std::filesystem::path& pfad);

enum class Sperre { Erhalten, Belegt };
/// Tries the advisory lock of the open file without waiting. It ends with the process at the latest, so no
/// crash leaves one behind. Where the file system knows no locks, every try succeeds.
Sperre SperreVersuchen(const Deskriptor& datei);

/// The advisory lock of a file that is worked on for a longer time; ends with the process, too. It does not
/// keep the file from being replaced, by whomever.
class Dateisperre {
 public:
  /// Gives up the lock of any other file and tries that of this one.
  Sperre Nehmen(const std::filesystem::path& pfad);
  /// Whether it is the lock of the file that stands there.
  bool Gilt(const std::filesystem::path& pfad) const;
  /// The file `pfad` has been replaced by `neu`, which is locked: the lock is that of the new one.
  void Uebergehen(Deskriptor neu, const std::filesystem::path& pfad);

 private:
  Deskriptor sperre_;
#ifdef _WIN32
  std::wstring name_;
#endif
};

}  // namespace vesk
