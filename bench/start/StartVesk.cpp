#include <QApplication>

#include "Gemalt.h"
#include "Hilfesystem.h"
#include "Programm.h"
#include "QtDokumentdrucker.h"
#include "QtPlattform.h"

/// As the program starts, on the directory given as argument.
int main(int anzahl, char** argumente) {
  const QApplication anwendung(anzahl, argumente);
  QApplication::setApplicationName(QStringLiteral("Vesk"));
  QApplication::setOrganizationName(QStringLiteral("Vesk"));
  vesk::QtMeldungsboxen boxen;
  vesk::QtDateidialoge dialoge;
  vesk::QtBenutzerspeicher speicher;
  vesk::QtSignalton ton;
  vesk::QtDokumentdrucker drucker;
  vesk::Zustand zustand;
  vesk::Hilfesystem hilfe(QString(), boxen, zustand.werte, drucker);
  vesk::Plattform plattform{boxen, dialoge, hilfe, speicher, ton};
  vesk::Programm programm(zustand, plattform, {QApplication::arguments().value(1), QString()});
  const Gemalt gemalt(programm.Hauptfenster());
  programm.Starten();
  return QApplication::exec();
}
