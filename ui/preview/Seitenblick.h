#pragma once
#include <QImage>
#include <QScrollArea>

#include "print/Mappe.h"

class QLabel;

namespace vesk {

/// A page as a picture with a hair of a frame, at `jeMillimeter` points of the screen, each of
/// `pixelJePunkt` pixels.
QImage Seitenbild(const Mappe& mappe, std::size_t seite, double jeMillimeter, double pixelJePunkt);

/// One page of the papers, to be looked at closely. At its ends the mouse wheel goes on to the next page.
class Seitenblick : public QScrollArea {
  Q_OBJECT
 public:
  /// How large: so that width or height fit, or in parts of the true size.
  static constexpr double Seitenbreite = 0;
  static constexpr double GanzeSeite = -1;
  static constexpr double Kleinste = 0.25;
  static constexpr double Groesste = 4;

  explicit Seitenblick(QWidget* eltern);

  /// Page from 0. The papers must outlive their being shown.
  void Zeigen(const Mappe& mappe, std::size_t seite);
  /// There is no page; tells why.
  void Leeren(const QString& grund);
  void Vergroesserung(double wert);
  /// As it is now, in parts of the true size.
  double Jetzt() const;

 Q_SIGNALS:
  /// On by so many pages.
  void geblaettert(int seiten);

 protected:
  void resizeEvent(QResizeEvent* ereignis) override;
  void wheelEvent(QWheelEvent* ereignis) override;

 private:
  void Malen();

  const Mappe* mappe_ = nullptr;
  std::size_t seite_ = 0;
  double vergroesserung_ = GanzeSeite;
  int rad_ = 0;  ///< turned at an end, in eighths of a degree
  QLabel* imgSeite;
};

}  // namespace vesk
