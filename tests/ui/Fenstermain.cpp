#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QStandardPaths>

int main(int anzahl, char** argumente) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  const QApplication programm(anzahl, argumente);
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleTest(&anzahl, argumente);
  return RUN_ALL_TESTS();
}
