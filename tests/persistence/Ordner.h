#pragma once
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace vesk {

/// A new directory that everybody may use, with an umlaut in its name; removed with all that is in it.
struct Ordner {
  Ordner() {
    std::random_device zufall;
    do {
      pfad = std::filesystem::temp_directory_path() / u8"vesk-ä-";
      pfad += std::to_string(zufall());
    } while (!std::filesystem::create_directory(pfad));
    std::filesystem::permissions(pfad, std::filesystem::perms(0777));
  }
  Ordner(const Ordner&) = delete;
  Ordner& operator=(const Ordner&) = delete;
  ~Ordner() {
    std::error_code fehler;
    std::filesystem::permissions(pfad, std::filesystem::perms(0777), fehler);
    std::filesystem::remove_all(pfad, fehler);
  }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return pfad / name; }
  int Anzahl() const {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(pfad), {}));
  }
  std::filesystem::path pfad;
};

inline void Anlegen(const std::filesystem::path& pfad, const std::string& bytes) {
  std::ofstream(pfad, std::ios::binary) << bytes;
}

inline std::string Inhalt(const std::filesystem::path& pfad) {
  std::ifstream datei(pfad, std::ios::binary);
  return {std::istreambuf_iterator<char>(datei), {}};
}

}  // namespace vesk
