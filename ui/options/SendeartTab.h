#pragma once
#include <QWidget>
#include <array>

#include "engine/Rechenwerte.h"
#include "station/Sendeart.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QRadioButton;

namespace vesk {

class Ablauf;
class Ansage;
class Signalton;
class Zahlenfeld;
struct Station;

/// Operating modes, transmit/receive cycle and signal type. The product of the first two factors reduces the
/// averaged power of the distance without pacemaker; the signal type selects the threshold curve of
/// DIN VDE 0848 Teil 3-1.
class SendeartTab : public QWidget {
 public:
  SendeartTab(Ablauf& ablauf, Signalton& ton);

  void Zeigen(const Station& s);

 private:
  void Anordnen();
  void Verbinden(Ablauf& ablauf);

  QGroupBox* rhmModulationsart;
  std::array<QCheckBox*, Sendearten.size()> chkBetriebsart;
  QGroupBox* rhmCycle;
  std::array<QRadioButton*, AnzahlZyklen> optDuty;
  QGroupBox* rhmBetriebsart;
  std::array<QRadioButton*, 3> optSSB;
  QLineEdit* txtSelectedModes;
  Zahlenfeld* txtFaktorB;
  Ansage* ansage_;
};

}  // namespace vesk
