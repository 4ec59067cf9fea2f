#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include "Farben.h"
#include "Finden.h"
#include "Kabeldatei.h"
#include "Lauf.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

class Rundreise : public testing::Test {
 protected:
  void SetUp() override {
    // One cable is enough for the options window to load without a message.
    QFile kabel(verzeichnis.filePath(u"Kabel.txt"_s));
    ASSERT_TRUE(kabel.open(QIODevice::WriteOnly));
    kabel.write("RG213,0.56,0.8,1.28,1.86,2.66,4.23,6.12,9.18,16.17,25.9,42.3,79.7\r\n");
  }
  QTemporaryDir verzeichnis;
};

const QStringList Stationen[] = {
    {u"1.85"_s, u"750"_s, u"2.15"_s, u"0.5"_s, u"0"_s},
    {u"3.6"_s, u"100"_s, u"2.15"_s, u"1"_s, u"0"_s},
    {u"7"_s, u"750"_s, u"-3"_s, u"2"_s, u"0.5"_s},
    {u"14.2"_s, u"100"_s, u"0"_s, u"0"_s, u"0"_s},
    {u"21"_s, u"750"_s, u"8.15"_s, u"1.5"_s, u"3"_s},
    {u"28.5"_s, u"750"_s, u"10.15"_s, u"1.8"_s, u"11.25"_s},
    {u"50.1"_s, u"25"_s, u"9"_s, u"1"_s, u"0"_s},
};

TEST_F(Rundreise, SiebenSpaltenUeberlebenDasProgramm) {
  QStringList vorher;
  {
    Lauf lauf(verzeichnis.path());
    for (const QStringList& station : Stationen) {
      lauf.Eingeben(station);
      lauf.Kopieren();
    }
    EXPECT_EQ(Finden<QPushButton>(lauf.programm.Hauptfenster(), u"cmdCopy"_s).text(), u"Datenblatt voll");
    for (int spalte = 1; spalte <= 7; ++spalte) {
      for (int zeile = 1; zeile <= 12; ++zeile) vorher << lauf.Zelle(spalte, zeile);
    }
    EXPECT_EQ(lauf.Zelle(1, 10), u"2.87");
    EXPECT_EQ(lauf.Zelle(1, 5), u"alle ");
    EXPECT_EQ(lauf.Zelle(7, 11), u"");
    EXPECT_TRUE(lauf.Beenden());
  }

  Lauf lauf(verzeichnis.path());
  EXPECT_FALSE(lauf.programm.Hauptfenster().MeldungenAn());
  for (int i = 0; i < vorher.size(); ++i) EXPECT_EQ(lauf.Zelle(i / 12 + 1, i % 12 + 1), vorher[i]) << i;
  lauf.DatenblattZeigen();
  for (int spalte = 1; spalte <= 7; ++spalte) {
    lauf.Klick(lauf.programm.Datenblatt(), u"txtA_%1"_s.arg((spalte - 1) * 12 + 3));
    const QStringList& station = Stationen[spalte - 1];
    EXPECT_EQ(lauf.Haupt(u"txtQRG"_s), station[0]);
    EXPECT_EQ(lauf.Haupt(u"txtPWR"_s), station[1]);
    EXPECT_EQ(lauf.Haupt(u"txtGewinn"_s), station[2]);
    EXPECT_EQ(lauf.Haupt(u"txtAusgabe"_s), vorher[(spalte - 1) * 12 + 9]);
    EXPECT_EQ(lauf.Haupt(u"txtAusgabeHSMvde"_s), vorher[(spalte - 1) * 12 + 11]);
    EXPECT_EQ(lauf.programm.zustand().werte.Spalte, spalte);
  }
  for (int i = 0; i < vorher.size(); ++i) EXPECT_EQ(lauf.Zelle(i / 12 + 1, i % 12 + 1), vorher[i]) << i;
}

