#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <span>

#include "engine/HSM.h"
#include "engine/Laufzeitfehler.h"
#include "engine/Rechenwerte.h"

namespace vesk {

namespace {

constexpr double Effektiv = 1 / std::numbers::sqrt2;  // effective value of a peak
constexpr double Freiraum = 376.99111848;             // wave impedance of free space, 120 pi Ohm

/// Threshold U0 * (f / f0) ^ p from the end of the row before up to `bis`; p = 0 is a constant.
struct Abschnitt {
  float bis;  // MHz
  bool einschliesslich;
  double U0;  // V; 0: none
  double f0;  // MHz
  double p;
};

constexpr double konstant = 0;
constexpr float ohneEnde = std::numeric_limits<float>::infinity();

constexpr std::array<Abschnitt, 10> SchwellenAM = {{
    {0.63F, false, 0.059, 1, konstant},
    {0.79F, false, 0.059, 0.63, 1.29},
    {1.0F, false, 0.079, 1, konstant},
    {1.3F, false, 0.079, 1.0, 1.084},
    {1.7F, false, 0.105, 1, konstant},
    {7.0F, false, 0.105, 1.7, 1.51},
    {22.0F, false, 0.89, 1, konstant},
    {79.0F, false, 0.89, 22, -1.71},
    {100.0F, true, 0.1, 1, konstant},
    {ohneEnde, true, 0, 1, konstant},
}};

constexpr std::array<Abschnitt, 8> SchwellenTV = {{
    {79.0F, false, 0, 1, konstant},
    {144.0F, false, 0.13, 79, 0.6},
    {200.0F, false, 0.186, 144, 4.4},
    {240.0F, false, 0.789, 200, -4.7},
    {500.0F, false, 0.335, 1, konstant},
    {600.0F, false, 0.335, 500, -3.8},
    {1100.0F, true, 0.168, 600, 0.6},
    {ohneEnde, true, 0, 1, konstant},
}};

constexpr std::array<Abschnitt, 6> SchwellenGSM = {{
    {850.0F, false, 0, 1, konstant},
    {1200.0F, false, 0.358, 1, konstant},
    {1800.0F, true, 0.358, 1200, 5.7},
    {2000.0F, false, 3.61, 1, konstant},
    {2500.0F, true, 3.61, 2000, -3.0},
    {ohneEnde, true, 0, 1, konstant},
}};

std::span<const Abschnitt> Schwellen(std::int16_t grenzwerttyp) {
  switch (grenzwerttyp) {
    case GrenzwertAM:
      return SchwellenAM;
    case GrenzwertTV:
      return SchwellenTV;
    default:
      return SchwellenGSM;
  }
}

float Schwelle(float f, std::int16_t grenzwerttyp) {
  for (const Abschnitt& a : Schwellen(grenzwerttyp)) {
    if (f < a.bis || (a.einschliesslich && f == a.bis)) {
      if (a.p == konstant) return static_cast<float>(a.U0);
      // A falling curve turns its fraction over instead of its sign, as the standard writes it.
      const double verhaeltnis = a.p > 0 ? f / a.f0 : a.f0 / f;
      return AlsSingle(a.U0 * std::pow(verhaeltnis, std::abs(a.p)));
    }
  }
  return 0;
}

/// Sorts a candidate (V/m) in, at the five decimals of its text, which is the precision of the limit.
void Merken(HSMvdeWerte& werte, double feld) {
  auto i = static_cast<std::size_t>(werte.Anzahl++);
  // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative, and lround is a call in code counted in ns
  const auto kandidat = static_cast<std::int64_t>(feld * 1e5 + 0.5);
  for (; i > 0 && werte.Kandidaten[i - 1] > kandidat; --i) werte.Kandidaten[i] = werte.Kandidaten[i - 1];
  werte.Kandidaten[i] = kandidat;
}

/// Conversion of the threshold into peak field strengths, by the frequency.
void KandidatenBilden(HSMvdeWerte& werte, float f) {
  const double U = werte.Uss;
  const double X = 3.0 / f;
  if (f < 3.0F) {
    Merken(werte, U * 183.43 * X);
  } else if (f < 9.5F) {
    Merken(werte, U * 183.43 * X);
    Merken(werte, U * 196.03538161 * X * X);
    Merken(werte, U * 520 * std::pow(X, 2.85));
  } else if (f < 200.0F) {
    Merken(werte, U * 0.052 * Freiraum);
    Merken(werte, U * 19.6);
  } else if (f < 400.0F) {
    const double anstieg = std::pow(f / 200.0, 2.94);
    Merken(werte, anstieg * U * 19.603538161);
    Merken(werte, anstieg * U * 19.6);
  } else if (f < 1500.0F) {
    Merken(werte, U * 0.4 * Freiraum);
    Merken(werte, U * 150);
  } else if (f < 2500.0F) {
    const double x = f / 1500.0;
    const double anstieg = x * x * x;
    Merken(werte, anstieg * U * 150.796447392);
    Merken(werte, anstieg * U * 150);
  }
}

}  // namespace

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
