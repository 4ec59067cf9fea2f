#pragma once
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace vesk {

enum class Leistungseinheit : std::size_t { DBm, DBW, Watt };

/// Why a conversion wrote nothing, or that it did.
enum class Umrechnungsergebnis { Leer, Umgerechnet, ZuGross, NichtPositiv };

struct Leistungsumrechnung {
  Umrechnungsergebnis ergebnis = Umrechnungsergebnis::Leer;
  std::array<std::string, 3> texte;  ///< by Leistungseinheit; the source's own stays empty
};

/// Converts the typed `text`. Levels get two decimals, watts three, after `trenner`. Above 100 dBm or 70 dBW
/// (10 MW) and at 0 W and below nothing is converted; watts have no upper limit.
/// Throws Laufzeitfehler(Ueberlauf) for a number beyond the range of single.
Leistungsumrechnung Umrechnen(Leistungseinheit quelle, std::string_view text, char trenner);

}  // namespace vesk
