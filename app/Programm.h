#pragma once
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <memory>

#include "app/Dateiabwurf.h"
#include "app/Verzeichnisse.h"
#include "persistence/Dateiablauf.h"
#include "persistence/Rueckfragen.h"
#include "persistence/Winkelablauf.h"
#include "station/Verlauf.h"
#include "ui/basis/Ablauf.h"
#include "ui/info/Hilfetaste.h"
#include "ui/main/Tastenwege.h"
#include "ui/main/frmVesk.h"

class QWindow;

namespace vesk {

class frmBaender;
class frmDatenblatt;
class frmDiagramme;
class frmLageplan;
class frmInfo;
class frmLstg;
class frmOptions;
class frmTip;
class frmUser;
class frmVorschau;
struct Mappe;
struct Plattform;

/// The running program: turns what the user did into a function call on the station, shows the station in
/// every window, and says what is to be said. Windows exist from when they are first needed.
class Programm : public QObject, public Ablauf, private Rueckfragen {
  Q_OBJECT
 public:
  Programm(Station& station, Plattform& plattform, const Verzeichnisse& verzeichnisse);
  ~Programm() override;

  /// Opens the program as the user starts it.
  void Starten();
  /// Saves and announces the end; the user may go on when something cannot be saved.
  void Beenden();
  /// Asked from outside: leaves what stands open, saves without asking and announces the end. What cannot be
  /// saved is kept as for a crash; when that fails, too, the program goes on.
  void EndeVerlangt();
  /// Keeps what is not saved yet for the case of a crash; runs by itself every few seconds.
  void RettungSichern();

  frmVesk& Hauptfenster() { return hauptfenster_; }
  frmOptions& Optionen();
  frmDatenblatt& Datenblatt();
  frmUser& Benutzerfenster();
  frmLstg& Leistungsumrechnung();
  frmVorschau& Vorschau();
  frmBaender& Baender();
  frmDiagramme& Diagramme();
  frmLageplan& Lageplan();

  void Tun(const Handlung& handlung) override;
  void TunBeimTippen(const QObject& feld, const Handlung& handlung) override;
  void TunBeimVerlassen(const Handlung& handlung) override;
  void Befehlen(Befehl befehl) override;
  void DateiOeffnen(const QString& pfad) override;
  void Hinzeigen(const Papierort& ort) override;

 Q_SIGNALS:
  /// The event loop may end with this exit code: 0, or 1 when something is kept as for a crash.
  void beendet(int rueckgabe);

 private:
  Antwort Fragen(const Hinweis& hinweis) override;
  std::optional<std::filesystem::path> ZumOeffnen(const Dateiwahl& wahl) override;
  std::optional<std::filesystem::path> ZumSpeichern(const Dateiwahl& wahl) override;

  /// How an action goes into what can be taken back.
  using Merken = std::function<void(const Station& vorher)>;
  Meldungen Ausfuehren(const Handlung& handlung, const Merken& merken);
  void Zuruecknehmen(bool (Verlauf::*weg)(Station&));
  void KatalogeErneuern();
  void DateiMerken();
  void Endeschritt();
  void Schliessen(int rueckgabe);
  void Zeigen();
  void Sagen(const Meldungen& meldungen);
  void AufgeschobenesSagen();
  void HauptfensterAktiviert(QWindow* jetzt);
  /// What the preview shows.
  Mappe Papiere() const;
  void TipZeigen();
  void InfoZeigen();

  Station& station_;
  Plattform& plattform_;
  std::filesystem::path ersatz_;  ///< of catalogues and tips that cannot stand in the program directory
  Meldungen startmeldungen_;
  Kataloge kataloge_;
  frmVesk hauptfenster_;
  std::unique_ptr<frmOptions> optionen_;
  std::unique_ptr<frmDatenblatt> datenblatt_;
  std::unique_ptr<frmUser> benutzer_;
  std::unique_ptr<frmLstg> leistung_;
  std::unique_ptr<frmVorschau> vorschau_;
  std::unique_ptr<frmBaender> baender_;
  std::unique_ptr<frmDiagramme> diagramme_;
  std::unique_ptr<frmLageplan> lageplan_;
  std::unique_ptr<frmTip> tip_;
  std::unique_ptr<frmInfo> info_;
  Dateiablauf dateien_;
  Winkelablauf winkel_;
  Verlauf verlauf_;
  bool inHandlung_ = false;
  Hilfetaste hilfetaste_;
  Tastenwege tastenwege_;
  Dateiabwurf abwurf_;
  QPointer<QWindow> letztesFenster_;  ///< of this program, before the one that is active now
  Meldungen aufgeschoben_;            ///< of a field that has been left
  QTimer endetakt_;                   ///< runs when the end is demanded and something is in its way
  bool beendet_ = false;
};

}  // namespace vesk
