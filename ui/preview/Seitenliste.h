#pragma once
#include <QListWidget>
#include <QTimer>

#include "print/Mappe.h"

namespace vesk {

/// All pages small, to choose from. The pictures come one after the other, so that a thick binder does not
/// keep the user waiting.
class Seitenliste : public QListWidget {
 public:
  explicit Seitenliste(QWidget* eltern);

  /// The papers must outlive their being shown. Without `neu` the pictures stay until they are painted anew.
  void Zeigen(const Mappe& mappe);

 private:
  void NaechsteMalen();
  int Eintragsbreite() const;
  /// Points of the screen to the millimetre; large sheets are made as small as the others.
  double Massstab(Blattformat format) const;

  const Mappe* mappe_ = nullptr;
  int naechste_ = 0;
  QTimer takt_;
};

}  // namespace vesk
