#include <QApplication>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>

#include "Gemalt.h"
#include "app/Programm.h"
#include "platform/Endesignal.h"
#include "platform/QtDrucker.h"
#include "platform/QtPlattform.h"
#include "ui/basis/Programmbild.h"
#include "ui/info/Hilfesystem.h"

using namespace Qt::StringLiterals;

/// As the program starts, on the directory given as argument.
int main(int anzahl, char** argumente) {
  vesk::Endesignal ende;
  const QApplication anwendung(anzahl, argumente);
  QApplication::setApplicationName(u"Vesk"_s);
  QApplication::setOrganizationName(u"Vesk"_s);
  QApplication::setWindowIcon(vesk::Programmbild(64, 1));
  QTranslator uebersetzung;
  if (uebersetzung.load(u"qtbase_de"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&uebersetzung);
  }

  vesk::QtMeldungsboxen boxen;
  vesk::QtDateidialoge dialoge;
  vesk::QtBenutzerspeicher speicher;
  vesk::QtSignalton ton;
  vesk::QtDrucker drucker;
  vesk::QtBetrachter betrachter;
  vesk::QtFortschrittsanzeige fortschritt;
  const vesk::Verzeichnisse verzeichnisse =
      vesk::VerzeichnisseBestimmen(QApplication::arguments().value(1), QApplication::applicationDirPath());
  vesk::MitgelieferteKopieren(verzeichnisse, speicher);
  vesk::Station station;
  vesk::Hilfesystem hilfe(verzeichnisse.daten + "/hilfe"_L1, boxen, drucker);
  vesk::Plattform plattform{boxen, dialoge, hilfe, speicher, ton, drucker, betrachter, fortschritt};
  vesk::Programm programm(station, plattform, verzeichnisse);
  ende.Lauschen();
  const Gemalt gemalt(programm.Hauptfenster());
  QTimer::singleShot(0, &programm, &vesk::Programm::Starten);
  return QApplication::exec();
}
