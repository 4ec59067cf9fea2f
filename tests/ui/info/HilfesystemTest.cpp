#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "tests/platform/Skript.h"
#include "tests/ui/Finden.h"
#include "ui/info/Hilfesystem.h"
#include "ui/info/frmHilfe.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

struct HilfesystemTest : testing::Test {
  void Handbuch() {
    hilfe.Aufrufen(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt, 0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(hilfe.Fenster()));
  }
  QTextBrowser& Anzeige() { return Finden<QTextBrowser>(*hilfe.Fenster(), u"anzSeite"_s); }
  std::string Seite() { return Anzeige().source().path().mid(1).toStdString(); }
  void Taste(Qt::Key taste, Qt::KeyboardModifiers zusatz = {}) {
    QTest::keyClick(hilfe.Fenster()->focusWidget(), taste, zusatz);
  }

  skript::Boxen boxen;
  skript::Drucker drucker;
  Hilfesystem hilfe{QStringLiteral(VESK_DATEN "/hilfe"), boxen, drucker};
};

TEST_F(HilfesystemTest, BlaetternMitDerTastatur) {
  Handbuch();
  EXPECT_EQ(Seite(), "start.html");
  Taste(Qt::Key_Tab);  // first link of the page
  Taste(Qt::Key_Return);
  EXPECT_EQ(Seite(), "zweck.html");
  auto& baum = Finden<QTreeWidget>(*hilfe.Fenster(), u"treInhalt"_s);
  EXPECT_EQ(baum.currentItem(), baum.topLevelItem(1));
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, const char*> wege[] = {
      {Qt::Key_Left, Qt::AltModifier, "start.html"},
      {Qt::Key_Right, Qt::AltModifier, "zweck.html"},
      {Qt::Key_F1, Qt::NoModifier, "hilfe-benutzen.html"}};
  for (const auto& [taste, zusatz, seite] : wege) {
    Taste(taste, zusatz);
    EXPECT_EQ(Seite(), seite);
  }
  Taste(Qt::Key_P, Qt::ControlModifier);
  ASSERT_EQ(drucker.titelliste, QStringList(hilfe.Fenster()->windowTitle()));
  EXPECT_EQ(drucker.texte[0], Anzeige().toPlainText());

  baum.setFocus();
  baum.setCurrentItem(baum.topLevelItem(2));
  EXPECT_EQ(Seite(), "hilfe-benutzen.html");  // only Enter opens
  Taste(Qt::Key_Return);
  EXPECT_EQ(Seite(), "erste-schritte.html");
  Taste(Qt::Key_Escape);
  EXPECT_FALSE(hilfe.Fenster()->isVisible());
}

TEST_F(HilfesystemTest, SuchenUndFundstellen) {
  Handbuch();
  auto& funde = Finden<QListWidget>(*hilfe.Fenster(), u"lstFundstellen"_s);
  const auto suchen = [this](const QString& begriff) {
    Taste(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(hilfe.Fenster()->focusWidget(), begriff);
    Taste(Qt::Key_Return);
  };
  suchen(u"Xylophon"_s);
  ASSERT_EQ(funde.count(), 1);
  EXPECT_EQ(funde.item(0)->text(), u"Nichts gefunden.");
  suchen(u"Nahfeldgrenze"_s);
  ASSERT_TRUE(funde.hasFocus());
  ASSERT_GE(funde.count(), 2);
  while (!funde.currentItem()->text().startsWith(u"Nahfeldsituation"_s)) Taste(Qt::Key_Down);
  Taste(Qt::Key_Return);
  EXPECT_EQ(Seite(), "nahfeld.html");
  const auto stellen = Anzeige().extraSelections();
  ASSERT_GE(stellen.size(), 2);
  for (qsizetype i = 0; i <= stellen.size(); ++i) {
    const QTextCursor& stelle = stellen[i % stellen.size()].cursor;
    EXPECT_EQ(stelle.selectedText(), u"Nahfeldgrenze");
    EXPECT_EQ(Anzeige().textCursor().position(), stelle.selectionStart());
    Taste(Qt::Key_F3);
  }
  hilfe.Fenster()->Zeigen(u"kabel.html"_s);
  EXPECT_TRUE(Anzeige().extraSelections().isEmpty());
}

TEST_F(HilfesystemTest, FehlendeSeiteWirdGemeldetUndDieAlteBleibt) {
  Hilfesystem ohne(u"/fehlt"_s, boxen, drucker);
  boxen.Erwarten("Vesk - Fehlermeldung", "Hilfedatei nicht gefunden: F1.HLP");
  ohne.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, 1001);
  Handbuch();
  boxen.Erwarten("Vesk - Fehlermeldung", "Hilfedatei nicht gefunden: fehlt.html");
  hilfe.Fenster()->Zeigen(u"fehlt.html"_s);
  EXPECT_EQ(Seite(), "start.html");
}

/// A modal window blocks all that do not belong to it.
TEST_F(HilfesystemTest, NebenEinemModalenFensterBedienbar) {
  Handbuch();
  QDialog modal;
  modal.setModal(true);
  modal.show();
  hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, 4001);
  EXPECT_EQ(Seite(), "kontext-4001.html");
  auto& baum = Finden<QTreeWidget>(*hilfe.Fenster(), u"treInhalt"_s);
  const QPoint stelle = baum.visualItemRect(baum.topLevelItem(1)).center();
  QTest::mouseClick(hilfe.Fenster()->windowHandle(), Qt::LeftButton, {},
                    baum.viewport()->mapTo(hilfe.Fenster(), stelle));
  EXPECT_EQ(Seite(), "zweck.html");
  modal.hide();
  EXPECT_TRUE(hilfe.Fenster()->isVisible());
}

}  // namespace
}  // namespace vesk
