#include "print/Kurvenachse.h"

#include <algorithm>
#include <cmath>

namespace vesk {

namespace {

constexpr double Rundung = 1e-6;

/// Power of ten at or below `wert`.
int Zehnerpotenz(double wert) {
  return static_cast<int>(std::floor(std::log10(wert) + Rundung));
}

}  // namespace

double Achsenskala::Ort(double wert) const {
  return anfang + laenge * std::log(wert / von) / std::log(bis / von);
}

double Achsenskala::Dekade() const {
  return std::abs(laenge) / std::log10(bis / von);
}

std::vector<Achsenstrich> Achsenstriche(const Achsenskala& skala) {
  std::vector<Achsenstrich> striche;
  for (int i = Zehnerpotenz(skala.von); i <= Zehnerpotenz(skala.bis); ++i) {
    for (int ziffer = 1; ziffer < 10; ++ziffer) {
      const double wert = ziffer * std::pow(10.0, i);
      const bool drin = wert >= skala.von * (1 - Rundung) && wert <= skala.bis * (1 + Rundung);
      if (drin) striche.push_back({wert, ziffer});
    }
  }
  return striche;
}

QString Achsenzahl(double wert) {
  return QString::number(wert, 'f', std::max(0, -Zehnerpotenz(wert)));
}

bool Beschriftet(const Achsenstrich& strich, double dekade, double platz) {
  constexpr double Enge = 0.3;  // of a decade, from 5 to 10
  return strich.ziffer == 1 || (Enge * dekade > platz && (strich.ziffer == 2 || strich.ziffer == 5));
}

Bildachse Wertebereich(const Kurvenbild& bild) {
  double kleinster = HUGE_VAL;
  double groesster = 0;
  const auto aufnehmen = [&](double y) {
    if (!(y > 0) || !std::isfinite(y)) return;
    kleinster = std::min(kleinster, y);
    groesster = std::max(groesster, y);
  };
  for (const Bildkurve& kurve : bild.kurven) {
    for (const Kurvenpunkt& punkt : kurve.linie) aufnehmen(punkt.y.value_or(0));
    for (const Bildpunkt& punkt : kurve.punkte) aufnehmen(punkt.y);
  }
  if (groesster == 0) return {bild.y, 1, 10};
  const double fehlt = std::sqrt(std::max(1.0, 10 * kleinster / groesster));
  return {bild.y, RundUnten(kleinster / fehlt), RundOben(groesster * fehlt)};
}

}  // namespace vesk
