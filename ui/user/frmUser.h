#pragma once
#include <QDialog>
#include <array>
#include <optional>

#include "station/Station.h"

namespace vesk {

struct BeimBenutzer;

class Ablauf;
class Signalton;
class Textfeld;

/// The operator's personal data. The window is hidden, never closed.
class frmUser : public QDialog {
  Q_OBJECT
 public:
  frmUser(Ablauf& ablauf, Signalton& ton, QWidget* eltern = nullptr);

  void Zeigen(const Station& station);
  /// Puts the cursor into a field.
  void Hinzeigen(const BeimBenutzer& ort);
  void reject() override;

 protected:
  void hideEvent(QHideEvent* ereignis) override;

 private:
  void FelderAnlegen(Signalton& ton);

  Ablauf& ablauf_;
  std::array<Textfeld*, Benutzerfelder.size()> felder_{};
  std::optional<bool> tooltips_;  ///< as shown
};

}  // namespace vesk
