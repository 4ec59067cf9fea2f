#include "platform/QtPlattform.h"
#include "station/Sendeart.h"
#include "tests/Tabelle.h"
#include "tests/app/Lauf.h"
#include "ui/bands/frmBaender.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/charts/frmDiagramme.h"
#include "ui/info/Hilfebuch.h"
#include "ui/info/Hilfesystem.h"
#include "ui/info/frmHilfe.h"
#include "ui/options/frmOptions.h"
#include "ui/plan/frmLageplan.h"
#include "ui/preview/frmVorschau.h"

namespace vesk {
namespace {

/// The program with its real help.
class HilfeImProgramm : public testing::Test {
 protected:
  HilfeImProgramm() {
    buehne.speicher.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, u"1"_s);
    EXPECT_TRUE(
        QFile::copy(QStringLiteral(VESK_DATEN "/TIPOFDAY.TXT"), verzeichnis.filePath(u"TIPOFDAY.TXT"_s)));
    programm.Starten();
  }
  QString Seite() const {
    return Finden<QTextBrowser>(*hilfe.Fenster(), u"anzSeite"_s).source().path().mid(1);
  }

  Verzeichnis verzeichnis;
  skript::Buehne buehne;
  Station station;
  Hilfesystem hilfe{QStringLiteral(VESK_DATEN "/hilfe"), buehne.boxen, buehne.papier};
  Plattform plattform{buehne.boxen,      buehne.dialoge,    hilfe, buehne.speicher, buehne.ton, buehne.papier,
                      buehne.betrachter, buehne.fortschritt};
  Programm programm{station, plattform, {verzeichnis.path(), {}}};
};

TEST_F(HilfeImProgramm, F1OeffnetDenEintragJedesControls) {
  programm.Befehlen(Befehl::LeistungsumrechnungZeigen);
  programm.Befehlen(Befehl::DatenblattZeigen);
  programm.Befehlen(Befehl::InfoZeigen);
  Lauf::Fenster(u"frmInfo"_s).close();
  programm.Benutzerfenster();
  programm.Vorschau();
  programm.Baender();
  programm.Diagramme();
  programm.Lageplan();
  QSet<int> nummern;
  for (QWidget* fenster : QApplication::topLevelWidgets()) {
    if (!fenster->objectName().startsWith(u"frm"_s) || fenster->objectName() == u"frmHilfe") continue;
    QWidgetList controls = fenster->findChildren<QWidget*>();
    controls << fenster;
    for (QWidget* control : controls) {
      const int nummer = control->property(HilfekontextEigenschaft).toInt();
      if (control->window() != fenster || nummer == 0) continue;
      nummern.insert(nummer);
      QTest::keyClick(control, Qt::Key_F1);
      EXPECT_EQ(Seite().toStdString(), "kontext-" + std::to_string(nummer) + ".html")
          << control->objectName().toStdString();
    }
  }
  // The tabs stand for the card in front.
  programm.Befehlen(Befehl::OptionenZeigen);
  auto& karten = Lauf::Ding<QTabWidget>(u"SSTab1"_s, u"frmOptions"_s);
  for (const int nummer : {2100, 2105, 2112, 2119}) {
    QTest::keyClick(karten.tabBar(), Qt::Key_F1);
    EXPECT_EQ(Seite(), u"kontext-%1.html"_s.arg(nummer));
    karten.setCurrentIndex(karten.currentIndex() + 1);
  }
  // Without a number of its own a control has that of what surrounds it.
  QTest::keyClick(&Lauf::Ding<QWidget>(u"lblDaempfung"_s), Qt::Key_F1);
  EXPECT_EQ(Seite(), u"kontext-1001.html");
  for (int nummer = HilfeMeldung; nummer <= HilfeFehler; ++nummer) nummern.insert(nummer);
  Hilfebuch buch(QStringLiteral(VESK_DATEN "/hilfe"));
  for (const int nummer : buch.Kontextnummern()) EXPECT_TRUE(nummern.contains(nummer)) << nummer;
  for (const Tabellenzeile& zeile : Tabelle("app/Hilfenummern.csv")) {
    auto& control = Lauf::Ding<QWidget>(QString::fromStdString(zeile["control"]));
    EXPECT_EQ(control.property(HilfekontextEigenschaft).toInt(), zeile.Zahl("nummer")) << zeile.text;
  }
}

TEST_F(HilfeImProgramm, F1InEinerMeldungErklaertSieUndLaesstSieStehen) {
  QtMeldungsboxen boxen;
  const Hinweis hinweise[] = {BereichsHinweis(),   HSMBereichsHinweis(),
                              EingabeHinweis(),    NahfeldHinweis(1, Modus::Abstand),
                              HSMHinweis(),        Bestaetigung("Vesk", "Weg damit?"),
                              FaktorHinweis(),     Fehlermeldung("Voll"),
                              {"Hinweis", "Etwas"}};
  QSet<QString> seiten;
  for (const Hinweis& hinweis : hinweise) {
    QTimer::singleShot(0, &programm, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      QTest::keyClick(box->buttons().constFirst(), Qt::Key_F1);
      seiten << Seite();
      // Only a window that belongs to the box can be used beside it.
      EXPECT_EQ(hilfe.Fenster()->windowHandle()->transientParent(), box->windowHandle());
      EXPECT_TRUE(box->isVisible() && hilfe.Fenster()->isVisible());
      QTest::mouseClick(box->buttons().constFirst(), Qt::LeftButton);
    });
    boxen.Zeigen(hinweis);
    EXPECT_TRUE(seiten.contains(u"kontext-%1.html"_s.arg(hinweis.hilfe))) << hinweis.text;
    EXPECT_TRUE(hilfe.Fenster()->isVisible());
  }
  EXPECT_EQ(seiten.size(), std::ssize(hinweise));
}

TEST_F(HilfeImProgramm, MenueOeffnetHandbuchUndDasEndeSchliesstEs) {
  EXPECT_EQ(hilfe.Fenster(), nullptr);  // nothing of the help before it is wanted
  ASSERT_TRUE(QTest::qWaitFor([] { return Lauf::Sichtbar(u"frmTip"_s); }));
  EXPECT_TRUE(Lauf::Ding<QPlainTextEdit>(u"txtTip"_s, u"frmTip"_s).toPlainText().contains(u' '));
  programm.Befehlen(Befehl::HilfeBenutzen);
  EXPECT_EQ(Seite(), u"hilfe-benutzen.html");
  programm.Befehlen(Befehl::Handbuch);
  EXPECT_EQ(Seite(), u"start.html");
  programm.Befehlen(Befehl::HilfeBenutzen);
  QMenu* menue = programm.Hauptfenster().findChild<QMenu*>();
  menue->popup({});
  QTest::keyClick(menue, Qt::Key_F1);
  EXPECT_FALSE(menue->isVisible());
  EXPECT_EQ(Seite(), u"start.html");
  ASSERT_TRUE(hilfe.Fenster()->isVisible());
  programm.Befehlen(Befehl::Beenden);
  EXPECT_FALSE(hilfe.Fenster()->isVisible());
}

}  // namespace
}  // namespace vesk
