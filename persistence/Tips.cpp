#include "persistence/Tips.h"

#include "persistence/Dateien.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Pfade.h"
#include "station/Text.h"

namespace vesk {

std::vector<std::string> TipsLesen(std::string_view datei) {
  constexpr std::string_view Leerraum = " \t\r";
  const bool utf8 = IstUtf8(datei);
  datei = OhneMarke(datei);

  std::vector<std::string> tips;
  while (!datei.empty()) {
    const std::size_t ende = datei.find('\n');
    std::string_view zeile = datei.substr(0, ende);
    datei.remove_prefix(ende == std::string_view::npos ? datei.size() : ende + 1);
    const std::size_t anfang = zeile.find_first_not_of(Leerraum);
    if (anfang == std::string_view::npos) continue;
    zeile = zeile.substr(anfang, zeile.find_last_not_of(Leerraum) - anfang + 1);
    tips.push_back(Anfang(utf8 ? std::string(zeile) : NachUtf8(zeile), grenzen::Tip));
  }
  return tips;
}

std::vector<std::string> TipsLaden(const std::filesystem::path& pfad) {
  const Gelesen datei = DateiLesen(pfad, grenzen::Tips);
  if (datei.status != Lesestatus::Fehler) return TipsLesen(datei.bytes);
  return {*WarumOhneInhalt(PfadAlsUtf8(pfad.filename()), datei)};
}

}  // namespace vesk
