#pragma once
#include <fstream>
#include <iterator>
#include <string>

namespace vesk {

/// Bytes of a shipped file.
inline std::string Lieferdatei(const std::string& name) {
  std::ifstream datei(std::string(VESK_DATEN_VERZEICHNIS) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(datei), {}};
}

}  // namespace vesk
