#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>

#include "Blatt.h"
#include "Datenblatthilfe.h"
#include "Farben.h"

namespace vesk {

namespace {

QColor Grund(const QWidget& widget) {
  return Hintergrundfarbe(widget);
}

QColor Schrift(const QLineEdit& zelle) {
  return zelle.palette().color(QPalette::Text);
}

class Datenblatt : public Blatt {
 protected:
  void ErwarteToenung(int spalte, const QColor& zehn, const QColor& elf, const QColor& zwoelf) {
    EXPECT_EQ(Grund(Feld(spalte, 9)), farben::Weiss) << spalte;
    EXPECT_EQ(Grund(Feld(spalte, 10)), zehn) << spalte;
    EXPECT_EQ(Grund(Feld(spalte, 11)), elf) << spalte;
    EXPECT_EQ(Grund(Feld(spalte, 12)), zwoelf) << spalte;
  }
  void ErwarteGetoent(int spalte) {
    ErwarteToenung(spalte, farben::HellGruen, farben::HellRot, farben::HellGelb);
  }
};

TEST_F(Datenblatt, KlickMachtDieSpalteZurAktuellen) {
  Satz(3).Modulationsfaktor = "0.40";
  Satz(3).Zyklusfaktor = "0.50";
  const QSignalSpy geklickt(&fenster, &frmDatenblatt::zelleGeklickt);
  QTest::mouseClick(&Feld(5, 2), Qt::LeftButton);
  QTest::mouseClick(&Feld(3, 8), Qt::LeftButton);
  EXPECT_EQ(geklickt.count(), 2);
  EXPECT_EQ(zustand.werte.Spalte, 3);
  EXPECT_EQ(zustand.werte.LetzteSpalte, 5);
  EXPECT_EQ(Grund(Kopf(3)), farben::Spaltenmarke);
  EXPECT_EQ(Kopf(3).frameShape(), QFrame::Box);
  EXPECT_NE(Grund(Kopf(5)), farben::Spaltenmarke);
  EXPECT_EQ(Kopf(5).frameShape(), QFrame::NoFrame);
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblModIdx"_s).text(), u"Faktor für Sendeart: 0.20"_s);
  EXPECT_FALSE(zustand.UserGeaendert);

  fenster.MarkierungAufheben();
  EXPECT_EQ(Kopf(3).frameShape(), QFrame::NoFrame);
  EXPECT_EQ(zustand.werte.Spalte, 3);
}

TEST_F(Datenblatt, UnmaessigerFaktorStoertDenKlickNicht) {
  Satz(2).Modulationsfaktor = "9e99";
  QTest::mouseClick(&Feld(2, 1), Qt::LeftButton);
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblModIdx"_s).text(), u"Faktor für Sendeart: 1.00"_s);
}

TEST_F(Datenblatt, NurEinLinkerKlickWaehlt) {
  const QSignalSpy geklickt(&fenster, &frmDatenblatt::zelleGeklickt);
  QTest::mouseClick(&Feld(5, 2), Qt::MiddleButton);
  fenster.ZelleSetzen(5, ZeileHoehe, u"1"_s);
  Feld(5, 3).setFocus();
  EXPECT_EQ(geklickt.count(), 0);
  EXPECT_EQ(zustand.werte.Spalte, 0);
}

TEST_F(Datenblatt, LinksAufDenKopf) {
  const QSignalSpy kopf(&fenster, &frmDatenblatt::kopfGeklickt);
  QTest::mousePress(&Kopf(7), Qt::LeftButton);
  EXPECT_EQ(kopf.count(), 1);
  EXPECT_EQ(zustand.werte.Spalte, 7);
  Kopf(2).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&Kopf(2), Qt::Key_Space);
  EXPECT_EQ(kopf.count(), 2);
  EXPECT_EQ(zustand.werte.Spalte, 2);
  EXPECT_EQ(zustand.werte.LetzteSpalte, 7);
}

TEST_F(Datenblatt, SpalteLoeschenAbgelehnt) {
  Belegen(7);
  const Datenblattspalte satz = Satz(7);
  zustand.UserGeaendert = false;
  const QSignalSpy belegung(&fenster, &frmDatenblatt::belegungGeaendert);
  const QSignalSpy optionen(&fenster, &frmDatenblatt::optionenAnzeigen);
  buehne.boxen.Erwarten(u"Vesk"_s, u"Spalte G wirklich löschen?"_s, Antwort::Nein);
  QTest::mousePress(&Kopf(7), Qt::RightButton);
  EXPECT_EQ(buehne.boxen.gezeigt.back().symbol, Symbol::Frage);
  EXPECT_EQ(buehne.boxen.gezeigt.back().vorgabe, Antwort::Nein);
  EXPECT_EQ(zustand.werte.Antwort, 7);
  EXPECT_TRUE(zustand.UserGeaendert);
  EXPECT_EQ(Text(7, 12), "7.12");
  EXPECT_EQ(Satz(7), satz);
  EXPECT_EQ(zustand.werte.Spalte, 7);
  EXPECT_EQ(belegung.count(), 0);
  EXPECT_EQ(optionen.count(), 1);
}

TEST_F(Datenblatt, SpalteLoeschen) {
  Belegen(2);
  Belegen(3);
  Satz(3).Modulationsfaktor = "0.50";
  fenster.SpaltenschriftSetzen(3, farben::Tuerkis);
  fenster.FaktorZeigen(3, 0.5F);
  fenster.ZellfarbeSetzen(3, ZeileLeistung, farben::Rot);
  const QSignalSpy belegung(&fenster, &frmDatenblatt::belegungGeaendert);
  const QSignalSpy optionen(&fenster, &frmDatenblatt::optionenAnzeigen);
  buehne.boxen.Erwarten(u"Vesk"_s, u"Spalte C wirklich löschen?"_s, Antwort::Ja);
  QTest::keyClick(&Kopf(3), Qt::Key_Delete);
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    EXPECT_EQ(Text(3, zeile), "");
    EXPECT_EQ(Schrift(Feld(3, zeile)), QColor(Qt::black));
  }
  EXPECT_EQ(Grund(Feld(3, ZeileLeistung)), farben::Weiss);
  ErwarteGetoent(3);
  EXPECT_EQ(Satz(3), LeereSpalte());
  EXPECT_EQ(Finden<QLabel>(fenster, u"lblModIdx"_s).text(), u"Faktor für Sendeart: 1.00"_s);
  EXPECT_EQ(Text(2, 12), "2.12");
  EXPECT_EQ(Satz(2).Antenne, "Antenne 2");
  EXPECT_TRUE(zustand.UserGeaendert);
  EXPECT_GE(belegung.count(), 1);
  EXPECT_EQ(optionen.count(), 1);
}

