#pragma once
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>

namespace vesk {

/// The pages of the manual by name, without the one that cites what others have published.
inline QMap<QString, QString> Handbuchseiten() {
  const QDir verzeichnis(QStringLiteral(VESK_DATEN "/hilfe"));
  QMap<QString, QString> seiten;
  for (const QString& name : verzeichnis.entryList({QStringLiteral("*.html")})) {
    QFile datei(verzeichnis.filePath(name));
    EXPECT_TRUE(datei.open(QIODevice::ReadOnly));
    seiten[name] = QString::fromUtf8(datei.readAll());
  }
  seiten.remove(QStringLiteral("quellen.html"));
  return seiten;
}

}  // namespace vesk
