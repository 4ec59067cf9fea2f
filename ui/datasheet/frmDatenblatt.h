#pragma once
#include <QMainWindow>
#include <array>
#include <bitset>
#include <cstdint>

#include "Datenblattspalte.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace vesk {

struct Plattform;
struct Zustand;
class Spaltenkopf;
class Zelle;

/// The data sheet: seven columns of twelve cells. The texts live in Zustand::Zellen and the option records
/// in Zustand::Datenblattspalten; the window shows them, keeps them up to date and says what the user asks
/// for beyond it.
class frmDatenblatt : public QMainWindow {
  Q_OBJECT
 public:
  frmDatenblatt(Zustand& zustand, Plattform& plattform, QWidget* eltern = nullptr);

  /// Shows the texts that a file brought: in black, and with the tints of every column whose record was in
  /// the file. Nothing counts as changed by that.
  void Fuellen(std::bitset<AnzahlSpalten> gelesen);

  void ZelleSetzen(std::int16_t spalte, Zeile zeile, const QString& text);
  /// Background, e.g. of the mark of a missing input.
  void ZellfarbeSetzen(std::int16_t spalte, Zeile zeile, const QColor& farbe);
  /// Text colour of the twelve cells: black, or Tuerkis for a column computed backwards.
  void SpaltenschriftSetzen(std::int16_t spalte, const QColor& farbe);
  /// The factor that a column is calculated with: label and tint of its distance without pacemaker.
  void FaktorZeigen(std::int16_t spalte, float faktor);
  void ModIdxSetzen(const QString& text);

  bool OptionenBeruecksichtigen() const;
  void OptionenBeruecksichtigenSetzen(bool an);

  /// Marks the head of the current column, shows the factor of its record and takes back the red marks.
  void AktuelleSpalteMarkieren();
  /// No head bears a mark; nothing else changes.
  void MarkierungAufheben();

  /// Clears the column of that letter after a question.
  void SpalteLoeschen(char buchstabe);
  /// Clears all cells and records after a question; false when the user declined.
  bool DatenblattLoeschen();

 Q_SIGNALS:
  /// Click on a cell, or with the left button on a head; that column is the current one already.
  void zelleGeklickt();
  void kopfGeklickt();
  void rechnen();

  /// Columns were filled or cleared here: the caption of the copy button may be another one.
  void belegungGeaendert();
  /// Records were reset here: the options window shows the current one again.
  void optionenAnzeigen();
  /// The sheet was to be cleared: copying is possible again when a column is free.
  void kopierenFreigeben();

  void dateiLaden();
  void dateiSpeichern();
  void dateiSpeichernUnter();
  void noChange();
  void formblattDrucken();
  void formblattRegTPdrucken();
  void druckerEinrichten();
  /// The window hides itself; the options window is to go with it.
  void beenden();
  void ende();

 protected:
  void closeEvent(QCloseEvent* ereignis) override;

 private:
  void MenueAnlegen();
  void SpalteAnlegen(QGridLayout& gitter, std::int16_t spalte);
  QWidget* OptionsrahmenAnlegen();

  Zelle& ZelleBei(std::int16_t spalte, Zeile zeile) const;
  void ZelleGeaendert(std::size_t index);
  void ZeileWechseln(std::size_t index, int schritt);
  void SpalteWaehlen(std::int16_t spalte);
  void KopfDruecken(std::int16_t spalte, Qt::MouseButton taste);
  void SpalteLeeren(std::int16_t spalte);
  void SpalteToenen(std::int16_t spalte, float faktor);
  void ModIdxAusSatz();
  bool Gefragt(const QString& frage);

  void mnuDelete_Click();
  void mnuSpalteKopieren_Click();
  void mnuBeenden_Click();

  Zustand& zustand_;
  Plattform& plattform_;
  bool fuellt_ = false;  ///< cells change, but not by anybody's doing

  std::array<Spaltenkopf*, AnzahlSpalten> lblSpalte{};
  std::array<Zelle*, AnzahlZellen> txtA{};
  QCheckBox* chkOptionen = nullptr;
  QLabel* lblModIdx = nullptr;
  QPushButton* cmdRechnen = nullptr;
};

}  // namespace vesk
