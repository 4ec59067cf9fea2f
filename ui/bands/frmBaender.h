#pragma once
#include <QDialog>
#include <optional>

#include "print/Kurven.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace vesk {

class Ablauf;
class Kurvenblick;

/// "Alle Bänder": the station on each amateur band, as a table and a chart; ticked bands are copied into
/// columns.
class frmBaender : public QDialog {
  Q_OBJECT
 public:
  frmBaender(Ablauf& ablauf, const Kataloge& kataloge, QWidget* eltern = nullptr);

  void Zeigen(const Station& s);
  void reject() override;

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;
  void resizeEvent(QResizeEvent* ereignis) override;
  void changeEvent(QEvent* ereignis) override;

 private:
  void TabelleAnlegen();
  QWidget* KnoepfeAnlegen();
  void TabelleZeigen(const Station& s);
  /// Gives a column the width of what stands in it.
  void Anpassen(int spalte);
  void AnzahlZeigen(const Station& s);
  void HinweisZeigen();
  /// The row of the band that the main window's frequency lies in, if any.
  void BandAufsuchen(const Station& s);
  void Umschalten(int zeile);

  Ablauf& ablauf_;
  const Kataloge& kataloge_;
  std::optional<bool> tooltips_;    ///< as shown
  std::optional<Station> gezeigt_;  ///< while open
  std::vector<Bandzeile> zeilen_;
  std::optional<Baenderbild> bild_;

  QLabel* lblGrundlage;
  QLabel* lblHinweis;
  QLabel* lblAnzahl;
  QTableWidget* tblBaender;
  Kurvenblick* imgBaender;
  QPushButton* cmdBaenderKopieren = nullptr;
};

}  // namespace vesk
