#include "station/Planbearbeitung.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

#include "engine/Zahlen.h"
#include "station/Flaechen.h"
#include "station/Text.h"

namespace vesk {

namespace {

constexpr double Bogen = std::numbers::pi / 180;

Punkt operator+(Punkt a, Punkt b) {
  return {a.x + b.x, a.y + b.y};
}
Punkt operator-(Punkt a, Punkt b) {
  return {a.x - b.x, a.y - b.y};
}
Punkt operator*(Punkt a, double faktor) {
  return {a.x * faktor, a.y * faktor};
}
double Laenge(Punkt a) {
  return std::hypot(a.x, a.y);
}

double AufRaster(double wert, double raster) {
  return raster > 0 ? std::round(wert / raster) * raster : wert;
}

double Kantenabstand(Punkt von, Punkt bis, Punkt punkt) {
  const Punkt kante = bis - von;
  const double quadrat = kante.x * kante.x + kante.y * kante.y;
  const Punkt weg = punkt - von;
  const double anteil = quadrat > 0 ? (weg.x * kante.x + weg.y * kante.y) / quadrat : 0;
  return Laenge(weg - kante * std::clamp(anteil, 0.0, 1.0));
}

/// On the nearest of the four directions at right angles to the edge before, or none of them is near.
std::optional<Punkt> Rechtwinklig(const Fang& fang, Punkt punkt, const Umriss& linie) {
  constexpr double Nahe = 6 * Bogen;
  constexpr double Rechter = 90 * Bogen;
  if (linie.empty()) return std::nullopt;
  const Punkt weg = punkt - linie.back();
  if (weg == Punkt{}) return std::nullopt;
  const Punkt davor = linie.size() > 1 ? linie.back() - linie[linie.size() - 2] : Punkt{1, 0};
  const double bezug = std::atan2(davor.y, davor.x);
  const double winkel = std::atan2(weg.y, weg.x) - bezug;
  const double gerade = std::round(winkel / Rechter) * Rechter;
  if (std::abs(winkel - gerade) > Nahe) return std::nullopt;
  const double laenge = AufRaster(Laenge(weg) * std::cos(winkel - gerade), fang.raster);
  return linie.back() + Punkt{std::cos(bezug + gerade), std::sin(bezug + gerade)} * laenge;
}

/// The place of the first separator, and the place behind it.
std::optional<std::pair<std::string_view, std::string_view>> Geteilt(
    std::string_view text, std::initializer_list<std::string_view> trenner) {
  for (const std::string_view zeichen : trenner) {
    if (const auto stelle = text.find(zeichen); stelle != std::string_view::npos) {
      return std::pair(text.substr(0, stelle), text.substr(stelle + zeichen.size()));
    }
  }
  return std::nullopt;
}

/// How much a place means an object: points before edges before areas, the nearer and the smaller before the
/// others. 0: not at all.
double Rang(const Planobjekt& objekt, Punkt punkt, double weite) {
  if (objekt.punkte.empty()) return 0;
  if (!Artzeile(objekt.art).umriss) {
    const double abstand = Laenge(objekt.punkte.front() - punkt);
    return abstand > weite ? 0 : 3 - abstand / weite;
  }
  const double rand = Randabstand(objekt.punkte, punkt);
  if (rand <= weite) return 2 - rand / weite;
  if (Umrissfehler(objekt.punkte) || !Innerhalb(objekt.punkte, punkt)) return 0;
  return 1 / (1 + Flaecheninhalt(objekt.punkte));
}

double MeterJeBildpunkt(const Hintergrund& bild) {
  const double weite = Laenge(bild.bildpunkte[1] - bild.bildpunkte[0]);
  return weite > 0 ? bild.abstand / weite : 0;
}

bool ImBild(Punkt punkt) {
  const auto innen = [](double wert) { return wert >= 0 && wert <= plangrenzen::Bildseite; };
  return innen(punkt.x) && innen(punkt.y);
}

}  // namespace

std::optional<double> Dezimalzahl(std::string_view text) {
  std::string zahl(OhneBlanks(text));
  if (zahl.starts_with('+')) zahl.erase(0, 1);
  std::replace(zahl.begin(), zahl.end(), ',', '.');
  double wert = 0;
  const char* ende = zahl.data() + zahl.size();
  const auto [bis, fehler] = std::from_chars(zahl.data(), ende, wert, std::chars_format::fixed);
  if (fehler != std::errc() || bis != ende || !std::isfinite(wert)) return std::nullopt;
  return wert;
}

std::string Dezimaltext(double zahl) {
  std::string text = Formatieren(zahl, 3, '.');
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

std::optional<Mass> MassLesen(std::string_view text) {
  const auto teile = Geteilt(text, {";", "<"});
  const auto laenge = Dezimalzahl(teile ? teile->first : text);
  if (!laenge || *laenge <= 0) return std::nullopt;
  if (!teile) return Mass{*laenge, std::nullopt};
  const auto azimut = Dezimalzahl(teile->second);
  if (!azimut) return std::nullopt;
  return Mass{*laenge, Vollkreis(*azimut)};
}

std::string Masstext(const Lageplan& plan, Punkt von, Punkt bis) {
  const Punkt weg = bis - von;
  const double grad = Vollkreis(AufRaster(Azimut(plan, weg), 0.1));
  return Dezimaltext(AufRaster(Laenge(weg), 0.01)) + " m < " + Dezimaltext(grad) + "°";
}

Punkt Abgetragen(const Lageplan& plan, Punkt von, const Mass& mass, Punkt ziel) {
  return von + Richtung(plan, mass.azimut.value_or(Azimut(plan, ziel - von))) * mass.laenge;
}

std::optional<Geopunkt> GeoLesen(std::string_view text) {
  const auto teile = Geteilt(OhneBlanks(text), {";", ", ", " "});
  if (!teile) return std::nullopt;
  const auto breite = Dezimalzahl(teile->first);
  const auto laenge = Dezimalzahl(teile->second);
  if (!breite || !laenge || std::abs(*breite) > 90 || std::abs(*laenge) > 180) return std::nullopt;
  return Geopunkt{.laenge = *laenge, .breite = *breite};
}

std::string Geotext(const Geopunkt& punkt) {
  return Formatieren(punkt.breite, 6, '.') + "; " + Formatieren(punkt.laenge, 6, '.');
}

Punkt Gefangen(const Lageplan& plan, const Fang& fang, Punkt punkt, const Umriss& linie,
               const std::vector<Punkt>& ecken) {
  if (fang.ecken) {
    const auto naechste = std::min_element(
        ecken.begin(), ecken.end(), [&](Punkt a, Punkt b) { return Laenge(a - punkt) < Laenge(b - punkt); });
    if (naechste != ecken.end() && Laenge(*naechste - punkt) <= fang.weite) return *naechste;
  }
  if (fang.winkel) {
    if (const auto gerade = Rechtwinklig(fang, punkt, linie)) return *gerade;
  }
  const Punkt weg = punkt - plan.bezug;
  return plan.bezug + Punkt{AufRaster(weg.x, fang.raster), AufRaster(weg.y, fang.raster)};
}

std::vector<Punkt> Fangecken(const Lageplan& plan, const std::optional<Planstelle>& ohne) {
  std::vector<Punkt> ecken;
  for (std::size_t i = 0; i < plan.objekte.size(); ++i) {
    const Umriss& punkte = plan.objekte[i].punkte;
    for (std::size_t j = 0; j < punkte.size(); ++j) {
      const bool bewegt = ohne && ohne->objekt == i && ohne->ecke.value_or(j) == j;
      if (!bewegt) ecken.push_back(punkte[j]);
    }
  }
  return ecken;
}

std::size_t NaechsteKante(const Umriss& umriss, Punkt punkt) {
  std::size_t naechste = 0;
  double abstand = Kantenabstand(umriss.back(), umriss.front(), punkt);
  if (umriss.size() > 1) naechste = umriss.size() - 1;
  for (std::size_t i = 0; i + 1 < umriss.size(); ++i) {
    const double dieser = Kantenabstand(umriss[i], umriss[i + 1], punkt);
    if (dieser >= abstand) continue;
    abstand = dieser;
    naechste = i;
  }
  return naechste;
}

std::optional<Planstelle> StelleBei(const Lageplan& plan, Punkt punkt, double weite,
                                    const Artenwahl& sichtbar, const std::optional<std::size_t>& gewaehlt) {
  if (gewaehlt && *gewaehlt < plan.objekte.size()) {
    const Umriss& ecken = plan.objekte[*gewaehlt].punkte;
    const auto nahe =
        std::find_if(ecken.begin(), ecken.end(), [&](Punkt ecke) { return Laenge(ecke - punkt) <= weite; });
    if (nahe != ecken.end()) return Planstelle{*gewaehlt, static_cast<std::size_t>(nahe - ecken.begin())};
  }
  std::optional<Planstelle> beste;
  double rang = 0;
  for (std::size_t i = 0; i < plan.objekte.size(); ++i) {
    if (!sichtbar.test(static_cast<std::size_t>(plan.objekte[i].art))) continue;
    const double dieser = Rang(plan.objekte[i], punkt, weite);
    // Plot and controlled area often share their edges.
    if (dieser <= 0 || dieser < rang || (dieser == rang && gewaehlt != i)) continue;
    beste = Planstelle{i, std::nullopt};
    rang = dieser;
  }
  return beste;
}

Lageplan Verschoben(Lageplan plan, const Planstelle& stelle, Punkt weg) {
  Umriss& punkte = plan.objekte.at(stelle.objekt).punkte;
  for (std::size_t i = 0; i < punkte.size(); ++i) {
    if (stelle.ecke.value_or(i) == i) punkte[i] = punkte[i] + weg;
  }
  return plan;
}

Lageplan MitEcke(Lageplan plan, const Planstelle& stelle, const std::optional<Punkt>& ort) {
  Umriss& punkte = plan.objekte.at(stelle.objekt).punkte;
  const std::size_t ecke = stelle.ecke.value_or(punkte.size() - 1);
  const Punkt mitte = (punkte.at(ecke) + punkte.at((ecke + 1) % punkte.size())) * 0.5;
  punkte.insert(punkte.begin() + static_cast<std::ptrdiff_t>(ecke) + 1, ort.value_or(mitte));
  return plan;
}

std::optional<Lageplan> OhneEcke(Lageplan plan, const Planstelle& stelle) {
  constexpr std::size_t Wenigste = 3;
  Umriss& punkte = plan.objekte.at(stelle.objekt).punkte;
  if (!stelle.ecke || *stelle.ecke >= punkte.size() || punkte.size() <= Wenigste) return std::nullopt;
  punkte.erase(punkte.begin() + static_cast<std::ptrdiff_t>(*stelle.ecke));
  return plan;
}

Lageplan BereichWieGrundstueck(Lageplan plan) {
  std::vector<Planobjekt> bereiche;
  for (const Planobjekt& objekt : plan.objekte) {
    if (objekt.art != Planart::Grundstueck) continue;
    Planobjekt bereich;
    bereich.art = Planart::Bereich;
    bereich.punkte = objekt.punkte;
    bereiche.push_back(std::move(bereich));
  }
  if (bereiche.empty()) return plan;
  std::erase_if(plan.objekte, [](const Planobjekt& o) { return o.art == Planart::Bereich; });
  plan.objekte.insert(plan.objekte.end(), bereiche.begin(), bereiche.end());
  return plan;
}

Planobjekt NeuesPlanobjekt(Planart art, Punkt ort) {
  constexpr double Hausseite = 10;  // m
  constexpr double Grundseite = 20;
  constexpr double Haushoehe = 9;
  constexpr double Baumhoehe = 8;
  constexpr double Krone = 3;
  Planobjekt objekt;
  objekt.art = art;
  objekt.punkte = {ort};
  if (art == Planart::Baum) {
    objekt.hoehe = Baumhoehe;
    objekt.radius = Krone;
  } else if (art == Planart::Beschriftung) {
    objekt.name = "Text";
  } else if (Artzeile(art).umriss) {
    const bool haus = art == Planart::Gebaeude;
    const double seite = haus ? Hausseite : Grundseite;
    if (haus) objekt.hoehe = Haushoehe;
    objekt.punkte = {ort, ort + Punkt{seite, 0}, ort + Punkt{seite, seite}, ort + Punkt{0, seite}};
  }
  return objekt;
}

Punkt Bildstelle(const Hintergrund& bild, Punkt ort) {
  const double meter = MeterJeBildpunkt(bild);
  if (!(meter > 0)) return bild.bildpunkte[0];
  const Punkt weg = (ort - bild.ort) * (1 / meter);
  return {bild.bildpunkte[0].x + weg.x, bild.bildpunkte[0].y - weg.y};
}

Punkt Planort(const Hintergrund& bild, Punkt stelle) {
  const Punkt weg = (stelle - bild.bildpunkte[0]) * MeterJeBildpunkt(bild);
  return {bild.ort.x + weg.x, bild.ort.y - weg.y};
}

std::optional<Hintergrund> Geeicht(Hintergrund bild, Punkt erste, Punkt zweite, double abstand) {
  const std::array<Punkt, 2> stellen = {Bildstelle(bild, erste), Bildstelle(bild, zweite)};
  if (stellen[0] == stellen[1] || !(abstand > 0) || !std::all_of(stellen.begin(), stellen.end(), ImBild)) {
    return std::nullopt;
  }
  bild.bildpunkte = stellen;
  bild.abstand = abstand;
  bild.ort = erste;
  return bild;
}

}  // namespace vesk
