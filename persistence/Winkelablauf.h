#pragma once
#include <filesystem>
#include <string>

#include "persistence/Dateigrenzen.h"
#include "persistence/Dateistand.h"
#include "persistence/Rueckfragen.h"
#include "persistence/Winkeldatei.h"
#include "station/Station.h"

namespace vesk {

/// The files of the angle page.
///
/// Nothing is lost: a saving that fails keeps the table and the old file; a file that holds another table is
/// overwritten only when the user says so; one that somebody else has written, or that a table does not
/// reproduce, is kept as "…-alt.ang" before it is replaced.
class Winkelablauf {
 public:
  Winkelablauf(Station& station, Rueckfragen& rueckfragen) : station_(station), rueckfragen_(rueckfragen) {}

  /// mnuWinkelLaden. Asks before a file takes the place of a table that the user has not saved.
  void Oeffnen();
  /// The same with a file that is chosen already. False: it holds nothing, as the user was told, or he wants
  /// to keep his table.
  bool Oeffnen(const std::filesystem::path& pfad);
  /// Without a name it asks for one.
  void Speichern();
  void SpeichernUnter();

 private:
  Dateiwahl Wahl(const char* titel) const;
  bool Verwerfbar();
  void Lesen(const std::filesystem::path& pfad);
  void DateiNennen(const std::filesystem::path& pfad, bool vorhanden);
  void Schreiben(const std::filesystem::path& pfad, bool gefragt);
  bool Ersetzen(const std::filesystem::path& pfad, const std::string& bytes, bool gefragt);
  bool DarfErsetzen(const std::filesystem::path& pfad, const std::string& bytes, bool fremd, bool gefragt);
  bool Fehler(const std::filesystem::path& pfad, const std::string& was, const std::string& grund);

  Station& station_;
  Rueckfragen& rueckfragen_;
  Dateistand stand_{grenzen::Winkel};
};

/// What a file holds takes the place of the present table.
void WinkelZeigen(Station& station, const GeleseneWinkeldaten& daten);

}  // namespace vesk
