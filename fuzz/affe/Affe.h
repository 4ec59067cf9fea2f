#pragma once
#include <QTimer>
#include <QWidget>

#include "fuzz/affe/Ordner.h"
#include "fuzz/affe/Zufall.h"

namespace vesk::affe {

/// Works the open windows by mouse, keyboard, input method, menus and dropped files. Every event is written
/// down before it happens.
class Affe {
 public:
  Affe(Zufall& zufall, Ordner& ordner);
  void Handeln();

 private:
  QWidgetList Fensterliste();
  void Maus(QWidget* ziel);
  void Tippen(QWidget* ziel);
  void Taste();
  void Menue(QWidget* fenster);
  void Werfen(QWidget* fenster);
  void Rechnen();
  /// Answers what waits for the user by itself: menus and the windows that hold up all others.
  void Wegklicken();

  Zufall& zufall_;
  Ordner& ordner_;
  QTimer takt_;
};

}  // namespace vesk::affe
