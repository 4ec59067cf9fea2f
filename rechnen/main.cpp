#include <clocale>
#include <iostream>
#include <vector>

#include "rechnen/Konsole.h"
#include "rechnen/Rechenbefehl.h"

namespace {

char Dezimaltrenner() {
  std::setlocale(LC_NUMERIC, "");
  const char trenner = *std::localeconv()->decimal_point;
  std::setlocale(LC_NUMERIC, "C");
  return trenner;
}

}  // namespace

int main(int anzahl, char** argumente) {
  // Without buffers of its own the standard input would be read byte by byte.
  std::ios::sync_with_stdio(false);
  [[maybe_unused]] const vesk::Konsole konsole;
  constexpr const char* Name = "vesk-rechnen";
  const std::vector<std::string> texte(argumente + std::min(anzahl, 1), argumente + anzahl);
  const vesk::Stroeme stroeme{std::cin, std::cout, std::cerr};
  return vesk::BefehlAusfuehren(Name, stroeme,
                                [&] { return vesk::Rechnen(Name, texte, Dezimaltrenner(), stroeme); });
}
