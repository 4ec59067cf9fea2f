#include "Benutzerhilfe.h"

#include <array>

namespace vesk {

namespace {

constexpr std::array<Feldhilfe, 8> Tooltips = {{
    {u"txtName", u"Eingabe: Vor- und Nachname"},
    {u"txtStrasse", u"Eingabe: Straße und Hausnummer"},
    {u"txtOrt", u"Eingabe: PLZ und Wohnort"},
    {u"txtTelefon", u"Eingabe: Telefonnummer mit Vorwahl"},
    {u"txtTelefax", u"Eingabe: Telefaxnummer mit Vorwahl"},
    {u"txtRufzeichen", u"Eingabe: Rufzeichen"},
    {u"txtKlasse", u"Eingabe: Genehmigungsklasse 1, 2 oder 3"},
    {u"txtStandort", u"Eingabe: Standort der Funkstelle - Straße/Gemarkung, Haus Nr./Flurstück, PLZ, Ort"},
}};

}  // namespace

std::span<const Feldhilfe> BenutzerTooltips() {
  return Tooltips;
}

}  // namespace vesk
