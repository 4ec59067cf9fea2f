#pragma once
#include <QObject>

namespace vesk {

class Hilfe;

/// Installed on the application: F1 opens the context entry of the control, or of the nearest one that it
/// lies in and that has a help number, on tabs that of the page in front; in a menu F1 opens the manual.
class Hilfetaste : public QObject {
 public:
  explicit Hilfetaste(Hilfe& hilfe, QObject* eltern = nullptr);

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  Hilfe& hilfe_;
};

}  // namespace vesk
