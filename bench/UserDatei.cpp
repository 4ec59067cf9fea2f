#include "persistence/UserDatei.h"

#include <benchmark/benchmark.h>

#include "../tests/persistence/Muster.h"
#include "persistence/Dateien.h"
#include "persistence/Dateigrenzen.h"

namespace vesk {
namespace {

// A full file: 84 cells, seven records.

void VolleDateiLesen(benchmark::State& lauf) {
  const std::string bytes = UserDateiSchreiben(Musterstation());
  Station stand;
  for ([[maybe_unused]] auto _ : lauf) benchmark::DoNotOptimize(UserDateiLesen(bytes, stand));
  lauf.SetBytesProcessed(static_cast<std::int64_t>(lauf.iterations() * bytes.size()));
}
BENCHMARK(VolleDateiLesen);

void VolleDateiSchreiben(benchmark::State& lauf) {
  Station stand = Musterstation();
  for ([[maybe_unused]] auto _ : lauf) {
    FaktorenNormalisieren(stand);
    benchmark::DoNotOptimize(UserDateiSchreiben(stand));
  }
}
BENCHMARK(VolleDateiSchreiben);

// The largest file that is read at all, filled with what takes the reader longest.
void RiesigeDatei(benchmark::State& lauf, std::string_view muster) {
  std::string bytes;
  while (bytes.size() < grenzen::UserDatei) bytes += muster;
  Station stand;
  for ([[maybe_unused]] auto _ : lauf) benchmark::DoNotOptimize(UserDateiLesen(bytes, stand));
}
BENCHMARK_CAPTURE(RiesigeDatei, Kommas, ",")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RiesigeDatei, OhneZeilenende, "\"[A]\",")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RiesigeDatei, NieGeschlossen, "\"\nx")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RiesigeDatei, EinItem, "x")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vesk
