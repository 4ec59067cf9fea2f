#include "station/Katalogwechsel.h"

#include <algorithm>
#include <set>

#include "station/Optionen.h"

namespace vesk {

namespace {

int Stelle(const Kabelkatalog& katalog, const std::string& name) {
  const auto gefunden = std::find(katalog.liste.begin(), katalog.liste.end(), name);
  return gefunden == katalog.liste.end() ? -1 : static_cast<int>(gefunden - katalog.liste.begin());
}

/// What the catalogue says of the cable; nothing of "Anderes Kabel".
std::array<float, KabelFrequenzen> Werte(const Kabelkatalog& katalog, int index) {
  const bool imKatalog = index >= 0 && index < katalog.Kabelanzahl;
  return imKatalog ? katalog.kabel.at(static_cast<std::size_t>(index)).Kabelwert
                   : std::array<float, KabelFrequenzen>();
}

}  // namespace

Meldungen KatalogeGewechselt(Station& s, const Kataloge& vorher, const Kataloge& jetzt) {
  s.schaubilder.kabel.reset();
  s.AntennenIndex = -1;
  s.antenneNehmbar = false;
  std::set<std::string> fehlend;
  for (Datenblattspalte& satz : s.Datenblattspalten) {
    const int alt = Kabelindex(satz, vorher);
    if (alt < 0) continue;
    const std::string& name = vorher.kabel.liste.at(static_cast<std::size_t>(alt));
    int neu = Stelle(jetzt.kabel, name);
    const bool mitLaenge = satz.KabelLaenge.find_first_of("123456789") != std::string::npos;
    if (neu < 0 && mitLaenge) fehlend.insert(name);
    const bool arbeitssatz = &satz == &s.Datenblattspalten[0];
    if (neu < 0 && arbeitssatz && !mitLaenge) neu = jetzt.kabel.auswahl;
    const std::string index = std::to_string(neu);
    const bool gleich = neu >= 0 && Werte(vorher.kabel, alt) == Werte(jetzt.kabel, neu);
    if (arbeitssatz) {
      const bool aktuell = gleich && KabelAktuell(s);
      satz.KabelIndex = index;
      s.kabelstand = {};
      if (aktuell) KabelstandMerken(s);
    } else if (satz.KabelIndex != index) {
      satz.KabelIndex = index;
      s.UserGeaendert = true;
    }
  }
  if (fehlend.empty()) return {};
  std::string namen;
  for (const std::string& name : fehlend) namen += (namen.empty() ? "" : ", ") + name;
  return {{Hinweis{"Katalog übernehmen",
                   "Im neuen Katalog fehlen Kabel dieser Station: " + namen +
                       "\nIhre Verluste bleiben, wie sie sind. Gewählt ist dort kein Kabel mehr."}}};
}

}  // namespace vesk
