#pragma once
#include <QString>
#include <array>

#include "station/Baender.h"

/// What stands in the table of all bands.
namespace vesk {

// Columns of the table.
inline constexpr int Band = 0;
inline constexpr int Frequenz = 1;
inline constexpr int Grenzwert = 4;
inline constexpr int Nahfeld = 5;
inline constexpr int ErstesErgebnis = 6;
inline constexpr int Hinweisspalte = 9;
inline constexpr std::size_t Bandspalten = 10;

QString Kopftext(int spalte, Modus modus);
std::array<QString, Bandspalten> Zellen(const Bandzeile& zeile);
/// What is not in the table, or has no room there.
QString Zeilentext(const Bandzeile& zeile);

}  // namespace vesk
