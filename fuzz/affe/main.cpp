#include <QApplication>
#include <QCommandLineParser>
#include <QProcess>
#include <cstdio>

#include "fuzz/affe/Lauf.h"
#include "fuzz/affe/Skript.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int JeSaat = 500;
constexpr int Geduld = 60'000;  // ms without an event: it hangs

/// What one seed did and how it ended.
struct Ausgang {
  bool gut = false;
  QByteArray skript;
  QString warum;
};

Ausgang Starten(unsigned saat, int ereignisse) {
  QProcess lauf;
  lauf.setProcessChannelMode(QProcess::MergedChannels);
  lauf.start(QCoreApplication::applicationFilePath(), {u"--nur"_s, u"--saat"_s, QString::number(saat),
                                                       u"--ereignisse"_s, QString::number(ereignisse)});
  Ausgang ausgang;
  while (lauf.state() != QProcess::NotRunning) {
    if (!lauf.waitForReadyRead(Geduld) && lauf.state() != QProcess::NotRunning) {
      lauf.kill();
      ausgang.warum = u"hängt"_s;
    }
    ausgang.skript += lauf.readAll();
  }
  lauf.waitForFinished();
  ausgang.skript += lauf.readAll();
  if (ausgang.warum.isEmpty() && lauf.exitStatus() == QProcess::CrashExit) ausgang.warum = u"abgestürzt"_s;
  if (ausgang.warum.isEmpty() && lauf.exitCode() != 0) ausgang.warum = u"Rückgabe %1"_s.arg(lauf.exitCode());
  ausgang.gut = ausgang.warum.isEmpty();
  return ausgang;
}

int NurEine(unsigned saat, int ereignisse) {
  vesk::affe::Zaehler zaehler;
  const QString fehler = vesk::affe::Laufen(saat, ereignisse, zaehler);
  vesk::affe::Schreiben(u"%1 Ereignisse, %2 Programme, %3 aktuelle Ergebnisse"_s.arg(zaehler.ereignisse)
                            .arg(zaehler.programme)
                            .arg(zaehler.aktuell));
  if (!fehler.isEmpty()) vesk::affe::Schreiben(u"FEHLER: "_s + fehler);
  // A run that never sees a figure proves nothing.
  return fehler.isEmpty() && (ereignisse < JeSaat || zaehler.aktuell > 0) ? 0 : 1;
}

}  // namespace

int main(int anzahl, char** argumente) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication anwendung(anzahl, argumente);
  QApplication::setQuitOnLastWindowClosed(false);
  QCommandLineParser leser;
  leser.setApplicationDescription(
      u"Bedient das ganze Programm nach Zufall; jede Saat ein eigener Prozess."_s);
  leser.addHelpOption();
  leser.addOptions({{u"saat"_s, u"erste Saat"_s, u"zahl"_s, u"1"_s},
                    {u"ereignisse"_s, u"im Ganzen"_s, u"zahl"_s, u"2000"_s},
                    {u"nur"_s, u"diese Saat in diesem Prozess, mit Skript"_s}});
  leser.process(anwendung);
  const unsigned saat = leser.value(u"saat"_s).toUInt();
  const int ereignisse = leser.value(u"ereignisse"_s).toInt();
  if (leser.isSet(u"nur"_s)) return NurEine(saat, ereignisse);

  int schlecht = 0;
  for (int i = 0; i * JeSaat < ereignisse; ++i) {
    const unsigned diese = saat + static_cast<unsigned>(i);
    const Ausgang ausgang = Starten(diese, std::min(JeSaat, ereignisse - i * JeSaat));
    if (ausgang.gut) continue;
    ++schlecht;
    std::fwrite(ausgang.skript.constData(), 1, static_cast<std::size_t>(ausgang.skript.size()), stdout);
    std::printf("Saat %u: %s\n", diese, qUtf8Printable(ausgang.warum));
  }
  std::printf("%d Ereignisse, %d Saaten mit Fehler\n", ereignisse, schlecht);
  return schlecht == 0 ? 0 : 1;
}
