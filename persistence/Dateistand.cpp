#include "persistence/Dateistand.h"

#include <fcntl.h>

#include <system_error>

namespace vesk {

namespace fs = std::filesystem;

namespace {

Deskriptor OeffnenZumSperren(const fs::path& pfad) {
  // On network file systems only a file that is open for writing can be locked.
  const int zeichen = O_NONBLOCK | O_CLOEXEC;
  Deskriptor datei(open(pfad.c_str(), O_RDWR | zeichen));
  return datei ? std::move(datei) : Deskriptor(open(pfad.c_str(), O_RDONLY | zeichen));
}

}  // namespace

Gelesen Dateistand::Lesen(const fs::path& pfad) {
  Gelesen gelesen = DateiLesen(pfad);
  // A file that exists but cannot be read stays unknown, so that it is not overwritten unasked.
  pfad_ = gelesen.status == Lesestatus::Fehler ? fs::path() : pfad;
  inhalt_.reset();
  if (gelesen.status == Lesestatus::Gelesen) inhalt_ = gelesen.bytes;

  anderswoOffen_ = false;
  if (SelbeDatei(sperre_, pfad)) return gelesen;
  sperre_ = Deskriptor();
  Deskriptor datei = OeffnenZumSperren(pfad);
  if (!datei) return gelesen;
  anderswoOffen_ = SperreVersuchen(datei) == Sperre::Belegt;
  if (!anderswoOffen_) sperre_ = std::move(datei);
  return gelesen;
}

bool Dateistand::AndereArbeitenAn(const fs::path& pfad) const {
  if (SelbeDatei(sperre_, pfad)) return false;
  const Deskriptor datei = OeffnenZumSperren(pfad);
  return datei && SperreVersuchen(datei) == Sperre::Belegt;
}

bool Dateistand::Fremd(const fs::path& pfad, std::string_view bytes) const {
  const Gelesen jetzt = DateiLesen(pfad);
  if (jetzt.status == Lesestatus::Fehlt) return false;
  if (jetzt.status == Lesestatus::Fehler) return true;
  const bool bekannt = pfad == pfad_ && inhalt_ && jetzt.bytes == *inhalt_;
  return !bekannt && (jetzt.bytes != bytes || jetzt.abgeschnitten);
}

Dateistand::Ergebnis Dateistand::Schreiben(const fs::path& pfad, std::string_view bytes, bool auchFremdes) {
  try {
    Neufassung neu(pfad);
    if (!auchFremdes && Fremd(pfad, bytes)) return {Ausgang::FremdGeaendert, {}};
    neu.Schreiben(bytes);
    neu.Ersetzen();
    pfad_ = pfad;
    inhalt_ = bytes;
    anderswoOffen_ = false;
    sperre_ = neu.Abgeben();
    neu.VerzeichnisSichern();
    return {Ausgang::Geschrieben, {}};
  } catch (const std::system_error& fehler) {
    return {Ausgang::Fehler, Fehlertext(fehler.code().value())};
  }
}

}  // namespace vesk
