// What the manual quotes is in the program, and what the program's menus offer is in the manual.
#include <QRegularExpression>

#include "persistence/Antennendatei.h"
#include "persistence/Kabeldatei.h"
#include "station/Haupthandlungen.h"
#include "station/Optionen.h"
#include "station/Spalten.h"
#include "station/Winkel.h"
#include "tests/app/Lauf.h"
#include "tests/ui/Handbuchseiten.h"
#include "ui/info/Hilfesystem.h"
#include "ui/info/frmHilfe.h"

namespace vesk {
namespace {

/// Quoted words that no window shows: what is typed, printed or stands in a file, and the buttons of boxes.
const QString AndereZitate =
    u"|Ja|Nein|ja|nein|ND|alle|dB|Erde|Dipol|Helix|ANSI|h-|v-|jetzt|HSM|yagi 144|bitte nichts ändern|"
    "Die Datei wird vom Programm erstellt|Angaben zur Gewährleistung des Personenschutzes|"_s;
const QRegularExpression Dateiname(u"^[-\\w…]*\\.(dat|ang|lageplan|txt|TXT|bak)$"_s);

QString Glatt(QString text) {
  return text.remove(u'&').remove(u'…').simplified();
}

struct Handbuch : testing::Test, Verzeichnis, Lauf {
  Handbuch() : Lauf(path()) {
    for (const Befehl befehl :
         {Befehl::DatenblattZeigen, Befehl::LeistungsumrechnungZeigen, Befehl::InfoZeigen, Befehl::TipZeigen,
          Befehl::BaenderZeigen, Befehl::DiagrammeZeigen, Befehl::LageplanZeigen}) {
      programm.Befehlen(befehl);
    }
    programm.Benutzerfenster();
    programm.Vorschau();
    hilfe.Aufrufen(u"Vesk32.HLP"_s, Hilfebefehl::Inhalt, 0);
  }
  /// Takes down what all windows show after that.
  void Ablesen(const Handlung& handlung) {
    programm.Tun(handlung);
    QList<QObject*> dinge;
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
      dinge << fenster << fenster->findChildren<QObject*>();
    }
    for (const QObject* ding : dinge) {
      for (const char* art : {"text", "title", "windowTitle", "accessibleName", "placeholderText"}) {
        gezeigt << Glatt(ding->property(art).toString());
      }
      const auto* karten = qobject_cast<const QTabWidget*>(ding);
      for (int i = 0; karten != nullptr && i < karten->count(); ++i) gezeigt << Glatt(karten->tabText(i));
      const auto* modell = qobject_cast<const QAbstractItemModel*>(ding);
      for (int i = 0; modell != nullptr && i < modell->rowCount(); ++i) {
        gezeigt << Glatt(modell->index(i, 0).data().toString());
      }
      for (int i = 0; modell != nullptr && i < modell->columnCount(); ++i) {
        gezeigt << Glatt(modell->headerData(i, Qt::Horizontal).toString());
      }
    }
  }
  bool Gezeigt(const QString& zitat) const {
    const QString text = Glatt(zitat);
    return std::any_of(gezeigt.begin(), gezeigt.end(), [&](const QString& ganz) {
      return ganz == text || (ganz.startsWith(text) && !ganz[text.size()].isLetterOrNumber());
    });
  }

