#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "Druckskript.h"
#include "Finden.h"
#include "Hilfebuch.h"
#include "Rechenwerte.h"
#include "Skript.h"
#include "frmHilfe.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

class FrmHilfe : public testing::Test {
 protected:
  void SetUp() override {
    fenster.show();
    fenster.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
    fenster.Zeigen(u"start.html"_s);
  }
  void TearDown() override { boxen.AllesGezeigt(); }
  QString Seite() const { return anzeige.source().path().mid(1); }
  QAction& Aktion(const QString& name) { return Finden<QAction>(fenster, name); }

  skript::Boxen boxen;
  Rechenwerte werte;
  skript::Drucker drucker;
  Hilfebuch buch{QStringLiteral(VESK_DATEN "/hilfe")};
  frmHilfe fenster{buch, boxen, werte, drucker};
  QTextBrowser& anzeige = Finden<QTextBrowser>(fenster, u"anzSeite"_s);
  QTreeWidget& baum = Finden<QTreeWidget>(fenster, u"treInhalt"_s);
  QListWidget& funde = Finden<QListWidget>(fenster, u"lstFundstellen"_s);
};

TEST_F(FrmHilfe, BlaetternMitDerTastatur) {
  EXPECT_EQ(fenster.windowTitle(), u"Hilfe – Willkommen bei Vesk");
  EXPECT_FALSE(Aktion(u"mnuZurueck"_s).isEnabled());
  QTest::keyClick(&anzeige, Qt::Key_Tab);  // first link of the page
  QTest::keyClick(&anzeige, Qt::Key_Return);
  EXPECT_EQ(Seite(), u"zweck.html");
  EXPECT_EQ(baum.currentItem()->text(0), u"Was Vesk berechnet – und was nicht");
  QTest::keyClick(&fenster, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Seite(), u"start.html");
  QTest::keyClick(&fenster, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Seite(), u"zweck.html");
  EXPECT_FALSE(Aktion(u"mnuVor"_s).isEnabled());
  QTest::keyClick(&fenster, Qt::Key_F1);
  EXPECT_EQ(Seite(), u"hilfe-benutzen.html");
  QTest::keyClick(&fenster, Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(Seite(), u"start.html");
  QTest::keyClick(&anzeige, Qt::Key_Escape);
  EXPECT_FALSE(fenster.isVisible());
}

TEST_F(FrmHilfe, InhaltSchlaegtAuf) {
  baum.setFocus();
  QTest::keyClick(&baum, Qt::Key_Down);
  QTest::keyClick(&baum, Qt::Key_Down);
  EXPECT_EQ(Seite(), u"start.html");  // only Enter opens
  QTest::keyClick(&baum, Qt::Key_Return);
  EXPECT_EQ(Seite(), u"erste-schritte.html");

  QTreeWidgetItem* kind = baum.topLevelItem(2)->child(0);
  QTest::mouseClick(baum.viewport(), Qt::LeftButton, {}, baum.visualItemRect(kind).center());
  EXPECT_EQ(Seite(), u"erste-berechnung.html");
}

TEST_F(FrmHilfe, FehlendeSeiteWirdGemeldetUndDieAlteBleibt) {
  boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Hilfedatei nicht gefunden: fehlt.html"_s);
  fenster.Zeigen(u"fehlt.html"_s);
  EXPECT_EQ(Seite(), u"start.html");
}

TEST_F(FrmHilfe, SuchenUndFundstellen) {
  QTest::keyClick(&fenster, Qt::Key_F, Qt::ControlModifier);
  auto& feld = Finden<QLineEdit>(fenster, u"txtSuche"_s);
  ASSERT_TRUE(feld.hasFocus());
  QTest::keyClicks(&feld, u"Xylophon"_s);
  QTest::keyClick(&feld, Qt::Key_Return);
  ASSERT_EQ(funde.count(), 1);
  EXPECT_EQ(funde.item(0)->text(), u"Nichts gefunden.");

  feld.selectAll();
  QTest::keyClicks(&feld, u"Nahfeldgrenze"_s);
  QTest::keyClick(&feld, Qt::Key_Return);
  ASSERT_GE(funde.count(), 2);
  ASSERT_TRUE(funde.hasFocus());
  EXPECT_TRUE(anzeige.extraSelections().isEmpty());
  while (!funde.currentItem()->text().startsWith(u"Nahfeldsituation"_s))
    QTest::keyClick(&funde, Qt::Key_Down);
  QTest::keyClick(&funde, Qt::Key_Return);
  EXPECT_EQ(Seite(), u"nahfeld.html");
  const auto stellen = anzeige.extraSelections();
  ASSERT_GE(stellen.size(), 2);
  EXPECT_EQ(stellen[0].cursor.selectedText(), u"Nahfeldgrenze");
  EXPECT_EQ(anzeige.textCursor().position(), stellen[0].cursor.selectionStart());
  QTest::keyClick(&fenster, Qt::Key_F3);
  EXPECT_EQ(anzeige.textCursor().position(), stellen[1].cursor.selectionStart());
  for (qsizetype i = 1; i < stellen.size(); ++i) QTest::keyClick(&fenster, Qt::Key_F3);
  EXPECT_EQ(anzeige.textCursor().position(), stellen[0].cursor.selectionStart());

  fenster.Zeigen(u"kabel.html"_s);
  EXPECT_TRUE(anzeige.extraSelections().isEmpty());
}

TEST_F(FrmHilfe, DrucktDieSeite) {
  fenster.Zeigen(u"nahfeld.html"_s);
  QTest::keyClick(&fenster, Qt::Key_P, Qt::ControlModifier);
  ASSERT_EQ(drucker.titelliste, QStringList{u"Hilfe – Nahfeldsituation Aufklärung"_s});
  EXPECT_TRUE(drucker.texte[0].contains(u"Fernfeld ab"_s));
}

TEST_F(FrmHilfe, JederEintragHatSeinenEigenenBuchstaben) {
  const auto buchstabe = [](const QString& text) { return text.mid(text.indexOf(u'&') + 1, 1).toUpper(); };
  QSet<QString> fensterbuchstaben;
  for (const QAction* menue : fenster.menuBar()->actions()) {
    EXPECT_FALSE(fensterbuchstaben.contains(buchstabe(menue->text()))) << menue->text().toStdString();
    fensterbuchstaben.insert(buchstabe(menue->text()));
    QSet<QString> eintraege;
    for (const QAction* eintrag : menue->menu()->actions()) {
      if (eintrag->isSeparator()) continue;
      EXPECT_FALSE(eintraege.contains(buchstabe(eintrag->text()))) << eintrag->text().toStdString();
      EXPECT_FALSE(eintrag->shortcut().isEmpty()) << eintrag->text().toStdString();
      eintraege.insert(buchstabe(eintrag->text()));
    }
  }
  const auto& karten = Finden<QTabWidget>(fenster, u"tabLinks"_s);
  for (const QString& text : {karten.tabText(0), karten.tabText(1)}) {
    EXPECT_FALSE(fensterbuchstaben.contains(buchstabe(text))) << text.toStdString();
    fensterbuchstaben.insert(buchstabe(text));
  }
}

}  // namespace
}  // namespace vesk
