#include "station/Datenblatt.h"

#include "engine/Zahlen.h"

namespace vesk {

std::string Spaltenname(int spalte) {
  return std::string("Spalte ") + Spaltenbuchstabe(static_cast<std::int16_t>(spalte));
}

std::string Zellentitel(int spalte, Zeile zeile) {
  return (Spaltenname(spalte) + ", ")
      .append(Zeilenarten.at(static_cast<std::size_t>(zeile) - 1).beschriftung);
}

bool SpalteFrei(const Datenblattzellen& zellen, std::int16_t spalte) {
  const auto zelle = [&](Zeile zeile) -> const std::string& {
    return zellen.at(static_cast<std::size_t>(Gitterindex(spalte, zeile)));
  };
  return zelle(ZeileFrequenz).empty() || zelle(ZeileLeistung).empty();
}

std::string NaechsteFreieSpalte(const Datenblattzellen& zellen) {
  for (std::int16_t spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    if (SpalteFrei(zellen, spalte)) return std::string(1, Spaltenbuchstabe(spalte));
  }
  return {};
}

Datenblattspalte LeereSpalte() {
  Datenblattspalte spalte;
  spalte.Modulationsfaktor = "1.00";
  spalte.Zyklusfaktor = "1.00";
  spalte.Reserve = {"1", "2", "3"};
  return spalte;
}

}  // namespace vesk
