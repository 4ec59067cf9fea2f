// What keyboard and screen reader need in every window: names, roles, the way of the Tab key, access keys.
#include <QAccessible>

#include "tests/Tabelle.h"
#include "tests/app/Lauf.h"
#include "ui/basis/Menue.h"
#include "ui/info/Hilfesystem.h"
#include "ui/info/frmHilfe.h"

namespace vesk {
namespace {

using Rolle = QAccessible::Role;
const QSet<Rolle> Bedienbar = {Rolle::Button,   Rolle::ButtonMenu,   Rolle::CheckBox, Rolle::RadioButton,
                               Rolle::ComboBox, Rolle::EditableText, Rolle::List,     Rolle::Table,
                               Rolle::Tree,     Rolle::SpinBox,      Rolle::Document, Rolle::PageTabList,
                               Rolle::Graphic,  Rolle::Slider};

struct Zugang : testing::Test, Verzeichnis, Lauf {
  Zugang() : Lauf(path()) {
    Rechnen({u"14.2"_s, u"100"_s});
    Klick(u"cmdCopy"_s);
    programm.Befehlen(Befehl::HilfeBenutzen);
  }
  /// Calls `pruefen` for every window, and for every page of its tabs.
  template <typename Pruefen>
  void Fensterweise(Pruefen pruefen) {
    using enum Befehl;
    const std::pair<QString, Befehl> alle[] = {{u"frmOptions"_s, OptionenZeigen},
                                               {u"frmDatenblatt"_s, DatenblattZeigen},
                                               {u"frmBaender"_s, BaenderZeigen},
                                               {u"frmDiagramme"_s, DiagrammeZeigen},
                                               {u"frmLageplan"_s, LageplanZeigen},
                                               {u"frmVorschau"_s, {}},
                                               {u"frmLstg"_s, LeistungsumrechnungZeigen},
                                               {u"frmUser"_s, BenutzerZeigen},
                                               {u"frmTip"_s, TipZeigen},
                                               {u"frmInfo"_s, InfoZeigen},
                                               {u"frmHilfe"_s, {}},
                                               {u"frmVesk"_s, {}}};
    for (const auto& [name, befehl] : alle) {
      if (befehl != Befehl{}) programm.Befehlen(befehl);
      if (name == u"frmVorschau") Menue(u"mnuPapiere"_s);
      if (name == u"frmHilfe") hilfe_.Aufrufen(u"F1.HLP"_s, Hilfebefehl::HilfeBenutzen, 0);
      Aktivieren(name);
      QWidget& fenster = Fenster(name);
      auto* karten = fenster.findChild<QTabWidget*>();
      for (int i = 0; i < (karten != nullptr ? karten->count() : 1); ++i) {
        SCOPED_TRACE(name.toStdString() + ' ' + std::to_string(i));
        if (karten != nullptr) karten->setCurrentIndex(i);
        QTest::qWait(1);
        pruefen(fenster);
      }
      if (name != u"frmVesk") fenster.close();
    }
  }

