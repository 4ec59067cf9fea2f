#include "station/Formel.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "engine/Zahlen.h"
#include "station/Text.h"

namespace vesk {

namespace {

constexpr int Stellen = 6;  // significant digits of a result

template <typename... Genau>
std::string Text(double wert, Genau... genau) {
  std::array<char, 400> puffer{};  // longest fixed notation of a double
  char* const ende = puffer.data() + puffer.size();
  return {puffer.data(), std::to_chars(puffer.data(), ende, wert, std::chars_format::fixed, genau...).ptr};
}

/// A rounded number and the unit of its last significant digit.
struct Gerundet {
  std::string text;
  double einheit;
};

Gerundet Runden(double wert, int stellen) {
  if (wert == 0) return {"0", 1};
  const int nachkomma = stellen - 1 - static_cast<int>(std::floor(std::log10(std::abs(wert))));
  const double einheit = std::pow(10.0, -nachkomma);
  if (nachkomma >= 0) return {Text(wert, nachkomma), einheit};
  return {Text(std::round(wert / einheit), 0) + std::string(static_cast<std::size_t>(-nachkomma), '0'),
          einheit};
}

bool Ergibt(const Ausdruck& formel, const Gerundet& ergebnis) {
  double gedruckt = 0;
  std::from_chars(ergebnis.text.data(), ergebnis.text.data() + ergebnis.text.size(), gedruckt);
  return std::abs(Zahlenwert(formel) - gedruckt) < ergebnis.einheit;
}

Ausdruck Verkettet(Ausdruck::Art art, Ausdruck links, Ausdruck rechts) {
  if (links.art != art) return {art, {}, {std::move(links), std::move(rechts)}};
  links.teile.push_back(std::move(rechts));
  return links;
}

}  // namespace

std::string Dezimal(float wert) {
  std::array<char, 100> puffer{};
  char* const ende = puffer.data() + puffer.size();
  return {puffer.data(), std::to_chars(puffer.data(), ende, wert, std::chars_format::fixed).ptr};
}

std::string Dezimal(double wert) {
  return Text(wert);
}

bool IstDezimalzahl(const std::string& text) {
  const auto ziffern = [](std::string_view teil) {
    return !teil.empty() && teil.find_first_not_of("0123456789") == std::string_view::npos;
  };
  std::string_view rest(text);
  if (rest.starts_with('-')) rest.remove_prefix(1);
  const std::size_t punkt = rest.find('.');
  if (punkt == std::string_view::npos) return ziffern(rest);
  return ziffern(rest.substr(0, punkt)) && ziffern(rest.substr(punkt + 1));
}

std::string Dezimal(const std::string& getippt) {
  const std::string text(OhneBlanks(getippt));
  const float wert = Zahl(text);
  return IstDezimalzahl(text) ? text : Dezimal(wert);
}

Groesse Wert(const Zeichen& zeichen, const std::string& zahl) {
  return {zeichen.symbol, zeichen.index, zahl, zeichen.einheit};
}

Groesse Wert(const Zeichen& zeichen, float zahl) {
  return Wert(zeichen, Dezimal(zahl));
}

Ausdruck Term(Groesse groesse) {
  return {Ausdruck::Art::Groesse, std::move(groesse), {}};
}

Ausdruck Term(const Zeichen& zeichen, float zahl) {
  return Term(Wert(zeichen, zahl));
}

Ausdruck Term(double konstante) {
  return Term(Groesse{{}, {}, Dezimal(konstante), {}});
}

Ausdruck operator+(Ausdruck links, Ausdruck rechts) {
  return Verkettet(Ausdruck::Art::Summe, std::move(links), std::move(rechts));
}

Ausdruck operator-(Ausdruck links, Ausdruck rechts) {
  return Verkettet(Ausdruck::Art::Differenz, std::move(links), std::move(rechts));
}

Ausdruck operator*(Ausdruck links, Ausdruck rechts) {
  return Verkettet(Ausdruck::Art::Produkt, std::move(links), std::move(rechts));
}

Ausdruck operator/(Ausdruck zaehler, Ausdruck nenner) {
  return {Ausdruck::Art::Bruch, {}, {std::move(zaehler), std::move(nenner)}};
}

Ausdruck Wurzel(Ausdruck aus) {
  return {Ausdruck::Art::Wurzel, {}, {std::move(aus)}};
}

Ausdruck Hoch(Ausdruck basis, Ausdruck exponent) {
  return {Ausdruck::Art::Potenz, {}, {std::move(basis), std::move(exponent)}};
}

Ausdruck Ln(Ausdruck von) {
  return {Ausdruck::Art::Logarithmus, {}, {std::move(von)}};
}

double Zahlenwert(const Ausdruck& a) {
  if (a.art == Ausdruck::Art::Groesse) {
    double wert = 0;
    std::from_chars(a.groesse.zahl.data(), a.groesse.zahl.data() + a.groesse.zahl.size(), wert);
    return wert;
  }
  double wert = Zahlenwert(a.teile.front());
  if (a.art == Ausdruck::Art::Wurzel) return std::sqrt(wert);
  if (a.art == Ausdruck::Art::Logarithmus) return std::log(wert);
  for (std::size_t i = 1; i < a.teile.size(); ++i) {
    const double teil = Zahlenwert(a.teile[i]);
    switch (a.art) {
      case Ausdruck::Art::Summe:
        wert += teil;
        break;
      case Ausdruck::Art::Differenz:
        wert -= teil;
        break;
      case Ausdruck::Art::Produkt:
        wert *= teil;
        break;
      case Ausdruck::Art::Bruch:
        wert /= teil;
        break;
      default:
        wert = std::pow(wert, teil);
    }
  }
  return wert;
}

Gleichung Gleich(const Zeichen& ergebnis, Ausdruck formel, double wert) {
  Gerundet gerundet = Runden(wert, Stellen);
  for (int stellen = Stellen - 1; stellen > 0 && !Ergibt(formel, gerundet); --stellen) {
    gerundet = Runden(wert, stellen);
  }
  return {Wert(ergebnis, gerundet.text), std::move(formel)};
}

Gleichung Gleich(const Zeichen& ergebnis, Ausdruck formel, float wert) {
  return Gleich(ergebnis, std::move(formel), double{wert});
}

Gleichung Gleich(const Zeichen& ergebnis, double konstante) {
  return {Wert(ergebnis, Dezimal(konstante)), Term(konstante)};
}

Gleichung GleichImBlatt(const Zeichen& ergebnis, Ausdruck formel, const std::string& text, float wert) {
  constexpr double Hundertstel = 0.01;
  // What the user has typed may go on behind the number.
  const std::string zahl = Dezimal(text);
  if (Ergibt(formel, {zahl, Hundertstel})) return {Wert(ergebnis, zahl), std::move(formel)};
  return Gleich(ergebnis, std::move(formel), wert);
}

}  // namespace vesk
