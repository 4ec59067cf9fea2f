#pragma once
#include <QString>
#include <filesystem>

#include "Dateistand.h"
#include "Rettung.h"
#include "UserDatei.h"

namespace vesk {

struct Plattform;

/// What the file flow needs of the windows; the tying place implements it. Everything else the flow reads
/// from and writes to `Zustand`, which the windows keep up to date.
class Dateifenster {
 public:
  virtual ~Dateifenster() = default;

  /// Puts the four check marks of the main window's menu into `einstellungen`.
  virtual void SchalterLesen(Einstellungen& einstellungen) const = 0;
  /// The input in focus counts as left (class of a changed callsign). Before every saving.
  virtual void Abschliessen() = 0;

  /// `Zustand` was read anew: fill the user's fields, the cells (in black), the check marks and the tints of
  /// the columns that `bericht` names. No handler answers to that, nothing counts as changed.
  virtual void StandZeigen(const Lesebericht& bericht) = 0;
  /// After StandZeigen, but not at the start: caption of the frequency and tooltips follow the marks, no
  /// column is the current one, the caption of the copy button is brought up to date.
  virtual void NachLadenAuffrischen() = 0;
  virtual void TitelSetzen(const QString& benutzer, const QString& haupt, const QString& datenblatt) = 0;

  virtual void BenutzerfensterVerbergen() = 0;
  /// Empties the user's fields and shows their window (frmUser::NeuBeginnen).
  virtual void BenutzerNeuBeginnen() = 0;
  /// Asks and clears the sheet; false when the user declined.
  virtual bool DatenblattLoeschen() = 0;
};

/// The user's file from the start to the end of the program: reading, saving, other files, other callsigns.
///
/// The tying place sets ProgrammVerzeichnis, UserVerzeichnis and Arbeitsverzeichnis and calls InitLaden at
/// the start. Menus: Laden, Speichern (UserSpeichern after UserCheck), UserSpeichernUnter,
/// AenderungenVerwerfen, UserNeu. frmUser::verborgen goes to BenutzerfensterVerborgen, so whoever shows that
/// window saves nothing himself. Before the program ends, Beenden is asked.
///
/// Nothing is lost: a saving that fails keeps the data, the modified flag and the old file; what another
/// program has written since is overwritten only when the user says so; a file that was not wholly
/// understood, or that somebody else has changed, is kept as "…-alt.dat" before it is replaced.
class Dateiablauf {
 public:
  Dateiablauf(Zustand& zustand, Plattform& plattform, Dateifenster& fenster);

  /// Reads the current file, with defaults for a missing one and migration of an old one.
  void InitLaden();
  /// Writes if something has changed and hides the user window. True: nothing is left to be saved.
  bool UserSpeichern();
  /// UserSpeichern on the user's demand: a new callsign that is still missing is asked for.
  void Speichern();
  void UserSpeichernUnter();
  /// Lets the user choose another file, saves this one and takes the other one's name; false: nothing
  /// changed. InitLaden has to follow.
  bool UserLaden();

  /// UserLaden and what follows from it (mnuDateiLaden, mnuUserLaden).
  void Laden();
  /// mnuNoChange
  void AenderungenVerwerfen();
  /// mnuUserNeu
  void UserNeu();

  void BenutzerfensterVerborgen();
  /// Saves. True: the program may end; otherwise the user wants to go on.
  bool Beenden();

  /// Keeps what is not saved yet for the case of a crash; to be called every few seconds.
  void RettungSichern();
  /// After the first InitLaden: asks whether what a crash has left is wanted back.
  void RettungAnbieten();

 private:
  std::filesystem::path Pfad() const;
  void DateiUebernehmen();
  std::string Bytes() const;
  void NichtGelesen(const Gelesen& datei);
  void Umwandeln(const Lesebericht& bericht);
  void NeuLesenUndAuffrischen();
  bool Schreiben(bool auchFremdes);
  bool FremdesUeberschreiben(const std::string& bytes, Dateistand::Ergebnis& ergebnis);
  bool AlteFassungBehalten();
  bool SpeichernUnter(const QString& vorschlag);
  bool InsProgrammverzeichnis(const std::filesystem::path& gewaehlt);
  bool NichtsZuVerlieren() const;
  void TitelSetzen();
  void AnderswoMelden();
  bool Fehler(const std::string& text, const std::string& grund);
  bool Frage(const QString& titel, const QString& text);

  Zustand& zustand_;
  Plattform& plattform_;
  Dateifenster& fenster_;
  Dateistand stand_;
  Rettung rettung_;
  std::filesystem::path anderswoGemeldet_;
  bool liest_ = false;
  bool speichert_ = false;
  bool beendet_ = false;
  bool dateiGewaehlt_ = false;      ///< the next InitLaden reads a file just chosen and rewrites it
  bool alteFassungNoetig_ = false;  ///< the file on the disk holds what writing it would lose
  /// The data are those of a callsign that has no file yet; the current file is another callsign's and must
  /// not be written.
  bool neuesRufzeichen_ = false;
};

}  // namespace vesk
