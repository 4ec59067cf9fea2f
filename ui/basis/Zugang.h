#pragma once
#include <QAccessible>
#include <QTimer>
#include <QWidget>

#include "station/Ergebniswerte.h"

/// What screen readers are told beyond what the toolkit tells them by itself.
namespace vesk {

/// For a control of a kind of our own; to be called in its constructor. One that is a button is pressed by a
/// space.
void ZugangsrolleSetzen(QWidget& control, QAccessible::Role rolle);

/// Says the results of a window when they change: "Sicherheitsabstand ohne HSM 1.99 Meter". The window that
/// is active says those of the others, too, all in one. Not to be seen.
class Ansage : public QWidget {
  Q_OBJECT
 public:
  explicit Ansage(QWidget* fenster);

  /// The results that the window shows now, those that count most first. What is not in sight is not said,
  /// nor is what the user types himself.
  void Zeigen(Ergebniswerte werte);
  /// Says some of them, also when they have not changed.
  void Vorlesen(std::size_t erster, std::size_t anzahl);
  /// Says it at once.
  void Sagen(const QStringList& texte);

 private:
  void Warten();
  void Sammeln();

  Ergebniswerte werte_;
  Ergebniswerte gesagt_;
  QStringList fremde_;  ///< results of other windows
  QTimer sammeln_;      ///< what changes together is said together
};

}  // namespace vesk
