#include "persistence/Itemleser.h"

#include <algorithm>
#include <charconv>

namespace vesk {

namespace {

// The carriage return of CR LF counts as a blank before the line feed.
constexpr std::string_view Leerzeichen = " \t\r";

bool IstTrenner(char zeichen) {
  return zeichen == ',' || zeichen == '\n';
}

/// The next separator from `ab` on, or the end.
std::size_t Trennstelle(std::string_view text, std::size_t ab) {
  const auto* anfang = text.begin() + static_cast<std::ptrdiff_t>(ab);
  return static_cast<std::size_t>(std::find_if(anfang, text.end(), IstTrenner) - text.begin());
}

std::string_view OhneLeerzeichenAmEnde(std::string_view text, std::string_view zeichen) {
  return text.substr(0, text.find_last_not_of(zeichen) + 1);
}

bool GleichBuchstaben(std::string_view item, std::string_view gross) {
  const auto gleich = [](char a, char b) { return a == b || (a >= 'a' && a <= 'z' && a - 'a' + 'A' == b); };
  return std::equal(item.begin(), item.end(), gross.begin(), gross.end(), gleich);
}

template <typename Zahl>
std::optional<Zahl> GanzeZahl(std::string_view item) {
  Zahl wert = 0;
  const auto [ende, fehler] = std::from_chars(item.data(), item.data() + item.size(), wert);
  if (fehler != std::errc() || ende != item.data() + item.size()) return std::nullopt;
  return wert;
}

/// Whether nothing but blanks stands between `ab` and the next separator or the end.
bool GleichTrenner(std::string_view text, std::size_t ab) {
  const std::size_t platz = text.find_first_not_of(Leerzeichen, ab);
  return platz == std::string_view::npos || IstTrenner(text[platz]);
}

}  // namespace

Itemleser::Itemleser(std::string_view bytes) : rest_(OhneLeerzeichenAmEnde(bytes, " \t\r\n")) {}

std::optional<std::string_view> Itemleser::Naechstes() {
  if (AmEnde()) return std::nullopt;
  rest_.remove_prefix(std::min(rest_.find_first_not_of(Leerzeichen), rest_.size()));
  if (!rest_.empty() && rest_.front() == '"') return Gequotetes();
  const std::size_t trenner = Trennstelle(rest_, 0);
  const std::string_view item = rest_.substr(0, trenner);
  BisNachTrenner(trenner);
  return OhneLeerzeichenAmEnde(item, Leerzeichen);
}

std::string_view Itemleser::Gequotetes() {
  const std::string_view text = rest_.substr(1);
  const std::size_t quote = text.find('"');
  const std::size_t zeilenende = text.substr(0, quote).find('\n');
  bool geschlossen = quote != std::string_view::npos;
  if (geschlossen && zeilenende != std::string_view::npos) {
    // A quote at the head of a later line with text behind it opens that line's item.
    const std::size_t davor = text.find_last_not_of(Leerzeichen, quote - 1);
    geschlossen = text[davor] != '\n' || GleichTrenner(text, quote + 1);
  }
  const std::size_t ende = std::min(geschlossen ? quote : zeilenende, text.size());
  BisNachTrenner(std::min(1 + ende + (geschlossen ? 1U : 0U), rest_.size()));
  const std::string_view item = text.substr(0, ende);
  return geschlossen ? item : OhneLeerzeichenAmEnde(item, Leerzeichen);
}

void Itemleser::BisNachTrenner(std::size_t ab) {
  rest_.remove_prefix(std::min(Trennstelle(rest_, ab) + 1, rest_.size()));
}

std::optional<bool> AlsWahrheitswert(std::string_view item) {
  if (GleichBuchstaben(item, "#TRUE#")) return true;
  if (GleichBuchstaben(item, "#FALSE#")) return false;
  const auto zahl = GanzeZahl<int>(item);
  return zahl ? std::optional(*zahl != 0) : std::nullopt;
}

std::optional<std::int16_t> AlsGanzzahl(std::string_view item) {
  return GanzeZahl<std::int16_t>(item);
}

}  // namespace vesk
