#pragma once
#include <QObject>

class QWidget;

namespace vesk {

class Hilfe;

/// Installed on the application: F1 opens the context entry of the nearest control that has a help number.
/// Windows and controls without one get the first number of their window's block; in a menu F1 opens the
/// manual.
class Hilfetaste : public QObject {
 public:
  explicit Hilfetaste(Hilfe& hilfe, QObject* eltern = nullptr);

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  Hilfe& hilfe_;
};

/// Help number for F1 at `control`; 0 if its window has no help.
int Hilfekontext(const QWidget& control);

}  // namespace vesk
