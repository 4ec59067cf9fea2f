#include <map>

#include "tests/Tabelle.h"
#include "tests/app/Lauf.h"
#include "ui/datasheet/frmDatenblatt.h"
#include "ui/options/frmOptions.h"
#include "ui/plan/frmLageplan.h"
#include "ui/preview/frmVorschau.h"
#include "ui/user/frmUser.h"

namespace vesk {
namespace {

const QWidget* FensterVon(const QObject* objekt) {
  while (!objekt->isWidgetType() || qobject_cast<const QMenu*>(objekt) != nullptr) objekt = objekt->parent();
  return static_cast<const QWidget*>(objekt)->window();
}

/// Every prompt is allowed: questions are answered with Nein, dialogs cancelled.
struct Menuegang : testing::Test, Verzeichnis, Lauf {
  Menuegang() : Lauf(path(), true) {
    EXPECT_FALSE(Ding<QAction>(u"mnuDateiLaden"_s).isEnabled() || Sichtbar(u"frmTip"_s));
    buehne.boxen.alleErlaubt = true;
    buehne.dialoge.alleErlaubt = true;
    Rechnen({u"14.2"_s, u"100"_s});
    Klick(u"cmdCopy"_s);
    programm.Benutzerfenster();
    programm.Datenblatt();
    programm.Vorschau();
    programm.Lageplan();
    Finden<QTabWidget>(programm.Optionen(), u"SSTab1"_s).setCurrentIndex(3);
  }

  /// One window is open beside the main window, its data are changed, column A is the current one.
  void Vorbereiten(const QString& fenster) {
    for (const QString& offen : Offene()) {
      if (offen == u"frmTip" || offen == u"frmInfo" || offen == u"frmLstg") Fenster(offen).close();
    }
    station.fenster = {fenster == u"frmOptions", fenster == u"frmDatenblatt", fenster == u"frmUser",
                       fenster == u"frmVorschau", true};
    station.fenster.lageplan = fenster == u"frmLageplan";
    station.einstellungen = {.NahfeldHinweisAus = true};
    station.modus = Modus::Abstand;
    station.werte.Spalte = 1;
    programm.Tun([](Station&, const Kataloge&) { return Meldungen{}; });
    QCoreApplication::processEvents();
    station.benutzer.Name = std::to_string(++nummer_);
    station.UserGeaendert = true;
    buehne.boxen.gezeigt.clear();
    buehne.dialoge.gezeigt.clear();
    buehne.hilfe.aufrufe.clear();
  }
  /// What an entry brings about.
  QString Wirkung(QAction& aktion) {
    const QStringList vorher = Offene();
    const Station davor = station;
    const auto& papier = buehne.papier;
    const auto gedruckt = papier.titelliste.size();
    const int eingerichtet = papier.eingerichtet;
    aktion.trigger();
    QTest::qWait(1);
    QStringList was;
    const QStringList nachher = Offene();
    for (const QString& name : nachher) was << (vorher.contains(name) ? QString() : u"+"_s + name);
    for (const QString& name : vorher) was << (nachher.contains(name) ? QString() : u"-"_s + name);
    for (const auto& box : buehne.boxen.gezeigt) was << QString::fromStdString(box.text).section(u'\n', 0, 0);
    for (const Dialogwahl& dialog : buehne.dialoge.gezeigt) was << dialog.titel;
    for (const auto& aufruf : buehne.hilfe.aufrufe) was << aufruf.datei;
    const Einstellungen &e = station.einstellungen, &vor = davor.einstellungen;
    const bool gleich = station.benutzer == davor.benutzer;
    const std::pair<QString, bool> weiteres[] = {
        {u"AFu"_s, e.AFu != vor.AFu},
        {u"Modus"_s, station.modus != davor.modus},
        {u"ToolTips"_s, e.ToolTips != vor.ToolTips},
        {u"Meldungen"_s, e.Meldungen != vor.Meldungen},
        {u"Fenster"_s, e.Fenster != vor.Fenster},
        {u"Spalte"_s, station.Zellen != davor.Zellen && gleich},
        {u"Winkel"_s, station.winkel.antenne != davor.winkel.antenne},
        {u"Winkel.ang"_s, station.winkel.dateiGelesen != davor.winkel.dateiGelesen},
        {gleich ? u"gespeichert"_s : u"verworfen"_s, !station.UserGeaendert || !gleich},
        {u"gedruckt"_s, papier.titelliste.size() > gedruckt},
        {u"eingerichtet"_s, papier.eingerichtet > eingerichtet},
        {u"Ende"_s, beendet}};
    for (const auto& [name, geschehen] : weiteres) was << (geschehen ? name : QString());
    was.removeAll(QString());
    return was.join(u", "_s);
  }
  /// Walks all entries of the window; one that is neither in the table nor disabled with a reason fails.
  void Gehen(const QString& fenster) {
    std::map<QString, QString> wirkungen;
    for (const Tabellenzeile& zeile : Tabelle("app/Menue.csv")) {
      if (zeile["fenster"] != fenster.toStdString()) continue;
      wirkungen[QString::fromStdString(zeile["eintrag"])] = QString::fromStdString(zeile["wirkung"]);
    }
    QList<QAction*> aktionen = Fenster(fenster).findChildren<QAction*>();
    std::stable_partition(aktionen.begin(), aktionen.end(),
                          [](auto* a) { return a->objectName() != u"mnuEnde"; });
    for (QAction* aktion : aktionen) {
      const QString name = aktion->objectName();
      if (!name.startsWith(u"mnu"_s) || aktion->isSeparator() || aktion->menu() != nullptr) continue;
      if (FensterVon(aktion) != &Fenster(fenster)) continue;
      Vorbereiten(fenster);
      if (!aktion->isEnabled()) {
        EXPECT_FALSE(aktion->toolTip().isEmpty() || aktion->toolTip() == aktion->text())
            << name.toStdString();
      } else if (name != u"mnuEnde" || fenster == u"frmVesk") {
        EXPECT_EQ(Wirkung(*aktion).toStdString(), wirkungen[name].toStdString()) << name.toStdString();
      }
      wirkungen.erase(name);
    }
    for (const auto& [name, wirkung] : wirkungen) ADD_FAILURE() << name.toStdString() << " fehlt";
  }

