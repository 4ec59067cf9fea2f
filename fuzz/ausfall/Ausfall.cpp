#include "fuzz/ausfall/Ausfall.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// Plain memory: the program's own containers may be what calls.
struct Befehl {
  char ruf[16] = "";
  int nummer = 0;
  int fehler = 0;
  char ort[PATH_MAX] = "";
  std::atomic<int> gezaehlt = 0;
};
Befehl befehl;

void Melden() {
  const char* bericht = std::getenv("AUSFALL_BERICHT");
  if (bericht == nullptr) return;
  const long datei = syscall(SYS_openat, AT_FDCWD, bericht, O_CREAT | O_WRONLY | O_CLOEXEC, 0666);
  if (datei >= 0) syscall(SYS_close, datei);
}

bool Darunter(const char* pfad) {
  return pfad != nullptr && std::strncmp(pfad, befehl.ort, std::strlen(befehl.ort)) == 0;
}

bool Offen(int datei) {
  char verweis[64];
  char pfad[PATH_MAX];
  std::snprintf(verweis, sizeof verweis, "/proc/self/fd/%d", datei);
  const ssize_t laenge = readlink(verweis, pfad, sizeof pfad - 1);
  if (laenge <= 0) return false;
  pfad[laenge] = '\0';
  return Darunter(pfad);
}

bool Gemeint(const char* ruf) {
  return befehl.nummer > 0 && std::strcmp(ruf, befehl.ruf) == 0;
}

/// Counts a call of the kind ordered. 0: it is the one; negative: it comes later.
int Stelle() {
  const int stelle = ++befehl.gezaehlt - befehl.nummer;
  if (stelle == 0) Melden();
  return stelle;
}

bool Scheitert(const char* ruf, const char* pfad) {
  if (!Gemeint(ruf) || !Darunter(pfad) || Stelle() != 0) return false;
  errno = befehl.fehler;
  return true;
}

bool Scheitert(const char* ruf, int datei) {
  if (!Gemeint(ruf) || !Offen(datei) || Stelle() != 0) return false;
  errno = befehl.fehler;
  return true;
}

template <typename Funktion>
Funktion Echt(Funktion, const char* name) {
  return reinterpret_cast<Funktion>(dlsym(RTLD_NEXT, name));
}

mode_t Rechte(int zeichen, va_list weitere) {
  return (zeichen & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(weitere, mode_t) : 0;
}

struct Umgebung {
  Umgebung() {
    const char* text = std::getenv("AUSFALL");
    const char* ort = std::getenv("AUSFALL_ORT");
    char ruf[16];
    int nummer = 0;
    int fehler = 0;
    if (text == nullptr || ort == nullptr || std::sscanf(text, "%15s %d %d", ruf, &nummer, &fehler) != 3)
      return;
    AusfallStellen(ruf, nummer, fehler, ort);
  }
};
const Umgebung umgebung;

}  // namespace

extern "C" {

void AusfallStellen(const char* ruf, int nummer, int fehler, const char* ort) {
  befehl.nummer = 0;
  std::snprintf(befehl.ruf, sizeof befehl.ruf, "%s", ruf);
  std::snprintf(befehl.ort, sizeof befehl.ort, "%s", ort);
  befehl.fehler = fehler;
  befehl.gezaehlt = 0;
  befehl.nummer = *ruf == '\0' ? 0 : nummer;
}

int AusfallGezaehlt() {
  return befehl.gezaehlt;
}

#define OEFFNEN(name)                               \
  int name(const char* pfad, int zeichen, ...) {    \
    va_list weitere;                                \
    va_start(weitere, zeichen);                     \
    const mode_t rechte = Rechte(zeichen, weitere); \
    va_end(weitere);                                \
    if (Scheitert("oeffnen", pfad)) return -1;      \
    static const auto echt = Echt(&name, #name);    \
    return echt(pfad, zeichen, rechte);             \
  }
OEFFNEN(open)
OEFFNEN(open64)

#define OEFFNEN_BEI(name)                                         \
  int name(int verzeichnis, const char* pfad, int zeichen, ...) { \
    va_list weitere;                                              \
    va_start(weitere, zeichen);                                   \
    const mode_t rechte = Rechte(zeichen, weitere);               \
    va_end(weitere);                                              \
    if (Scheitert("oeffnen", pfad)) return -1;                    \
    static const auto echt = Echt(&name, #name);                  \
    return echt(verzeichnis, pfad, zeichen, rechte);              \
  }
OEFFNEN_BEI(openat)
OEFFNEN_BEI(openat64)

#define ANLEGEN(name)                            \
  int name(const char* pfad, mode_t rechte) {    \
    if (Scheitert("oeffnen", pfad)) return -1;   \
    static const auto echt = Echt(&name, #name); \
    return echt(pfad, rechte);                   \
  }
ANLEGEN(creat)
ANLEGEN(creat64)

ssize_t write(int datei, const void* bytes, size_t anzahl) {
  static const auto echt = Echt(&write, "write");
  if (Scheitert("schreiben", datei)) return -1;
  const bool voll = Gemeint("voll");
  if (anzahl > 1 && (voll || Gemeint("kurz")) && Offen(datei)) {
    const int stelle = Stelle();
    if (stelle == 0) anzahl /= 2;
    if (stelle > 0 && voll) {
      errno = befehl.fehler;
      return -1;
    }
  }
  return echt(datei, bytes, anzahl);
}

#define AUF_DATEI(name, ruf)                     \
  int name(int datei) {                          \
    if (Scheitert(ruf, datei)) return -1;        \
    static const auto echt = Echt(&name, #name); \
    return echt(datei);                          \
  }
AUF_DATEI(fsync, "fsync")
AUF_DATEI(fdatasync, "fsync")

/// A file is closed even when that fails.
int close(int datei) {
  static const auto echt = Echt(&close, "close");
  const bool scheitert = Scheitert("schliessen", datei);
  const int ergebnis = echt(datei);
  if (!scheitert) return ergebnis;
  errno = befehl.fehler;
  return -1;
}

int rename(const char* von, const char* nach) noexcept {
  if (Scheitert("umbenennen", nach)) return -1;
  static const auto echt = Echt(&rename, "rename");
  return echt(von, nach);
}

int renameat2(int a, const char* von, int b, const char* nach, unsigned int zeichen) noexcept {
  if (Scheitert("umbenennen", nach)) return -1;
  static const auto echt = Echt(&renameat2, "renameat2");
  return echt(a, von, b, nach, zeichen);
}

int link(const char* von, const char* nach) noexcept {
  if (Scheitert("umbenennen", nach)) return -1;
  static const auto echt = Echt(&link, "link");
  return echt(von, nach);
}

#define LESEN(name, art)                                              \
  art* name(DIR* verzeichnis) {                                       \
    if (Scheitert("verzeichnis", dirfd(verzeichnis))) return nullptr; \
    static const auto echt = Echt(&name, #name);                      \
    return echt(verzeichnis);                                         \
  }
LESEN(readdir, dirent)
LESEN(readdir64, dirent64)
}
