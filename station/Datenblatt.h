#pragma once
#include <array>
#include <string>
#include <string_view>

#include "station/Datenblattspalte.h"

namespace vesk {

/// Longest text of a cell, in characters.
inline constexpr std::size_t MaxZellenlaenge = 20;

/// Texts of the cells by grid index (see Gitterindex).
using Datenblattzellen = std::array<std::string, AnzahlZellen>;

struct Zeilenart {
  std::string_view beschriftung;
  bool numerisch;
};

/// The rows with their captions, first row first.
inline constexpr std::array<Zeilenart, AnzahlZeilen> Zeilenarten = {{
    {"Montagehöhe über Grund [m]", false},
    {"Strahlungsrichtung [Grad]", false},
    {"Frequenzband [MHz]", true},
    {"Antennenbezeichnung", false},
    {"Betriebsarten", false},
    {"Sendeleistung [W]", true},
    {"Kabelverluste [dB]", true},
    {"Antennengewinn [dBi]", true},
    {"Winkeldämpfung [dB]", true},
    {"Sicherheitsabstand ohne HSM [m]", true},
    {"Sicherheitsabstand HSM 306 [m]", true},
    {"Sicherheitsabstand HSM VDE [m]", true},
}};

/// Letter "A" to "G" of a column (1 to 7).
constexpr char Spaltenbuchstabe(std::int16_t spalte) {
  return static_cast<char>('A' + spalte - 1);
}
/// "Spalte A" to "Spalte G".
std::string Spaltenname(int spalte);
/// "Spalte A, Montagehöhe über Grund [m]"
std::string Zellentitel(int spalte, Zeile zeile);

/// A column (1 to 7) counts as free when its frequency or its power is empty.
bool SpalteFrei(const Datenblattzellen& zellen, std::int16_t spalte);

/// Letter "A" to "G" of the first free column; empty when none is free.
std::string NaechsteFreieSpalte(const Datenblattzellen& zellen);

/// Record of a cleared column: factors "1.00", signal type AM, positions 26 to 28 "1", "2", "3".
Datenblattspalte LeereSpalte();

}  // namespace vesk
