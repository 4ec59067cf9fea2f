#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>

#include "Gemalt.h"

/// What any window with texts costs: its fonts and the controls' drawing, and nothing of this program.
int main(int anzahl, char** argumente) {
  const QApplication anwendung(anzahl, argumente);
  QMainWindow fenster;
  fenster.resize(900, 330);
  fenster.menuBar()->addMenu(QStringLiteral("&Datei"))->addAction(QStringLiteral("&Beenden"));
  auto* const titel = new QLabel(QStringLiteral("Frequenz"), &fenster);
  titel->setGeometry(20, 60, 120, 24);
  auto* const feld = new QLineEdit(QStringLiteral("14.2"), &fenster);
  feld->setGeometry(160, 60, 120, 24);
  const Gemalt gemalt(fenster);
  fenster.show();
  return QApplication::exec();
}
