#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <map>

#include "Finden.h"
#include "Kabeldatei.h"
#include "Programm.h"
#include "Skript.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

const QWidget* FensterVon(const QObject& objekt) {
  const QObject* stelle = &objekt;
  while (stelle != nullptr && !stelle->isWidgetType()) stelle = stelle->parent();
  const auto* widget = static_cast<const QWidget*>(stelle);
  while (widget != nullptr && qobject_cast<const QMenu*>(widget) != nullptr) widget = widget->parentWidget();
  return widget != nullptr ? widget->window() : nullptr;
}

/// The whole program with every prompt allowed: questions are answered with Nein, dialogs cancelled.
class GanzesProgramm : public testing::Test {
 protected:
  void SetUp() override {
    KabeldateiAnlegen(verzeichnis.path());
    buehne.speicher.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, u"0"_s);
    buehne.boxen.alleErlaubt = true;
    buehne.dialoge.alleErlaubt = true;
    QObject::connect(&programm, &Programm::beendet, &programm, [this] { beendet = true; });
    programm.Starten();
    QCoreApplication::processEvents();
  }

  QWidget* Fenster(const QString& name) {
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
      if (fenster->objectName() == name) return fenster;
    }
    return nullptr;
  }
  bool Sichtbar(const QString& name) {
    const QWidget* fenster = Fenster(name);
    return fenster != nullptr && fenster->isVisible();
  }
  void Menue(const QString& fenster, const QString& name) {
    Finden<QAction>(*Fenster(fenster), name).trigger();
    QCoreApplication::processEvents();
  }
  bool Dialog(const QString& titel) {
    return !buehne.dialoge.gezeigt.empty() && buehne.dialoge.gezeigt.back().titel == titel;
  }
  bool Gefragt(const QString& teil) {
    return !buehne.boxen.gezeigt.empty() && buehne.boxen.gezeigt.back().text.contains(teil);
  }
  bool Hilfe(const QString& datei, Hilfebefehl befehl) {
    return !buehne.hilfe.aufrufe.empty() && buehne.hilfe.aufrufe.back().datei == datei &&
           buehne.hilfe.aufrufe.back().befehl == befehl;
  }
  bool An(const char* name) { return programm.Hauptfenster().Aktion(name).isChecked(); }

  QTemporaryDir verzeichnis;
  skript::Buehne buehne;
  Zustand zustand;
  Programm programm{zustand, buehne.plattform, {verzeichnis.path(), {}}};
  bool beendet = false;
};

class Menuegang : public GanzesProgramm {
 protected:
  using Wirkung = std::function<bool()>;

