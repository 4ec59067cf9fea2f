#pragma once

namespace vesk {

/// A row's range of frequencies in MHz. The lower end belongs to it and the upper one to the next row, unless
/// the regulation says otherwise.
struct Frequenzbereich {
  float von;
  float bis;
  bool ohneVon = false;
  bool mitBis = false;
};

/// The row of a table that the frequency (MHz) falls into, or null. The rows rise without a gap.
template <typename Zeilen>
constexpr auto ZeileFuer(const Zeilen& zeilen, float f) -> decltype(&*zeilen.begin()) {
  if (!(f >= zeilen.begin()->bereich.von)) return nullptr;
  for (const auto& zeile : zeilen) {
    if (f < zeile.bereich.bis || (zeile.bereich.mitBis && f == zeile.bereich.bis)) return &zeile;
  }
  return nullptr;
}

}  // namespace vesk
