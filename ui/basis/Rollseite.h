#pragma once
#include <QScrollArea>

namespace vesk {

/// As large as its contents; scrolls only where the screen is too small for them.
class Rollseite : public QScrollArea {
 public:
  explicit Rollseite(QWidget* inhalt) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(inhalt);
  }
  /// The screen has room for the contents: the window cannot be made smaller than they are.
  void Ganz() { ganz_ = true; }

  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override {
    return ganz_ ? widget()->minimumSizeHint() : QScrollArea::minimumSizeHint();
  }

 private:
  bool ganz_ = false;
};

}  // namespace vesk
