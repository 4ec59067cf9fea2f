#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QtWidgets>

#include "station/Station.h"
#include "tests/platform/Skript.h"
#include "tests/ui/Finden.h"
#include "ui/info/Hilfebuch.h"
#include "ui/info/Hilfesystem.h"
#include "ui/info/Seitenanzeige.h"
#include "ui/info/frmHilfe.h"
#include "ui/info/frmInfo.h"
#include "ui/info/frmTip.h"

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
  skript::Papier drucker;
  Hilfesystem hilfe{QStringLiteral(VESK_DATEN "/hilfe"), boxen, drucker};
};

TEST_F(HilfesystemTest, BlaetternMitDerTastatur) {
  Handbuch();
  EXPECT_EQ(Seite(), "start.html");
  Taste(Qt::Key_Tab);  // first link of the page
  Taste(Qt::Key_Return);
  EXPECT_EQ(Seite(), "erste-schritte.html");
  auto& baum = Finden<QTreeWidget>(*hilfe.Fenster(), u"treInhalt"_s);
  EXPECT_EQ(baum.currentItem(), baum.topLevelItem(1));
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, const char*> wege[] = {
      {Qt::Key_Left, Qt::AltModifier, "start.html"},
      {Qt::Key_Right, Qt::AltModifier, "erste-schritte.html"},
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
  EXPECT_EQ(Seite(), "zweck.html");
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
  EXPECT_EQ(Seite(), "erste-schritte.html");
  modal.hide();
  EXPECT_TRUE(hilfe.Fenster()->isVisible());
}

/// As wide as the window at most, whatever its width, and on paper as wide as the sheet.
TEST_F(HilfesystemTest, BilderPassenInFensterUndBlatt) {
  const QTemporaryDir ordner;
  QDir(ordner.path()).mkdir(u"bilder"_s);
  ASSERT_TRUE(QImage(2000, 1000, QImage::Format_RGB32).save(ordner.filePath(u"bilder/weit.png"_s)));
  for (const auto& [name, text] : {std::pair{u"inhalt.txt"_s, "start.html"},
                                   {u"start.html"_s, "<p>vorher</p><p><img src=\"bilder/weit.png\"></p>"}}) {
    QFile datei(ordner.filePath(name));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly) && datei.write(text) > 0);
  }
  Hilfesystem bebildert(ordner.path(), boxen, drucker);
  bebildert.Aufrufen(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt, 0);
  auto& anzeige = Finden<Seitenanzeige>(*bebildert.Fenster(), u"anzSeite"_s);
  for (const int breite : {1300, 700, 1000}) {
    bebildert.Fenster()->resize(breite, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(anzeige.horizontalScrollBar()->maximum(), 0) << breite;
    EXPECT_GT(anzeige.document()->idealWidth(), anzeige.viewport()->width() - 30) << breite;
  }
  EXPECT_NEAR(anzeige.Druckfassung()->idealWidth() - 2 * anzeige.document()->documentMargin(), 640, 1);
}

/// Those that the build makes are those that the pages show.
TEST(Hilfebilder, SindGemachtUndKlein) {
  const QDir bilder(QStringLiteral(VESK_BILDER));
  if (!bilder.exists()) GTEST_SKIP() << "built without pictures";
  Hilfebuch buch(QStringLiteral(VESK_BILDER "/.."));
  QStringList gezeigt;
  for (const Hilfeseite& seite : buch.Inhalt()) {
    const QString html = buch.Html(seite.name).value_or(QString());
    for (auto bild = QRegularExpression(u"<img src=\"bilder/([^\"]*)\""_s).globalMatch(html); bild.hasNext();)
      gezeigt << bild.next().captured(1);
  }
  gezeigt.sort();
  EXPECT_EQ(gezeigt.join(u' ').toStdString(),
            bilder.entryList(QDir::Files, QDir::Name).join(u' ').toStdString());
  for (const QFileInfo& datei : bilder.entryInfoList(QDir::Files)) EXPECT_LT(datei.size(), 60000);
}

struct HilfebuchTest : testing::Test {
  QStringList seiten =
      QDir(QStringLiteral(VESK_DATEN "/hilfe")).entryList({u"*.html"_s}, QDir::Files, QDir::Name);
  Hilfebuch buch{QStringLiteral(VESK_DATEN "/hilfe")};
};

