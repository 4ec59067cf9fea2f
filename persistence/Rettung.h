#pragma once
#include <filesystem>
#include <string>
#include <vector>

#include "persistence/Dateisystem.h"

namespace vesk {

/// What is typed but not saved yet, kept in the program directory for the case that the program or the
/// machine dies. The copy goes when its content is safe; one that remains was left by a crash. Each running
/// program has one of its own, locked as long as it runs.
class Rettung {
 public:
  struct Inhalt {
    std::string user;      ///< bytes of the user's file; empty: that is saved
    std::string winkel{};  ///< bytes of an angle file; empty: that table is saved
    std::filesystem::path winkeldatei{};
    std::string plan{};  ///< bytes of the plan's file; empty: that plan is saved
    bool operator==(const Inhalt&) const = default;
  };
  struct Fund {
    std::filesystem::path pfad;
    std::filesystem::path datei;  ///< the user's file; empty: a new callsign without a file
    Inhalt inhalt;  ///< empty where a file says the same or, but for an angle file, has a later state
  };

  /// `user` is what stands safely in the file, or what nobody will miss.
  void Gesichert(std::string user) { sicher_ = std::move(user); }
  enum class Stand { Unnoetig, Gesichert, Gescheitert };
  /// Keeps for the user's file `datei` what is not safe; when all is, no copy is needed.
  Stand Sichern(const std::filesystem::path& verzeichnis, const std::filesystem::path& datei, Inhalt inhalt);
  /// What was found is worked on again; its copy stays until it is safe or has been renewed.
  void Fortsetzen(const Fund& fund);
  /// Nobody will miss anything.
  void Aufgeben();

  struct Suche {
    std::vector<Fund> funde;                      ///< the newest first
    std::vector<std::filesystem::path> beiseite;  ///< "…-alt.dat": what a later saving has overtaken
  };
  /// Copies in `verzeichnis` that no running program holds and whose files do not say the same.
  static Suche Suchen(const std::filesystem::path& verzeichnis);
  /// Removes a copy that nobody wants, unless another program has taken it up meanwhile.
  static void Verwerfen(const std::filesystem::path& kopie);

 private:
  bool Anlegen(const std::filesystem::path& verzeichnis, const std::filesystem::path& datei,
               const std::string& bytes);

  std::string sicher_;
  std::filesystem::path datei_;  ///< of the copy
  Inhalt zuletzt_;
  std::filesystem::path pfad_;
  Dateisperre sperre_;
};

}  // namespace vesk
