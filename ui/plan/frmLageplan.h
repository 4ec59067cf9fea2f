#pragma once
#include <QMainWindow>
#include <QTimer>
#include <array>
#include <optional>

#include "print/Planbild.h"
#include "station/Papiere.h"
#include "station/Planbearbeitung.h"
#include "station/Station.h"
#include "ui/plan/Werkzeuge.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QRadioButton;
class QSlider;
class QSpinBox;
class QTabWidget;

namespace vesk {

class Ablauf;
class Ansage;
class Befundseite;
class Objektseite;
class Planblick;
class Planriss;
class Planseite;

/// "Lageplan": the plot drawn to scale, with the zones of the antennas around them.
class frmLageplan : public QMainWindow {
  Q_OBJECT
 public:
  explicit frmLageplan(Ablauf& ablauf, QWidget* eltern = nullptr);

  void Zeigen(const Station& s);
  /// The object that a finding is about becomes the chosen one and is shown.
  void Hinzeigen(const ImLageplan& ort);

 protected:
  void closeEvent(QCloseEvent* ereignis) override;
  void changeEvent(QEvent* ereignis) override;
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  void MenueAufbauen();
  QWidget* WerkzeugeAufbauen();
  QWidget* FangAufbauen();
  QWidget* BlickAufbauen();
  QWidget* SchichtenAufbauen();
  QTabWidget* SeitenAufbauen();
  void Verbinden();
  void HintergrundLaden(const Station& s);
  QString Wahlfehler() const;
  void WahlZeigen();
  void Waehlen(const std::optional<Planstelle>& stelle);
  void Hinweisen(const QString& text);
  void FangNehmen();
  void SchichtenNehmen();
  void SchichtbilderMalen();

  Ablauf& ablauf_;
  std::optional<bool> tooltips_;    ///< as shown
  std::optional<Station> gezeigt_;  ///< while open
  std::optional<Planstelle> wahl_;
  std::string bildort_;  ///< of the background that is loaded
  QTimer pause_;         ///< side view and check take longer than a key press

  std::array<QRadioButton*, AnzahlPlanwerkzeuge> optWerkzeug{};
  std::array<QCheckBox*, 2> chkFang{};
  QComboBox* cboRaster = nullptr;
  std::array<QCheckBox*, AnzahlPlanschichten> chkSchicht{};
  Planblick* picPlan;
  Planriss* picSeite;
  QSlider* sldBlick = nullptr;
  QSpinBox* txtBlick = nullptr;
  Objektseite* objekte_ = nullptr;
  Planseite* allgemeines_ = nullptr;
  Befundseite* befunde_ = nullptr;
  QLabel* lblOrt;
  QLabel* lblPlanhinweis;
  Ansage* ansage_;
};

}  // namespace vesk
