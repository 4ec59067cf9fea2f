#pragma once
#include <QLineEdit>

namespace vesk {

class Signalton;

/// Input field whose pasted, dropped and composed texts pass a filter; the derived field does the same for
/// typed keys. So no way of entering a text goes round the filter.
class Filterfeld : public QLineEdit {
  Q_OBJECT
 public:
  explicit Filterfeld(Signalton& ton, QWidget* eltern = nullptr);
  ~Filterfeld() override;

 Q_SIGNALS:
  /// The focus came from, or went to, another control or another window of the program. A menu, a message
  /// box, a file dialog or another program that takes the focus for a while is no leaving.
  void betreten();
  void verlassen();

 protected:
  /// What the field takes of a text that the user enters at the cursor; beeps when something was refused.
  virtual QString Filtern(const QString& text) = 0;
  /// A letter with Alt or Meta: an access key that nobody has taken, which must not become a letter here.
  static bool FreieZugriffstaste(const QKeyEvent& ereignis);
  /// Enters a text at the cursor as far as the filter lets it pass.
  void Einfuegen(const QString& text);
  void Piep();

  void focusInEvent(QFocusEvent* ereignis) override;
  void keyPressEvent(QKeyEvent* ereignis) override;
  void inputMethodEvent(QInputMethodEvent* ereignis) override;
  void mouseReleaseEvent(QMouseEvent* ereignis) override;
  void contextMenuEvent(QContextMenuEvent* ereignis) override;
  void dropEvent(QDropEvent* ereignis) override;

 private:
  void FokusGewechselt(const QWidget* jetzt);

  Signalton& ton_;
  bool betreten_ = false;
};

}  // namespace vesk
