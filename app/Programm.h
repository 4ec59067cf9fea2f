#pragma once
#include <QObject>
#include <functional>

#include "Rechengang.h"
#include "Zustand.h"
#include "frmVesk.h"

namespace vesk {

struct Plattform;

/// The one place that creates the windows and ties them together.
class Programm : public QObject {
  Q_OBJECT
 public:
  explicit Programm(Plattform& plattform);
  ~Programm() override;

  /// Opens the program as the user starts it.
  void Starten();

  Zustand& zustand() { return zustand_; }
  frmVesk& Hauptfenster() { return hauptfenster_; }

 Q_SIGNALS:
  /// Everything is saved; the event loop may end.
  void beendet();

 private:
  void HauptfensterVerbinden();
  /// Answers a user's event; a run-time error ends it and is shown.
  void Antworten(const std::function<void()>& tun);
  void Bei(const char* menue, const std::function<void()>& tun);

  void BerechnenKnopf();
  void AFuUmgeschaltet();
  void AbstandUmschalten();
  void ModusGeklickt();
  void QrgVerlassen();
  void NachQrgWechsel();
  void KopierknopfAuffrischen();
  void Beenden();

  Zustand zustand_;
  Plattform& plattform_;
  frmVesk hauptfenster_;
  Rechengang rechengang_;
  bool rechnungSteht_ = false;  ///< a calculation after leaving the frequency is queued
};

}  // namespace vesk
