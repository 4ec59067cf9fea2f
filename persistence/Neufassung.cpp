#include "persistence/Neufassung.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <system_error>
#include <thread>

#include "persistence/Pfade.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Scheitern(int nummer) {
  throw std::system_error(nummer, std::generic_category());
}

/// Where writing to `pfad` ends up: a link is kept and its target replaced, also one that dangles.
fs::path NachVerknuepfungen(fs::path pfad) {
  constexpr int MaxVerknuepfungen = 40;
  std::error_code fehler;
  for (int i = 0; i < MaxVerknuepfungen; ++i) {
    if (!fs::is_symlink(pfad, fehler)) return pfad;
    const fs::path ziel = fs::read_symlink(pfad, fehler);
    if (fehler) Scheitern(fehler.value());
    pfad = pfad.parent_path() / ziel;
  }
  Scheitern(ELOOP);
}

fs::path Verzeichnis(const fs::path& pfad) {
  return pfad.has_parent_path() ? pfad.parent_path() : fs::path(".");
}

/// Something under the hidden name that no saving has left there.
class Fremdkoerper : public std::system_error {
 public:
  explicit Fremdkoerper(const fs::path& pfad)
      : std::system_error(EEXIST, std::generic_category()), name(PfadAlsUtf8(pfad.filename())) {}
  std::string name;
};

Deskriptor AnlegenOderUebernehmen(const fs::path& pfad, bool vertraulich) try {
  Deskriptor neu = NeuAnlegen(pfad, vertraulich);
  return neu ? std::move(neu) : RestOeffnen(pfad, vertraulich);
} catch (const std::system_error& fehler) {
  if (fehler.code().value() == EEXIST) throw Fremdkoerper(pfad);
  throw;
}

/// Opens and locks the file that becomes the new content. Another saver of the same file is waited for, but
/// not for long: it may have been stopped.
Deskriptor NeuOeffnen(const fs::path& pfad, bool vertraulich) {
  using namespace std::chrono_literals;
  const auto schluss = std::chrono::steady_clock::now() + 2s;
  do {
    Deskriptor datei = AnlegenOderUebernehmen(pfad, vertraulich);
    if (!datei || SperreVersuchen(datei) == Sperre::Belegt) {
      std::this_thread::sleep_for(10ms);
    } else if (SelbeDatei(datei, pfad)) {
      return datei;
    }
    // Otherwise the other saver has renamed or removed the file in the meantime.
  } while (std::chrono::steady_clock::now() < schluss);
  Scheitern(EBUSY);
}

}  // namespace

Neufassung::Neufassung(const fs::path& pfad, std::optional<fs::path> vorbild)
    : ziel_(NachVerknuepfungen(pfad)), vorbild_(std::move(vorbild)) {
  if (!ziel_.has_filename()) Scheitern(EISDIR);
  std::error_code egal;
  const fs::file_status alt = fs::status(ziel_, egal);
  const bool vorhanden = fs::is_regular_file(alt);
  if (fs::is_directory(alt)) Scheitern(EISDIR);
  if (!vorhanden && fs::exists(alt)) Scheitern(ENODEV);
  if (vorhanden) SchreibrechtPruefen(ziel_);
  if (vorhanden) vorbild_.reset();
  fs::path name = ".";
  neben_ = Verzeichnis(ziel_) / ((name += ziel_.filename()) += ".neu");
  // Until the new content has the permissions of the old one, nobody else reads it.
  datei_ = NeuOeffnen(neben_, vorhanden || vorbild_);
  Leeren(datei_);
}

Neufassung::~Neufassung() {
  std::error_code egal;
  if (datei_ && !ersetzt_) fs::remove(neben_, egal);
}

void Neufassung::Schreiben(std::string_view bytes) {
  vesk::Schreiben(datei_, bytes);
}

void Neufassung::Ersetzen() {
  if (vorbild_) {
    RechteWie(datei_, *vorbild_);
  } else {
    RechteUndEigentuemerWie(datei_, ziel_);
  }
  Festschreiben(datei_);
  Umbenennen(neben_, ziel_);
  ersetzt_ = true;
}

void Neufassung::VerzeichnisSichern() const {
  VerzeichnisFestschreiben(Verzeichnis(ziel_));
}

const char* Fehlertext(int nummer) {
  struct Fehlerzeile {
    int nummer;
    const char* text;
  };
  static constexpr std::array Tabelle = {
      Fehlerzeile{ENOSPC, "Auf dem Datenträger ist kein Platz mehr."},
#ifdef EDQUOT
      Fehlerzeile{EDQUOT, "Der zugeteilte Platz auf dem Datenträger ist verbraucht."},
#endif
      Fehlerzeile{EFBIG, "Die Datei darf nicht so groß werden: Der erlaubte Platz reicht nicht."},
      Fehlerzeile{EACCES, "Die Berechtigung fehlt."},
      Fehlerzeile{EPERM, "Die Berechtigung fehlt, oder die Datei ist gesperrt."},
      Fehlerzeile{EROFS, "Der Datenträger ist schreibgeschützt."},
      Fehlerzeile{ENOENT, "Das Verzeichnis gibt es nicht."},
      Fehlerzeile{ENOTDIR, "Ein Teil des Pfades ist kein Verzeichnis."},
      Fehlerzeile{EISDIR, "Unter diesem Namen gibt es ein Verzeichnis."},
      Fehlerzeile{ENODEV, "Unter diesem Namen gibt es etwas, das keine gewöhnliche Datei ist."},
      Fehlerzeile{EBUSY, "Die Datei ist gerade von einem anderen Programm gesperrt."},
      Fehlerzeile{ETXTBSY, "Die Datei ist gerade von einem anderen Programm gesperrt."},
      Fehlerzeile{ENAMETOOLONG, "Der Name der Datei ist zu lang."},
      Fehlerzeile{ELOOP, "Die Verknüpfung führt im Kreis."},
      Fehlerzeile{EIO, "Der Datenträger meldet einen Fehler."},
      Fehlerzeile{EMFILE, "Es sind zu viele Dateien geöffnet."},
      Fehlerzeile{ENFILE, "Es sind zu viele Dateien geöffnet."},
  };
  for (const Fehlerzeile& zeile : Tabelle) {
    if (zeile.nummer == nummer) return zeile.text;
  }
  return "Das Betriebssystem meldet einen Fehler.";
}

std::string Fehlertext(const std::system_error& fehler) {
  const auto* koerper = dynamic_cast<const Fremdkoerper*>(&fehler);
  if (koerper == nullptr) return Fehlertext(fehler.code().value());
  return "Zum Speichern wird der Name " + koerper->name +
         " gebraucht, und dort steht etwas, das nicht von Vesk ist. Bitte entfernen Sie es.";
}

}  // namespace vesk
