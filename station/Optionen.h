#pragma once
#include <array>
#include <string>

#include "station/Handlung.h"

/// What the user does in the options window. A change of an option calculates at once.
namespace vesk {

/// Texts of the working record that the cable tab edits.
inline constexpr std::array Kabeltexte = {
    &Datenblattspalte::QRG,     &Datenblattspalte::KabelLaenge,
    &Datenblattspalte::D100,    &Datenblattspalte::Kabeldaempfung,
    &Datenblattspalte::Stecker, &Datenblattspalte::Gesamtdaempfung,
};
enum class Kabelfeld { QRG, KabelLaenge, D100, Kabeldaempfung, Stecker, Gesamtdaempfung };

/// As the window is loaded: "Alle" ticked, both factors 1.0, the working record empty, the cable selected.
void OptionenVorbelegen(Station& s, const Kataloge& k);

// Sendeart
Meldungen BetriebsartGeklickt(Station& s, const Kataloge& k, int index);
Meldungen ZyklusGeklickt(Station& s, const Kataloge& k, int index);
Meldungen GrenzwerttypGeklickt(Station& s, const Kataloge& k, int index);

// Kabel
Meldungen KabelGewaehlt(Station& s, const Kataloge& k, int index);
/// cmdGleich
Meldungen KabelGleich(Station& s, const Kataloge& k);
Meldungen KabelfeldGetippt(Station& s, const Kataloge& k, Kabelfeld feld, const std::string& text);
/// A press of the mouse empties all but connector and total loss.
Meldungen KabelfeldGeklickt(Station& s, const Kataloge& k, Kabelfeld feld);
/// Entry of the cable list that a record or the options window has selected; -1: none.
int Kabelindex(const Datenblattspalte& satz, const Kataloge& k);
int Kabelindex(const Station& s, const Kataloge& k);
/// The selected entry has no values of its own: the user types its loss per 100 m.
bool AnderesKabelGewaehlt(const Station& s, const Kataloge& k);
/// Factors and signal type in force into the working record; the factors also into the current column's.
void ArbeitssatzFaktoren(Station& s);
void FaktorenInSpalte(Station& s);

/// Red while the loss per 100 m of another cable is still to be typed.
void D100Faerben(Station& s, const Kataloge& k);
/// The losses of the cable tab belong to what is typed there, or there is no length.
bool KabelAktuell(const Station& s);
/// A record brings losses with what they were computed from.
void KabelstandMerken(Station& s);
/// Recomputes the cable's losses and passes the total on. Throws Laufzeitfehler.
void Kabeldaempfung(Station& s, const Kataloge& k);
/// The frequency of the main window goes to the cable; with a length its loss follows. Throws Laufzeitfehler.
void FrequenzUebergeben(Station& s, const Kataloge& k);
/// The cable tab's frequency was left.
Meldungen KabelfrequenzVerlassen(Station& s, const Kataloge& k, bool rechnen);

// Antennen
Meldungen AntenneGewaehlt(Station& s, const Kataloge& k, int index);
/// cmdAntenne
Meldungen AntenneNehmen(Station& s, const Kataloge& k);

// Winkel
/// The attenuation in the main direction of the calculation, and in the current column.
void WinkeldaempfungSetzen(Station& s, const std::string& text);
/// The nine attenuations of the working record into the current column's.
void WinkelInSpalte(Station& s);

/// The frame closes the window: columns go without its options. mnuFenster only hides it.
Meldungen OptionenSchliessen(Station& s, const Kataloge& k);
Meldungen OptionenVerbergen(Station& s, const Kataloge& k);

}  // namespace vesk
