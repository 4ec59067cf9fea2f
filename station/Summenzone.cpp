#include "station/Summenzone.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>

#include "station/Flaechen.h"

namespace vesk {

namespace {

constexpr int Strahlen = 360;

double Quadrat(double wert) {
  return wert * wert;
}

/// Squares of the distances (m²) of columns with the same height, by degrees from north.
struct Faecher {
  double tiefe = 0;  ///< square of the height that is left between antenna and people, m²
  std::array<double, Strahlen> quadrat{};
};

/// One antenna. Its bounds spare most points the exact figure.
struct Quelle {
  Punkt mast;
  double hoechstens = 0;  ///< square of the greatest distance, m²
  double mindestens = 0;  ///< square of a distance that is kept in all directions, m²
  double tiefe = 0;       ///< that belongs to it
  std::vector<Faecher> faecher;
  std::vector<Spaltenzone> vertikal;
};

double Tiefe(const Spaltenzone& spalte, const std::optional<Hoehen>& hoehen) {
  if (!spalte.hoehe || !hoehen) return 0;
  return Quadrat(std::max({0.0, hoehen->von - *spalte.hoehe, *spalte.hoehe - hoehen->bis}));
}

Faecher& FaecherMit(double tiefe, std::vector<Faecher>& faecher) {
  const auto da =
      std::find_if(faecher.begin(), faecher.end(), [&](const Faecher& f) { return f.tiefe == tiefe; });
  return da != faecher.end() ? *da : faecher.emplace_back(Faecher{tiefe, {}});
}

Quelle QuelleVon(const Lageplan& plan, const Zone& zone, const std::optional<Hoehen>& hoehen) {
  Quelle quelle;
  quelle.mast = Mast(plan, zone);
  quelle.hoechstens = Quadrat(Hoechstabstand(zone));
  for (const Spaltenzone& spalte : zone.spalten) {
    if (spalte.ebene == Winkelebene::Vertikal) {
      quelle.vertikal.push_back(spalte);
      continue;
    }
    Faecher& faecher = FaecherMit(Tiefe(spalte, hoehen), quelle.faecher);
    int grad = 0;
    for (double& quadrat : faecher.quadrat) {
      quadrat = std::max(quadrat, Quadrat(Reichweite(spalte, grad++, 1)));
    }
  }
  for (const Faecher& faecher : quelle.faecher) {
    const double kleinstes = *std::min_element(faecher.quadrat.begin(), faecher.quadrat.end());
    if (kleinstes <= quelle.mindestens) continue;
    quelle.mindestens = kleinstes;
    quelle.tiefe = faecher.tiefe;
  }
  return quelle;
}

class Raster {
 public:
  Raster(const Lageplan& plan, std::vector<Quelle> quellen, std::optional<Hoehen> hoehen, double weite)
      : plan_(plan), quellen_(std::move(quellen)), hoehen_(hoehen), weite_(weite) {
    Ausdehnen();
    Fuellen();
    MastenUmgeben();
  }

  std::vector<Umriss> Umrisse() {
    Zellen();
    std::vector<Umriss> umrisse;
    while (!folge_.empty()) {
      Umriss umriss;
      const std::size_t erste = folge_.begin()->first;
      for (std::size_t kante = erste;;) {
        umriss.push_back(Schnittpunkt(kante));
        const auto naechste = folge_.extract(kante);
        kante = naechste.mapped();
        if (kante == erste) break;
      }
      if (Linksherum(umriss))
        umrisse.push_back(std::move(umriss));  // the others are holes, which do not count
    }
    return umrisse;
  }

 private:
  static constexpr double Rundung = 1e-9;

