#pragma once
#include <QWidget>
#include <array>
#include <filesystem>

#include "Sektoren.h"
#include "Winkeldatei.h"

class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vesk {

class Feldtexte;
class OptionenUmgebung;
class Winkelbild;
class Zahlenfeld;
struct Datenblattspalte;
struct Plattform;
struct Zustand;

/// Attenuation of a directional antenna in nine sectors, and the safety distances in each of them.
class WinkelTab : public QWidget {
  Q_OBJECT
 public:
  WinkelTab(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern = nullptr);

  void Laden();
  void SatzLaden(const Datenblattspalte& satz);
  void SatzSchreiben(Datenblattspalte& satz) const;

  /// What the central calculation found for this page: gain and frequency of the record, power at the antenna
  /// input and EIRP of the main direction.
  void RechnungZeigen(const Feldtexte& texte);
  void AntEinPWRSetzen(const QString& text);
  void AntenneSetzen(const QString& name, const QString& gewinn, const QString& mhz);

  /// mnuWinkelLaden
  void WinkelOeffnen();
  void WinkelSpeichern();
  void WinkelSpeichernUnter();
  /// mnuWDelete
  void TabelleLoeschen();
  /// mnuWinkelBeispiel
  void Beispiel();

 Q_SIGNALS:
  /// Which of the pacemaker distances there are to print.
  void druckbarGeaendert(bool hsm306, bool hsmVDE);

 private:
  template <typename Feld>
  using Spalte = std::array<Feld*, AnzahlSektoren>;

  void Bauen();
  void KopfAnordnen(QGridLayout& raster);
  QWidget* TabelleAnordnen();
  void Verbinden();
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

  /// Command1
  void SektorenBerechnen();
  Grenzwerte GrenzwerteErmitteln();
  void TabelleZeigen(const Sektortabelle& tabelle, const Grenzwerte& grenzwerte);
  void DaempfungUebernehmen(std::size_t sektor);

  void WinkelLaden(const std::filesystem::path& pfad);
  void WinkelLoeschen();
  void ErgebnisseLeeren();
  bool VerwerfenErlaubt(const QString& titel);
  void DateifehlerZeigen(const std::filesystem::path& pfad, const std::string& was, const std::string& grund);
  void DateiWechseln(const std::filesystem::path& pfad);
  void TabelleSetzen(const std::array<std::string, AnzahlSektoren>& daempfung);
  std::array<std::string, AnzahlSektoren> Tabelle() const;
  void SaetzeFortschreiben();
  void DruckbarMelden();
  void BildAuffrischen();

  Zustand& zustand_;
  Plattform& plattform_;
  OptionenUmgebung& umgebung_;
  std::filesystem::path datei_;
  std::array<std::string, AnzahlSektoren> gesichert_;  ///< the table as loaded or saved last

  QGroupBox* rhmWinkel;
  QLineEdit* txtWAntenne;
  Zahlenfeld *txtWGewinn0, *txtWMHZ, *txtWAntEinPWR, *txtWPolar;
  Spalte<Zahlenfeld> txtWDaempfung{};
  Spalte<QLineEdit> txtWEIRP{}, txtWAbstand{}, txtWHSM306{}, txtWHSMvde{};
  QPushButton* Command1;
  QLabel* lblDatei;
  Winkelbild* bild_;
};

}  // namespace vesk
