#pragma once
#include <string>

#include "station/Handlung.h"

/// The operator's data.
namespace vesk {

/// Longest text of a field, in characters.
inline constexpr std::size_t MaxFeldlaenge = 32767;

enum class Pflicht { Nein, Ja, NurBeimSpeichern };
/// By the order of Benutzerfelder.
inline constexpr std::array Pflichtfelder = {
    Pflicht::Ja,   Pflicht::Ja, Pflicht::Ja, Pflicht::Nein,
    Pflicht::Nein, Pflicht::Ja, Pflicht::Ja, Pflicht::NurBeimSpeichern};

Meldungen BenutzerGetippt(Station& s, const Kataloge& k, std::size_t feld, const std::string& text);
/// The second letter of a changed German callsign decides the class.
void KlasseBestimmen(Station& s);

/// Marks the required fields. `drucken`: without the location, and the message asks. Nothing is missing: no
/// message.
Meldungen UserCheck(Station& s, bool drucken);

/// mnuUserDelete
Meldungen BenutzerLoeschen(Station& s, const Kataloge& k);
/// Empties all fields.
void BenutzerLeeren(Station& s);
Meldungen BenutzerVerbergen(Station& s, const Kataloge& k);

std::string TitelBenutzerfenster(const Station& s);
std::string TitelHauptfenster(const Station& s);
std::string TitelDatenblatt(const Station& s);
/// Footer of all printouts: the user's text and the program's own line.
std::string DruckFusszeile(const Station& s);

}  // namespace vesk
