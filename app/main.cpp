#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>
#include <iostream>

#include "app/Desktop.h"
#include "app/Kommandozeile.h"
#include "app/Programm.h"
#include "app/Verzeichnisse.h"
#include "engine/Version.h"
#include "platform/Endesignal.h"
#include "platform/System.h"
#include "ui/basis/Dezimaltrenner.h"
#include "ui/basis/Lesbarkeit.h"
#include "ui/basis/Programmbild.h"

using namespace Qt::StringLiterals;

namespace {

int FensterOeffnen(int anzahl, char** argumente, const vesk::Aufruf& aufruf) {
  vesk::Endesignal ende;
  const QApplication anwendung(anzahl, argumente);
  QApplication::setApplicationVersion(QString::fromStdString(vesk::VersionLang()));
  // By this name the desktop finds the icon and the entry of the windows.
  QGuiApplication::setDesktopFileName(u"vesk"_s);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(vesk::Programmbild(64, 1));
  const vesk::Lesbarkeit lesbarkeit;
  // The toolkit's own dialogs and menus speak German, too.
  QTranslator uebersetzung;
  if (uebersetzung.load(u"qtbase_de"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&uebersetzung);
  }

  const vesk::Verzeichnisse verzeichnisse =
      vesk::VerzeichnisseBestimmen(aufruf.verzeichnis, QApplication::applicationDirPath());
  vesk::Desktop desktop(verzeichnisse);
  vesk::MitgelieferteKopieren(verzeichnisse, desktop.speicher);
  vesk::Station station;
  vesk::Programm programm(station, desktop.plattform, verzeichnisse);
  // exit, not quit: quit would close the windows, and closing the options window means something.
  QObject::connect(
      &programm, &vesk::Programm::beendet, qApp, [] { QApplication::exit(0); }, Qt::QueuedConnection);
  QObject::connect(&ende, &vesk::Endesignal::verlangt, &programm, &vesk::Programm::Beenden);
  ende.Lauschen();
  // In the event loop, so that a box of the start can be ended by a signal, too.
  QTimer::singleShot(0, &programm, [&] {
    programm.Starten();
    if (!aufruf.datei.isEmpty()) programm.DateiOeffnen(aufruf.datei);
  });
  return QApplication::exec();
}

}  // namespace

int main(int anzahl, char** argumente) {
  vesk::SchreibgrenzenAlsFehler();
  // Without buffers of its own the standard input would be read byte by byte.
  std::ios::sync_with_stdio(false);
  QCoreApplication::setApplicationName(u"Vesk"_s);
  QCoreApplication::setOrganizationName(u"Vesk"_s);
  QStringList texte;
  for (int i = 1; i < anzahl; ++i) texte.append(QString::fromLocal8Bit(argumente[i]));
  const char trenner = vesk::Dezimaltrenner(QLocale::system());
  const vesk::Aufruf aufruf = vesk::KommandozeileAusfuehren(texte, trenner, {std::cin, std::cout, std::cerr});
  if (aufruf.rueckgabe) return *aufruf.rueckgabe;
  if (!vesk::BildschirmVorhanden()) {
    std::cerr << "vesk: Es ist kein Bildschirm da. Im Terminal rechnet: vesk rechnen --help\n";
    return 1;
  }
  return FensterOeffnen(anzahl, argumente, aufruf);
}
