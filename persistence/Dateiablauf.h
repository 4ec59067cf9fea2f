#pragma once
#include <filesystem>
#include <string>

#include "persistence/Dateistand.h"
#include "persistence/Rettung.h"
#include "persistence/Rueckfragen.h"
#include "persistence/UserDatei.h"
#include "station/Handlung.h"

namespace vesk {

/// The user's file from the start to the end of the program: reading, saving, other files, other callsigns.
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

 private:
  class Vorgang;
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

  void Leeren();
  void Einlesen(bool gewaehlt);
  void Auswerten(const Gelesen& datei, bool gewaehlt);
  Lesebericht BytesLesen(std::string_view bytes);
  void NichtGelesen(const Gelesen& datei);
  void Umwandeln(const Lesebericht& bericht);
  void AnderswoMelden();
  bool Brauchbar(const std::filesystem::path& pfad, const std::string& folge, bool ganz = false);
  bool InsProgrammverzeichnis(const std::filesystem::path& gewaehlt);
  void Zurueckholen(const Rettung::Fund& fund);
  void UserZurueckholen(const Rettung::Fund& fund);
  Rettung::Stand RettungErneuern();

  bool Sichern();
  void EingabenAbschliessen();
  bool SpeichernUnter();
  bool Schreiben(bool auchFremdes);
  bool FremdesUeberschreiben(const std::string& bytes, Dateistand::Ergebnis& ergebnis);
  bool AlteFassungBehalten();

  void Sagen(const std::string& text);
  void Sagen(const Meldungen& meldungen);
  bool Fehler(const std::string& text, const std::string& grund);
  bool Frage(const std::string& titel, const std::string& text);

  Station& station_;
  const Kataloge& kataloge_;
  Rueckfragen& rueckfragen_;
  Dateistand stand_;
  Rettung rettung_;
  Blatt gespeichert_;  ///< as it was last read or written
  std::filesystem::path anderswoGemeldet_;
  bool laeuft_ = false;
  bool beendet_ = false;
  bool alteFassungNoetig_ = false;  ///< the file on the disk holds what writing it would lose
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
