#include "rechnen/Zeilenleser.h"

#include <cstring>
#include <istream>
#include <stdexcept>

namespace vesk {

Zeilenleser::Zeilenleser(std::istream& quelle) : quelle_(quelle), block_(2 * Laengste) {}

bool Zeilenleser::Naechste(Zeile& zeile) {
  char* const anfang = block_.data() + von_;
  const std::size_t da = bis_ - von_;
  const auto* const umbruch = static_cast<const char*>(da > 0 ? std::memchr(anfang, '\n', da) : nullptr);
  if (umbruch == nullptr && da > Laengste) {
    verworfen_ = true;
    von_ = bis_ = 0;
    return false;
  }
  if (umbruch == nullptr && !(ende_ && (da > 0 || verworfen_))) return false;

  std::size_t laenge = umbruch != nullptr ? static_cast<std::size_t>(umbruch - anfang) : da;
  von_ += umbruch != nullptr ? laenge + 1 : laenge;
  const bool zuLang = verworfen_ || laenge > Laengste;
  verworfen_ = false;
  if (laenge > 0 && anfang[laenge - 1] == '\r') --laenge;
  zeile = {++nummer_, {anfang, laenge}, zuLang};
  return true;
}

bool Zeilenleser::Nachfuellen() {
  if (ende_) return false;
  std::memmove(block_.data(), block_.data() + von_, bis_ - von_);
  bis_ -= von_;
  von_ = 0;
  if (quelle_.peek() == std::istream::traits_type::eof()) {
    if (quelle_.bad()) throw std::runtime_error("Die Eingabe ließ sich nicht lesen.");
    ende_ = true;
    return true;
  }
  const auto gelesen =
      quelle_.readsome(block_.data() + bis_, static_cast<std::streamsize>(block_.size() - bis_));
  bis_ += static_cast<std::size_t>(gelesen);
  if (gelesen == 0) block_[bis_++] = static_cast<char>(quelle_.get());  // a stream without a buffer
  return true;
}

}  // namespace vesk
