#include <array>
#include <numbers>

#include "HSM.h"
#include "Laufzeitfehler.h"
#include "Zahlen.h"

namespace vesk {

namespace {

struct Abschnitt {
  double fu, fo;  // MHz
  double Uu, Uo;  // V
};

constexpr std::array<Abschnitt, 9> Schwellen306 = {{
    {0.05, 0.1, 0.022, 0.022},
    {0.1, 0.2, 0.022, 0.03},
    {0.2, 0.5, 0.03, 0.045},
    {0.5, 1, 0.045, 0.067},
    {1, 2, 0.067, 0.1},
    {2, 5, 0.1, 0.15},
    {5, 10, 0.15, 0.3},
    {10, 20, 0.3, 0.34},
    {20, 50, 0.34, 0.2},
}};

const Abschnitt& Suchen(float f) {
  for (const Abschnitt& abschnitt : Schwellen306) {
    if (f < static_cast<float>(abschnitt.fo)) return abschnitt;
  }
  return Schwellen306.back();
}

}  // namespace

HSM306Werte HSM306(float f) {
  if (!(f >= 0.05F && f <= 50.0F)) return {};
  const Abschnitt& a = Suchen(f);

  HSM306Werte werte;
  const double anteil = Log10(static_cast<float>(f / a.fu)) / Log10(static_cast<float>(a.fo / a.fu));
  werte.Uss = AlsSingle((a.Uo - a.Uu) * anteil + a.Uu);
  werte.Spitzenfeld = AlsSingle(static_cast<double>(werte.Uss) / f * 415);
  werte.Grenzwert = AlsSingle(werte.Spitzenfeld / std::numbers::sqrt2);
  return werte;
}

}  // namespace vesk
