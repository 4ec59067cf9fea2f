#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "Farben.h"
#include "Finden.h"
#include "Kabeldatei.h"
#include "Programm.h"
#include "Skript.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

constexpr auto Nahfeldtitel = "Nahfeld Problematik"_L1;
constexpr auto HSMtitel = "DIN VDE 0848 Teil 3-1"_L1;

/// The running program as a user meets it: typed, clicked, looked at.
class Hauptfenster : public testing::Test {
 protected:
  void SetUp() override {
    KabeldateiAnlegen(verzeichnis.path());
    buehne.speicher.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, u"0"_s);
    programm.Starten();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
    Feld("txtQRG").setFocus();
  }

  QLineEdit& Feld(const char* name) { return Finden<QLineEdit>(fenster, QLatin1String(name)); }
  QString Text(const char* name) { return Feld(name).text(); }
  QString Label(const char* name) { return Finden<QLabel>(fenster, QLatin1String(name)).text(); }
  QColor Farbe(const char* name) { return Hintergrundfarbe(Feld(name)); }
  void Menue(const char* name) { Finden<QAction>(fenster, QLatin1String(name)).trigger(); }
  void Tippen(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  void Taste(Qt::Key taste) { QTest::keyClick(QApplication::focusWidget(), taste); }
  void Klick(const char* name) {
    QTest::mouseClick(&Finden<QWidget>(fenster, QLatin1String(name)), Qt::LeftButton);
    QCoreApplication::processEvents();
  }
  QString Fokus() { return QApplication::focusWidget()->objectName(); }
  /// Types the five inputs, going on with Enter; the focus ends on the calculate button.
  void Eingeben(const QStringList& texte) {
    Feld("txtQRG").setFocus();
    for (const QString& text : texte) {
      static_cast<QLineEdit*>(QApplication::focusWidget())->selectAll();
      Tippen(text);
      Taste(Qt::Key_Return);
      QCoreApplication::processEvents();
    }
  }

  QTemporaryDir verzeichnis;
  skript::Buehne buehne;
  Zustand zustand;
  Programm programm{zustand, buehne.plattform, {verzeichnis.path(), {}}};
  frmVesk& fenster = programm.Hauptfenster();
};

TEST_F(Hauptfenster, TippenUndEnterRechnet) {
  Eingeben({u"14,2"_s, u"100"_s, u""_s, u""_s, u""_s});
  EXPECT_EQ(Fokus(), u"cmdBerechnen");
  EXPECT_EQ(Text("txtGewinn"), u"0");
  buehne.boxen.Erwarten(Nahfeldtitel, u"ohne HSM!"_s, Antwort::Ja);
  Taste(Qt::Key_Return);
  EXPECT_EQ(Text("txtQRG"), u"14.2");
  EXPECT_EQ(Text("txtAusgabe"), u"1.99");
  EXPECT_EQ(Text("txtAusgabeHSM306"), u"8.35");
  EXPECT_EQ(Label("lblOhneHSM"), u"ohne HSM\n14,00");
  EXPECT_EQ(Farbe("txtAusgabe"), farben::Nahfeld);
  EXPECT_EQ(Farbe("txtNahfeld"), farben::Nahfeld);
  EXPECT_EQ(Farbe("txtAusgabeHSM306"), farben::HellRot);
  EXPECT_EQ(Finden<QListWidget>(fenster, u"List1"_s).item(0)->text(), u"00017.44400");
  EXPECT_TRUE(Finden<QPushButton>(fenster, u"cmdCopy"_s).isEnabled());
}

TEST_F(Hauptfenster, NeinUnterdruecktNurDiesenHinweis) {
  Eingeben({u"145"_s, u"1"_s, u"0"_s, u"0"_s, u"0"_s});
  buehne.boxen.Erwarten(Nahfeldtitel, u"ohne HSM!"_s, Antwort::Nein);
  buehne.boxen.Erwarten(HSMtitel, u"Uss Störschwelle"_s, Antwort::Ja);
  Klick("cmdBerechnen");
  buehne.boxen.AllesGezeigt();
  buehne.boxen.Erwarten(HSMtitel, u"Uss Störschwelle"_s, Antwort::Ja);
  Klick("cmdBerechnen");
}

