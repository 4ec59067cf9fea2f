#pragma once
#include <filesystem>
#include <string>

#include "persistence/Dateigrenzen.h"
#include "persistence/Dateistand.h"
#include "persistence/Rettung.h"
#include "persistence/Rueckfragen.h"
#include "persistence/UserDatei.h"
#include "station/Handlung.h"

namespace vesk {

/// The user's file from the start to the end of the program: reading, saving, other files, other callsigns.
/// The plan is a file beside it and shares its fate.
///
/// Nothing is lost: a saving that fails keeps the data, the modified flag and the old file; what another
/// program has written since is overwritten only when the user says so; a file that was not wholly
/// understood, or that somebody else has changed, is kept as "…-alt.dat" before it is replaced.
class Dateiablauf {
 public:
  Dateiablauf(Station& station, const Kataloge& kataloge, Rueckfragen& rueckfragen);

  /// At the start: the file in the program directory, with defaults for a missing one.
  void InitLaden();
  /// After InitLaden: asks whether what a crash has left is wanted back.
  void RettungAnbieten();

  /// mnuDateiLaden, mnuUserLaden: saves this file and goes on with another one.
  void UserLaden();
  /// The same with a file that is chosen already.
  void UserLaden(const std::filesystem::path& gewaehlt);
  /// mnuDateiSpeichern, mnuUserSpeichern
  void UserSpeichern();
  void UserSpeichernUnter();
  /// mnuNoChange: back to what the file holds.
  void AenderungenVerwerfen();
  /// mnuUserNeu
  void UserNeu();
  /// The user's window has been hidden: saves.
  void BenutzerVerborgen();
  /// In the midst of an action, while one of its questions is open.
  bool Beschaeftigt() const { return laeuft_; }
  /// Saves. True: the program may end; otherwise the user wants to go on.
  bool Beenden();
  /// Every few seconds: keeps what is not saved yet for the case of a crash.
  Rettung::Stand RettungSichern();
  /// Why nothing else than the station's data may be saved to `pfad`; `endung`: of the kind of file, without
  /// a dot.
  Fehlergrund WarumVergeben(const std::filesystem::path& pfad, std::string_view endung) const;

 private:
  class Vorgang;
  /// One of the files that are worked on.
  struct Arbeitsdatei {
    Dateistand stand;
    bool abgelehnt = false;          ///< it is there, but cannot be used
    bool alteFassungNoetig = false;  ///< on the disk it holds what writing it would lose
  };
  /// What an undoing would take away.
  struct Blatt {
    decltype(Station::Zellen) zellen;
    decltype(Station::Datenblattspalten) spalten;
    bool operator==(const Blatt&) const = default;
  };

  std::filesystem::path Pfad() const;
  void Wechseln(const std::filesystem::path& gewaehlt);
  void DateiWechseln(const std::filesystem::path& pfad);
  Dateiwahl Wahl(const std::string& titel, const std::string& vorschlag) const;
  Blatt BlattJetzt() const;
  bool NichtsZuVerlieren() const;
  bool VerwerfenBestaetigt();

  void Leeren();
  void Einlesen(bool gewaehlt);
  void Auswerten(const Gelesen& datei, bool gewaehlt);
  Lesebericht BytesLesen(std::string_view bytes);
  void NichtGelesen(const Gelesen& datei);
  void Umwandeln(const Lesebericht& bericht);
  void AnderswoMelden();
  bool Brauchbar(const std::filesystem::path& pfad, const std::string& folge, bool ganz = false);
  bool InsProgrammverzeichnis(const std::filesystem::path& gewaehlt);
  void PlanEinlesen(bool userdateiFehlt);
  bool PlanGesichert() const;
  bool PlanBrauchbar(const std::string& folge);
  void Zurueckholen(const Rettung::Fund& fund);
  void DatenZurueckholen(const Rettung::Fund& fund);
  void PlanZurueckholen(const std::string& bytes);
  Rettung::Stand RettungErneuern();

  bool Sichern();
  void EingabenAbschliessen();
  bool SpeichernUnter();
  bool UserSchreiben(bool auchFremdes);
  bool PlanSchreiben();
  /// The file `plan` has been copied from another directory; its picture has stayed there.
  static Fehlergrund BildortAnpassen(const std::filesystem::path& plan, const std::filesystem::path& vorher);
  bool Ersetzen(Arbeitsdatei& datei, const std::filesystem::path& pfad, const std::string& bytes,
                bool auchFremdes);
  bool DarfFremdesUeberschreiben(Arbeitsdatei& datei, const std::filesystem::path& pfad);
  bool AlteFassungBehalten(Arbeitsdatei& datei, const std::filesystem::path& pfad);

  void Sagen(const std::string& text);
  void Sagen(const Meldungen& meldungen);
  bool Fehler(const std::string& text, const std::string& grund);
  bool Frage(const std::string& titel, const std::string& text);

  Station& station_;
  const Kataloge& kataloge_;
  Rueckfragen& rueckfragen_;
  Arbeitsdatei user_{Dateistand(grenzen::UserDatei)};
  Arbeitsdatei plan_{Dateistand(grenzen::Lageplan)};
  std::filesystem::path planpfad_;
  Lageplan planGespeichert_;  ///< as it stands in the file `planpfad_`; empty: there need not be one
  Rettung rettung_;
  Blatt gespeichert_;  ///< as it was last read or written
  std::filesystem::path anderswoGemeldet_;
  bool laeuft_ = false;
  bool beendet_ = false;
};

/// Boxes let other events through; nothing else may begin in the midst of one action.
class Dateiablauf::Vorgang {
 public:
  explicit Vorgang(Dateiablauf& ablauf) : laeuft_(ablauf.laeuft_), frei_(!laeuft_) { laeuft_ = true; }
  ~Vorgang() { laeuft_ = !frei_; }
  Vorgang(const Vorgang&) = delete;
  Vorgang& operator=(const Vorgang&) = delete;
  explicit operator bool() const { return frei_; }

 private:
  bool& laeuft_;
  bool frei_;
};

}  // namespace vesk
