#pragma once
#include "ui/basis/Klicklabel.h"

namespace vesk {

/// Head of a data-sheet column. On the keyboard the space bar and Enter stand for the left mouse button, the
/// delete key for the right one.
class Spaltenkopf : public Klicklabel {
  Q_OBJECT
 public:
  explicit Spaltenkopf(QWidget* eltern);

  /// Head of the current column: bordered and green; otherwise flat in the theme's colour.
  void Markieren(bool aktuell);
  /// Signs beside the letter, for what the colours of the column say.
  void Zeichnen(const QString& zeichen);

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override;
  void paintEvent(QPaintEvent* ereignis) override;

 private:
  QString zeichen_;
};

}  // namespace vesk
