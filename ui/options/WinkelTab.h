#pragma once
#include <QWidget>
#include <array>

#include "station/Ergebniswerte.h"
#include "station/Winkel.h"

class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vesk {

class Ablauf;
class Ansage;
class Signalton;
class Winkelbild;
class Zahlenfeld;

/// Attenuation of a directional antenna in nine sectors, and the safety distances in each of them.
class WinkelTab : public QWidget {
 public:
  WinkelTab(Ablauf& ablauf, Signalton& ton);

  void Zeigen(const Station& s);
  /// Puts the cursor into the first attenuation.
  void Hinzeigen();

 private:
  template <typename Feld>
  using Sektorfelder = std::array<Feld*, AnzahlSektoren>;

  void KopfBauen(Signalton& ton);
  void TabelleBauen(Signalton& ton);
  void KopfAnordnen(QGridLayout& raster);
  void TabelleAnordnen(QGridLayout& raster);
  void Verbinden();
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

  QLineEdit* KopfVon(Winkelfeld feld) const { return kopf_.at(static_cast<std::size_t>(feld)); }
  void Nehmen(std::size_t sektor);

  Ablauf& ablauf_;
  QGroupBox* rhmWinkel;
  std::array<QLineEdit*, 5> kopf_;  ///< in the order of Winkelfeld
  Sektorfelder<Zahlenfeld> txtWDaempfung;
  std::array<QLineEdit*, AnzahlSektoren * AnzahlWinkelspalten> ausgaben_;  ///< in the order of Winkelwerte
  QPushButton* Command1;
  QLabel* lblWDatei;
  Winkelbild* picWinkel;
  Ansage* ansage_;
};

}  // namespace vesk
