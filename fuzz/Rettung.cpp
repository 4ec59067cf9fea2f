#include "persistence/Rettung.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <fstream>
#include <iterator>

#include "fuzz/Vorrat.h"
#include "persistence/Dateien.h"

namespace vesk {

namespace {

namespace fs = std::filesystem;

/// A directory of its own, in memory where the system has such a place.
class Ordner {
 public:
  Ordner() {
    const fs::path schnell = "/dev/shm";
    std::string muster = (fs::is_directory(schnell) ? schnell : fs::temp_directory_path()) / "vesk-XXXXXX";
    Pruefen(mkdtemp(muster.data()) != nullptr);
    pfad_ = muster;
  }
  Ordner(const Ordner&) = delete;
  Ordner& operator=(const Ordner&) = delete;
  ~Ordner() {
    std::error_code egal;
    fs::remove_all(pfad_, egal);
  }
  void Leeren() const {
    for (const auto& eintrag : fs::directory_iterator(pfad_)) fs::remove(eintrag);
  }
  fs::path operator/(const char* name) const { return pfad_ / name; }
  const fs::path& Pfad() const { return pfad_; }

 private:
  fs::path pfad_;
};

void Anlegen(const fs::path& pfad, const std::string& bytes) {
  std::ofstream(pfad, std::ios::binary) << bytes;
}

std::string Inhalt(const fs::path& pfad) {
  std::ifstream datei(pfad, std::ios::binary);
  return {std::istreambuf_iterator<char>(datei), {}};
}

/// Seconds since 1970 as the time of the last change.
void Datieren(const fs::path& pfad, long sekunden) {
  const timespec zeit{sekunden, 0};
  const timespec zeiten[] = {zeit, zeit};
  Pruefen(utimensat(AT_FDCWD, pfad.c_str(), zeiten, 0) == 0);
}

/// Bytes as somebody may have left them. They name the file of this directory or none: what is found is
/// compared with the file that it names, and may be put beside it.
std::string Kopie(Vorrat& vorrat, const fs::path& datei) {
  const std::size_t art = vorrat.Wahl(3);
  std::string bytes(vorrat.Rest());
  const std::size_t zahl = std::min(bytes.find_first_not_of('0'), bytes.size());
  const bool nenntPfad = zahl < bytes.size() && bytes[zahl] >= '1' && bytes[zahl] <= '9';
  if (art == 0 && !nenntPfad) return bytes;
  const std::string pfad = art == 1 ? datei.string() : std::string();
  return std::to_string(pfad.size()) + ':' + pfad + bytes;
}

/// Whatever the copy says: a file that is there stays, and a copy that goes has left its text in a file.
void FremdePruefen(Vorrat& vorrat, const Ordner& ordner) {
  constexpr long Zeit = 1'700'000'000;
  const fs::path datei = ordner / "user.dat";
  const fs::path kopie = ordner / ".user.dat-1.rettung";
  const std::size_t stand = vorrat.Wahl(3);  // no file, an older one, a newer one
  const std::string gespeichert = vorrat.Ja() ? "\"[User]\"" : "";
  const std::string bytes = Kopie(vorrat, datei);
  Anlegen(kopie, bytes);
  Datieren(kopie, Zeit);
  if (stand > 0) {
    Anlegen(datei, gespeichert);
    Datieren(datei, stand == 1 ? Zeit - 1 : Zeit + 1);
  }
  const std::vector<Rettung::Fund> funde = Rettung::Suchen(ordner.Pfad()).funde;
  Pruefen(funde.size() <= 1 && (funde.empty() || fs::exists(kopie)));
  for (const Rettung::Fund& fund : funde) {
    Pruefen(fund.pfad == kopie && (fund.datei.empty() || fund.datei == datei));
    Pruefen(bytes.find(fund.inhalt.user) != std::string::npos);
    Pruefen(bytes.find(fund.inhalt.winkel) != std::string::npos);
    Pruefen(bytes.find(fund.inhalt.plan) != std::string::npos);
  }
  Pruefen(fs::exists(datei) == (stand > 0) && Inhalt(datei) == (stand > 0 ? gespeichert : ""));
  if (fs::exists(kopie)) return;
  const fs::path alt = ordner / "user-alt.dat";
  Pruefen(bytes.find(Inhalt(fs::exists(alt) ? alt : datei)) != std::string::npos && stand > 0);
}

/// What was kept is found as it was.
void RundreisePruefen(Vorrat& vorrat, const Ordner& ordner) {
  const fs::path datei = vorrat.Ja() ? ordner / "user.dat" : fs::path();
  Rettung::Inhalt inhalt;
  inhalt.winkel = vorrat.Zeile();
  inhalt.winkeldatei = fs::path(vorrat.Zeile()) / "h-b.ang";
  inhalt.plan = vorrat.Zeile();
  inhalt.user = vorrat.Rest();
  {
    Rettung rettung;
    rettung.Gesichert("gesichert");
    rettung.Sichern(ordner.Pfad(), datei, inhalt);
    // The copy of a program that runs is nobody's find.
    Pruefen(Rettung::Suchen(ordner.Pfad()).funde.empty());
  }
  const std::vector<Rettung::Fund> funde = Rettung::Suchen(ordner.Pfad()).funde;
  const bool nichts = inhalt.user == "gesichert" && inhalt.winkel.empty() && inhalt.plan.empty();
  Pruefen(funde.size() == (nichts ? 0 : 1));
  // Nothing of the user's file is kept that stands in it.
  if (inhalt.user == "gesichert" && !datei.empty()) inhalt.user.clear();
  for (const Rettung::Fund& fund : funde) Pruefen(fund.datei == datei && fund.inhalt == inhalt);
}

}  // namespace

}  // namespace vesk

/// A copy for a crash that somebody has changed, or one that the program has written itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  static const Ordner ordner;
  Vorrat vorrat(daten, laenge);
  if (vorrat.Ja()) {
    RundreisePruefen(vorrat, ordner);
  } else {
    FremdePruefen(vorrat, ordner);
  }
  ordner.Leeren();
  return 0;
}
