#pragma once
#include <QFocusFrame>
#include <QObject>
#include <QPointer>

class QAbstractItemView;

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

/// The boxes to tick in this list or table are seen in light and dark themes and at every size of the font.
void KaestchenDeutlich(QAbstractItemView& liste);

}  // namespace vesk
