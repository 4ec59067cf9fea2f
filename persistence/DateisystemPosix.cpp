#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "persistence/Dateisystem.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Scheitern(int nummer = errno) {
  throw std::system_error(nummer, std::generic_category());
}

}  // namespace

Deskriptor::~Deskriptor() {
  if (nummer_ != -1) close(nummer_);
}

Deskriptor ZumLesenOeffnen(const fs::path& pfad) {
  // Without O_NONBLOCK a pipe under that name would wait for its writer.
  Deskriptor datei(open(pfad.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!datei && errno == ENOENT) return datei;
  struct stat angaben {};
  if (!datei || fstat(*datei, &angaben) != 0) Scheitern();
  if (S_ISDIR(angaben.st_mode)) Scheitern(EISDIR);
  if (!S_ISREG(angaben.st_mode)) Scheitern(ENODEV);
  return datei;
}

Deskriptor NeuAnlegen(const fs::path& pfad, bool vertraulich) {
  Deskriptor datei(open(pfad.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, vertraulich ? 0600 : 0666));
  if (!datei && errno != EEXIST) Scheitern();
  return datei;
}

Deskriptor RestOeffnen(const fs::path& pfad, bool vertraulich) {
  Deskriptor datei(open(pfad.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!datei && errno == ENOENT) return datei;
  struct stat angaben {};
  // A file with a second name is somebody's who wants it emptied.
  const bool eigener = datei && fstat(*datei, &angaben) == 0 && S_ISREG(angaben.st_mode) &&
                       angaben.st_nlink <= 1 && angaben.st_uid == geteuid();
  if (!eigener) Scheitern(EEXIST);
  if (vertraulich) fchmod(*datei, 0600);
  return datei;
}

std::uintmax_t Groesse(const Deskriptor& datei) {
  struct stat angaben {};
  if (fstat(*datei, &angaben) != 0) Scheitern();
  return static_cast<std::uintmax_t>(std::max<off_t>(angaben.st_size, 0));
}

std::size_t Lesen(const Deskriptor& datei, char* ziel, std::size_t hoechstens) {
  for (;;) {
    const ssize_t anzahl = read(*datei, ziel, hoechstens);
    if (anzahl >= 0) return static_cast<std::size_t>(anzahl);
    if (errno != EINTR) Scheitern();
  }
}

void Schreiben(const Deskriptor& datei, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t anzahl = write(*datei, bytes.data(), bytes.size());
    if (anzahl < 0 && errno != EINTR) Scheitern();
    if (anzahl > 0) bytes.remove_prefix(static_cast<std::size_t>(anzahl));
  }
}

void Leeren(const Deskriptor& datei) {
  if (ftruncate(*datei, 0) != 0) Scheitern();
}

void Festschreiben(const Deskriptor& datei) {
  // EINVAL: what is open cannot be flushed.
  if (fsync(*datei) != 0 && errno != EINVAL) Scheitern();
}

void SchreibrechtPruefen(const fs::path& pfad) {
  if (faccessat(AT_FDCWD, pfad.c_str(), W_OK, AT_EACCESS) != 0) Scheitern();
}

void RechteWie(const Deskriptor& datei, const fs::path& vorbild) {
  struct stat angaben {};
  if (stat(vorbild.c_str(), &angaben) == 0) fchmod(*datei, angaben.st_mode & 0777U);
}

void RechteUndEigentuemerWie(const Deskriptor& datei, const fs::path& vorbild) {
  struct stat angaben {};
  if (stat(vorbild.c_str(), &angaben) != 0) return;
  // Only root may give a file away; for everybody else the file is now their own.
  [[maybe_unused]] const int verschenkt = fchown(*datei, angaben.st_uid, angaben.st_gid);
  fchmod(*datei, angaben.st_mode & 07777U);
}

void Umbenennen(const fs::path& von, const fs::path& nach) {
  if (rename(von.c_str(), nach.c_str()) != 0) Scheitern();
}

void VerzeichnisFestschreiben(const fs::path& verzeichnis) {
  // A directory that may be written but not read cannot be flushed; nor can those of some file systems.
  const Deskriptor offen(open(verzeichnis.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (offen) Festschreiben(offen);
}

bool SelbeDatei(const Deskriptor& datei, const fs::path& pfad) {
  struct stat offen {};
  struct stat dort {};
  return datei && fstat(*datei, &offen) == 0 && stat(pfad.c_str(), &dort) == 0 &&
         offen.st_dev == dort.st_dev && offen.st_ino == dort.st_ino;
}

std::int64_t Aenderungszeit(const fs::path& pfad) {
  struct stat angaben {};
  if (stat(pfad.c_str(), &angaben) != 0) return 0;
  return angaben.st_mtim.tv_sec * std::int64_t{1'000'000'000} + angaben.st_mtim.tv_nsec;
}

Sperre SperreVersuchen(const Deskriptor& datei) {
  while (flock(*datei, LOCK_EX | LOCK_NB) != 0) {
    if (errno == EWOULDBLOCK) return Sperre::Belegt;
    if (errno != EINTR) break;
  }
  return Sperre::Erhalten;
}

Sperre Dateisperre::Nehmen(const fs::path& pfad) {
  sperre_ = Deskriptor();
  // On network file systems only a file that is open for writing can be locked.
  const int zeichen = O_NONBLOCK | O_CLOEXEC;
  Deskriptor datei(open(pfad.c_str(), O_RDWR | zeichen));
  if (!datei) datei = Deskriptor(open(pfad.c_str(), O_RDONLY | zeichen));
  if (datei && SperreVersuchen(datei) == Sperre::Belegt) return Sperre::Belegt;
  sperre_ = std::move(datei);
  return Sperre::Erhalten;
}

bool Dateisperre::Gilt(const fs::path& pfad) const {
  return SelbeDatei(sperre_, pfad);
}

void Dateisperre::Uebergehen(Deskriptor neu, const fs::path&) {
  sperre_ = std::move(neu);
}

}  // namespace vesk
