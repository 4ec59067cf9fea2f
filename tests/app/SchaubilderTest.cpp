#include "station/Baender.h"
#include "tests/app/Lauf.h"
#include "ui/bands/frmBaender.h"
#include "ui/charts/frmDiagramme.h"

namespace vesk {
namespace {

struct Schaubildfenster : testing::Test, Verzeichnis, Lauf {
  Schaubildfenster() : Lauf(path()) { Rechnen({u"14.2"_s, u"100"_s}); }
};

TEST_F(Schaubildfenster, BaenderAnkreuzenUndKopierenMitTasten) {
  const QString fenster = u"frmBaender"_s;
  Taste(Qt::Key_B, Qt::ControlModifier);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&programm.Baender()));
  ASSERT_EQ(Fokus(), u"tblBaender");
  auto& tabelle = Ding<QTableWidget>(u"tblBaender"_s, fenster);
  auto& kopieren = Ding<QPushButton>(u"cmdBaenderKopieren"_s, fenster);
  EXPECT_FALSE(kopieren.isEnabled());
  EXPECT_EQ(tabelle.item(4, 6)->text(), u"1.99");
  Taste(Qt::Key_Space);  // the band of the main window
  Taste(Qt::Key_End);
  EXPECT_EQ(tabelle.currentRow(), tabelle.rowCount() - 1);
  Taste(Qt::Key_Home);
  Taste(Qt::Key_Space);
  Taste(Qt::Key_2);
  EXPECT_EQ(Text(u"lblAnzahl"_s, fenster), u"2 angekreuzt, 7 Spalten frei");
  EXPECT_EQ(Text(u"lblHinweis"_s, fenster).section(u' ', 0, 7), u"20 m, 14.2 MHz: Grenzwert ohne HSM 27.50");
  Taste(Qt::Key_Return);
  EXPECT_EQ(Zelle(1, 3) + u'|' + Zelle(2, 3) + u'|' + Zelle(2, 10), u"1.815|14.2|1.99");
  EXPECT_EQ(Text(u"lblAnzahl"_s, fenster), u"0 angekreuzt, 5 Spalten frei");
  // The box of a band is clicked, too.
  const QRect zelle = tabelle.visualItemRect(tabelle.item(1, 0));
  QTest::mouseClick(tabelle.viewport(), Qt::LeftButton, {}, {zelle.left() + 8, zelle.center().y()});
  EXPECT_TRUE(station.schaubilder.baender.test(1) && kopieren.isEnabled());
  Klick(u"cmdAlle"_s, fenster);
  EXPECT_EQ(Text(u"lblAnzahl"_s, fenster), u"18 angekreuzt, 5 Spalten frei");
  EXPECT_FALSE(kopieren.isEnabled());
  // The table follows the station.
  station.werte.PWRText = "400";
  Klick(u"cmdKeine"_s, fenster);
  EXPECT_EQ(tabelle.item(4, 6)->text(), u"3.98");
  tabelle.setFocus();
  Taste(Qt::Key_Escape);
  EXPECT_FALSE(Sichtbar(fenster));
  station.werte.QRGText = std::string(45, '9');
  programm.Befehlen(Befehl::DiagrammeZeigen);
  programm.Befehlen(Befehl::BaenderZeigen);
  EXPECT_TRUE(Sichtbar(fenster));
}

TEST_F(Schaubildfenster, DiagrammeWaehlenUndDrucken) {
  const QString fenster = u"frmDiagramme"_s;
  Taste(Qt::Key_D, Qt::ControlModifier);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&programm.Diagramme()));
  auto& bild = Ding<QWidget>(u"imgDiagramm"_s, fenster);
  EXPECT_TRUE(bild.accessibleDescription().contains(u"ohne HSM: 1.99 m"_s));
  Taste(Qt::Key_Down);
  EXPECT_TRUE(bild.accessibleDescription().contains(u"ohne HSM: 100.00 W"_s));
  auto& kabel = Ding<QListWidget>(u"lstKabel"_s, fenster);
  EXPECT_FALSE(kabel.isVisible());
  Taste(Qt::Key_Down);
  ASSERT_TRUE(kabel.isVisible());
  kabel.setFocus();
  kabel.setCurrentRow(1);
  buehne.boxen.alleErlaubt = true;
  for (int i = 0; i < 6; ++i) {
    Taste(Qt::Key_Space);
    Taste(Qt::Key_Down);
  }
  EXPECT_EQ(station.schaubilder.kabel, (std::vector{0, 1, 2, 3, 4}));
  EXPECT_EQ(buehne.boxen.gezeigt.size(), 2U);  // the sixth and the seventh
  EXPECT_TRUE(kabel.item(4)->checkState() == Qt::Checked && kabel.item(5)->checkState() == Qt::Unchecked);
  EXPECT_TRUE(bild.accessibleDescription().contains(u"RG58: 4.16 dB"_s));
  Klick(u"cmdDiagrammeDrucken"_s, fenster);
  ASSERT_TRUE(Sichtbar(u"frmVorschau"_s));
  EXPECT_EQ(Fenster(u"frmVorschau"_s).windowTitle(), u"Diagramme");
  Aktivieren(fenster);
  Klick(u"cmdDiagrammeDrucken"_s, fenster);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Fenster(u"frmVorschau"_s), 1000));
  programm.Diagramme().close();
  EXPECT_FALSE(Sichtbar(fenster) || station.fenster.diagramme);
}

}  // namespace
}  // namespace vesk