TEST_F(Rundreise, SendeartUndLeistungsmodusKommenZurueck) {
  {
    Lauf lauf(verzeichnis.path());
    lauf.programm.Hauptfenster().Aktion("mnuMoreOptions").trigger();
    Finden<QCheckBox>(lauf.programm.Optionen(), u"chkBetriebsart_0"_s).click();
    lauf.Klick(lauf.programm.Hauptfenster(), u"lblModus"_s);
    lauf.Eingeben({u"14.2"_s, u"10"_s, u"2.15"_s, u"1"_s, u"0"_s});
    EXPECT_EQ(lauf.Haupt(u"txtAusgabe"_s), u"4836.37");
    lauf.Kopieren();
    EXPECT_EQ(lauf.Zelle(1, 6), u"4836.37");
    EXPECT_EQ(lauf.Zelle(1, 10), u"10");
    EXPECT_TRUE(lauf.Beenden());
  }
  Lauf lauf(verzeichnis.path());
  EXPECT_EQ(Hintergrundfarbe(Finden<QLineEdit>(lauf.programm.Datenblatt(), u"txtA_9"_s)), farben::Gruen);
  lauf.DatenblattZeigen();
  lauf.Klick(lauf.programm.Datenblatt(), u"lblSpalte_0"_s);
  EXPECT_EQ(lauf.Zelle(1, 10), u"10.00");
  EXPECT_EQ(lauf.programm.zustand().werte.Modulationsfaktor, 0.4F);
  EXPECT_EQ(lauf.Text(lauf.programm.Optionen(), u"txtSelectedModes"_s), u"cw ");

  // Turning back to the main window leaves the column.
  lauf.programm.Hauptfenster().activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&lauf.programm.Hauptfenster()));
  QCoreApplication::processEvents();
  EXPECT_EQ(lauf.programm.zustand().werte.Spalte, 0);
}

TEST_F(Rundreise, SignaltypAendertDieAktuelleSpalte) {
  Lauf lauf(verzeichnis.path());
  lauf.Eingeben({u"145"_s, u"50"_s, u"12.5"_s, u"1.2"_s, u"3.33"_s});
  lauf.Kopieren();
  EXPECT_EQ(lauf.Zelle(1, 12), u"");
  lauf.DatenblattZeigen();
  lauf.Klick(lauf.programm.Datenblatt(), u"txtA_2"_s);
  lauf.programm.Optionen().activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&lauf.programm.Optionen()));
  Finden<QRadioButton>(lauf.programm.Optionen(), u"optSSB_1"_s).click();
  EXPECT_EQ(lauf.Zelle(1, 12), u"37.61");
  EXPECT_EQ(lauf.programm.zustand().Datenblattspalten[1].Grenzwerttyp, 1);
}

/// A program that dies is one that is never asked to end.
TEST_F(Rundreise, NachEinemAbsturzKommtDasGetippteZurueck) {
  const auto dateien = [this] {
    return QDir(verzeichnis.path()).entryList({u".*rettung"_s}, QDir::Files | QDir::Hidden);
  };
  {
    Lauf lauf(verzeichnis.path());
    lauf.DatenblattZeigen();
    QTest::keyClicks(&Finden<QLineEdit>(lauf.programm.Datenblatt(), u"txtA_0"_s), u"12 m"_s);
    lauf.programm.RettungSichern();
    EXPECT_EQ(dateien().size(), 1);
    // Another program that starts meanwhile must not take it for a remainder.
    Lauf zweiter(verzeichnis.path());
    EXPECT_EQ(zweiter.Zelle(1, 1), u"");
  }
  {
    skript::Buehne buehne;
    buehne.speicher.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, u"0"_s);
    buehne.boxen.Erwarten(u"Vesk"_s, u"nicht ordentlich beendet"_s, Antwort::Ja);
    Zustand zustand;
    Programm programm(zustand, buehne.plattform, {verzeichnis.path(), {}});
    programm.Starten();
    EXPECT_EQ(zustand.Zellen[0], "12 m");
    EXPECT_EQ(Finden<QLineEdit>(programm.Datenblatt(), u"txtA_0"_s).text(), u"12 m");
    EXPECT_TRUE(zustand.UserGeaendert);
    // Not saved yet, so a second crash loses nothing either.
    EXPECT_EQ(dateien().size(), 1);
    programm.Beenden();
    EXPECT_EQ(dateien().size(), 0);
  }
  Lauf lauf(verzeichnis.path());
  EXPECT_EQ(lauf.Zelle(1, 1), u"12 m");
}

TEST_F(Rundreise, KeinVerlustWennDasSpeichernScheitert) {
  Lauf lauf(verzeichnis.path());
  lauf.Eingeben({u"14.2"_s, u"100"_s, u"0"_s, u"0"_s, u"0"_s});
  lauf.Kopieren();
  ASSERT_TRUE(QDir().mkpath(verzeichnis.filePath(u"user.dat/belegt"_s)));
  lauf.buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"user.dat"_s);
  lauf.buehne.boxen.Erwarten(u"Vesk"_s, u"Programm trotzdem beenden?"_s, Antwort::Nein);
  EXPECT_FALSE(lauf.Beenden());
  EXPECT_TRUE(lauf.programm.zustand().UserGeaendert);
  EXPECT_EQ(lauf.Zelle(1, 10), u"1.99");
  ASSERT_TRUE(QDir(verzeichnis.filePath(u"user.dat"_s)).removeRecursively());
  EXPECT_TRUE(lauf.Beenden());
  EXPECT_TRUE(QFile::exists(verzeichnis.filePath(u"user.dat"_s)));
}

}  // namespace
}  // namespace vesk
