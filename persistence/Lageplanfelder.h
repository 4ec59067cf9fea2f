#pragma once
#include <array>
#include <string>

#include "station/Lageplan.h"

/// Which value stands under which name in the plan's file. `Gang` is called with name and member of each.
namespace vesk::planfelder {

inline constexpr const char* Kennung = "vesk-lageplan";
inline constexpr int Fassung = 1;

inline constexpr std::array<const char*, Nutzungsnamen.size()> Nutzungskennungen = {"eigen", "nachbar",
                                                                                    "andere"};
inline constexpr std::array<const char*, 3> Ebenenkennungen = {"keine", "horizontal", "vertikal"};
inline constexpr std::array<const char*, 2> Formatkennungen = {"A4", "A3"};

/// All but `art` and `punkte`, which an object always has.
template <typename Gang>
void Objektfelder(Gang feld) {
  feld("name", &Planobjekt::name);
  feld("hoehe", &Planobjekt::hoehe);
  feld("radius", &Planobjekt::radius);
  feld("nutzung", &Planobjekt::nutzung);
  feld("spalten", &Planobjekt::spalten);
  feld("drehbar", &Planobjekt::drehbar);
  feld("von", &Planobjekt::von);
  feld("bis", &Planobjekt::bis);
  feld("ebene", &Planobjekt::ebene);
}
/// Without them an object would be something else than it is.
inline constexpr std::array Wesentlich = {"art", "punkte", "nutzung", "spalten", "ebene"};

template <typename Gang>
void Hintergrundfelder(Gang feld) {
  feld("datei", &Hintergrund::datei);
  feld("bildpunkte", &Hintergrund::bildpunkte);
  feld("abstand", &Hintergrund::abstand);
  feld("ort", &Hintergrund::ort);
  feld("deckung", &Hintergrund::deckung);
}

/// All but the objects.
template <typename Gang>
void Planfelder(Gang feld) {
  feld("bezug", &Lageplan::bezug);
  feld("bezugsname", &Lageplan::bezugsname);
  feld("geo", &Lageplan::geo);
  feld("nord", &Lageplan::nord);
  feld("hintergrund", &Lageplan::hintergrund);
  feld("summe", &Lageplan::summe);
  feld("papier", &Lageplan::format);
  feld("massstab", &Lageplan::massstab);
}

inline std::string Spaltenbuchstaben(const std::bitset<AnzahlSpalten>& spalten) {
  std::string buchstaben;
  for (std::size_t i = 0; i < spalten.size(); ++i) {
    if (spalten[i]) buchstaben += static_cast<char>('A' + i);
  }
  return buchstaben;
}

}  // namespace vesk::planfelder