TEST_F(Hauptfenster, WarnmeldungenAusUndAn) {
  Eingeben({u"14.2"_s, u"100"_s, u"0"_s, u"0"_s, u"0"_s});
  buehne.boxen.Erwarten(Nahfeldtitel, u"ohne HSM!"_s, Antwort::Nein);
  Klick("cmdBerechnen");
  Klick("cmdBerechnen");
  Menue("mnuMeldungen");
  Klick("cmdBerechnen");
  Menue("mnuMeldungen");
  buehne.boxen.Erwarten(Nahfeldtitel, u"ohne HSM!"_s, Antwort::Ja);
  Klick("cmdBerechnen");
  EXPECT_TRUE(programm.zustand().UserGeaendert);
}

TEST_F(Hauptfenster, RoteFelderUndMeldung) {
  buehne.boxen.Erwarten(u"Felder bitte korrekt ausfüllen"_s, u"roten Eingabefelder"_s);
  Eingeben({u"14"_s, u"0"_s, u""_s, u""_s, u""_s});
  Taste(Qt::Key_Return);
  EXPECT_EQ(Farbe("txtPWR"), farben::Rot);
  EXPECT_EQ(Farbe("txtQRG"), farben::Weiss);
  EXPECT_EQ(Text("txtPWR"), u"0");
  EXPECT_EQ(Text("txtAusgabe"), u"");
}

TEST_F(Hauptfenster, GewinnGrenzenUndMinus) {
  const std::pair<QString, QString> faelle[] = {
      {u"150"_s, u"100"_s}, {u"100"_s, u"100"_s},           {u"-3"_s, u"-3"_s},
      {u""_s, u"0"_s},      {QString(400, u'9'), u"100"_s}, {u"2-3"_s, u"23"_s},
  };
  for (const auto& [getippt, bleibt] : faelle) {
    Feld("txtGewinn").setFocus();
    Feld("txtGewinn").selectAll();
    Taste(Qt::Key_Delete);
    Feld("txtQRG").setFocus();
    Feld("txtGewinn").setFocus();
    Feld("txtGewinn").clear();
    Tippen(getippt);
    Feld("txtPWR").setFocus();
    EXPECT_EQ(Text("txtGewinn"), bleibt) << getippt.toStdString();
    EXPECT_FALSE(programm.zustand().werte.MinusErlaubt);
  }
  Feld("txtDaempfung").setFocus();
  Tippen(u"-a1,5"_s);
  EXPECT_EQ(Text("txtDaempfung"), u"1.5");
  EXPECT_EQ(buehne.ton.anzahl, 3);
}

TEST_F(Hauptfenster, EinfuegenLaeuftDurchDenFilter) {
  QApplication::clipboard()->setText(u" 1a4,\r\n2 "_s);
  Feld("txtQRG").setFocus();
  QTest::keyClick(&Feld("txtQRG"), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text("txtQRG"), u"14.2");
  EXPECT_EQ(buehne.ton.anzahl, 1);
}

TEST_F(Hauptfenster, KlickLeertEingabeUndErgebnisse) {
  Menue("mnuMeldungen");
  Eingeben({u"7.05"_s, u"750"_s, u"2.15"_s, u"1"_s, u"0"_s});
  Taste(Qt::Key_Return);
  EXPECT_NE(Text("txtAusgabe"), u"");
  Klick("txtPWR");
  EXPECT_EQ(Text("txtPWR"), u"");
  EXPECT_EQ(Text("txtAusgabe"), u"");
  EXPECT_EQ(Text("txtQRG"), u"7.05");
  EXPECT_EQ(Label("lblMitHSM"), u"HSM VDE");
  EXPECT_EQ(programm.zustand().werte.PWRText, "");
  EXPECT_FALSE(Finden<QPushButton>(fenster, u"cmdCopy"_s).isEnabled());
}

