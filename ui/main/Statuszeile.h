#pragma once
#include <QWidget>
#include <array>

#include "station/Wegweiser.h"

class QPushButton;

namespace vesk {

class Kurzlabel;

/// Where the user stands: his file, what the next figures will be made of, and the next step, which a press
/// of its button does.
class Statuszeile : public QWidget {
  Q_OBJECT
 public:
  explicit Statuszeile(QWidget* eltern = nullptr);

  void Zeigen(const Station& s, const Kataloge& k);

 Q_SIGNALS:
  /// The button was pressed.
  void weiter(const vesk::Schritt& schritt);

 private:
  Schritt schritt_;
  QPushButton* cmdWeiter;
  std::array<Kurzlabel*, 6> angaben_{};
};

}  // namespace vesk
