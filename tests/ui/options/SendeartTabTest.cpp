#include "OptionenFall.h"

namespace vesk {
namespace {

using SendeartFall = OptionenFall;

TEST_F(SendeartFall, NachDemLaden) {
  EXPECT_EQ(Kreuze(), u"7"_s);
  EXPECT_EQ(Zyklus(), u"5"_s);
  EXPECT_EQ(Typ(), u"0"_s);
  EXPECT_EQ(Text(u"txtSelectedModes"_s), u"alle "_s);
  EXPECT_EQ(Text(u"txtFaktorB"_s), u"1.00"_s);
  EXPECT_EQ(Farbe(u"txtFaktorB"_s), farben::HellGruen);
  EXPECT_EQ(Satz(0), LeereSpalte());
  EXPECT_FALSE(zustand.UserGeaendert);
  EXPECT_EQ(umgebung.Protokoll(), QString());
}

TEST_F(SendeartFall, KlicksDesBenutzers) {
  zustand.einstellungen.FaktorMeldungAus = true;
  struct Schritt {
    QStringView klick;
    QStringView kreuze;
    QStringView text;
    QStringView faktor;
    QStringView typ;
  };
  constexpr Schritt Schritte[] = {
      {u"chkBetriebsart_0", u"0", u"cw ", u"0.40", u"0"},
      {u"optDuty_2", u"0", u"cw ", u"0.20", u"0"},
      {u"chkBetriebsart_1", u"01", u"cw ssb ", u"0.25", u"0"},
      {u"optDuty_5", u"01", u"cw ssb ", u"0.50", u"0"},
      {u"chkBetriebsart_2", u"012", u"cw ssb am ", u"0.50", u"0"},
      {u"chkBetriebsart_3", u"0123", u"cw ssb am ", u"1.00", u"0"},
      {u"chkBetriebsart_3", u"012", u"cw ssb am ", u"0.50", u"0"},
      {u"chkBetriebsart_5", u"5", u"atv ", u"1.00", u"1"},
      {u"chkBetriebsart_5", u"5", u"atv ", u"1.00", u"1"},
      {u"chkBetriebsart_6", u"6", u"gsm ", u"1.00", u"2"},
      {u"chkBetriebsart_7", u"7", u"alle ", u"1.00", u"0"},
      {u"chkBetriebsart_7", u"7", u"alle ", u"1.00", u"0"},
      {u"optSSB_2", u"7", u"alle ", u"1.00", u"2"},
      {u"chkBetriebsart_4", u"4", u"pr ", u"1.00", u"0"},
      {u"chkBetriebsart_4", u"", u"", u"1.00", u"0"},
      {u"optDuty_0", u"", u"", u"0.17", u"0"},
  };
  for (const Schritt& schritt : Schritte) {
    SCOPED_TRACE(schritt.klick.toString().toStdString() + " -> " + schritt.kreuze.toString().toStdString());
    Klicken(schritt.klick.toString());
    EXPECT_EQ(Kreuze(), schritt.kreuze);
    EXPECT_EQ(Text(u"txtSelectedModes"_s), schritt.text);
    EXPECT_EQ(Text(u"txtFaktorB"_s), schritt.faktor);
    EXPECT_EQ(Farbe(u"txtFaktorB"_s), schritt.faktor == u"1.00" ? farben::HellGruen : farben::Gruen);
    EXPECT_EQ(Typ(), schritt.typ);
    EXPECT_EQ(zustand.werte.Grenzwerttyp, schritt.typ.toInt());
    EXPECT_EQ(Satz(0).Grenzwerttyp, schritt.typ.toInt());
    EXPECT_EQ(Satz(0).Modulationsfaktor, Formatieren(zustand.werte.Modulationsfaktor));
    EXPECT_EQ(Satz(0).Zyklusfaktor, Formatieren(zustand.werte.Zyklusfaktor));
    EXPECT_EQ(umgebung.Protokoll(), u"Berechnen"_s);
  }
  EXPECT_FALSE(zustand.UserGeaendert) << "Der Arbeitssatz gehört nicht zu den Benutzerdaten";
}

TEST_F(SendeartFall, TastaturWirktWieDieMaus) {
  zustand.einstellungen.FaktorMeldungAus = true;
  QTest::keyClick(&Finden<QCheckBox>(fenster, u"chkBetriebsart_1"_s), Qt::Key_Space);
  EXPECT_EQ(Kreuze(), u"1"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Berechnen"_s);

  auto& zyklus = Finden<QRadioButton>(fenster, u"optDuty_5"_s);
  zyklus.setFocus();
  QTest::keyClick(&zyklus, Qt::Key_Up);
  EXPECT_EQ(Zyklus(), u"4"_s);
  EXPECT_EQ(Text(u"txtFaktorB"_s), u"0.42"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Berechnen"_s);
}

TEST_F(SendeartFall, WarnungUndIhreAntworten) {
  Klicken(u"optDuty_5"_s);
  Klicken(u"chkBetriebsart_3"_s);
  EXPECT_TRUE(buehne.boxen.gezeigt.empty()) << "volle Leistung";

  WarnungErwarten(Antwort::Ja);
  Klicken(u"chkBetriebsart_3"_s);
  Klicken(u"chkBetriebsart_0"_s);
  ASSERT_EQ(buehne.boxen.gezeigt.size(), 1U);
  EXPECT_EQ(buehne.boxen.gezeigt.front().text,
            u"Für die Sendeart wurde ein Faktor <1 ermittelt!\n"
            "Wenn im Antrag mit diesem Faktor gerechnet wird, \n"
            "darf er beim Funkbetrieb nicht überschritten werden!\n\n"
            "Diese Meldung in Zukunft wieder anzeigen?"_s);
  EXPECT_EQ(buehne.boxen.gezeigt.front().symbol, Symbol::Ausrufezeichen);
  EXPECT_EQ(zustand.werte.Antwort, 6);

  WarnungErwarten(Antwort::Nein);  // the selected button again repeats the warning
  Klicken(u"optDuty_5"_s);
  EXPECT_EQ(zustand.werte.Antwort, 7);
  Klicken(u"optDuty_1"_s);
  Klicken(u"chkBetriebsart_1"_s);
  EXPECT_EQ(buehne.boxen.gezeigt.size(), 2U) << "abbestellt";

  zustand.einstellungen.FaktorMeldungAus = false;  // as switching the warnings on does
  umgebung.mnuMeldungen = false;
  Klicken(u"optDuty_2"_s);
  EXPECT_EQ(buehne.boxen.gezeigt.size(), 2U);
  umgebung.mnuMeldungen = true;
  WarnungErwarten();
  Klicken(u"optDuty_3"_s);
}

TEST_F(SendeartFall, SpalteMitOptionen) {
  zustand.werte.Spalte = 3;
  zustand.einstellungen.FaktorMeldungAus = true;
  Klicken(u"chkBetriebsart_0"_s);
  EXPECT_EQ(umgebung.Protokoll(), u"Zelle 3.5=cw ; Übernehmen"_s);
  EXPECT_EQ(umgebung.lblModIdx, u"Faktor für Sendeart: 0.40"_s);
  EXPECT_EQ(Satz(3).Modulationsfaktor, "0.40");
  EXPECT_EQ(Satz(3).Zyklusfaktor, "1.00");
  EXPECT_EQ(Satz(0).Modulationsfaktor, "0.40");
  EXPECT_EQ(Satz(2), LeereSpalte());
  EXPECT_TRUE(zustand.UserGeaendert);

  Klicken(u"optDuty_0"_s);
  EXPECT_EQ(Satz(3).Zyklusfaktor, "0.17");
  EXPECT_EQ(umgebung.Protokoll(), u"Übernehmen"_s);

  Klicken(u"chkBetriebsart_5"_s);
  EXPECT_EQ(Satz(3).Grenzwerttyp, GrenzwertTV) << "sonst käme die Spalte mit dem falschen Typ zurück";
  EXPECT_EQ(umgebung.Protokoll(), u"Zelle 3.5=atv ; Übernehmen"_s);
}

TEST_F(SendeartFall, SpalteOhneOptionen) {
  zustand.werte.Spalte = 3;
  umgebung.chkOptionen = false;
  zustand.einstellungen.FaktorMeldungAus = true;
  Klicken(u"chkBetriebsart_0"_s);
  Klicken(u"optDuty_2"_s);
  EXPECT_EQ(Text(u"txtFaktorB"_s), u"0.20"_s);
  EXPECT_EQ(Satz(3), LeereSpalte());
  EXPECT_EQ(Satz(0), LeereSpalte());
  EXPECT_FALSE(zustand.UserGeaendert);

  Klicken(u"optSSB_1"_s);
  EXPECT_EQ(Satz(3).Grenzwerttyp, GrenzwertTV);
  EXPECT_EQ(Satz(0).Grenzwerttyp, GrenzwertTV);
  EXPECT_TRUE(zustand.UserGeaendert);
  EXPECT_EQ(umgebung.Protokoll(), QString());
}

TEST_F(SendeartFall, FehlerDerBerechnungWirdGezeigt) {
  umgebung.fehler = Fehlerart::Gleitkomma;
  buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Gleitkommafehler"_s);
  Klicken(u"optSSB_2"_s);
  EXPECT_EQ(Typ(), u"2"_s);
  EXPECT_EQ(zustand.werte.Grenzwerttyp, GrenzwertGSM);
}

TEST_F(SendeartFall, SatzEinerSpalteLaden) {
  struct Fall {
    bool optionen;
    QStringView zelle;
    std::string modulation;
    std::string zyklus;
    std::int16_t typ;
    QStringView kreuze;
    QStringView text;
    QStringView zyklusknopf;
    QStringView faktor;
  };
  const Fall Faelle[] = {
      // Four ticked modes: the cell knows three, the record knows the factor.
      {true, u"cw ssb am ", "1.00", "1.00", 0, u"012", u"cw ssb am ", u"5", u"1.00"},
      {true, u"cw ssb am ", "0.50", "0.17", 0, u"012", u"cw ssb am ", u"0", u"0.08"},
      {true, u"J3E", "0.50", "0.25", 2, u"1", u"J3E", u"", u"0.13"},
      {true, u"alle ", "1.00", "1", 1, u"7", u"alle ", u"5", u"1.00"},
      {true, u"", "", "", 0, u"", u"", u"5", u"1.00"},
      {true, u"cw ", "1.5", "0", 7, u"0", u"cw ", u"5", u"1.00"},
      {true, u"rtty", "0.4", "0.5", -1, u"", u"rtty", u"2", u"0.20"},
      {false, u"cw ssb am ", "1.00", "1.00", 0, u"012", u"cw ssb am ", u"5", u"0.50"},
      {false, u"Alle", "0.40", "1.00", 2, u"0123456", u"cw ssb am ", u"5", u"1.00"},
      {false, u"A1A", "1.00", "0.50", 0, u"0", u"cw ", u"2", u"0.20"},
      {false, u"", "0.40", "1.00", 0, u"", u"", u"5", u"1.00"},
  };
  zustand.werte.Spalte = 2;
  for (const Fall& fall : Faelle) {
    SCOPED_TRACE(fall.zelle.toString().toStdString() + " " + fall.modulation + " " + fall.zyklus);
    umgebung.chkOptionen = fall.optionen;
    Spaltenzelle(2, fall.zelle.toString());
    Satz(2).Modulationsfaktor = fall.modulation;
    Satz(2).Zyklusfaktor = fall.zyklus;
    Satz(2).Grenzwerttyp = fall.typ;
    fenster.SatzLaden();
    EXPECT_EQ(Kreuze(), fall.kreuze);
    EXPECT_EQ(Text(u"txtSelectedModes"_s), fall.text);
    EXPECT_EQ(Zyklus(), fall.zyklusknopf);
    EXPECT_EQ(Text(u"txtFaktorB"_s), fall.faktor);
    EXPECT_EQ(Formatieren(Faktor(zustand.werte)), fall.faktor.toString().toStdString());
    EXPECT_EQ(Farbe(u"txtFaktorB"_s), fall.faktor == u"1.00" ? farben::HellGruen : farben::Gruen);
    const int typ = fall.typ == 7 || fall.typ == -1 ? 0 : fall.typ;
    EXPECT_EQ(Typ(), QString::number(typ));
    EXPECT_EQ(zustand.werte.Grenzwerttyp, typ);
    EXPECT_EQ(Satz(2).Modulationsfaktor, fall.modulation);
    EXPECT_EQ(umgebung.Protokoll(), QString());
  }
}

TEST_F(SendeartFall, NachKeinemZyklusWiederWaehlbar) {
  zustand.einstellungen.FaktorMeldungAus = true;
  zustand.werte.Spalte = 1;
  Satz(1).Zyklusfaktor = "0.25";
  fenster.SatzLaden();
  ASSERT_EQ(Zyklus(), QString());
  Klicken(u"optDuty_3"_s);
  Klicken(u"optDuty_4"_s);
  EXPECT_EQ(Zyklus(), u"4"_s);
  EXPECT_EQ(Satz(1).Zyklusfaktor, "0.83");
}

TEST_F(SendeartFall, GeladeneVierteSendeartBleibtBeimZyklus) {
  zustand.einstellungen.FaktorMeldungAus = true;
  zustand.werte.Spalte = 1;
  Spaltenzelle(1, u"cw ssb am "_s);
  fenster.SatzLaden();
  Klicken(u"optDuty_2"_s);
  EXPECT_EQ(Text(u"txtFaktorB"_s), u"0.50"_s);
  EXPECT_EQ(Satz(1).Modulationsfaktor, "1.00");
}

TEST_F(SendeartFall, ArbeitssatzNachDemLeeren) {
  zustand.einstellungen.FaktorMeldungAus = true;
  Klicken(u"chkBetriebsart_0"_s);
  Klicken(u"optDuty_2"_s);
  Klicken(u"optSSB_2"_s);
  umgebung.Protokoll();
  Satz(0) = LeereSpalte();  // as clearing the data sheet does
  fenster.SatzLaden();
  EXPECT_EQ(Kreuze(), u"0"_s);
  EXPECT_EQ(Zyklus(), u"5"_s);
  EXPECT_EQ(Typ(), u"0"_s);
  EXPECT_EQ(Text(u"txtFaktorB"_s), u"0.40"_s);
  EXPECT_EQ(zustand.werte.Modulationsfaktor, 0.4F);
  EXPECT_EQ(Satz(0).Modulationsfaktor, "0.40") << "eine Kopie davon muss wieder so rechnen";
  EXPECT_EQ(umgebung.Protokoll(), QString());
}

TEST_F(SendeartFall, ArbeitssatzHatDieOptionenMitDenenGerechnetWurde) {
  zustand.einstellungen.FaktorMeldungAus = true;
  umgebung.chkOptionen = false;
  Klicken(u"chkBetriebsart_1"_s);
  EXPECT_EQ(Satz(0).Modulationsfaktor, "1.00");
  fenster.ArbeitssatzAuffrischen();
  EXPECT_EQ(Satz(0).Modulationsfaktor, "0.50");

  // The options of a column stay on show when the main window calculates again.
  Satz(4).Zyklusfaktor = "0.33";
  Satz(4).Grenzwerttyp = GrenzwertTV;
  zustand.werte.Spalte = 4;
  fenster.SatzLaden();
  zustand.werte.Spalte = 0;
  fenster.ArbeitssatzAuffrischen();
  EXPECT_EQ(Satz(0).Zyklusfaktor, "0.33");
  EXPECT_EQ(Satz(0).Grenzwerttyp, GrenzwertTV);
}

TEST_F(SendeartFall, FaktorfeldZeigtNachDemVerlassenDenGeltendenFaktor) {
  auto& feld = Finden<QLineEdit>(fenster, u"txtFaktorB"_s);
  feld.setFocus();
  feld.selectAll();
  QTest::keyClicks(&feld, u"0,x5"_s);
  EXPECT_EQ(feld.text(), u"0.5"_s);
  EXPECT_EQ(buehne.ton.anzahl, 1);
  EXPECT_EQ(zustand.werte.Modulationsfaktor, 1.0F);
  QTest::keyClick(&feld, Qt::Key_Backtab);
  EXPECT_EQ(feld.text(), u"1.00"_s);
  EXPECT_EQ(umgebung.Protokoll(), QString());
}

}  // namespace
}  // namespace vesk
