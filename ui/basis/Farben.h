#pragma once
#include <QColor>

namespace vesk {

/// Colour from 0xBBGGRR, the byte order in which the program's colours are told.
constexpr QColor BGR(unsigned bgr) {
  return QColor(int(bgr & 0xFFU), int((bgr >> 8U) & 0xFFU), int((bgr >> 16U) & 0xFFU));
}

namespace farben {
inline constexpr QColor Weiss = BGR(0xFFFFFF);
inline constexpr QColor Rot = BGR(0x0000FF);           ///< missing or wrong input
inline constexpr QColor Gruen = BGR(0x00FF00);         ///< factor below 1
inline constexpr QColor HellGruen = BGR(0xC0FFC0);     ///< results without pacemaker
inline constexpr QColor HellRot = BGR(0xC0C0FF);       ///< HSM 306
inline constexpr QColor HellGelb = BGR(0xC0FFFF);      ///< HSM VDE
inline constexpr QColor HellCyan = BGR(0xFFFFC0);      ///< distance and powers in power mode
inline constexpr QColor Grau = BGR(0xC0C0C0);          ///< not defined at this frequency
inline constexpr QColor HellGrau = BGR(0xE0E0E0);      ///< neutral outputs
inline constexpr QColor Nahfeld = BGR(0xFF80FF);       ///< inside the near field
inline constexpr QColor Veraltet = BGR(0x606060);      ///< text of figures that are out of date
inline constexpr QColor HellViolett = BGR(0xFFC0FF);   ///< required personal data
inline constexpr QColor Spaltenmarke = BGR(0x80FF80);  ///< head of the current column
inline constexpr QColor Tuerkis = BGR(0xC0C000);       ///< text of a column computed backwards
}  // namespace farben

}  // namespace vesk
