#include "persistence/Pfade.h"

#include <algorithm>
#include <system_error>

#include "station/Text.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

std::string Bytes(const std::u8string& text) {
  return {text.begin(), text.end()};
}

}  // namespace

fs::path PfadAusUtf8(std::string_view text) try {
  return std::u8string(text.begin(), text.end());
} catch (const std::system_error&) {
  return {};
}

std::string PfadAlsUtf8(const fs::path& pfad) {
  std::string text = Bytes(pfad.u8string());
  if constexpr (fs::path::preferred_separator != '/') std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

fs::path WirklicherPfad(const fs::path& pfad) {
  std::error_code fehler;
  fs::path wirklich = fs::weakly_canonical(fs::absolute(pfad, fehler), fehler);
  return fehler ? pfad : wirklich;
}

bool HatEndung(const fs::path& pfad, std::string_view endung) {
  return Kleinbuchstaben(PfadAlsUtf8(pfad.extension())) == endung;
}

bool Heisst(const fs::path& pfad, std::string_view name) {
  return Kleinbuchstaben(PfadAlsUtf8(pfad.filename())) == name;
}

std::string PfadZumZeigen(fs::path pfad) {
  return Bytes(pfad.make_preferred().u8string());
}

}  // namespace vesk