TEST_F(Datenblatt, BlattLoeschen) {
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) Belegen(spalte);
  Satz(0).Stecker = "0.5";
  zustand.UserGeaendert = false;
  const QSignalSpy freigabe(&fenster, &frmDatenblatt::kopierenFreigeben);
  const QSignalSpy optionen(&fenster, &frmDatenblatt::optionenAnzeigen);
  buehne.boxen.Erwarten(u"Vesk"_s, u"Datenblatt wirklich löschen?"_s, Antwort::Nein);
  Waehlen(u"mnuDelete"_s);
  EXPECT_FALSE(zustand.UserGeaendert);
  EXPECT_EQ(Text(1, 1), "1.1");
  EXPECT_EQ(Satz(0).Stecker, "0.5");
  EXPECT_EQ(optionen.count(), 0);
  EXPECT_EQ(freigabe.count(), 1);

  buehne.boxen.Erwarten(u"Vesk"_s, u"Datenblatt wirklich löschen?"_s, Antwort::Ja);
  Waehlen(u"mnuDelete"_s);
  EXPECT_TRUE(zustand.UserGeaendert);
  EXPECT_EQ(zustand.Zellen, Datenblattzellen{});
  for (int spalte = 0; spalte <= AnzahlSpalten; ++spalte) EXPECT_EQ(Satz(spalte), LeereSpalte());
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    ErwarteToenung(spalte, farben::Weiss, farben::Weiss, farben::Weiss);
  }
  EXPECT_EQ(optionen.count(), 1);
  EXPECT_EQ(freigabe.count(), 2);

  // The tints come back with a column cleared singly and with the records of a file.
  buehne.boxen.Erwarten(u"Vesk"_s, u"Spalte A"_s, Antwort::Ja);
  QTest::mousePress(&Kopf(1), Qt::RightButton);
  fenster.Fuellen(0b10);
  ErwarteGetoent(1);
  ErwarteGetoent(2);
  ErwarteToenung(3, farben::Weiss, farben::Weiss, farben::Weiss);
}

