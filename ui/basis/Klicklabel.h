#pragma once
#include <QLabel>

namespace vesk {

/// Label that answers a mouse press and, where Tab reaches it, blank and Enter; used for switches and column
/// heads.
class Klicklabel : public QLabel {
  Q_OBJECT
 public:
  using QLabel::QLabel;

 Q_SIGNALS:
  void geklickt(Qt::MouseButton taste);

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override;
  void mousePressEvent(QMouseEvent* ereignis) override;
};

}  // namespace vesk
