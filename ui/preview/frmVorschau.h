#pragma once
#include <QMainWindow>
#include <QTimer>
#include <array>
#include <optional>

#include "print/Mappe.h"

class QAction;
class QComboBox;
class QLabel;
class QListWidget;
class QSpinBox;
class QToolBar;

namespace vesk {

class Ablauf;
class Seitenblick;
class Seitenliste;

/// The papers on the screen, as they will be printed: pages, thumbnails, and what is still open before
/// filing.
class frmVorschau : public QMainWindow {
  Q_OBJECT
 public:
  /// In the boxes of the tool bar: all curves, and the scale that the paper has room for.
  static constexpr int AlleKurven = -1;
  static constexpr QStringView Passend = u"passend";

  frmVorschau(Ablauf& ablauf, const Kataloge& kataloge, QWidget* eltern = nullptr);
  ~frmVorschau() override;

  void Zeigen(const Station& s);

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override;
  void closeEvent(QCloseEvent* ereignis) override;

 private:
  void MenueAufbauen();
  void WahlAufbauen(QToolBar& leiste);
  void BlaetternAufbauen(QToolBar& leiste);
  QWidget* BefundeAufbauen();
  void WahlZeigen(const Station& s);
  void BefundeZeigen(const Station& s);
  void SeitenzahlZeigen(int zahl);
  void Neubilden();
  void SeiteZeigen(int seite);
  void Vergroessern(double faktor);

  Ablauf& ablauf_;
  const Kataloge& kataloge_;
  std::optional<Station> gezeigt_;  ///< what the pages are made of, or will be in an instant; while open
  QTimer pause_;                    ///< pages take longer than a key press
  Mappe mappe_;
  std::vector<Befund> befunde_;
  int seite_ = 0;

  std::array<QAction*, 2> ausgeben_{};  ///< PDF and printing: not without a page
  Seitenliste* lstSeiten;
  Seitenblick* rolSeite;
  QListWidget* lstOffen;
  QLabel* lblOffen;
  QComboBox* cboPapier;
  QComboBox* cboKurve;
  QComboBox* cboMassstab;
  QComboBox* cboZoom;
  QSpinBox* txtSeite;
};

}  // namespace vesk
