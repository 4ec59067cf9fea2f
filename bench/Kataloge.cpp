#include <benchmark/benchmark.h>

#include <string>

#include "persistence/Antennendatei.h"
#include "persistence/Kabeldatei.h"

namespace {

constexpr int Anzahl = 5000;

/// Catalogue of 5,000 antennas with all nine bands, ten antennas per maker.
std::string GrosserKatalog() {
  std::string bytes;
  for (int i = 0; i < Anzahl; ++i) {
    if (i % 10 == 0) bytes += "[Firma " + std::to_string(i / 10) + "]\r\n";
    bytes += "Typ " + std::to_string(i) + ",Yagi";
    for (const char* band : {"7", "14", "21", "28", "50", "144", "430", "1240", "2320"}) {
      bytes += std::string(",") + band + ",12.35," + std::to_string(i % 30);
    }
    bytes += ",#\r\n";
  }
  return bytes;
}

void AntennenLadenUndListen(benchmark::State& zustand) {
  const std::string bytes = GrosserKatalog();
  for (auto durchgang : zustand) {
    const vesk::Antennenkatalog katalog = vesk::AntennenLaden(bytes);
    if (katalog.zeilen.size() != Anzahl) zustand.SkipWithError("unvollständig");
    const vesk::Antennensuche suche(katalog.Antennen);
    benchmark::DoNotOptimize(suche);
  }
}
BENCHMARK(AntennenLadenUndListen)->Unit(benchmark::kMillisecond);

void Suchen(benchmark::State& zustand) {
  const vesk::Antennenkatalog katalog = vesk::AntennenLaden(GrosserKatalog());
  const vesk::Antennensuche suche(katalog.Antennen);
  for (auto durchgang : zustand) benchmark::DoNotOptimize(suche.Treffer("yagi 144 firma 49"));
}
BENCHMARK(Suchen)->Unit(benchmark::kMillisecond);

void KabelLaden(benchmark::State& zustand) {
  std::string bytes;
  for (int i = 0; i < vesk::KabelMax; ++i) {
    bytes +=
        "Kabel " + std::to_string(i) + ",0.56,0.8,1.28,1.86,2.66,4.23,6.12,9.18,16.17,25.9,42.3,79.7\r\n";
  }
  for (auto durchgang : zustand) benchmark::DoNotOptimize(vesk::KabelLaden(bytes));
}
BENCHMARK(KabelLaden)->Unit(benchmark::kMicrosecond);

}  // namespace