TEST_F(Hauptfenster, TastenFuehrenDurchDieFelder) {
  struct Schritt {
    const char* von;
    Qt::Key taste;
    const char* nach;
  };
  const Schritt schritte[] = {
      {"txtQRG", Qt::Key_Down, "txtPWR"},
      {"txtQRG", Qt::Key_Up, "txtQRG"},
      {"txtQRG", Qt::Key_Return, "txtQRG"},
      {"txtPWR", Qt::Key_Enter, "txtGewinn"},
      {"txtGewinn", Qt::Key_Up, "txtPWR"},
      {"txtDaempfung", Qt::Key_Down, "txtWinkelDaempfung"},
      {"txtWinkelDaempfung", Qt::Key_Return, "cmdBerechnen"},
      {"txtStrahlung", Qt::Key_Up, "cmdBerechnen"},
      {"txtStrahlung", Qt::Key_Down, "txtStrahlung"},
      {"cmdBerechnen", Qt::Key_Up, "txtWinkelDaempfung"},
      {"cmdBerechnen", Qt::Key_Down, "cmdBerechnen"},
  };
  for (const Schritt& schritt : schritte) {
    Finden<QWidget>(fenster, QLatin1String(schritt.von)).setFocus();
    Taste(schritt.taste);
    EXPECT_EQ(Fokus(), QLatin1String(schritt.nach)) << schritt.von << " " << schritt.taste;
  }
}

TEST_F(Hauptfenster, LeistungsmodusUndZurueck) {
  Menue("mnuMeldungen");
  Eingeben({u"14.2"_s, u"100"_s, u"2.15"_s, u"1"_s, u"0"_s});
  Klick("lblModus");
  EXPECT_EQ(Text("txtPWR"), u"");
  EXPECT_EQ(Text("txtGewinn"), u"2.15");
  EXPECT_EQ(Label("lblPWR"), u"Sicherheitsabstand [m]");
  EXPECT_EQ(Farbe("txtPWR"), farben::HellCyan);
  EXPECT_EQ(Farbe("txtAusgabeHSM306"), farben::HellCyan);
  Feld("txtPWR").setFocus();
  Tippen(u"10"_s);
  Klick("cmdBerechnen");
  EXPECT_EQ(Text("txtAusgabe"), u"1934.55");
  EXPECT_EQ(Farbe("txtAusgabe"), farben::HellCyan);
  EXPECT_EQ(Farbe("txtAusgabeHSM306"), farben::HellRot);
  EXPECT_EQ(Farbe("txtPWR"), farben::Weiss);
  Menue("mnuAbstand");
  EXPECT_EQ(Finden<QAction>(fenster, u"mnuAbstand"_s).text(), u"Maximale Sendeleistung berechnen");
  EXPECT_EQ(Label("lblModus"), u"Berechnung Sicherheitsabstand");
  EXPECT_EQ(Text("txtPWR"), u"");
  EXPECT_EQ(Text("txtQRG"), u"14.2");
  EXPECT_EQ(Text("txtAusgabe"), u"");
}

TEST_F(Hauptfenster, AFuUmschaltenRechnetNeu) {
  Menue("mnuMeldungen");
  Eingeben({u"14.2"_s, u"100"_s, u"0"_s, u"0"_s, u"0"_s});
  Klick("lblQRG");
  EXPECT_EQ(Text("txtAusgabeHSM306"), u"8.28");
  EXPECT_EQ(Label("lblQRG"), u"Betriebsfrequenz [MHz]");
  EXPECT_FALSE(Finden<QAction>(fenster, u"mnuAFu"_s).isChecked());
  Menue("mnuAFu");
  EXPECT_EQ(Text("txtAusgabeHSM306"), u"8.35");
  EXPECT_EQ(Label("lblQRG"), u"AFu-Band [MHz]");
}

TEST_F(Hauptfenster, VerlassenDerFrequenzRechnetEinmal) {
  Eingeben({u"14.2"_s, u"100"_s, u"0"_s, u"0"_s, u"0"_s});
  Feld("txtQRG").setFocus();
  Feld("txtQRG").selectAll();
  Tippen(u"7"_s);
  buehne.boxen.Erwarten(Nahfeldtitel, u"alle erforderlichen"_s, Antwort::Ja);
  Taste(Qt::Key_Tab);
  QCoreApplication::processEvents();
  EXPECT_EQ(Text("txtGrenzwert"), u"32.65");
  buehne.boxen.AllesGezeigt();

  // A click on "=" that takes the focus away shows its notes once, not twice.
  Feld("txtQRG").setFocus();
  Feld("txtQRG").selectAll();
  Tippen(u"14"_s);
  buehne.boxen.Erwarten(Nahfeldtitel, u"ohne HSM!"_s, Antwort::Ja);
  Klick("cmdBerechnen");
}

