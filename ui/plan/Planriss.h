#pragma once
#include <QPixmap>
#include <QWidget>

#include "print/Planbild.h"

namespace vesk {

/// The plan from the side, whole.
class Planriss : public QWidget {
  Q_OBJECT
 public:
  explicit Planriss(QWidget* eltern);

  void Zeigen(const Station& s);
  void SchichtenZeigen(const Planschichten& schichten);
  /// Where one looks from, degrees from north.
  void BlickAus(int azimut);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* ereignis) override;
  void resizeEvent(QResizeEvent* ereignis) override;
  void changeEvent(QEvent* ereignis) override;

 private:
  void Neumalen();

  Station station_;
  Planschichten schichten_ = Planschichten().set();
  int blick_ = 180;
  QPixmap gemalt_;  ///< as it stands on the screen; null: to be painted anew
};

}  // namespace vesk
