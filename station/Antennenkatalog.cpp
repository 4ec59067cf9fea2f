#include "station/Antennenkatalog.h"

#include <algorithm>
#include <utility>

#include "engine/Zahlen.h"
#include "station/Bandkennung.h"
#include "station/Text.h"

namespace vesk {

namespace {

constexpr std::size_t GewinnBreite = 5;
constexpr std::size_t ElementeBreite = 3;

std::string Rechtsbuendig(const std::string& text, std::size_t breite) {
  return text.size() < breite ? std::string(breite - text.size(), ' ') + text : text;
}

std::string Bandzeile(const Antenne& antenne, const Antennenband& band) {
  constexpr std::size_t KennungBreite = 5;
  std::string zeile =
      Rechtsbuendig(band.kennung, KennungBreite) + "  -  " + Rechtsbuendig(band.gewinn, GewinnBreite);
  if (Zahl(band.elemente) == 0) return zeile;
  return zeile + "  -  " + Rechtsbuendig(band.elemente, ElementeBreite) +
         (antenne.art == "Helix" ? "cm" : " el. ");
}

/// Band label of a search word that is a number throughout ("144", "14,2"); "3el" is none.
std::string Wortkennung(std::string_view wort) {
  constexpr std::size_t Ziffern = 12;
  if (wort.size() > Ziffern || wort.find_first_not_of("0123456789.,") != std::string_view::npos) return {};
  std::string zahl(wort);
  std::replace(zahl.begin(), zahl.end(), ',', '.');
  return Bandkennung(zahl);
}

}  // namespace

std::string Antennenkopf() {
  constexpr std::pair<std::size_t, std::string_view> Worte[] = {
      {0, "Herst."}, {26, "Typ"}, {71, "MHz"}, {85, "dBi"}, {96, "el"}};
  std::string kopf(AntennenSpalten, ' ');
  for (const auto& [stelle, wort] : Worte) kopf.replace(stelle, wort.size(), wort);
  return kopf;
}

Antennenwahl AntenneWaehlen(const Antenne& antenne, std::string_view QRGText) {
  Antennenwahl wahl;
  const std::string kennung = Bandkennung(QRGText);
  for (const Antennenband& band : antenne.baender) {
    wahl.zeilen.push_back(Bandzeile(antenne, band));
    if (!kennung.empty() && Zahl(band.kennung) == Zahl(kennung)) {
      wahl.markiert = static_cast<int>(wahl.zeilen.size()) - 1;
      wahl.gewinn = band.gewinn;
    }
  }
  // A half-wave dipole may be cut for any frequency.
  if (!wahl.Passt() && antenne.art == "Dipol") wahl.gewinn = "2.15";
  return wahl;
}

Antennensuche::Antennensuche(const std::vector<Antenne>& antennen) {
  eintraege_.reserve(antennen.size());
  for (const Antenne& antenne : antennen) {
    Eintrag& eintrag = eintraege_.emplace_back();
    eintrag.text = Kleinbuchstaben(antenne.hersteller + '\n' + antenne.typ + '\n' + antenne.art);
    for (const Antennenband& band : antenne.baender) eintrag.kennungen.push_back(band.kennung);
  }
}

std::vector<bool> Antennensuche::Treffer(std::string_view eingabe) const {
  struct Wort {
    std::string text;
    std::string kennung;
  };
  std::vector<Wort> worte;
  for (std::string_view rest = OhneBlanks(eingabe); !rest.empty();) {
    const std::string_view wort = rest.substr(0, rest.find_first_of(" \t"));
    worte.push_back({Kleinbuchstaben(wort), Wortkennung(wort)});
    rest = OhneBlanks(rest.substr(wort.size()));
  }
  std::vector<bool> treffer;
  treffer.reserve(eintraege_.size());
  for (const Eintrag& eintrag : eintraege_) {
    treffer.push_back(std::all_of(worte.begin(), worte.end(), [&](const Wort& wort) {
      return eintrag.text.find(wort.text) != std::string::npos ||
             std::find(eintrag.kennungen.begin(), eintrag.kennungen.end(), wort.kennung) !=
                 eintrag.kennungen.end();
    }));
  }
  return treffer;
}

}  // namespace vesk
