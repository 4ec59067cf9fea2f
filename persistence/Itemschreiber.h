#pragma once
#include <cstdint>
#include <string>
#include <utility>

namespace vesk {

/// A text item is one line without double quotes: a line end becomes a blank, a quote an apostrophe.
std::string AlsItem(std::string text);

/// Collects the lines of a file in the style that Itemleser reads (Windows-1252, CR LF).
class Itemschreiber {
 public:
  void Text(const std::string& utf8);
  void Wahrheitswert(bool wert);
  void Ganzzahl(std::int16_t wert);
  void Zeilenende() { bytes_ += "\r\n"; }
  std::string Bytes() && { return std::move(bytes_); }

 private:
  void Trennen();

  std::string bytes_;
};

}  // namespace vesk
