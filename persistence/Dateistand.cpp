#include "persistence/Dateistand.h"

#include <system_error>

#include "persistence/Pfade.h"

namespace vesk {

namespace fs = std::filesystem;

std::string Ueberschreibfrage(const fs::path& pfad, const std::string& warum) {
  return "Die Datei " + PfadAlsUtf8(pfad.filename()) + " " + warum +
         "\nSoll sie mit den Daten aus diesem Fenster überschrieben werden? Die andere Fassung bleibt dann "
         "als " +
         PfadAlsUtf8(Altname(pfad).filename()) + " erhalten.";
}

Gelesen Dateistand::Lesen(const fs::path& pfad) {
  Gelesen gelesen = DateiLesen(pfad, hoechstens_);
  // A file that exists but cannot be read stays unknown, so that it is not overwritten unasked.
  pfad_ = gelesen.status == Lesestatus::Fehler ? fs::path() : pfad;
  inhalt_.reset();
  if (gelesen.status == Lesestatus::Gelesen) inhalt_ = gelesen.bytes;

  anderswoOffen_ = !sperre_.Gilt(pfad) && sperre_.Nehmen(pfad) == Sperre::Belegt;
  return gelesen;
}

bool Dateistand::AndereArbeitenAn(const fs::path& pfad) const {
  return !sperre_.Gilt(pfad) && Dateisperre().Nehmen(pfad) == Sperre::Belegt;
}

bool Dateistand::Fremd(const fs::path& pfad, std::string_view bytes) const {
  const Gelesen jetzt = DateiLesen(pfad, hoechstens_);
  if (jetzt.status == Lesestatus::Fehlt) return false;
  if (jetzt.status == Lesestatus::Fehler) return true;
  const bool bekannt = pfad == pfad_ && inhalt_ && jetzt.bytes == *inhalt_;
  return !bekannt && jetzt.bytes != bytes;
}

Dateistand::Ergebnis Dateistand::Schreiben(const fs::path& pfad, std::string_view bytes, bool auchFremdes,
                                           const std::optional<fs::path>& vorbild) {
  // What could not be read again must not replace what can.
  if (bytes.size() > hoechstens_) return {Ausgang::Fehler, ZuGross(hoechstens_)};
  try {
    Neufassung neu(pfad, vorbild);
    if (!auchFremdes && Fremd(pfad, bytes)) return {Ausgang::FremdGeaendert, {}};
    neu.Schreiben(bytes);
    neu.Ersetzen();
    pfad_ = pfad;
    inhalt_ = bytes;
    anderswoOffen_ = false;
    sperre_.Uebergehen(neu.Abgeben(), pfad);
    neu.VerzeichnisSichern();
    return {Ausgang::Geschrieben, {}};
  } catch (const std::system_error& fehler) {
    return {Ausgang::Fehler, Fehlertext(fehler)};
  }
}

}  // namespace vesk
