// Failure injection: every system call that the program writes its files with fails once, and the program is
// killed while it saves.
//
//   ausfall [--toetungen N] [--seed S]   all calls of all ways of writing, then N kills (50)
//   ausfall --rundgang DIR               a whole run, to be watched from outside
#include <QApplication>
#include <QLocale>
#include <iostream>
#include <random>
#include <string_view>

#include "fuzz/ausfall/Befehlszeile.h"
#include "fuzz/ausfall/Pruefung.h"
#include "fuzz/ausfall/Rundgang.h"
#include "fuzz/ausfall/Toeten.h"

int main(int anzahl, char** argumente) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  const QApplication anwendung(anzahl, argumente);
  QCoreApplication::setApplicationName(QStringLiteral("Vesk"));
  QCoreApplication::setOrganizationName(QStringLiteral("Vesk"));
  QApplication::setQuitOnLastWindowClosed(false);
  const auto zahl = [&](std::string_view name, unsigned int vorgabe) {
    for (int i = 1; i + 1 < anzahl; ++i) {
      if (argumente[i] == name) return static_cast<unsigned int>(std::stoul(argumente[i + 1]));
    }
    return vorgabe;
  };
  const std::string_view erstes = anzahl > 1 ? argumente[1] : "";
  if (erstes == "--rundgang" && anzahl == 3)
    return vesk::ausfall::Rundgehen(QString::fromLocal8Bit(argumente[2]));
  if (erstes == "--sichern" && anzahl == 3) vesk::ausfall::Sichern(QString::fromLocal8Bit(argumente[2]));
  const int toetungen = static_cast<int>(zahl("--toetungen", 50));
  const unsigned int seed = zahl("--seed", std::random_device()());
  bool gut = vesk::ausfall::AlleAusfaelle();
  gut = vesk::ausfall::BefehlszeileFaelltAus() && gut;
  gut = vesk::ausfall::Toeten("/proc/self/exe", toetungen, seed) && gut;
  return gut ? 0 : 1;
}
