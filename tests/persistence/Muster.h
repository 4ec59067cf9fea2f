#pragma once
#include <string>

#include "station/Station.h"

namespace vesk {

/// A station with everything filled that a file holds: an operator, 84 cells, seven records.
inline Station Musterstation() {
  Station s;
  s.benutzer = {"Jörg Müßig",   "Am Weiß 3", "12345 Köln", "0221/4711",
                "0221/4711-12", "DL1ABC",    "1",          "Gemarkung Höhe, Flurstück 7/2"};
  s.einstellungen.ToolTips = true;
  s.einstellungen.AFu = false;
  s.einstellungen.Fenster = true;
  s.einstellungen.Meldungen = false;
  s.Fusszeile = "OV Köln – 5 € ";
  const std::string werte[AnzahlZeilen] = {"12.5", "ND",   "14",   "Beam, 3 el.", "cw ssb ", "750",
                                           "1.20", "8.15", "0.00", "13.47",       "21.03",   "18.88"};
  for (std::size_t i = 0; i < s.Zellen.size(); ++i) s.Zellen[i] = werte[i % AnzahlZeilen];
  for (std::size_t nummer = 1; nummer <= AnzahlSpalten; ++nummer) {
    Datenblattspalte& spalte = s.Datenblattspalten[nummer];
    spalte = {"0.50",  "0.83",         "25",    "3",
              "FB 33", "4.30",         "1.08",  "0.12",
              "1.20",  "14.1",         "8.15",  "0.00",
              "13.47", "21.03",        "18.88", {"0", "1", "2", "3", "4", "5", "6", "7", "8.5"},
              1,       {"1", "2", "3"}};
    spalte.Antenne += std::string(1, static_cast<char>('A' + nummer - 1));
  }
  return s;
}

/// A plan with everything that a file holds, each value another than where it starts.
inline Lageplan Musterplan() {
  Lageplan plan;
  for (std::size_t i = 0; i < AnzahlPlanarten; ++i) {
    Planobjekt objekt;
    objekt.art = static_cast<Planart>(i);
    objekt.name = "Nr. " + std::to_string(i) + " „Höhe“\n";
    objekt.punkte = {{0.1, -2}, {1e-7 / 3, 1e4}};
    plan.objekte.push_back(objekt);
  }
  plan.objekte[2].hoehe = 7.25;
  plan.objekte[2].nutzung = Nutzung::Andere;
  plan.objekte[4].radius = 3;
  Planobjekt& antenne = plan.objekte[6];
  antenne.spalten = 0b1000101;
  antenne.drehbar = true;
  antenne.von = -90;
  antenne.bis = 0.1 + 0.2;
  antenne.ebene = Winkelebene::Vertikal;
  plan.bezug = {-3, 4.5};
  plan.bezugsname = "Grenzstein";
  plan.geo = Geopunkt{13.4, 52.5};
  plan.nord = 12;
  plan.hintergrund =
      Hintergrund{"Karte \\ä.png", {{{1, 2}, {300, 4000}}}, 55.5, {5, 6}, 0.75, R"({"dpi":96})"};
  plan.summe = true;
  plan.format = Planformat::A3;
  plan.massstab = 250;
  return plan;
}

}  // namespace vesk
