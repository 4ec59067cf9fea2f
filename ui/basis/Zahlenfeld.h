#pragma once
#include "engine/Tastenfilter.h"
#include "ui/basis/Filterfeld.h"

namespace vesk {

/// Input field for one number. Typed characters pass the key filter, one by one and exactly once: a comma
/// becomes a point, what the filter swallows is not entered and beeps. A second point, a second sign and a
/// sign behind a digit are refused; what counts is the text without the selection, which the key replaces. A
/// pasted text must be one number, with blanks around it and a unit behind it at most, or it is refused
/// whole.
class Zahlenfeld : public Filterfeld {
  Q_OBJECT
 public:
  using Filterfeld::Filterfeld;

  /// Whether the number may be negative.
  void VorzeichenErlauben(bool erlaubt) { vorzeichen_ = erlaubt; }
  Tastenmarken& marken() { return marken_; }

 Q_SIGNALS:
  /// A mouse press of the user with any button, before the cursor is placed.
  void gedrueckt();
  /// Double click of the user.
  void doppelklick();
  /// A typed character has passed the filter; `zeichen` is what came back (0: swallowed). Emitted before the
  /// field takes it, so that a receiver may still clear the field.
  void gefiltert(int zeichen);

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override;
  void inputMethodEvent(QInputMethodEvent* ereignis) override;
  void mousePressEvent(QMouseEvent* ereignis) override;
  void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
  QString Filtern(const QString& text) override;

 private:
  QString OhneAuswahl() const;
  int Einfuegestelle() const;
  Filterantwort Pruefen(int zeichen);

  bool vorzeichen_ = false;
  Tastenmarken marken_;
};

}  // namespace vesk