TEST_F(Datenblatt, LeeresBlattLoeschenGiltAlsAenderung) {
  buehne.boxen.Erwarten(u"Vesk"_s, u"Datenblatt wirklich löschen?"_s, Antwort::Ja);
  EXPECT_TRUE(fenster.DatenblattLoeschen());
  EXPECT_TRUE(zustand.UserGeaendert);
}

TEST_F(Datenblatt, ToenungNachDemFaktorDesSatzes) {
  struct Fall {
    const char* eins;
    const char* zwei;
    QColor zehn;
  };
  const Fall faelle[] = {{"1", "1", farben::HellGruen},        {"0.40", "1.00", farben::Gruen},
                         {"0.50", "0.17", farben::Gruen},      {"", "1.00", farben::Gruen},
                         {"1.00", "1.00x", farben::HellGruen}, {"9e99", "1", farben::HellGruen}};
  ErwarteGetoent(4);
  for (const Fall& fall : faelle) {
    Satz(4).Modulationsfaktor = fall.eins;
    Satz(4).Zyklusfaktor = fall.zwei;
    fenster.Fuellen(0b1000);
    ErwarteToenung(4, fall.zehn, farben::HellRot, farben::HellGelb);
  }
}

TEST_F(Datenblatt, SpalteKopieren) {
  Belegen(1);
  Belegen(2);
  fenster.SpaltenschriftSetzen(1, farben::Tuerkis);
  fenster.FaktorZeigen(1, 0.4F);
  const QSignalSpy belegung(&fenster, &frmDatenblatt::belegungGeaendert);
  QTest::mouseClick(&Feld(1, 1), Qt::LeftButton);
  Waehlen(u"mnuSpalteKopieren"_s);
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    EXPECT_EQ(Text(3, zeile), Text(1, zeile));
    EXPECT_EQ(Schrift(Feld(3, zeile)), farben::Tuerkis);
  }
  EXPECT_EQ(Satz(3), Satz(1));
  EXPECT_EQ(Satz(3).Antenne, "Antenne 1");
  ErwarteToenung(3, farben::Gruen, farben::HellRot, farben::HellGelb);
  EXPECT_TRUE(zustand.UserGeaendert);
  EXPECT_GE(belegung.count(), 1);
  EXPECT_EQ(zustand.werte.Spalte, 1);
}

TEST_F(Datenblatt, SpalteKopierenOhneZiel) {
  Belegen(1);
  Belegen(2);
  fenster.ZelleSetzen(2, ZeileLeistung, {});  // free, though not empty
  zustand.UserGeaendert = false;
  Waehlen(u"mnuSpalteKopieren"_s);  // none is current
  QTest::mouseClick(&Feld(2, 1), Qt::LeftButton);
  Waehlen(u"mnuSpalteKopieren"_s);  // the free one is the current one
  EXPECT_EQ(Text(2, 1), "2.1");
  EXPECT_EQ(Text(3, 1), "");
  EXPECT_FALSE(zustand.UserGeaendert);

  for (int spalte = 2; spalte <= AnzahlSpalten; ++spalte) Belegen(spalte);
  zustand.UserGeaendert = false;
  Waehlen(u"mnuSpalteKopieren"_s);  // full
  EXPECT_FALSE(zustand.UserGeaendert);
  EXPECT_EQ(Text(7, 1), "7.1");
}

