#include "station/Leistungsumrechnung.h"

#include <cmath>

#include "engine/Zahlen.h"

namespace vesk {

namespace {

constexpr float HoechstwertDBm = 100;
constexpr float HoechstwertDBW = 70;
constexpr float DBmJeDBW = 30;  // level of 1 W over 1 mW

std::string Pegel(float db, char trenner) {
  return Formatieren(db, 2, trenner);
}

std::string Pegel(double db, char trenner) {
  return Formatieren(db, 2, trenner);
}

std::string Watt(double dbw, char trenner) {
  return Formatieren(std::pow(10.0, dbw / 10), 3, trenner);
}

}  // namespace

Leistungsumrechnung Umrechnen(Leistungseinheit quelle, std::string_view text, char trenner) {
  if (text.empty()) return {};
  const float wert = Zahl(text);
  switch (quelle) {
    case Leistungseinheit::DBm:
      if (wert > HoechstwertDBm) return {Umrechnungsergebnis::ZuGross, {}};
      return {Umrechnungsergebnis::Umgerechnet,
              {"", Pegel(wert - DBmJeDBW, trenner), Watt(double(wert) - DBmJeDBW, trenner)}};
    case Leistungseinheit::DBW:
      if (wert > HoechstwertDBW) return {Umrechnungsergebnis::ZuGross, {}};
      return {Umrechnungsergebnis::Umgerechnet,
              {Pegel(wert + DBmJeDBW, trenner), "", Watt(double(wert), trenner)}};
    case Leistungseinheit::Watt:
      break;
  }
  if (!(wert > 0)) return {Umrechnungsergebnis::NichtPositiv, {}};
  const double dbw = 10 * Log10(wert);
  return {Umrechnungsergebnis::Umgerechnet, {Pegel(dbw + DBmJeDBW, trenner), Pegel(dbw, trenner), ""}};
}

}  // namespace vesk
