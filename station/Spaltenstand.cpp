#include "station/Spaltenstand.h"

#include <algorithm>

#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Spalten.h"
#include "station/Station.h"

namespace vesk {

namespace {

/// Rows `von` to `bis` of a column hold nothing.
bool Leer(const Station& s, int spalte, Zeile von, Zeile bis) {
  const auto* erste = s.Zellen.data() + Zellenindex(spalte, von);
  return std::all_of(erste, erste + (bis - von + 1), [](const std::string& text) { return text.empty(); });
}

}  // namespace

std::string Spaltenstand(const Station& s, int spalte) {
  std::string text = Spaltenname(spalte) + ": ";
  for (const Zeile zeile : {ZeileFrequenz, ZeileLeistung}) {
    const std::string_view name = Zeilenarten.at(static_cast<std::size_t>(zeile) - 1).beschriftung;
    // What has been filled in since stays red until the next calculation.
    const bool fehlt = s.rot[Zellenindex(spalte, zeile)] && !Positiv(Zelle(s, spalte, zeile));
    if (fehlt) text += std::string(name.substr(0, name.find(' '))) + " fehlt, ";
  }
  if (Leer(s, spalte, ZeileHoehe, ZeileHSMvde)) return text + "leer";
  if (Leer(s, spalte, ZeileOhneHSM, ZeileHSMvde)) return text + "noch nicht gerechnet";
  const Spaltenfarben& farben = s.spaltenfarben.at(static_cast<std::size_t>(spalte) - 1);
  if (SpalteVeraltet(s, spalte)) text += "Abstände veraltet, ";
  if (farben.ohneHSM == Toenung::Kraeftig) text += "Faktor unter 1, ";
  return text + (farben.rueckwaerts ? "rückwärts gerechnet (Leistung aus dem Abstand)"
                                    : "vorwärts gerechnet (Abstände aus der Leistung)");
}

}  // namespace vesk
