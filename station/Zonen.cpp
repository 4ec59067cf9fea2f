#include "station/Zonen.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "engine/Zahlen.h"
#include "station/Papiere.h"
#include "station/Spalten.h"
#include "station/Text.h"

namespace vesk {

namespace {

using Abstaende = std::array<double, AnzahlSektoren>;

/// A number with its unit behind it or without; a decimal comma is one, too.
std::optional<double> Angabe(std::string_view text, std::string_view einheit) {
  text = OhneBlanks(text);
  if (text.ends_with(einheit)) text = OhneBlanks(text.substr(0, text.size() - einheit.size()));
  std::string zahl(text);
  std::replace(zahl.begin(), zahl.end(), ',', '.');
  if (!IstZahl(zahl)) return std::nullopt;
  return double{Zahl(zahl)};
}

std::optional<double> Antennenhoehe(const std::string& text) {
  const std::optional<double> hoehe = Angabe(text, "m");
  return hoehe && *hoehe >= 0 && *hoehe <= plangrenzen::Hoehe ? hoehe : std::nullopt;
}

std::optional<float> Abstand(const Rechenergebnis& e, Winkelkurve art) {
  if (!e.vollstaendig) return std::nullopt;
  const std::optional<float>& wert = art == Winkelkurve::OhneHSM  ? e.ohneHSM
                                     : art == Winkelkurve::HSM306 ? e.HSM306
                                                                  : e.HSMvde;
  return wert && *wert > 0 ? wert : std::nullopt;
}

bool HatTabelle(const Station& s, int spalte) {
  const auto& winkel = s.Datenblattspalten.at(static_cast<std::size_t>(spalte)).Winkel;
  return std::all_of(winkel.begin(), winkel.end(), [](const std::string& dB) { return IstZahl(dB); });
}

/// What a column is to an antenna, whatever the kind of distance.
struct Spaltenlage {
  Rechenwerte werte;
  bool afu = true;
  bool veraltet = false;
};

Spaltenlage LageBestimmen(const Station& s, int spalte) {
  const std::optional<Rechenart> haelt = HaltendeArt(s, spalte);
  return {Spaltenwerte(s, spalte), haelt ? haelt->afu : s.einstellungen.AFu, SpalteVeraltet(s, spalte)};
}

/// The figures of a column: one, or one for each sector of its table.
std::vector<Rechenergebnis> Rechnen(const Station& s, const Planobjekt& antenne, int spalte,
                                    Spaltenlage lage) {
  const Rechenart art{.modus = Modus::Abstand, .afu = lage.afu};
  if (antenne.ebene == Winkelebene::Keine || !HatTabelle(s, spalte)) return {Berechnen(lage.werte, art)};
  std::vector<Rechenergebnis> ergebnisse;
  for (const std::string& dB : s.Datenblattspalten.at(static_cast<std::size_t>(spalte)).Winkel) {
    lage.werte.WinkelDaempfungText = dB;
    ergebnisse.push_back(Berechnen(lage.werte, art));
  }
  return ergebnisse;
}

void RichtungEintragen(const Station& s, const Planobjekt& antenne, Spaltenzone& zone) {
  zone.von = 0;
  zone.bis = 360;
  if (antenne.drehbar) {
    zone.von = antenne.von;
    zone.bis = antenne.von + (antenne.bis - antenne.von >= 360 ? 360 : Vollkreis(antenne.bis - antenne.von));
  } else if (const auto grad = Angabe(Zelle(s, zone.spalte, ZeileRichtung), "°")) {
    zone.von = zone.bis = *grad;
  }
}

std::optional<Spaltenzone> Spaltenzone1(const Station& s, const Planobjekt& antenne, int spalte,
                                        Winkelkurve art, const std::vector<Rechenergebnis>& ergebnisse,
                                        bool veraltet) {
  Spaltenzone zone;
  zone.spalte = spalte;
  zone.veraltet = veraltet;
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    const std::optional<float> abstand = Abstand(ergebnisse.at(std::min(i, ergebnisse.size() - 1)), art);
    if (!abstand) return std::nullopt;
    zone.abstand.at(i) = double{*abstand};
  }
  if (ergebnisse.size() > 1) zone.ebene = antenne.ebene;
  zone.hoehe = Antennenhoehe(Zelle(s, spalte, ZeileHoehe));
  RichtungEintragen(s, antenne, zone);
  return zone;
}

constexpr double Sektorbreite = 10;  // degrees
constexpr double Bogen = std::numbers::pi / 180;

/// Smallest and greatest angle between a direction from `azimut` to `azimut` + `breite` and any of the main
/// directions, 0 to 180.
struct Winkelspanne {
  double von;
  double bis;
};
Winkelspanne ZurHauptrichtung(const Spaltenzone& zone, double azimut, double breite) {
  const double laenge = zone.bis - zone.von + breite;
  if (laenge >= 360) return {0, 180};
  const double von = Vollkreis(azimut - zone.bis);
  const double bis = von + laenge;
  const auto winkel = [](double grad) { return 180 - std::abs(180 - std::fmod(grad, 360)); };
  const double kleiner = bis >= 360 ? 0 : std::min(winkel(von), winkel(bis));
  const bool hinten = (von <= 180 && bis >= 180) || bis >= 540;
  return {kleiner, hinten ? 180 : std::max(winkel(von), winkel(bis))};
}

/// On a border between two sectors the greater distance holds.
double Groesster(const Abstaende& abstand, const Winkelspanne& spanne) {
  double groesster = 0;
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    const double von = static_cast<double>(i) * Sektorbreite;
    const double bis = von + Sektorbreite;
    const bool vorn = von <= spanne.bis && bis >= spanne.von;
    const bool hinten = 180 - bis <= spanne.bis && 180 - von >= spanne.von;
    if (vorn || hinten) groesster = std::max(groesster, abstand.at(i));
  }
  return groesster;
}

