#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/Vorrat.h"
#include "persistence/Antennendatei.h"

using vesk::Pruefen;

namespace {

void WahlPruefen(const vesk::Antenne& antenne) {
  Pruefen(antenne.baender.size() <= vesk::AntennenBaender);
  for (const char* mhz : {"", "14.2", "144", "122250"}) {
    const vesk::Antennenwahl wahl = vesk::AntenneWaehlen(antenne, mhz);
    Pruefen(wahl.zeilen.size() == antenne.baender.size());
    Pruefen(!wahl.Passt() || wahl.gewinn.has_value());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  const std::string_view bytes(reinterpret_cast<const char*>(daten), laenge);
  const vesk::Antennenkatalog katalog = vesk::AntennenLaden(bytes);
  Pruefen(katalog.zeilen.size() == katalog.Antennen.size());
  for (const vesk::Antenne& antenne : katalog.Antennen) WahlPruefen(antenne);

  // Every antenna is found by its own type, and nothing is filtered by an empty entry.
  const vesk::Antennensuche suche(katalog.Antennen);
  const auto anzahl = static_cast<std::ptrdiff_t>(katalog.Antennen.size());
  const std::vector<bool> alle = suche.Treffer(" ");
  Pruefen(std::count(alle.begin(), alle.end(), true) == anzahl);
  if (anzahl > 0) Pruefen(suche.Treffer(katalog.Antennen.front().typ).front());
  static_cast<void>(suche.Treffer(bytes.substr(0, 40)));
  return 0;
}
