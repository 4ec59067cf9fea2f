#pragma once
#include <string>

#include "station/Handlung.h"

/// What the user does in the main window and to all windows.
namespace vesk {

Meldungen EingabeGetippt(Station& s, const Kataloge& k, Eingabefeld feld, const std::string& text);
/// A press of the mouse empties an input for a new value.
Meldungen EingabeGeklickt(Station& s, const Kataloge& k, Eingabefeld feld);

/// The field that the user was in before counts as left.
Meldungen FeldBetreten(Station& s, const Kataloge& k, Eingabefeld feld);
/// The field's text counts from now on; a changed frequency is handed on and calculated.
Meldungen FeldVerlassen(Station& s, const Kataloge& k, Eingabefeld feld);
/// The field that the user is in counts as left, without a calculation of its own: the caller calculates,
/// copies or saves. Throws Laufzeitfehler.
void Abschliessen(Station& s, const Kataloge& k);

/// cmdBerechnen
Meldungen BerechnenVerlangt(Station& s, const Kataloge& k);
/// cmdCopy: inputs and results into the first free column, the working record into its record. A column
/// copied in power mode holds power and distance in the same rows, in teal. Throws Laufzeitfehler(Ueberlauf)
/// for a number that a cell would cut.
Meldungen InFreieSpalteKopieren(Station& s, const Kataloge& k);
/// lblQRG, mnuAFu
Meldungen AFuUmschalten(Station& s, const Kataloge& k);
/// mnuAbstand
Meldungen AbstandUmschalten(Station& s, const Kataloge& k);
/// lblModus
Meldungen ModusGeklickt(Station& s, const Kataloge& k);
Meldungen TooltipsUmschalten(Station& s, const Kataloge& k);
Meldungen WarnmeldungenUmschalten(Station& s, const Kataloge& k);
/// mnuFenster
Meldungen FensterUmschalten(Station& s, const Kataloge& k);

/// The user has come back from another window of the program: no column is the current one.
Meldungen HauptfensterAktiviert(Station& s, const Kataloge& k);
/// mnuMoreOptions, mnuDatenblatt, mnuUser
Meldungen OptionenOeffnen(Station& s, const Kataloge& k);
Meldungen DatenblattOeffnen(Station& s, const Kataloge& k);
Meldungen BenutzerOeffnen(Station& s, const Kataloge& k);

/// Only says something.
Meldungen Sagen(Station& s, const Kataloge& k, const Hinweis& hinweis);

}  // namespace vesk
