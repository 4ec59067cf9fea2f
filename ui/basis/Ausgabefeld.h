#pragma once
#include <QInputMethodEvent>
#include <QLineEdit>

namespace vesk {

/// Field that only shows. The toolkit lets a composed character (dead key, input method) into a field that is
/// read-only; a figure that nobody calculated must not come to stand there.
class Ausgabefeld : public QLineEdit {
 public:
  explicit Ausgabefeld(QWidget* eltern) : QLineEdit(eltern) { setReadOnly(true); }

 protected:
  void inputMethodEvent(QInputMethodEvent* ereignis) override { ereignis->ignore(); }
};

}  // namespace vesk
