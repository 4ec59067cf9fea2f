#include "persistence/Winkeldatei.h"

#include <algorithm>
#include <vector>

#include "station/Text.h"

namespace vesk {

namespace {

constexpr std::size_t Eintraege = 3 + AnzahlSektoren;

/// Adds the values of one line.
void ZeileLesen(std::string_view zeile, std::vector<std::string_view>& werte) {
  zeile = OhneBlanks(zeile);
  while (zeile.starts_with('"')) {
    zeile.remove_prefix(1);
    const std::size_t ende = std::min(zeile.find('"'), zeile.size());
    werte.push_back(zeile.substr(0, ende));
    zeile.remove_prefix(std::min(ende + 1, zeile.size()));
    zeile = OhneBlanks(zeile);
    if (!zeile.starts_with(',')) return;
    zeile = OhneBlanks(zeile.substr(1));
  }
  werte.push_back(zeile);
}

std::vector<std::string_view> WerteLesen(std::string_view bytes) {
  // Blank lines at the end are no values.
  bytes = bytes.substr(0, bytes.find_last_not_of(" \t\r\n") + 1);
  std::vector<std::string_view> werte;
  while (!bytes.empty() && werte.size() < Eintraege) {
    const std::size_t ende = std::min(bytes.find_first_of("\r\n"), bytes.size());
    ZeileLesen(bytes.substr(0, ende), werte);
    bytes.remove_prefix(ende);
    if (!bytes.empty()) bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : 1);
  }
  return werte;
}

void ZeileSchreiben(std::string& text, std::string wert) {
  std::replace(wert.begin(), wert.end(), '"', '\'');
  text += '"' + wert + "\"\r\n";
}

/// What is left of a file without the signs that only set its values apart.
std::string OhneTrennzeichen(std::string text) {
  std::erase_if(text,
                [](char z) { return std::string_view(" \t\r\n,\"[]").find(z) != std::string_view::npos; });
  return text;
}

/// Whether a file of this table says all that `text` says; `bytes` is what `text` was before it got the
/// character set.
bool StehtWiederDrin(std::string_view bytes, const std::string& text, const GeleseneWinkeldaten& daten) {
  const std::string neu = WinkelSchreiben(
      {daten.antenne.value_or(""), daten.gewinn.value_or(""), daten.frequenz.value_or(""), daten.daempfung});
  const bool jedesZeichen = text == bytes || bytes.ends_with(NachUtf8(text));
  return jedesZeichen && OhneTrennzeichen(text) == OhneTrennzeichen(neu);
}

}  // namespace

GeleseneWinkeldaten WinkelLesen(std::string_view bytes) {
  const std::string text = AlsWindows1252(bytes);
  const std::vector<std::string_view> werte = WerteLesen(text);
  GeleseneWinkeldaten daten;
  auto naechster = werte.begin();
  if (naechster != werte.end() && naechster->starts_with('[')) {
    daten.antenne = NachUtf8(naechster->substr(1, naechster->find(']') - 1));
    ++naechster;
  }
  if (naechster != werte.end()) daten.gewinn = NachUtf8(*naechster++);
  if (naechster != werte.end()) daten.frequenz = NachUtf8(*naechster++);
  for (std::string& wert : daten.daempfung) {
    if (naechster != werte.end()) wert = NachUtf8(*naechster++);
  }
  daten.ganz = StehtWiederDrin(bytes, text, daten);
  return daten;
}

std::string WinkelSchreiben(const Winkeldaten& daten) {
  std::string name = daten.antenne;
  std::replace(name.begin(), name.end(), '[', '(');
  std::replace(name.begin(), name.end(), ']', ')');
  std::string text;
  ZeileSchreiben(text, '[' + name + ']');
  ZeileSchreiben(text, daten.gewinn);
  ZeileSchreiben(text, daten.frequenz);
  for (const std::string& wert : daten.daempfung) ZeileSchreiben(text, wert);
  return NachWindows1252(text);
}

}  // namespace vesk
