#pragma once
#include <QWidget>

#include "Kabelkatalog.h"

class QGroupBox;
class QLabel;
class QPushButton;

namespace vesk {

class Auswahlliste;
class OptionenUmgebung;
class Zahlenfeld;
struct Datenblattspalte;
struct Plattform;
struct Zustand;

/// Loss between transmitter and antenna: that of a cable from the catalogue over its length, plus connectors.
class KabelTab : public QWidget {
  Q_OBJECT
 public:
  KabelTab(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern = nullptr);

  /// Reads Kabel.txt of the program directory.
  void Laden();
  void SatzLaden(const Datenblattspalte& satz);
  void SatzSchreiben(Datenblattspalte& satz) const;

  /// The main window's frequency has changed: the loss follows it if a cable length is given. Without one the
  /// main window's loss, which may have been typed there, is not touched.
  void HauptfrequenzUebernehmen(const QString& text);

 private:
  void Bauen();
  QLabel* Zeile(Zahlenfeld*& feld, const QString& name, const QString& text);
  void Anordnen();
  void Verbinden();

  void KabelGewaehlt();
  void GleichGeklickt();
  void FrequenzGeaendert();
  void FrequenzVerlassen();
  void GestellteRechnung();

  /// Recomputes the fields and passes the total on.
  void Kabeldaempfung();
  Kabelfelder Felder() const;
  void FelderZeigen(const Kabelfelder& felder);
  void D100Sperren(bool gesperrt);
  bool IstAnderesKabel() const;

  Zustand& zustand_;
  Plattform& plattform_;
  OptionenUmgebung& umgebung_;
  Kabelkatalog katalog_;
  bool rechnungGestellt_ = false;  ///< a calculation after leaving the frequency is queued

  QGroupBox* rhmKabel;
  Auswahlliste* lstKabel;
  QLabel *lblQRG, *lblD100, *lblKabelLaenge, *lblKabeldaempfung, *lblStecker, *lblGesamtdaempfung;
  Zahlenfeld *txtQRG, *txtD100, *txtKabelLaenge, *txtKabeldaempfung, *txtStecker, *txtGesamtdaempfung;
  QPushButton* cmdGleich;
};

}  // namespace vesk
