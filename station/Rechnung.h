#pragma once
#include "station/Handlung.h"

/// Calculating, and the one truth about results: they belong to the inputs beside them, or they are out of
/// date.
namespace vesk {

/// What a calculation would be made from now.
Recheneingabe Eingaben(const Station& s);

/// The result shown is whole and belongs to what stands there now.
bool Aktuell(const Station& s);

/// Inputs and result may go into the data sheet: a column is free, and what is shown belongs together.
bool Kopierbar(const Station& s);

/// Frequency and power (or distance) are numbers above 0.
bool EingabenVollstaendig(const Station& s);

/// The central calculation. Without frequency or power it does nothing. A fault leaves the result as far as
/// it got; its message is the last one.
Meldungen Berechnen(Station& s);

/// Only the frequencies of a text (MHz), for the column heads. Empties a result of other frequencies. Throws
/// Laufzeitfehler.
Meldungen BandlogikZeigen(Station& s, const std::string& text);

/// WertAusgabeNull: no result is shown.
void AusgabenLeeren(Station& s);

/// Distance to power mode and back: no result and no power are left, the other inputs stay.
void switchLeistung(Station& s);

/// After an option has changed: calculates the main window, or the current column when the sheet takes
/// options into account.
Meldungen Neurechnen(Station& s, const Kataloge& k);

}  // namespace vesk
