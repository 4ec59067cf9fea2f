#include "persistence/Rettung.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "persistence/Dateien.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Lageplandatei.h"
#include "persistence/Neufassung.h"
#include "persistence/Pfade.h"
#include "persistence/UserDatei.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Endung = ".rettung";

/// ".user.dat.rettung", for another file of that name or another program ".user.dat-2.rettung": hidden, and
/// no file dialog for *.dat offers it.
fs::path Kopiename(const fs::path& datei, int nummer) {
  constexpr std::size_t LaengsterName = 200;  // with all that is added it remains a name that can be written
  fs::path name = ".";
  if (datei.filename().native().size() <= LaengsterName) name += datei.filename();
  if (nummer > 1) name += "-" + std::to_string(nummer);
  return name += Endung;
}

/// Each text after its length and a colon.
std::string Bytes(const fs::path& datei, const Rettung::Inhalt& inhalt) {
  std::string bytes;
  for (const std::string& teil :
       {PfadAlsUtf8(datei), inhalt.user, inhalt.winkel, PfadAlsUtf8(inhalt.winkeldatei), inhalt.plan}) {
    bytes += std::to_string(teil.size()) + ':' + teil;
  }
  return bytes;
}

std::optional<std::string> TeilLesen(std::string_view& bytes) {
  std::size_t laenge = 0;
  const auto [ende, fehler] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), laenge);
  bytes.remove_prefix(static_cast<std::size_t>(ende - bytes.data()));
  if (fehler != std::errc() || !bytes.starts_with(':') || bytes.size() - 1 < laenge) return std::nullopt;
  std::string teil(bytes.substr(1, laenge));
  bytes.remove_prefix(1 + laenge);
  return teil;
}

bool IstUserDatei(const Gelesen& datei) {
  return !WarumUnbrauchbar({}, datei, false);
}

bool IstLageplan(const Gelesen& datei) {
  return LageplanLesen(datei.bytes).fehler.empty();
}

std::optional<Rettung::Fund> Lesen(const fs::path& pfad) {
  std::error_code egal;
  if (pfad.filename().native().front() != '.' || pfad.extension() != Endung) return std::nullopt;
  if (!fs::is_regular_file(fs::symlink_status(pfad, egal))) return std::nullopt;
  if (Dateisperre().Nehmen(pfad) == Sperre::Belegt) return std::nullopt;
  const Gelesen gelesen = DateiLesen(pfad, grenzen::Rettung);
  std::string_view bytes = gelesen.bytes;
  std::array<std::string, 4> teile;
  for (std::string& ziel : teile) {
    auto teil = TeilLesen(bytes);
    if (!teil) return std::nullopt;
    ziel = std::move(*teil);
  }
  // Before there were plans, copies ended here.
  std::string plan = TeilLesen(bytes).value_or("");
  Rettung::Fund fund{
      pfad, PfadAusUtf8(teile[0]), {teile[1], teile[2], PfadAusUtf8(teile[3]), std::move(plan)}};
  // What a copy names is written to, and whoever has put it here has chosen that: other files are not
  // believed.
  const bool user = HatEndung(fund.datei, ".dat") || IstUserDatei(DateiLesen(fund.datei, grenzen::UserDatei));
  if (!user) fund.datei.clear();
  if (!HatEndung(fund.inhalt.winkeldatei, ".ang")) fund.inhalt.winkeldatei.clear();
  return fund;
}

enum class Vergleich { Fehlt, Gesichert, Ungewiss };

/// Whether the user will miss `text` of the copy, or the file `datei` says the same or has a later state that
/// is `brauchbar`.
Vergleich Vergleichen(const fs::path& kopie, const std::string& text, const fs::path& datei,
                      std::size_t hoechstens, bool (*brauchbar)(const Gelesen&),
                      std::vector<fs::path>& beiseite) {
  const Gelesen gelesen = DateiLesen(datei, hoechstens);
  if (gelesen.status != Lesestatus::Gelesen) return Vergleich::Fehlt;
  if (gelesen.bytes == text) return Vergleich::Gesichert;
  if (Aenderungszeit(kopie) > Aenderungszeit(datei) || !brauchbar(gelesen)) return Vergleich::Fehlt;
  const fs::path alt = Altname(datei, {Lesestatus::Gelesen, text, {}});
  // Where there is no room now, another time.
  if (DateiSchreiben(alt, text, datei)) return Vergleich::Ungewiss;
  beiseite.push_back(alt);
  return Vergleich::Gesichert;
}

/// Leaves in a find what the user needs to be asked about, and removes one that is nothing else.
bool Hinfaellig(Rettung::Fund& fund, std::vector<fs::path>& beiseite) {
  Rettung::Inhalt& inhalt = fund.inhalt;
  Vergleich user = Vergleich::Gesichert;
  const bool ohneAnderes = inhalt.winkel.empty() && inhalt.plan.empty();
  const bool gesichert = inhalt.user.empty() && !fund.datei.empty() && !ohneAnderes;
  if (!gesichert) {
    user = Vergleichen(fund.pfad, inhalt.user, fund.datei, grenzen::UserDatei, IstUserDatei, beiseite);
    if (user == Vergleich::Gesichert) inhalt.user.clear();
  }
  Vergleich plan = Vergleich::Gesichert;
  if (!inhalt.plan.empty() && !fund.datei.empty()) {
    plan = Vergleichen(fund.pfad, inhalt.plan, Lageplanpfad(fund.datei), grenzen::Lageplan, IstLageplan,
                       beiseite);
    if (plan == Vergleich::Gesichert) inhalt.plan.clear();
  }
  if (DateiLesen(inhalt.winkeldatei, grenzen::Winkel).bytes == inhalt.winkel) inhalt.winkel.clear();
  if (user == Vergleich::Ungewiss || plan == Vergleich::Ungewiss) return true;
  if (user == Vergleich::Fehlt || plan == Vergleich::Fehlt || !inhalt.winkel.empty()) return false;
  std::error_code egal;
  fs::remove(fund.pfad, egal);
  return true;
}

