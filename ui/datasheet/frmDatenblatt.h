#pragma once
#include <QMainWindow>
#include <array>
#include <optional>

#include "station/Datenblattspalte.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace vesk {

class Ablauf;
class Ansage;
class Signalton;
class Spaltenkopf;
class Zellenfeld;
struct InZelle;
struct Station;

/// The data sheet: seven columns of twelve cells.
class frmDatenblatt : public QMainWindow {
  Q_OBJECT
 public:
  frmDatenblatt(Ablauf& ablauf, Signalton& ton, QWidget* eltern = nullptr);

  void Zeigen(const Station& station);
  /// Puts the cursor into a cell.
  void Hinzeigen(const InZelle& ort);

 protected:
  void changeEvent(QEvent* ereignis) override;
  void closeEvent(QCloseEvent* ereignis) override;

 private:
  void SpalteAnlegen(QGridLayout& gitter, int spalte, Signalton& ton);
  QWidget* OptionsrahmenAnlegen();
  void SpalteZeigen(const Station& station, int spalte);

  Ablauf& ablauf_;
  std::optional<bool> tooltips_;  ///< as shown

  std::array<Spaltenkopf*, AnzahlSpalten> lblSpalte{};
  std::array<Zellenfeld*, AnzahlZellen> txtA{};
  QCheckBox* chkOptionen = nullptr;
  QLabel* lblModIdx = nullptr;
  QPushButton* cmdRechnen = nullptr;
  QLabel* lblSpaltenstand;
  Ansage* ansage_ = nullptr;
};

}  // namespace vesk