  /// What choosing the entry must have brought about.
  std::map<QString, Wirkung> Hauptmenue() {
    return {
        {u"mnuMoreOptions"_s, [this] { return Sichtbar(u"frmOptions"_s); }},
        {u"mnuAFu"_s, [this] { return !An("mnuAFu"); }},
        {u"mnuAbstand"_s, [this] { return programm.Hauptfenster().modus() == Modus::Leistung; }},
        {u"mnuUmrechnung"_s, [this] { return Sichtbar(u"frmLstg"_s); }},
        {u"mnuToolTips"_s,
         [this] { return Finden<QWidget>(*Fenster(u"frmVesk"_s), u"txtQRG"_s).toolTip().isEmpty(); }},
        {u"mnuMeldungen"_s, [this] { return !An("mnuMeldungen"); }},
        {u"mnuFenster"_s, [this] { return Sichtbar(u"frmDatenblatt"_s) && Sichtbar(u"frmOptions"_s); }},
        {u"mnuUser"_s, [this] { return Sichtbar(u"frmUser"_s); }},
        {u"mnuDatenblatt"_s,
         [this] {
           return Sichtbar(u"frmDatenblatt"_s) && programm.Hauptfenster().Aktion("mnuDateiLaden").isEnabled();
         }},
        {u"mnuTip1"_s, [this] { return Sichtbar(u"frmTip"_s); }},
        {u"mnuAnleitung"_s, [this] { return Hilfe(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt); }},
        {u"mnuHilfeBenutzen"_s, [this] { return Hilfe(u"F1.HLP"_s, Hilfebefehl::HilfeBenutzen); }},
        {u"mnuInfo"_s, [this] { return Sichtbar(u"frmInfo"_s); }},
        {u"mnuDateiLaden"_s, [this] { return Dialog(u"User Datei laden"_s); }},
        {u"mnuDateiSpeichern"_s, [this] { return QFile::exists(verzeichnis.filePath(u"user.dat"_s)); }},
        {u"mnuDateiSpeichernUnter"_s, [this] { return Dialog(u"Datenblatt speichern"_s); }},
        {u"mnuEnde"_s, [this] { return beendet && Hilfe(u"F1.HLP"_s, Hilfebefehl::Beenden); }},
    };
  }
  std::map<QString, Wirkung> Datenblattmenue() {
    return {
        {u"mnuDateiLaden"_s, [this] { return Dialog(u"User Datei laden"_s); }},
        {u"mnuDateiSpeichern"_s, [this] { return QFile::exists(verzeichnis.filePath(u"user.dat"_s)); }},
        {u"mnuDateiSpeichernUnter"_s, [this] { return Dialog(u"Datenblatt speichern"_s); }},
        {u"mnuDelete"_s, [this] { return Gefragt(u"Datenblatt wirklich löschen?"_s); }},
        {u"mnuNoChange"_s, [this] { return !zustand.UserGeaendert; }},
        {u"mnuSpalteKopieren"_s, [] { return true; }},
        {u"mnuBeenden"_s, [this] { return !Sichtbar(u"frmDatenblatt"_s) && !Sichtbar(u"frmOptions"_s); }},
        {u"mnuEnde"_s, [this] { return beendet; }},
    };
  }
  std::map<QString, Wirkung> Benutzermenue() {
    return {
        {u"mnuUserNeu"_s, [this] { return Gefragt(u"nacheinander für mehrere Rufzeichen"_s); }},
        {u"mnuUserLaden"_s, [this] { return Dialog(u"User Datei laden"_s); }},
        {u"mnuUserSpeichern"_s, [this] { return Gefragt(u"Die violetten Felder"_s); }},
        {u"mnuUserSpeichernUnter"_s, [this] { return Dialog(u"Datenblatt speichern"_s); }},
        {u"mnuUserDelete"_s, [this] { return Gefragt(u"User-Daten wirklich löschen?"_s); }},
        {u"mnuNoChange"_s, [this] { return !Sichtbar(u"frmUser"_s); }},
        {u"mnuUserBeenden"_s, [this] { return !Sichtbar(u"frmUser"_s); }},
    };
  }

  /// Walks all entries of the window; one that is neither in the table nor disabled with a reason fails.
  void Gehen(const QString& fenster, const std::map<QString, Wirkung>& wirkungen) {
    for (QAction* aktion : Fenster(fenster)->findChildren<QAction*>()) {
      const QString name = aktion->objectName();
      if (!name.startsWith(u"mnu"_s) || aktion->isSeparator() || aktion->menu() != nullptr) continue;
      // Windows may belong to one another; their entries do not.
      if (FensterVon(*aktion) != Fenster(fenster)) continue;
      const auto wirkung = wirkungen.find(name);
      if (wirkung == wirkungen.end()) {
        EXPECT_FALSE(aktion->isEnabled()) << name.toStdString();
        EXPECT_FALSE(aktion->toolTip().isEmpty() || aktion->toolTip() == aktion->text())
            << name.toStdString();
        continue;
      }
      if (name == u"mnuEnde") continue;
      aktion->setEnabled(true);
      aktion->trigger();
      QTest::qWait(1);
      EXPECT_TRUE(wirkung->second()) << fenster.toStdString() << " " << name.toStdString();
      for (const QString& modal : {u"frmUser"_s, u"frmInfo"_s}) {
        if (modal != fenster && Sichtbar(modal)) Fenster(modal)->close();
      }
      if (fenster != u"frmVesk") Fenster(fenster)->show();
    }
    if (wirkungen.contains(u"mnuEnde"_s)) {
      Menue(fenster, u"mnuEnde"_s);
      EXPECT_TRUE(wirkungen.at(u"mnuEnde"_s)());
    }
  }
};

