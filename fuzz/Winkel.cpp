#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "persistence/Winkeldatei.h"
#include "station/Sektoren.h"
#include "station/Text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  const auto gelesen = vesk::WinkelLesen({reinterpret_cast<const char*>(daten), laenge});
  const vesk::Winkeldaten tabelle{gelesen.antenne.value_or(""), gelesen.gewinn.value_or(""),
                                  gelesen.frequenz.value_or(""), gelesen.daempfung};

  // What was written and read again is what was read, apart from characters that the file cannot hold. Bytes
  // that happen to be UTF-8 as well would be taken for that.
  const std::string geschrieben = vesk::WinkelSchreiben(tabelle);
  if (vesk::IstUtf8(geschrieben)) return 0;
  const auto nochmals = vesk::WinkelLesen(geschrieben);
  if (!nochmals.antenne || !nochmals.gewinn || !nochmals.frequenz) std::abort();
  const vesk::Winkeldaten zweite{*nochmals.antenne, *nochmals.gewinn, *nochmals.frequenz, nochmals.daempfung};
  if (vesk::WinkelSchreiben(zweite) != geschrieben) std::abort();

  vesk::Grenzwerte grenzwerte;
  grenzwerte.ohneHSM = 27.5F;
  const auto ergebnis = vesk::SektorenRechnen({"100", tabelle.gewinn, tabelle.daempfung}, grenzwerte);
  if (!ergebnis.fehler && ergebnis.sektoren.size() != vesk::AnzahlSektoren) std::abort();
  return 0;
}