  QMap<QString, QString> seiten = Handbuchseiten();
  QSet<QString> gezeigt;
  Hilfesystem hilfe{QStringLiteral(VESK_DATEN "/hilfe"), buehne.boxen, buehne.papier};
};

TEST_F(Handbuch, WasInAnfuehrungszeichenStehtZeigtDasProgramm) {
  Ablesen(Mit(EingabeGetippt, Eingabefeld::QRG, std::string("145")));
  Ablesen(Mit(EingabeGetippt, Eingabefeld::PWR, std::string("100")));
  Ablesen(BerechnenVerlangt);
  Ablesen(AFuUmschalten);
  Ablesen(AbstandUmschalten);
  programm.Tun(AbstandUmschalten);
  programm.Tun(Mit(EingabeGetippt, Eingabefeld::PWR, std::string("100")));
  for (const char* datei : {"/h-x.ang", "/v-x.ang"}) {
    Ablesen([datei](Station& s, const Kataloge&) { return s.winkel.datei = datei, Meldungen{}; });
  }
  Ablesen(WinkelBeispiel);
  for (int i = 0; i < AnzahlSpalten; ++i) {
    programm.Tun(BerechnenVerlangt);
    Ablesen(InFreieSpalteKopieren);
  }
  Ablesen([](Station& s, const Kataloge& k) {
    s.Datenblattspalten[0].Winkel = {};
    s.UserGeaendert = false;
    return KopfGeklickt(s, k, 2);
  });
  for (const Hinweis& box :
       {NahfeldHinweis(1, Modus::Abstand), Fehlermeldung(Fehlerart::Gleitkomma),
        Fehlermeldung(Fehlerart::Ueberlauf), Fehlermeldung(KabelOhneDatei().Meldung),
        Fehlermeldung(KabelLaden("x,1").Meldung), Fehlermeldung(AntennenLaden("x,y,14").Meldung)}) {
    for (const std::string& text : {box.titel, box.text}) gezeigt << Glatt(QString::fromStdString(text));
    gezeigt << QString::fromStdString(box.text).section(u'\n', -1);
  }
  for (auto seite = seiten.begin(); seite != seiten.end(); ++seite) {
    for (auto zitat = QRegularExpression(u"„([^“]*)“"_s).globalMatch(*seite); zitat.hasNext();) {
      const QString text = zitat.next().captured(1);
      EXPECT_TRUE(Gezeigt(text) || AndereZitate.contains(u'|' + text + u'|') || text.contains(Dateiname))
          << seite.key().toStdString() << ": " << text.toStdString();
    }
  }
}

/// What the pages say of colours and of a copy.
TEST_F(Handbuch, FarbenUndKopieSindWieBeschrieben) {
  const auto farbe = [](const char* feld) { return Hintergrundfarbe(Ding<>(QString::fromLatin1(feld))); };
  programm.Tun(Mit(BetriebsartGeklickt, 0));  // a factor below 1
  for (const auto& [band, grund] : {std::pair{"14", farben::Nahfeld}, {"145", farben::Gruen}}) {
    programm.Tun(Mit(EingabeGetippt, Eingabefeld::QRG, std::string(band)));
    programm.Tun(Mit(EingabeGetippt, Eingabefeld::PWR, std::string("100")));
    programm.Tun(BerechnenVerlangt);
    EXPECT_EQ(farbe("txtAusgabe"), grund) << band;
  }
  programm.Tun(Mit(AntenneGewaehlt, 1));
  programm.Tun(AntenneNehmen);
  programm.Tun(InFreieSpalteKopieren);
  EXPECT_EQ(Zelle(1, ZeileGewinn) + u'|' + Zelle(1, ZeileAntenne), u"2.15|");
  programm.Tun(Mit(KopfGeklickt, 1));
  programm.Tun(AntenneNehmen);
  EXPECT_EQ(Zelle(1, ZeileAntenne), u"Dipol UKW");
  programm.Tun(AbstandUmschalten);
  for (const char* feld : {"txtPWR", "txtAusgabe", "txtAusgabeHSMvde"})
    EXPECT_EQ(farbe(feld), farben::HellCyan);
  programm.Tun(Mit(EingabeGetippt, Eingabefeld::QRG, std::string("14")));
  programm.Tun(Mit(EingabeGetippt, Eingabefeld::PWR, std::string("10")));
  programm.Tun(BerechnenVerlangt);
  EXPECT_EQ(farbe("txtPWR"), farben::Weiss);
  EXPECT_EQ(farbe("txtAusgabe"), farben::HellCyan);
  EXPECT_EQ(farbe("txtAusgabeHSMvde"), farben::HellRot);
}

/// A key as the page of keys names it.
QString Tastenname(const QKeySequence& taste) {
  QString name = taste.toString();
  for (const auto& [von, nach] : {std::pair{u"Ctrl"_s, u"Strg"_s},
                                  {u"Shift"_s, u"Umschalt"_s},
                                  {u"Return"_s, u"Enter"_s},
                                  {u"Del"_s, u"Entf"_s},
                                  {u"Ins"_s, u"Einfg"_s},
                                  {u"Home"_s, u"Pos1"_s},
                                  {u"End"_s, u"Ende"_s},
                                  {u"PgUp"_s, u"Bild auf"_s},
                                  {u"PgDown"_s, u"Bild ab"_s},
                                  {u"Left"_s, u"Pfeil links"_s},
                                  {u"Right"_s, u"Pfeil rechts"_s},
                                  {u"++"_s, u"+Plus"_s},
                                  {u"+-"_s, u"+Minus"_s}}) {
    name.replace(von, nach);
  }
  return name;
}

TEST_F(Handbuch, NenntDieTastenJedesFensters) {
  const QMap<QString, QString> ueberschriften = {{u"frmVesk"_s, u"Hauptfenster"_s},
                                                 {u"frmDatenblatt"_s, u"Datenblatt"_s},
                                                 {u"frmOptions"_s, u"Optionen"_s},
                                                 {u"frmUser"_s, u"Persönliche Daten"_s},
                                                 {u"frmLstg"_s, u"Leistungsumrechnung"_s},
                                                 {u"frmBaender"_s, u"Alle Bänder"_s},
                                                 {u"frmLageplan"_s, u"Lageplan"_s},
                                                 {u"frmVorschau"_s, u"Vorschau der Unterlagen"_s},
                                                 {u"frmHilfe"_s, u"Hilfe"_s}};
  QMap<QString, QString> abschnitte;
  for (const QString& teil : seiten[u"tastatur.html"_s].split(u"<h2>"_s).sliced(1))
    abschnitte[teil.section(u"</h2>"_s, 0, 0)] = teil;
  std::size_t tasten = 0;
  for (const QWidget* fenster : QApplication::topLevelWidgets()) {
    if (!fenster->objectName().startsWith(u"frm"_s)) continue;  // a menu, which its window has, too
    const QString text = abschnitte[u"Überall"_s] + abschnitte[u"Beim Arbeiten"_s] +
                         abschnitte[ueberschriften[fenster->objectName()]];
    QList<QKeySequence> folgen;
    for (const QShortcut* weg : fenster->findChildren<QShortcut*>()) folgen << weg->key();
    for (const QAction* eintrag : fenster->findChildren<QAction*>()) folgen << eintrag->shortcut();
    for (const QKeySequence& folge : folgen) {
      if (folge.isEmpty()) continue;
      ++tasten;
      EXPECT_TRUE(QRegularExpression(u"\\b"_s + QRegularExpression::escape(Tastenname(folge)) + u"\\b"_s)
                      .match(text)
                      .hasMatch())
          << fenster->objectName().toStdString() << ": " << Tastenname(folge).toStdString();
    }
  }
  EXPECT_GT(tasten, 30U);
}

TEST_F(Handbuch, NenntJedenMenueeintrag) {
  for (const auto& [fenster, name] : {std::pair{u"frmVesk"_s, u"hauptfenster.html"_s},
                                      {u"frmDatenblatt"_s, u"datenblatt.html"_s},
                                      {u"frmUser"_s, u"benutzerdaten.html"_s}}) {
    for (const QMenu* menue : Fenster(fenster).findChildren<QMenu*>()) {
      for (const QAction* eintrag : menue->actions()) {
        const bool hier = menue->parentWidget()->window() == &Fenster(fenster);
        if (!hier || eintrag->objectName().startsWith(u"mnuZuletzt_"_s)) continue;
        const QString text = Glatt(eintrag->text()).section(u" ("_s, 0, 0);
        EXPECT_TRUE(Glatt(seiten[name]).contains(text)) << name.toStdString() << ": " << text.toStdString();
      }
    }
  }
}

}  // namespace
}  // namespace vesk
