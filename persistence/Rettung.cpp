#include "persistence/Rettung.h"

#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "persistence/Pfade.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

constexpr const char* Endung = ".rettung";

/// ".user.dat.rettung": hidden, and no file dialog for *.dat offers it.
fs::path Rettungspfad(const fs::path& verzeichnis, const fs::path& datei) {
  fs::path name = ".";
  return verzeichnis / ((name += datei.filename()) += Endung);
}

/// The copy begins with the path of its file and a zero byte, which no path holds.
std::optional<Rettung::Fund> Lesen(const fs::path& pfad) {
  if (pfad.filename().native().front() != '.' || pfad.extension() != Endung) return std::nullopt;
  if (Dateistand().AndereArbeitenAn(pfad)) return std::nullopt;
  const Gelesen inhalt = DateiLesen(pfad);
  const std::size_t ende = inhalt.bytes.find('\0');
  if (ende == std::string::npos) return std::nullopt;
  return Rettung::Fund{pfad, PfadAusUtf8(std::string_view(inhalt.bytes).substr(0, ende)),
                       inhalt.bytes.substr(ende + 1)};
}

/// Puts away what nobody needs to be asked about.
bool Hinfaellig(const Rettung::Fund& fund) {
  std::error_code egal;
  const Gelesen datei = DateiLesen(fund.datei);
  if (datei.status != Lesestatus::Gelesen) return false;
  if (datei.bytes != fund.bytes) {
    if (Aenderungszeit(fund.pfad) > Aenderungszeit(fund.datei)) return false;
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
  const std::string inhalt = PfadAlsUtf8(datei) + '\0' + bytes;
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
