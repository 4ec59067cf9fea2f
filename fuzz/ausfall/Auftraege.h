#pragma once
#include <functional>
#include <vector>

#include "fuzz/ausfall/Buehne.h"

/// The ways by which the program writes files.
namespace vesk::ausfall {

struct Auftrag {
  const char* name;
  std::vector<QString> ziele;  ///< files that are whole before and afterwards
  /// Prepares the directory beside the catalogues and the file of an earlier run.
  std::function<void(const QString& verzeichnis)> vorher;
  /// What writes; calls fail meanwhile. The program has started and text is typed.
  std::function<void(Lauf& lauf, const QString& verzeichnis)> tun;
  /// Whether the program, started anew after a crash, has what was typed.
  std::function<bool(const Station& danach)> bewahrt;
  bool meldet = true;      ///< a failure is told
  bool start = false;      ///< what writes is the start itself; nothing is typed
  bool altBleibt = false;  ///< what stood in the last file remains under another name
  /// What it brings into the windows; where that is something else because of a failure, it is told.
  std::string (*zeigt)(const Station& jetzt) = nullptr;
};

inline constexpr const char* Getippt = "Anna";
/// A file of outlines.
inline constexpr const char* Haus =
    R"({"type":"Polygon","coordinates":[[[7,51],[7.0005,51],[7.0005,51.0005],[7,51]]]})";
std::vector<Auftrag> Auftraege();

}  // namespace vesk::ausfall
