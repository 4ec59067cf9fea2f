#pragma once
#include <QLineEdit>

namespace vesk {

/// Input field whose pasted, dropped and composed texts pass a filter; the derived field does the same for
/// typed keys. So no way of entering a text goes round the filter.
class Filterfeld : public QLineEdit {
  Q_OBJECT
 public:
  using QLineEdit::QLineEdit;

 protected:
  /// What the field takes of a text that the user enters; beeps when something was refused.
  virtual QString Filtern(const QString& text) = 0;
  /// A letter with Alt or Meta: an access key that nobody has taken, which must not become a letter here.
  static bool FreieZugriffstaste(const QKeyEvent& ereignis);
  /// Enters a text at the cursor as far as the filter lets it pass.
  void Einfuegen(const QString& text);

  void keyPressEvent(QKeyEvent* ereignis) override;
  void inputMethodEvent(QInputMethodEvent* ereignis) override;
  void mouseReleaseEvent(QMouseEvent* ereignis) override;
  void contextMenuEvent(QContextMenuEvent* ereignis) override;
  void dropEvent(QDropEvent* ereignis) override;
};

}  // namespace vesk
