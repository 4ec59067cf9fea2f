#include "rechnen/Stapel.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

namespace {

/// The answer to a table, or nothing where its head is refused.
std::string Antwort(const std::string& tabelle, bool json) {
  std::istringstream ein(tabelle);
  std::ostringstream aus;
  vesk::Rechenaufruf aufruf;
  aufruf.json = json;
  aufruf.auftrag.werte.QRGText = "14";
  aufruf.auftrag.werte.PWRText = "100";
  try {
    vesk::StapelRechnen(aufruf, ',', {ein, aus, aus});
  } catch (const vesk::Eingabefehler&) {
    return {};
  }
  return aus.str();
}

}  // namespace

/// As a table or as objects, the same rows are answered, each in one line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  const std::string tabelle(reinterpret_cast<const char*>(daten), laenge);
  const std::string csv = Antwort(tabelle, false);
  const std::string json = Antwort(tabelle, true);
  const auto zeilen = [](const std::string& text) { return std::count(text.begin(), text.end(), '\n'); };
  if (zeilen(csv) != zeilen(json) + (csv.empty() ? 0 : 1)) std::abort();
  return 0;
}
