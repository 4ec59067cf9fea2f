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

/// Runs this program again on a display of its own under a window manager.
constexpr const char* EigenerBildschirm = R"(
  marke=$(mktemp -u)
  openbox --startup "touch $marke" >/dev/null 2>&1 &
  while [ ! -e "$marke" ] && kill -0 $! 2>/dev/null; do sleep 0.1; done
  rm "$marke" 2>/dev/null || { echo "openbox fehlt oder ist nicht angelaufen." >&2; exit 1; }
  exec "$0" "Xvfb mit openbox"
)";

/// Where the windows are shown, as the output tells it. Without a display it starts the program anew on one.
std::string Bildschirm(const char* programm) {
  for (const char* name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
    if (const char* wert = std::getenv(name)) return std::string(name) + "=" + wert;
  }
  execlp("xvfb-run", "xvfb-run", "-a", "-s", "-screen 0 1280x1024x24", "sh", "-c", EigenerBildschirm,
         programm, nullptr);
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  return "keiner (offscreen), denn xvfb-run fehlt";
}

/// The directory of the program's files, with the shipped catalogues in it.
std::filesystem::path Verzeichnis(const std::filesystem::path& hier) {
  std::filesystem::path ziel = std::filesystem::temp_directory_path() / "vesk-startvergleich";
  std::filesystem::create_directories(ziel);
  for (const char* name : {"Kabel.txt", "Antennen.txt"}) {
    const std::filesystem::path quelle = hier / "../../data" / name;
    if (!std::filesystem::exists(quelle)) continue;
    std::filesystem::copy_file(quelle, ziel / name, std::filesystem::copy_options::overwrite_existing);
  }
  return ziel;
}

}  // namespace

/// Starts both programs in turn and prints medians and their ratio. An argument names the display.
int main(int anzahl, char** argumente) {
  constexpr int Laeufe = 21;
  const std::filesystem::path selbst = std::filesystem::read_symlink("/proc/self/exe");
  const std::filesystem::path hier = selbst.parent_path();
  const std::string bildschirm = anzahl > 1 ? argumente[1] : Bildschirm(selbst.c_str());
  const std::string verzeichnis = Verzeichnis(hier);
  setenv("HOME", verzeichnis.c_str(), 1);
  setenv("XDG_CONFIG_HOME", verzeichnis.c_str(), 1);

  std::array<std::vector<double>, 2> zeiten;
  std::array<std::vector<double>, 2> speicher;
  for (int lauf = -1; lauf < Laeufe; ++lauf) {
    for (std::size_t i = 0; i < 2; ++i) {
      const Messung m = Starten((hier / (i == 0 ? "start_leer" : "start_vesk")).string(), verzeichnis);
      if (lauf < 0) continue;  // the first start fills the caches
      zeiten[i].push_back(m.ms);
      speicher[i].push_back(m.MiB);
    }
  }
  std::printf("Bildschirm: %s\n", bildschirm.c_str());
  std::printf("%-16s %12s %12s %10s\n", "", "leer", "Vesk", "Verhältnis");
  const auto zeile = [](const char* titel, const std::array<std::vector<double>, 2>& werte) {
    const double leer = Median(werte[0]);
    const double vesk = Median(werte[1]);
    std::printf("%-16s %12.1f %12.1f %10.2f\n", titel, leer, vesk, vesk / leer);
  };
  zeile("Fenster [ms]", zeiten);
  zeile("Speicher [MiB]", speicher);
}
