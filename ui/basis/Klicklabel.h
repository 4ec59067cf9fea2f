#pragma once
#include <QLabel>

namespace vesk {

/// Label that answers a mouse press; used for switches and column heads.
class Klicklabel : public QLabel {
  Q_OBJECT
 public:
  using QLabel::QLabel;

 Q_SIGNALS:
  void geklickt(Qt::MouseButton taste);

 protected:
  void mousePressEvent(QMouseEvent* ereignis) override;
};

}  // namespace vesk
