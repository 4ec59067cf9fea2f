#pragma once
#include "ui/basis/Textfeld.h"

namespace vesk {

/// A cell of the data sheet. A text that is too wide for it is written narrower and smaller as far as it can
/// still be read; what is wider than that the tooltip shows whole. In a dark theme a shade lies over the
/// cells that are not in use, so that the sheet does not glare.
class Zellenfeld : public Textfeld {
  Q_OBJECT
 public:
  Zellenfeld(Signalton& ton, QWidget* eltern);

  /// Chooses the font for the text; `schrift` is that of the sheet.
  void Einpassen(const QFont& schrift);
  QSize sizeHint() const override;

 Q_SIGNALS:
  /// A click of the user with the left button.
  void geklickt();

 protected:
  bool event(QEvent* ereignis) override;
  void mouseReleaseEvent(QMouseEvent* ereignis) override;
  void focusOutEvent(QFocusEvent* ereignis) override;
  void resizeEvent(QResizeEvent* ereignis) override;
  void paintEvent(QPaintEvent* ereignis) override;

 private:
  bool Passt(const QFont& schrift) const;
};

}  // namespace vesk
