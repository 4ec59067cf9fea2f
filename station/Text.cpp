#include "station/Text.h"

#include <algorithm>
#include <array>

namespace vesk {

namespace {

/// Characters of the bytes 0x80 to 0x9F; all other bytes are their own code point.
constexpr std::array<char16_t, 32> OberesFeld = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t Ungueltig = 0xFFFFFFFF;

struct Zeichen {
  char32_t code;
  std::size_t laenge;
};

bool IstAscii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

/// The character at the head of a text that is not empty; a byte that begins none is `Ungueltig`.
Zeichen Erstes(std::string_view utf8) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char kopf = byte(0);
  if (kopf < 0x80) return {kopf, 1};
  const std::size_t laenge = kopf >= 0xF0 ? 4 : kopf >= 0xE0 ? 3 : 2;
  if (kopf < 0xC2 || kopf > 0xF4 || utf8.size() < laenge) return {Ungueltig, 1};
  char32_t code = kopf & (0x7FU >> laenge);
  for (std::size_t i = 1; i < laenge; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return {Ungueltig, 1};
    code = code << 6U | (byte(i) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> kleinstes = {0, 0, 0x80, 0x800, 0x10000};
  const bool ersatz = code >= 0xD800 && code <= 0xDFFF;
  if (code < kleinstes[laenge] || code > 0x10FFFF || ersatz) return {Ungueltig, 1};
  return {code, laenge};
}

char Byte(char32_t code) {
  const bool gleich = code < 0x80 || (code >= 0xA0 && code <= 0xFF);
  if (gleich) return static_cast<char>(code);
  const auto* platz = std::find(OberesFeld.begin(), OberesFeld.end(), code);
  return platz == OberesFeld.end() ? '?' : static_cast<char>(0x80 + (platz - OberesFeld.begin()));
}

/// Moves the 26 letters from `a` on and, behind the byte 0xC3, the 31 characters from `latin` on. Its 24th
/// is a sign of calculation.
std::string InSchreibung(std::string_view utf8, int a, int latin, int schritt) {
  std::string text(utf8);
  bool block = false;
  for (char& zeichen : text) {
    const int byte = static_cast<unsigned char>(zeichen);
    const int stelle = byte - (block ? latin : a);
    const bool gemeint = stelle >= 0 && (block ? stelle <= 30 && stelle != 23 : stelle < 26);
    if (gemeint) zeichen = static_cast<char>(byte + schritt);
    block = byte == 0xC3;
  }
  return text;
}

}  // namespace

std::string NachUtf8(std::string_view windows1252) {
  if (std::all_of(windows1252.begin(), windows1252.end(), IstAscii)) return std::string(windows1252);
  std::string utf8;
  utf8.reserve(windows1252.size() * 2);
  for (const char zeichen : windows1252) {
    const auto byte = static_cast<unsigned char>(zeichen);
    const char32_t code = byte >= 0x80 && byte < 0xA0 ? OberesFeld[byte - 0x80U] : byte;
    if (code < 0x80) {
      utf8 += zeichen;
    } else if (code < 0x800) {
      utf8 += static_cast<char>(0xC0U | code >> 6U);
      utf8 += static_cast<char>(0x80U | (code & 0x3FU));
    } else {
      utf8 += static_cast<char>(0xE0U | code >> 12U);
      utf8 += static_cast<char>(0x80U | (code >> 6U & 0x3FU));
      utf8 += static_cast<char>(0x80U | (code & 0x3FU));
    }
  }
  return utf8;
}

std::string NachWindows1252(std::string_view utf8) {
  if (std::all_of(utf8.begin(), utf8.end(), IstAscii)) return std::string(utf8);
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const Zeichen zeichen = Erstes(utf8);
    bytes += Byte(zeichen.code);
    utf8.remove_prefix(zeichen.laenge);
  }
  return bytes;
}

std::string OhneWindows1252(std::string_view utf8) {
  std::string zeichen;
  while (!utf8.empty()) {
    const Zeichen erstes = Erstes(utf8);
    if (erstes.code != '?' && Byte(erstes.code) == '?') zeichen += utf8.substr(0, erstes.laenge);
    utf8.remove_prefix(erstes.laenge);
  }
  return zeichen;
}

bool IstUtf8(std::string_view bytes) {
  bool mehrAlsAscii = false;
  while (!bytes.empty()) {
    const Zeichen zeichen = Erstes(bytes);
    if (zeichen.code == Ungueltig) return false;
    mehrAlsAscii = mehrAlsAscii || zeichen.laenge > 1;
    bytes.remove_prefix(zeichen.laenge);
  }
  return mehrAlsAscii;
}

std::size_t Zeichenzahl(std::string_view utf8) {
  const auto folgebytes = std::count_if(utf8.begin(), utf8.end(), [](char zeichen) {
    return (static_cast<unsigned char>(zeichen) & 0xC0U) == 0x80;
  });
  return utf8.size() - static_cast<std::size_t>(folgebytes);
}

std::string AlsWindows1252(std::string_view bytes) {
  return IstUtf8(bytes) ? NachWindows1252(OhneMarke(bytes)) : std::string(bytes);
}

std::string_view OhneMarke(std::string_view bytes) {
  constexpr std::string_view Reihenfolgemarke = "\xEF\xBB\xBF";
  if (bytes.starts_with(Reihenfolgemarke)) bytes.remove_prefix(Reihenfolgemarke.size());
  return bytes;
}

std::string Anfang(std::string_view utf8, std::size_t zeichen) {
  std::string text;
  for (; !utf8.empty() && zeichen > 0 && utf8[0] != '\r' && utf8[0] != '\n'; --zeichen) {
    const Zeichen erstes = Erstes(utf8);
    text += utf8.substr(0, erstes.laenge);
    utf8.remove_prefix(erstes.laenge);
  }
  return utf8.empty() ? text : text + "…";
}

std::string_view OhneBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t") + 1);
}

std::string Grossbuchstaben(std::string_view utf8) {
  return InSchreibung(utf8, 'a', 0xA0, -0x20);
}

std::string Kleinbuchstaben(std::string_view utf8) {
  return InSchreibung(utf8, 'A', 0x80, 0x20);
}

}  // namespace vesk
