#pragma once
#include <QObject>

namespace vesk {

class Ablauf;

/// Installed on the application: the keys that do the same in every window of the program. They come before
/// the field that has the focus, so that Ctrl+Z takes back what the program did, not only what is in the
/// field.
class Tastenwege : public QObject {
 public:
  explicit Tastenwege(Ablauf& ablauf) : ablauf_(ablauf) {}

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  Ablauf& ablauf_;
};

}  // namespace vesk
