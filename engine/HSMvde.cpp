#include <array>
#include <cmath>
#include <numbers>

#include "engine/HSM.h"
#include "engine/Laufzeitfehler.h"
#include "engine/Rechenwerte.h"

namespace vesk {

namespace {

constexpr double Effektiv = 1 / std::numbers::sqrt2;  // effective value of a peak
constexpr double Freiraum = 376.99111848;             // wave impedance of free space, 120 pi Ohm

constexpr double konstant = 0;

constexpr std::array<HSMvdeZeile, 9> SchwellenAM = {{
    {{0.03F, 0.63F}, 0.059, 1, konstant},
    {{0.63F, 0.79F}, 0.059, 0.63, 1.29},
    {{0.79F, 1.0F}, 0.079, 1, konstant},
    {{1.0F, 1.3F}, 0.079, 1.0, 1.084},
    {{1.3F, 1.7F}, 0.105, 1, konstant},
    {{1.7F, 7.0F}, 0.105, 1.7, 1.51},
    {{7.0F, 22.0F}, 0.89, 1, konstant},
    {{22.0F, 79.0F}, 0.89, 22, -1.71},
    {{79.0F, 100.0F, false, true}, 0.1, 1, konstant},
}};

constexpr std::array<HSMvdeZeile, 6> SchwellenTV = {{
    {{79.0F, 144.0F}, 0.13, 79, 0.6},
    {{144.0F, 200.0F}, 0.186, 144, 4.4},
    {{200.0F, 240.0F}, 0.789, 200, -4.7},
    {{240.0F, 500.0F}, 0.335, 1, konstant},
    {{500.0F, 600.0F}, 0.335, 500, -3.8},
    {{600.0F, 1100.0F, false, true}, 0.168, 600, 0.6},
}};

constexpr std::array<HSMvdeZeile, 4> SchwellenGSM = {{
    {{850.0F, 1200.0F}, 0.358, 1, konstant},
    {{1200.0F, 1800.0F, false, true}, 0.358, 1200, 5.7},
    {{1800.0F, 2000.0F, true}, 3.61, 1, konstant},
    {{2000.0F, 2500.0F, false, true}, 3.61, 2000, -3.0},
}};

// 2500 MHz itself has a threshold but no conversion.
constexpr std::array<Umrechnungszeile, 6> Umrechnungen = {{
    {{0.03F, 3.0F}, 3, 1, {{{183.43, 1, -1}}}},
    {{3.0F, 9.5F}, 3, 3, {{{183.43, 1, -1}, {196.03538161, 1, -2}, {520, 1, -2.85}}}},
    {{9.5F, 200.0F}, 1, 2, {{{0.052, Freiraum, konstant}, {19.6, 1, konstant}}}},
    {{200.0F, 400.0F}, 200, 2, {{{19.603538161, 1, 2.94}, {19.6, 1, 2.94}}}},
    {{400.0F, 1500.0F}, 1, 2, {{{0.4, Freiraum, konstant}, {150, 1, konstant}}}},
    {{1500.0F, 2500.0F}, 1500, 2, {{{150.796447392, 1, 3}, {150, 1, 3}}}},
}};

float Schwelle(float f, std::int16_t grenzwerttyp) {
  const HSMvdeZeile* const a = ZeileFuer(HSMvdeZeilen(grenzwerttyp), f);
  if (a == nullptr) return 0;
  if (a->p == konstant) return static_cast<float>(a->U0);
  // A falling curve turns its fraction over instead of its sign, as the standard writes it.
  const double verhaeltnis = a->p > 0 ? f / a->f0 : a->f0 / f;
  return AlsSingle(a->U0 * std::pow(verhaeltnis, std::abs(a->p)));
}

/// f / f0, turned over for falling conversions; those of a row rise or fall alike.
double Verhaeltnis(const Umrechnungszeile& zeile, float f) {
  return zeile.umrechnungen.front().p > 0 ? f / zeile.f0 : zeile.f0 / f;
}

/// The ratio to the power of |p|.
double Frequenzgang(double verhaeltnis, double p) {
  const double hoch = std::abs(p);
  if (hoch == 0) return 1;
  if (hoch == 1) return verhaeltnis;
  if (hoch == 2) return verhaeltnis * verhaeltnis;
  if (hoch == 3) return verhaeltnis * verhaeltnis * verhaeltnis;
  return std::pow(verhaeltnis, hoch);
}

double Umrechnen(const Umrechnung& u, float Uss, double frequenzgang) {
  return double{Uss} * u.faktor * u.Z * frequenzgang;
}

/// Sorts a candidate (V/m) in, at the five decimals of its text, which is the precision of the limit.
void Merken(HSMvdeWerte& werte, double feld) {
  auto i = static_cast<std::size_t>(werte.Anzahl++);
  // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative, and lround is a call in code counted in ns
  const auto kandidat = static_cast<std::int64_t>(feld * 1e5 + 0.5);
  for (; i > 0 && werte.Kandidaten[i - 1] > kandidat; --i) werte.Kandidaten[i] = werte.Kandidaten[i - 1];
  werte.Kandidaten[i] = kandidat;
}

void KandidatenBilden(HSMvdeWerte& werte, float f) {
  const Umrechnungszeile* const zeile = UmrechnungszeileFuer(f);
  if (zeile == nullptr) return;
  const double verhaeltnis = Verhaeltnis(*zeile, f);
  double frequenzgang = 1;
  double p = konstant;
  for (int i = 0; i < zeile->anzahl; ++i) {
    const Umrechnung& u = zeile->umrechnungen[static_cast<std::size_t>(i)];
    if (u.p != p) frequenzgang = Frequenzgang(verhaeltnis, u.p);
    p = u.p;
    Merken(werte, Umrechnen(u, werte.Uss, frequenzgang));
  }
}

}  // namespace

std::span<const HSMvdeZeile> HSMvdeZeilen(std::int16_t grenzwerttyp) {
  switch (grenzwerttyp) {
    case GrenzwertAM:
      return SchwellenAM;
    case GrenzwertTV:
      return SchwellenTV;
    default:
      return SchwellenGSM;
  }
}

const Umrechnungszeile* UmrechnungszeileFuer(float f) {
  return ZeileFuer(Umrechnungen, f);
}

double Spitzenfeld(const Umrechnungszeile& zeile, std::size_t umrechnung, float Uss, float f) {
  const Umrechnung& u = zeile.umrechnungen.at(umrechnung);
  return Umrechnen(u, Uss, Frequenzgang(Verhaeltnis(zeile, f), u.p));
}

HSMvdeWerte HSMvde(float f, std::int16_t grenzwerttyp) {
  HSMvdeWerte werte;
  werte.ausserhalb = !(f >= 0.03F && f <= 2500.0F);
  if (werte.ausserhalb) return werte;
  werte.Uss = Schwelle(f, grenzwerttyp);
  if (werte.Uss == 0) return werte;

  KandidatenBilden(werte, f);
  if (werte.Anzahl > 0) {
    const double kleinster = static_cast<double>(werte.Kandidaten.front()) / 1e5;
    werte.Grenzwert = AlsSingle(kleinster * Effektiv);
  }
  return werte;
}

std::string Kandidatentext(std::int64_t hunderttausendstel) {
  constexpr std::size_t Stellen = 10;
  constexpr std::size_t Nachkommastellen = 5;
  std::string text = std::to_string(hunderttausendstel);
  if (text.size() < Stellen) text.insert(0, Stellen - text.size(), '0');
  text.insert(text.size() - Nachkommastellen, ".");
  return text;
}

}  // namespace vesk
