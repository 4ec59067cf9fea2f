#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

/// What the fuzzers share: their input, and how they say that a promise is broken.
namespace vesk {

inline void Pruefen(bool gut) {
  if (!gut) std::abort();
}

/// The bytes of a fuzzer, used up from the front. Where nothing is left, every choice is the first and every
/// text is empty, so that any input is whole.
class Vorrat {
 public:
  Vorrat(const std::uint8_t* daten, std::size_t laenge)
      : rest_(reinterpret_cast<const char*>(daten), laenge) {}

  bool Leer() const { return rest_.empty(); }
  std::string_view Rest() const { return rest_; }

  /// One of `anzahl` choices by one byte; seeds written by hand say "0", "1" and so on.
  std::size_t Wahl(std::size_t anzahl) {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(rest_.front() - '0');
    rest_.remove_prefix(1);
    return byte % anzahl;
  }
  bool Ja() { return Wahl(2) == 1; }

  /// Up to the end of the line, which is used up as well.
  std::string Zeile() {
    const std::size_t ende = std::min(rest_.find('\n'), rest_.size());
    std::string zeile(rest_.substr(0, ende));
    rest_.remove_prefix(std::min(ende + 1, rest_.size()));
    return zeile;
  }

  /// The bits of a value, as they lie in memory.
  template <typename Wert>
  Wert Bits() {
    Wert wert{};
    const std::size_t laenge = std::min(sizeof wert, rest_.size());
    std::memcpy(&wert, rest_.data(), laenge);
    rest_.remove_prefix(laenge);
    return wert;
  }

 private:
  std::string_view rest_;
};

}  // namespace vesk
