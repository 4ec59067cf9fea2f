#pragma once
#include <QWidget>

#include "print/Polardiagramm.h"

namespace vesk {

/// Two half diagrams, one above the other: attenuation and distances.
class Winkelbild : public QWidget {
  Q_OBJECT
 public:
  explicit Winkelbild(QWidget* eltern = nullptr);

  void Zeigen(const Polardaten& daempfung, const Polardaten& abstaende);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* ereignis) override;

 private:
  Polardaten daempfung_;
  Polardaten abstaende_;
};

}  // namespace vesk
