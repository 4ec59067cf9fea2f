#pragma once
#include <QWidget>
#include <array>
#include <cstdint>

#include "Sendeart.h"

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace vesk {

class OptionenUmgebung;
class Zahlenfeld;
struct Datenblattspalte;
struct Plattform;
struct Zustand;

/// Operating modes, transmit/receive cycle and signal type. The product of the first two factors reduces the
/// averaged power of the distance without pacemaker; the signal type selects the threshold curve of
/// DIN VDE 0848 Teil 3-1.
class SendeartTab : public QWidget {
  Q_OBJECT
 public:
  SendeartTab(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern = nullptr);

  void Laden();
  /// "Alle" ticked and both factors 1.0, without warning and calculation.
  void Vorbelegen();
  void Startfaktoren();
  void SatzLaden(const Datenblattspalte& satz);
  void SatzSchreiben(Datenblattspalte& satz) const;
  QString GewaehlteSendearten() const;

 private:
  void SendeartenBauen();
  void ZyklusBauen();
  void GrenzwerttypBauen();
  void Anordnen();
  void Verbinden();

  void BetriebsartGeklickt(int index);
  void ZyklusGeklickt();
  void GrenzwerttypGeklickt(int index);

  void OptionModulation(int index);
  void ModulationsFaktorErmitteln();
  void ModulationsArtAnkreuzen();
  void WarnMeldungFaktor();
  /// Selects the button and keeps the type in the record of the calculation and in the option records.
  void GrenzwerttypSetzen(std::int16_t typ);
  void ZyklusfaktorErmitteln();
  void ZyklusSetzen(const Zykluswahl& wahl);
  void FaktorZeigen();
  Sendeartkreuze Kreuze() const;
  void KreuzeSetzen(const Sendeartkreuze& kreuze);

  Zustand& zustand_;
  Plattform& plattform_;
  OptionenUmgebung& umgebung_;

  QLabel* lblMod1;
  QGroupBox* rhmModulationsart;
  std::array<QCheckBox*, Sendearten.size()> chkBetriebsart{};
  QLabel* lblSelectedModes;
  QLineEdit* txtSelectedModes;
  QLabel* lblFaktorB;
  Zahlenfeld* txtFaktorB;
  QGroupBox* rhmCycle;
  std::array<QRadioButton*, AnzahlZyklen> optDuty{};
  QButtonGroup* zyklen_;
  QGroupBox* rhmBetriebsart;
  std::array<QRadioButton*, 3> optSSB{};
};

}  // namespace vesk
