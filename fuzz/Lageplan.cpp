#include "fuzz/Vorrat.h"
#include "persistence/Lageplandatei.h"

/// What was read of a plan is written and read again without any further change; a file that is refused gives
/// nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  const Lageplanlesung lesung = LageplanLesen({reinterpret_cast<const char*>(daten), laenge});
  if (!lesung.fehler.empty()) {
    Pruefen(lesung.plan == Lageplan() && lesung.hinweis.empty());
    return 0;
  }
  Pruefen(!Planueberschreitung(lesung.plan));
  const std::string geschrieben = LageplanBytes(lesung.plan);
  const Lageplanlesung nochmals = LageplanLesen(geschrieben);
  Pruefen(nochmals.fehler.empty() && nochmals.hinweis == lesung.hinweis && nochmals.plan == lesung.plan);
  Pruefen(LageplanBytes(nochmals.plan) == geschrieben);
  return 0;
}
