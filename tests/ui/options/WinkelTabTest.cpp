#include <QAction>
#include <QDir>
#include <QGroupBox>

#include "OptionenFall.h"

namespace vesk {
namespace {

class WinkelFall : public OptionenFall {
 protected:
  void SetUp() override {
    OptionenFall::SetUp();
    Reiter(3);
  }
  void Menue(const QString& name) { Finden<QAction>(fenster, name).trigger(); }
  QString Feld(const QString& name, int i) { return Text(name + u'_' + QString::number(i)); }
  /// The nine texts of a column.
  QString Spalte(const QString& name) {
    QStringList texte;
    for (int i = 0; i < 9; ++i) texte << Feld(name, i);
    return texte.join(u'|');
  }
  void Doppelklick(int i) {
    QTest::mouseDClick(&Finden<QLineEdit>(fenster, u"txtWDaempfung_"_s + QString::number(i)), Qt::LeftButton);
  }
  QString Rahmen() { return Finden<QGroupBox>(fenster, u"rhmWinkel"_s).title(); }

  const QString Frage = u"Die Winkeltabelle wurde geändert. Änderungen verwerfen?"_s;
};

TEST_F(WinkelFall, NachDemLaden) {
  EXPECT_EQ(Spalte(u"txtWDaempfung"_s), u"0||||||||"_s);
  EXPECT_EQ(Rahmen(), u"Winkeldämpfung von Richtantennen"_s);
}

TEST_F(WinkelFall, BeispielRechnetDieTabelle) {
  Menue(u"mnuWinkelBeispiel"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Bandlogik 144"_s);
  EXPECT_EQ(Text(u"txtWAntenne"_s), u"Beispiel Tonna 17el"_s);
  EXPECT_EQ(Text(u"txtWAntEinPWR"_s), u"347.59"_s);
  EXPECT_EQ(Spalte(u"txtWEIRP"_s), u"11777.89|9684.28|5471.01|883.22|601.27|410.27|253.55|209.44|117.78"_s);
  EXPECT_EQ(Spalte(u"txtWAbstand"_s), u"21.61|19.60|14.73|5.92|4.88|4.03|3.17|2.88|2.16"_s);
  EXPECT_EQ(Spalte(u"txtWHSM306"_s), u"||||||||"_s);
  EXPECT_EQ(Spalte(u"txtWHSMvde"_s), u"||||||||"_s);
  EXPECT_EQ(Satz(0).Winkel.at(3), "11.25");
  EXPECT_EQ(zustand.werte.GrenzwertOhneHSM, 27.5F);

  zustand.werte.Grenzwerttyp = GrenzwertTV;
  Klicken(u"Command1"_s);
  EXPECT_EQ(Spalte(u"txtWHSMvde"_s), u"230.58|209.08|157.15|63.14|52.10|43.04|33.83|30.75|23.06"_s);
}

TEST_F(WinkelFall, OhneLeistungEinFehlerUndDieEingabenBleiben) {
  Tippen(u"txtWMHZ"_s, u"144"_s);
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Gleitkommafehler"_s);
  Klicken(u"Command1"_s);
  EXPECT_EQ(Text(u"txtWMHZ"_s), u"144"_s);
  EXPECT_EQ(Feld(u"txtWEIRP"_s, 0), QString());
}

TEST_F(WinkelFall, FrequenzJenseitsDerNormMeldetSich) {
  Tippen(u"txtWMHZ"_s, u"3400"_s);
  Tippen(u"txtWAntEinPWR"_s, u"1"_s);
  buehne.boxen.Erwarten(u"Hinweis"_s, u"HSM-Berechnung von 30 KHz - 2,5 GHz"_s);
  Klicken(u"Command1"_s);
  umgebung.mnuMeldungen = false;
  Klicken(u"Command1"_s);
  EXPECT_EQ(Feld(u"txtWAbstand"_s, 0), u"0.09"_s);
}

TEST_F(WinkelFall, DoppelklickUebernimmtDieDaempfung) {
  Menue(u"mnuWinkelBeispiel"_s);
  static_cast<void>(umgebung.Protokoll());
  Doppelklick(2);
  EXPECT_EQ(umgebung.Protokoll(), u"Winkel=3.33; Berechnen"_s);
  EXPECT_EQ(zustand.werte.WinkelDaempfungText, "3.33");
  EXPECT_EQ(Feld(u"txtWDaempfung"_s, 2), u"3.33"_s);
  EXPECT_EQ(Satz(0).Winkeldaempfung, "3.33");

  auto& feld = Finden<QLineEdit>(fenster, u"txtWDaempfung_4"_s);
  QTest::keyClick(&feld, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(umgebung.Protokoll(), u"Winkel=12.92; Berechnen"_s);
}

TEST_F(WinkelFall, DoppelklickBeiEinerSpalte) {
  Menue(u"mnuWinkelBeispiel"_s);
  zustand.werte.Spalte = 7;
  static_cast<void>(umgebung.Protokoll());
  Doppelklick(3);
  EXPECT_EQ(umgebung.Protokoll(), u"Winkel=11.25; Zelle 7.9=11.25; Übernehmen"_s);
  EXPECT_EQ(Satz(7).Winkel.at(8), "20.00");
  EXPECT_EQ(Satz(7).Winkeldaempfung, "11.25");

  umgebung.chkOptionen = false;
  Doppelklick(1);
  EXPECT_EQ(umgebung.Protokoll(), u"Winkel=0.85"_s);
  EXPECT_EQ(Satz(7).Winkeldaempfung, "11.25");
}

TEST_F(WinkelFall, SpeichernUnterUndLaden) {
  Menue(u"mnuWinkelBeispiel"_s);
  buehne.dialoge.Antworten(verzeichnis.filePath(u"H-Beam.ang"_s));
  Menue(u"mnuWinkelUnter"_s);
  EXPECT_EQ(buehne.dialoge.gezeigt.back().titel, u"Winkel-Datei speichern"_s);
  EXPECT_EQ(buehne.dialoge.gezeigt.back().vorschlag, u"Winkel.ang"_s);
  EXPECT_TRUE(
      Datei(u"H-Beam.ang"_s).startsWith("\"[Beispiel Tonna 17el]\"\r\n\"15.3\"\r\n\"144\"\r\n\"0.00\"\r\n"));

  Tippen(u"txtWDaempfung_8"_s, u"1"_s);
  Menue(u"mnuWinkelSpeichern"_s);
  EXPECT_TRUE(Datei(u"H-Beam.ang"_s).endsWith("\"20.001\"\r\n"));

  DateiAnlegen(u"v-kurz.ang"_s, "[Dipol]\n2,15\n\n0\n3,33\n");
  zustand.werte.QRGText = "430";
  buehne.dialoge.Antworten(verzeichnis.filePath(u"v-kurz.ang"_s));
  Menue(u"mnuWinkelLaden"_s);
  EXPECT_EQ(buehne.dialoge.gezeigt.back().vorschlag, u"H-Beam.ang"_s);
  EXPECT_EQ(Rahmen(), u"Vertikale Winkeldämpfung von Richtantennen"_s);
  EXPECT_EQ(Text(u"txtWAntenne"_s) + u' ' + Text(u"txtWGewinn0"_s) + u' ' + Text(u"txtWMHZ"_s),
            u"Dipol 2,15 430"_s);
  EXPECT_EQ(Spalte(u"txtWDaempfung"_s), u"0|3,33|||||||"_s);
  EXPECT_EQ(Feld(u"txtWAbstand"_s, 0), QString()) << "Abstände der vorigen Tabelle";
  EXPECT_EQ(Satz(0).Winkel.at(1), "3,33");
}

TEST_F(WinkelFall, GeaenderteTabelleGehtNichtStillVerloren) {
  DateiAnlegen(u"neu.ang"_s, "[A]\n1\n144\n0\n5\n");
  Tippen(u"txtWDaempfung_1"_s, u"7"_s);
  buehne.boxen.Erwarten(u"Winkel-Datei laden"_s, Frage, Antwort::Nein);
  Menue(u"mnuWinkelLaden"_s);
  EXPECT_EQ(Spalte(u"txtWDaempfung"_s), u"0|7|||||||"_s);
  EXPECT_TRUE(buehne.dialoge.gezeigt.empty());

  buehne.boxen.Erwarten(u"Winkel-Datei laden"_s, Frage, Antwort::Ja);
  buehne.dialoge.Antworten(std::nullopt);
  Menue(u"mnuWinkelLaden"_s);
  EXPECT_EQ(Spalte(u"txtWDaempfung"_s), u"0|7|||||||"_s) << "der Dialog wurde abgebrochen";

  Menue(u"mnuWinkelSpeichern"_s);
  EXPECT_TRUE(Datei(u"Winkel.ang"_s).contains("\"7\"\r\n"));
  buehne.dialoge.Antworten(verzeichnis.filePath(u"neu.ang"_s));
  Menue(u"mnuWinkelLaden"_s);
  EXPECT_EQ(Spalte(u"txtWDaempfung"_s), u"0|5|||||||"_s);
}

TEST_F(WinkelFall, FehlendeDateiLeertOhneMeldung) {
  buehne.dialoge.Antworten(verzeichnis.filePath(u"nirgends.ang"_s));
  Menue(u"mnuWinkelLaden"_s);
  EXPECT_EQ(Spalte(u"txtWDaempfung"_s), u"||||||||"_s);
}

TEST_F(WinkelFall, DateifehlerWerdenGemeldet) {
  Tippen(u"txtWDaempfung_1"_s, u"7"_s);
  ASSERT_TRUE(QDir(verzeichnis.path()).mkdir(u"ordner.ang"_s));
  buehne.boxen.Erwarten(u"Winkel-Datei laden"_s, Frage, Antwort::Ja);
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Die Datei ordner.ang konnte nicht gelesen werden."_s);
  buehne.dialoge.Antworten(verzeichnis.filePath(u"ordner.ang"_s));
  Menue(u"mnuWinkelLaden"_s);
  EXPECT_EQ(Spalte(u"txtWDaempfung"_s), u"0|7|||||||"_s);

  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Die Datei x.ang konnte nicht gespeichert werden."_s);
  buehne.dialoge.Antworten(verzeichnis.filePath(u"fehlt/x.ang"_s));
  Menue(u"mnuWinkelUnter"_s);
  buehne.boxen.Erwarten(u"Winkel-Datei laden"_s, Frage, Antwort::Nein);
  Menue(u"mnuWinkelLaden"_s);  // still unsaved
}

TEST_F(WinkelFall, LoeschenLeertDieTabelleNachRueckfrage) {
  Menue(u"mnuWinkelBeispiel"_s);
  buehne.boxen.Erwarten(u"Winkeldämpfung"_s, u"Datenblatt wirklich löschen?"_s, Antwort::Nein);
  Menue(u"mnuWDelete"_s);
  EXPECT_EQ(Feld(u"txtWAbstand"_s, 0), u"21.61"_s);
  buehne.boxen.Erwarten(u"Winkeldämpfung"_s, u"Datenblatt wirklich löschen?"_s, Antwort::Ja);
  Menue(u"mnuWDelete"_s);
  for (const auto* name : {"txtWDaempfung", "txtWEIRP", "txtWAbstand", "txtWHSM306", "txtWHSMvde"}) {
    EXPECT_EQ(Spalte(QString::fromLatin1(name)), u"||||||||"_s) << name;
  }
  EXPECT_EQ(Text(u"txtWAntEinPWR"_s), u"347.59"_s);
  EXPECT_EQ(Satz(0).Winkel, Datenblattspalte().Winkel);
}

TEST_F(WinkelFall, SatzDerSpalteErsetztDieTabelle) {
  Menue(u"mnuWinkelBeispiel"_s);
  Satz(2).Winkel.at(0) = "1";
  zustand.werte.Spalte = 2;
  fenster.SatzLaden();
  EXPECT_EQ(Spalte(u"txtWDaempfung"_s), u"1||||||||"_s);
  EXPECT_EQ(Feld(u"txtWAbstand"_s, 0), QString());
  zustand.werte.Spalte = 0;
  fenster.SatzLaden();
  EXPECT_EQ(Feld(u"txtWDaempfung"_s, 8), u"20.00"_s);
}

TEST_F(WinkelFall, TastenGehenDurchDieTabelle) {
  auto& erste = Finden<QLineEdit>(fenster, u"txtWDaempfung_0"_s);
  erste.setFocus();
  QTest::keyClick(&erste, Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"txtWDaempfung_2"_s);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"txtWDaempfung_1"_s);
  QTest::keyClicks(QApplication::focusWidget(), u"-3,5x"_s);
  EXPECT_EQ(Feld(u"txtWDaempfung"_s, 1), u"3.5"_s);
  EXPECT_EQ(buehne.ton.anzahl, 2);
  Tippen(u"txtWGewinn0"_s, u"-2,5"_s);
  EXPECT_EQ(Text(u"txtWGewinn0"_s), u"-2.5"_s);
}

}  // namespace
}  // namespace vesk
