#include <gtest/gtest.h>

#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>

#include "Lauf.h"

namespace vesk {
namespace {

/// From the catalogues through the options window into the main window and the data sheet, with the shipped
/// catalogues.
class Optionen : public testing::Test {
 protected:
  void SetUp() override {
    for (const QString& name : {u"Kabel.txt"_s, u"Antennen.txt"_s}) {
      ASSERT_TRUE(QFile::copy(QStringLiteral(VESK_DATEN) + u'/' + name, verzeichnis.filePath(name)));
    }
    lauf = std::make_unique<Lauf>(verzeichnis.path());
    lauf->Eingeben({u"145"_s, u"50"_s, u"12.5"_s, u"0"_s, u"0"_s});
  }

  void Reiter(int nummer) {
    lauf->programm.Hauptfenster().Aktion("mnuMoreOptions").trigger();
    Finden<QTabWidget>(fenster(), u"SSTab1"_s).setCurrentIndex(nummer);
    fenster().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster()));
  }
  frmOptions& fenster() { return lauf->programm.Optionen(); }
  QLineEdit& Feld(const QString& name) { return Finden<QLineEdit>(fenster(), name); }
  void Tippen(const QString& name, const QString& text) {
    QTest::mouseClick(&Feld(name), Qt::LeftButton);
    Feld(name).selectAll();
    QTest::keyClicks(&Feld(name), text);
  }
  void Kabel() {
    Reiter(1);
    Tippen(u"txtKabelLaenge"_s, u"20"_s);
    Tippen(u"txtStecker"_s, u"0.5"_s);
    Finden<QPushButton>(fenster(), u"cmdGleich"_s).click();
    QCoreApplication::processEvents();
  }
  QString Haupt(const QString& name) { return lauf->Haupt(name); }

  QTemporaryDir verzeichnis;
  std::unique_ptr<Lauf> lauf;
};

TEST_F(Optionen, KabelverlustErreichtDieRechnung) {
  const QString vorher = Haupt(u"txtAusgabe"_s);
  EXPECT_EQ(Feld(u"txtQRG"_s).text(), u"145");
  Kabel();
  EXPECT_EQ(Feld(u"txtD100"_s).text(), u"7.61");
  EXPECT_EQ(Haupt(u"txtDaempfung"_s), u"2.02");
  EXPECT_EQ(vorher, u"5.94");
  EXPECT_EQ(Haupt(u"txtAusgabe"_s), u"4.71");

  // The loss follows the frequency when a length is given, and a loss typed by hand stays when none is.
  lauf->Eingeben({u"435"_s, u"50"_s, u"12.5"_s});
  EXPECT_NE(Haupt(u"txtDaempfung"_s), u"2.02");
}

TEST_F(Optionen, GetippterVerlustBleibtOhneKabel) {
  lauf->Eingeben({u"145"_s, u"50"_s, u"12.5"_s, u"1.5"_s, u"0"_s});
  lauf->Eingeben({u"435"_s, u"50"_s, u"12.5"_s});
  EXPECT_EQ(Haupt(u"txtDaempfung"_s), u"1.5");
}

TEST_F(Optionen, AntenneSuchenUndNehmen) {
  Reiter(2);
  auto& liste = Finden<QListWidget>(fenster(), u"LstAntennen"_s);
  const int alle = liste.count();
  Tippen(u"txtSuche"_s, u"yagi 144"_s);
  QCoreApplication::processEvents();
  int zeile = 0;
  int sichtbar = 0;
  for (int i = liste.count() - 1; i >= 0; --i) {
    if (liste.item(i)->isHidden()) continue;
    ++sichtbar;
    zeile = i;
  }
  ASSERT_GT(sichtbar, 0);
  EXPECT_LT(sichtbar, alle);
  QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, liste.visualItemRect(liste.item(zeile)).center());
  auto& nehmen = Finden<QPushButton>(fenster(), u"cmdAntenne"_s);
  ASSERT_TRUE(nehmen.isEnabled());
  const QString gewinn = Feld(u"txtWGewinn0"_s).text();
  QTest::mouseClick(&nehmen, Qt::LeftButton);
  EXPECT_EQ(Haupt(u"txtGewinn"_s), gewinn);
  EXPECT_NE(Haupt(u"txtAusgabe"_s), u"5.94");
}

TEST_F(Optionen, DoppelklickNimmtDenSektor) {
  Reiter(3);
  Finden<QAction>(fenster(), u"mnuWinkelBeispiel"_s).trigger();
  EXPECT_EQ(Feld(u"txtWAbstand_0"_s).text(), u"21.61");
  QTest::mouseDClick(&Feld(u"txtWDaempfung_2"_s), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(Haupt(u"txtWinkelDaempfung"_s), u"3.33");
  EXPECT_EQ(Haupt(u"txtAusgabe"_s), u"4.05");
}

TEST_F(Optionen, AktuelleSpalteRechnetMit) {
  lauf->Kopieren();
  lauf->DatenblattZeigen();
  lauf->Klick(lauf->programm.Datenblatt(), u"txtA_0"_s);
  Kabel();
  EXPECT_EQ(lauf->Zelle(1, 7), u"2.02");
  EXPECT_EQ(lauf->Zelle(1, 10), u"4.71");
  EXPECT_EQ(lauf->zustand.Datenblattspalten[1].KabelLaenge, "20");

  Reiter(3);
  Finden<QAction>(fenster(), u"mnuWinkelBeispiel"_s).trigger();
  QTest::mouseDClick(&Feld(u"txtWDaempfung_2"_s), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(lauf->Zelle(1, 9), u"3.33");
  EXPECT_EQ(lauf->Zelle(1, 10), u"3.21");
}

}  // namespace
}  // namespace vesk