/// |height above or below the antenna|, m
struct Hoehenspanne {
  double von = 0;
  double bis = HUGE_VAL;
};
Hoehenspanne ZurAntenne(const Spaltenzone& zone, const std::optional<Hoehen>& hoehen) {
  if (!hoehen || !zone.hoehe) return {};
  const double unten = hoehen->von - *zone.hoehe;
  const double oben = hoehen->bis - *zone.hoehe;
  return {std::max({0.0, unten, -oben}), std::max(std::abs(unten), std::abs(oben))};
}

/// Sectors of elevation above and below the horizon.
double ReichweiteVertikal(const Abstaende& abstand, const Hoehenspanne& hoehe) {
  double groesste = 0;
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    const double d = abstand.at(i);
    if (d <= hoehe.von) continue;
    const double unten = static_cast<double>(i) * Sektorbreite * Bogen;
    const double oben = unten + Sektorbreite * Bogen;
    const double z = std::max(hoehe.von, d * std::sin(unten));
    if (z > d * std::sin(oben) * (1 + 1e-9)) continue;
    const double weite = z <= hoehe.bis ? std::sqrt(d * d - z * z) : hoehe.bis / std::tan(unten);
    groesste = std::max(groesste, weite);
  }
  return groesste;
}

/// The same for the field `weite` m away: in each sector it is strongest at the least height.
double VerhaeltnisVertikal(const Abstaende& abstand, double weite, const Hoehenspanne& hoehe) {
  double groesstes = 0;
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    const double unten = static_cast<double>(i) * Sektorbreite * Bogen;
    const double z = std::max(hoehe.von, weite * std::tan(unten));
    const bool steil = i + 1 == AnzahlSektoren;  // up to the zenith
    if (z > hoehe.bis || (!steil && z > weite * std::tan(unten + Sektorbreite * Bogen))) continue;
    groesstes = std::max(groesstes, abstand.at(i) * abstand.at(i) / (weite * weite + z * z));
  }
  return groesstes;
}

}  // namespace

