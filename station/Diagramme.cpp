#include "station/Diagramme.h"

#include <algorithm>

#include "station/Kurven.h"
#include "station/Vorschau.h"

namespace vesk {

Meldungen DiagrammeOeffnen(Station& s, const Kataloge&) {
  s.fenster.diagramme = true;
  return {};
}

Meldungen DiagrammeSchliessen(Station& s, const Kataloge&) {
  s.fenster.diagramme = false;
  return {};
}

Meldungen DiagrammWaehlen(Station& s, const Kataloge&, Diagrammart art) {
  s.schaubilder.diagramm = art;
  return {};
}

Meldungen KabelAnkreuzen(Station& s, const Kataloge& k, int kabel, bool an) {
  std::vector<int> gewaehlt = GezeigteKabel(s, k);
  std::erase(gewaehlt, kabel);
  if (an && gewaehlt.size() == MaxKabelkurven) {
    return {
        {Hinweis{"Kabeldämpfung",
                 "Das Diagramm zeigt höchstens fünf Kabel.\nBitte nehmen Sie ein anderes Kreuz zurück."}}};
  }
  if (an) gewaehlt.push_back(kabel);
  std::sort(gewaehlt.begin(), gewaehlt.end());
  s.schaubilder.kabel = gewaehlt;
  return {};
}

Meldungen DiagrammeDrucken(Station& s, const Kataloge& k) {
  VorschauRufen(s);
  return PapierWaehlen(s, k, Papierart::Diagramme);
}

}  // namespace vesk
