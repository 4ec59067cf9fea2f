#pragma once
#include <QDialog>
#include <string>
#include <vector>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace vesk {

class Benutzerspeicher;

/// Tip of the day. Whenever it is opened it goes on with the tip after the one shown last, across runs.
class frmTip : public QDialog {
  Q_OBJECT
 public:
  /// `datei`: path of "TIPOFDAY.TXT".
  frmTip(Benutzerspeicher& speicher, const QString& datei, QWidget* eltern = nullptr);

 protected:
  void showEvent(QShowEvent* ereignis) override;

 private:
  void Aufbauen();
  void NaechsterTip();

  Benutzerspeicher& speicher_;
  std::vector<std::string> tips_;
  std::size_t naechster_ = 0;

  QLabel* lblTitel;
  QPlainTextEdit* txtTip;
  QCheckBox* chkTipsBeimStart;
  QPushButton* cmdNaechsterTip;
  QPushButton* cmdOK;
};

}  // namespace vesk
