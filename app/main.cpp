#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <algorithm>
#include <array>
#include <csignal>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "Dezimaltrenner.h"
#include "Endesignal.h"
#include "Hilfesystem.h"
#include "Kommandozeile.h"
#include "Programm.h"
#include "Programmbild.h"
#include "QtDokumentdrucker.h"
#include "QtPlattform.h"
#include "Version.h"
#include "Verzeichnisse.h"

using namespace Qt::StringLiterals;

namespace {

struct Startoptionen {
  bool hilfe = false;
  bool version = false;
  bool plattform = false;  ///< the toolkit was told where to show its windows
  QString verzeichnis;
  std::string fehler;
};

/// Options that the toolkit reads itself; each has a value.
constexpr std::array<std::string_view, 5> Toolkitoptionen = {"-platform", "-display", "-style", "-geometry",
                                                             "-name"};

Startoptionen Lesen(const std::vector<std::string>& argumente) {
  Startoptionen optionen;
  for (std::size_t i = 0; i < argumente.size(); ++i) {
    const std::string& argument = argumente[i];
    if (argument == "--help" || argument == "-h") {
      optionen.hilfe = true;
    } else if (argument == "--version") {
      optionen.version = true;
    } else if (argument == "--verzeichnis" && i + 1 < argumente.size()) {
      optionen.verzeichnis = QString::fromStdString(argumente[++i]);
    } else if (argument.starts_with("--verzeichnis=")) {
      optionen.verzeichnis = QString::fromStdString(argument.substr(argument.find('=') + 1));
    } else if (std::find(Toolkitoptionen.begin(), Toolkitoptionen.end(), argument) != Toolkitoptionen.end()) {
      optionen.plattform = optionen.plattform || argument == "-platform" || argument == "-display";
      ++i;
    } else if (argument == "--verzeichnis") {
      optionen.fehler = "Der Option --verzeichnis fehlt ihr Wert.";
    } else {
      optionen.fehler = "Unbekannte Angabe: " + argument;
    }
  }
  return optionen;
}

int Fehlaufruf(const std::string& text) {
  std::cerr << "vesk: " << text << "\nMehr dazu: vesk --help\n";
  return 2;
}

bool OhneBildschirm() {
  return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
         qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

int FensterOeffnen(int anzahl, char** argumente, const Startoptionen& optionen) {
  // A limit on the size of files must let a save fail, not end the program with the data in it.
  std::signal(SIGXFSZ, SIG_IGN);
  vesk::Endesignal ende;
  const QApplication anwendung(anzahl, argumente);
  QApplication::setApplicationName(u"Vesk"_s);
  QApplication::setOrganizationName(u"Vesk"_s);
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
  vesk::QtDokumentdrucker drucker;
  const vesk::Verzeichnisse verzeichnisse =
      vesk::VerzeichnisseBestimmen(optionen.verzeichnis, QApplication::applicationDirPath());
  vesk::MitgelieferteKopieren(verzeichnisse, speicher);
  vesk::Zustand zustand;
  vesk::Hilfesystem hilfe(verzeichnisse.daten + "/hilfe"_L1, boxen, zustand.werte, drucker);
  vesk::Plattform plattform{boxen, dialoge, hilfe, speicher, ton};
  vesk::Programm programm(zustand, plattform, verzeichnisse);
  // exit, not quit: quit would close the windows, and closing the options window means something.
  QObject::connect(
      &programm, &vesk::Programm::beendet, qApp, [] { QApplication::exit(0); }, Qt::QueuedConnection);
  QObject::connect(&ende, &vesk::Endesignal::verlangt, &programm, &vesk::Programm::Beenden);
  ende.Lauschen();
  programm.Starten();
  return QApplication::exec();
}

}  // namespace

int main(int anzahl, char** argumente) {
  const std::vector<std::string> texte(argumente + 1, argumente + anzahl);
  if (!texte.empty() && texte.front() == "rechnen") {
    const char trenner = vesk::Dezimaltrenner(QLocale::system());
    return vesk::Rechnen(std::span(texte).subspan(1), trenner, std::cout, std::cerr);
  }
  const Startoptionen optionen = Lesen(texte);
  if (optionen.hilfe) {
    std::cout << vesk::Hilfetext();
    return 0;
  }
  if (optionen.version) {
    std::cout << vesk::Produktname << ' ' << vesk::VersionLang() << '\n';
    return 0;
  }
  if (!optionen.fehler.empty()) return Fehlaufruf(optionen.fehler);
  if (OhneBildschirm() && !optionen.plattform) {
    std::cerr << "vesk: Es ist kein Bildschirm da. Im Terminal rechnet: vesk rechnen --help\n";
    return 1;
  }
  return FensterOeffnen(anzahl, argumente, optionen);
}
