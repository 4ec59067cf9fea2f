#include <cmath>

#include "engine/Laufzeitfehler.h"
#include "engine/Zahlen.h"
#include "fuzz/Vorrat.h"
#include "station/Leistungsumrechnung.h"

namespace vesk {

namespace {

constexpr std::size_t DBm = 0;
constexpr std::size_t DBW = 1;
constexpr std::size_t Watt = 2;

/// A text that was written is one number from its first to its last character.
double Gelesen(const std::string& text, char trenner) {
  Pruefen(!text.empty() && text.find_first_not_of(std::string("-0123456789") + trenner) == std::string::npos);
  std::string punkt = text;
  std::replace(punkt.begin(), punkt.end(), trenner, '.');
  return std::strtod(punkt.c_str(), nullptr);
}

/// Each of the other two units has a text, and they say the same.
void UmgerechnetPruefen(const Leistungsumrechnung& u, std::size_t quelle, double wert, char trenner) {
  std::array<double, 3> werte{};
  for (const std::size_t einheit : {DBm, DBW, Watt}) {
    Pruefen(u.texte.at(einheit).empty() == (einheit == quelle));
    werte.at(einheit) = einheit == quelle ? wert : Gelesen(u.texte.at(einheit), trenner);
  }
  // Two decimals, and what a single of this size cannot tell apart.
  const double pegel = 0.0101 + std::abs(werte[DBm]) * 1e-6;
  Pruefen(std::abs(werte[DBm] - werte[DBW] - 30) <= pegel);
  if (quelle == Watt) {
    Pruefen(std::abs(10 * std::log10(wert) - werte[DBW]) <= pegel);
  } else {
    const double watt = std::pow(10.0, (quelle == DBm ? wert - 30 : wert) / 10);
    Pruefen(std::abs(werte[Watt] - watt) <= 0.00051 + watt * 1e-9);
  }
}

}  // namespace

}  // namespace vesk

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  Vorrat vorrat(daten, laenge);
  const std::size_t quelle = vorrat.Wahl(3);
  const char trenner = vorrat.Ja() ? ',' : '.';
  const std::string_view text = vorrat.Rest();
  float wert = 0;
  try {
    wert = Zahl(text);
  } catch (const Laufzeitfehler&) {
    return 0;
  }
  // Whatever can be read is converted or refused.
  const Leistungsumrechnung u = Umrechnen(static_cast<Leistungseinheit>(quelle), text, trenner);
  using enum Umrechnungsergebnis;
  Pruefen((u.ergebnis == Leer) == text.empty());
  Pruefen((u.ergebnis == NichtPositiv) == (!text.empty() && quelle == Watt && wert <= 0));
  Pruefen((u.ergebnis == ZuGross) == (quelle != Watt && wert > (quelle == DBm ? 100.0F : 70.0F)));
  if (u.ergebnis == Umgerechnet) {
    UmgerechnetPruefen(u, quelle, wert, trenner);
  } else {
    Pruefen(u.texte == Leistungsumrechnung().texte);
  }
  return 0;
}