TEST_F(HilfebuchTest, JederVerweisFuehrtZumZiel) {
  const QRegularExpression verweis(u"href=\"([^\"]*)\""_s);
  for (const int nummer : buch.Kontextnummern()) seiten << buch.Kontextseite(nummer);
  for (const QString& name : seiten) {
    const QString html = buch.Html(name).value_or(QString());
    EXPECT_FALSE(Seitentitel(html).isEmpty()) << name.toStdString();
    if (name.startsWith(u"kontext-"_s)) {
      EXPECT_TRUE(html.contains(verweis)) << name.toStdString() << " names no page of the manual";
    }
    EXPECT_FALSE(html.contains(u"color"_s)) << name.toStdString() << " may be unreadable in a dark theme";
    for (auto treffer = verweis.globalMatch(html); treffer.hasNext();) {
      const QUrl ziel(treffer.next().captured(1));
      if (!ziel.scheme().isEmpty()) continue;
      const QString zielseite = ziel.path().isEmpty() ? html : buch.Html(ziel.path()).value_or(QString());
      const QString marke = ziel.hasFragment() ? u"name=\""_s + ziel.fragment() + u'"' : u"<title>"_s;
      EXPECT_TRUE(zielseite.contains(marke)) << name.toStdString() << ": " << ziel.toString().toStdString();
    }
  }
}

TEST_F(HilfebuchTest, UnbekannteNummerGibtDenAnfangIhresBlocks) {
  for (const auto& [nummer, anfang] :
       {std::pair(0, 1001), {1038, 1001}, {2008, 2001}, {2120, 2100}, {99999, 8001}}) {
    EXPECT_EQ(buch.Kontextseite(nummer), u"kontext-%1.html"_s.arg(anfang)) << nummer;
  }
}

TEST_F(HilfebuchTest, InhaltNenntJedeSeiteEinmal) {
  QStringList genannt;
  for (const Hilfeseite& seite : buch.Inhalt()) genannt << seite.name;
  EXPECT_EQ(genannt.value(0), u"start.html");
  genannt.sort();
  EXPECT_EQ(genannt.join(u' ').toStdString(), seiten.join(u' ').toStdString());
}

TEST_F(HilfebuchTest, Suche) {
  const auto gefunden = [this](const QString& begriff) {
    QStringList namen;
    for (const Fundstelle& stelle : buch.Suchen(begriff)) namen << stelle.seite;
    return namen;
  };
  EXPECT_EQ(gefunden(u"Nahfeldsituation"_s).value(0), u"nahfeld.html");  // a word of the title comes first
  EXPECT_TRUE(gefunden(u"störschwelle ATV"_s).contains(u"hsmvde.html"_s));
  EXPECT_TRUE(gefunden(u"Kabellänge"_s).contains(u"kontext-2108.html"_s));
  for (const QString& nichts : {u"Nahfeld Xylophon"_s, u"  "_s, u"href"_s})
    EXPECT_TRUE(gefunden(nichts).isEmpty());
  const QString auszug = buch.Suchen(u"potenzgesetz"_s).at(0).auszug;
  EXPECT_TRUE(auszug.contains(u"Potenzgesetz"_s) && auszug.size() < 160) << auszug.toStdString();
}

TEST_F(HilfebuchTest, NurWasImVerzeichnisLiegt) {
  EXPECT_FALSE(buch.Html(u"../TIPOFDAY.TXT"_s));
  EXPECT_FALSE(buch.Html(QString()));
  const QTemporaryDir leer;
  Hilfebuch ohne(leer.path());
  EXPECT_TRUE(ohne.Inhalt().empty());
  EXPECT_FALSE(ohne.Html(ohne.Kontextseite(1001)));
  EXPECT_TRUE(ohne.Suchen(u"Nahfeld"_s).empty());
}

const QPair<QString, QString> BeimStart = {u"Options"_s, u"Show Tips at Startup"_s};
const QPair<QString, QString> Naechster = {u"Options"_s, u"Next Tip"_s};

QString Tip(frmTip& fenster) {
  fenster.show();
  return Finden<QPlainTextEdit>(fenster, u"txtTip"_s).toPlainText();
}

TEST(FrmTip, NaechsterTipGehtReihumUndWeiterBeimNaechstenMal) {
  Merkspeicher speicher;
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
  Merkspeicher speicher;
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
