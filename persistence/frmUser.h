#pragma once
#include <QDialog>
#include <array>
#include <string>

class QAction;
class QGridLayout;
class QLineEdit;

namespace vesk {

struct Benutzer;
struct Plattform;
struct Zustand;

/// The operator's personal data. The window keeps Zustand::benutzer in step with its fields, checks them and
/// says what the user asks for beyond it. It is hidden, never closed.
class frmUser : public QDialog {
  Q_OBJECT
 public:
  frmUser(Zustand& zustand, Plattform& plattform, QWidget* eltern = nullptr);

  /// Shows what a file brought; nothing counts as changed by that. The class is shown and kept in upper case.
  void Fuellen();
  /// Empties all fields for another callsign and lets the user begin with the name.
  void NeuBeginnen();
  /// The field in focus counts as left, without moving the focus: a changed callsign decides the class.
  /// Before anything is saved.
  void Abschliessen();
  void TooltipsZeigen(bool an);

  /// Colours the required fields and says what is missing. `modus` 0: before saving; otherwise before
  /// printing, then the user may go on without. Returns 6 (Ja) when nothing is missing, otherwise the code
  /// of the box.
  int UserCheck(int modus);

  void reject() override;

 Q_SIGNALS:
  void UserNeu();
  void UserLaden();
  void UserSpeichern();
  void UserSpeichernUnter();
  void UserPrint();
  void NoChange();
  /// However it came about; a moment later. Unsaved data are now to be saved.
  void verborgen();

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;
  void keyPressEvent(QKeyEvent* ereignis) override;
  void hideEvent(QHideEvent* ereignis) override;

 private:
  enum class Pflicht { Nein, Ja, NurBeimSpeichern };
  struct Feld {
    QLineEdit* feld;
    std::string Benutzer::*text;
    Pflicht pflicht;
  };

  void MenueAnlegen();
  QLineEdit* FeldAnlegen(QGridLayout& raster, const QString& name, const QString& titel);
  void FelderVerbinden();
  void FeldGeaendert(const Feld& feld);
  bool FeldWechseln(const QObject* von, int schritt);
  void FarbenZuruecksetzen();
  void Leeren();

  void mnuUserSpeichern_Click();
  void mnuUserPrint_Click();
  void mnuUserDelete_Click();
  void mnuNoChange_Click();

  Zustand& zustand_;
  Plattform& plattform_;
  QString klasseEntschieden_;  ///< callsign that the class was decided for, or that came with it

  QLineEdit *txtName = nullptr, *txtStrasse = nullptr, *txtOrt = nullptr, *txtTelefon = nullptr,
            *txtTelefax = nullptr, *txtRufzeichen = nullptr, *txtKlasse = nullptr, *txtStandort = nullptr;
  std::array<Feld, 8> felder_{};
};

}  // namespace vesk
