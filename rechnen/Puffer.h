#pragma once
#include <array>
#include <charconv>
#include <cstring>
#include <ostream>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace vesk {

/// Text that grows at its end and leaves in blocks; its memory is used again and again.
class Puffer {
 public:
  /// Room for `bytes` more at the end; Bis tells how far it was used.
  char* Platz(std::size_t bytes) {
    if (bytes_.size() - laenge_ < bytes) bytes_.resize(2 * bytes_.size() + bytes);
    return bytes_.data() + laenge_;
  }
  void Bis(const char* ende) { laenge_ = static_cast<std::size_t>(ende - bytes_.data()); }

  std::string_view Inhalt() const { return {bytes_.data(), laenge_}; }

  void Ausgeben(std::ostream& aus) {
    aus.write(bytes_.data(), static_cast<std::streamsize>(laenge_));
    laenge_ = 0;
  }

 private:
  std::vector<char> bytes_;
  std::size_t laenge_ = 0;
};

// What writes into a buffer begins at `ziel`, where there is room for it, and returns the end of what it
// wrote.

inline char* TextSchreiben(std::string_view text, char* ziel) {
  std::memcpy(ziel, text.data(), text.size());
  return ziel + text.size();
}

inline char* NummerSchreiben(std::size_t nummer, char* ziel) {
  constexpr int Laengste = 20;
  return std::to_chars(ziel, ziel + Laengste, nummer).ptr;
}

/// A text of up to 32 bytes that is written again and again. It needs room for all 32, which are two
/// instructions.
class Stueck {
 public:
  static constexpr std::size_t Laengstes = 32;

  explicit Stueck(std::string_view text) : laenge_(text.copy(zeichen_.data(), Laengstes)) {
    if (laenge_ < text.size()) throw std::length_error("Stueck");
  }
  char* Schreiben(char* ziel) const {
    std::memcpy(ziel, zeichen_.data(), Laengstes);
    return ziel + laenge_;
  }

 private:
  std::array<char, Laengstes> zeichen_{};
  std::size_t laenge_;
};

}  // namespace vesk
