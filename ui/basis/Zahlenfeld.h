#pragma once
#include "Filterfeld.h"

namespace vesk {

struct Rechenwerte;
class Signalton;

/// Input field whose typed and pasted characters pass the key filter, one by one and exactly once.
/// Comma becomes a point, what the filter swallows is not entered and beeps.
class Zahlenfeld : public Filterfeld {
  Q_OBJECT
 public:
  Zahlenfeld(Rechenwerte& werte, Signalton& ton, QWidget* eltern = nullptr);

 Q_SIGNALS:
  /// A mouse press of the user with any button, before the cursor is placed.
  void gedrueckt();
  /// Double click of the user.
  void doppelklick();
  /// A typed character has passed the filter; `zeichen` is what came back (0: swallowed). Emitted before the
  /// field takes it, so that a receiver may still clear the field.
  void gefiltert(int zeichen);
  /// The focus came from, or went to, another control or another window of the program. A menu, a message
  /// box, a file dialog or another program that takes the focus for a while is no leaving.
  void betreten();
  void verlassen();

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override;
  void inputMethodEvent(QInputMethodEvent* ereignis) override;
  void mousePressEvent(QMouseEvent* ereignis) override;
  void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
  void focusInEvent(QFocusEvent* ereignis) override;
  QString Filtern(const QString& text) override;

 private:
  void FokusGewechselt(const QWidget* jetzt);

  bool betreten_ = false;
  Rechenwerte& werte_;
  Signalton& ton_;
};

}  // namespace vesk
