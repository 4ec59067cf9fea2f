#include "Meldung.h"

namespace vesk {

namespace {

Antwort ZeigenUndMerken(Meldungsboxen& boxen, Rechenwerte& werte, const Box& box) {
  const Antwort antwort = boxen.Zeigen(box);
  werte.Antwort = static_cast<std::int16_t>(antwort);
  return antwort;
}

}  // namespace

Antwort Zeigen(Meldungsboxen& boxen, Rechenwerte& werte, const Hinweis& hinweis) {
  return ZeigenUndMerken(
      boxen, werte,
      {QString::fromStdString(hinweis.titel), QString::fromStdString(hinweis.text), Symbol::Ausrufezeichen,
       hinweis.frage ? Knoepfe::JaNein : Knoepfe::OK, Antwort::Ja});
}

bool Bestaetigt(Meldungsboxen& boxen, Rechenwerte& werte, const QString& titel, const QString& text) {
  const Box box{titel, text, Symbol::Frage, Knoepfe::JaNein, Antwort::Nein};
  return ZeigenUndMerken(boxen, werte, box) == Antwort::Ja;
}

}  // namespace vesk
