#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSysInfo>
#include <QTest>

#include "Finden.h"
#include "frmInfo.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

TEST(FrmInfo, NenntVersionenUndKopiertSie) {
  frmInfo fenster;
  fenster.show();
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblName"_s).text(), u"Vesk Version 2.5.1");
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblGewaehr"_s).text(), u"Alle Angaben ohne Gewähr");
  const QString angaben = Finden<QPlainTextEdit>(fenster, u"txtSystem"_s).toPlainText();
  for (const QString& teil :
       {u"Vesk Version 2.5.1"_s, u"Qt "_s + QString::fromLatin1(qVersion()), QSysInfo::prettyProductName(),
        QSysInfo::kernelVersion(), QGuiApplication::platformName()}) {
    EXPECT_TRUE(angaben.contains(teil)) << teil.toStdString();
  }
  QGuiApplication::clipboard()->clear();
  QTest::keyClick(&Finden<QPushButton>(fenster, u"cmdKopieren"_s), Qt::Key_Space);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), angaben);
  EXPECT_TRUE(fenster.isVisible());
  QTest::keyClick(&fenster, Qt::Key_Return);
  EXPECT_FALSE(fenster.isVisible());
}

}  // namespace
}  // namespace vesk
