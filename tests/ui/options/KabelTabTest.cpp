#include "OptionenFall.h"

namespace vesk {
namespace {

class KabelFall : public OptionenFall {
 protected:
  void SetUp() override {
    OptionenFall::SetUp();
    Reiter(1);
  }
  QString Kabel() {
    const auto* zeile = Finden<QListWidget>(fenster, u"lstKabel"_s).currentItem();
    return zeile == nullptr ? QString() : zeile->text();
  }
  bool D100Frei() { return Finden<QLineEdit>(fenster, u"txtD100"_s).isEnabled(); }
};

TEST_F(KabelFall, NachDemLaden) {
  EXPECT_EQ(Finden<QListWidget>(fenster, u"lstKabel"_s).count(), 21);
  EXPECT_EQ(Kabel(), u"RG213"_s);
  EXPECT_FALSE(D100Frei());
  EXPECT_EQ(Farbe(u"txtD100"_s), farben::HellGrau);
  EXPECT_EQ(umgebung.Protokoll(), QString());
}

TEST_F(KabelFall, KabelUndLaengeErgebenDieVerluste) {
  fenster.HauptfrequenzUebernehmen(u"144"_s);
  EXPECT_EQ(umgebung.Protokoll(), QString()) << "ohne Länge bleibt die Dämpfung des Hauptfensters stehen";
  FeldKlicken(u"txtKabelLaenge"_s);
  Tippen(u"txtKabelLaenge"_s, u"20"_s);
  Tippen(u"txtStecker"_s, u"0,5"_s);
  EXPECT_EQ(umgebung.Protokoll(), QString());
  Klicken(u"cmdGleich"_s);
  EXPECT_EQ(Text(u"txtD100"_s), u"7.58"_s);
  EXPECT_EQ(Text(u"txtKabeldaempfung"_s), u"1.52"_s);
  EXPECT_EQ(Text(u"txtGesamtdaempfung"_s), u"2.02"_s);
  EXPECT_EQ(Farbe(u"txtD100"_s), farben::Weiss);
  EXPECT_EQ(umgebung.Protokoll(), u"Daempfung=2.02; Berechnen"_s);
  EXPECT_EQ(zustand.werte.DaempfungText, "2.02");
  EXPECT_EQ(Satz(0).KabelLaenge, "20");
  EXPECT_EQ(Satz(0).Gesamtdaempfung, "2.02");
  EXPECT_FALSE(zustand.UserGeaendert);

  ZeileKlicken(u"lstKabel"_s, u"Ecoflex 15"_s);
  EXPECT_EQ(Text(u"txtGesamtdaempfung"_s), u"1.18"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Daempfung=1.18; Berechnen"_s);
  EXPECT_EQ(Satz(0).KabelIndex, "16");

  fenster.HauptfrequenzUebernehmen(u"14.2"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Daempfung=0.71"_s);
}

TEST_F(KabelFall, BeiEinerSpalteFolgtIhreZelle) {
  fenster.HauptfrequenzUebernehmen(u"145"_s);
  zustand.werte.Spalte = 3;
  Tippen(u"txtKabelLaenge"_s, u"20"_s);
  Klicken(u"cmdGleich"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Daempfung=1.52; Zelle 3.7=1.52; Übernehmen"_s);
  EXPECT_EQ(Satz(3).Gesamtdaempfung, "1.52");
  EXPECT_EQ(Satz(3).KabelIndex, "0");
  EXPECT_EQ(Satz(3).Modulationsfaktor, "1.00");
  EXPECT_EQ(Satz(0).Gesamtdaempfung, "");
  EXPECT_TRUE(zustand.UserGeaendert);

  umgebung.chkOptionen = false;
  ZeileKlicken(u"lstKabel"_s, u"RG58"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Daempfung="_s + Text(u"txtGesamtdaempfung"_s));
  EXPECT_EQ(Satz(3).KabelIndex, "0");
}

TEST_F(KabelFall, AnderesKabelVerlangtEinenWert) {
  fenster.HauptfrequenzUebernehmen(u"145"_s);
  ZeileKlicken(u"lstKabel"_s, u"Anderes Kabel"_s);
  // With 20 cables the entry lies beyond the table as soon as a length asks for its loss.
  EXPECT_TRUE(D100Frei());
  EXPECT_EQ(Text(u"txtD100"_s), u"0"_s);
  EXPECT_EQ(Farbe(u"txtD100"_s), farben::Rot);
  Tippen(u"txtKabelLaenge"_s, u"20"_s);
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Index"_s);
  Klicken(u"cmdGleich"_s);
  ZeileKlicken(u"lstKabel"_s, u"RG58"_s);
  EXPECT_FALSE(D100Frei());
}

TEST_F(KabelFall, GetippteGesamtdaempfungGehtOhneLaengeWeiter) {
  Tippen(u"txtGesamtdaempfung"_s, u"1.7"_s);
  Klicken(u"cmdGleich"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Daempfung=1.7; Berechnen"_s);
}

TEST_F(KabelFall, FrequenzRechnetBeimTippenStillUndBeimVerlassenEinmal) {
  zustand.werte.QRGText = "14";
  fenster.HauptfrequenzUebernehmen(u"14"_s);
  FeldKlicken(u"txtQRG"_s);
  EXPECT_EQ(umgebung.Protokoll(), QString());
  Tippen(u"txtQRG"_s, u"145"_s);
  EXPECT_EQ(
      umgebung.Protokoll(),
      u"Bandlogik 1 still; Daempfung=; Berechnen still; Bandlogik 14 still; Daempfung=; Berechnen still; "
      "Bandlogik 145 still; Daempfung=; Berechnen still"_s);
  QTest::keyClick(&Finden<QLineEdit>(fenster, u"txtQRG"_s), Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"txtKabelLaenge"_s);
  QTest::qWait(1);
  EXPECT_EQ(umgebung.Protokoll(), u"QRG=145; Berechnen"_s);
  EXPECT_EQ(zustand.werte.QRGText, "145");
}

TEST_F(KabelFall, FehlerBeimTippenBleibtStill) {
  umgebung.fehler = Fehlerart::Gleitkomma;
  Tippen(u"txtQRG"_s, u"7"_s);
  umgebung.fehler.reset();
  EXPECT_EQ(umgebung.Protokoll(), u"Bandlogik 7 still; Daempfung=; Berechnen still"_s);
}

TEST_F(KabelFall, GeleerteFrequenzKommtZurueck) {
  zustand.werte.QRGText = "14.2";
  FeldKlicken(u"txtQRG"_s);
  Tippen(u"txtKabelLaenge"_s, u"1"_s);
  QTest::qWait(1);
  EXPECT_EQ(Text(u"txtQRG"_s), u"14.2"_s);
  EXPECT_EQ(umgebung.Protokoll(), QString());
}

TEST_F(KabelFall, GleichNachDerFrequenzRechnetNurEinmal) {
  Tippen(u"txtQRG"_s, u"7"_s);
  static_cast<void>(umgebung.Protokoll());
  auto& knopf = Finden<QAbstractButton>(fenster, u"cmdGleich"_s);
  QTest::mousePress(&knopf, Qt::LeftButton);
  knopf.setFocus();  // the offscreen platform moves no focus by itself when the window is inactive
  QTest::mouseRelease(&knopf, Qt::LeftButton);
  QTest::qWait(50);
  EXPECT_EQ(umgebung.Protokoll(), u"QRG=7; Daempfung=; Berechnen"_s);
}

TEST_F(KabelFall, SchliessenMitFrequenzImFeldRechnetNicht) {
  Tippen(u"txtQRG"_s, u"7"_s);
  static_cast<void>(umgebung.Protokoll());
  fenster.hide();
  QTest::qWait(1);
  EXPECT_EQ(umgebung.Protokoll(), QString());
}

TEST_F(KabelFall, KlickLeertNurDieVierFelder) {
  for (const auto* name :
       {"txtQRG", "txtKabelLaenge", "txtKabeldaempfung", "txtStecker", "txtGesamtdaempfung"}) {
    auto& feld = Finden<QLineEdit>(fenster, QString::fromLatin1(name));
    const QSignalBlocker still(feld);
    feld.setText(u"3"_s);
  }
  for (const auto* name : {"txtKabelLaenge", "txtKabeldaempfung", "txtStecker", "txtGesamtdaempfung"}) {
    FeldKlicken(QString::fromLatin1(name));
  }
  EXPECT_EQ(Text(u"txtKabelLaenge"_s) + Text(u"txtKabeldaempfung"_s), QString());
  EXPECT_EQ(Text(u"txtStecker"_s) + Text(u"txtGesamtdaempfung"_s), u"33"_s);
}

TEST_F(KabelFall, SatzStelltDenReiterWiederHer) {
  Satz(2).KabelLaenge = "30";
  Satz(2).KabelIndex = "20";
  Satz(2).D100 = "4.5";
  Satz(2).QRG = "430";
  Satz(4).KabelIndex = "99";
  Satz(4).D100 = "1e99";
  zustand.werte.Spalte = 2;
  fenster.SatzLaden();
  EXPECT_EQ(Kabel(), u"Anderes Kabel"_s);
  EXPECT_TRUE(D100Frei());
  EXPECT_EQ(Farbe(u"txtD100"_s), farben::Weiss);
  EXPECT_EQ(Text(u"txtQRG"_s) + u' ' + Text(u"txtKabelLaenge"_s), u"430 30"_s);
  fenster.ArbeitssatzAuffrischen();
  EXPECT_EQ(Satz(0).KabelIndex, "20");
  EXPECT_EQ(Satz(0).QRG, "430");

  zustand.werte.Spalte = 4;
  fenster.SatzLaden();
  EXPECT_EQ(Kabel(), QString());
  EXPECT_FALSE(D100Frei());
  EXPECT_EQ(umgebung.Protokoll(), QString());
}

TEST_F(KabelFall, TastenWaehlenInDerListe) {
  auto& liste = Finden<QListWidget>(fenster, u"lstKabel"_s);
  liste.setFocus();
  QTest::keyClick(&liste, Qt::Key_Down);
  EXPECT_EQ(Kabel(), u"RG58"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Daempfung=; Berechnen"_s);
  QTest::keyClick(&liste, Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"txtQRG"_s);
}

class DefekteKabelFall : public OptionenFall {
 protected:
  void SetUp() override {}
  void Starten(const QByteArray& bytes) {
    DateiAnlegen(u"Kabel.txt"_s, bytes);
    OptionenFall::SetUp();
    Reiter(1);
  }
};

TEST_F(DefekteKabelFall, AbgeschnittenMeldetUndRechnetMitRG213) {
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s,
                        u"Fehler in Kabeldatendatei: Kabel.txt - RG213 geladen."_s);
  Starten("Meins,1,2,3,4,5,6,7,8,9,10,11,12\r\nNoch,1,2\r\n");
  EXPECT_EQ(Finden<QListWidget>(fenster, u"lstKabel"_s).count(), 3);
  fenster.HauptfrequenzUebernehmen(u"100"_s);
  Tippen(u"txtKabelLaenge"_s, u"100"_s);
  Klicken(u"cmdGleich"_s);
  EXPECT_EQ(Text(u"txtGesamtdaempfung"_s), u"6.12"_s);
}

TEST_F(DefekteKabelFall, NullMeldetDenFehlerUndDerGetippteWertGilt) {
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Typen unverträglich"_s);
  Starten("Meins,1,2,3,4,5,6,7,8,9,10,11,12\r\nNoch,1,0,3,4,5,6,7,8,9,10,11,12\r\n");
  EXPECT_EQ(Finden<QListWidget>(fenster, u"lstKabel"_s).count(), 1);
}

TEST_F(DefekteKabelFall, AnderesKabelRechnetMitDemGetipptenWert) {
  Starten("Meins,1,2,3,4,5,6,7,8,9,10,11,12\r\n");
  fenster.HauptfrequenzUebernehmen(u"145"_s);
  ZeileKlicken(u"lstKabel"_s, u"Anderes Kabel"_s);
  FeldKlicken(u"txtD100"_s);
  Tippen(u"txtD100"_s, u"4,5"_s);
  Tippen(u"txtKabelLaenge"_s, u"20"_s);
  Klicken(u"cmdGleich"_s);
  EXPECT_EQ(Text(u"txtD100"_s), u"4.50"_s);
  EXPECT_EQ(Text(u"txtGesamtdaempfung"_s), u"0.90"_s);
  EXPECT_EQ(Farbe(u"txtD100"_s), farben::Weiss);
}

TEST_F(DefekteKabelFall, LeereDateiLaesstNurAnderesKabel) {
  Starten("");
  EXPECT_EQ(Finden<QListWidget>(fenster, u"lstKabel"_s).count(), 1);
  EXPECT_EQ(Finden<QListWidget>(fenster, u"lstKabel"_s).currentRow(), -1);
  Tippen(u"txtKabelLaenge"_s, u"20"_s);
  Klicken(u"cmdGleich"_s);
  EXPECT_EQ(Farbe(u"txtD100"_s), farben::Rot);
  EXPECT_FALSE(zustand.werte.Pruefergebnis);
}

}  // namespace
}  // namespace vesk