enum class Ausgang { Geschrieben, Vergeben, Gescheitert };

/// Writes where nothing stands, or the copy that `sperre` is held of.
Ausgang Schreiben(const fs::path& pfad, const fs::path& vorbild, const std::string& bytes,
                  Dateisperre& sperre) try {
  std::error_code egal;
  // A copy is never a link, and what a link leads to is nothing that it may touch or fail for.
  if (fs::is_symlink(fs::symlink_status(pfad, egal))) return Ausgang::Vergeben;
  Neufassung neu(pfad, vorbild);
  if (fs::exists(fs::symlink_status(pfad, egal)) && !sperre.Gilt(pfad)) return Ausgang::Vergeben;
  neu.Schreiben(bytes);
  neu.Ersetzen();
  sperre.Uebergehen(neu.Abgeben(), pfad);
  neu.VerzeichnisSichern();
  return Ausgang::Geschrieben;
} catch (const std::system_error& fehler) {
  const int nummer = fehler.code().value();
  // Another user's copy may not be replaced (EACCES).
  const bool fremdes = nummer == EEXIST || nummer == EISDIR || nummer == ENODEV || nummer == EACCES;
  return fremdes ? Ausgang::Vergeben : Ausgang::Gescheitert;
}

}  // namespace

Rettung::Stand Rettung::Sichern(const fs::path& verzeichnis, const fs::path& datei, Inhalt inhalt) {
  if (inhalt.user == sicher_ && inhalt.winkel.empty() && inhalt.plan.empty()) {
    Aufgeben();
    return Stand::Unnoetig;
  }
  if (inhalt.user == sicher_ && !datei.empty()) inhalt.user.clear();
  const fs::path wirklich = datei.empty() ? fs::path() : WirklicherPfad(datei);
  const bool dieselbe = !pfad_.empty() && wirklich == datei_;
  std::error_code egal;
  const bool nochDa = dieselbe && sperre_.Gilt(pfad_) && fs::exists(pfad_, egal);
  if (nochDa && inhalt == zuletzt_) return Stand::Gesichert;
  const std::string bytes = Bytes(wirklich, inhalt);
  if (bytes.size() > grenzen::Rettung) return Stand::Gescheitert;
  const bool erneuert = dieselbe && Schreiben(pfad_, datei_, bytes, sperre_) == Ausgang::Geschrieben;
  if (!erneuert && !Anlegen(verzeichnis, wirklich, bytes)) return Stand::Gescheitert;
  zuletzt_ = std::move(inhalt);
  return Stand::Gesichert;
}

/// The former copy goes when another one stands.
bool Rettung::Anlegen(const fs::path& verzeichnis, const fs::path& datei, const std::string& bytes) {
  constexpr int MeisteProgramme = 99;
  for (int nummer = 1; nummer <= MeisteProgramme; ++nummer) {
    Dateisperre sperre;
    const fs::path pfad = verzeichnis / Kopiename(datei, nummer);
    const Ausgang ausgang = Schreiben(pfad, datei, bytes, sperre);
    if (ausgang == Ausgang::Vergeben) continue;
    if (ausgang == Ausgang::Gescheitert) break;
    Aufgeben();
    pfad_ = pfad;
    datei_ = datei;
    sperre_ = std::move(sperre);
    return true;
  }
  return false;
}

void Rettung::Fortsetzen(const Fund& fund) {
  sperre_.Nehmen(fund.pfad);
  pfad_ = fund.pfad;
  datei_ = fund.datei;
  zuletzt_ = {};
}

void Rettung::Verwerfen(const fs::path& kopie) {
  Dateisperre sperre;
  sperre.Nehmen(kopie);
  std::error_code egal;
  if (sperre.Gilt(kopie)) fs::remove(kopie, egal);
}

void Rettung::Aufgeben() {
  std::error_code egal;
  if (!pfad_.empty() && sperre_.Gilt(pfad_)) fs::remove(pfad_, egal);
  pfad_.clear();
  sperre_ = Dateisperre();
}

Rettung::Suche Rettung::Suchen(const fs::path& verzeichnis) {
  std::vector<fs::path> pfade;
  std::error_code fehler;
  fs::directory_iterator eintrag(verzeichnis, fehler);
  // What cannot be listed now comes another time.
  for (; !fehler && eintrag != fs::directory_iterator(); eintrag.increment(fehler)) {
    pfade.push_back(eintrag->path());
  }
  Suche suche;
  for (const fs::path& pfad : pfade) {
    std::optional<Fund> fund = Lesen(pfad);
    if (fund && !Hinfaellig(*fund, suche.beiseite)) suche.funde.push_back(std::move(*fund));
  }
  std::stable_sort(suche.funde.begin(), suche.funde.end(), [](const Fund& a, const Fund& b) {
    return Aenderungszeit(a.pfad) > Aenderungszeit(b.pfad);
  });
  return suche;
}

}  // namespace vesk
