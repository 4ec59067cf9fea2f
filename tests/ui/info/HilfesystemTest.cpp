#include <gtest/gtest.h>

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QWindow>

#include "Druckskript.h"
#include "Feldhilfe.h"
#include "Finden.h"
#include "Hilfesystem.h"
#include "Hilfetaste.h"
#include "Rechenwerte.h"
#include "Skript.h"
#include "frmHilfe.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

class HilfesystemTest : public testing::Test {
 protected:
  QString Seite() const {
    return Finden<QTextBrowser>(*hilfe.Fenster(), u"anzSeite"_s).source().path().mid(1);
  }

  skript::Boxen boxen;
  Rechenwerte werte;
  skript::Drucker drucker;
  Hilfesystem hilfe{QStringLiteral(VESK_DATEN "/hilfe"), boxen, werte, drucker};
};

TEST_F(HilfesystemTest, Befehle) {
  EXPECT_EQ(hilfe.Fenster(), nullptr);
  hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Beenden, 0);
  EXPECT_EQ(hilfe.Fenster(), nullptr);

  hilfe.Aufrufen(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt, 1030);
  ASSERT_NE(hilfe.Fenster(), nullptr);
  EXPECT_TRUE(hilfe.Fenster()->isVisible());
  EXPECT_EQ(Seite(), u"start.html");
  hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::HilfeBenutzen, 0);
  EXPECT_EQ(Seite(), u"hilfe-benutzen.html");
  for (const int nummer : {1001, 2119, 4001}) {
    hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, nummer);
    EXPECT_EQ(Seite(), u"kontext-%1.html"_s.arg(nummer));
  }
  hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Beenden, 0);
  EXPECT_FALSE(hilfe.Fenster()->isVisible());
  hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, 1002);
  EXPECT_TRUE(hilfe.Fenster()->isVisible());
}

TEST_F(HilfesystemTest, FehlendeDateiWirdGemeldet) {
  const QTemporaryDir leer;
  Hilfesystem ohne(leer.path(), boxen, werte, drucker);
  boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Hilfedatei nicht gefunden: F1.HLP"_s);
  ohne.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, 1001);
  boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Hilfedatei nicht gefunden: Vesk32.HLP"_s);
  ohne.Aufrufen(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt, 0);
  EXPECT_EQ(ohne.Fenster(), nullptr);
  EXPECT_EQ(werte.Antwort, 1);

  // The contents are there but their pages are not, and the context file has no entries.
  for (const auto& [name, text] :
       {std::pair("inhalt.txt", "start.html\n"), std::pair("kontext.html", "<p>")}) {
    QFile datei(leer.filePath(QString::fromUtf8(name)));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(text);
  }
  boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Hilfedatei nicht gefunden: start.html"_s);
  ohne.Aufrufen(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt, 0);
  boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Hilfedatei nicht gefunden: kontext-1001.html"_s);
  ohne.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, 1001);
  boxen.AllesGezeigt();
}

TEST_F(HilfesystemTest, BeimModalenFensterGehoertDieHilfeZuIhm) {
  hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, 1001);
  {
    QDialog modal;
    modal.setModal(true);
    modal.show();
    hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, 4001);
    EXPECT_EQ(hilfe.Fenster()->windowHandle()->transientParent(), modal.windowHandle());
    EXPECT_TRUE(hilfe.Fenster()->isVisible());

    // Through the native window, where a modal one would block the click.
    auto& baum = Finden<QTreeWidget>(*hilfe.Fenster(), u"treInhalt"_s);
    const QPoint stelle = baum.visualItemRect(baum.topLevelItem(1)).center();
    QTest::mouseClick(hilfe.Fenster()->windowHandle(), Qt::LeftButton, {},
                      baum.viewport()->mapTo(hilfe.Fenster(), stelle));
    EXPECT_EQ(Seite(), u"zweck.html");
    modal.hide();
    EXPECT_TRUE(hilfe.Fenster()->isVisible());
  }
  hilfe.Aufrufen(u"F1.HLP"_s, Hilfebefehl::Kontext, 1002);
  EXPECT_EQ(hilfe.Fenster()->windowHandle()->transientParent(), nullptr);
}

TEST(Hilfetaste, F1FindetDieNaechsteNummer) {
  skript::Hilfeaufrufe hilfe;
  Hilfetaste taste(hilfe);
  QCoreApplication::instance()->installEventFilter(&taste);
  QMainWindow fenster;
  fenster.setObjectName(u"frmOptions"_s);
  auto* rahmen = new QWidget(&fenster);
  auto* mit = new QLineEdit(rahmen);
  auto* ohne = new QLineEdit(rahmen);
  auto* fremd = new QLineEdit(&fenster);
  mit->setProperty(HilfekontextEigenschaft, 2108);
  rahmen->setProperty(HilfekontextEigenschaft, 2119);

  const std::pair<QWidget*, int> faelle[] = {{mit, 2108}, {ohne, 2119}, {fremd, 2100}, {&fenster, 2100}};
  for (const auto& [control, nummer] : faelle) {
    hilfe.aufrufe.clear();
    QTest::keyClick(control, Qt::Key_F1);
    ASSERT_EQ(hilfe.aufrufe.size(), 1U);
    EXPECT_EQ(hilfe.aufrufe[0].datei, u"F1.HLP");
    EXPECT_EQ(hilfe.aufrufe[0].befehl, Hilfebefehl::Kontext);
    EXPECT_EQ(hilfe.aufrufe[0].kontext, nummer);
  }

  hilfe.aufrufe.clear();
  fenster.setObjectName(u"frmSonst"_s);
  QTest::keyClick(fremd, Qt::Key_F1);
  QTest::keyClick(mit, Qt::Key_F2);
  EXPECT_TRUE(hilfe.aufrufe.empty());
}

TEST(Hilfetaste, F1ImMenueOeffnetDasHandbuch) {
  skript::Hilfeaufrufe hilfe;
  Hilfetaste taste(hilfe);
  QCoreApplication::instance()->installEventFilter(&taste);
  QMainWindow fenster;
  QMenu* menue = fenster.menuBar()->addMenu(u"&Datei"_s);
  menue->addAction(u"&Beenden"_s);
  fenster.show();
  menue->popup(fenster.pos());
  ASSERT_TRUE(menue->isVisible());
  QTest::keyClick(menue, Qt::Key_F1);
  EXPECT_FALSE(menue->isVisible());
  ASSERT_EQ(hilfe.aufrufe.size(), 1U);
  EXPECT_EQ(hilfe.aufrufe[0].datei, u"Vesk32.HLP");
  EXPECT_EQ(hilfe.aufrufe[0].befehl, Hilfebefehl::Inhalt);
}

}  // namespace
}  // namespace vesk
