#include "fuzz/ausfall/Befehlszeile.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cerrno>
#include <iostream>

#include "persistence/UserDatei.h"

using namespace Qt::StringLiterals;

namespace vesk::ausfall {

namespace {

struct Befehl {
  const char* name;
  QStringList argumente;  ///< DIR stands for the directory
  QByteArray alt;         ///< what stands in the output before
};

struct Ergebnis {
  bool erreicht = false;
  int rueckgabe = 0;
  QByteArray aus;
  QByteArray fehler;
};

QByteArray Inhalt(const QString& pfad) {
  QFile datei(pfad);
  return datei.open(QFile::ReadOnly) ? datei.readAll() : QByteArray();
}

void Anlegen(const QString& pfad, const QByteArray& bytes) {
  QFile datei(pfad);
  if (datei.open(QFile::WriteOnly)) datei.write(bytes);
}

Ergebnis Ausfuehren(const Befehl& befehl, const QString& ausfall) {
  const QTemporaryDir ordner;
  const QString ziel = ordner.filePath(u"ziel/aus"_s);
  QDir(ordner.path()).mkpath(u"ziel"_s);
  Anlegen(ordner.filePath(u"user.dat"_s), QByteArray::fromStdString(UserDateiSchreiben(Station())));
  Anlegen(ziel, befehl.alt);
  QStringList argumente = befehl.argumente;
  argumente.replaceInStrings(u"DIR"_s, ordner.path());
  QProcess prozess;
  QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
  umgebung.insert(u"LD_PRELOAD"_s, QStringLiteral(VESK_AUSFALL));
  umgebung.insert(u"AUSFALL"_s, ausfall);
  umgebung.insert(u"AUSFALL_ORT"_s, ordner.filePath(u"ziel"_s));
  umgebung.insert(u"AUSFALL_BERICHT"_s, ordner.filePath(u"erreicht"_s));
  umgebung.insert(u"SOURCE_DATE_EPOCH"_s, u"946684800"_s);
  prozess.setProcessEnvironment(umgebung);
  if (!argumente.contains(ziel)) prozess.setStandardOutputFile(ziel);
  prozess.start(QStringLiteral(VESK_PROGRAMM), argumente);
  prozess.waitForFinished();
  return {QFile::exists(ordner.filePath(u"erreicht"_s)),
          prozess.exitStatus() == QProcess::NormalExit ? prozess.exitCode() : -1, Inhalt(ziel),
          prozess.readAllStandardError()};
}

/// What is wrong; empty: nothing. Where the shell has opened the output there is no old file.
std::string Mangel(const Befehl& befehl, const Ergebnis& gut, const Ergebnis& jetzt) {
  if (jetzt.rueckgabe < 0) return "abgestürzt";
  if (jetzt.aus != gut.aus && jetzt.rueckgabe == 0) return "gelungen gemeldet";
  if (jetzt.aus != gut.aus && jetzt.fehler.isEmpty()) return "kein Wort davon";
  if (jetzt.aus != gut.aus && !befehl.alt.isEmpty() && jetzt.aus != befehl.alt) return "weder alt noch neu";
  return {};
}

}  // namespace

bool BefehlszeileFaelltAus() {
  const Befehl befehle[] = {
      {"vesk drucken",
       {u"drucken"_s, u"--art"_s, u"antrag"_s, u"--datei"_s, u"DIR/user.dat"_s, u"--verzeichnis"_s,
        QStringLiteral(VESK_DATEN), u"--nach"_s, u"DIR/ziel/aus"_s},
       "alt"},
      {"vesk rechnen", {u"rechnen"_s, u"--qrg"_s, u"14,2"_s, u"--pwr"_s, u"100"_s}, ""},
  };
  const QString rufe[] = {u"oeffnen %1 13"_s,    u"schreiben %1 28"_s, u"schreiben %1 5"_s,
                          u"kurz %1 0"_s,        u"voll %1 28"_s,      u"fsync %1 5"_s,
                          u"umbenennen %1 13"_s, u"schliessen %1 5"_s, u"verzeichnis %1 5"_s};
  int ausgefallen = 0;
  int maengel = 0;
  for (const Befehl& befehl : befehle) {
    const Ergebnis gut = Ausfuehren(befehl, {});
    for (const QString& ruf : rufe) {
      for (int nummer = 1;; ++nummer) {
        const Ergebnis jetzt = Ausfuehren(befehl, ruf.arg(nummer));
        if (!jetzt.erreicht) break;
        ++ausgefallen;
        const std::string mangel = Mangel(befehl, gut, jetzt);
        if (mangel.empty()) continue;
        ++maengel;
        std::cout << befehl.name << ", " << ruf.arg(nummer).toStdString() << ": " << mangel << "\n    | "
                  << jetzt.rueckgabe << ' ' << jetzt.fehler.toStdString() << '\n';
      }
    }
  }
  std::cout << "Befehlszeile: " << ausgefallen << " Ausfälle, " << maengel << " Mängel\n";
  return maengel == 0 && ausgefallen > 0;
}

}  // namespace vesk::ausfall
