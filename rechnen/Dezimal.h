#pragma once
#include <array>
#include <cstddef>
#include <cstdint>

namespace vesk {

/// Writes singles as the shortest decimal that is this single, so that 14.2 is not written as 14.199999809;
/// with an exponent below 0.0001 and from 2^53. Frequencies, limits and factors come again and again: what
/// was written lately is kept.
class Dezimalschreiber {
 public:
  static constexpr std::size_t Laengste = 16;  ///< 2^53 has 16 digits

  struct Text {
    std::array<char, Laengste> zeichen{};
    std::uint32_t laenge = 0;
  };

  explicit Dezimalschreiber(char trenner) : trenner_(trenner) {}

  /// `wert` is finite; there is room for Laengste characters. Returns the end of what it wrote.
  char* Schreiben(float wert, char* ziel);

 private:
  struct Eintrag {
    std::uint32_t bits = 0;
    Text text;  ///< empty: nothing kept
  };

  char trenner_;
  std::array<Eintrag, 1024> zuletzt_{};
};

}  // namespace vesk
