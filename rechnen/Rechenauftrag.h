#pragma once
#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "engine/Berechnung.h"
#include "rechnen/Optionen.h"

namespace vesk {

/// What a station is given by, as options of the command line and as columns of a table.
enum class Angabe { QRG, PWR, Abstand, Gewinn, Daempfung, Winkel, Faktor, Typ, Exakt, Anzahl };
inline constexpr auto AnzahlAngaben = static_cast<std::size_t>(Angabe::Anzahl);
inline constexpr std::array<std::string_view, AnzahlAngaben> Angabenamen = {
    "qrg", "pwr", "abstand", "gewinn", "daempfung", "winkel", "faktor", "typ", "exakt"};

/// Texts as given, in the order of Angabe; empty: not given.
using Angaben = std::array<std::string_view, AnzahlAngaben>;

/// One calculation. The texts in `werte` carry a decimal point.
struct Rechenauftrag {
  Rechenwerte werte;
  Rechenart art;
};

/// Takes over what is given: a power also in place of a distance that stood there, and the other way round.
/// `striche` stands before the names in messages. Throws Eingabefehler.
void Uebernehmen(const Angaben& angaben, std::string_view striche, Rechenauftrag& auftrag);

/// Throws Eingabefehler when frequency or power (or distance) are missing.
void VollstaendigkeitPruefen(const Rechenauftrag& auftrag);

/// What `vesk rechnen` was asked for.
struct Rechenaufruf {
  Rechenauftrag auftrag;  ///< in a batch: what holds where a row tells nothing
  bool json = false;
  bool hilfe = false;
  std::optional<std::string> stapel;  ///< file of the batch; "-" is the standard input
};

/// Reads the arguments after "rechnen". Throws Eingabefehler.
Rechenaufruf RechenaufrufLesen(std::span<const std::string> argumente);

}  // namespace vesk
