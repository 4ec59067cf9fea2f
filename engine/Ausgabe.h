#pragma once
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "engine/Berechnung.h"

namespace vesk {

/// The fields that a calculation writes, in the main window and on the angle page of the options.
enum class Feld {
  Strahlung,
  GrenzwertOhneHSM,
  GrenzwertHSMvde,
  GrenzwertHSM306,
  UssVDE,
  Uss306,
  AusgabeOhneHSM,
  AusgabeHSMvde,
  AusgabeHSM306,
  Nahfeld,
  Fernfeld,
  StrahlungTitel,
  KopfOhneHSM,
  KopfHSMvde,
  KopfHSM306,
  WAntEinPWR,
  WEIRP,
  Anzahl,
};
inline constexpr auto AnzahlFelder = static_cast<std::size_t>(Feld::Anzahl);

/// Control names of the fields, in the order of Feld.
inline constexpr std::array<std::string_view, AnzahlFelder> Feldnamen = {
    "txtStrahlung",  "txtGrenzwert", "txtGrenzwertHSMvde", "txtGrenzwertHSM306", "txtUssVDE",
    "txtUssHSM306",  "txtAusgabe",   "txtAusgabeHSMvde",   "txtAusgabeHSM306",   "txtNahfeld",
    "txtFernfeld",   "lblStrahlung", "lblOhneHSM",         "lblMitHSM",          "lblHSM306",
    "txtWAntEinPWR", "txtWEIRP_0",
};

/// Texts of one calculation. A field without a value is not written; an empty text empties (and greys) it.
class Feldtexte {
 public:
  std::optional<std::string>& operator[](Feld feld) { return texte_[static_cast<std::size_t>(feld)]; }
  const std::optional<std::string>& operator[](Feld feld) const {
    return texte_[static_cast<std::size_t>(feld)];
  }

 private:
  std::array<std::optional<std::string>, AnzahlFelder> texte_;
};

/// Texts of the column heads; `trenner` is the decimal separator of the user's locale.
void Kopftexte(const Auswertefrequenzen& frequenz, char trenner, Feldtexte& texte);

/// All field texts of a calculation, as far as it got.
Feldtexte Ausgabetexte(const Rechenergebnis& ergebnis, char trenner);

}  // namespace vesk
