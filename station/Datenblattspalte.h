#pragma once
#include <array>
#include <cstdint>
#include <string>

namespace vesk {

inline constexpr int AnzahlSpalten = 7;
inline constexpr int AnzahlZeilen = 12;
inline constexpr int AnzahlZellen = AnzahlSpalten * AnzahlZeilen;

/// Option record of one data-sheet column; the order is the order of the user's file (positions 1 to 28).
/// Texts are UTF-8, numbers in them carry a decimal point.
struct Datenblattspalte {
  std::string Modulationsfaktor;
  std::string Zyklusfaktor;
  std::string KabelLaenge;      ///< m
  std::string KabelIndex;       ///< selected entry of the cable list
  std::string Antenne;          ///< type
  std::string D100;             ///< dB per 100 m
  std::string Kabeldaempfung;   ///< dB
  std::string Stecker;          ///< dB
  std::string Gesamtdaempfung;  ///< dB
  std::string QRG;              ///< MHz, of the cable tab
  std::string Gewinn;           ///< dBi, taken with the antenna
  std::string Winkeldaempfung;  ///< dB, taken from the angle table
  std::string AbstandOhneHSM;   ///< m, at the last copy or recalculation
  std::string AbstandHSM306;
  std::string AbstandHSMvde;
  std::array<std::string, 9> Winkel;  ///< dB, the nine sectors of the angle table
  std::int16_t Grenzwerttyp = 0;
  std::array<std::string, 3> Reserve;  ///< positions 26 to 28, carried unchanged

  bool operator==(const Datenblattspalte&) const = default;
};

/// Rows of the data sheet, counted from 1.
enum Zeile : std::int16_t {
  ZeileHoehe = 1,
  ZeileRichtung,
  ZeileFrequenz,
  ZeileAntenne,
  ZeileBetriebsarten,
  ZeileLeistung,
  ZeileVerluste,
  ZeileGewinn,
  ZeileWinkel,
  ZeileOhneHSM,
  ZeileHSM306,
  ZeileHSMvde,
};

}  // namespace vesk
