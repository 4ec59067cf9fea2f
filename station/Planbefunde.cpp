#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Papiere.h"
#include "station/Passung.h"
#include "station/Summenzone.h"
#include "station/Text.h"

namespace vesk {

namespace {

using Befunde = std::vector<Planbefund>;

std::string Meter(double m) {
  return Formatieren(m, 2, '.') + " m";
}

/// Three significant digits, which is what there is.
std::string Watt(double watt) {
  const int stellen = watt < 0.1 ? 4 : watt < 1 ? 3 : watt < 10 ? 2 : watt < 100 ? 1 : 0;
  return Formatieren(watt, stellen, '.') + " W";
}

void ObjektePruefen(const Lageplan& plan, Befunde& befunde) {
  for (std::size_t i = 0; i < plan.objekte.size(); ++i) {
    const auto fehler = Planfehler(plan.objekte[i]);
    if (fehler) befunde.push_back({Objektname(plan, i) + ": " + *fehler + " Das Objekt zählt nicht.", i});
    const Planobjekt& o = plan.objekte[i];
    if (fehler || o.art != Planart::Gebaeude || o.nutzung == Nutzung::Eigen || o.hoehe > 0) continue;
    befunde.push_back({Objektname(plan, i) + ": Die Höhe fehlt; das Gebäude zählt in jeder Höhe.", i});
  }
}

bool Vorhanden(const Lageplan& plan, Planart art) {
  return std::any_of(plan.objekte.begin(), plan.objekte.end(),
                     [&](const Planobjekt& o) { return o.art == art && !Planfehler(o); });
}

void BestandPruefen(const Lageplan& plan, Befunde& befunde) {
  if (!Vorhanden(plan, Planart::Grundstueck)) {
    befunde.push_back({"Das Grundstück ist nicht eingezeichnet.", std::nullopt});
  }
  if (!Vorhanden(plan, Planart::Bereich)) {
    befunde.push_back(
        {"Der kontrollierte Bereich ist nicht eingezeichnet; ohne ihn paßt keine Zone.", std::nullopt});
  }
}

/// A column that is filed stands on the plan.
void SpaltenPruefen(const Station& s, Befunde& befunde) {
  std::bitset<AnzahlSpalten> gezeichnet;
  for (const Planobjekt& o : s.lageplan.objekte) {
    if (o.art == Planart::Antenne && !Planfehler(o)) gezeichnet |= o.spalten;
  }
  for (const int spalte : BenutzteSpalten(s)) {
    if (gezeichnet[static_cast<std::size_t>(spalte) - 1]) continue;
    befunde.push_back({Spaltenname(spalte) + " gehört zu keiner Antenne auf dem Lageplan.", std::nullopt});
  }
}

bool HatWinkeldaempfung(const Station& s, int spalte) {
  const std::string_view text = OhneBlanks(Zelle(s, spalte, ZeileWinkel));
  return !text.empty() && (!IstZahl(text) || Zahl(text) != 0);
}

/// What a column does not say, so that its zone is drawn the safe way, or not at all.
void SpalteDerAntennePruefen(const Station& s, std::size_t objekt, int spalte, const std::vector<Zone>& zonen,
                             Befunde& befunde) {
  const Planobjekt& antenne = s.lageplan.objekte[objekt];
  const auto melden = [&](const std::string& satz) {
    befunde.push_back({Objektname(s.lageplan, objekt) + ", " + Spaltenname(spalte) + ": " + satz, objekt});
  };
  const Spaltenzone* zone = nullptr;
  for (const Zone& z : zonen) {
    if (z.antenne != objekt) continue;
    for (const Spaltenzone& eine : z.spalten) {
      if (eine.spalte == spalte) zone = &eine;
    }
  }
  if (zone == nullptr) {
    melden("Aus den Angaben der Spalte läßt sich kein Sicherheitsabstand berechnen; ihre Zone fehlt.");
    return;
  }
  if (zone->veraltet) melden("Die Sicherheitsabstände im Datenblatt sind veraltet.");
  if (!zone->hoehe) melden("Die Montagehöhe ist keine Zahl; die Zone zählt in jeder Höhe.");
  if (antenne.ebene != zone->ebene) {
    melden("Die Winkeltabelle der Spalte ist unvollständig; gezeichnet ist ein Kreis.");
  }
  if (zone->ebene == Winkelebene::Horizontal && !antenne.drehbar && zone->von != zone->bis) {
    melden("Die Strahlungsrichtung ist keine Gradzahl; die Winkeltabelle zählt nach allen Seiten.");
  }
  if (zone->ebene == Winkelebene::Keine && HatWinkeldaempfung(s, spalte)) {
    melden(
        "Gerechnet ist mit Winkeldämpfung, aber ohne Winkeltabelle gezeichnet: In der Hauptstrahlrichtung "
        "reicht die Zone weiter als der Kreis.");
  }
}

void AntennenPruefen(const Station& s, const std::vector<Zone>& zonen, Befunde& befunde) {
  for (std::size_t i = 0; i < s.lageplan.objekte.size(); ++i) {
    const Planobjekt& antenne = s.lageplan.objekte[i];
    if (antenne.art != Planart::Antenne || Planfehler(antenne)) continue;
    for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
      if (antenne.spalten[static_cast<std::size_t>(spalte) - 1]) {
        SpalteDerAntennePruefen(s, i, spalte, zonen, befunde);
      }
    }
  }
}

void Melden(const Lageplan& plan, const std::string& wer, std::optional<std::size_t> objekt, Punkt von,
            const Passung& passung, Befunde& befunde) {
  for (const Verstoss& verstoss : passung.verstoesse) {
    befunde.push_back({wer + " " + Verstosstext(plan, von, verstoss) + ".", objekt});
  }
}

void ZonenPruefen(const Lageplan& plan, const Planpruefung& pruefung, const std::vector<Zone>& zonen,
                  Befunde& befunde) {
  for (const Zone& zone : zonen) {
    Melden(plan, Objektname(plan, zone.antenne) + ": Die Zone " + Zonenname(zone.art), zone.antenne,
           Mast(plan, zone), PassungPruefen(pruefung, plan, zone), befunde);
  }
}

void SummenPruefen(const Lageplan& plan, const Planpruefung& pruefung, const std::vector<Zone>& zonen,
                   Befunde& befunde) {
  for (const Winkelkurve art : {Winkelkurve::OhneHSM, Winkelkurve::HSM306, Winkelkurve::HSMvde}) {
    const auto erste =
        std::find_if(zonen.begin(), zonen.end(), [&](const Zone& zone) { return zone.art == art; });
    if (erste == zonen.end()) continue;
    // Many buildings are of the same height.
    std::map<double, std::vector<Umriss>> bisHoehe;
    const Passung passung = PassungPruefen(pruefung, [&](const std::optional<Hoehen>& hoehen) {
      const auto [schnitt, neu] = bisHoehe.try_emplace(hoehen ? hoehen->bis : HUGE_VAL);
      if (neu) schnitt->second = Summenumriss(plan, zonen, art, hoehen);
      return schnitt->second;
    });
    Melden(plan, std::string("Alle Antennen zugleich: Die Zone ") + Zonenname(art), std::nullopt,
           Mast(plan, *erste), passung, befunde);
  }
}

}  // namespace

