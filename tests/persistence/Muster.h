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

}  // namespace vesk
