#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Laufzeitfehler.h"

namespace vesk {

inline constexpr std::size_t AntennenBaender = 9;

/// One band of an antenna; the texts are cut to the width of their field in the catalogue.
struct Antennenband {
  std::string kennung;   ///< see Bandkennung; never empty
  std::string gewinn;    ///< dBi, two decimals
  std::string elemente;  ///< of a helix its length in cm; "0": not stated
};

struct Antenne {
  std::string hersteller;
  std::string typ;
  std::string art;
  std::vector<Antennenband> baender;  ///< at most AntennenBaender
};

/// What became of Antennen.txt. Entries read before an error stay, the defective one included.
struct Antennenkatalog {
  std::vector<Antenne> Antennen;
  std::vector<std::string> zeilen;  ///< one list line per antenna; the maker stands on its first one only
  std::string Meldung;              ///< to be shown to the user; empty: none
  std::optional<Fehlerart> fehler;  ///< run-time error that ended the loading
};

/// Characters of a list line, and those of them that hold the maker.
inline constexpr std::size_t AntennenSpalten = 100;
inline constexpr int HerstellerSpalten = 9;

/// Head of the list lines and of the bands beside them.
std::string Antennenkopf();

/// What choosing an antenna means at a frequency.
struct Antennenwahl {
  std::vector<std::string> zeilen;    ///< of the band list
  int markiert = -1;                  ///< line of the matching band
  std::optional<std::string> gewinn;  ///< dBi; no value: the gain stays as it was
  bool Passt() const { return markiert >= 0; }
};

Antennenwahl AntenneWaehlen(const Antenne& antenne, std::string_view QRGText);

/// Narrows the antenna list: every word of the entry must occur in maker, type or kind, whatever its case, or
/// be a frequency of one of the antenna's bands ("yagi 144").
class Antennensuche {
 public:
  explicit Antennensuche(const std::vector<Antenne>& antennen);
  /// One flag per antenna. No word at all: every antenna.
  std::vector<bool> Treffer(std::string_view eingabe) const;

 private:
  struct Eintrag {
    std::string text;
    std::vector<std::string> kennungen;
  };
  std::vector<Eintrag> eintraege_;
};

}  // namespace vesk