std::vector<Planbefund> LageplanPruefen(const Station& s) {
  Befunde befunde;
  const Lageplan& plan = s.lageplan;
  if (LageplanLeer(plan)) return befunde;
  ObjektePruefen(plan, befunde);
  BestandPruefen(plan, befunde);
  SpaltenPruefen(s, befunde);
  const std::vector<Zone> zonen = ZonenBestimmen(s);
  AntennenPruefen(s, zonen, befunde);
  const Planpruefung pruefung(plan);
  if (pruefung.bereich.leer()) return befunde;
  ZonenPruefen(plan, pruefung, zonen, befunde);
  if (plan.summe) SummenPruefen(plan, pruefung, zonen, befunde);
  return befunde;
}

std::string Verstosstext(const Lageplan& plan, Punkt von, const Verstoss& verstoss) {
  const Punkt weg{verstoss.ort.x - von.x, verstoss.ort.y - von.y};
  const std::string wo = std::string("im ") + Himmelsrichtung(Azimut(plan, weg));
  if (verstoss.gebaeude) {
    const double hoehe = plan.objekte[*verstoss.gebaeude].hoehe;
    return "reicht " + wo + " " + Meter(verstoss.ueber) + " über " + Objektname(plan, *verstoss.gebaeude) +
           (hoehe > 0 ? " (bis " + Meter(hoehe) + " Höhe)" : "");
  }
  return "reicht " + wo + " bis 2 m über Grund " + Meter(verstoss.ueber) +
         " über den kontrollierten Bereich hinaus";
}

std::string Abhilfetext(const Abhilfe& abhilfe) {
  std::vector<std::string> wege;
  std::string leistungen;
  for (const Abhilfe::Leistung& leistung : abhilfe.leistungen) {
    leistungen += leistungen.empty() ? "mit höchstens " : " und ";
    leistungen += Watt(leistung.watt) + " in " + Spaltenname(leistung.spalte);
  }
  if (!leistungen.empty()) wege.push_back(leistungen);
  if (abhilfe.hoehe)
    wege.push_back("mit der Antenne mindestens " + Formatieren(*abhilfe.hoehe, 1, '.') + " m über Grund");
  if (abhilfe.verschiebung) {
    wege.push_back("mit dem Mast " + Formatieren(abhilfe.verschiebung->weite, 1, '.') + " m weiter nach " +
                   Himmelsrichtung(abhilfe.verschiebung->azimut) + " (" +
                   Formatieren(abhilfe.verschiebung->azimut, 0, '.') + "°)");
  }
  if (wege.empty()) return "Weder weniger Leistung noch mehr Höhe noch ein anderer Ort allein genügt.";
  std::string text = "Es würde passen ";
  for (const std::string& weg : wege) text += (&weg == wege.data() ? "" : ", oder ") + weg;
  return text + ".";
}

}  // namespace vesk
