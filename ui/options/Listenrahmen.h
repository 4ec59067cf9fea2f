#pragma once
#include <QGroupBox>
#include <utility>
#include <vector>

class QListWidget;

namespace vesk {

/// Where a word of a caption stands: over this character of the lines of a list.
struct Kopfstelle {
  const QListWidget* liste;
  int zeichen;
};

/// Frame whose caption is the head of the lists in it: each of its words is written over its column.
class Listenrahmen : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

  /// In the order of the words.
  void Ausrichten(std::vector<Kopfstelle> stellen) { stellen_ = std::move(stellen); }

 protected:
  void paintEvent(QPaintEvent* ereignis) override;

 private:
  std::vector<Kopfstelle> stellen_;
};

}  // namespace vesk
