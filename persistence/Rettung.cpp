#include "persistence/Rettung.h"

#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace vesk {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Endung = ".rettung";

/// ".user.dat.rettung": hidden, and no file dialog for *.dat offers it.
fs::path Rettungspfad(const fs::path& verzeichnis, const fs::path& datei) {
  return verzeichnis / ("." + datei.filename().string() + std::string(Endung));
}

/// The copy begins with the path of its file and a zero byte, which no path holds.
std::optional<Rettung::Fund> Lesen(const fs::path& pfad) {
  const std::string name = pfad.filename().string();
  if (!name.starts_with('.') || !name.ends_with(Endung) || name.size() == Endung.size()) return std::nullopt;
  if (Dateistand().AndereArbeitenAn(pfad)) return std::nullopt;
  const Gelesen inhalt = DateiLesen(pfad);
  const std::size_t ende = inhalt.bytes.find('\0');
  if (ende == std::string::npos) return std::nullopt;
  return Rettung::Fund{pfad, inhalt.bytes.substr(0, ende), inhalt.bytes.substr(ende + 1)};
}

/// Puts away what nobody needs to be asked about.
bool Hinfaellig(const Rettung::Fund& fund) {
  std::error_code egal;
  const Gelesen datei = DateiLesen(fund.datei);
  if (datei.status != Lesestatus::Gelesen) return false;
  if (datei.bytes != fund.bytes) {
    if (fs::last_write_time(fund.pfad, egal) > fs::last_write_time(fund.datei, egal)) return false;
    if (DateiSchreiben(FreierAltname(fund.datei), fund.bytes)) return true;  // no room now: another time
  }
  fs::remove(fund.pfad, egal);
  return true;
}

}  // namespace

void Rettung::Gesichert(std::string bytes) {
  sicher_ = std::move(bytes);
  Entfernen();
}

void Rettung::Sichern(const fs::path& verzeichnis, const fs::path& datei, const std::string& bytes) {
  if (bytes == sicher_) {
    Entfernen();
    return;
  }
  const fs::path pfad = Rettungspfad(verzeichnis, datei);
  if (pfad == pfad_ && bytes == zuletzt_) return;
  if (pfad != pfad_) Entfernen();
  if (stand_.AndereArbeitenAn(pfad)) return;
  // A copy that cannot be written is no reason to disturb: saving itself tells.
  const std::string inhalt = datei.string() + '\0' + bytes;
  if (stand_.Schreiben(pfad, inhalt, true).ausgang != Dateistand::Ausgang::Geschrieben) return;
  pfad_ = pfad;
  zuletzt_ = bytes;
}

void Rettung::Fortsetzen(const Fund& fund) {
  stand_.Lesen(fund.pfad);
  pfad_ = fund.pfad;
  zuletzt_ = fund.bytes;
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
    std::optional<Fund> fund = Lesen(eintrag.path());
    if (fund && !Hinfaellig(*fund)) funde.push_back(std::move(*fund));
  }
  return funde;
}

}  // namespace vesk
