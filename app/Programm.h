#pragma once
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>

#include "Dateiablauf.h"
#include "Fensterverbund.h"
#include "Hilfetaste.h"
#include "Verzeichnisse.h"
#include "Zustand.h"
#include "frmDatenblatt.h"
#include "frmOptions.h"
#include "frmUser.h"
#include "frmVesk.h"

class QWindow;

namespace vesk {

class frmInfo;
class frmLstg;
class frmTip;
struct Plattform;

/// The one place that creates the windows and ties them together.
class Programm : public QObject, private Dateifenster {
  Q_OBJECT
 public:
  Programm(Zustand& zustand, Plattform& plattform, const Verzeichnisse& verzeichnisse);
  ~Programm() override;

  /// Opens the program as the user starts it.
  void Starten();
  /// Saves and announces the end; the user may go on when something cannot be saved.
  void Beenden();
  /// Keeps what is not saved yet for the case of a crash; runs by itself every few seconds.
  void RettungSichern();

  Zustand& zustand() { return zustand_; }
  frmVesk& Hauptfenster() { return hauptfenster_; }
  frmOptions& Optionen() { return optionen_; }
  frmDatenblatt& Datenblatt() { return datenblatt_; }
  frmUser& Benutzerfenster() { return benutzer_; }

 Q_SIGNALS:
  /// Everything is saved; the event loop may end.
  void beendet();

 private:
  void HauptfensterVerbinden();
  void MenueVerbinden();
  void DatenblattVerbinden();
  void BenutzerfensterVerbinden();
  /// Wraps the answer to a user's event: a run-time error ends it and is shown.
  std::function<void()> Antwort(std::function<void()> tun);
  void Bei(const char* menue, std::function<void()> tun);

  void BerechnenKnopf();
  void Kopieren();
  void AFuUmgeschaltet();
  void AbstandUmschalten();
  void ModusGeklickt();
  void QrgVerlassen();
  void NachQrgWechsel();
  void TooltipsUmschalten();
  void WarnmeldungenUmschalten();
  void FensterUmschalten();
  void DatenblattZeigen();
  void BenutzerZeigen();
  void LeistungsumrechnungZeigen();
  void TipZeigen();
  void InfoZeigen();
  void TooltipsZeigen(bool an);
  void HauptfensterAktiviert();
  void DateimenueSperren(bool gesperrt);

  void SchalterLesen(Einstellungen& einstellungen) const override;
  void Abschliessen() override;
  void StandZeigen(const Lesebericht& bericht) override;
  void NachLadenAuffrischen() override;
  void TitelSetzen(const QString& benutzer, const QString& haupt, const QString& datenblatt) override;
  void BenutzerfensterVerbergen() override;
  void BenutzerNeuBeginnen() override;
  bool DatenblattLoeschen() override;

  Zustand& zustand_;
  Plattform& plattform_;
  frmVesk hauptfenster_;
  frmDatenblatt datenblatt_;
  frmUser benutzer_;
  Fensterverbund verbund_;
  frmOptions optionen_;
  std::unique_ptr<frmLstg> leistung_;
  std::unique_ptr<frmTip> tip_;
  std::unique_ptr<frmInfo> info_;
  Dateiablauf ablauf_;
  Hilfetaste hilfetaste_;
  QPointer<QWindow> letztesFenster_;  ///< of this program, before the one that is active now
  bool rechnungSteht_ = false;        ///< a calculation after leaving the frequency is queued
};

}  // namespace vesk
