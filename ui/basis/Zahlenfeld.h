#pragma once
#include <QLineEdit>

namespace vesk {

struct Rechenwerte;
class Signalton;

/// Input field whose typed and pasted characters pass the key filter, one by one and exactly once.
/// Comma becomes a point, what the filter swallows is not entered and beeps.
class Zahlenfeld : public QLineEdit {
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

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override;
  void inputMethodEvent(QInputMethodEvent* ereignis) override;
  void mousePressEvent(QMouseEvent* ereignis) override;
  void mouseReleaseEvent(QMouseEvent* ereignis) override;
  void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
  void contextMenuEvent(QContextMenuEvent* ereignis) override;
  void dropEvent(QDropEvent* ereignis) override;

 private:
  QString Filtern(const QString& text);
  void Einfuegen(const QString& text);

  Rechenwerte& werte_;
  Signalton& ton_;
};

}  // namespace vesk
