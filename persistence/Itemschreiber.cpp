#include "persistence/Itemschreiber.h"

#include <algorithm>

#include "station/Text.h"

namespace vesk {

std::string AlsItem(std::string text) {
  if (text.find_first_of("\r\n\"") == std::string::npos) return text;
  const std::size_t crlf = 2;
  for (std::size_t i = text.find("\r\n"); i != std::string::npos; i = text.find("\r\n", i)) {
    text.replace(i, crlf, " ");
  }
  std::replace_if(
      text.begin(), text.end(), [](char z) { return z == '\r' || z == '\n'; }, ' ');
  std::replace(text.begin(), text.end(), '"', '\'');
  return text;
}

void Itemschreiber::Trennen() {
  if (!bytes_.empty() && bytes_.back() != '\n') bytes_ += ',';
}

void Itemschreiber::Text(const std::string& utf8) {
  Trennen();
  bytes_.append(1, '"').append(AlsItem(NachWindows1252(utf8))).append(1, '"');
}

void Itemschreiber::Wahrheitswert(bool wert) {
  Trennen();
  bytes_ += wert ? "#TRUE#" : "#FALSE#";
}

void Itemschreiber::Ganzzahl(std::int16_t wert) {
  Trennen();
  bytes_ += std::to_string(wert);
}

}  // namespace vesk