 private:
  int nummer_ = 0;
};

TEST_F(Menuegang, JederEintragJedesFensters) {
  for (const QString& fenster :
       {u"frmOptions"_s, u"frmDatenblatt"_s, u"frmUser"_s, u"frmVorschau"_s, u"frmLageplan"_s, u"frmVesk"_s})
    Gehen(fenster);
}

/// What the program has to say of each disabled entry that the arrow key comes to.
QSet<QString> GruendeUnterwegs(QMenu& menue) {
  QSet<QString> gruende;
  for (qsizetype i = menue.actions().size(); i > 0; --i) {
    QTest::keyClick(&menue, Qt::Key_Down);
    QCoreApplication::processEvents();
    const QAction* eintrag = menue.activeAction();
    if (eintrag != nullptr && !eintrag->isEnabled()) gruende << QToolTip::text();
  }
  return gruende;
}

TEST_F(Menuegang, TastenFindenAuchDenGrund) {
  auto& datei = Ding<QMenu>(u"mnuBedienung"_s);
  datei.popup({});
  QTest::keyClick(&datei, Qt::Key_L);  // where the menu begins
  EXPECT_TRUE(QToolTip::text().startsWith(u"Erst nach"_s));
  EXPECT_EQ(GruendeUnterwegs(datei).size(), 4);
  QTest::keyClick(&datei, Qt::Key_Z);
  QCoreApplication::processEvents();
  EXPECT_EQ(QToolTip::text(), u"Es wurde noch keine Datei benutzt.");
  EXPECT_TRUE(datei.isVisible());
  datei.close();
}

TEST_F(Menuegang, AuchDerErsteEintragSagtWarum) {
  const auto begruendet = [](const QString& grund) {
    return QTest::qWaitFor([&] { return QToolTip::isVisible() && QToolTip::text().startsWith(grund); });
  };
  auto& bearbeiten = Ding<QMenu>(u"mnuBearbeiten"_s);
  bearbeiten.actions().constFirst()->setEnabled(false);
  bearbeiten.actions().constFirst()->setToolTip(u"Gerade nicht"_s);
  Aktivieren(u"frmVesk"_s);
  Taste(Qt::Key_B, Qt::AltModifier);
  ASSERT_TRUE(bearbeiten.isVisible());
  QFocusEvent verlassen(QEvent::FocusOut, Qt::PopupFocusReason);  // takes away what is shown too early
  QCoreApplication::sendEvent(&programm.Hauptfenster(), &verlassen);
  EXPECT_TRUE(begruendet(u"Gerade nicht"_s));
  bearbeiten.close();
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

TEST_F(Menuegang, TooltipsGehenInAllenFensternAusUndAn) {
  Menue(u"mnuUmrechnung"_s);
  Menue(u"mnuDatenblatt"_s);
  programm.Benutzerfenster();
  const QStringList an = Tooltips();
  EXPECT_GT(an.size(), 160);
  for (const QString& beginn :
       {u"frmVesk txtGewinn: Eingabe: Anennengewinn in dBi."_s, u"frmDatenblatt txtA_80: Winkeldämpfung"_s,
        u"frmOptions optDuty_0: Sende/Empfangszyklus = TX 1Min"_s,
        u"frmUser txtStandort: Eingabe: Standort"_s, u"frmLstg txtDBm: Diese Felder"_s}) {
    EXPECT_EQ(an.filter(beginn).size(), 1) << beginn.toStdString();
  }
  Menue(u"mnuToolTips"_s);
  EXPECT_EQ(Tooltips().join(u'\n').toStdString(), "");
  // Screen readers still tell what a field is for, in the mode that is on.
  Menue(u"mnuAbstand"_s);
  EXPECT_EQ(Ding<>(u"txtPWR"_s).accessibleDescription(), u"Eingabe: Maximal möglicher Sicherheitsabstand");
  Menue(u"mnuAbstand"_s);
  Menue(u"mnuToolTips"_s);
  EXPECT_EQ(Tooltips().size(), an.size());
  for (const QWidget* fenster : QApplication::topLevelWidgets()) {
    for (const QLineEdit* feld : fenster->findChildren<QLineEdit*>()) {
      EXPECT_FALSE(feld->accessibleName().isEmpty()) << feld->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace vesk