  /// With n antennas one of them reaches 1 / n wherever the sum reaches 1.
  void Ausdehnen() {
    constexpr double Hoechstzahl = 4e6;  // points
    Punkt von{HUGE_VAL, HUGE_VAL};
    Punkt bis{-HUGE_VAL, -HUGE_VAL};
    for (const Quelle& q : quellen_) {
      const double weite = std::sqrt(q.hoechstens * static_cast<double>(quellen_.size()));
      von = {std::min(von.x, q.mast.x - weite), std::min(von.y, q.mast.y - weite)};
      bis = {std::max(bis.x, q.mast.x + weite), std::max(bis.y, q.mast.y + weite)};
    }
    while ((bis.x - von.x) * (bis.y - von.y) / Quadrat(weite_) > Hoechstzahl) weite_ *= 2;
    ecke_ = {von.x - 3.5 * weite_, von.y - 3.5 * weite_};
    breite_ = static_cast<std::size_t>((bis.x - von.x) / weite_) + 8;
    hoehe_ = static_cast<std::size_t>((bis.y - von.y) / weite_) + 8;
  }

  Punkt Ort(double spalte, double zeile) const {
    return {ecke_.x + spalte * weite_, ecke_.y + zeile * weite_};
  }

  /// The square of the ratio of field strength to limit that one antenna makes.
  double Anteil(const Quelle& q, Punkt weg, double r2) const {
    double groesstes = 0;
    if (!q.faecher.empty()) {
      const auto grad = static_cast<std::size_t>(Azimut(plan_, weg)) % Strahlen;
      for (const Faecher& faecher : q.faecher) {
        groesstes = std::max(groesstes, faecher.quadrat.at(grad) / (r2 + faecher.tiefe));
      }
    }
    for (const Spaltenzone& spalte : q.vertikal) {
      groesstes = std::max(groesstes, Feldverhaeltnis(spalte, 0, 1, std::sqrt(r2), hoehen_));
    }
    return groesstes;
  }

  bool Erreicht(Punkt ort) const {
    const auto r2 = [&](const Quelle& q) { return Quadrat(ort.x - q.mast.x) + Quadrat(ort.y - q.mast.y); };
    double rest = 0;  // of those that have not been looked at, at most
    for (const Quelle& q : quellen_) rest += q.hoechstens / r2(q);
    double summe = 0;
    for (const Quelle& q : quellen_) {
      summe += Anteil(q, {ort.x - q.mast.x, ort.y - q.mast.y}, r2(q));
      if (summe >= 1) return true;
      rest -= q.hoechstens / r2(q);
      if (summe + rest < 1 - Rundung) return false;
    }
    return false;
  }

  void Fuellen() {
    innen_.assign(breite_ * hoehe_, 0);
    std::vector<double> hoechstens(breite_);
    std::vector<double> mindestens(breite_);
    for (std::size_t zeile = 1; zeile + 1 < hoehe_; ++zeile) {
      std::fill(hoechstens.begin(), hoechstens.end(), 0);
      std::fill(mindestens.begin(), mindestens.end(), 0);
      for (const Quelle& q : quellen_) {
        const double y2 = Quadrat(Ort(0, static_cast<double>(zeile)).y - q.mast.y);
        const double x0 = ecke_.x - q.mast.x;
        for (std::size_t spalte = 0; spalte < breite_; ++spalte) {
          const double r2 = Quadrat(x0 + static_cast<double>(spalte) * weite_) + y2;
          hoechstens[spalte] += q.hoechstens / r2;
          mindestens[spalte] += q.mindestens / (r2 + q.tiefe);
        }
      }
      for (std::size_t spalte = 1; spalte + 1 < breite_; ++spalte) {
        const bool innen = mindestens[spalte] >= 1 ||
                           (hoechstens[spalte] >= 1 &&
                            Erreicht(Ort(static_cast<double>(spalte), static_cast<double>(zeile))));
        innen_[zeile * breite_ + spalte] = innen ? 1 : 0;
      }
    }
  }

  /// A zone may be smaller than a cell.
  void MastenUmgeben() {
    constexpr double Umkreis = 1.5;
    for (const Quelle& q : quellen_) {
      if (!Erreicht(q.mast)) continue;
      const double s = (q.mast.x - ecke_.x) / weite_;
      const double z = (q.mast.y - ecke_.y) / weite_;
      for (int dz = -1; dz <= 2; ++dz) {
        for (int ds = -1; ds <= 2; ++ds) {
          const double spalte = std::floor(s) + ds;
          const double zeile = std::floor(z) + dz;
          if (std::hypot(spalte - s, zeile - z) > Umkreis) continue;
          innen_[static_cast<std::size_t>(zeile) * breite_ + static_cast<std::size_t>(spalte)] = 1;
        }
      }
    }
  }

