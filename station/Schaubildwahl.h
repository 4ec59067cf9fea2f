#pragma once
#include <bitset>
#include <optional>
#include <vector>

namespace vesk {

/// Amateur bands, by the order of the band table.
inline constexpr std::size_t Bandplaetze = 32;
using Baenderwahl = std::bitset<Bandplaetze>;

/// The charts of the present station.
enum class Diagrammart { AbstandUeberLeistung, LeistungUeberAbstand, Kabel, Grenzwerte };
inline constexpr std::size_t AnzahlDiagramme = 4;

/// So many cables can be told apart in one chart.
inline constexpr std::size_t MaxKabelkurven = 5;

/// What the user wants to see of bands and charts.
struct Schaubildwahl {
  Baenderwahl baender;  ///< ticked, to be copied into columns
  Diagrammart diagramm = Diagrammart::AbstandUeberLeistung;
  std::optional<std::vector<int>> kabel{};  ///< entries of the cable list; none: the cable in use

  bool operator==(const Schaubildwahl&) const = default;
};

}  // namespace vesk
