#pragma once
#include "ui/basis/Filterfeld.h"

namespace vesk {

/// Input field for free text that goes into the user's file: it takes what Windows-1252 can write except the
/// double quote, which encloses the texts there. Anything else is refused with a beep; line breaks and tabs
/// of a pasted text become blanks.
class Textfeld : public Filterfeld {
  Q_OBJECT
 public:
  using Filterfeld::Filterfeld;

  /// A comma that the user enters becomes a point.
  bool kommaWirdPunkt = false;

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override;
  QString Filtern(const QString& text) override;
};

}  // namespace vesk
