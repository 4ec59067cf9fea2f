#pragma once
#include "persistence/Rueckfragen.h"
#include "persistence/Winkeldatei.h"
#include "station/Station.h"

/// The files of the angle page.
namespace vesk {

/// mnuWinkelLaden. Asks before a file takes the place of a table that the user has not saved.
void WinkelOeffnen(Station& station, Rueckfragen& rueckfragen);
/// The same with a file that is chosen already. False: it holds nothing, as the user was told, or he wants to
/// keep his table.
bool WinkelOeffnen(Station& station, Rueckfragen& rueckfragen, const std::filesystem::path& pfad);
/// Without a name it asks for one, and before it overwrites a file that does not hold this table.
void WinkelSpeichern(Station& station, Rueckfragen& rueckfragen);
void WinkelSpeichernUnter(Station& station, Rueckfragen& rueckfragen);

/// What a file holds takes the place of the present table.
void WinkelZeigen(Station& station, const GeleseneWinkeldaten& daten);

}  // namespace vesk
