#pragma once
#include <QColor>

#include "Textfeld.h"

namespace vesk {

/// A cell of the data sheet. It keeps its text colour when its background changes.
class Zelle : public Textfeld {
  Q_OBJECT
 public:
  using Textfeld::Textfeld;

  void Faerben(const QColor& grund, const QColor& schrift);
  void Grundfarbe(const QColor& farbe) { Faerben(farbe, schrift_); }
  void Schriftfarbe(const QColor& farbe) { Faerben(grund_, farbe); }
  const QColor& Grundfarbe() const { return grund_; }
  const QColor& Schriftfarbe() const { return schrift_; }

  /// A text from the program: shown from its beginning.
  void Zeigen(const QString& text);

 Q_SIGNALS:
  /// A click of the user with the left button.
  void geklickt();
  /// Enter and the cursor keys leave the cell: +1 for the row below, -1 for the one above.
  void zeilenwechsel(int schritt);

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override;
  void mouseReleaseEvent(QMouseEvent* ereignis) override;
  void focusOutEvent(QFocusEvent* ereignis) override;

 private:
  QColor grund_;
  QColor schrift_;
};

}  // namespace vesk
