#include "Itemleser.h"

#include <algorithm>

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

}  // namespace vesk
