#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "persistence/Dateien.h"
#include "persistence/Neufassung.h"

namespace vesk {

/// Why the user is asked before a file is replaced.
inline constexpr const char* VonAnderenGeaendert = "wurde inzwischen von einem anderen Programm geändert.";
inline constexpr const char* NichtLesbar = "konnte nicht gelesen werden.";
/// The question, where the file is kept as "…-alt" if the answer is yes.
std::string Ueberschreibfrage(const std::filesystem::path& pfad, const std::string& warum);

/// One running program's view of the file that it works on. Two programs may work on the same file:
/// - while a program works on a file it holds the file's advisory lock, so a second one can tell its user;
/// - before writing, the file on the disk is compared with what was read or written last; if somebody else
///   has written it since, nothing is written and the user is to be asked. Comparison and replacement happen
///   under one lock, so two programs that save at the same moment see each other.
class Dateistand {
 public:
  enum class Ausgang {
    Geschrieben,
    FremdGeaendert,  ///< the file holds something that this program has never seen
    Fehler,
  };
  struct Ergebnis {
    Ausgang ausgang;
    std::string grund;  ///< of `Fehler`
  };

  /// `hoechstens`: bytes of the longest file.
  explicit Dateistand(std::size_t hoechstens) : hoechstens_(hoechstens) {}

  /// Reads the file and takes it over as the one worked on.
  Gelesen Lesen(const std::filesystem::path& pfad);

  /// Another program holds the file read last.
  bool AnderswoOffen() const { return anderswoOffen_; }

  /// Another program works on the file `pfad`.
  bool AndereArbeitenAn(const std::filesystem::path& pfad) const;

  /// The file `pfad` is the one read or written last.
  bool Kennt(const std::filesystem::path& pfad) const { return pfad == pfad_; }

  /// What stands in the file is neither `bytes` nor what this program has read or written there last.
  bool Fremd(const std::filesystem::path& pfad, std::string_view bytes) const;

  /// Writes and takes the file over as the one worked on. With `auchFremdes` the user has agreed to replace
  /// whatever is there. A new file gets the permissions of `vorbild`.
  Ergebnis Schreiben(const std::filesystem::path& pfad, std::string_view bytes, bool auchFremdes = false,
                     const std::optional<std::filesystem::path>& vorbild = std::nullopt);

 private:
  std::size_t hoechstens_;
  std::filesystem::path pfad_;
  std::optional<std::string> inhalt_;  ///< what stood in the file last; nothing: there was none
  Dateisperre sperre_;
  bool anderswoOffen_ = false;
};

}  // namespace vesk
