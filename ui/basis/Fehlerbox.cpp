#include "Fehlerbox.h"

namespace vesk {

using namespace Qt::StringLiterals;

Antwort BoxZeigen(Meldungsboxen& boxen, Rechenwerte& werte, const Box& box) {
  const Antwort antwort = boxen.Zeigen(box);
  werte.Antwort = static_cast<std::int16_t>(antwort);
  return antwort;
}

void Fehlerbox(Meldungsboxen& boxen, Rechenwerte& werte, const QString& meldung, const QString& titel) {
  BoxZeigen(boxen, werte,
            {.titel = titel.isEmpty() ? u"Vesk - Fehlermeldung"_s : titel,
             .text = meldung,
             .symbol = Symbol::Ausrufezeichen,
             .knoepfe = Knoepfe::OK});
}

}  // namespace vesk
