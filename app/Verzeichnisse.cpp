#include "app/Verzeichnisse.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>

#include "app/Pfadtext.h"
#include "persistence/Dateien.h"
#include "persistence/Neufassung.h"
#include "platform/Plattform.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// The toolkit puts this character in the place of bytes that are no text, which names another directory.
constexpr QChar Ersatz = QChar::ReplacementCharacter;

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
  Verzeichnisse v{Programmverzeichnis(gewuenscht, anwendung), Datenverzeichnis(anwendung)};
  if (v.programm.contains(Ersatz) && !gewuenscht.contains(Ersatz)) v.programm.clear();
  return v;
}

void MerkspeicherBestimmen(const Verzeichnisse& verzeichnisse) {
  if (!QSettings().fileName().contains(Ersatz)) return;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, verzeichnisse.programm);
}

std::string MitgelieferteKopieren(const Verzeichnisse& verzeichnisse, Benutzerspeicher& speicher) {
  std::error_code fehler;
  std::filesystem::create_directories(AlsPfad(verzeichnisse.programm), fehler);
  if (fehler) return Fehlertext(fehler.default_error_condition().value());
  std::string hindernis = WarumNichtBeschreibbar(AlsPfad(verzeichnisse.programm)).value_or("");
  if (verzeichnisse.daten.isEmpty()) return hindernis;
  const QString schluessel = QString::fromLatin1(QUrl::toPercentEncoding(verzeichnisse.programm));
  const std::initializer_list<QString> namen = {u"Kabel.txt"_s, u"Antennen.txt"_s, u"TIPOFDAY.TXT"_s};
  const QDir verzeichnis(verzeichnisse.programm);
  const bool leer =
      std::none_of(namen.begin(), namen.end(), [&](const QString& name) { return verzeichnis.exists(name); });
  for (const QString& name : namen) {
    if (!leer && speicher.Lesen(name, schluessel)) continue;
    const QString ziel = verzeichnisse.programm + u'/' + name;
    if (!QFileInfo::exists(ziel)) {
      if (Fehlergrund grund = DateiKopieren(AlsPfad(verzeichnisse.daten + u'/' + name), AlsPfad(ziel))) {
        hindernis = *grund;
        continue;
      }
      // What is copied from a read-only place must stay editable.
      QFile::setPermissions(ziel, QFile::permissions(ziel) | QFile::WriteOwner);
    }
    speicher.Schreiben(name, schluessel, u"1"_s);
  }
  return hindernis;
}

}  // namespace vesk
