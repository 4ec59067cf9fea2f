#pragma once
#include <QDialog>
#include <QPointer>
#include <array>
#include <optional>

class QGroupBox;
class QLabel;

namespace vesk {

class Zahlenfeld;
struct Hinweis;
struct Plattform;
struct Rechenwerte;

/// Converts a power between dBm, dBW and watt. Of the shared record it uses only the marks of the key filter.
class frmLstg : public QDialog {
  Q_OBJECT
 public:
  /// `trenner`: decimal separator of the results.
  frmLstg(Plattform& plattform, Rechenwerte& werte, char trenner, QWidget* eltern = nullptr);

  void ToolTips(bool an);
  void setVisible(bool sichtbar) override;

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  enum class Anlass { Taste, Verlassen };

  void Aufbauen();
  void Betreten(Zahlenfeld& feld);
  void Verlassen(Zahlenfeld& feld, Qt::FocusReason grund);
  bool TasteUnten(Zahlenfeld& feld, int taste);
  void Gefiltert(Zahlenfeld& feld, int zeichen);
  void Bearbeitet(Zahlenfeld& feld);
  void Umwandeln(Zahlenfeld& feld, Anlass anlass);
  void Leeren();
  bool MinusMoeglich(const Zahlenfeld& feld) const;
  void Melden(const Hinweis& hinweis, Anlass anlass);

  Plattform& plattform_;
  Rechenwerte& werte_;
  char trenner_;

  QGroupBox* rhmLeistung;
  Zahlenfeld* txtDBm;
  Zahlenfeld* txtDBW;
  Zahlenfeld* txtWatt;
  QLabel* lblDBm;
  QLabel* lblDBW;
  QLabel* lblWatt;
  QLabel* lblReferat;
  std::array<Zahlenfeld*, 3> felder_;  ///< by Leistungseinheit

  bool ergebnisGezeigt_ = false;         ///< the next key starts a new value
  bool schliesst_ = false;               ///< hiding takes the focus away; that is no leaving
  std::optional<QString> erledigt_;      ///< text converted or refused last; not converted again on leaving
  QPointer<Zahlenfeld> unterbrochenes_;  ///< lost the focus to a menu, a box or another program
};

}  // namespace vesk
