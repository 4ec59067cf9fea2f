#pragma once
#include <QObject>

namespace vesk {

class Ablauf;

/// Installed on the application: files that are dropped on a window of the program are opened, also where a
/// field would take their names as a text.
class Dateiabwurf : public QObject {
 public:
  explicit Dateiabwurf(Ablauf& ablauf) : ablauf_(ablauf) {}

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  Ablauf& ablauf_;
};

}  // namespace vesk
