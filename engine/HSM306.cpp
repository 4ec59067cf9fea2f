#include <array>
#include <cmath>
#include <numbers>

#include "engine/HSM.h"
#include "engine/Laufzeitfehler.h"

namespace vesk {

namespace {

constexpr double Effektiv = 1 / std::numbers::sqrt2;  // effective value of a peak

constexpr double ln2 = std::numbers::ln2;
constexpr double ln2_5 = 0.91629073187415507;

constexpr std::array<HSM306Zeile, 9> Schwellen306 = {{
    {0.05, 0.1F, 0.022, 0.022, ln2},
    {0.1, 0.2F, 0.022, 0.03, ln2},
    {0.2, 0.5F, 0.03, 0.045, ln2_5},
    {0.5, 1.0F, 0.045, 0.067, ln2},
    {1, 2.0F, 0.067, 0.1, ln2},
    {2, 5.0F, 0.1, 0.15, ln2_5},
    {5, 10.0F, 0.15, 0.3, ln2},
    {10, 20.0F, 0.3, 0.34, ln2},
    {20, 50.0F, 0.34, 0.2, ln2_5},
}};

}  // namespace

const HSM306Zeile* HSM306ZeileFuer(float f) {
  if (!(f >= HSM306Von && f <= HSM306Bis)) return nullptr;
  for (const HSM306Zeile& zeile : Schwellen306) {
    if (f < zeile.fo) return &zeile;
  }
  return &Schwellen306.back();
}

HSM306Werte HSM306(float f) {
  const HSM306Zeile* const a = HSM306ZeileFuer(f);
  if (a == nullptr) return {};

  HSM306Werte werte;
  const double anteil = std::log(f / a->fu) / a->ln;
  werte.Uss = AlsSingle((a->Uo - a->Uu) * anteil + a->Uu);
  werte.Spitzenfeld = AlsSingle(static_cast<double>(werte.Uss) / f * Spitzenfeld306);
  werte.Grenzwert = AlsSingle(werte.Spitzenfeld * Effektiv);
  return werte;
}

}  // namespace vesk
