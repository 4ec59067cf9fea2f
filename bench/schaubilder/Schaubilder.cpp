#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <filesystem>

#include "persistence/Katalogdateien.h"
#include "print/Kurven.h"
#include "station/Haupthandlungen.h"
#include "station/Optionen.h"

namespace {

using namespace vesk;

struct Beispiel {
  Kataloge kataloge;
  Station station;
};

/// The shipped catalogues, an antenna of nine bands, a cable, five cables in the chart, a full data sheet.
Beispiel BeispielBilden() {
  Beispiel b;
  Meldungen meldungen;
  const auto hier = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  b.kataloge = KatalogeLesen(hier / "../../data", meldungen);
  Station& s = b.station;
  const Kataloge& k = b.kataloge;
  OptionenVorbelegen(s, k);
  KabelfeldGetippt(s, k, Kabelfeld::KabelLaenge, "25");
  EingabeGetippt(s, k, Eingabefeld::PWR, "100");
  EingabeGetippt(s, k, Eingabefeld::QRG, "14.2");
  FeldVerlassen(s, k, Eingabefeld::QRG);
  AntenneGewaehlt(s, k, 0);
  AntenneNehmen(s, k);
  BaenderKopieren(s, k, Baenderwahl(0x7F));
  s.schaubilder.kabel = std::vector{0, 1, 2, 3, 4};
  return b;
}

const Beispiel& Eines() {
  static const Beispiel beispiel = BeispielBilden();
  return beispiel;
}

void BaenderRechnen(benchmark::State& lauf) {
  for ([[maybe_unused]] auto _ : lauf)
    benchmark::DoNotOptimize(AlleBaender(Eines().station, Eines().kataloge));
}
BENCHMARK(BaenderRechnen)->Unit(benchmark::kMillisecond);

template <typename Malen>
void AufDenSchirm(benchmark::State& lauf, Malen malen) {
  constexpr double JeMillimeter = 96 / 25.4;
  QImage schirm(1000, 600, QImage::Format_RGB32);
  for ([[maybe_unused]] auto _ : lauf) {
    QPainter maler(&schirm);
    Blatt blatt(maler, JeMillimeter);
    malen(blatt, QRectF(QPointF(0, 0), QSizeF(schirm.size()) / JeMillimeter));
  }
}

/// From the station to the picture.
void BaenderZeigen(benchmark::State& lauf) {
  const Beispiel& b = Eines();
  AufDenSchirm(lauf, [&](Blatt& blatt, const QRectF& flaeche) {
    BaenderbildMalen(blatt, flaeche, BaenderbildVon(b.station, AlleBaender(b.station, b.kataloge)));
  });
}
BENCHMARK(BaenderZeigen)->Unit(benchmark::kMillisecond);

void DiagrammZeigen(benchmark::State& lauf) {
  const Beispiel& b = Eines();
  const auto art = static_cast<Diagrammart>(lauf.range(0));
  lauf.SetLabel(Diagrammname(art).toStdString());
  AufDenSchirm(lauf, [&](Blatt& blatt, const QRectF& flaeche) {
    KurvenbildMalen(blatt, flaeche, Diagramm(b.station, b.kataloge, art));
  });
}
BENCHMARK(DiagrammZeigen)->DenseRange(0, AnzahlDiagramme - 1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int anzahl, char** argumente) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication anwendung(anzahl, argumente);
  benchmark::Initialize(&anzahl, argumente);
  benchmark::RunSpecifiedBenchmarks();
}