 private:
  Hilfesystem hilfe_{QStringLiteral(VESK_DATEN "/hilfe"), buehne.boxen, buehne.papier};
};

/// All controls of the accessibility tree that can be used; one without a name fails.
void Bedienbare(QAccessibleInterface* knoten, QSet<const QObject*>& gefunden) {
  const QAccessible::State stand = knoten->state();
  auto* control = qobject_cast<QWidget*>(knoten->object());
  if (control != nullptr && (!control->isVisible() || !control->isEnabled())) return;
  const auto* zeile = qobject_cast<const QLineEdit*>(control);
  // What stands beside a field is read out with it.
  const bool daneben = zeile != nullptr && zeile->isReadOnly() && zeile->focusPolicy() == Qt::ClickFocus;
  const bool text = qobject_cast<const QTextBrowser*>(control) != nullptr;
  if (stand.focusable && !daneben && (text || Bedienbar.contains(knoten->role()))) {
    EXPECT_FALSE(knoten->text(QAccessible::Name).trimmed().isEmpty() && knoten->role() != Rolle::PageTabList)
        << control->objectName().toStdString() << ' ' << control->metaObject()->className();
    gefunden.insert(control);
    return;  // its entries are reached by its own keys
  }
  for (int i = 0; i < knoten->childCount(); ++i) Bedienbare(knoten->child(i), gefunden);
}

/// The control that the user takes the one with the focus for.
QWidget* Control(QWidget* feld) {
  QWidget* eltern = feld->parentWidget();
  const bool teil = qobject_cast<QComboBox*>(eltern) != nullptr || qobject_cast<QSpinBox*>(eltern) != nullptr;
  return teil ? eltern : feld;
}

std::string Name(const QObject* control) {
  return control->objectName().toStdString() + " (" + control->metaObject()->className() + ')';
}

/// Beside or below, as one reads; not asked of controls in different frames.
bool Weiter(const QWidget& a, const QWidget& b) {
  if (a.parentWidget() != b.parentWidget()) return true;
  const bool darueber = b.geometry().bottom() <= a.geometry().top();
  const bool links = b.geometry().right() <= a.geometry().left();
  const bool rechts = b.geometry().left() >= a.geometry().right();
  return darueber ? rechts : !links || b.geometry().top() >= a.geometry().bottom();
}

TEST_F(Zugang, TabErreichtJedesControlEinmalInLesefolge) {
  QSet<QString> vorgegeben;
  for (const Tabellenzeile& zeile : Tabelle("app/Tabfolgen.csv"))
    vorgegeben << QString::fromStdString(zeile["folge"]).section(u' ', 0, 0);
  Fensterweise([&](QWidget& fenster) {
    QSet<const QObject*> alle;
    Bedienbare(QAccessible::queryAccessibleInterface(&fenster), alle);
    QList<QWidget*> weg;
    QTest::keyClick(&fenster, Qt::Key_Tab);
    int zurueck = 0;
    std::string spruenge;
    for (QWidget* control = Control(&Fokusfeld()); !weg.contains(control); control = Control(&Fokusfeld())) {
      if (!weg.isEmpty() && !Weiter(*weg.constLast(), *control)) {
        ++zurueck;
        spruenge += Name(weg.constLast()) + " -> " + Name(control) + '\n';
      }
      weg << control;
      // In a text it goes from link to link first.
      for (int mal = 0; mal < 50 && Control(&Fokusfeld()) == control; ++mal) Taste(Qt::Key_Tab);
    }
    EXPECT_TRUE(zurueck <= 1 || vorgegeben.contains(fenster.objectName())) << spruenge;
    EXPECT_EQ(Control(&Fokusfeld()), weg.constFirst());
    for (const QObject* control : alle) {
      const auto* knopf = qobject_cast<const QRadioButton*>(control);
      const bool pfeil = knopf != nullptr && !knopf->isChecked();
      EXPECT_TRUE(pfeil || weg.contains(control)) << "nicht erreicht: " << Name(control);
    }
    for (const QWidget* control : weg) EXPECT_TRUE(alle.contains(control)) << "ohne Rolle: " << Name(control);
  });
}

/// Texts that share a letter; `erlaubt` names the pairs that are meant to.
void Eindeutig(const QStringList& texte, const QStringList& erlaubt = {}) {
  QMap<QString, QString> vergeben;
  for (const QString& text : texte) {
    const QString taste = QKeySequence::mnemonic(text).toString();
    if (taste.isEmpty()) continue;
    const QString andere = vergeben.value(taste);
    EXPECT_TRUE(andere.isEmpty() || erlaubt.contains(andere + u'|' + text))
        << andere.toStdString() << " | " << text.toStdString();
    vergeben.insert(taste, text);
  }
}

TEST_F(Zugang, JederBuchstabeWirktEinmal) {
  const QStringList paare = {u"&Weitere Optionen (Sendeart - Kabel - Antennen - Winkel)|&Warnmeldungen"_s,
                             u"&Hilfe Handbuch|&Hilfe benutzen"_s, u"Daten &laden|Daten &Löschen"_s};
  Fensterweise([&](QWidget& fenster) {
    QStringList imFenster;
    for (QWidget* control : fenster.findChildren<QWidget*>()) {
      if (const auto* menue = qobject_cast<const QMenu*>(control)) {
        QStringList texte, gezeigt;
        for (const QAction* aktion : menue->actions()) {
          const auto* eigen = qobject_cast<const Fenstermenue*>(menue);
          texte << aktion->text();
          gezeigt << (eigen != nullptr ? eigen->Gezeigt(*aktion) : aktion->text());
        }
        Eindeutig(texte, paare);
        Eindeutig(gezeigt);
      }
      if (control->window() != &fenster || !control->isVisible()) continue;
      const auto* label = qobject_cast<const QLabel*>(control);
      if (label != nullptr && label->buddy() != nullptr) imFenster << label->text();
      if (const auto* knopf = qobject_cast<const QAbstractButton*>(control)) imFenster << knopf->text();
      if (const auto* karten = qobject_cast<const QTabBar*>(control))
        for (int i = 0; i < karten->count(); ++i) imFenster << karten->tabText(i);
      if (const auto* leiste = qobject_cast<const QMenuBar*>(control))
        for (const QAction* aktion : leiste->actions()) imFenster << aktion->text();
    }
    Eindeutig(imFenster);
  });
}

TEST_F(Zugang, GesperrtesSagtWarum) {
  const auto gesperrt = [](QWidget& fenster) {
    for (const QWidget* control : fenster.findChildren<QWidget*>()) {
      const bool hier = control->window() == &fenster && control->isVisible();
      const bool selbst =
          control->focusPolicy() != Qt::NoFocus && control->testAttribute(Qt::WA_ForceDisabled);
      if (hier && selbst && qobject_cast<const QTabBar*>(control) == nullptr) {
        QHelpEvent ruht(QEvent::ToolTip, {1, 1}, control->mapToGlobal(QPoint(1, 1)));
        QToolTip::hideText();
        QCoreApplication::sendEvent(const_cast<QWidget*>(control), &ruht);
        EXPECT_FALSE(QToolTip::text().isEmpty()) << Name(control);
      }
    }
    for (const QAction* aktion : fenster.findChildren<QAction*>()) {
      const QString ohneEigenen = QAction(aktion->text()).toolTip();
      if (!aktion->isEnabled() && !aktion->isSeparator() && !aktion->objectName().isEmpty()) {
        EXPECT_TRUE(aktion->toolTip() != ohneEigenen) << Name(aktion);
      }
    }
  };
  Menue(u"mnuToolTips"_s);  // the reason is said without tooltips, too
  Fensterweise(gesperrt);
  station.papiere.art = Papierart::Winkel;
  Fensterweise(gesperrt);
}

TEST_F(Zugang, BuchstabenImMenueWirkenSofortUndNurEinmal) {
  const auto druecken = [&](const QString& menue, Qt::Key taste) {
    auto& ziel = Ding<QMenu>(menue);
    ziel.popup({});
    QTest::keyClick(&ziel, taste, {}, 1);
    QTest::qWait(1);
    EXPECT_FALSE(ziel.isVisible());
    Aktivieren(u"frmVesk"_s);
  };
  const bool meldungen = station.einstellungen.Meldungen;
  druecken(u"mnuOption"_s, Qt::Key_W);
  EXPECT_TRUE(Sichtbar(u"frmOptions"_s));
  druecken(u"mnuOption"_s, Qt::Key_W);
  EXPECT_EQ(station.einstellungen.Meldungen, meldungen);
  EXPECT_TRUE(Ding<Fenstermenue>(u"mnuOption"_s).Gezeigt(Ding<QAction>(u"mnuMeldungen"_s)) ==
              u"Wa&rnmeldungen"_s);
  druecken(u"mnuOption"_s, Qt::Key_R);
  EXPECT_NE(station.einstellungen.Meldungen, meldungen);
  druecken(u"mnuHilfe"_s, Qt::Key_I);
  EXPECT_EQ(buehne.hilfe.aufrufe.back().befehl, Hilfebefehl::HilfeBenutzen);
}

TEST_F(Zugang, ZellenZeigenZwanzigZeichen) {
  Menue(u"mnuDatenblatt"_s);
  const QString blatt = u"frmDatenblatt"_s;
  auto& zelle = Ding<>(Zellenname(2, ZeileAntenne), blatt);
  for (const QString& text : {u"Dipol"_s, u"Beispiel Tonna 17-El"_s, QString(20, u'W')}) {
    station.Zellen[Zellenindex(2, ZeileAntenne)] = text.toStdString();
    Menue(u"mnuDatenblatt"_s);
    const bool ganz = zelle.fontMetrics().horizontalAdvance(text) < zelle.width();
    EXPECT_NE(ganz, text.startsWith(u'W')) << text.toStdString();
    EXPECT_EQ(zelle.font().stretch() == 100, text == u"Dipol");
    QHelpEvent ruht(QEvent::ToolTip, {1, 1}, zelle.mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(&zelle, &ruht);
    EXPECT_NE(QToolTip::text().contains(text), ganz);
  }
}

TEST_F(Zugang, ErgebnisseWerdenAngesagt) {
  const QString optionen = u"frmOptions"_s, blatt = u"frmDatenblatt"_s;
  const auto ansagen = [] {
    QWidgetList alle = QApplication::allWidgets();
    alle.removeIf([](const QWidget* control) { return control->objectName() != u"lblAnsage"; });
    return alle;
  };
  const std::pair<std::function<void()>, std::string> schritte[] = {
      {[&] {
         Rechnen({u"14.2"_s, u"200"_s});
       },
       "Sicherheitsabstand ohne HSM 2.82 Meter, Sicherheitsabstand HSM VDE 6.28 Meter, Sicherh"},
      {[&] {
         Ding<>(u"txtGewinn"_s).setFocus();
         Tippen(u"5"_s);
       },
       "Ergebnisse veraltet"},
      {[&] { Menue(u"mnuMoreOptions"_s); }, ""},
      {[&] { Klick(u"chkBetriebsart_0"_s, optionen); },
       "Faktor für Sendeart 0.40, Sicherheitsabstand ohne HSM 3.17 Meter"},
      {[&] {
         Ding<QTabWidget>(u"SSTab1"_s, optionen).setCurrentIndex(3);
         Menue(u"mnuWinkelBeispiel"_s, optionen);
       },
       "EIRP 00 - 10 Grad "},
      {[&] { Ding<>(u"txtWDaempfung_2"_s, optionen).setFocus(); },
       "EIRP 20 - 30 Grad 5471.01 Watt, Abstand ohne HSM 20 - 30 Grad 14.73 Meter"},
      {[&] {
         Ding<>(u"txtWAntEinPWR"_s, optionen).setFocus();
         Tippen(u"1"_s);
       },
       "Ergebnisse veraltet"},
      {[&] { Ding<>(u"txtWDaempfung_2"_s, optionen).setFocus(); },
       "EIRP 20 - 30 Grad 5471.01 Watt, Abstand ohne HSM 20 - 30 Grad 14.73 Meter, Ergebnisse veraltet"},
      {[&] {
         Ding<QTabWidget>(u"SSTab1"_s, optionen).setCurrentIndex(1);
         Ding<>(u"txtGesamtdaempfung"_s, optionen).setFocus();
         Tippen(u"3"_s);
       },
       ""},
      {[&] {
         Menue(u"mnuUmrechnung"_s);
         Aktivieren(u"frmLstg"_s);
         Ding<>(u"txtDBm"_s, u"frmLstg"_s).setFocus();
         Tippen(u"30"_s);
         Taste(Qt::Key_Return);
       },
       "Leistung in dBW 0,00, Leistung in Watt 1,000"},
      {[&] {
         Menue(u"mnuDatenblatt"_s);
         Aktivieren(blatt);
         Klick(Zellenname(1, ZeileLeistung), blatt);
         Ding<>(Zellenname(1, ZeileLeistung), blatt).selectAll();
         Tippen(u"9"_s);
       },
       "Ergebnisse veraltet"},
      {[&] { Klick(u"cmdRechnen"_s, blatt); }, "Spalte A, Sicherheitsabstand ohne HSM 0.60 Meter, "},
  };
  for (const auto& [tun, erwartet] : schritte) {
    for (QWidget* ansage : ansagen()) ansage->setAccessibleName({});
    tun();
    QTest::qWait(60);
    QStringList gesagt;
    for (const QWidget* ansage : ansagen()) gesagt << ansage->accessibleName();
    gesagt.removeAll(QString());
    const std::string text = gesagt.join(u" / "_s).toStdString();  // one window speaks for all
    EXPECT_EQ(text.substr(0, erwartet.empty() ? text.size() : erwartet.size()), erwartet) << text;
    EXPECT_LE(gesagt.size(), 1) << text;
  }
  EXPECT_TRUE(Text(u"lblSpaltenstand"_s, blatt).startsWith(u"Spalte A: vorwärts gerechnet"_s));
}

}  // namespace
}  // namespace vesk
