#pragma once
#include "ui/basis/Textfeld.h"

namespace vesk {

/// A cell of the data sheet.
class Zellenfeld : public Textfeld {
  Q_OBJECT
 public:
  using Textfeld::Textfeld;

 Q_SIGNALS:
  /// A click of the user with the left button.
  void geklickt();

 protected:
  void mouseReleaseEvent(QMouseEvent* ereignis) override;
  void focusOutEvent(QFocusEvent* ereignis) override;
};

}  // namespace vesk
