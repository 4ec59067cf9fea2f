#include "tests/app/Lauf.h"

namespace vesk {
namespace {

const QStringList Beispiel = {u"14.2"_s, u"100"_s, u"0"_s, u"0"_s, u"0"_s};
const QString Ausgaben = u"txtAusgabe txtAusgabeHSM306 txtAusgabeHSMvde"_s;

struct Hauptfenster : testing::Test, Verzeichnis, Lauf {
  Hauptfenster() : Lauf(path()) {}
  static QColor Farbe(const QString& name) { return Hintergrundfarbe(Ding<>(name)); }
  static bool Kopierbar() { return Ding<QPushButton>(u"cmdCopy"_s).isEnabled(); }
};

TEST_F(Hauptfenster, TippenUndEnterRechnet) {
  Menue(u"mnuMeldungen"_s);
  Ding<>(u"txtQRG"_s).setFocus();
  Taste(Qt::Key_Return);
  EXPECT_EQ(Fokus(), u"txtQRG");  // Enter does not leave an empty frequency
  Eingeben({u"14,2"_s, u"100"_s, u""_s, u""_s, u""_s});
  EXPECT_EQ(Fokus(), u"cmdBerechnen");
  buehne.boxen.Erwarten("Nahfeld Problematik", "ohne HSM!", Antwort::Nein);
  Taste(Qt::Key_Return);
  EXPECT_EQ(Text(u"txtQRG txtGewinn lblOhneHSM"_s), u"14.2|0|ohne HSM\n14,00");
  EXPECT_EQ(Text(Ausgaben), u"1.99|8.35|4.44");
  EXPECT_EQ(Farbe(u"txtAusgabe"_s), farben::Nahfeld);
  EXPECT_EQ(Farbe(u"txtNahfeld"_s), farben::Nahfeld);
  EXPECT_EQ(Farbe(u"txtAusgabeHSMvde"_s), farben::HellRot);
  EXPECT_EQ(Ding<QListWidget>(u"List1"_s).findItems(u"00017.44400"_s, Qt::MatchExactly).size(), 1);
  EXPECT_TRUE(Kopierbar());
  Taste(Qt::Key_Return);  // answered with Nein: not again
  Menue(u"mnuMeldungen"_s);
  Menue(u"mnuMeldungen"_s);
  buehne.boxen.Erwarten("Nahfeld Problematik", "ohne HSM!", Antwort::Ja);
  Klick(u"cmdBerechnen"_s);
}

TEST_F(Hauptfenster, FarbenDerNahfeldbitsUndDesFaktors) {
  Rechnen({u"14.2"_s, u"10"_s, u"0"_s, u"0"_s, u"0"_s});
  EXPECT_EQ(Farbe(u"txtAusgabeHSMvde"_s), farben::Nahfeld);
  EXPECT_EQ(Farbe(u"txtAusgabeHSM306"_s), farben::Nahfeld);
  EXPECT_EQ(Text(u"lblHinweis"_s), u"N: Im Nahfeld (ohne HSM, HSM VDE, HSM 306).");
  Rechnen({u"145"_s, u"750"_s, u"12"_s, u"0"_s, u"0"_s});
  EXPECT_EQ(Farbe(u"txtAusgabe"_s), farben::HellGruen);
  EXPECT_EQ(Farbe(u"txtUssVDE"_s), farben::Grau);
  Menue(u"mnuMoreOptions"_s);
  Klick(u"chkBetriebsart_0"_s, u"frmOptions"_s);
  EXPECT_EQ(Farbe(u"txtAusgabe"_s), farben::Gruen);
  EXPECT_EQ(Text(u"lblHinweis"_s),
            u"Kein Grenzwert bei dieser Frequenz: HSM VDE und HSM 306. „ohne HSM“ gilt für den Faktor 0.40 "
            "der Sendeart.");
}

TEST_F(Hauptfenster, TippenUndKlickenSperrenDasKopieren) {
  Rechnen(Beispiel);
  Ding<>(u"txtGewinn"_s).setFocus(Qt::TabFocusReason);
  Tippen(u"5"_s);
  EXPECT_TRUE(Veraltet(u"txtAusgabe"_s) && !Kopierbar());
  EXPECT_TRUE(Text(u"lblHinweis"_s).startsWith(u"Veraltet: "));
  Taste(Qt::Key_Backspace);
  Tippen(u"0"_s);
  EXPECT_TRUE(Kopierbar());  // the same inputs again
  Klick(u"txtDaempfung"_s);
  EXPECT_FALSE(Kopierbar());
  Klick(u"txtPWR"_s);
  EXPECT_EQ(Text(u"txtAusgabe lblMitHSM"_s), u"|HSM VDE");
}

TEST_F(Hauptfenster, FolgeDerFrequenzLaesstDieAuswahlStehen) {
  Rechnen({u"435"_s, u"100"_s, u"0"_s});
  Menue(u"mnuMoreOptions"_s);
  Ding<>(u"txtKabelLaenge"_s, u"frmOptions"_s).setFocus();
  Tippen(u"50"_s);
  Aktivieren(u"frmVesk"_s);
  Klick(u"txtQRG"_s);
  Tippen(u"14,2"_s);
  Klick(u"cmdBerechnen"_s);
  EXPECT_EQ(Text(u"txtDaempfung txtAusgabe"_s), u"1.11|1.75");
  // A text that the cable did not change keeps its selection: typing replaces it.
  for (const Qt::Key taste : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Down}) {
    Ding<>(u"txtQRG"_s).setFocus(Qt::TabFocusReason);
    Tippen(taste == Qt::Key_Return ? u"145"_s : u"7.05"_s);
    Taste(taste);
    Tippen(u"50"_s);
    EXPECT_EQ(Text(u"txtPWR"_s), u"50") << taste;
  }
}

TEST_F(Hauptfenster, HinweisNachDerFrequenzKommtEinmalUndErstNachDerMaus) {
  Rechnen(Beispiel);
  Menue(u"mnuMeldungen"_s);
  Ding<>(u"txtQRG"_s).setFocus(Qt::TabFocusReason);
  Tippen(u"14.1"_s);
  auto& knopf = Ding<QPushButton>(u"cmdBerechnen"_s);
  QTest::mousePress(&knopf, Qt::LeftButton);
  buehne.boxen.Erwarten("Nahfeld Problematik", "ohne HSM!", Antwort::Ja);
  EXPECT_EQ(buehne.boxen.gezeigt.size(), 0U);
  QTest::mouseRelease(&knopf, Qt::LeftButton);
  QTest::qWait(150);
  EXPECT_EQ(buehne.boxen.gezeigt.size(), 1U);
}

TEST_F(Hauptfenster, RoteFelderUndFehler) {
  buehne.boxen.Erwarten("Felder bitte korrekt ausfüllen", "roten Eingabefelder");
  Rechnen({u"14"_s, u"0"_s});
  EXPECT_EQ(Farbe(u"txtPWR"_s), farben::Rot);
  EXPECT_EQ(Farbe(u"txtQRG"_s), farben::Weiss);
  EXPECT_EQ(Text(u"lblHinweis"_s), u"! Sendeleistung fehlt.");
  Eingeben({u"7"_s, u"100"_s});
  buehne.boxen.Erwarten("Hinweis", "0,003 MHz");
  buehne.boxen.Erwarten("Vesk - Fehlermeldung", "Gleitkommafehler");
  Eingeben({u"0.001"_s});
  QTest::qWait(120);
  EXPECT_EQ(Fokus(), u"txtQRG");
  EXPECT_EQ(Text(u"txtStrahlung txtAusgabe"_s), u"100.00|");
}

TEST_F(Hauptfenster, LeistungsmodusUndZurueck) {
  EXPECT_EQ(Text(u"lblModus"_s), u"Berechnung  Sicherheitsabstand");
  Rechnen({u"14.2"_s, u"100"_s, u"2.15"_s, u"1"_s, u"0"_s});
  Klick(u"lblModus"_s);
  EXPECT_EQ(Text(u"txtPWR lblPWR"_s), u"|Sicherheitsabstand [m]");
  EXPECT_EQ(Farbe(u"txtPWR"_s), farben::HellCyan);
  Ding<>(u"txtPWR"_s).setFocus();
  Tippen(u"10"_s);
  Klick(u"cmdBerechnen"_s);
  EXPECT_EQ(Text(u"txtAusgabe"_s), u"1934.55");
  EXPECT_EQ(Farbe(u"txtPWR"_s), farben::Weiss);
  Menue(u"mnuAbstand"_s);
  EXPECT_EQ(Ding<QAction>(u"mnuAbstand"_s).text(), u"Maximale Sendeleistung berechnen");
  EXPECT_EQ(Ding<>(u"txtPWR"_s).toolTip(), u"Eingabe: Senderausgangsleistung in Watt");
  EXPECT_EQ(Ding<>(u"txtAusgabeHSM306"_s).toolTip(),
            u"Datenblatt Punkt 6.2 Ermittelter Sicherheitsabstand mit HSM (Vfg 306/97)");
  Klick(u"lblQRG"_s);
  EXPECT_EQ(Text(u"lblQRG"_s), u"Betriebsfrequenz [MHz]");
  EXPECT_FALSE(Ding<QAction>(u"mnuAFu"_s).isChecked());
}

}  // namespace
}  // namespace vesk
