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
  QSize sizeHint() const override { return widget()->sizeHint(); }
};

}  // namespace vesk
