#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "persistence/Kabeldatei.h"

namespace {

/// Whatever the file, every entry of the list can be calculated with.
void Benutzen(const vesk::Kabelkatalog& katalog, int auswahl) {
  for (const char* mhz : {"0.5", "1", "144", "5000"}) {
    vesk::Kabelfelder felder{.QRG = mhz, .D100 = "3", .KabelLaenge = "20", .Stecker = "0.5"};
    try {
      vesk::KabeldaempfungRechnen(katalog, auswahl, felder);
    } catch (const vesk::Laufzeitfehler&) {
      continue;
    }
    if (felder.Gesamtdaempfung.empty()) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  const vesk::Kabelkatalog katalog = vesk::KabelLaden({reinterpret_cast<const char*>(daten), laenge});
  const auto anzahl = static_cast<int>(katalog.liste.size());
  // The cables and "Anderes Kabel".
  if (anzahl != katalog.Kabelanzahl + 1 || katalog.Kabelanzahl > vesk::KabelMax) std::abort();
  if (katalog.liste.back() != vesk::AnderesKabel || katalog.auswahl >= katalog.Kabelanzahl) std::abort();
  for (int auswahl = -1; auswahl < anzahl; ++auswahl) Benutzen(katalog, auswahl);
  return 0;
}
