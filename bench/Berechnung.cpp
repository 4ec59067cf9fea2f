#include <benchmark/benchmark.h>

#include <cmath>

#include "engine/Ausgabe.h"
#include "engine/Grenzwert.h"

namespace {

using namespace vesk;

Rechenwerte Beispiel() {
  Rechenwerte werte;
  werte.QRGText = "7.05";
  werte.PWRText = "750";
  werte.GewinnText = "10.15";
  werte.DaempfungText = "1.8";
  werte.WinkelDaempfungText = "0.85";
  werte.Modulationsfaktor = 0.5F;
  return werte;
}

constexpr Stationswerte Station{750, 10.15F, 1.8F, 0.85F, 0.5F};

/// One whole calculation, numbers only, in the 40 m band: every limit is defined there and the threshold of
/// DIN VDE 0848 has its three candidates.
void NurZahlen(benchmark::State& lauf) {
  float qrg = 7.05F;
  for ([[maybe_unused]] auto _ : lauf) {
    benchmark::DoNotOptimize(qrg);
    Rechenergebnis ergebnis;
    ergebnis.grenzwerte = GrenzwerteBestimmen(qrg, true, GrenzwertAM);
    FelderBestimmen(ergebnis.grenzwerte);
    AusgabenBestimmen(Station, Modus::Abstand, ergebnis);
    benchmark::DoNotOptimize(ergebnis);
  }
}
BENCHMARK(NurZahlen);

/// The square roots, powers and logarithms that this calculation cannot avoid, and nothing else, each on the
/// result that it needs: the root of the limit, the logarithm of the 306 threshold, the power of the third
/// candidate, the level of the transmitter, three radiated powers, the roots of power and factor.
void BareMathematik(benchmark::State& lauf) {
  double f = 7.1;
  double leistung = 750;
  double faktor = 0.5;
  for ([[maybe_unused]] auto _ : lauf) {
    benchmark::DoNotOptimize(f);
    benchmark::DoNotOptimize(leistung);
    benchmark::DoNotOptimize(faktor);
    const double grenzwert = std::sqrt(f);
    const double schwelle = std::log(f);
    const double kandidat = std::pow(f, 2.85);
    const double pegel = std::log(leistung);
    const double eirp = std::pow(10.0, pegel);
    const double antenne = std::pow(10.0, pegel - 1);
    const double gerichtet = std::pow(10.0, pegel - 2);
    const double feld = std::sqrt(gerichtet);
    const double wurzel = std::sqrt(faktor);
    benchmark::DoNotOptimize(grenzwert + schwelle + kandidat + eirp + antenne + feld + wurzel);
  }
}
BENCHMARK(BareMathematik);

void TexteZuTexten(benchmark::State& lauf) {
  Rechenwerte werte = Beispiel();
  for ([[maybe_unused]] auto _ : lauf) {
    benchmark::DoNotOptimize(werte);
    const Feldtexte texte = Ausgabetexte(Berechnen(werte, {}), ',');
    benchmark::DoNotOptimize(texte);
  }
}
BENCHMARK(TexteZuTexten);

/// The worst branch of each limit.
void GrenzwertWurzel(benchmark::State& lauf) {
  float f = 7.1F;
  for ([[maybe_unused]] auto _ : lauf) {
    benchmark::DoNotOptimize(f);
    benchmark::DoNotOptimize(Grenzwert(f, f));
  }
}
BENCHMARK(GrenzwertWurzel);

void HSM306LetzterAbschnitt(benchmark::State& lauf) {
  float f = 49.0F;
  for ([[maybe_unused]] auto _ : lauf) {
    benchmark::DoNotOptimize(f);
    benchmark::DoNotOptimize(HSM306(f));
  }
}
BENCHMARK(HSM306LetzterAbschnitt);

void HSMvdeZweiPotenzen(benchmark::State& lauf) {
  float f = lauf.range(0) == GrenzwertAM ? 6.9F : lauf.range(0) == GrenzwertTV ? 210.0F : 2400.0F;
  for ([[maybe_unused]] auto _ : lauf) {
    benchmark::DoNotOptimize(f);
    benchmark::DoNotOptimize(HSMvde(f, static_cast<std::int16_t>(lauf.range(0))));
  }
}
BENCHMARK(HSMvdeZweiPotenzen)->ArgName("Typ")->Arg(GrenzwertAM)->Arg(GrenzwertTV)->Arg(GrenzwertGSM);

}  // namespace
