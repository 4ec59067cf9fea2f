#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>

#include "Feldhilfe.h"
#include "OptionenFall.h"
#include "OptionenHilfe.h"

namespace vesk {
namespace {

TEST_F(OptionenFall, ReiterUndMenue) {
  EXPECT_EQ(fenster.windowTitle(), u"Optionen"_s);
  auto& reiter = Finden<QTabWidget>(fenster, u"SSTab1"_s);
  QStringList namen;
  for (int i = 0; i < reiter.count(); ++i) namen << reiter.tabText(i);
  EXPECT_EQ(namen.join(u' '), u"Sendeart Kabel Antennen Winkel"_s);

  const auto& datei = Finden<QAction>(fenster, u"mnuDatei"_s);
  EXPECT_FALSE(datei.isEnabled());
  for (const int seite : {3, 1, 3, 2, 0}) {
    const QRect kopf = reiter.tabBar()->tabRect(seite);
    QTest::mouseClick(reiter.tabBar(), Qt::LeftButton, {}, kopf.center());
    EXPECT_EQ(datei.isEnabled(), seite == 3) << seite;
  }
  EXPECT_TRUE(datei.menu()->toolTipsVisible());
  for (const auto* name : {"mnuWDruck", "mnuWHSM306", "mnuWHSMvde"}) {
    const auto& druck = Finden<QAction>(fenster, QString::fromLatin1(name));
    EXPECT_FALSE(druck.isEnabled()) << name;
    EXPECT_TRUE(druck.toolTip().contains(u"Drucken"_s)) << name;
  }
}

TEST_F(OptionenFall, SchliessenAmRahmenNimmtDieOptionenAusDenSpalten) {
  EXPECT_FALSE(fenster.close());
  EXPECT_FALSE(fenster.isVisible());
  EXPECT_FALSE(umgebung.chkOptionen);
}

TEST_F(OptionenFall, MenueSchliesstNurDasFenster) {
  auto* leiste = fenster.menuBar();
  auto& eintrag = Finden<QAction>(fenster, u"mnuFenster"_s);
  QTest::mouseClick(leiste, Qt::LeftButton, {}, leiste->actionGeometry(&eintrag).center());
  EXPECT_FALSE(fenster.isVisible());
  EXPECT_TRUE(umgebung.chkOptionen);

  fenster.show();
  fenster.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
  QTest::keyClick(&fenster, Qt::Key_F, Qt::AltModifier);
  EXPECT_FALSE(fenster.isVisible());
  EXPECT_TRUE(umgebung.chkOptionen);
}

TEST_F(OptionenFall, SpalteAusserhalbIstEinFehler) {
  zustand.werte.Spalte = 8;
  EXPECT_THROW(fenster.SatzLaden(), Laufzeitfehler);
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Index"_s);
  Klicken(u"optSSB_1"_s);
}

TEST_F(OptionenFall, Tooltips) {
  OptionenTooltips(fenster, true);
  const auto tooltip = [&](const QString& name) { return Finden<QWidget>(fenster, name).toolTip(); };
  EXPECT_EQ(tooltip(u"chkBetriebsart_7"_s), u"Gewünschte Betriebsarten ankreuzen (max. 4)"_s);
  EXPECT_EQ(tooltip(u"optDuty_0"_s), u"Sende/Empfangszyklus = TX 1Min - RX 5Min"_s);
  EXPECT_EQ(tooltip(u"optDuty_5"_s), u"Sende/Empfangszyklus = TX 6Min - RX 0Min"_s);
  EXPECT_EQ(tooltip(u"optSSB_1"_s), u"Fernsehmodulation: Berechnung von 79 MHz - 1,1 GHz"_s);
  OptionenTooltips(fenster, false);
  for (const QWidget* kind : fenster.findChildren<QWidget*>()) {
    EXPECT_EQ(kind->toolTip(), QString()) << kind->objectName().toStdString();
  }
}

TEST_F(OptionenFall, JederBedienteTeilHatEineHilfenummer) {
  for (const QWidget* kind : fenster.findChildren<QWidget*>()) {
    if (kind->focusPolicy() == Qt::NoFocus) continue;
    const QWidget* traeger = kind;
    while (traeger != nullptr && !traeger->property(HilfekontextEigenschaft).isValid()) {
      traeger = traeger->parentWidget();
    }
    ASSERT_NE(traeger, nullptr) << kind->objectName().toStdString();
    const int nummer = traeger->property(HilfekontextEigenschaft).toInt();
    EXPECT_TRUE(nummer >= 2100 && nummer <= 2119) << nummer;
  }
}

}  // namespace
}  // namespace vesk
