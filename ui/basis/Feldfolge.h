#pragma once
#include <QObject>
#include <vector>

class QWidget;

namespace vesk {

struct Rechenwerte;

/// Enter and cursor down go to the next field of a list, cursor up to the previous one; at the ends the focus
/// stays. On a button Enter keeps pressing it. It belongs to `eltern`, which holds the fields.
class Feldfolge : public QObject {
  Q_OBJECT
 public:
  Feldfolge(Rechenwerte& werte, std::vector<QWidget*> felder, QObject* eltern);

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  Rechenwerte& werte_;
  std::vector<QWidget*> felder_;
};

}  // namespace vesk
