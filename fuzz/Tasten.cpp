#include "engine/Laufzeitfehler.h"
#include "engine/Tastenfilter.h"
#include "engine/Zahlen.h"
#include "fuzz/Vorrat.h"

namespace vesk {

namespace {

constexpr int Rueckschritt = 8;
constexpr int Enter = 13;

/// What a key does to a text with the cursor at its end.
void Tippen(int zeichen, Tastenmarken& marken, std::string& text) {
  const Tastenmarken vorher = marken;
  const Filterantwort antwort = KeyPress(zeichen, marken);
  const bool minus = antwort.zeichen == '-';
  Pruefen(!minus || vorher.MinusErlaubt);
  Pruefen(marken.MinusErlaubt == minus && marken.EnterGedrueckt == (zeichen == Enter));
  Pruefen(antwort.piep == (antwort.zeichen == 0 && zeichen != Enter));
  Pruefen(antwort.zeichen == 0 || antwort.zeichen == zeichen || (zeichen == ',' && antwort.zeichen == '.'));
  if (antwort.zeichen == Rueckschritt) {
    if (!text.empty()) text.pop_back();
  } else if (antwort.zeichen != 0) {
    text += static_cast<char>(antwort.zeichen);
  }
}

/// Nothing but digits, points and minus signs gets through, so whatever was typed is read to its end or to a
/// sign or point too many.
void TextPruefen(const std::string& text) {
  Pruefen(text.find_first_not_of("-.0123456789") == std::string::npos);
  try {
    const float wert = Zahl(text);
    Pruefen(Positiv(text) == (wert > 0));
  } catch (const Laufzeitfehler& fehler) {
    constexpr std::size_t KuerzesterUeberlauf = 39;  // digits of a number beyond single
    Pruefen(fehler.art == Fehlerart::Ueberlauf && text.size() >= KuerzesterUeberlauf);
  }
}

}  // namespace

}  // namespace vesk

/// Keys one after the other; the field is entered anew at a zero byte, a wide character follows a 0xFF.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  Vorrat vorrat(daten, laenge);
  Tastenmarken marken;
  std::string text;
  while (!vorrat.Leer()) {
    const auto byte = vorrat.Bits<std::uint8_t>();
    if (byte == 0) {
      marken.MinusErlaubt = true;
    } else {
      Tippen(byte == 0xFF ? vorrat.Bits<int>() : byte, marken, text);
    }
    TextPruefen(text);
  }
  return 0;
}
