#include <QApplication>
#include <QTimer>

#include "app/Desktoplage.h"
#include "app/Programm.h"
#include "platform/QtPlattform.h"

using namespace Qt::StringLiterals;

/// The ways in which the program comes to its end.
namespace vesk {

namespace {

constexpr int Wartezeit = 80;  // ms until the next try
constexpr int Takt = 10;       // ms

}  // namespace

void Programm::RettungSichern() {
  if (beendet_) return;
  const bool vorher = station_.ohneRettung;
  dateien_.RettungSichern();
  if (station_.ohneRettung != vorher) Zeigen();
}

void Programm::Beenden() {
  if (beendet_) return;
  if (dateien_.Beschaeftigt()) {
    // Asked to end while a question about files is open: as soon as that is answered.
    QTimer::singleShot(Wartezeit, this, &Programm::Beenden);
    return;
  }
  const bool zuEnde = dateien_.Beenden();
  Zeigen();
  if (zuEnde) Schliessen(0);
}

void Programm::EndeVerlangt() {
  // Who asks may not wait.
  RettungSichern();
  if (beendet_ || endetakt_.isActive()) return;
  endetakt_.start(Takt);
  Endeschritt();
}

void Programm::Endeschritt() {
  // What has opened a dialog comes to its end first; saving may open another one.
  if (DialogeAbbrechen() || inHandlung_ || beendet_ || dateien_.Beschaeftigt()) return;
  dateien_.UserSpeichern();
  const Rettung::Stand rest = dateien_.RettungSichern();
  if (rest == Rettung::Stand::Gescheitert) {
    endetakt_.stop();
    plattform_.boxen.Zeigen(Fehlermeldung(
        "Das Programm sollte beendet werden. Ihre Änderungen lassen sich aber nicht sichern; es läuft "
        "deshalb weiter.\nBitte speichern Sie mit „Speichern unter“ an einem anderen Ort."));
    return;
  }
  Schliessen(rest == Rettung::Stand::Gesichert ? 1 : 0);
}

void Programm::Schliessen(int rueckgabe) {
  for (const QWidget* fenster : QApplication::topLevelWidgets()) LageMerken(*fenster, plattform_.speicher);
  beendet_ = true;
  plattform_.hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Beenden, 0);
  Q_EMIT beendet(rueckgabe);
}

}  // namespace vesk
