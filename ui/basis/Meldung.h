#pragma once
#include "Hinweise.h"
#include "Plattform.h"

namespace vesk {

/// Shows the box and keeps its button code in `werte.Antwort`.
Antwort Zeigen(Meldungsboxen& boxen, Rechenwerte& werte, const Hinweis& hinweis);

/// "… wirklich löschen?" and its like: Ja/Nein with the question icon, Nein is the default.
bool Bestaetigt(Meldungsboxen& boxen, Rechenwerte& werte, const QString& titel, const QString& text);

/// Runs the handler of a user's event: a run-time error ends it and is shown, and the program goes on.
template <typename Tun>
void Abgefangen(Meldungsboxen& boxen, Rechenwerte& werte, Tun tun) {
  try {
    tun();
  } catch (const Laufzeitfehler& fehler) {
    Zeigen(boxen, werte, Fehlermeldung(fehler.art));
  }
}

}  // namespace vesk
