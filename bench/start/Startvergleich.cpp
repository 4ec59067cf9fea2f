#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

struct Messung {
  double ms;
  double MiB;
};

Messung Starten(const std::string& programm, const std::string& verzeichnis) {
  std::array<int, 2> rohr{};
  if (pipe(rohr.data()) != 0) std::abort();
  const auto beginn = std::chrono::steady_clock::now().time_since_epoch().count();
  const pid_t kind = fork();
  if (kind == 0) {
    dup2(rohr[1], STDOUT_FILENO);
    close(rohr[0]);
    // The toolkit's remarks on the display are nobody's business here.
    if (std::freopen("/dev/null", "w", stderr) == nullptr) std::_Exit(127);
    execl(programm.c_str(), programm.c_str(), verzeichnis.c_str(), nullptr);
    std::_Exit(127);
  }
  close(rohr[1]);
  std::array<char, 64> text{};
  const auto laenge = read(rohr[0], text.data(), text.size() - 1);
  close(rohr[0]);
  int status = 0;
  rusage verbrauch{};
  wait4(kind, &status, 0, &verbrauch);
  if (laenge <= 0 || status != 0) {
    std::fprintf(stderr, "%s ist nicht bis zum gemalten Fenster gekommen.\n", programm.c_str());
    std::exit(1);
  }
  return {static_cast<double>(std::strtoll(text.data(), nullptr, 10) - beginn) / 1e6,
          static_cast<double>(verbrauch.ru_maxrss) / 1024};
}

double Median(std::vector<double> werte) {
  const auto mitte = werte.begin() + static_cast<std::ptrdiff_t>(werte.size() / 2);
  std::nth_element(werte.begin(), mitte, werte.end());
  return *mitte;
}

}  // namespace

/// Starts both programs in turn and prints medians and their ratio.
int main() {
  constexpr int Laeufe = 21;
  const std::filesystem::path hier = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  const std::filesystem::path verzeichnis = std::filesystem::temp_directory_path() / "vesk-startvergleich";
  std::filesystem::create_directories(verzeichnis);
  const std::filesystem::path kabel = hier / "../../data/Kabel.txt";
  if (std::filesystem::exists(kabel)) {
    for (const char* name : {"Kabel.txt", "Antennen.txt"}) {
      std::filesystem::copy_file(hier / "../../data" / name, verzeichnis / name,
                                 std::filesystem::copy_options::overwrite_existing);
    }
  }
  setenv("HOME", verzeichnis.c_str(), 1);
  setenv("XDG_CONFIG_HOME", verzeichnis.c_str(), 1);
  if (std::getenv("DISPLAY") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 0);

  std::array<std::vector<double>, 2> zeiten;
  std::array<std::vector<double>, 2> speicher;
  for (int lauf = -1; lauf < Laeufe; ++lauf) {
    for (std::size_t i = 0; i < 2; ++i) {
      const Messung m =
          Starten((hier / (i == 0 ? "start_leer" : "start_vesk")).string(), verzeichnis.string());
      if (lauf < 0) continue;  // the first start fills the caches
      zeiten[i].push_back(m.ms);
      speicher[i].push_back(m.MiB);
    }
  }
  std::printf("%-16s %12s %12s %10s\n", "", "leer", "Vesk", "Verhältnis");
  const auto zeile = [](const char* titel, const std::array<std::vector<double>, 2>& werte) {
    const double leer = Median(werte[0]);
    const double vesk = Median(werte[1]);
    std::printf("%-16s %12.1f %12.1f %10.2f\n", titel, leer, vesk, vesk / leer);
  };
  zeile("Fenster [ms]", zeiten);
  zeile("Speicher [MiB]", speicher);
}
