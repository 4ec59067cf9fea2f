#include "rechnen/Stapel.h"

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <cmath>
#include <cstdint>
#include <istream>
#include <ostream>
#include <random>
#include <streambuf>
#include <string>

namespace vesk {
namespace {

/// A table of any length, of which only a part is in memory: frequencies from 0.1 MHz to 4 GHz, so that every
/// limit and note occurs.
class Tabelle : public std::streambuf {
 public:
  explicit Tabelle(std::int64_t zeilen) : rest_(zeilen) {
    std::mt19937 zufall(1);
    const auto zahl = [&](int bis) {
      return std::to_string(static_cast<double>(zufall() % 1000000) * bis / 1e6);
    };
    for (int i = 0; i < ZeilenImBlock; ++i) {
      block_ += std::to_string(std::pow(10, static_cast<double>(zufall() % 46) / 10 - 1)).substr(0, 7);
      for (const int bis : {750, 15, 6, 10}) block_ += ';' + zahl(bis).substr(0, 4);
      block_ += zufall() % 2 == 0 ? ";0.5;AM\n" : ";1;GSM\n";
    }
    setg(kopf_.data(), kopf_.data(), kopf_.data() + kopf_.size());
  }

 protected:
  int underflow() override {
    if (rest_ <= 0) return traits_type::eof();
    rest_ -= ZeilenImBlock;
    setg(block_.data(), block_.data(), block_.data() + block_.size());
    return traits_type::to_int_type(block_.front());
  }

 private:
  static constexpr int ZeilenImBlock = 10000;
  std::string kopf_ = "qrg;pwr;gewinn;daempfung;winkel;faktor;typ\n";
  std::string block_;
  std::int64_t rest_;
};

class Nirgends : public std::streambuf {
 protected:
  int overflow(int zeichen) override { return traits_type::not_eof(zeichen); }
  std::streamsize xsputn(const char* /*zeichen*/, std::streamsize anzahl) override { return anzahl; }
};

/// The peak of memory is that of the process so far: it must not grow with the rows.
void StapelRechnen(benchmark::State& lauf, bool json) {
  Rechenaufruf aufruf;
  aufruf.json = json;
  for ([[maybe_unused]] auto _ : lauf) {
    Tabelle tabelle(lauf.range(0));
    Nirgends nirgends;
    std::istream ein(&tabelle);
    std::ostream aus(&nirgends);
    if (StapelRechnen(aufruf, ',', {ein, aus, aus}) != 0) lauf.SkipWithError("Zeile abgelehnt");
  }
  rusage verbrauch{};
  getrusage(RUSAGE_SELF, &verbrauch);
  lauf.counters["Zeilen/s"] =
      benchmark::Counter(static_cast<double>(lauf.range(0)), benchmark::Counter::kIsIterationInvariantRate);
  lauf.counters["Spitze/kB"] = static_cast<double>(verbrauch.ru_maxrss);
}
BENCHMARK_CAPTURE(StapelRechnen, Csv, false)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StapelRechnen, Json, true)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vesk
