#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "Feldhilfe.h"
#include "Finden.h"
#include "Rechenwerte.h"
#include "Skript.h"
#include "frmLstg.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

class FrmLstg : public testing::Test {
 protected:
  void SetUp() override {
    fenster.show();
    fenster.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
    ASSERT_TRUE(dbm.hasFocus());
  }
  QString Texte() const { return dbm.text() + u'|' + dbw.text() + u'|' + watt.text(); }

  skript::Buehne buehne;
  Rechenwerte werte;
  frmLstg fenster{buehne.plattform, werte, ','};
  QLineEdit& dbm = Finden<QLineEdit>(fenster, u"txtDBm"_s);
  QLineEdit& dbw = Finden<QLineEdit>(fenster, u"txtDBW"_s);
  QLineEdit& watt = Finden<QLineEdit>(fenster, u"txtWatt"_s);
};

TEST_F(FrmLstg, EnterRechnetUndDerNaechsteWertErsetztAlles) {
  QTest::keyClicks(&dbm, u"30"_s);
  EXPECT_EQ(Texte(), u"30||");
  QTest::keyClick(&dbm, Qt::Key_Return);
  EXPECT_EQ(Texte(), u"30|0,00|1,000");
  EXPECT_TRUE(dbm.hasFocus());
  EXPECT_FALSE(werte.EnterGedrueckt);

  QTest::keyClick(&dbm, Qt::Key_A);  // swallowed: clears nothing
  EXPECT_EQ(buehne.ton.anzahl, 1);
  EXPECT_EQ(Texte(), u"30|0,00|1,000");

  QTest::keyClicks(&dbm, u"-10"_s);
  EXPECT_EQ(Texte(), u"-10||");
  QTest::keyClick(&dbm, Qt::Key_Enter);
  EXPECT_EQ(Texte(), u"-10|-40,00|0,000");
  QTest::keyClick(&dbm, Qt::Key_Backspace);
  EXPECT_EQ(Texte(), u"||");
}

TEST_F(FrmLstg, KommaWirdPunktUndMinusNurAmAnfang) {
  QTest::keyClicks(&dbm, u"1-,5"_s);
  EXPECT_EQ(dbm.text(), u"1.5");
  EXPECT_EQ(buehne.ton.anzahl, 1);
  QTest::keyClick(&dbm, Qt::Key_Home, Qt::ShiftModifier);
  QTest::keyClick(&dbm, Qt::Key_Delete);
  QTest::keyClicks(&dbm, u"-3"_s);
  EXPECT_EQ(dbm.text(), u"-3");

  watt.setFocus();
  EXPECT_EQ(Texte(), u"||");
  QTest::keyClicks(&watt, u"-5"_s);
  EXPECT_EQ(watt.text(), u"5");
  EXPECT_EQ(buehne.ton.anzahl, 2);
}

TEST_F(FrmLstg, AbwaertsRechnetUndBleibt) {
  watt.setFocus();
  QTest::keyClicks(&watt, u"2"_s);
  QTest::keyClick(&watt, Qt::Key_Down);
  EXPECT_EQ(Texte(), u"33,01|3,01|2");
  EXPECT_TRUE(watt.hasFocus());
  QTest::keyClick(&watt, Qt::Key_Up);
  EXPECT_TRUE(dbw.hasFocus());
  EXPECT_EQ(Texte(), u"||");
}

TEST_F(FrmLstg, TabRechnetErstUndGehtDannWeiter) {
  QTest::keyClicks(&dbm, u"50"_s);
  QTest::keyClick(&dbm, Qt::Key_Tab);
  EXPECT_EQ(Texte(), u"50|20,00|100,000");
  EXPECT_TRUE(dbm.hasFocus());
  QTest::keyClicks(&dbm, u"1"_s);  // Tab sets no result-shown mark: the digit is appended
  EXPECT_EQ(dbm.text(), u"501");
  QTest::keyClick(&dbm, Qt::Key_Backspace);
  QTest::keyClick(&dbm, Qt::Key_Tab);
  EXPECT_TRUE(dbw.hasFocus());
  EXPECT_EQ(Texte(), u"||");
  QTest::keyClick(&dbw, Qt::Key_Tab);
  EXPECT_TRUE(watt.hasFocus());
}

