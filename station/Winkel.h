#pragma once
#include <string>

#include "station/Handlung.h"

/// The angle page: nine sectors of a directional antenna.
namespace vesk {

enum class Winkelfeld { Antenne, Gewinn, Frequenz, AntEinPWR, Massstab };
const std::string& WinkelText(const Winkelseite& seite, Winkelfeld feld);

/// Inputs of the sector table as they stand now.
Winkeleingabe Winkeleingaben(const Station& s);
/// The figures of a sector belong to what stands there now. Its first EIRP may be the central calculation's.
bool SektorAktuell(const Station& s, std::size_t sektor);
bool EIRPAktuell(const Station& s, std::size_t sektor);
/// Text of a sector's EIRP field.
std::string EIRPText(const Station& s, std::size_t sektor);
/// Safety distance in m; none: not calculated, or no limit at the frequency.
std::optional<float> Sektorabstand(const Sektor& sektor, Winkelkurve kurve);
std::optional<float> Sektorabstand(const Station& s, std::size_t sektor, Winkelkurve kurve);

/// A table that the user has typed or changed, and that stands in no file and in no column of the sheet.
bool WinkelUngesichert(const Station& s);
/// The table as a file holds it.
Winkeldaten WinkeldatenDerSeite(const Station& s);

Meldungen WinkelGetippt(Station& s, const Kataloge& k, Winkelfeld feld, const std::string& text);
Meldungen WinkeldaempfungGetippt(Station& s, const Kataloge& k, std::size_t sektor, const std::string& text);
/// Command1
Meldungen SektorenBerechnen(Station& s, const Kataloge& k);
/// Double click
Meldungen WinkeldaempfungNehmen(Station& s, const Kataloge& k, std::size_t sektor);
/// mnuWinkelBeispiel
Meldungen WinkelBeispiel(Station& s, const Kataloge& k);
/// mnuWDelete
Meldungen WinkelLoeschen(Station& s, const Kataloge& k);

/// A table from a file takes the place of the present one, whose figures are gone.
void WinkelErsetzen(Station& s, const std::array<std::string, AnzahlSektoren>& daempfung);
/// The same with a table that has no file. Asks before it replaces one that the user has not saved.
Meldungen WinkelUebernehmen(Station& s, const std::array<std::string, AnzahlSektoren>& daempfung,
                            const std::string& herkunft);

}  // namespace vesk
