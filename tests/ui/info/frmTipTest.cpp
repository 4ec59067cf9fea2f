#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFile>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "Finden.h"
#include "Skript.h"
#include "frmTip.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

const QPair<QString, QString> BeimStart = {u"Options"_s, u"Show Tips at Startup"_s};

class FrmTip : public testing::Test {
 protected:
  QString Datei(const QByteArray& inhalt) {
    QString pfad = verzeichnis.filePath(u"TIPOFDAY.TXT"_s);
    QFile datei(pfad);
    EXPECT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(inhalt);
    return pfad;
  }
  static QString Tip(frmTip& fenster) {
    fenster.show();
    return Finden<QPlainTextEdit>(fenster, u"txtTip"_s).toPlainText();
  }

  QTemporaryDir verzeichnis;
  skript::Speicher speicher;
};

TEST_F(FrmTip, NaechsterTipGehtReihum) {
  const QString pfad = Datei("eins\r\n\r\n<b>zw\xF6lf</b>\r\ndrei\r\n");
  {
    frmTip fenster(speicher, pfad);
    fenster.show();
    auto& naechster = Finden<QPushButton>(fenster, u"cmdNaechsterTip"_s);
    EXPECT_EQ(Tip(fenster), u"eins");
    QTest::keyClick(&naechster, Qt::Key_Space);
    EXPECT_EQ(Tip(fenster), u"<b>zwölf</b>");
    QTest::mouseClick(&naechster, Qt::LeftButton);
    EXPECT_EQ(Tip(fenster), u"drei");
    QTest::mouseClick(&naechster, Qt::LeftButton);
    EXPECT_EQ(Tip(fenster), u"eins");
    QTest::keyClick(&fenster, Qt::Key_Return);  // OK
    EXPECT_FALSE(fenster.isVisible());
    EXPECT_EQ(Tip(fenster), u"<b>zwölf</b>");  // opened again
  }
  frmTip neuerStart(speicher, pfad);
  EXPECT_EQ(Tip(neuerStart), u"drei");
  frmTip nurEiner(speicher, Datei("nur einer\n"));
  EXPECT_EQ(Tip(nurEiner), u"nur einer");
}

TEST_F(FrmTip, KaestchenStehtImSpeicher) {
  const QString pfad = Datei("eins\n");
  {
    frmTip fenster(speicher, pfad);
    auto& kaestchen = Finden<QCheckBox>(fenster, u"chkTipsBeimStart"_s);
    EXPECT_TRUE(kaestchen.isChecked());  // before any choice
    EXPECT_FALSE(speicher.werte.contains(BeimStart));
    QTest::keyClick(&kaestchen, Qt::Key_Space);
    EXPECT_EQ(speicher.werte[BeimStart], u"0");
  }
  frmTip fenster(speicher, pfad);
  auto& kaestchen = Finden<QCheckBox>(fenster, u"chkTipsBeimStart"_s);
  EXPECT_FALSE(kaestchen.isChecked());
  QTest::keyClick(&kaestchen, Qt::Key_Space);
  EXPECT_EQ(speicher.werte[BeimStart], u"1");
}

TEST_F(FrmTip, OhneTips) {
  for (const QString& pfad : {verzeichnis.filePath(u"fehlt"_s), verzeichnis.path(), Datei("\r\n \r\n")}) {
    frmTip fenster(speicher, pfad);
    EXPECT_EQ(Tip(fenster), u"Keine Tips gefunden.");
    EXPECT_FALSE(Finden<QPushButton>(fenster, u"cmdNaechsterTip"_s).isEnabled());
  }
}

TEST_F(FrmTip, UnsinnImSpeicher) {
  for (const QString& wert : {u"-1"_s, u"99999999999999999999"_s, u"abc"_s, u"7"_s}) {
    speicher.werte[{u"Options"_s, u"Next Tip"_s}] = wert;
    speicher.werte[BeimStart] = wert;
    frmTip fenster(speicher, Datei("eins\nzwei\n"));
    EXPECT_FALSE(Tip(fenster).isEmpty());
    EXPECT_FALSE(Finden<QCheckBox>(fenster, u"chkTipsBeimStart"_s).isChecked());
  }
}

}  // namespace
}  // namespace vesk