TEST_F(FrmLstg, AbgelehntesMeldetSichNurEinmal) {
  buehne.boxen.Erwarten(u"Hinweis"_s,
                        u"Der eingegebene Wert ist zu groß\n10 Mega Watt = 70 dBW oder 100 dBm"_s);
  QTest::keyClicks(&dbm, u"100,1"_s);
  QTest::keyClick(&dbm, Qt::Key_Tab);
  EXPECT_EQ(Texte(), u"100.1||");
  EXPECT_EQ(werte.Antwort, 1);
  QTest::keyClick(&dbm, Qt::Key_Tab);
  QTest::keyClick(&dbw, Qt::Key_Tab);
  EXPECT_TRUE(watt.hasFocus());

  buehne.boxen.Erwarten(u"Hinweis"_s, u"Der eingegebene Wert muß größer Null sein"_s);
  QTest::keyClicks(&watt, u"0"_s);
  dbm.setFocus();
  EXPECT_EQ(buehne.boxen.gezeigt.size(), 1U);  // not while the focus is moving
  QCoreApplication::processEvents();
  EXPECT_EQ(buehne.boxen.gezeigt.size(), 2U);
  EXPECT_TRUE(dbm.hasFocus());
}

TEST_F(FrmLstg, ZahlAusserhalbDesBereichsGehtNichtVerloren) {
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Überlauf"_s);
  watt.setFocus();
  QTest::keyClicks(&watt, QString(60, u'9'));
  QTest::keyClick(&watt, Qt::Key_Down);
  EXPECT_EQ(watt.text(), QString(60, u'9'));
}

TEST_F(FrmLstg, RueckkehrVonBoxUndMenueLoeschtNichts) {
  QTest::keyClicks(&dbm, u"30"_s);
  for (const auto grund : {Qt::PopupFocusReason, Qt::MenuBarFocusReason, Qt::ActiveWindowFocusReason}) {
    QFocusEvent weg(QEvent::FocusOut, grund);
    QCoreApplication::sendEvent(&dbm, &weg);
    EXPECT_EQ(Texte(), u"30||") << grund;
    QFocusEvent da(QEvent::FocusIn, grund);
    QCoreApplication::sendEvent(&dbm, &da);
    EXPECT_EQ(Texte(), u"30||") << grund;
  }
}

TEST_F(FrmLstg, AnderesFensterIstVerlassen) {
  QWidget anderes;
  QTest::keyClicks(&dbm, u"30"_s);
  anderes.show();
  anderes.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&anderes));
  EXPECT_EQ(Texte(), u"30|0,00|1,000");
  fenster.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
  EXPECT_EQ(Texte(), u"||");
}

TEST_F(FrmLstg, SchliessenMeldetNichtsUndNeuesZeigenIstLeer) {
  QTest::keyClicks(&dbm, u"200"_s);
  QTest::keyClick(&dbm, Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_FALSE(fenster.isVisible());
  fenster.show();
  EXPECT_EQ(Texte(), u"||");
}

TEST_F(FrmLstg, EinfuegenUeberEinErgebnis) {
  QTest::keyClicks(&dbm, u"30"_s);
  QTest::keyClick(&dbm, Qt::Key_Return);
  QGuiApplication::clipboard()->setText(u"4,5 dBm"_s);
  QTest::keySequence(&dbm, QKeySequence::Paste);
  EXPECT_EQ(Texte(), u"4.5||");
  EXPECT_EQ(buehne.ton.anzahl, 1);
}

TEST_F(FrmLstg, TextehilfeUndNummern) {
  const QString text = u"Diese Felder dienen zur Umrechnung von Watt, dBW und dbm. "_s;
  fenster.ToolTips(true);
  for (const QLineEdit* feld : {&dbm, &dbw, &watt}) {
    EXPECT_EQ(feld->toolTip(), text);
    EXPECT_TRUE(feld->accessibleName().startsWith(u"Leistung in "_s));
  }
  fenster.ToolTips(false);
  EXPECT_TRUE(watt.toolTip().isEmpty());
  EXPECT_EQ(dbm.property(HilfekontextEigenschaft).toInt(), 3001);
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblReferat"_s).property(HilfekontextEigenschaft).toInt(), 3005);
}

}  // namespace
}  // namespace vesk
