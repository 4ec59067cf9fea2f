#pragma once
#include "Hinweise.h"
#include "Plattform.h"

namespace vesk {

/// Shows the box and keeps its button code in `werte.Antwort`.
Antwort Zeigen(Meldungsboxen& boxen, Rechenwerte& werte, const Hinweis& hinweis);

/// "… wirklich löschen?" and its like: Ja/Nein with the question icon, Nein is the default.
bool Bestaetigt(Meldungsboxen& boxen, Rechenwerte& werte, const QString& titel, const QString& text);

}  // namespace vesk
