#pragma once
#include <QStringList>
#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>

#include "Antennenkatalog.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vesk {

class Anzeigeliste;
class Auswahlliste;
class OptionenUmgebung;
struct Datenblattspalte;
struct Plattform;
struct Zustand;

/// Antennas of the catalogue with their gains; the one that fits the frequency can be taken.
class AntennenTab : public QWidget {
  Q_OBJECT
 public:
  AntennenTab(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern = nullptr);

  /// Reads Antennen.txt of the program directory.
  void Laden();
  void SatzLaden(const Datenblattspalte& satz);
  void SatzSchreiben(Datenblattspalte& satz) const;

 Q_SIGNALS:
  /// An antenna with a band at the current frequency has been chosen.
  void antenneGewaehlt(const QString& name, const QString& gewinn, const QString& mhz);

 private:
  void Bauen();
  void Anordnen();
  void Verbinden();
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

  /// Shows the entries that match the search field.
  void ListeEingrenzen();
  void ErsteWaehlen();
  void AntenneGewaehlt(int zeile);
  void AntenneNehmen();
  void Uebernehmen(const Antenne& antenne);

  Zustand& zustand_;
  Plattform& plattform_;
  OptionenUmgebung& umgebung_;
  Antennenkatalog katalog_;
  QStringList zeilen_;  ///< of the whole list
  std::optional<Antennensuche> suche_;
  std::int16_t AntennenIndex = -1;
  /// Of the antenna chosen. A calculation in between may have replaced the shared gain text by what stands in
  /// the main window.
  std::optional<std::string> gewinn_;

  QGroupBox* rhmAntennen;
  QLabel* lblSuche;
  QLineEdit* txtSuche;
  QLabel* lblTreffer;
  Auswahlliste* LstAntennen;
  Anzeigeliste* List1;
  QLabel* lblAntenne;
  QPushButton* cmdAntenne;
  QLabel* lblAntDaten;
};

}  // namespace vesk
