#pragma once
#include <QObject>
#include <vector>

class QWidget;

namespace vesk {

/// Keys that lead on; the others are the field's own.
enum class Folgetasten { EnterAufAb, AufAb, Auf };

/// Tab, Enter and cursor down go to the next field of a list, cursor up to the previous one, and select its
/// text; at the ends the focus stays. Fields that are disabled or hidden are passed over. Enter presses a
/// push button. A held Enter counts once. It belongs to `eltern`, which holds the fields.
class Feldfolge : public QObject {
  Q_OBJECT
 public:
  Feldfolge(std::vector<QWidget*> felder, QObject* eltern, Folgetasten tasten = Folgetasten::EnterAufAb);

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
  void Wechseln(const QObject* von, bool vor) const;

  std::vector<QWidget*> felder_;
  Folgetasten tasten_;
};

}  // namespace vesk