TEST_F(Hauptfenster, GedruecktesGleichEntscheidetUeberDieRechnung) {
  Menue("mnuMeldungen");
  Eingeben({u"14.2"_s, u"100"_s, u"0"_s, u"0"_s, u"0"_s});
  Feld("txtQRG").setFocus();
  Feld("txtQRG").selectAll();
  Tippen(u"7"_s);
  auto& gleich = Finden<QPushButton>(fenster, u"cmdBerechnen"_s);
  QTest::mousePress(&gleich, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(Text("txtGrenzwert"), u"");
  QTest::mouseRelease(&gleich, Qt::LeftButton, {}, QPoint(-20, -20));
  QCoreApplication::processEvents();
  EXPECT_EQ(Text("txtGrenzwert"), u"32.65");
}

TEST_F(Hauptfenster, WasKeineZahlIstBleibtDraussen) {
  Feld("txtQRG").setFocus();
  QTest::keyClick(&Feld("txtQRG"), Qt::Key_X, Qt::AltModifier);
  EXPECT_EQ(Text("txtQRG"), u"");

  // A text that no number can hold is told once, when the focus has settled, and stays to be corrected.
  QApplication::clipboard()->setText(QString(400, u'9'));
  QTest::keyClick(&Feld("txtQRG"), Qt::Key_V, Qt::ControlModifier);
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Überlauf"_s);
  Taste(Qt::Key_Tab);
  EXPECT_TRUE(buehne.boxen.gezeigt.empty());
  QCoreApplication::processEvents();
  EXPECT_EQ(Text("txtQRG").size(), 400);
}

TEST_F(Hauptfenster, MinusBleibtErlaubtSolangeDerCursorImGewinnSteht) {
  Feld("txtGewinn").setFocus();
  Tippen(u"5"_s);
  Taste(Qt::Key_Backspace);
  Tippen(u"-3"_s);
  EXPECT_EQ(Text("txtGewinn"), u"-3");
  Klick("lblModus");
  Feld("txtGewinn").selectAll();
  Tippen(u"-4"_s);
  EXPECT_EQ(Text("txtGewinn"), u"-4");
}

TEST_F(Hauptfenster, LaufzeitfehlerZeigtWasGerechnetIst) {
  Menue("mnuAFu");
  Tippen(u"0.002"_s);
  buehne.boxen.Erwarten(u"Hinweis"_s, u"0,003 MHz bis 300 GHz"_s);
  Taste(Qt::Key_Tab);
  QCoreApplication::processEvents();
  EXPECT_EQ(Fokus(), u"txtQRG");
  buehne.boxen.AllesGezeigt();

  Feld("txtPWR").setFocus();
  Tippen(u"100"_s);
  buehne.boxen.Erwarten(u"Hinweis"_s, u"0,003 MHz bis 300 GHz"_s);
  buehne.boxen.Erwarten(u"Hinweis"_s, u"HSM-Berechnung von 30 KHz - 2,5 GHz"_s);
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Gleitkommafehler"_s);
  Klick("cmdBerechnen");
  EXPECT_EQ(Text("txtStrahlung"), u"100.00");
  EXPECT_EQ(Text("txtAusgabe"), u"");
  EXPECT_EQ(Text("txtPWR"), u"100");
}

TEST_F(Hauptfenster, GraueFelderKommenZurueck) {
  Menue("mnuMeldungen");
  Eingeben({u"145"_s, u"50"_s, u"0"_s, u"0"_s, u"0"_s});
  Taste(Qt::Key_Return);
  EXPECT_EQ(Farbe("txtUssVDE"), farben::Grau);
  EXPECT_EQ(Text("txtAusgabeHSMvde"), u"");
  Eingeben({u"14"_s, u"50"_s, u"0"_s, u"0"_s, u"0"_s});
  Taste(Qt::Key_Return);
  EXPECT_EQ(Farbe("txtUssVDE"), farben::HellGelb);
  EXPECT_EQ(Farbe("txtUssHSM306"), farben::HellRot);
}

}  // namespace
}  // namespace vesk
