#pragma once
#include <QLabel>

namespace vesk {

/// One line that gives way when it is narrow: its middle becomes "…", and the tooltip has it whole. Plain
/// text.
class Kurzlabel : public QLabel {
  Q_OBJECT
 public:
  explicit Kurzlabel(QWidget* eltern = nullptr);

  void Zeigen(const QString& text, bool tooltip);
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* ereignis) override;
};

}  // namespace vesk
