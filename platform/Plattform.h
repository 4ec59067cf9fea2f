#pragma once
#include <QString>
#include <optional>

#include "engine/Hinweise.h"
#include "platform/Drucker.h"

/// What the windows need of the desktop. Tests put scripted implementations in place of the real ones.
namespace vesk {

class Meldungsboxen {
 public:
  virtual ~Meldungsboxen() = default;
  virtual Antwort Zeigen(const Hinweis& box) = 0;
};

/// `filter` in the form "User Dateien (*.dat)"; `endung` without a dot is added to a name that has none.
struct Dialogwahl {
  QString titel;
  QString filter;
  QString endung;
  QString verzeichnis;
  QString vorschlag;
};

/// Both return the full path, or nothing when the user cancels. Speichern asks before overwriting.
class Dateidialoge {
 public:
  virtual ~Dateidialoge() = default;
  virtual std::optional<QString> Oeffnen(const Dialogwahl& wahl) = 0;
  virtual std::optional<QString> Speichern(const Dialogwahl& wahl) = 0;
};

/// Name of the dynamic property that carries the help context number of a control, a window or a box.
inline constexpr const char* HilfekontextEigenschaft = "HelpContextID";

enum class Hilfebefehl { Kontext = 1, Beenden = 2, Inhalt = 3, HilfeBenutzen = 4 };

/// `datei` is the name of the help file ("F1.HLP", "Vesk32.HLP"); `kontext` a context number.
class Hilfe {
 public:
  virtual ~Hilfe() = default;
  virtual void Aufrufen(const QString& datei, Hilfebefehl befehl, int kontext) = 0;
};

/// Per-user values that outlive a run, e.g. section "Options", key "Show Tips at Startup".
class Benutzerspeicher {
 public:
  virtual ~Benutzerspeicher() = default;
  virtual std::optional<QString> Lesen(const QString& abschnitt, const QString& schluessel) = 0;
  virtual void Schreiben(const QString& abschnitt, const QString& schluessel, const QString& wert) = 0;
};

class Signalton {
 public:
  virtual ~Signalton() = default;
  virtual void Piep() = 0;
};

/// Shows a file with the desktop's program for it.
class Betrachter {
 public:
  virtual ~Betrachter() = default;
  /// False when there is none.
  virtual bool Oeffnen(const QString& datei) = 0;
};

/// Tells how far a long work is; shows itself only when it takes long.
class Fortschrittsanzeige {
 public:
  virtual ~Fortschrittsanzeige() = default;
  /// For one work that is called `titel`; it is over when the function is gone.
  virtual Fortschritt Beginnen(const QString& titel) = 0;
};

/// Everything of the platform that the windows are given, by reference.
struct Plattform {
  Meldungsboxen& boxen;
  Dateidialoge& dialoge;
  Hilfe& hilfe;
  Benutzerspeicher& speicher;
  Signalton& ton;
  Drucker& drucker;
  Betrachter& betrachter;
  Fortschrittsanzeige& fortschritt;
};

}  // namespace vesk
