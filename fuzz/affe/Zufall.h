#pragma once
#include <cstddef>
#include <random>

namespace vesk::affe {

/// The one source of chance of a run: the same seed gives the same run.
class Zufall {
 public:
  explicit Zufall(unsigned saat) : folge_(saat) {}
  /// From 0 to below `grenze`.
  std::size_t operator()(std::size_t grenze) { return folge_() % grenze; }
  bool Einmal(std::size_t von) { return (*this)(von) == 0; }
  template <typename Liste>
  auto Aus(const Liste& liste) {
    return liste[static_cast<typename Liste::size_type>((*this)(static_cast<std::size_t>(liste.size())))];
  }

 private:
  std::mt19937 folge_;
};

}  // namespace vesk::affe
