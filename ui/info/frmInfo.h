#pragma once
#include <QDialog>

class QLabel;
class QVBoxLayout;

namespace vesk {

struct Station;

/// Info box: what the program is, where its data lie, and the versions that belong into a report of a fault.
class frmInfo : public QDialog {
  Q_OBJECT
 public:
  explicit frmInfo(QWidget* eltern = nullptr);

  void Zeigen(const Station& station);

 private:
  void KopfAnlegen(QVBoxLayout& spalte);
  void SystemAnlegen(QVBoxLayout& spalte);

  QLabel* lblDatei;
};

}  // namespace vesk
