#include "app/Verzeichnisse.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include "platform/Plattform.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

bool Tragbar(const QString& anwendung) {
  const QDir verzeichnis(anwendung);
  return QFileInfo(anwendung).isWritable() &&
         (verzeichnis.exists(u"user.dat"_s) || verzeichnis.exists(u"Kabel.txt"_s));
}

QString Programmverzeichnis(const QString& gewuenscht, const QString& anwendung) {
  if (!gewuenscht.isEmpty()) return QDir(gewuenscht).absolutePath();
  if (Tragbar(anwendung)) return anwendung;
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString Datenverzeichnis(const QString& anwendung) {
  for (const QString& ort : {anwendung + "/data"_L1, anwendung + "/../share/vesk"_L1}) {
    if (QFileInfo::exists(ort + "/Kabel.txt"_L1)) return QDir::cleanPath(ort);
  }
  return {};
}

}  // namespace

Verzeichnisse VerzeichnisseBestimmen(const QString& gewuenscht, const QString& anwendung) {
  return {Programmverzeichnis(gewuenscht, anwendung), Datenverzeichnis(anwendung)};
}

void MitgelieferteKopieren(const Verzeichnisse& verzeichnisse, Benutzerspeicher& speicher) {
  QDir().mkpath(verzeichnisse.programm);
  if (verzeichnisse.daten.isEmpty()) return;
  const QString schluessel = QString::fromLatin1(QUrl::toPercentEncoding(verzeichnisse.programm));
  for (const QString& name : {u"Kabel.txt"_s, u"Antennen.txt"_s, u"TIPOFDAY.TXT"_s}) {
    if (speicher.Lesen(name, schluessel)) continue;
    const QString ziel = verzeichnisse.programm + u'/' + name;
    if (!QFileInfo::exists(ziel)) {
      if (!QFile::copy(verzeichnisse.daten + u'/' + name, ziel)) continue;
      // What is copied from a read-only place must stay editable.
      QFile::setPermissions(ziel, QFile::permissions(ziel) | QFile::WriteOwner);
    }
    speicher.Schreiben(name, schluessel, u"1"_s);
  }
}

}  // namespace vesk
