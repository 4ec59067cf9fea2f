#include "station/Sendeart.h"

#include <algorithm>

#include "engine/Laufzeitfehler.h"
#include "engine/Zahlen.h"

namespace vesk {

namespace {

constexpr int HoechstensGezeigt = 3;
constexpr std::size_t Atv = 5;
constexpr std::size_t Gsm = 6;
constexpr std::size_t Alle = 7;

constexpr std::string_view SchluesselAlle = "alle";

struct Sendeartschluessel {
  std::string_view sendungsart;
  std::string_view name;
};

/// In the order of the boxes. A mode without a designation of its own is found by its name only.
constexpr std::array<Sendeartschluessel, Alle> Schluessel = {{
    {"a1a", "cw"},
    {"j3e", "ssb"},
    {"a3e", "am"},
    {"f3e", "fm"},
    {"f2e", "pr"},
    {"atv", "atv"},
    {"gsm", "gsm"},
}};

std::string Klein(std::string_view text) {
  std::string klein(text);
  std::transform(klein.begin(), klein.end(), klein.begin(), [](char zeichen) {
    return zeichen >= 'A' && zeichen <= 'Z' ? static_cast<char>(zeichen - 'A' + 'a') : zeichen;
  });
  return klein;
}

bool Enthaelt(std::string_view text, std::string_view teil) {
  return text.find(teil) != std::string_view::npos;
}

Sendeartkreuze Nur(std::size_t index) {
  Sendeartkreuze kreuze{};
  kreuze.at(index) = true;
  return kreuze;
}

}  // namespace

Sendeartwahl ModulationsFaktorErmitteln(const Sendeartkreuze& kreuze) {
  Sendeartwahl wahl;
  // Only neighbours are compared: the factors never fall from one mode to the next, so the last rise is the
  // largest of the ticked ones.
  std::string_view vorher;
  for (std::size_t i = 0; i < kreuze.size(); ++i) {
    if (!kreuze.at(i)) continue;
    const Sendeart& art = Sendearten.at(i);
    if (++wahl.anzahl <= HoechstensGezeigt) wahl.text += art.kuerzel;
    if (Zahl(vorher) < Zahl(art.faktor)) wahl.faktor = Zahl(art.faktor);
    vorher = art.faktor;
  }
  if (wahl.anzahl == 0 || wahl.anzahl > HoechstensGezeigt) wahl.faktor = 1.0F;
  return wahl;
}

std::optional<Sendeartfolge> OptionModulation(const Sendeartkreuze& kreuze, int index) {
  if (index < 0 || index >= static_cast<int>(kreuze.size())) return std::nullopt;
  const auto art = static_cast<std::size_t>(index);
  switch (art) {
    case Atv:
      return Sendeartfolge{Nur(Atv), GrenzwertTV};
    case Gsm:
      return Sendeartfolge{Nur(Gsm), GrenzwertGSM};
    case Alle:
      return Sendeartfolge{Nur(Alle), GrenzwertAM};
    default: {
      Sendeartfolge folge{kreuze, GrenzwertAM};
      std::fill(folge.kreuze.begin() + Atv, folge.kreuze.end(), false);
      return folge;
    }
  }
}

Sendeartkreuze ModulationsArtAnkreuzen(std::string_view zelle) {
  const std::string text = Klein(zelle);
  const bool alle = Enthaelt(text, SchluesselAlle);
  Sendeartkreuze kreuze{};
  for (std::size_t i = 0; i < Schluessel.size(); ++i) {
    kreuze.at(i) =
        alle || Enthaelt(text, Schluessel.at(i).sendungsart) || Enthaelt(text, Schluessel.at(i).name);
  }
  return kreuze;
}

Sendeartkreuze KreuzeAusKuerzeln(std::string_view zelle) {
  return Enthaelt(Klein(zelle), SchluesselAlle) ? Nur(Alle) : ModulationsArtAnkreuzen(zelle);
}

float ZyklusfaktorVon(int index) {
  return static_cast<float>(1.0 / AnzahlZyklen * (index + 1));
}

Zykluswahl ZyklusAusText(std::string_view text) {
  const float wert = FaktorAusText(text);
  // Records keep two decimals; the option stands for the exact sixths.
  for (int i = 0; i < AnzahlZyklen; ++i) {
    if (Zahl(Formatieren(ZyklusfaktorVon(i))) == wert) return {i, ZyklusfaktorVon(i)};
  }
  return {-1, wert};
}

float FaktorAusText(std::string_view text) {
  // Two of them multiplied must not vanish: without power there is no distance to keep.
  constexpr float Kleinster = 1e-15F;
  try {
    const float wert = Zahl(text);
    return wert >= Kleinster && wert <= 1 ? wert : 1.0F;
  } catch (const Laufzeitfehler&) {
    return 1.0F;
  }
}

Hinweis FaktorHinweis() {
  return MitHilfe({"Faktor für vorgesehene Sendeart <1",
                   "Für die Sendeart wurde ein Faktor <1 ermittelt!\n"
                   "Wenn im Antrag mit diesem Faktor gerechnet wird, \n"
                   "darf er beim Funkbetrieb nicht überschritten werden!\n"
                   "\n"
                   "Diese Meldung in Zukunft wieder anzeigen?",
                   Knoepfe::JaNein},
                  HilfeFaktor);
}

}  // namespace vesk
