#include "engine/Zahlen.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>

#include "engine/Laufzeitfehler.h"

namespace vesk {

namespace {

/// Whether a number that no double can hold is too large rather than too small: the decimal position of its
/// first digit that is not 0, plus the exponent. from_chars itself does not tell.
bool UeberEins(std::string_view zahl) {
  const std::size_t e = std::min(zahl.find_first_of("eE"), zahl.size());
  const std::string_view mantisse = zahl.substr(0, e);
  const std::size_t erste = mantisse.find_first_of("123456789");
  if (erste == std::string_view::npos) return false;
  const std::size_t punkt = std::min(mantisse.find('.'), mantisse.size());
  std::string_view exponent = zahl.substr(std::min(e + 1, zahl.size()));
  const bool negativ = exponent.starts_with('-');
  if (negativ || exponent.starts_with('+')) exponent.remove_prefix(1);
  // More than the digits of any text can make up for.
  constexpr std::int64_t Riesig = std::numeric_limits<std::int64_t>::max() / 4;
  std::int64_t wert = 0;
  const auto fehler = std::from_chars(exponent.data(), exponent.data() + exponent.size(), wert).ec;
  if (fehler == std::errc::result_out_of_range || wert > Riesig) return !negativ;
  const std::int64_t stelle = static_cast<std::int64_t>(punkt) - static_cast<std::int64_t>(erste);
  return stelle + (negativ ? -wert : wert) > 0;
}

/// A plain decimal, as nearly all are. With up to 15 digits its numerator and the power of ten below it are
/// exact in double, so their quotient is the nearest double, the one that from_chars gives. Empty: it is not
/// that plain.
std::optional<double> EinfacheZahl(std::string_view text) {
  constexpr std::size_t MeisteZiffern = 15;
  static constexpr std::array<double, MeisteZiffern + 1> Zehnerpotenz = {
      1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (text.empty() || text.size() > MeisteZiffern) return {};
  std::int64_t zaehler = 0;
  std::size_t punkt = text.size();
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char z = text[i];
    if (z >= '0' && z <= '9') {
      zaehler = zaehler * 10 + (z - '0');
    } else if (z == '.' && punkt == text.size()) {
      punkt = i;
    } else {
      return {};
    }
  }
  const std::size_t stellen = punkt < text.size() ? text.size() - punkt - 1 : 0;
  return static_cast<double>(zaehler) / Zehnerpotenz[stellen];
}

/// Rounds the decimal text `dezimal` ("123.456", no sign) to `stellen` places, halves away from zero.
std::string Runden(std::string_view dezimal, int stellen, char trenner) {
  const std::size_t punkt = std::min(dezimal.find('.'), dezimal.size());
  std::string ziffern(dezimal.substr(0, punkt));
  const std::string_view bruch = punkt < dezimal.size() ? dezimal.substr(punkt + 1) : std::string_view();
  const auto gewollt = static_cast<std::size_t>(stellen);
  ziffern.append(bruch.substr(0, gewollt));
  if (bruch.size() < gewollt) ziffern.append(gewollt - bruch.size(), '0');

  if (bruch.size() > gewollt && bruch[gewollt] >= '5') {
    std::size_t i = ziffern.size();
    while (i > 0 && ziffern[i - 1] == '9') ziffern[--i] = '0';
    if (i > 0) {
      ++ziffern[i - 1];
    } else {
      ziffern.insert(ziffern.begin(), '1');
    }
  }
  if (stellen > 0) ziffern.insert(ziffern.end() - stellen, trenner);
  return ziffern;
}

template <typename Zahltyp>
std::string FormatierenAllgemein(Zahltyp wert, int stellen, char trenner) {
  if (!std::isfinite(wert)) throw Laufzeitfehler(Fehlerart::Gleitkomma);
  // Longest fixed notation of a double: sign, 309 digits, or "0." and some 340 places.
  std::array<char, 400> puffer{};
  const auto ende =
      std::to_chars(puffer.data(), puffer.data() + puffer.size(), std::abs(wert), std::chars_format::fixed)
          .ptr;
  std::string text = Runden({puffer.data(), ende}, stellen, trenner);
  const bool null = std::none_of(text.begin(), text.end(), [](char z) { return z >= '1' && z <= '9'; });
  if (std::signbit(wert) && !null) text.insert(text.begin(), '-');
  return text;
}

}  // namespace

float Zahl(std::string_view text) {
  const bool minus = text.starts_with('-');
  if (const std::optional<double> einfach = EinfacheZahl(text.substr(minus ? 1 : 0))) {
    const auto single = static_cast<float>(*einfach);
    return minus ? -single : single;
  }
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  const bool negativ = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  // from_chars would also read "inf", "nan" and a second sign.
  if (text.empty() || std::string_view("0123456789.").find(text.front()) == std::string_view::npos) return 0;

  double wert = 0;
  const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
  if (fehler == std::errc::result_out_of_range && UeberEins({text.data(), ende})) {
    throw Laufzeitfehler(Fehlerart::Ueberlauf);
  }
  const auto single = static_cast<float>(wert);
  if (!std::isfinite(single)) throw Laufzeitfehler(Fehlerart::Ueberlauf);
  return negativ ? -single : single;
}

bool Positiv(std::string_view text) {
  try {
    return Zahl(text) > 0;
  } catch (const Laufzeitfehler&) {
    return text.find('-') == std::string_view::npos;
  }
}

std::string Formatieren(float wert) {
  return Formatieren(wert, 2, '.');
}

std::string Formatieren(float wert, int stellen, char trenner) {
  // The shortest decimal lies within 2^-24 of the single. Where the hundredths are farther than twice that
  // from a half, both round alike, and the single times 100, which is exact in double, can be rounded
  // directly.
  constexpr double Unschaerfe = 0x1p-23;
  constexpr double Groesste = 1e15;
  const double hundertstel = std::abs(static_cast<double>(wert)) * 100;
  if (stellen != 2 || !(hundertstel < Groesste)) return FormatierenAllgemein(wert, stellen, trenner);
  // NOLINTNEXTLINE(bugprone-incorrect-roundings): where the sum itself rounds, the test below turns it away
  const auto gerundet = static_cast<std::int64_t>(hundertstel + 0.5);
  const auto abgeschnitten = static_cast<double>(static_cast<std::int64_t>(hundertstel));
  if (std::abs(hundertstel - abgeschnitten - 0.5) <= hundertstel * Unschaerfe) {
    return FormatierenAllgemein(wert, stellen, trenner);
  }

  std::array<char, 24> puffer{'-'};
  char* const anfang = puffer.data() + 1;
  char* ende = std::to_chars(anfang, puffer.data() + puffer.size(), gerundet / 100).ptr;
  const auto rest = static_cast<char>(gerundet % 100);
  *ende++ = trenner;
  *ende++ = static_cast<char>('0' + rest / 10);
  *ende++ = static_cast<char>('0' + rest % 10);
  const bool minus = std::signbit(wert) && gerundet != 0;
  return {minus ? puffer.data() : anfang, ende};
}

std::string Formatieren(double wert, int stellen, char trenner) {
  return FormatierenAllgemein(wert, stellen, trenner);
}

double Log10(float wert) {
  if (!(wert > 0)) throw Laufzeitfehler(Fehlerart::Gleitkomma);
  constexpr double JeLn10 = 1 / std::numbers::ln10;
  return std::log(static_cast<double>(wert)) * JeLn10;
}

std::int16_t Gitterindex(std::int16_t spalte, std::int16_t zeile) {
  constexpr int Zeilen = 12;
  const int index = (spalte - 1) * Zeilen + (zeile - 1);
  if (index < std::numeric_limits<std::int16_t>::min() || index > std::numeric_limits<std::int16_t>::max()) {
    throw Laufzeitfehler(Fehlerart::Ueberlauf);
  }
  return static_cast<std::int16_t>(index);
}

}  // namespace vesk
