#pragma once
#include <QDialog>
#include <optional>

#include "station/Baender.h"

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

 private:
  void TabelleAnlegen();
  QWidget* KnoepfeAnlegen();
  void TabelleZeigen(const Station& s);
  void AnzahlZeigen(const Station& s);
  void HinweisZeigen();
  void Umschalten(int zeile);

  Ablauf& ablauf_;
  const Kataloge& kataloge_;
  std::optional<bool> tooltips_;    ///< as shown
  std::optional<Station> gezeigt_;  ///< while open
  std::vector<Bandzeile> zeilen_;

  QLabel* lblGrundlage;
  QLabel* lblHinweis;
  QLabel* lblAnzahl;
  QTableWidget* tblBaender;
  Kurvenblick* imgBaender;  ///< below the table
  Kurvenblick* imgGross;    ///< on a page of its own
  QPushButton* cmdBaenderKopieren = nullptr;
};

}  // namespace vesk
