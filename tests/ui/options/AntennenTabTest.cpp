#include <QGroupBox>
#include <QLabel>

#include "OptionenFall.h"

namespace vesk {
namespace {

class AntennenFall : public OptionenFall {
 protected:
  void SetUp() override {
    OptionenFall::SetUp();
    Reiter(2);
    zustand.werte.QRGText = "145";
  }
  bool NehmenFrei() { return Finden<QAbstractButton>(fenster, u"cmdAntenne"_s).isEnabled(); }
  QListWidget& Antennen() { return Finden<QListWidget>(fenster, u"LstAntennen"_s); }
  /// Trimmed texts of the visible lines.
  QStringList Sichtbar() {
    QStringList zeilen;
    for (int i = 0; i < Antennen().count(); ++i) {
      if (!Antennen().isRowHidden(i)) zeilen << Antennen().item(i)->text().simplified();
    }
    return zeilen;
  }
};

TEST_F(AntennenFall, NachDemLaden) {
  EXPECT_EQ(Antennen().count(), 79);
  EXPECT_EQ(Antennen().currentRow(), -1);
  EXPECT_TRUE(Antennen().selectedItems().isEmpty());
  EXPECT_FALSE(NehmenFrei());
  EXPECT_TRUE(Finden<QGroupBox>(fenster, u"rhmAntennen"_s).title().startsWith(u"Herst."_s));
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblAntDaten"_s).text(),
            u"Antennendaten ohne Gewähr. Die Daten be- ruhen auf Herstelleran- gaben und Anzeigen."_s);
}

TEST_F(AntennenFall, SuchenWaehlenNehmen) {
  Tippen(u"txtSuche"_s, u"flexa 430"_s);
  EXPECT_EQ(Sichtbar().join(u'|'), u"FlexaYagi FX7015V|FX7044|FX7044-4|FX7073"_s);
  Finden<QLineEdit>(fenster, u"txtSuche"_s).clear();
  Tippen(u"txtSuche"_s, u"Yagi 144 10el"_s);
  EXPECT_EQ(Sichtbar(), QStringList{u"Allgemein Yagi 10el"_s}) << "der Hersteller steht auch eingegrenzt da";
  QTest::keyClick(&Finden<QLineEdit>(fenster, u"txtSuche"_s), Qt::Key_Return);
  EXPECT_EQ(umgebung.Protokoll(), QString());
  EXPECT_EQ(zustand.werte.GewinnText, "14.00");
  EXPECT_EQ(Text(u"txtWAntenne"_s), u"Allgemein Yagi 10el"_s);
  EXPECT_EQ(Text(u"txtWGewinn0"_s) + u' ' + Text(u"txtWMHZ"_s), u"14.00 145"_s);
  EXPECT_EQ(Finden<QListWidget>(fenster, u"List1"_s).currentItem()->text(),
            u"  144  -  14.00  -   10 el. "_s);

  QTest::keyClick(&Antennen(), Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"cmdAntenne"_s);
  zustand.werte.GewinnText = "3";  // a calculation in between has read the main window's gain again
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(umgebung.Protokoll(), u"Gewinn=14.00; Berechnen"_s);
  EXPECT_EQ(zustand.werte.GewinnText, "14.00");
  EXPECT_EQ(Satz(0).Antenne, "Yagi 10el");
  EXPECT_EQ(Satz(0).Gewinn, "14.00");
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblAntenne"_s).text(), u"Yagi 10el"_s);
  EXPECT_FALSE(NehmenFrei());
}

TEST_F(AntennenFall, BeiEinerSpalteFolgenIhreZellen) {
  zustand.werte.Spalte = 2;
  ZeileKlicken(u"LstAntennen"_s, u"HB9CV"_s);
  Klicken(u"cmdAntenne"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Gewinn=6.35; Zelle 2.8=6.35; Zelle 2.4=HB9CV; Übernehmen"_s);
  EXPECT_EQ(Satz(2).Antenne, "HB9CV");
  EXPECT_TRUE(zustand.UserGeaendert);

  umgebung.chkOptionen = false;
  ZeileKlicken(u"LstAntennen"_s, u"X510"_s);
  Klicken(u"cmdAntenne"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Gewinn=8.30"_s);
  EXPECT_EQ(Satz(2).Antenne, "HB9CV");
}

TEST_F(AntennenFall, UnpassendeAntenneWirdAbgelehnt) {
  zustand.werte.GewinnText = "1";
  ZeileKlicken(u"LstAntennen"_s, u"23cm-Y 2m"_s);
  EXPECT_TRUE(NehmenFrei());
  EXPECT_EQ(zustand.werte.GewinnText, "1");
  EXPECT_EQ(Text(u"txtWAntenne"_s), QString());
  EXPECT_EQ(Finden<QListWidget>(fenster, u"List1"_s).selectedItems().size(), 0);
  buehne.boxen.Erwarten(u"Fehler"_s,
                        u"Die Antenne paßt nicht zur Frequenzvorgabe.\nBitte eine andere Antenne wählen!"_s);
  Klicken(u"cmdAntenne"_s);

  // Another check may have set the shared flag since the choice.
  ZeileKlicken(u"LstAntennen"_s, u"23cm-Y 2m"_s);
  zustand.werte.Pruefergebnis = true;
  buehne.boxen.Erwarten(u"Fehler"_s, u"paßt nicht"_s);
  Klicken(u"cmdAntenne"_s);

  zustand.werte.QRGText.clear();
  ZeileKlicken(u"LstAntennen"_s, u"23cm-Y 2m"_s);
  Klicken(u"cmdAntenne"_s);
  EXPECT_EQ(umgebung.Protokoll(), QString());
  EXPECT_FALSE(NehmenFrei());
}

TEST_F(AntennenFall, DipolOhneBandBringtSeinenGewinn) {
  zustand.werte.QRGText = "145";
  ZeileKlicken(u"LstAntennen"_s, u"Dipol KW"_s);
  EXPECT_EQ(zustand.werte.GewinnText, "2.15");
  EXPECT_FALSE(zustand.werte.Pruefergebnis);
}

TEST_F(AntennenFall, SucheAendertDieWahlNicht) {
  ZeileKlicken(u"LstAntennen"_s, u"X510"_s);
  Tippen(u"txtSuche"_s, u"helix"_s);
  EXPECT_EQ(Sichtbar().size(), 4);
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblTreffer"_s).text(), u"4 von 79"_s);
  Klicken(u"cmdAntenne"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Gewinn=8.30; Berechnen"_s);
  QTest::keyClick(&Finden<QLineEdit>(fenster, u"txtSuche"_s), Qt::Key_Escape);
  EXPECT_EQ(Sichtbar().size(), 79);
  EXPECT_EQ(Antennen().item(1)->text().left(10), QString(10, u' '));
}

TEST_F(AntennenFall, DieGewaehlteZeileBleibtImBlick) {
  fenster.resize(fenster.width(), fenster.minimumSizeHint().height() + 10 * fenster.fontMetrics().height());
  QTest::qWait(1);
  const auto imBlick = [&] {
    const int mitte = Antennen().visualItemRect(Antennen().currentItem()).center().y();
    return mitte >= 0 && mitte < Antennen().viewport()->height();
  };
  ZeileKlicken(u"LstAntennen"_s, u"Yagi 6el"_s);
  Tippen(u"txtSuche"_s, u"yagi 144"_s);
  EXPECT_TRUE(imBlick());
  QTest::keyClick(&Finden<QLineEdit>(fenster, u"txtSuche"_s), Qt::Key_Return);
  EXPECT_TRUE(imBlick());
  Finden<QLineEdit>(fenster, u"txtSuche"_s).clear();
  EXPECT_TRUE(imBlick());
}

class DefekteAntennenFall : public OptionenFall {
 protected:
  void SetUp() override {}
  void FensterOeffnen() { OptionenFall::SetUp(); }
};

TEST_F(DefekteAntennenFall, AbgeschnittenMeldetSich) {
  DateiAnlegen(u"Antennen.txt"_s, "[A]\r\nX,Yagi,144,12,10,430\r\n");
  buehne.boxen.Erwarten(u"Hinweis"_s, u"Fehler in Antennendatei: Antennen.txt"_s);
  FensterOeffnen();
  EXPECT_EQ(Finden<QListWidget>(fenster, u"LstAntennen"_s).count(), 1);
}

TEST_F(DefekteAntennenFall, ZuVieleGruppenMeldenSich) {
  QByteArray bytes = "[A]\r\nX,Yagi,";
  for (int i = 0; i < 10; ++i) bytes += "144,12,10,";
  DateiAnlegen(u"Antennen.txt"_s, bytes + "#\r\n");
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Index"_s);
  FensterOeffnen();
}

TEST_F(DefekteAntennenFall, FehltOhneMeldung) {
  DateiAnlegen(u"Antennen.txt"_s, "");
  FensterOeffnen();
  EXPECT_EQ(Finden<QListWidget>(fenster, u"LstAntennen"_s).count(), 0);
}

}  // namespace
}  // namespace vesk
