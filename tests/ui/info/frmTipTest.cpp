#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "station/Station.h"
#include "tests/platform/Skript.h"
#include "tests/ui/Finden.h"
#include "ui/info/frmInfo.h"
#include "ui/info/frmTip.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

const QPair<QString, QString> BeimStart = {u"Options"_s, u"Show Tips at Startup"_s};
const QPair<QString, QString> Naechster = {u"Options"_s, u"Next Tip"_s};

QString Tip(frmTip& fenster) {
  fenster.show();
  return Finden<QPlainTextEdit>(fenster, u"txtTip"_s).toPlainText();
}

TEST(FrmTip, NaechsterTipGehtReihumUndWeiterBeimNaechstenMal) {
  skript::Speicher speicher;
  frmTip fenster(speicher, {"eins", "<b>zwölf</b>", "drei"});
  EXPECT_EQ(Tip(fenster), u"eins");
  for (const QString& tip : {u"<b>zwölf</b>"_s, u"drei"_s, u"eins"_s}) {
    QTest::mouseClick(&Finden<QPushButton>(fenster, u"cmdNaechsterTip"_s), Qt::LeftButton);
    EXPECT_EQ(Tip(fenster), tip);
  }
  QTest::keyClick(&fenster, Qt::Key_Return);  // OK
  EXPECT_FALSE(fenster.isVisible());
  EXPECT_EQ(Tip(fenster), u"<b>zwölf</b>");
  frmTip neuerStart(speicher, {"eins", "zwei", "drei"});
  EXPECT_EQ(Tip(neuerStart), u"drei");
}

TEST(FrmTip, KaestchenStehtImSpeicherUndUnsinnSchadetNicht) {
  skript::Speicher speicher;
  for (const QString& wert : {u"0"_s, u"1"_s}) {
    frmTip fenster(speicher, {});
    EXPECT_EQ(Tip(fenster), u"Keine Tips gefunden.");
    auto& kaestchen = Finden<QCheckBox>(fenster, u"chkTipsBeimStart"_s);
    EXPECT_EQ(kaestchen.isChecked(), speicher.werte.value(BeimStart, u"1"_s) == u"1");
    QTest::keyClick(&kaestchen, Qt::Key_Space);
    EXPECT_EQ(speicher.werte[BeimStart], wert);
  }
  for (const QString& wert : {u"-1"_s, u"99999999999999999999"_s, u"abc"_s, u"7"_s}) {
    speicher.werte = {{Naechster, wert}, {BeimStart, wert}};
    frmTip fenster(speicher, {"eins", "zwei"});
    EXPECT_FALSE(Tip(fenster).isEmpty());
  }
}

TEST(FrmInfo, NenntVersionenUndDateiUndKopiert) {
  frmInfo fenster;
  Station station;
  station.Arbeitsverzeichnis = "/daten/öl";
  station.UserDatei = "DL1ABC.dat";
  fenster.Zeigen(station);
  EXPECT_TRUE(Finden<QLabel>(fenster, u"lblDatei"_s).text().endsWith(u"/daten/öl/DL1ABC.dat"_s));
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblName"_s).text(), u"Vesk Version 2.5.1");
  const QString angaben = Finden<QPlainTextEdit>(fenster, u"txtSystem"_s).toPlainText();
  EXPECT_TRUE(angaben.contains(u"Vesk Version 2.5.1\nQt "_s + QString::fromLatin1(qVersion())));
  QTest::keyClick(&Finden<QPushButton>(fenster, u"cmdKopieren"_s), Qt::Key_Space);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), angaben);
}

}  // namespace
}  // namespace vesk
