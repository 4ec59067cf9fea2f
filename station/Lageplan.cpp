#include "station/Lageplan.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "station/Flaechen.h"
#include "station/Text.h"

namespace vesk {

namespace {

constexpr double Bogen = std::numbers::pi / 180;
constexpr std::size_t LaengsterPfad = 4096;  // bytes; no system takes a longer one

bool Zwischen(double wert, double von, double bis) {
  return wert >= von && wert <= bis;  // false for what is no number
}

bool AufDemPlan(Punkt punkt) {
  return Zwischen(punkt.x, -plangrenzen::Ort, plangrenzen::Ort) &&
         Zwischen(punkt.y, -plangrenzen::Ort, plangrenzen::Ort);
}

bool Lesbar(const Planobjekt& o) {
  return std::all_of(o.punkte.begin(), o.punkte.end(), AufDemPlan) &&
         Zwischen(o.hoehe, 0, plangrenzen::Hoehe) && Zwischen(o.radius, 0, plangrenzen::Radius) &&
         Zwischen(o.von, -360, 720) && Zwischen(o.bis, -360, 720);
}

bool Lesbar(const Hintergrund& h) {
  const auto imBild = [](Punkt p) {
    return Zwischen(p.x, 0, plangrenzen::Bildseite) && Zwischen(p.y, 0, plangrenzen::Bildseite);
  };
  return std::all_of(h.bildpunkte.begin(), h.bildpunkte.end(), imBild) && AufDemPlan(h.ort) &&
         Zwischen(h.abstand, 0, plangrenzen::Ort) && Zwischen(h.deckung, 0, 1) &&
         h.datei.size() <= LaengsterPfad;
}

std::string Tausender(std::size_t zahl) {
  return zahl < 1000 ? std::to_string(zahl) : std::to_string(zahl / 1000) + ".000";
}

}  // namespace

double Vollkreis(double grad) {
  const double rest = std::fmod(grad, 360);
  return rest < 0 ? std::fmod(rest + 360, 360) : rest;
}

Punkt Richtung(const Lageplan& plan, double azimut) {
  const double winkel = (azimut + plan.nord) * Bogen;
  return {std::sin(winkel), std::cos(winkel)};
}

double Azimut(const Lageplan& plan, Punkt vektor) {
  if (vektor == Punkt{}) return 0;
  return Vollkreis(std::atan2(vektor.x, vektor.y) / Bogen - plan.nord);
}

const char* Himmelsrichtung(double azimut) {
  constexpr std::array Namen = {"N", "NO", "O", "SO", "S", "SW", "W", "NW"};
  return Namen.at(static_cast<std::size_t>(std::lround(Vollkreis(azimut) / 45)) % Namen.size());
}

std::optional<std::string> Planfehler(const Planobjekt& objekt) {
  if (Artzeile(objekt.art).umriss) return Umrissfehler(objekt.punkte);
  if (objekt.punkte.size() != 1) return "Der Ort fehlt.";
  if (objekt.art == Planart::Antenne && objekt.spalten.none()) {
    return "Der Antenne ist keine Spalte des Datenblatts zugeordnet.";
  }
  return std::nullopt;
}

std::optional<std::string> Planueberschreitung(const Lageplan& plan) {
  namespace grenzen = plangrenzen;
  if (plan.objekte.size() > grenzen::Objekte) {
    return "Ein Lageplan hat höchstens " + Tausender(grenzen::Objekte) + " Objekte.";
  }
  std::size_t ecken = 0;
  for (std::size_t i = 0; i < plan.objekte.size(); ++i) {
    const Planobjekt& objekt = plan.objekte[i];
    ecken += objekt.punkte.size();
    if (objekt.punkte.size() > grenzen::Ecken) {
      return Objektname(plan, i) + ": Ein Umriß hat höchstens " + Tausender(grenzen::Ecken) + " Ecken.";
    }
    if (Zeichenzahl(objekt.name) > grenzen::Textlaenge) {
      return "Ein Text auf dem Lageplan hat höchstens " + Tausender(grenzen::Textlaenge) + " Zeichen.";
    }
    if (!Lesbar(objekt))
      return Objektname(plan, i) + ": Eine Angabe liegt außerhalb des Lageplans (±10.000 m).";
  }
  if (ecken > grenzen::AlleEcken) {
    return "Alle Umrisse zusammen haben höchstens " + Tausender(grenzen::AlleEcken) + " Ecken.";
  }
  if (!AufDemPlan(plan.bezug) || !Zwischen(plan.nord, -360, 720) ||
      Zeichenzahl(plan.bezugsname) > grenzen::Textlaenge) {
    return "Der Bezugspunkt oder die Nordrichtung liegt außerhalb des Lageplans.";
  }
  if (plan.hintergrund && !Lesbar(*plan.hintergrund)) {
    return "Die Angaben zum Hintergrundbild liegen außerhalb des Bilds oder des Lageplans.";
  }
  return std::nullopt;
}

std::string Objektname(const Lageplan& plan, std::size_t objekt) {
  const Planobjekt& gemeint = plan.objekte.at(objekt);
  const std::string art = Artzeile(gemeint.art).name;
  if (!gemeint.name.empty()) return art + " „" + Anfang(gemeint.name, 40) + "“";
  const auto bis = plan.objekte.begin() + static_cast<std::ptrdiff_t>(objekt);
  const auto nummer =
      1 + std::count_if(plan.objekte.begin(), bis, [&](const Planobjekt& o) { return o.art == gemeint.art; });
  return art + " " + std::to_string(nummer);
}

std::string Spaltenliste(const Planobjekt& antenne) {
  std::string liste;
  for (std::size_t i = 0; i < antenne.spalten.size(); ++i) {
    if (!antenne.spalten[i]) continue;
    if (!liste.empty()) liste += ", ";
    liste += static_cast<char>('A' + i);
  }
  return liste;
}

}  // namespace vesk