TEST_F(Menuegang, Hauptfenster) {
  Gehen(u"frmVesk"_s, Hauptmenue());
}

TEST_F(Menuegang, Datenblatt) {
  Menue(u"frmVesk"_s, u"mnuDatenblatt"_s);
  Gehen(u"frmDatenblatt"_s, Datenblattmenue());
}

TEST_F(Menuegang, Benutzerdaten) {
  Menue(u"frmVesk"_s, u"mnuUser"_s);
  Gehen(u"frmUser"_s, Benutzermenue());
}

TEST_F(GanzesProgramm, StartOhneDateiHatDieVorgaben) {
  EXPECT_TRUE(An("mnuAFu"));
  EXPECT_TRUE(An("mnuToolTips"));
  EXPECT_TRUE(An("mnuMeldungen"));
  EXPECT_FALSE(An("mnuFenster"));
  EXPECT_FALSE(Sichtbar(u"frmDatenblatt"_s));
  EXPECT_FALSE(Sichtbar(u"frmTip"_s));
  EXPECT_FALSE(programm.Hauptfenster().Aktion("mnuDateiSpeichern").isEnabled());
}

/// Tooltips of all windows with a text, window and control name before it.
QStringList Tooltips() {
  QStringList texte;
  for (const QWidget* fenster : QApplication::topLevelWidgets()) {
    for (const QWidget* kind : fenster->findChildren<QWidget*>()) {
      if (kind->window() != fenster || kind->toolTip().isEmpty() || kind->objectName().isEmpty()) continue;
      texte << fenster->objectName() + u' ' + kind->objectName() + u": "_s + kind->toolTip();
    }
  }
  texte.sort();
  return texte;
}

TEST_F(GanzesProgramm, TooltipsGehenInAllenFensternAusUndAn) {
  Menue(u"frmVesk"_s, u"mnuUmrechnung"_s);
  const QStringList an = Tooltips();
  // The mode switches keep their own even when all are off.
  EXPECT_GT(an.size(), 110);
  for (const QString& beginn :
       {u"frmVesk txtGewinn: Eingabe: Anennengewinn in dBi."_s, u"frmDatenblatt txtA_83"_s,
        u"frmOptions optDuty_0: Sende/Empfangszyklus = TX 1Min"_s,
        u"frmUser txtStandort: Eingabe: Standort"_s, u"frmLstg txtDBm: Diese Felder"_s}) {
    const bool da =
        std::any_of(an.begin(), an.end(), [&](const QString& text) { return text.startsWith(beginn); });
    EXPECT_EQ(da, beginn != u"frmDatenblatt txtA_83") << beginn.toStdString();
  }
  Menue(u"frmVesk"_s, u"mnuToolTips"_s);
  EXPECT_EQ(Tooltips().join(u'\n').toStdString(), "");
  // Screen readers still tell what a field is for, in the mode that is on.
  Menue(u"frmVesk"_s, u"mnuAbstand"_s);
  EXPECT_EQ(Finden<QLineEdit>(programm.Hauptfenster(), u"txtPWR"_s).accessibleDescription(),
            u"Eingabe: Maximal möglicher Sicherheitsabstand");
  Menue(u"frmVesk"_s, u"mnuAbstand"_s);
  EXPECT_TRUE(Finden<QLineEdit>(programm.Hauptfenster(), u"txtGewinn"_s)
                  .accessibleDescription()
                  .startsWith(u"Eingabe"_s));
  Menue(u"frmVesk"_s, u"mnuToolTips"_s);
  EXPECT_EQ(Tooltips(), an);
}

TEST_F(GanzesProgramm, JedesFeldHatEinenNamenFuerVorlesehilfen) {
  Menue(u"frmVesk"_s, u"mnuUmrechnung"_s);
  for (const QWidget* fenster : QApplication::topLevelWidgets()) {
    for (const QLineEdit* feld : fenster->findChildren<QLineEdit*>()) {
      EXPECT_FALSE(feld->accessibleName().isEmpty())
          << fenster->objectName().toStdString() << " " << feld->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace vesk
