#pragma once
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Laufzeitfehler.h"

namespace vesk {

inline constexpr int KabelMax = 20;
inline constexpr int KabelFrequenzen = 12;
inline constexpr std::string_view AnderesKabel = "Anderes Kabel";

/// Grid of the cable table in MHz.
inline constexpr std::array<float, KabelFrequenzen> Kabelfrequenz = {1,   2,   5,   10,   20,   50,
                                                                     100, 200, 500, 1000, 2000, 5000};

/// One cable: loss in dB per 100 m at the grid frequencies, and on each interval between two of them the
/// power law loss = koeffizient * f^exponent (a straight line when both axes are logarithmic).
struct Kabel {
  std::string Kabelname;
  std::array<float, KabelFrequenzen> Kabelwert{};
  std::array<float, KabelFrequenzen - 1> Kabelexponent{};
  std::array<float, KabelFrequenzen - 1> Kabelkoeffizient{};
};

/// What became of Kabel.txt. However defective the file, the entries listed can be used, the last one always
/// being "Anderes Kabel": it has no coefficients and gives 0 dB, so the loss per 100 m that the user types is
/// taken instead.
struct Kabelkatalog {
  std::array<Kabel, KabelMax> kabel;
  int Kabelanzahl = 0;
  std::vector<std::string> liste;   ///< entries of the list, UTF-8
  int auswahl = -1;                 ///< entry to select; -1: none
  std::string Meldung;              ///< to be shown to the user; empty: none
  std::optional<Fehlerart> fehler;  ///< run-time error that ended the loading
  std::string fehlerstelle;         ///< file and entry that it is about
};

/// Exponents and coefficients from the twelve values. Throws Laufzeitfehler(Gleitkomma) for a value of 0.
void KoeffizientenBestimmen(Kabel& kabel);

/// The interval of the grid that f (MHz) is in, by its lower end, which belongs to it; 5000 MHz belongs to
/// the last one. None outside the grid.
std::optional<std::size_t> Kabelintervall(float f);

/// Loss in dB per 100 m of the list entry `auswahl` at `f` MHz; 0 for an entry without coefficients, -1000
/// with Pruefergebnis false outside 1 to 5000 MHz or without a selection. Throws Laufzeitfehler(Index) for an
/// entry beyond the table.
float KabelwertErmitteln(const Kabelkatalog& katalog, int auswahl, float f, bool& Pruefergebnis);

/// Loss in dB of `laenge` m with `d100` dB per 100 m.
float Kabelverlust(float d100, float laenge);

enum class D100Farbe { Unveraendert, Weiss, Rot };

/// The texts of the cable tab's fields.
struct Kabelfelder {
  std::string QRG{};
  std::string D100{};
  std::string KabelLaenge{};
  std::string Kabeldaempfung{};
  std::string Stecker{};
  std::string Gesamtdaempfung{};
  D100Farbe farbe = D100Farbe::Unveraendert;

  bool operator==(const Kabelfelder&) const = default;
};

/// Recomputes the losses in place. With length 0 nothing is touched: a total typed by hand stays.
void KabeldaempfungRechnen(const Kabelkatalog& katalog, int auswahl, Kabelfelder& felder);

}  // namespace vesk
