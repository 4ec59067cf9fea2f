#include "persistence/Tips.h"

#include "fuzz/Vorrat.h"
#include "persistence/Dateigrenzen.h"
#include "station/Text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  const std::string_view bytes(reinterpret_cast<const char*>(daten), laenge);
  const std::vector<std::string> tips = TipsLesen(bytes);
  Pruefen(tips.size() <= static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1);
  std::size_t zeichen = 0;
  for (const std::string& tip : tips) {
    Pruefen(!tip.empty() && tip.find('\n') == std::string::npos);
    Pruefen(std::string_view(" \t\r").find(tip.front()) == std::string_view::npos);
    // A long one is cut, and says so with a character of its own.
    Pruefen(Zeichenzahl(tip) <= grenzen::Tip + 1);
    // UTF-8 that the file's own character set, or the file itself, can hold.
    const bool ausDatei = bytes.find(tip.substr(0, tip.rfind("…"))) != std::string_view::npos;
    Pruefen(ausDatei || NachUtf8(NachWindows1252(tip)) == tip);
    zeichen += Zeichenzahl(tip);
  }
  Pruefen(zeichen <= bytes.size() + tips.size());
  return 0;
}
