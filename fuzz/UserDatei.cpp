#include "persistence/UserDatei.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <utility>

#include "fuzz/Vorrat.h"
#include "tests/persistence/Muster.h"

using vesk::Pruefen;

namespace {

/// Everything that the file holds.
bool GleicherInhalt(const vesk::Station& a, const vesk::Station& b) {
  const auto schalter = [](const vesk::Einstellungen& e) {
    return std::tuple(e.ToolTips, e.AFu, e.Fenster, e.Meldungen);
  };
  return std::equal(a.Datenblattspalten.begin() + 1, a.Datenblattspalten.end(),
                    b.Datenblattspalten.begin() + 1) &&
         a.benutzer == b.benutzer && a.Zellen == b.Zellen && a.Fusszeile == b.Fusszeile &&
         schalter(a.einstellungen) == schalter(b.einstellungen);
}

/// What was read once is written and read again without any further change.
void RundreisePruefen(vesk::Station gelesen) {
  vesk::FaktorenNormalisieren(gelesen);
  const std::string geschrieben = UserDateiSchreiben(gelesen);
  vesk::Station nochmals;
  const vesk::Lesebericht bericht = vesk::UserDateiLesen(geschrieben, nochmals);
  Pruefen(GleicherInhalt(gelesen, nochmals));
  Pruefen(bericht.version == vesk::Dateiversion::Aktuell && bericht.verlustfrei && !bericht.abgebrochen);
  Pruefen(UserDateiSchreiben(nochmals) == geschrieben);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  // What the file does not say stays: half of the files meet a station that is full already.
  vesk::Station station = laenge % 2 == 0 ? vesk::Station() : vesk::Musterstation();
  vesk::UserDateiLesen({reinterpret_cast<const char*>(daten), laenge}, station);
  RundreisePruefen(std::move(station));
  return 0;
}
