#include "fuzz/affe/Ordner.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include "fuzz/affe/Skript.h"

using namespace Qt::StringLiterals;

namespace vesk::affe {

namespace {

QByteArray Gelesen(const QString& datei) {
  QFile quelle(datei);
  return quelle.open(QIODevice::ReadOnly) ? quelle.readAll() : QByteArray();
}

void Geschrieben(const QString& datei, const QByteArray& bytes) {
  QFile ziel(datei);
  if (ziel.open(QIODevice::WriteOnly)) ziel.write(bytes);
}

}  // namespace

QStringList Ordner::Dateien(QDir::Filters welche) const {
  QStringList dateien;
  QDirIterator weg(ordner_.path(), welche, QDirIterator::Subdirectories);
  while (weg.hasNext()) dateien << weg.next();
  dateien.sort();
  return dateien;
}

QString Ordner::Datei(const QString& endung) {
  const QStringList dateien = Dateien(QDir::Files);
  switch (zufall_(6)) {
    case 0:
      return Pfad() + u"/user."_s + endung;
    case 1:
      return Pfad() + u"/DL1AB&C %1."_s + endung;
    case 2:
      QDir().mkpath(ordner_.filePath(u"ä ö/ü"_s));
      return ordner_.filePath(u"ä ö/ü/user."_s) + endung;
    case 3:
      return ordner_.filePath(u"nirgends/user."_s) + endung;
    case 4:
      return ordner_.path();
    default:
      return dateien.isEmpty() ? Pfad() : zufall_.Aus(dateien);
  }
}

void Ordner::Treffen(const QString& datei) {
  QByteArray bytes = Gelesen(datei);
  const std::size_t art = zufall_(8);
  Schreiben(u"Schaden %1 an %2"_s.arg(art).arg(datei.mid(ordner_.path().size() + 1)));
  const auto stelle =
      bytes.isEmpty() ? 0 : static_cast<qsizetype>(zufall_(static_cast<std::size_t>(bytes.size())));
  switch (art) {
    case 0:
      QFile::remove(datei);
      break;
    case 1:
      Geschrieben(datei, bytes.first(stelle));
      break;
    case 2:
      Geschrieben(datei, {});
      break;
    case 3:
      if (!bytes.isEmpty()) bytes[stelle] = static_cast<char>(zufall_(256));
      Geschrieben(datei, bytes);
      break;
    case 4:
      Geschrieben(datei,
                  bytes.first(stelle) + QByteArray(static_cast<int>(zufall_(5000)), '9') + bytes.mid(stelle));
      break;
    case 5:
      QFile::remove(datei);
      QDir().mkpath(datei);
      break;
    case 6:
      QFile::copy(datei, Pfad() + u"/Kopie "_s + datei.section(u'/', -1));
      break;
    default:
      QFile::remove(datei + u".alt"_s);
      QFile::rename(datei, datei + u".alt"_s);
      QFile::link(datei + u".alt"_s, datei);
  }
}

void Ordner::Beschaedigen() {
  const QStringList dateien = Dateien(QDir::Files | QDir::Hidden);
  if (dateien.isEmpty()) return;
  for (std::size_t i = zufall_(3); i > 0; --i) Treffen(zufall_.Aus(dateien));
}

}  // namespace vesk::affe
