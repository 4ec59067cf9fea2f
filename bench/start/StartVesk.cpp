#include <QApplication>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>

#include "Gemalt.h"
#include "app/Desktop.h"
#include "app/Programm.h"
#include "platform/Endesignal.h"
#include "ui/basis/Lesbarkeit.h"
#include "ui/basis/Programmbild.h"

using namespace Qt::StringLiterals;

/// As the program starts, on the directory given as argument.
int main(int anzahl, char** argumente) {
  vesk::Endesignal ende;
  const QApplication anwendung(anzahl, argumente);
  QApplication::setApplicationName(u"Vesk"_s);
  QApplication::setOrganizationName(u"Vesk"_s);
  QApplication::setWindowIcon(vesk::Programmbild(64, 1));
  const vesk::Lesbarkeit lesbarkeit;
  QTranslator uebersetzung;
  if (uebersetzung.load(u"qtbase_de"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&uebersetzung);
  }

  const vesk::Verzeichnisse verzeichnisse =
      vesk::VerzeichnisseBestimmen(QApplication::arguments().value(1), QApplication::applicationDirPath());
  vesk::Desktop desktop(verzeichnisse);
  vesk::MitgelieferteKopieren(verzeichnisse, desktop.speicher);
  vesk::Station station;
  vesk::Programm programm(station, desktop.plattform, verzeichnisse);
  ende.Lauschen();
  const Gemalt gemalt(programm.Hauptfenster());
  QTimer::singleShot(0, &programm, &vesk::Programm::Starten);
  return QApplication::exec();
}
