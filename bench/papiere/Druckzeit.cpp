#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "persistence/Dateien.h"
#include "persistence/UserDatei.h"
#include "station/Datenblatt.h"
#include "station/Spalten.h"

namespace {

/// Seven bands, each with a cable, a factor below 1 and an angle table, from which it claims an attenuation.
vesk::Station VollesBlatt() {
  constexpr std::array Baender = {"1.8", "3.6", "7", "14", "28", "144", "430"};
  vesk::Station s;
  s.benutzer = {"Erika Mustermann",
                "Am Funkturm 7",
                "12345 Musterstadt",
                "0123 4567",
                "0123 4568",
                "DL1ABC",
                "1",
                "Am Funkturm 7, 12345 Musterstadt"};
  for (int spalte = 1; spalte <= vesk::AnzahlSpalten; ++spalte) {
    s.werte.Spalte = static_cast<std::int16_t>(spalte);
    vesk::Datenblattspalte satz = vesk::LeereSpalte();
    satz.Modulationsfaktor = "0.50";
    satz.KabelIndex = "3";
    satz.KabelLaenge = "25";
    satz.Winkel = {"0.00", "0.85", "3.33", "11.25", "12.92", "14.58", "16.67", "17.50", "20.00"};
    s.Datenblattspalten.at(static_cast<std::size_t>(spalte)) = satz;
    const char* const texte[] = {"12",   "0-360", Baender.at(static_cast<std::size_t>(spalte) - 1),
                                 "Beam", "ssb ",  "750",
                                 "1.25", "9.15",  "3.33"};
    for (std::int16_t zeile = 1; zeile <= vesk::ZeileWinkel; ++zeile) {
      vesk::ZelleSetzen(s, spalte, static_cast<vesk::Zeile>(zeile), texte[zeile - 1]);
    }
    vesk::SpalteUebernehmen(s, {}, vesk::Satz::Behalten, false);
  }
  return s;
}

double Lauf(const std::string& vesk, const std::string& datei, const std::string& ziel) {
  const auto beginn = std::chrono::steady_clock::now();
  const pid_t kind = fork();
  if (kind == 0) {
    execl(vesk.c_str(), vesk.c_str(), "drucken", "--art", "mappe", "--datei", datei.c_str(), "--nach",
          ziel.c_str(), nullptr);
    std::_Exit(127);
  }
  int status = 0;
  waitpid(kind, &status, 0);
  if (status != 0) {
    std::fprintf(stderr, "vesk drucken ist gescheitert.\n");
    std::exit(1);
  }
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - beginn).count();
}

}  // namespace

/// Runs `vesk drucken` again and again and prints the median.
int main() {
  constexpr int Laeufe = 21;
  namespace fs = std::filesystem;
  const fs::path hier = fs::read_symlink("/proc/self/exe").parent_path();
  const fs::path verzeichnis = fs::temp_directory_path() / "vesk-druckzeit";
  fs::create_directories(verzeichnis);
  const fs::path datei = verzeichnis / "user.dat";
  const fs::path ziel = verzeichnis / "mappe.pdf";
  if (vesk::DateiSchreiben(datei, vesk::UserDateiSchreiben(VollesBlatt()))) return 1;

  std::vector<double> zeiten;
  for (int lauf = -1; lauf < Laeufe; ++lauf) {
    const double ms = Lauf((hier / "../../vesk").string(), datei.string(), ziel.string());
    if (lauf >= 0) zeiten.push_back(ms);  // the first run fills the caches
  }
  std::sort(zeiten.begin(), zeiten.end());
  std::printf("Mappe eines vollen Datenblatts: %.0f ms (%.0f bis %.0f), %.0f kB\n", zeiten[Laeufe / 2],
              zeiten.front(), zeiten.back(), static_cast<double>(fs::file_size(ziel)) / 1000);
}
