#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>
#include <csignal>
#include <iostream>

#include "app/Kommandozeile.h"
#include "app/Programm.h"
#include "app/Verzeichnisse.h"
#include "engine/Version.h"
#include "platform/Endesignal.h"
#include "platform/QtDrucker.h"
#include "platform/QtPlattform.h"
#include "ui/basis/Dezimaltrenner.h"
#include "ui/basis/Programmbild.h"
#include "ui/info/Hilfesystem.h"

using namespace Qt::StringLiterals;

namespace {

bool OhneBildschirm() {
  return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
         qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

int FensterOeffnen(int anzahl, char** argumente, const QString& verzeichnis) {
  vesk::Endesignal ende;
  const QApplication anwendung(anzahl, argumente);
  QApplication::setApplicationVersion(QString::fromStdString(vesk::VersionLang()));
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(vesk::Programmbild(64, 1));
  // The toolkit's own dialogs and menus speak German, too.
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
      vesk::VerzeichnisseBestimmen(verzeichnis, QApplication::applicationDirPath());
  vesk::MitgelieferteKopieren(verzeichnisse, speicher);
  vesk::Station station;
  vesk::Hilfesystem hilfe(verzeichnisse.daten + "/hilfe"_L1, boxen, drucker);
  vesk::Plattform plattform{boxen, dialoge, hilfe, speicher, ton, drucker, betrachter, fortschritt};
  vesk::Programm programm(station, plattform, verzeichnisse);
  // exit, not quit: quit would close the windows, and closing the options window means something.
  QObject::connect(
      &programm, &vesk::Programm::beendet, qApp, [] { QApplication::exit(0); }, Qt::QueuedConnection);
  QObject::connect(&ende, &vesk::Endesignal::verlangt, &programm, &vesk::Programm::Beenden);
  ende.Lauschen();
  // In the event loop, so that a box of the start can be ended by a signal, too.
  QTimer::singleShot(0, &programm, &vesk::Programm::Starten);
  return QApplication::exec();
}

}  // namespace

int main(int anzahl, char** argumente) {
  // A limit on the size of files must let a save fail, not end the program with the data in it.
  std::signal(SIGXFSZ, SIG_IGN);
  QCoreApplication::setApplicationName(u"Vesk"_s);
  QCoreApplication::setOrganizationName(u"Vesk"_s);
  QStringList texte;
  for (int i = 1; i < anzahl; ++i) texte.append(QString::fromLocal8Bit(argumente[i]));
  const char trenner = vesk::Dezimaltrenner(QLocale::system());
  const vesk::Aufruf aufruf = vesk::KommandozeileAusfuehren(texte, trenner, std::cout, std::cerr);
  if (aufruf.rueckgabe) return *aufruf.rueckgabe;
  if (OhneBildschirm()) {
    std::cerr << "vesk: Es ist kein Bildschirm da. Im Terminal rechnet: vesk rechnen --help\n";
    return 1;
  }
  return FensterOeffnen(anzahl, argumente, aufruf.verzeichnis);
}