const char* Zonenname(Winkelkurve art) {
  constexpr std::array Namen = {"ohne HSM", "HSM 306", "HSM VDE"};
  return Namen.at(static_cast<std::size_t>(art));
}

std::optional<Spaltenzone> SpaltenzoneBestimmen(const Station& s, const Planobjekt& antenne, int spalte,
                                                Winkelkurve art, const std::optional<std::string>& leistung) {
  Spaltenlage lage = LageBestimmen(s, spalte);
  if (leistung) lage.werte.PWRText = *leistung;
  return Spaltenzone1(s, antenne, spalte, art, Rechnen(s, antenne, spalte, lage), lage.veraltet);
}

std::vector<Zone> ZonenBestimmen(const Station& s) {
  std::array<std::optional<Spaltenlage>, AnzahlSpalten> lagen;
  std::vector<Zone> zonen;
  for (std::size_t index = 0; index < s.lageplan.objekte.size(); ++index) {
    const Planobjekt& antenne = s.lageplan.objekte[index];
    if (antenne.art != Planart::Antenne || Planfehler(antenne)) continue;
    std::array<Zone, 3> arten{Zone{index, Winkelkurve::OhneHSM, {}}, Zone{index, Winkelkurve::HSM306, {}},
                              Zone{index, Winkelkurve::HSMvde, {}}};
    for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
      const auto i = static_cast<std::size_t>(spalte) - 1;
      if (!antenne.spalten[i]) continue;
      if (!lagen[i]) lagen[i] = LageBestimmen(s, spalte);
      const auto ergebnisse = Rechnen(s, antenne, spalte, *lagen[i]);
      for (Zone& zone : arten) {
        auto eine = Spaltenzone1(s, antenne, spalte, zone.art, ergebnisse, lagen[i]->veraltet);
        if (eine) zone.spalten.push_back(*eine);
      }
    }
    for (Zone& zone : arten) {
      if (!zone.spalten.empty()) zonen.push_back(std::move(zone));
    }
  }
  return zonen;
}

double Hoechstabstand(const Zone& zone) {
  double groesster = 0;
  for (const Spaltenzone& spalte : zone.spalten) {
    groesster = std::max(groesster, *std::max_element(spalte.abstand.begin(), spalte.abstand.end()));
  }
  return groesster;
}

bool Veraltet(const Zone& zone) {
  return std::any_of(zone.spalten.begin(), zone.spalten.end(), [](const auto& z) { return z.veraltet; });
}

Punkt Mast(const Lageplan& plan, const Zone& zone) {
  return plan.objekte.at(zone.antenne).punkte.front();
}

double Reichweite(const Spaltenzone& spalte, double azimut, double breite,
                  const std::optional<Hoehen>& hoehen) {
  const Hoehenspanne hoehe = ZurAntenne(spalte, hoehen);
  if (spalte.ebene == Winkelebene::Vertikal) return ReichweiteVertikal(spalte.abstand, hoehe);
  const double d = spalte.ebene == Winkelebene::Keine
                       ? spalte.abstand.front()
                       : Groesster(spalte.abstand, ZurHauptrichtung(spalte, azimut, breite));
  return d <= hoehe.von ? 0 : std::sqrt(d * d - hoehe.von * hoehe.von);
}

double Feldverhaeltnis(const Spaltenzone& spalte, double azimut, double breite, double weite,
                       const std::optional<Hoehen>& hoehen) {
  const Hoehenspanne hoehe = ZurAntenne(spalte, hoehen);
  if (spalte.ebene == Winkelebene::Vertikal) return VerhaeltnisVertikal(spalte.abstand, weite, hoehe);
  const double d = spalte.ebene == Winkelebene::Keine
                       ? spalte.abstand.front()
                       : Groesster(spalte.abstand, ZurHauptrichtung(spalte, azimut, breite));
  return d * d / (weite * weite + hoehe.von * hoehe.von);
}

}  // namespace vesk