  bool Innen(std::size_t spalte, std::size_t zeile) const { return innen_[zeile * breite_ + spalte] != 0; }

  /// Edges of the grid are numbered: from a point to the right, resp. upwards.
  std::size_t Waagrecht(std::size_t spalte, std::size_t zeile) const {
    return 2 * (zeile * breite_ + spalte);
  }
  std::size_t Senkrecht(std::size_t spalte, std::size_t zeile) const {
    return 2 * (zeile * breite_ + spalte) + 1;
  }

  /// The outline goes through each cell from edge to edge with the inside on its left; two opposite corners
  /// inside belong together.
  void Zellen() {
    for (std::size_t z = 0; z + 1 < hoehe_; ++z) {
      for (std::size_t s = 0; s + 1 < breite_; ++s) {
        const unsigned muster = (Innen(s, z) ? 1U : 0U) | (Innen(s + 1, z) ? 2U : 0U) |
                                (Innen(s + 1, z + 1) ? 4U : 0U) | (Innen(s, z + 1) ? 8U : 0U);
        if (muster == 0 || muster == 15) continue;
        const std::array<std::size_t, 4> kanten = {Waagrecht(s, z), Senkrecht(s + 1, z), Waagrecht(s, z + 1),
                                                   Senkrecht(s, z)};
        Zelle(muster, kanten);
      }
    }
  }

  void Zelle(unsigned muster, const std::array<std::size_t, 4>& kanten) {
    // Corners and edges count anticlockwise; edge i is between the corners i and i + 1.
    for (unsigned i = 0; i < 4; ++i) {
      const auto innen = [&](unsigned ecke) { return (muster >> (ecke % 4) & 1U) != 0; };
      if (!innen(i) || innen(i + 1)) continue;  // the outline enters here, from the inside to the outside
      unsigned aus = i + 1;
      while (innen(aus) == innen(aus + 1)) ++aus;
      folge_[kanten.at(i)] = kanten.at(aus % 4);
    }
  }

  Punkt Schnittpunkt(std::size_t kante) const {
    constexpr int Schritte = 10;
    const std::size_t punkt = kante / 2;
    const auto s = static_cast<double>(punkt % breite_);
    const std::size_t zeile = punkt / breite_;
    const auto z = static_cast<double>(zeile);
    Punkt innen = Ort(s, z);
    Punkt aussen = kante % 2 == 0 ? Ort(s + 1, z) : Ort(s, z + 1);
    if (innen_[punkt] == 0) std::swap(innen, aussen);
    for (int i = 0; i < Schritte; ++i) {
      const Punkt mitte{(innen.x + aussen.x) / 2, (innen.y + aussen.y) / 2};
      (Erreicht(mitte) ? innen : aussen) = mitte;
    }
    return aussen;
  }

  static bool Linksherum(const Umriss& umriss) {
    double doppelt = 0;
    for (std::size_t i = 0; i < umriss.size(); ++i) {
      const Punkt& p = umriss[i];
      const Punkt& q = umriss[(i + 1) % umriss.size()];
      doppelt += p.x * q.y - q.x * p.y;
    }
    return doppelt > 0;
  }

  const Lageplan& plan_;
  std::vector<Quelle> quellen_;
  std::optional<Hoehen> hoehen_;
  double weite_;
  Punkt ecke_;
  std::size_t breite_ = 0;
  std::size_t hoehe_ = 0;
  std::vector<char> innen_;
  std::unordered_map<std::size_t, std::size_t> folge_;
};

}  // namespace

std::vector<Umriss> Summenumriss(const Lageplan& plan, const std::vector<Zone>& zonen, Winkelkurve art,
                                 const std::optional<Hoehen>& hoehen, double raster) {
  std::vector<Quelle> quellen;
  for (const Zone& zone : zonen) {
    if (zone.art == art) quellen.push_back(QuelleVon(plan, zone, hoehen));
  }
  if (quellen.size() < 2) return {};
  return Raster(plan, std::move(quellen), hoehen, raster).Umrisse();
}

}  // namespace vesk
