#include "Rettung.h"

#include <system_error>
#include <utility>

namespace vesk {

namespace fs = std::filesystem;

namespace {

constexpr const char* Endung = ".rettung";

/// ".user.dat.rettung": hidden, and no file dialog for *.dat offers it.
fs::path Rettungspfad(const fs::path& verzeichnis, const std::string& datei) {
  return verzeichnis / ("." + datei + Endung);
}

}  // namespace

void Rettung::Gesichert(std::string bytes) {
  sicher_ = std::move(bytes);
  Entfernen();
}

void Rettung::Sichern(const fs::path& verzeichnis, const std::string& datei, const std::string& bytes) {
  if (bytes == sicher_) {
    Entfernen();
    return;
  }
  const fs::path pfad = Rettungspfad(verzeichnis, datei);
  if (pfad == pfad_ && bytes == zuletzt_) return;
  if (pfad != pfad_) Entfernen();
  if (stand_.AndereArbeitenAn(pfad)) return;
  // A copy that cannot be written is no reason to disturb: saving itself tells.
  if (stand_.Schreiben(pfad, bytes, true).ausgang != Dateistand::Ausgang::Geschrieben) return;
  pfad_ = pfad;
  zuletzt_ = bytes;
}

void Rettung::Entfernen() {
  if (pfad_.empty()) return;
  std::error_code egal;
  fs::remove(pfad_, egal);
  pfad_.clear();
  zuletzt_.clear();
  stand_ = Dateistand();
}

std::vector<Rettung::Fund> Rettung::Suchen(const fs::path& verzeichnis) {
  std::vector<Fund> funde;
  std::error_code egal;
  for (const fs::directory_entry& eintrag : fs::directory_iterator(verzeichnis, egal)) {
    const std::string name = eintrag.path().filename().string();
    const std::size_t ende = name.rfind(Endung);
    if (!name.starts_with('.') || ende == std::string::npos || ende == 0) continue;
    if (name.size() != ende + std::string(Endung).size()) continue;
    if (Dateistand().AndereArbeitenAn(eintrag.path())) continue;
    Gelesen inhalt = DateiLesen(eintrag.path());
    if (inhalt.status == Lesestatus::Gelesen) {
      funde.push_back({eintrag.path(), name.substr(1, ende - 1), std::move(inhalt.bytes)});
    }
  }
  return funde;
}

}  // namespace vesk
