#include "persistence/Dateien.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "persistence/Dateigrenzen.h"
#include "persistence/Neufassung.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

Gelesen Lesefehler(int nummer) {
  const bool fehlt = nummer == ENOENT || nummer == ENOTDIR;
  return {fehlt ? Lesestatus::Fehlt : Lesestatus::Fehler, {}, fehlt ? "" : Fehlertext(nummer)};
}

template <typename Schritte>
Fehlergrund Versuchen(Schritte schritte) {
  try {
    schritte();
    return std::nullopt;
  } catch (const std::system_error& fehler) {
    return Fehlertext(fehler);
  }
}

void Ersetzen(Neufassung&& neu, std::string_view bytes) {
  neu.Schreiben(bytes);
  neu.Ersetzen();
  neu.VerzeichnisSichern();
}

}  // namespace

std::string ZuGross(std::size_t hoechstens) {
  const bool inMB = hoechstens >= grenzen::MB;
  return "Sie ist größer als " + std::to_string(hoechstens / (inMB ? grenzen::MB : grenzen::KB)) +
         (inMB ? " MB" : " KB") + "; so groß ist keine Datei von Vesk.";
}

Gelesen DateiLesen(const fs::path& pfad, std::size_t hoechstens) try {
  const Deskriptor datei = ZumLesenOeffnen(pfad);
  if (!datei) return Lesefehler(ENOENT);
  // One byte more than the size shows that the end has been reached, or that the file goes on.
  const auto groesse = static_cast<std::size_t>(std::min<std::uintmax_t>(Groesse(datei), hoechstens));
  Gelesen ergebnis{Lesestatus::Gelesen, std::string(groesse + 1, '\0'), {}};
  std::size_t gelesen = 0;
  while (gelesen < ergebnis.bytes.size()) {
    const std::size_t anzahl = Lesen(datei, ergebnis.bytes.data() + gelesen, ergebnis.bytes.size() - gelesen);
    if (anzahl == 0) break;
    gelesen += anzahl;
  }
  if (gelesen > hoechstens) return {Lesestatus::Fehler, {}, ZuGross(hoechstens)};
  ergebnis.bytes.resize(gelesen);
  return ergebnis;
} catch (const std::system_error& fehler) {
  return Lesefehler(fehler.code().value());
}

Fehlergrund WarumOhneInhalt(const std::string& name, const Gelesen& datei) {
  if (datei.status == Lesestatus::Fehlt) return "Die Datei " + name + " gibt es nicht.";
  if (datei.status == Lesestatus::Fehler) {
    return "Die Datei " + name + " konnte nicht gelesen werden.\n" + datei.grund;
  }
  if (datei.bytes.empty()) return "Die Datei " + name + " ist leer.";
  return std::nullopt;
}

Fehlergrund DateiSchreiben(const fs::path& pfad, std::string_view bytes) {
  return Versuchen([&] { Ersetzen(Neufassung(pfad), bytes); });
}

Fehlergrund DateiSchreiben(const fs::path& pfad, std::string_view bytes, const fs::path& vorbild) {
  return Versuchen([&] { Ersetzen(Neufassung(pfad, vorbild), bytes); });
}

Fehlergrund DateiKopieren(const fs::path& von, const fs::path& nach) {
  return Versuchen([&] {
    const Deskriptor quelle = ZumLesenOeffnen(von);
    if (!quelle) throw std::system_error(ENOENT, std::generic_category());
    Neufassung neu(nach, von);
    std::array<char, 65536> puffer{};
    while (const std::size_t anzahl = Lesen(quelle, puffer.data(), puffer.size())) {
      neu.Schreiben({puffer.data(), anzahl});
    }
    neu.Ersetzen();
    neu.VerzeichnisSichern();
  });
}

Fehlergrund WarumNichtBeschreibbar(const fs::path& verzeichnis) {
  // A full disk still takes names.
  return Versuchen([&] { Neufassung(Altname(verzeichnis / "probe.vesk")).Schreiben("x"); });
}

fs::path Altname(const fs::path& pfad, const Gelesen& fassung) {
  fs::path name = pfad;
  std::error_code fehler;
  for (int nummer = 1;; ++nummer) {
    fs::path bare = pfad.stem();
    bare += nummer == 1 ? std::string("-alt") : "-alt" + std::to_string(nummer);
    name.replace_filename(bare += pfad.extension());
    if (fs::symlink_status(name, fehler).type() == fs::file_type::not_found || fehler) return name;
    if (fassung.status != Lesestatus::Gelesen) continue;
    const Gelesen datei = DateiLesen(name, fassung.bytes.size());
    if (datei.status == Lesestatus::Gelesen && datei.bytes == fassung.bytes) return name;
  }
}

fs::path Altname(const fs::path& pfad) {
  return Altname(pfad, DateiLesen(pfad, grenzen::Antennen));
}

}  // namespace vesk
