#include "persistence/Tips.h"

#include "station/Text.h"

namespace vesk {

std::vector<std::string> TipsLesen(std::string_view datei) {
  constexpr std::string_view Leerraum = " \t\r";
  constexpr std::string_view Utf8Marke = "\xEF\xBB\xBF";
  const bool utf8 = IstUtf8(datei);
  if (datei.starts_with(Utf8Marke)) datei.remove_prefix(Utf8Marke.size());

  std::vector<std::string> tips;
  while (!datei.empty()) {
    const std::size_t ende = datei.find('\n');
    std::string_view zeile = datei.substr(0, ende);
    datei.remove_prefix(ende == std::string_view::npos ? datei.size() : ende + 1);
    const std::size_t anfang = zeile.find_first_not_of(Leerraum);
    if (anfang == std::string_view::npos) continue;
    zeile = zeile.substr(anfang, zeile.find_last_not_of(Leerraum) - anfang + 1);
    tips.push_back(utf8 ? std::string(zeile) : NachUtf8(zeile));
  }
  return tips;
}

}  // namespace vesk
