#include <QApplication>
#include <QWidget>

#include "Gemalt.h"

int main(int anzahl, char** argumente) {
  const QApplication anwendung(anzahl, argumente);
  QWidget fenster;
  fenster.resize(900, 330);
  const Gemalt gemalt(fenster);
  fenster.show();
  return QApplication::exec();
}
