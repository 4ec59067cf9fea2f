#define _WIN32_WINNT 0x0A00
#define NOMINMAX
#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <limits>
#include <system_error>
#include <thread>

#include "persistence/Dateisystem.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

/// Nobody who has a file open keeps another from reading, renaming or removing it.
constexpr DWORD MitAllen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

int Nummer(DWORD fehler) {
  constexpr DWORD ZugeteilterPlatzVerbraucht = 1295;  // not in every winerror.h
  struct Zeile {
    DWORD fehler;
    int nummer;
  };
  static constexpr std::array Tabelle = {
      Zeile{ERROR_FILE_NOT_FOUND, ENOENT},
      Zeile{ERROR_PATH_NOT_FOUND, ENOENT},
      Zeile{ERROR_INVALID_DRIVE, ENOENT},
      Zeile{ERROR_BAD_NETPATH, ENOENT},
      Zeile{ERROR_BAD_NET_NAME, ENOENT},
      Zeile{ERROR_DIRECTORY, ENOTDIR},
      Zeile{ERROR_TOO_MANY_OPEN_FILES, EMFILE},
      Zeile{ERROR_ACCESS_DENIED, EACCES},
      Zeile{ERROR_WRITE_PROTECT, EROFS},
      Zeile{ERROR_SHARING_VIOLATION, EBUSY},
      Zeile{ERROR_LOCK_VIOLATION, EBUSY},
      Zeile{ERROR_USER_MAPPED_FILE, EBUSY},
      Zeile{ERROR_DELETE_PENDING, EBUSY},
      Zeile{ERROR_DISK_FULL, ENOSPC},
      Zeile{ERROR_HANDLE_DISK_FULL, ENOSPC},
      Zeile{ZugeteilterPlatzVerbraucht, ENOSPC},
      Zeile{ERROR_FILE_TOO_LARGE, EFBIG},
      Zeile{ERROR_BUFFER_OVERFLOW, ENAMETOOLONG},
      Zeile{ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
      Zeile{ERROR_CANT_RESOLVE_FILENAME, ELOOP},
      Zeile{ERROR_NOT_READY, EIO},
      Zeile{ERROR_CRC, EIO},
      Zeile{ERROR_IO_DEVICE, EIO},
  };
  const auto* zeile =
      std::find_if(Tabelle.begin(), Tabelle.end(), [&](const Zeile& z) { return z.fehler == fehler; });
  return zeile == Tabelle.end() ? EINVAL : zeile->nummer;
}

[[noreturn]] void Scheitern(int nummer) {
  throw std::system_error(nummer, std::generic_category());
}

/// Of a handle only 32 bits count, and none that is valid is -1.
HANDLE Griff(const Deskriptor& datei) {
  return LongToHandle(*datei);
}

Deskriptor Oeffnen(const fs::path& pfad, DWORD zugriff, DWORD wie, DWORD zeichen) {
  return Deskriptor(static_cast<int>(
      HandleToLong(CreateFileW(pfad.c_str(), zugriff, MitAllen, nullptr, wie, zeichen, nullptr))));
}

[[noreturn]] void OeffnenGescheitert(const fs::path& pfad) {
  const DWORD fehler = GetLastError();
  const DWORD merkmale = GetFileAttributesW(pfad.c_str());
  if (merkmale != INVALID_FILE_ATTRIBUTES && (merkmale & FILE_ATTRIBUTE_DIRECTORY) != 0) Scheitern(EISDIR);
  // No error number of the system says so.
  constexpr std::size_t LaengsterName = 255;
  const bool zuLang = pfad.filename().native().size() > LaengsterName || pfad.native().size() >= MAX_PATH;
  const bool nichtGefunden = Nummer(fehler) == ENOENT || fehler == ERROR_INVALID_NAME;
  Scheitern(zuLang && nichtGefunden ? ENAMETOOLONG : Nummer(fehler));
}

/// What all paths to the file have in common, as the name of an object of the system.
std::wstring Objektname(const fs::path& pfad) {
  std::error_code egal;
  std::wstring ort = fs::absolute(pfad, egal).parent_path().wstring();
  const Deskriptor ordner = Oeffnen(ort, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  std::wstring endgueltig(32768, L'\0');
  const auto platz = static_cast<DWORD>(endgueltig.size());
  const DWORD laenge = ordner ? GetFinalPathNameByHandleW(Griff(ordner), endgueltig.data(), platz, 0) : 0;
  if (laenge != 0 && laenge < platz) ort = endgueltig.substr(0, laenge);
  ort += L'\\' + pfad.filename().wstring();
  CharLowerBuffW(ort.data(), static_cast<DWORD>(ort.size()));
  // A name may be no longer than a path and has no backslash: FNV-1a.
  std::uint64_t summe = 0xCBF29CE484222325;
  for (const wchar_t zeichen : ort) summe = (summe ^ zeichen) * 0x100000001B3;
  return L"Global\\Vesk-" + std::to_wstring(summe);
}

}  // namespace

Deskriptor::~Deskriptor() {
  if (nummer_ != -1) CloseHandle(Griff(*this));
}

Deskriptor ZumLesenOeffnen(const fs::path& pfad) {
  Deskriptor datei = Oeffnen(pfad, GENERIC_READ, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
  if (!datei && GetLastError() == ERROR_FILE_NOT_FOUND) return datei;
  if (!datei) OeffnenGescheitert(pfad);
  if (GetFileType(Griff(datei)) != FILE_TYPE_DISK) Scheitern(ENODEV);
  return datei;
}

// In the user's directories a file inherits that it is the user's alone.

Deskriptor NeuAnlegen(const fs::path& pfad, bool) {
  Deskriptor datei = Oeffnen(pfad, GENERIC_READ | GENERIC_WRITE, CREATE_NEW, FILE_ATTRIBUTE_NORMAL);
  if (!datei && GetLastError() != ERROR_FILE_EXISTS) OeffnenGescheitert(pfad);
  if (datei && GetFileType(Griff(datei)) != FILE_TYPE_DISK) Scheitern(ENODEV);
  return datei;
}

Deskriptor RestOeffnen(const fs::path& pfad, bool) {
  constexpr DWORD AnderesAlsDatei = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  Deskriptor datei = Oeffnen(pfad, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT);
  if (!datei && Nummer(GetLastError()) == ENOENT) return datei;
  BY_HANDLE_FILE_INFORMATION angaben{};
  // A file with a second name is somebody's who wants it emptied.
  const bool eigener = datei && GetFileInformationByHandle(Griff(datei), &angaben) != 0 &&
                       (angaben.dwFileAttributes & AnderesAlsDatei) == 0 && angaben.nNumberOfLinks <= 1;
  if (!eigener) Scheitern(EEXIST);
  return datei;
}

std::uintmax_t Groesse(const Deskriptor& datei) {
  LARGE_INTEGER groesse{};
  if (GetFileSizeEx(Griff(datei), &groesse) == 0) Scheitern(Nummer(GetLastError()));
  return static_cast<std::uintmax_t>(groesse.QuadPart);
}

std::size_t Lesen(const Deskriptor& datei, char* ziel, std::size_t hoechstens) {
  const auto auftrag =
      static_cast<DWORD>(std::min<std::size_t>(hoechstens, std::numeric_limits<DWORD>::max()));
  DWORD anzahl = 0;
  if (ReadFile(Griff(datei), ziel, auftrag, &anzahl, nullptr) == 0) Scheitern(Nummer(GetLastError()));
  return anzahl;
}

void Schreiben(const Deskriptor& datei, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto auftrag =
        static_cast<DWORD>(std::min<std::size_t>(bytes.size(), std::numeric_limits<DWORD>::max()));
    DWORD anzahl = 0;
    if (WriteFile(Griff(datei), bytes.data(), auftrag, &anzahl, nullptr) == 0)
      Scheitern(Nummer(GetLastError()));
    bytes.remove_prefix(anzahl);
  }
}

void Leeren(const Deskriptor& datei) {
  FILE_END_OF_FILE_INFO ende{};
  if (SetFileInformationByHandle(Griff(datei), FileEndOfFileInfo, &ende, sizeof ende) == 0) {
    Scheitern(Nummer(GetLastError()));
  }
}

void Festschreiben(const Deskriptor& datei) {
  if (FlushFileBuffers(Griff(datei)) == 0) Scheitern(Nummer(GetLastError()));
}

void SchreibrechtPruefen(const fs::path& pfad) {
  if (!Oeffnen(pfad, GENERIC_WRITE, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL)) OeffnenGescheitert(pfad);
}

// A file inherits its rights from its directory, as the one that it replaces did.
void RechteWie(const Deskriptor&, const fs::path&) {}
void RechteUndEigentuemerWie(const Deskriptor&, const fs::path&) {}

void Umbenennen(const fs::path& von, const fs::path& nach) {
  using namespace std::chrono_literals;
  const auto verschieben = [&] {
    return MoveFileExW(von.c_str(), nach.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  };
  // A virus scanner or an indexing service may be in the file for a moment.
  constexpr int Versuche = 50;
  for (int i = 0; !verschieben(); ++i) {
    const int nummer = Nummer(GetLastError());
    if (nummer != EACCES && nummer != EBUSY) Scheitern(nummer);
    // Nothing else is left that can deny it.
    if (i == Versuche) Scheitern(EBUSY);
    std::this_thread::sleep_for(10ms);
  }
}

// Umbenennen has waited for it.
void VerzeichnisFestschreiben(const fs::path&) {}

bool SelbeDatei(const Deskriptor& datei, const fs::path& pfad) {
  BY_HANDLE_FILE_INFORMATION offen{};
  BY_HANDLE_FILE_INFORMATION dort{};
  const Deskriptor andere = Oeffnen(pfad, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  return datei && andere && GetFileInformationByHandle(Griff(datei), &offen) != 0 &&
         GetFileInformationByHandle(Griff(andere), &dort) != 0 &&
         offen.dwVolumeSerialNumber == dort.dwVolumeSerialNumber &&
         offen.nFileIndexHigh == dort.nFileIndexHigh && offen.nFileIndexLow == dort.nFileIndexLow;
}

std::int64_t Aenderungszeit(const fs::path& pfad) {
  WIN32_FILE_ATTRIBUTE_DATA angaben{};
  if (GetFileAttributesExW(pfad.c_str(), GetFileExInfoStandard, &angaben) == 0) return 0;
  const FILETIME zeit = angaben.ftLastWriteTime;
  return static_cast<std::int64_t>((std::uint64_t{zeit.dwHighDateTime} << 32U) | zeit.dwLowDateTime);
}

Sperre SperreVersuchen(const Deskriptor& datei) {
  // A locked byte cannot be read by others; this one lies beyond the end of every file.
  OVERLAPPED stelle{};
  stelle.Offset = 0xFFFFFFFE;
  stelle.OffsetHigh = 0x7FFFFFFF;
  if (LockFileEx(Griff(datei), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &stelle) != 0) {
    return Sperre::Erhalten;
  }
  const DWORD fehler = GetLastError();
  return fehler == ERROR_LOCK_VIOLATION || fehler == ERROR_IO_PENDING ? Sperre::Belegt : Sperre::Erhalten;
}

// Windows does not replace a file that is open, so it is the existence of an object that is the lock.

Sperre Dateisperre::Nehmen(const fs::path& pfad) {
  sperre_ = Deskriptor();
  name_ = Objektname(pfad);
  const HANDLE objekt = CreateEventW(nullptr, TRUE, FALSE, name_.c_str());
  const DWORD fehler = GetLastError();
  Deskriptor neu(objekt == nullptr ? -1 : static_cast<int>(HandleToLong(objekt)));
  // Denied: another user has it.
  if (fehler == ERROR_ALREADY_EXISTS || fehler == ERROR_ACCESS_DENIED) return Sperre::Belegt;
  sperre_ = std::move(neu);
  return Sperre::Erhalten;
}

bool Dateisperre::Gilt(const fs::path& pfad) const {
  return sperre_ && name_ == Objektname(pfad);
}

void Dateisperre::Uebergehen(Deskriptor neu, const fs::path& pfad) {
  neu = Deskriptor();
  if (!Gilt(pfad)) Nehmen(pfad);
}

}  // namespace vesk
