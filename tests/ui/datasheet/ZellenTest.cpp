#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenu>

#include "Blatt.h"

namespace vesk {

namespace {

class Zellen : public Blatt {};

TEST_F(Zellen, GetipptesStehtImZustandUndGiltAlsAenderung) {
  QTest::keyClicks(&Feld(2, ZeileAntenne), u"Dipol 2 x 10,5 m"_s);
  EXPECT_EQ(Text(2, ZeileAntenne), "Dipol 2 x 10,5 m");
  EXPECT_TRUE(zustand.UserGeaendert);
}

TEST_F(Zellen, KommaWirdNurInZahlenzeilenZumPunkt) {
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    QTest::keyClicks(&Feld(1, zeile), u"1,5"_s);
    const bool zahl = zeile == 3 || zeile >= 6;
    EXPECT_EQ(Text(1, zeile), zahl ? "1.5" : "1,5") << zeile;
  }
  EXPECT_EQ(buehne.ton.anzahl, 0);
}

TEST_F(Zellen, NimmtNurWasDieDateiFasst) {
  struct Fall {
    QString zeichen;
    bool genommen;
  };
  const Fall faelle[] = {{u"\""_s, false}, {u"Ω"_s, false}, {u"→"_s, false}, {u"ł"_s, false}, {u"'"_s, true},
                         {u"ß"_s, true},   {u"€"_s, true},  {u"„"_s, true},  {u"Ž"_s, true},  {u" "_s, true}};
  QLineEdit& zelle = Feld(1, ZeileRichtung);
  for (const Fall& fall : faelle) {
    zelle.setText(u"ab"_s);
    zelle.selectAll();
    zustand.UserGeaendert = false;
    const int toene = buehne.ton.anzahl;
    QTest::sendKeyEvent(QTest::Click, &zelle, Qt::Key_unknown, fall.zeichen, Qt::NoModifier);
    EXPECT_EQ(zelle.text(), fall.genommen ? fall.zeichen : u"ab"_s);
    EXPECT_EQ(zustand.UserGeaendert, fall.genommen) << fall.zeichen.toStdString();
    EXPECT_EQ(buehne.ton.anzahl - toene, fall.genommen ? 0 : 1);
  }
}

TEST_F(Zellen, HaltenZwanzigZeichen) {
  QTest::keyClicks(&Feld(7, ZeileHoehe), u"123456789012345678901234"_s);
  EXPECT_EQ(Text(7, ZeileHoehe), "12345678901234567890");
}

TEST_F(Zellen, EingefuegtesGehtDurchDenFilter) {
  QGuiApplication::clipboard()->setText(u" a\"b,\tc\n"_s);
  QTest::keyClick(&Feld(1, ZeileAntenne), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text(1, ZeileAntenne), "ab, c");
  EXPECT_EQ(buehne.ton.anzahl, 1);

  QContextMenuEvent rechts(QContextMenuEvent::Keyboard, QPoint(1, 1), fenster.mapToGlobal(QPoint(1, 1)));
  QApplication::sendEvent(&Feld(2, ZeileGewinn), &rechts);
  auto* menue = Feld(2, ZeileGewinn).findChild<QMenu*>();
  ASSERT_NE(menue, nullptr);
  for (QAction* aktion : menue->actions()) {
    if (aktion->text().startsWith(QLineEdit::tr("&Paste"))) aktion->trigger();
  }
  menue->close();
  EXPECT_EQ(Text(2, ZeileGewinn), "ab. c");
  EXPECT_EQ(buehne.ton.anzahl, 2);
}

TEST_F(Zellen, ZusammengesetzteZeichenGehenDurchDenFilter) {
  QInputMethodEvent zeichen;
  zeichen.setCommitString(u"ü\"Ω,"_s);
  QApplication::sendEvent(&Feld(1, ZeileLeistung), &zeichen);
  EXPECT_EQ(Text(1, ZeileLeistung), "ü.");
}

TEST_F(Zellen, TastenWechselnDieZeileAberNichtDieSpalte) {
  struct Fall {
    int von;
    Qt::Key taste;
    int nach;
  };
  const Fall faelle[] = {{1, Qt::Key_Return, 2}, {5, Qt::Key_Enter, 6},    {11, Qt::Key_Down, 12},
                         {12, Qt::Key_Up, 11},   {12, Qt::Key_Return, 12}, {12, Qt::Key_Down, 12},
                         {1, Qt::Key_Up, 1}};
  for (const Fall& fall : faelle) {
    Feld(3, fall.von).setFocus();
    QTest::keyClick(&Feld(3, fall.von), fall.taste);
    EXPECT_EQ(fenster.focusWidget(), &Feld(3, fall.nach)) << fall.von << ' ' << fall.taste;
  }
  EXPECT_EQ(zustand.werte.Spalte, 0);
  EXPECT_FALSE(zustand.UserGeaendert);
}

TEST_F(Zellen, TabulatorLaeuftSpalteFuerSpalte) {
  Feld(1, 12).setFocus();
  QTest::keyClick(&fenster, Qt::Key_Tab);
  EXPECT_EQ(fenster.focusWidget(), static_cast<QWidget*>(&Kopf(2)));
  QTest::keyClick(&fenster, Qt::Key_Tab);
  EXPECT_EQ(fenster.focusWidget(), &Feld(2, 1));
  Feld(7, 12).setFocus();
  QTest::keyClick(&fenster, Qt::Key_Tab);
  EXPECT_EQ(fenster.focusWidget()->objectName(), u"chkOptionen"_s);
}

TEST_F(Zellen, SchreibenDurchDasProgramm) {
  fenster.ZelleSetzen(4, ZeileOhneHSM, u"1.99"_s);
  EXPECT_EQ(Text(4, ZeileOhneHSM), "1.99");
  EXPECT_TRUE(zustand.UserGeaendert);
  zustand.UserGeaendert = false;
  fenster.ZelleSetzen(4, ZeileOhneHSM, u"1.99"_s);
  EXPECT_FALSE(zustand.UserGeaendert) << "derselbe Text ist keine Änderung";
  fenster.ZelleSetzen(4, ZeileAntenne, u"eine sehr lange Antennenbezeichnung"_s);
  EXPECT_EQ(Text(4, ZeileAntenne), "eine sehr lange Ante");
}

TEST_F(Zellen, FuellenIstKeineAenderungUndMachtSchwarz) {
  fenster.SpaltenschriftSetzen(1, Qt::cyan);
  Text(1, ZeileHoehe) = "länger als zwanzig Zeichen";
  Text(7, ZeileHSMvde) = "3,5 \"";
  fenster.Fuellen({});
  EXPECT_EQ(Feld(1, ZeileHoehe).text(), u"länger als zwanzig Z"_s);
  EXPECT_EQ(Text(1, ZeileHoehe), "länger als zwanzig Z");
  EXPECT_EQ(Feld(7, ZeileHSMvde).text(), u"3,5 \""_s) << "nur Getipptes wird geändert";
  EXPECT_FALSE(zustand.UserGeaendert);
  EXPECT_EQ(Feld(1, ZeileHoehe).palette().color(QPalette::Text), QColor(Qt::black));
  // Once more with the cut text already shown.
  Text(1, ZeileHoehe) = "länger als zwanzig Zeichen";
  fenster.Fuellen({});
  EXPECT_EQ(Text(1, ZeileHoehe), "länger als zwanzig Z");
  QTest::keyClicks(&Feld(1, ZeileRichtung), u"x"_s);
  EXPECT_TRUE(zustand.UserGeaendert);
}

}  // namespace

}  // namespace vesk
