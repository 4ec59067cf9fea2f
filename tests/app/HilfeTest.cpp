#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include "Druckskript.h"
#include "Feldhilfe.h"
#include "Finden.h"
#include "Hilfebuch.h"
#include "Hilfesystem.h"
#include "Kabeldatei.h"
#include "Programm.h"
#include "Skript.h"
#include "frmHilfe.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

/// The program with its real help.
class HilfeImProgramm : public testing::Test {
 protected:
  void SetUp() override {
    KabeldateiAnlegen(verzeichnis.path());
    buehne.speicher.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, u"1"_s);
  }
  QString Seite() const {
    return Finden<QTextBrowser>(*hilfe.Fenster(), u"anzSeite"_s).source().path().mid(1);
  }
  /// All windows but the help itself, created or shown.
  static QWidgetList Fenster() {
    QWidgetList fenster;
    for (QWidget* eines : QApplication::topLevelWidgets()) {
      if (eines->objectName().startsWith(u"frm"_s) && eines->objectName() != u"frmHilfe"_s) fenster << eines;
    }
    return fenster;
  }

  QTemporaryDir verzeichnis;
  skript::Buehne buehne;
  skript::Drucker drucker;
  Zustand zustand;
  Hilfesystem hilfe{QStringLiteral(VESK_DATEN "/hilfe"), buehne.boxen, zustand.werte, drucker};
  Plattform plattform{buehne.boxen, buehne.dialoge, hilfe, buehne.speicher, buehne.ton};
  Programm programm{zustand, plattform, {verzeichnis.path(), {}}};
};

TEST_F(HilfeImProgramm, F1OeffnetDenEintragJedesControls) {
  programm.Starten();
  programm.Hauptfenster().Aktion("mnuUmrechnung").trigger();
  QSet<int> nummern;
  QSet<QString> namen;
  for (QWidget* fenster : Fenster()) {
    namen.insert(fenster->objectName());
    QWidgetList controls = fenster->findChildren<QWidget*>();
    controls << fenster;
    for (QWidget* control : controls) {
      if (control->window() != fenster) continue;
      const int nummer = control->property(HilfekontextEigenschaft).toInt();
      if (nummer == 0) continue;
      nummern.insert(nummer);
      QTest::keyClick(control, Qt::Key_F1);
      EXPECT_EQ(Seite().toStdString(), "kontext-" + std::to_string(nummer) + ".html")
          << control->objectName().toStdString();
    }
  }
  EXPECT_GE(namen.size(), 6);
  Hilfebuch buch(QStringLiteral(VESK_DATEN "/hilfe"));
  for (const int nummer : buch.Kontextnummern()) EXPECT_TRUE(nummern.contains(nummer)) << nummer;
}

TEST_F(HilfeImProgramm, MenueOeffnetHandbuchUndDasEndeSchliesstEs) {
  programm.Starten();
  EXPECT_EQ(hilfe.Fenster(), nullptr);  // nothing of the help before it is wanted
  programm.Hauptfenster().Aktion("mnuHilfeBenutzen").trigger();
  EXPECT_EQ(Seite(), u"hilfe-benutzen.html");
  programm.Hauptfenster().Aktion("mnuAnleitung").trigger();
  EXPECT_EQ(Seite(), u"start.html");
  ASSERT_TRUE(hilfe.Fenster()->isVisible());
  programm.Hauptfenster().Aktion("mnuEnde").trigger();
  EXPECT_FALSE(hilfe.Fenster()->isVisible());
}

}  // namespace
}  // namespace vesk