TEST_F(Datenblatt, RoteMarkenGehenMitDerNaechstenMarkierung) {
  fenster.SpaltenschriftSetzen(2, farben::Tuerkis);
  fenster.ZellfarbeSetzen(2, ZeileFrequenz, farben::Rot);
  EXPECT_EQ(Grund(Feld(2, ZeileFrequenz)), farben::Rot);
  EXPECT_EQ(Schrift(Feld(2, ZeileFrequenz)), farben::Tuerkis);
  fenster.FaktorZeigen(2, 0.4F);
  QTest::mouseClick(&Feld(4, 1), Qt::LeftButton);
  EXPECT_EQ(Grund(Feld(2, ZeileFrequenz)), farben::Weiss);
  EXPECT_EQ(Schrift(Feld(2, ZeileFrequenz)), farben::Tuerkis);
  ErwarteToenung(2, farben::Gruen, farben::HellRot, farben::HellGelb);
}

TEST_F(Datenblatt, SchliessenVerbirgt) {
  EXPECT_FALSE(fenster.close());
  EXPECT_FALSE(fenster.isVisible());
  fenster.show();
  const QSignalSpy beenden(&fenster, &frmDatenblatt::beenden);
  Waehlen(u"mnuBeenden"_s);
  EXPECT_FALSE(fenster.isVisible());
  EXPECT_EQ(beenden.count(), 1);
}

TEST_F(Datenblatt, RechnenMitMausUndEingabetaste) {
  const QSignalSpy rechnen(&fenster, &frmDatenblatt::rechnen);
  auto& knopf = Finden<QPushButton>(fenster, u"cmdRechnen"_s);
  QTest::mouseClick(&knopf, Qt::LeftButton);
  knopf.setFocus();
  QTest::keyClick(&knopf, Qt::Key_Return);
  EXPECT_EQ(rechnen.count(), 2);
}

TEST_F(Datenblatt, Menue) {
  QSet<QChar> zugriff;
  const auto aktionen = Finden<QMenu>(fenster, u"mnuDatei"_s).actions();
  for (const QAction* aktion : aktionen) {
    if (aktion->isSeparator()) continue;
    const qsizetype stelle = aktion->text().indexOf(u'&');
    const QChar taste = aktion->text().at(stelle + 1).toLower();
    EXPECT_FALSE(zugriff.contains(taste)) << aktion->text().toStdString();
    zugriff.insert(taste);
    EXPECT_EQ(aktion->isEnabled(), !aktion->text().contains(u"druck"_s, Qt::CaseInsensitive));
  }
  EXPECT_EQ(zugriff.size(), 11);
}

TEST_F(Datenblatt, TooltipsJeZeile) {
  TooltipsSetzen(fenster, DatenblattTooltips, true);
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    EXPECT_EQ(Kopf(spalte).toolTip(), u"Linke Taste berechnet die Spalte, rechte Taste löscht die Spalte"_s);
    EXPECT_EQ(Feld(spalte, 3).toolTip(), u"Amateurfunkband in MHz eingeben"_s);
    EXPECT_EQ(Feld(spalte, 9).toolTip(),
              u"Winkeldämpfung in dB eingeben! (Doppelklick im Optionsmenü Winkel)"_s);
    for (const int zeile : {4, 6, 10, 11, 12}) EXPECT_EQ(Feld(spalte, zeile).toolTip(), u""_s) << zeile;
  }
  TooltipsSetzen(fenster, DatenblattTooltips, false);
  for (const QWidget* kind : fenster.findChildren<QWidget*>()) EXPECT_EQ(kind->toolTip(), u""_s);
  EXPECT_EQ(Feld(7, 12).property(HilfekontextEigenschaft).toInt(), 2002);
}

}  // namespace

}  // namespace vesk
