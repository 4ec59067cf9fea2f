#include "tests/Tabelle.h"
#include "tests/app/Lauf.h"

namespace vesk {
namespace {

const QString Optionen = u"frmOptions"_s;
const QString Blatt = u"frmDatenblatt"_s;

/// 145 MHz, 50 W, 12.5 dBi: 5.94 m.
struct Fenster : testing::Test, Verzeichnis, Lauf {
  Fenster() : Lauf(path()) { Rechnen({u"145"_s, u"50"_s, u"12.5"_s, u"0"_s, u"0"_s}); }
  void Reiter(int nummer) {
    Menue(u"mnuMoreOptions"_s);
    Ding<QTabWidget>(u"SSTab1"_s, Optionen).setCurrentIndex(nummer);
    Aktivieren(Optionen);
  }
  void Option(const QString& name, const QString& text) {
    Klick(name, Optionen);
    Ding<>(name, Optionen).selectAll();
    Tippen(text);
  }
  void Kabel() {
    Reiter(1);
    Option(u"txtKabelLaenge"_s, u"20"_s);
    Option(u"txtStecker"_s, u"0.5"_s);
    Klick(u"cmdGleich"_s, Optionen);
  }
  void Blattklick(const QString& name, Qt::MouseButton taste = Qt::LeftButton) {
    if (!Sichtbar(Blatt)) Menue(u"mnuDatenblatt"_s);
    Aktivieren(Blatt);
    Klick(name, Blatt, taste);
  }
};

TEST_F(Fenster, KabelTab) {
  Kabel();
  EXPECT_EQ(Text(u"txtD100"_s, Optionen), u"7.61");
  EXPECT_FALSE(Ding<>(u"txtD100"_s, Optionen).isEnabled());
  EXPECT_EQ(Text(u"txtDaempfung txtAusgabe"_s), u"2.02|4.71");
  // A click empties what is typed anew, not the connectors; an emptied frequency comes back.
  for (const QString& name : {u"txtKabelLaenge"_s, u"txtKabeldaempfung"_s, u"txtStecker"_s, u"txtQRG"_s}) {
    Klick(name, Optionen);
    EXPECT_EQ(Text(name, Optionen), name == u"txtStecker" ? u"0.5"_s : QString());
  }
  Taste(Qt::Key_Tab);
  EXPECT_EQ(Text(u"txtQRG"_s, Optionen), u"145");
  // What a frequency on the way would say is said when the field is left; closing the frame leaves it.
  Menue(u"mnuMeldungen"_s);
  Option(u"txtKabelLaenge"_s, u"20"_s);
  Option(u"txtQRG"_s, u"1.85"_s);
  EXPECT_EQ(Text(u"txtQRG"_s), u"145");
  buehne.boxen.Erwarten("Nahfeld Problematik", "Nahfeld", Antwort::Nein);
  Lauf::Fenster(Optionen).close();
  QTest::qWait(150);
  EXPECT_FALSE(Sichtbar(Optionen) || station.OptionenBeruecksichtigen);
  EXPECT_EQ(Text(u"txtQRG"_s), u"1.85");
}

TEST_F(Fenster, SendeartTab) {
  Reiter(0);
  const auto kreuz = [](int i) {
    return Ding<QCheckBox>(u"chkBetriebsart_%1"_s.arg(i), Optionen).isChecked();
  };
  Klick(u"chkBetriebsart_0"_s, Optionen);
  Klick(u"chkBetriebsart_1"_s, Optionen);
  EXPECT_FALSE(kreuz(7));
  Klick(u"optDuty_2"_s, Optionen);
  EXPECT_EQ(Text(u"txtSelectedModes txtFaktorB"_s, Optionen), u"cw ssb |0.25");
  EXPECT_EQ(Hintergrundfarbe(Ding<>(u"txtFaktorB"_s, Optionen)), farben::Gruen);
  EXPECT_EQ(Text(u"txtAusgabe"_s), u"2.97");
  for (int i = 0; i < 2; ++i) {
    Klick(u"chkBetriebsart_5"_s, Optionen);  // ATV cannot be unticked
    EXPECT_TRUE(kreuz(5) && !kreuz(0));
    EXPECT_TRUE(Ding<QRadioButton>(u"optSSB_1"_s, Optionen).isChecked());
  }
  EXPECT_NE(Text(u"txtAusgabeHSMvde"_s), u"");
}

TEST_F(Fenster, AntennenTab) {
  Reiter(2);
  auto& liste = Ding<QListWidget>(u"LstAntennen"_s, Optionen);
  Option(u"txtSuche"_s, u"yagi 144"_s);
  int zeile = liste.count() - 1;
  for (int i = zeile; i >= 0; --i) zeile = liste.item(i)->isHidden() ? zeile : i;
  QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, liste.visualItemRect(liste.item(zeile)).center());
  auto& nehmen = Ding<QPushButton>(u"cmdAntenne"_s, Optionen);
  ASSERT_TRUE(nehmen.isEnabled());
  QTest::mouseClick(&nehmen, Qt::LeftButton);
  EXPECT_FALSE(nehmen.isEnabled());
  EXPECT_EQ(Text(u"txtGewinn"_s), Text(u"txtWGewinn0"_s, Optionen));
  EXPECT_NE(Text(u"txtAusgabe"_s), u"5.94");
  EXPECT_TRUE(Ding<QPushButton>(u"cmdCopy"_s).isEnabled());
  Option(u"txtSuche"_s, u"dipol 3.6"_s);
  EXPECT_TRUE(Text(u"lblGewaehlt"_s, Optionen).contains(Text(u"lblAntenne"_s, Optionen)));
}

TEST_F(Fenster, WinkelTab) {
  Reiter(3);
  Menue(u"mnuWinkelBeispiel"_s, Optionen);
  EXPECT_EQ(Text(u"txtWAbstand_0 txtWHSMvde_0"_s, Optionen), u"21.61|");
  QTest::mouseDClick(&Ding<>(u"txtWDaempfung_2"_s, Optionen), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(Text(u"txtWinkelDaempfung txtAusgabe"_s), u"3.33|4.05");
  EXPECT_TRUE(Veraltet(u"txtWAbstand_0"_s, Optionen) && !Veraltet(u"txtWEIRP_0"_s, Optionen));
  Option(u"txtWDaempfung_1"_s, u"1"_s);
  Taste(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Text(u"txtWinkelDaempfung"_s), u"1");
  buehne.dialoge.Antworten(filePath(u"h-test.ang"_s));
  Menue(u"mnuWinkelSpeichern"_s, Optionen);  // the example has no file yet
  EXPECT_TRUE(QFile::exists(filePath(u"h-test.ang"_s)));
  EXPECT_EQ(Text(u"lblWDatei"_s, Optionen), u"h-test.ang");
}

TEST_F(Fenster, AktuelleSpalteRechnetMit) {
  Klick(u"cmdCopy"_s);
  EXPECT_EQ(Fokus(), u"cmdBerechnen");
  Blattklick(Zellenname(1, 1));
  Kabel();
  EXPECT_EQ(Zelle(1, 7) + Zelle(1, 10), u"2.024.71");
  Klick(u"optSSB_1"_s, Optionen);
  EXPECT_NE(Zelle(1, 12), u"");
  EXPECT_TRUE(Ding<QPushButton>(u"cmdRechnen"_s, Blatt).isEnabled());
  Aktivieren(u"frmVesk"_s);
  EXPECT_EQ(station.werte.Spalte, 0);
  EXPECT_FALSE(Ding<QPushButton>(u"cmdRechnen"_s, Blatt).isEnabled());
}

TEST_F(Fenster, ZellenDesDatenblatts) {
  Klick(u"cmdCopy"_s);
  Blattklick(Zellenname(1, 6));
  EXPECT_EQ(Ding<QLabel>(u"lblSpalte_0"_s, Blatt).palette().color(QPalette::Window), farben::Spaltenmarke);
  Ding<>(Zellenname(1, 6), Blatt).selectAll();
  Tippen(u"1\"000,5"_s);  // the file cannot hold a quote
  EXPECT_EQ(Zelle(1, 6), u"1000.5");
  EXPECT_EQ(buehne.ton.anzahl, 1);
  EXPECT_TRUE(Veraltet(Zellenname(1, 10), Blatt) && Veraltet(Zellenname(1, 12), Blatt));
  Taste(Qt::Key_Return);
  EXPECT_EQ(Fokus(), Zellenname(1, 7));
  Klick(u"cmdRechnen"_s, Blatt);
  EXPECT_EQ(Zelle(1, 10), u"26.57");
  EXPECT_EQ(Ding<QPushButton>(u"cmdCopy"_s).text(), u"Kopieren in Spalte B");
  Ding<>(Zellenname(1, 2), Blatt).setFocus();
  Tippen(u"1,5"_s);
  EXPECT_EQ(Zelle(1, 2), u"1,5");  // a comma is a point in numbers only
  buehne.boxen.Erwarten("Vesk", "Spalte A wirklich löschen?", Antwort::Ja);
  Blattklick(u"lblSpalte_0"_s, Qt::RightButton);
  EXPECT_EQ(Zelle(1, 6) + Zelle(1, 10), u"");
  Blattklick(Zellenname(3, 3));
  Tippen(u"7"_s);
  buehne.boxen.Erwarten("Felder bitte korrekt ausfüllen", "roten");
  Klick(u"lblSpalte_2"_s, Blatt);
  EXPECT_EQ(Hintergrundfarbe(Ding<>(Zellenname(3, 6), Blatt)), farben::Rot);
}

TEST_F(Fenster, TabFolge) {
  Reiter(1);
  Menue(u"mnuDatenblatt"_s);
  for (const Tabellenzeile& zeile : Tabelle("app/Tabfolgen.csv")) {
    const QStringList folge = QString::fromStdString(zeile["folge"]).split(u' ');
    if (!Sichtbar(folge[0])) Menue(u"mnuUser"_s);
    Aktivieren(folge[0]);
    Ding<>(folge[1], folge[0]).setFocus();
    QStringList gegangen{folge[0], Fokus()};
    while (gegangen.size() < folge.size()) {
      Taste(Qt::Key_Tab);
      gegangen << Fokus();
    }
    EXPECT_EQ(gegangen.join(u' ').toStdString(), zeile["folge"]);
  }
}

TEST_F(Fenster, Benutzerdaten) {
  Menue(u"mnuUser"_s);
  const QString user = u"frmUser"_s;
  Aktivieren(user);
  Ding<>(u"txtRufzeichen"_s, user).setFocus();
  Tippen(u"do1abc"_s);
  EXPECT_EQ(Text(u"txtKlasse"_s, user), u"");
  Taste(Qt::Key_Down);
  EXPECT_EQ(Text(u"txtRufzeichen txtKlasse"_s, user), u"DO1ABC|3");
  buehne.boxen.Erwarten("Felder bitte korrekt ausfüllen", "violetten");
  Menue(u"mnuUserSpeichern"_s, user);
  EXPECT_EQ(Hintergrundfarbe(Ding<>(u"txtName"_s, user)), farben::Rot);
  EXPECT_FALSE(Sichtbar(user));
  buehne.boxen.Erwarten("Vesk", "User-Daten wirklich löschen?", Antwort::Ja);
  Menue(u"mnuUser"_s);
  Menue(u"mnuUserDelete"_s, user);
  EXPECT_EQ(Text(u"txtRufzeichen"_s, user), u"");
  EXPECT_EQ((Lauf::Fenster)(user).focusWidget()->objectName(), u"txtName") << "filled in from its beginning";
}

const QString Lstg = u"frmLstg"_s;

struct Leistungsumrechnung : testing::Test, Verzeichnis, Lauf {
  Leistungsumrechnung() : Lauf(path()) { buehne.boxen.alleErlaubt = true; }
  void Oeffnen(const QString& feld) {
    if (Sichtbar(Lstg)) Fenster(Lstg).close();
    buehne.boxen.gezeigt.clear();
    buehne.ton.anzahl = 0;
    programm.Befehlen(Befehl::LeistungsumrechnungZeigen);
    Aktivieren(Lstg);
    Ding<>(feld, Lstg).setFocus();
  }
  static std::string Texte() {
    QStringList texte;
    for (const QLineEdit* feld : Fenster(Lstg).findChildren<QLineEdit*>()) texte << feld->text();
    return texte.join(u'|').toStdString();
  }
  static void TastenTippen(const QString& tasten) {
    constexpr QStringView Zeichen = u"ETDUB";
    constexpr Qt::Key Tasten[] = {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Up, Qt::Key_Backspace};
    for (const QChar taste : tasten) {
      const auto besondere = Zeichen.indexOf(taste);
      besondere < 0 ? Tippen(taste) : Taste(Tasten[besondere]);
    }
  }
};

TEST_F(Leistungsumrechnung, Tasten) {
  for (const Tabellenzeile& zeile : Tabelle("app/Leistungstasten.csv")) {
    SCOPED_TRACE(zeile.text);
    Oeffnen(QString::fromStdString(zeile["feld"]));
    TastenTippen(QString::fromStdString(zeile["tasten"]));
    EXPECT_EQ(Texte(), zeile["texte"]);
    EXPECT_EQ(Fokus().toStdString(), zeile["danach"]);
    // What leaving a field says comes a moment later.
    const auto& gesagt = buehne.boxen.gezeigt;
    const bool stumm = zeile["gesagt"].empty();
    EXPECT_EQ(QTest::qWaitFor([&] { return !gesagt.empty(); }, stumm ? 0 : 1000), !stumm);
    EXPECT_TRUE(gesagt.empty() || gesagt[0].text.find(zeile["gesagt"]) != std::string::npos);
    EXPECT_EQ(buehne.ton.anzahl, zeile.Zahl("toene"));
  }
}

TEST_F(Leistungsumrechnung, AnderesFensterIstVerlassenUndSchliessenNicht) {
  Oeffnen(u"txtDBm"_s);
  TastenTippen(u"30"_s);
  Aktivieren(u"frmVesk"_s);
  EXPECT_EQ(Texte(), "30|0,00|1,000");
  Aktivieren(Lstg);
  EXPECT_EQ(Texte(), "||");
  TastenTippen(u"200"_s);
  Fenster(Lstg).close();
  Aktivieren(u"frmVesk"_s);
  QTest::qWait(150);
  EXPECT_TRUE(buehne.boxen.gezeigt.empty());
  programm.Befehlen(Befehl::LeistungsumrechnungZeigen);
  EXPECT_EQ(Texte(), "||");
}

}  // namespace
}  // namespace vesk
