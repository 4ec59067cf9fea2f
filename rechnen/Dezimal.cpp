#include "rechnen/Dezimal.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>
#include <optional>

namespace vesk {

namespace {

constexpr int Ziffern = 9;

/// Where a single is written without an exponent: below, an exponent is shorter; from 2^24 on it is an
/// integer, of which the fewest digits need not be all.
constexpr float KleinsteFeste = 1e-4F;
constexpr float GroessteFeste = 0x1p24F;

/// ziffern / 10^stellen, scaled to nine digits.
struct Dezimal {
  std::uint32_t ziffern;
  int stellen;
  int gueltige;  ///< digits before the zeros at the end
};

constexpr auto Zehnerpotenz = [] {
  std::array<double, 14> potenzen{1};
  for (std::size_t i = 1; i < potenzen.size(); ++i) potenzen[i] = potenzen[i - 1] * 10;
  return potenzen;
}();

double Zweierpotenz(int exponent) {
  return std::bit_cast<double>(static_cast<std::uint64_t>(exponent + 1023) << 52U);
}

/// Whether a number is so near to an integer that it may as well lie on its other side.
bool Unsicher(double zahl) {
  constexpr double Unschaerfe = 1e-5;
  return static_cast<std::int32_t>(zahl + Unschaerfe) != static_cast<std::int32_t>(zahl - Unschaerfe);
}

/// The decimal with the fewest digits that reads back as `wert`, and of those the nearest; KleinsteFeste <=
/// wert < GroessteFeste. Reckoned in double on nine digits: there the error is below a millionth of the last
/// one, and the singles on both sides are 6 to 120 of it away. (The one below a power of two is at half that
/// distance, but none of those in this range has a shorter decimal there.) What comes as near to a decision
/// as that error is not decided.
std::optional<Dezimal> Kuerzestes(float wert) {
  const int zweierexponent = static_cast<int>(std::bit_cast<std::uint32_t>(wert) >> 23U) - 127;
  const int zehnerexponent = (zweierexponent * 1233) >> 12;  // 1233 / 4096 is the logarithm of 2
  auto stellen = static_cast<std::size_t>(Ziffern - 1 - zehnerexponent);
  stellen -= wert * Zehnerpotenz[stellen] >= 1e9 ? 1 : 0;
  const double mitte = wert * Zehnerpotenz[stellen];
  const double halberAbstand = Zehnerpotenz[stellen] * Zweierpotenz(zweierexponent - 24);
  const double unten = mitte - halberAbstand;
  const double oben = mitte + halberAbstand;
  if (Unsicher(unten) || Unsicher(oben)) return {};

  static constexpr std::array<std::uint32_t, Ziffern + 1> Vielfache = {
      1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000};
  const auto erste = static_cast<std::uint32_t>(unten) + 1;
  const auto letzte = static_cast<std::uint32_t>(oben);
  const auto geht = [&](std::size_t n) { return letzte / Vielfache[n] * Vielfache[n] >= erste; };
  // One digit can always go, mostly two or three; adding them up spares the processor the guess.
  std::size_t gestrichen = std::size_t{1} + (geht(2) ? 1 : 0) + (geht(3) ? 1 : 0);
  while (gestrichen >= 3 && gestrichen < Ziffern && geht(gestrichen + 1)) ++gestrichen;
  const double gerundet = mitte / Zehnerpotenz[gestrichen] + 0.5;
  const std::uint32_t naechste = static_cast<std::uint32_t>(gerundet) * Vielfache[gestrichen];
  if (naechste < erste || naechste > letzte || Unsicher(gerundet)) return {};
  if (naechste == Vielfache[Ziffern]) return Dezimal{naechste / 10, static_cast<int>(stellen) - 1, 1};
  return Dezimal{naechste, static_cast<int>(stellen), Ziffern - static_cast<int>(gestrichen)};
}

/// Up to 16 characters as they lie in memory, the first one lowest. Put together here and stored at once.
__extension__ using Zeichenblock = unsigned __int128;
static_assert(std::endian::native == std::endian::little);

constexpr std::uint64_t Nullen = 0x3030303030303030U;

constexpr unsigned Bits(int zeichen) {
  return 8U * static_cast<unsigned>(zeichen);
}

/// The digits of a number below 10^8, reckoned side by side: two of four, four of two, eight of one.
std::uint64_t AchtZiffern(std::uint32_t zahl) {
  std::uint64_t teile = zahl / 10000 | static_cast<std::uint64_t>(zahl % 10000) << 32U;
  const std::uint64_t hunderter = ((teile * 10486) >> 20U) & 0x0000007F0000007FU;
  teile = hunderter | (teile - hunderter * 100) << 16U;
  const std::uint64_t zehner = ((teile * 103) >> 10U) & 0x000F000F000F000FU;
  teile = zehner | (teile - zehner * 10) << 8U;
  return teile | Nullen;
}

/// Without branches, since nobody can guess the size of the next number.
Dezimalschreiber::Text Auslegen(const Dezimal& zahl, char trenner) {
  constexpr std::uint32_t Erste = 100000000;
  const int ganze = std::max(Ziffern - zahl.stellen, 1);
  const int nullen = ganze - (Ziffern - zahl.stellen);
  const int laenge = nullen + zahl.gueltige;
  const auto teil = [](Zeichenblock folge, int zeichen) {
    return folge & ((Zeichenblock{1} << Bits(zeichen)) - 1);
  };
  const Zeichenblock ziffern =
      static_cast<Zeichenblock>(AchtZiffern(zahl.ziffern % Erste)) << Bits(1) | ('0' + zahl.ziffern / Erste);
  const Zeichenblock folge = ziffern << Bits(nullen) | teil(Nullen, nullen);
  const Zeichenblock zeichen = teil(folge, ganze) |
                               static_cast<Zeichenblock>(static_cast<unsigned char>(trenner)) << Bits(ganze) |
                               (folge >> Bits(ganze)) << Bits(ganze + 1);
  return {std::bit_cast<std::array<char, sizeof zeichen>>(zeichen),
          static_cast<std::uint32_t>(laenge > ganze ? laenge + 1 : ganze)};
}

/// What the library says is the shortest; large integers in full.
Dezimalschreiber::Text Allgemein(float wert, char trenner) {
  Dezimalschreiber::Text text;
  char* const anfang = text.zeichen.data();
  char* const platz = anfang + text.zeichen.size();
  const bool fest = wert >= KleinsteFeste && wert < GroessteFeste;
  char* ende = fest ? std::to_chars(anfang, platz, wert, std::chars_format::fixed).ptr
                    : std::to_chars(anfang, platz, wert).ptr;
  if (wert >= GroessteFeste && wert < 0x1p53F) {
    double gelesen = 0;
    std::from_chars(anfang, ende, gelesen);
    ende = std::to_chars(anfang, platz, static_cast<std::int64_t>(gelesen)).ptr;
  }
  std::replace(anfang, ende, '.', trenner);
  text.laenge = static_cast<std::uint32_t>(ende - anfang);
  return text;
}

}  // namespace

char* Dezimalschreiber::Schreiben(float wert, char* ziel) {
  constexpr std::uint32_t Streuung = 0x9E3779B1;  // 2^32 / golden ratio
  const auto bits = std::bit_cast<std::uint32_t>(wert);
  auto& [gemerkt, text] = zuletzt_[(bits * Streuung) >> 22U];
  if (gemerkt != bits || text.laenge == 0) {
    const bool fest = wert >= KleinsteFeste && wert < GroessteFeste;
    const std::optional<Dezimal> zahl = fest ? Kuerzestes(wert) : std::nullopt;
    text = zahl ? Auslegen(*zahl, trenner_) : Allgemein(wert, trenner_);
    gemerkt = bits;
  }
  std::memcpy(ziel, text.zeichen.data(), text.zeichen.size());
  return ziel + text.laenge;
}

}  // namespace vesk
