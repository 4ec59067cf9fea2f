#include "persistence/Neufassung.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <system_error>
#include <thread>

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

/// Opens and locks the file that becomes the new content. Another saver of the same file is waited for, but
/// not for long: it may have been stopped.
Deskriptor NeuOeffnen(const fs::path& pfad) {
  using namespace std::chrono_literals;
  const auto schluss = std::chrono::steady_clock::now() + 2s;
  do {
    Deskriptor datei(open(pfad.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
    if (!datei) Scheitern(errno);
    if (SperreVersuchen(datei) == Sperre::Belegt) {
      std::this_thread::sleep_for(10ms);
    } else if (SelbeDatei(datei, pfad)) {
      return datei;
    }
    // Otherwise the other saver has renamed or removed the file in the meantime.
  } while (std::chrono::steady_clock::now() < schluss);
  Scheitern(EBUSY);
}

}  // namespace

Deskriptor::~Deskriptor() {
  if (fd_ >= 0) close(fd_);
}

bool SelbeDatei(const Deskriptor& datei, const fs::path& pfad) {
  struct stat offen {};
  struct stat dort {};
  return datei && fstat(*datei, &offen) == 0 && stat(pfad.c_str(), &dort) == 0 &&
         offen.st_dev == dort.st_dev && offen.st_ino == dort.st_ino;
}

Sperre SperreVersuchen(const Deskriptor& datei) {
  while (flock(*datei, LOCK_EX | LOCK_NB) != 0) {
    if (errno == EWOULDBLOCK) return Sperre::Belegt;
    if (errno != EINTR) break;
  }
  return Sperre::Erhalten;
}

Neufassung::Neufassung(const fs::path& pfad) : ziel_(NachVerknuepfungen(pfad)) {
  if (!ziel_.has_filename()) Scheitern(EISDIR);
  struct stat alt {};
  zielVorhanden_ = stat(ziel_.c_str(), &alt) == 0;
  if (zielVorhanden_ && S_ISDIR(alt.st_mode)) Scheitern(EISDIR);
  if (zielVorhanden_ && !S_ISREG(alt.st_mode)) Scheitern(ENODEV);
  // Renaming would pass over the write protection of the file itself.
  if (zielVorhanden_ && faccessat(AT_FDCWD, ziel_.c_str(), W_OK, AT_EACCESS) != 0) Scheitern(errno);
  neben_ = Verzeichnis(ziel_) / ("." + ziel_.filename().string() + ".neu");
  datei_ = NeuOeffnen(neben_);
  if (ftruncate(*datei_, 0) != 0) Scheitern(errno);
}

Neufassung::~Neufassung() {
  if (datei_ && !ersetzt_) unlink(neben_.c_str());
}

void Neufassung::Schreiben(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t anzahl = write(*datei_, bytes.data(), bytes.size());
    if (anzahl < 0 && errno != EINTR) Scheitern(errno);
    if (anzahl > 0) bytes.remove_prefix(static_cast<std::size_t>(anzahl));
  }
}

void Neufassung::RechteWie(const Deskriptor& vorbild) {
  struct stat alt {};
  if (!zielVorhanden_ && fstat(*vorbild, &alt) == 0) fchmod(*datei_, alt.st_mode & 0777U);
}

void Neufassung::RechteUebernehmen() {
  struct stat alt {};
  if (stat(ziel_.c_str(), &alt) != 0) return;
  // Only root may give a file away; for everybody else the file is now their own.
  [[maybe_unused]] const int verschenkt = fchown(*datei_, alt.st_uid, alt.st_gid);
  fchmod(*datei_, alt.st_mode & 07777U);
}

void Neufassung::Ersetzen() {
  RechteUebernehmen();
  if (fsync(*datei_) != 0 && errno != EINVAL) Scheitern(errno);
  if (rename(neben_.c_str(), ziel_.c_str()) != 0) Scheitern(errno);
  ersetzt_ = true;
}

void Neufassung::VerzeichnisSichern() const {
  // A directory that may be written but not read cannot be flushed; nor can those of some file systems.
  const Deskriptor verzeichnis(open(Verzeichnis(ziel_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (verzeichnis && fsync(*verzeichnis) != 0 && errno != EINVAL) Scheitern(errno);
}

const char* Fehlertext(int nummer) {
  struct Zeile {
    int nummer;
    const char* text;
  };
  static constexpr std::array Tabelle = {
      Zeile{ENOSPC, "Auf dem Datenträger ist kein Platz mehr."},
      Zeile{EDQUOT, "Der zugeteilte Platz auf dem Datenträger ist verbraucht."},
      Zeile{EFBIG, "Die Datei darf nicht so groß werden: Der erlaubte Platz reicht nicht."},
      Zeile{EACCES, "Die Berechtigung fehlt."},
      Zeile{EPERM, "Die Berechtigung fehlt, oder die Datei ist gesperrt."},
      Zeile{EROFS, "Der Datenträger ist schreibgeschützt."},
      Zeile{ENOENT, "Das Verzeichnis gibt es nicht."},
      Zeile{ENOTDIR, "Ein Teil des Pfades ist kein Verzeichnis."},
      Zeile{EISDIR, "Unter diesem Namen gibt es ein Verzeichnis."},
      Zeile{ENODEV, "Unter diesem Namen gibt es etwas, das keine gewöhnliche Datei ist."},
      Zeile{EBUSY, "Die Datei ist gerade von einem anderen Programm gesperrt."},
      Zeile{ETXTBSY, "Die Datei ist gerade von einem anderen Programm gesperrt."},
      Zeile{ENAMETOOLONG, "Der Name der Datei ist zu lang."},
      Zeile{ELOOP, "Die Verknüpfung führt im Kreis."},
      Zeile{EIO, "Der Datenträger meldet einen Fehler."},
      Zeile{EMFILE, "Es sind zu viele Dateien geöffnet."},
      Zeile{ENFILE, "Es sind zu viele Dateien geöffnet."},
  };
  for (const Zeile& zeile : Tabelle) {
    if (zeile.nummer == nummer) return zeile.text;
  }
  return "Das Betriebssystem meldet einen Fehler.";
}

}  // namespace vesk
