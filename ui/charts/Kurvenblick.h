#pragma once
#include <QWidget>
#include <functional>

#include "print/Kurvenbild.h"

namespace vesk {

/// A chart on the screen, in the colours of the desktop.
class Kurvenblick : public QWidget {
  Q_OBJECT
 public:
  using Maler = std::function<void(Blatt&, const QRectF&, const Bildfarben&)>;

  explicit Kurvenblick(QWidget* eltern);

  /// `text` tells the same to those who do not see it.
  void Zeigen(Maler maler, const QString& text);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* ereignis) override;

 private:
  Maler maler_;
};

/// Letters and lines in the colours of the palette, the curves in colours that stand out from it.
Bildfarben FarbenAus(const QPalette& palette);

}  // namespace vesk
