#pragma once
#include <QDialog>
#include <array>
#include <optional>

#include "station/Handlung.h"

namespace vesk {

class Ablauf;
class Ansage;
class Signalton;
class Zahlenfeld;
struct Leistungsumrechnung;

/// Converts a power between dBm, dBW and watt. It stands by itself: what is typed here belongs to no station.
class frmLstg : public QDialog {
  Q_OBJECT
 public:
  /// `trenner`: decimal separator of the results.
  frmLstg(Ablauf& ablauf, Signalton& ton, char trenner, QWidget* eltern = nullptr);

  void Zeigen(const Station& station);

 protected:
  void showEvent(QShowEvent* ereignis) override;
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  void Aufbauen(Signalton& ton);
  void FeldVerbinden(Zahlenfeld& feld);
  void Betreten(Zahlenfeld& feld);
  void Verlassen(Zahlenfeld& feld);
  bool TasteUnten(Zahlenfeld& feld, int taste);
  Handlung Umwandelnd(Zahlenfeld& feld);
  Meldungen Umwandeln(Zahlenfeld& feld);
  void Umgerechnet(const Leistungsumrechnung& umrechnung, std::size_t quelle);
  void Leeren();

  Ablauf& ablauf_;
  char trenner_;
  Ansage* ansage_;
  std::array<Zahlenfeld*, 3> felder_{};  ///< by Leistungseinheit
  Zahlenfeld* inArbeit_ = nullptr;
  bool ergebnisGezeigt_ = false;     ///< the next key starts a new value
  std::optional<QString> erledigt_;  ///< text converted or refused last; not converted again on leaving
  std::optional<bool> tooltips_;     ///< as shown
};

}  // namespace vesk
