#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "engine/Zahlen.h"
#include "station/Passung.h"
#include "station/Spalten.h"

namespace vesk {

namespace {

/// A sound figure that the calculation reads as it stands here.
std::string AlsText(double watt) {
  std::array<char, 32> puffer{};
  const auto ende =
      std::to_chars(puffer.data(), puffer.data() + puffer.size(), watt, std::chars_format::fixed, 3);
  return {puffer.data(), ende.ptr};
}

/// Three significant digits, not above `watt`.
double Abgerundet(double watt) {
  const double stelle = std::pow(10, std::floor(std::log10(watt)) - 2);
  return std::floor(watt / stelle * (1 + 1e-12)) * stelle;
}

std::optional<double> Hoechstleistung(const Planpruefung& pruefung, const Station& s, const Zone& zone,
                                      int spalte) {
  constexpr int Schritte = 24;
  constexpr double Kleinste = 0.01;  // W
  const auto passt = [&](double watt) {
    const auto eine =
        SpaltenzoneBestimmen(s, s.lageplan.objekte.at(zone.antenne), spalte, zone.art, AlsText(watt));
    return eine && Passend(pruefung, s.lageplan, {zone.antenne, zone.art, {*eine}});
  };
  double unten = Kleinste;
  double oben = double{Zahl(Zelle(s, spalte, ZeileLeistung))};
  if (!(oben > unten) || !passt(unten)) return std::nullopt;
  for (int i = 0; i < Schritte; ++i) {
    const double mitte = std::sqrt(unten * oben);
    (passt(mitte) ? unten : oben) = mitte;
  }
  const double watt = Abgerundet(unten);
  return passt(watt) ? std::optional(watt) : std::nullopt;
}

Zone Angehoben(Zone zone, double hoehe) {
  for (Spaltenzone& spalte : zone.spalten) spalte.hoehe = std::max(spalte.hoehe.value_or(0), hoehe);
  return zone;
}

/// In steps of 0.1 m, from the ground to where the zone is above everything.
std::optional<double> Mindesthoehe(const Planpruefung& pruefung, const Lageplan& plan, const Zone& zone) {
  constexpr double Schritt = 10;  // to the metre
  double hoechstes = UeberGrund.bis;
  for (const auto& haus : pruefung.haeuser) hoechstes = std::max(hoechstes, haus.hoehe);
  const auto passt = [&](int h) { return Passend(pruefung, plan, Angehoben(zone, h / Schritt)); };
  int unten = 0;
  int oben =
      static_cast<int>(std::ceil(std::min(hoechstes + Hoechstabstand(zone), plangrenzen::Hoehe) * Schritt));
  if (!passt(oben)) return std::nullopt;
  while (oben - unten > 1) {
    const int mitte = unten + (oben - unten) / 2;
    (passt(mitte) ? oben : unten) = mitte;
  }
  return oben / Schritt;
}

/// The way that is left when the zone is to be nearer: in steps, direction by direction.
class Verschiebungssuche {
 public:
  Verschiebungssuche(const Planpruefung& pruefung, Lageplan plan, const Zone& zone)
      : pruefung_(pruefung), plan_(std::move(plan)), zone_(zone), von_(Mast(plan_, zone)) {}

  std::optional<Abhilfe::Verschiebung> Suchen() {
    constexpr int Weiteste = 100;    // steps
    constexpr double Schritt = 0.5;  // m
    for (int schritte = 1; schritte <= Weiteste; ++schritte) {
      const double weite = schritte * Schritt;
      std::optional<Abhilfe::Verschiebung> beste;
      for (int azimut = 0; azimut < 360; azimut += 10) {
        if (!Passt(weite, azimut)) continue;
        const double naeher = Genauer(weite - Schritt, weite, azimut);
        if (!beste || naeher < beste->weite)
          beste = {naeher, static_cast<double>(azimut), Ort(naeher, azimut)};
      }
      if (beste) return beste;
    }
    return std::nullopt;
  }

 private:
  Punkt Ort(double weite, double azimut) const {
    const Punkt r = Richtung(plan_, azimut);
    return {von_.x + r.x * weite, von_.y + r.y * weite};
  }

  bool Passt(double weite, double azimut) {
    const Punkt ort = Ort(weite, azimut);
    if (!pruefung_.bereich.Enthaelt(ort)) return false;
    plan_.objekte[zone_.antenne].punkte.front() = ort;
    return Passend(pruefung_, plan_, zone_);
  }

  /// Steps of 0.1 m between a way that is too short and one that does.
  double Genauer(double zuKurz, double weite, double azimut) {
    constexpr double Fein = 0.1;
    const auto schritte = std::lround((weite - zuKurz) / Fein);
    for (long i = 1; i < schritte; ++i) {
      const double naeher = zuKurz + static_cast<double>(i) * Fein;
      if (Passt(naeher, azimut)) return naeher;
    }
    return weite;
  }

  const Planpruefung& pruefung_;
  Lageplan plan_;
  const Zone& zone_;
  Punkt von_;
};

}  // namespace

Abhilfe AbhilfeSuchen(const Station& s, const Zone& zone) {
  const Planpruefung pruefung(s.lageplan);
  Abhilfe abhilfe;
  if (pruefung.bereich.leer() || Passend(pruefung, s.lageplan, zone)) return abhilfe;
  for (const Spaltenzone& spalte : zone.spalten) {
    if (Passend(pruefung, s.lageplan, {zone.antenne, zone.art, {spalte}})) continue;
    const auto watt = Hoechstleistung(pruefung, s, zone, spalte.spalte);
    if (!watt) {
      // Less power does not help the antenna as long as one of its columns stays.
      abhilfe.leistungen.clear();
      break;
    }
    abhilfe.leistungen.push_back({spalte.spalte, *watt});
  }
  abhilfe.hoehe = Mindesthoehe(pruefung, s.lageplan, zone);
  abhilfe.verschiebung = Verschiebungssuche(pruefung, s.lageplan, zone).Suchen();
  return abhilfe;
}

}  // namespace vesk
