#pragma once
#include <QFocusFrame>
#include <QObject>
#include <QPointer>

namespace vesk {

/// Made once beside the application: the control that has the focus bears a frame that is seen in light and
/// dark themes, inputs have the same ground in both, and what is disabled can still be read.
class Lesbarkeit : public QObject {
 public:
  Lesbarkeit();
  ~Lesbarkeit() override;

 private:
  void Umrahmen(QWidget* control);

  QPointer<QFocusFrame> rahmen_;  ///< lies in the window that has the focus, and goes with it
};

}  // namespace vesk
