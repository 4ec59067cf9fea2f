#pragma once
#include <QDialog>
#include <string>
#include <vector>

class QCheckBox;
class QPlainTextEdit;
class QPushButton;

namespace vesk {

class Benutzerspeicher;

/// Tip of the day. Whenever it is opened it goes on with the tip after the one shown last, across runs.
class frmTip : public QDialog {
  Q_OBJECT
 public:
  /// `tips`: UTF-8.
  frmTip(Benutzerspeicher& speicher, std::vector<std::string> tips, QWidget* eltern = nullptr);

 protected:
  void showEvent(QShowEvent* ereignis) override;

 private:
  void Aufbauen();
  void NaechsterTip();

  Benutzerspeicher& speicher_;
  std::vector<std::string> tips_;
  std::size_t naechster_ = 0;

  QPlainTextEdit* txtTip;
  QCheckBox* chkTipsBeimStart;
  QPushButton* cmdNaechsterTip;
};

}  // namespace vesk
