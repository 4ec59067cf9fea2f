#include "engine/Zahlen.h"

#include <benchmark/benchmark.h>

#include <array>
#include <string_view>

namespace vesk {
namespace {

void ZahlLesen(benchmark::State& lauf) {
  constexpr std::array<std::string_view, 4> texte = {"14.2", "-0.125", "1296.3", "750"};
  std::size_t i = 0;
  for ([[maybe_unused]] auto _ : lauf) benchmark::DoNotOptimize(Zahl(texte[i++ % texte.size()]));
}
BENCHMARK(ZahlLesen);

void ZahlSchreiben(benchmark::State& lauf) {
  constexpr std::array<float, 4> werte = {1.9943F, 27.498F, 0.0731F, 99999.99F};
  std::size_t i = 0;
  for ([[maybe_unused]] auto _ : lauf) benchmark::DoNotOptimize(Formatieren(werte[i++ % werte.size()]));
}
BENCHMARK(ZahlSchreiben);

}  // namespace
}  // namespace vesk
