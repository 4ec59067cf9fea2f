#pragma once
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace vesk {

/// `text` with every `was` replaced.
inline std::string Ersetzt(std::string text, const std::string& was, const std::string& durch) {
  for (std::size_t i = 0; (i = text.find(was, i)) != std::string::npos; i += durch.size()) {
    text.replace(i, was.size(), durch);
  }
  return text;
}

/// One case of a table of reference figures: its line, and its cells by column.
struct Tabellenzeile {
  std::string text;
  std::map<std::string, std::string> zellen;

  const std::string& operator[](const std::string& spalte) const { return zellen.at(spalte); }
  float Wert(const std::string& spalte) const { return std::stof(zellen.at(spalte)); }
  int Zahl(const std::string& spalte) const { return std::stoi(zellen.at(spalte)); }
};

/// The table `name` ("engine/Zahl.csv"). Lines with # explain it, the next one names the columns;
/// \\n in a cell is a line feed.
inline std::vector<Tabellenzeile> Tabelle(const std::string& name) {
  std::ifstream datei(std::string(VESK_TESTDATEN) + "/" + name);
  std::vector<std::string> spalten;
  std::vector<Tabellenzeile> zeilen;
  for (std::string text; std::getline(datei, text);) {
    if (text.starts_with('#')) continue;
    std::vector<std::string> zellen;
    std::istringstream rest(text + ";");
    for (std::string zelle; std::getline(rest, zelle, ';');) zellen.push_back(Ersetzt(zelle, "\\n", "\n"));
    if (spalten.empty()) {
      spalten = zellen;
      continue;
    }
    if (zellen.size() != spalten.size()) throw std::runtime_error(name + ": " + text);
    zeilen.push_back({text, {}});
    for (std::size_t i = 0; i < zellen.size(); ++i) zeilen.back().zellen[spalten[i]] = zellen[i];
  }
  if (zeilen.empty()) throw std::runtime_error(name + ": keine Zeilen");
  return zeilen;
}

}  // namespace vesk
