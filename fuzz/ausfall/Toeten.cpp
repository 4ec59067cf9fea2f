#include "fuzz/ausfall/Toeten.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <iostream>
#include <random>
#include <thread>

#include "fuzz/ausfall/Buehne.h"
#include "persistence/Lageplandatei.h"
#include "persistence/UserDatei.h"

using namespace Qt::StringLiterals;

namespace vesk::ausfall {

namespace {

using namespace std::chrono_literals;

QByteArray Inhalt(const QString& pfad) {
  QFile datei(pfad);
  return datei.open(QFile::ReadOnly) ? datei.readAll() : QByteArray();
}

/// Reading and writing it again gives the same bytes.
bool Ganz(const QByteArray& bytes) {
  Station s;
  const Lesebericht bericht = UserDateiLesen(bytes.toStdString(), s);
  return !bericht.abgebrochen && UserDateiSchreiben(s) == bytes.toStdString() &&
         s.benutzer.Name.starts_with("Anna ");
}

/// The number behind the name: how far the saving has come.
int Stand(const std::string& name) {
  return name.starts_with("Anna ") ? std::stoi(name.substr(5)) : 0;
}

/// Waits for the first file, then for a random time.
bool Abwarten(const QString& datei, std::mt19937& zufall) {
  for (int i = 0; i < 2000 && !QFile::exists(datei); ++i) std::this_thread::sleep_for(5ms);
  if (!QFile::exists(datei)) return false;
  std::this_thread::sleep_for(std::chrono::microseconds(std::uniform_int_distribution(0, 40000)(zufall)));
  return true;
}

std::string Mangel(const char* programm, std::mt19937& zufall) {
  const QTemporaryDir ordner;
  const QString verzeichnis = ordner.path();
  QFile::copy(QStringLiteral(VESK_DATEN) + u"/Kabel.txt"_s, ordner.filePath(u"Kabel.txt"_s));
  const std::string pfad = verzeichnis.toStdString();
  const pid_t kind = fork();
  if (kind == 0) {
    execl(programm, programm, "--sichern", pfad.c_str(), nullptr);
    _exit(127);
  }
  const bool da = Abwarten(ordner.filePath(u"angefangen"_s), zufall);
  kill(kind, SIGKILL);
  waitpid(kind, nullptr, 0);
  if (!da) return "speichert nicht";
  const QByteArray user = Inhalt(ordner.filePath(u"user.dat"_s));
  if (!Ganz(user)) return "user.dat ist nicht ganz: " + std::to_string(user.size()) + " Bytes";
  Station gespeichert;
  UserDateiLesen(user.toStdString(), gespeichert);
  const QByteArray bytes = Inhalt(ordner.filePath(u"user.lageplan"_s));
  const Lageplanlesung plan = LageplanLesen(bytes.toStdString());
  if (!plan.fehler.empty()) return "user.lageplan ist nicht ganz: " + std::to_string(bytes.size()) + " Bytes";
  Lauf danach(verzeichnis);
  danach.programm.Starten();
  if (Stand(danach.station.benutzer.Name) < Stand(gespeichert.benutzer.Name) ||
      Stand(danach.station.lageplan.bezugsname) < Stand(plan.plan.bezugsname)) {
    return "ein älterer Stand kommt wieder";
  }
  return {};
}

}  // namespace

void Sichern(const QString& verzeichnis) {
  Lauf lauf(verzeichnis);
  lauf.programm.Starten();
  for (int i = 1;; ++i) {
    lauf.Tippen("Anna " + std::to_string(i));
    lauf.programm.RettungSichern();
    if (i % 2 == 0) continue;  // every other state stands in the copy alone
    lauf.programm.Befehlen(Befehl::DateiSpeichern);
    if (i == 1) QFile(verzeichnis + u"/angefangen"_s).open(QFile::WriteOnly);
  }
}

bool Toeten(const char* programm, int anzahl, unsigned int seed) {
  std::cout << anzahl << " Tötungen, --seed " << seed << '\n' << std::flush;
  std::mt19937 zufall(seed);
  int maengel = 0;
  for (int i = 1; i <= anzahl; ++i) {
    const std::string mangel = Mangel(programm, zufall);
    if (mangel.empty()) continue;
    ++maengel;
    std::cout << "Tötung " << i << ": " << mangel << '\n';
  }
  std::cout << anzahl << " Tötungen, " << maengel << " Mängel\n";
  return maengel == 0;
}

}  // namespace vesk::ausfall
