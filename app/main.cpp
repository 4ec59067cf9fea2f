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
  vesk::KeinenBusStarten();
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

  vesk::Verzeichnisse verzeichnisse =
      vesk::VerzeichnisseBestimmen(aufruf.verzeichnis, QApplication::applicationDirPath());
  vesk::Desktop desktop(verzeichnisse);
  if (verzeichnisse.programm.isEmpty()) {
    QObject::connect(&ende, &vesk::Endesignal::verlangt, qApp, &QApplication::closeAllWindows);
    ende.Lauschen();
    desktop.plattform.boxen.Zeigen(vesk::Fehlermeldung(
        "Der Name des Verzeichnisses für Ihre Daten enthält Zeichen, die nicht lesbar sind (kein UTF-8). "
        "Bitte geben Sie mit --verzeichnis ein anderes an."));
    return 1;
  }
  vesk::MerkspeicherBestimmen(verzeichnisse);
  verzeichnisse.hindernis = vesk::MitgelieferteKopieren(verzeichnisse, desktop.speicher);
  vesk::Station station;
  vesk::Programm programm(station, desktop.plattform, verzeichnisse);
  // exit, not quit: quit would close the windows, and closing the options window means something.
  QObject::connect(
      &programm, &vesk::Programm::beendet, qApp,
      [](int rueckgabe) {
        if (rueckgabe != 0)
          std::cerr << "vesk: Ungesicherte Änderungen werden beim nächsten Start angeboten.\n";
        QApplication::exit(rueckgabe);
      },
      Qt::QueuedConnection);
  QObject::connect(&ende, &vesk::Endesignal::verlangt, &programm, &vesk::Programm::EndeVerlangt);
  QObject::connect(&ende, &vesk::Endesignal::angekuendigt, &programm, &vesk::Programm::RettungSichern);
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
  const std::optional<QStringList> texte = vesk::ArgumenteLesen(anzahl, argumente, std::cerr);
  if (!texte) return 2;
  const char trenner = vesk::Dezimaltrenner(QLocale::system());
  const vesk::Aufruf aufruf =
      vesk::KommandozeileAusfuehren(*texte, trenner, {std::cin, std::cout, std::cerr});
  if (aufruf.rueckgabe) return *aufruf.rueckgabe;
  if (!vesk::BildschirmVorhanden()) {
    std::cerr << "vesk: Es ist kein Bildschirm da. Im Terminal rechnet: vesk rechnen --help\n";
    return 1;
  }
  return FensterOeffnen(anzahl, argumente, aufruf);
}
