#pragma once
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace vesk {

/// One cable is enough for the options window to load without a message.
inline void KabeldateiAnlegen(const QString& verzeichnis) {
  QFile kabel(QDir(verzeichnis).filePath(QStringLiteral("Kabel.txt")));
  ASSERT_TRUE(kabel.open(QIODevice::WriteOnly));
  kabel.write("RG213,0.56,0.8,1.28,1.86,2.66,4.23,6.12,9.18,16.17,25.9,42.3,79.7\r\n");
}

}  // namespace vesk
