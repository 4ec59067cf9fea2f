#include "persistence/Dateien.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "persistence/Neufassung.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

Gelesen Lesefehler(int nummer) {
  const bool fehlt = nummer == ENOENT || nummer == ENOTDIR;
  return {fehlt ? Lesestatus::Fehlt : Lesestatus::Fehler, {}, false, fehlt ? "" : Fehlertext(nummer)};
}

/// 0 or the error number.
int OeffnenZumLesen(const fs::path& pfad, Deskriptor& datei, struct stat& angaben) {
  // Without O_NONBLOCK a pipe under that name would wait for its writer.
  datei = Deskriptor(open(pfad.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!datei || fstat(*datei, &angaben) != 0) return errno;
  if (S_ISDIR(angaben.st_mode)) return EISDIR;
  return S_ISREG(angaben.st_mode) ? 0 : ENODEV;
}

template <typename Schritte>
Fehlergrund Versuchen(Schritte schritte) {
  try {
    schritte();
    return std::nullopt;
  } catch (const std::system_error& fehler) {
    return Fehlertext(fehler.code().value());
  }
}

}  // namespace

Gelesen DateiLesen(const fs::path& pfad, std::size_t hoechstens) {
  Deskriptor datei;
  struct stat angaben {};
  if (const int nummer = OeffnenZumLesen(pfad, datei, angaben); nummer != 0) return Lesefehler(nummer);

  // One byte more than the size shows that the end has been reached, or that the file goes on.
  const auto groesse = static_cast<std::size_t>(std::max<off_t>(angaben.st_size, 0));
  Gelesen ergebnis{Lesestatus::Gelesen, std::string(std::min(groesse, hoechstens) + 1, '\0'), false, {}};
  std::size_t gelesen = 0;
  while (gelesen < ergebnis.bytes.size()) {
    const ssize_t anzahl = read(*datei, ergebnis.bytes.data() + gelesen, ergebnis.bytes.size() - gelesen);
    if (anzahl < 0 && errno == EINTR) continue;
    if (anzahl < 0) return Lesefehler(errno);
    if (anzahl == 0) break;
    gelesen += static_cast<std::size_t>(anzahl);
  }
  ergebnis.abgeschnitten = gelesen > hoechstens;
  ergebnis.bytes.resize(std::min(gelesen, hoechstens));
  return ergebnis;
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
  return Versuchen([&] {
    Neufassung neu(pfad);
    neu.Schreiben(bytes);
    neu.Ersetzen();
    neu.VerzeichnisSichern();
  });
}

Fehlergrund DateiKopieren(const fs::path& von, const fs::path& nach) {
  return Versuchen([&] {
    Deskriptor quelle;
    struct stat angaben {};
    if (const int nummer = OeffnenZumLesen(von, quelle, angaben); nummer != 0) {
      throw std::system_error(nummer, std::generic_category());
    }
    Neufassung neu(nach);
    neu.RechteWie(quelle);
    std::array<char, 65536> puffer{};
    for (;;) {
      const ssize_t anzahl = read(*quelle, puffer.data(), puffer.size());
      if (anzahl == 0) break;
      if (anzahl < 0 && errno != EINTR) throw std::system_error(errno, std::generic_category());
      if (anzahl > 0) neu.Schreiben({puffer.data(), static_cast<std::size_t>(anzahl)});
    }
    neu.Ersetzen();
    neu.VerzeichnisSichern();
  });
}

fs::path FreierAltname(const fs::path& pfad) {
  fs::path name = pfad;
  std::error_code fehler;
  for (int nummer = 1;; ++nummer) {
    fs::path bare = pfad.stem();
    bare += nummer == 1 ? std::string("-alt") : "-alt" + std::to_string(nummer);
    name.replace_filename(bare += pfad.extension());
    if (fs::symlink_status(name, fehler).type() == fs::file_type::not_found || fehler) return name;
  }
}

}  // namespace vesk
