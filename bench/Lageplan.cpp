#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

#include "station/Passung.h"
#include "station/Summenzone.h"

namespace {

using namespace vesk;

/// Seven columns with tables, ten antennas that serve all of them, and outlines of 200 corners together.
Station Grosser(int antennen, bool tabellen) {
  Station s;
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    const auto zelle = [&](Zeile zeile, const char* text) { s.Zellen[Zellenindex(spalte, zeile)] = text; };
    zelle(ZeileHoehe, "9.5");
    zelle(ZeileRichtung, "120");
    zelle(ZeileFrequenz, "14.2");
    zelle(ZeileLeistung, "400");
    zelle(ZeileGewinn, "6");
    if (tabellen) {
      s.Datenblattspalten.at(static_cast<std::size_t>(spalte)).Winkel = {"0", "1",  "2",  "4", "6",
                                                                         "9", "12", "15", "20"};
    }
  }
  constexpr int Ecken = 50;
  for (const Planart art : {Planart::Grundstueck, Planart::Bereich, Planart::Nachbar, Planart::Gebaeude}) {
    Planobjekt objekt;
    objekt.art = art;
    objekt.nutzung = Nutzung::Nachbar;
    objekt.hoehe = 8;
    const double mitte = art == Planart::Gebaeude ? 25 : 0;
    for (int i = 0; i < Ecken; ++i) {
      const double winkel = 2 * std::numbers::pi * i / Ecken;
      const double radius = i % 2 == 0 ? 20 : 18;
      objekt.punkte.push_back({mitte + radius * std::cos(winkel), radius * std::sin(winkel)});
    }
    s.lageplan.objekte.push_back(objekt);
  }
  for (int i = 0; i < antennen; ++i) {
    Planobjekt antenne;
    antenne.art = Planart::Antenne;
    antenne.punkte = {{-30.0 + 60.0 * i / antennen, i % 2 == 0 ? -30.0 : 30.0}};
    antenne.spalten.set();
    antenne.drehbar = i % 2 == 0;
    antenne.bis = 90;
    if (tabellen) antenne.ebene = Winkelebene::Horizontal;
    s.lageplan.objekte.push_back(antenne);
  }
  return s;
}

/// The zones of 7 columns and 10 antennas and their outlines; a frame has 16 ms.
void Zonen(benchmark::State& lauf) {
  const Station s = Grosser(10, true);
  for ([[maybe_unused]] auto _ : lauf) {
    for (const Zone& zone : ZonenBestimmen(s)) benchmark::DoNotOptimize(Grundriss(s.lageplan, zone));
  }
}

/// The same with the check against the area and the buildings.
void Pruefung(benchmark::State& lauf) {
  const Station s = Grosser(10, true);
  for ([[maybe_unused]] auto _ : lauf) benchmark::DoNotOptimize(LageplanPruefen(s));
}

/// The summed outline on 200 m × 200 m at 0.25 m; the aim is 100 ms.
void Summe(benchmark::State& lauf) {
  const Station s = Grosser(10, lauf.range(0) != 0);
  const auto zonen = ZonenBestimmen(s);
  for ([[maybe_unused]] auto _ : lauf) {
    benchmark::DoNotOptimize(Summenumriss(s.lageplan, zonen, Winkelkurve::HSMvde));
  }
}

BENCHMARK(Zonen)->Unit(benchmark::kMillisecond);
BENCHMARK(Pruefung)->Unit(benchmark::kMillisecond);
BENCHMARK(Summe)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
