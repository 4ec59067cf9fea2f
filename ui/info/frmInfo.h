#pragma once
#include <QDialog>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace vesk {

/// Info box: what the program is, and the versions that belong into a report of a fault.
class frmInfo : public QDialog {
  Q_OBJECT
 public:
  explicit frmInfo(QWidget* eltern = nullptr);

 private:
  void Aufbauen();

  QLabel* lblBild;
  QLabel* lblName;
  QLabel* lblZweck;
  QLabel* lblGewaehr;
  QLabel* lblSystem;
  QPlainTextEdit* txtSystem;
  QPushButton* cmdKopieren;
  QPushButton* cmdOK;
};

}  // namespace vesk
