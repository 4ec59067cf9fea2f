#include <gtest/gtest.h>

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include "Farben.h"
#include "Finden.h"
#include "Skript.h"
#include "Zustand.h"
#include "frmUser.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

struct BenutzerfensterTest : testing::Test {
  BenutzerfensterTest() {
    fenster.show();
    QApplication::setActiveWindow(&fenster);
  }

  QLineEdit& Feld(const char* name) { return Finden<QLineEdit>(fenster, QString::fromLatin1(name)); }
  QAction& Menue(const char* name) { return Finden<QAction>(fenster, QString::fromLatin1(name)); }
  void Tippen(const char* name, const QString& text) {
    Feld(name).setFocus();
    QTest::keyClicks(&Feld(name), text);
  }
  void AllesAusfuellen() {
    for (const char* name : {"txtName", "txtStrasse", "txtOrt", "txtRufzeichen", "txtStandort"}) {
      Tippen(name, u"DL1ABC"_s);
    }
  }

  skript::Buehne buehne;
  Zustand zustand;
  frmUser fenster{zustand, buehne.plattform};
};

TEST_F(BenutzerfensterTest, KlasseFolgtDemRufzeichen) {
  const std::pair<const char16_t*, const char16_t*> faelle[] = {
      {u"dl1abc", u"1"}, {u"DB1A", u"2"}, {u"dc", u"2"}, {u"DD1", u"2"},
      {u"DO7X", u"3"},   {u"D", u"1"},    {u"XB", u"2"}};
  for (const auto& [getippt, klasse] : faelle) {
    Feld("txtRufzeichen").setFocus();
    Feld("txtRufzeichen").selectAll();
    QTest::keyClicks(&Feld("txtRufzeichen"), QString::fromUtf16(getippt));
    EXPECT_EQ(Feld("txtRufzeichen").text(), QString::fromUtf16(getippt).toUpper());
    Feld("txtName").setFocus();
    EXPECT_EQ(Feld("txtKlasse").text(), QString::fromUtf16(klasse));
  }
  EXPECT_EQ(zustand.benutzer.Rufzeichen, "XB");
  EXPECT_EQ(zustand.benutzer.Klasse, "2");
}

TEST_F(BenutzerfensterTest, KlasseBleibtOhneNeuesRufzeichen) {
  Tippen("txtRufzeichen", u"DO1A"_s);
  Feld("txtKlasse").setFocus();
  Feld("txtKlasse").selectAll();
  QTest::keyClicks(&Feld("txtKlasse"), u"a"_s);
  EXPECT_EQ(Feld("txtKlasse").text(), u"A"_s);
  Feld("txtRufzeichen").setFocus();
  Feld("txtName").setFocus();
  EXPECT_EQ(zustand.benutzer.Klasse, "A");
}

TEST_F(BenutzerfensterTest, FuellenAendertNichts) {
  zustand.benutzer = {"Jörg", "Weg 1", "Köln", "1", "2", "do1abc", "c", "hier"};
  fenster.Fuellen();
  EXPECT_EQ(Feld("txtName").text(), u"Jörg"_s);
  EXPECT_EQ(Feld("txtRufzeichen").text(), u"do1abc"_s);
  EXPECT_EQ(Feld("txtKlasse").text(), u"C"_s);
  EXPECT_EQ(zustand.benutzer.Klasse, "C");
  Feld("txtRufzeichen").setFocus();
  Feld("txtName").setFocus();
  EXPECT_EQ(Feld("txtKlasse").text(), u"C"_s) << "only a changed callsign decides the class";
  EXPECT_FALSE(zustand.UserGeaendert);
  Tippen("txtName", u"X"_s);
  EXPECT_TRUE(zustand.UserGeaendert);
}

TEST_F(BenutzerfensterTest, PruefungVorDemSpeichernUndVorDemDrucken) {
  for (const char* name : {"txtName", "txtKlasse", "txtStandort"}) {
    EXPECT_EQ(Hintergrundfarbe(Feld(name)), farben::HellViolett) << name;
  }
  AllesAusfuellen();
  Feld("txtStandort").clear();
  buehne.boxen.Erwarten(u"Felder bitte korrekt ausfüllen"_s,
                        u"Die violetten Felder müssen alle ausgefüllt werden!"_s);
  EXPECT_EQ(fenster.UserCheck(0), 1);
  EXPECT_EQ(Hintergrundfarbe(Feld("txtStandort")), farben::Rot);
  EXPECT_EQ(Hintergrundfarbe(Feld("txtName")), farben::Weiss);
  EXPECT_EQ(fenster.UserCheck(51), 6) << "printing goes without a location";

  Feld("txtOrt").clear();
  const QString frage = u"\nDie persönlichen Daten sind nicht vollständig.\nDatenblatt trotzdem drucken?"_s;
  buehne.boxen.Erwarten(u"Felder bitte korrekt ausfüllen"_s, frage, Antwort::Nein);
  EXPECT_EQ(fenster.UserCheck(51), 7);
  buehne.boxen.Erwarten(u"Felder bitte korrekt ausfüllen"_s, frage, Antwort::Ja);
  EXPECT_EQ(fenster.UserCheck(51), 6);
  EXPECT_EQ(zustand.werte.Antwort, 6);
}

TEST_F(BenutzerfensterTest, SpeichernPrueftUndSpeichertAuchUnvollstaendig) {
  const QSignalSpy speichern(&fenster, &frmUser::UserSpeichern);
  Tippen("txtRufzeichen", u"DO1A"_s);
  buehne.boxen.Erwarten(u"Felder bitte korrekt ausfüllen"_s, u"violetten"_s);
  Menue("mnuUserSpeichern").trigger();
  EXPECT_EQ(speichern.count(), 1);
  EXPECT_EQ(zustand.benutzer.Klasse, "3") << "the callsign in focus counts as left";
}

TEST_F(BenutzerfensterTest, LoeschenFragt) {
  AllesAusfuellen();
  const QSignalSpy verborgen(&fenster, &frmUser::verborgen);
  const Benutzer vorher = zustand.benutzer;
  buehne.boxen.Erwarten(u"Vesk"_s, u"User-Daten wirklich löschen?"_s, Antwort::Nein);
  Menue("mnuUserDelete").trigger();
  EXPECT_TRUE(zustand.benutzer == vorher);
  EXPECT_TRUE(fenster.isHidden());
  QApplication::processEvents();

  fenster.show();
  zustand.UserGeaendert = false;
  buehne.boxen.Erwarten(u"Vesk"_s, u"User-Daten wirklich löschen?"_s, Antwort::Ja);
  Menue("mnuUserDelete").trigger();
  EXPECT_TRUE(zustand.benutzer == Benutzer());
  EXPECT_TRUE(zustand.UserGeaendert);
  EXPECT_TRUE(fenster.isHidden());
  QApplication::processEvents();
  EXPECT_EQ(verborgen.count(), 2);
}

TEST_F(BenutzerfensterTest, SchliessenVerbirgtUndBehaelt) {
  const QSignalSpy verborgen(&fenster, &frmUser::verborgen);
  Tippen("txtRufzeichen", u"DO1A"_s);
  fenster.close();
  EXPECT_TRUE(fenster.isHidden());
  QApplication::processEvents();
  EXPECT_EQ(verborgen.count(), 1);
  EXPECT_EQ(zustand.benutzer.Rufzeichen, "DO1A");
  EXPECT_EQ(zustand.benutzer.Klasse, "3");
  fenster.show();
  QTest::keyClick(&fenster, Qt::Key_Escape);
  EXPECT_TRUE(fenster.isHidden());
  QApplication::processEvents();
  EXPECT_EQ(verborgen.count(), 2);
}

TEST_F(BenutzerfensterTest, RueckgaengigUndNeuWerdenGemeldet) {
  const QSignalSpy noChange(&fenster, &frmUser::NoChange);
  const QSignalSpy neu(&fenster, &frmUser::UserNeu);
  Menue("mnuUserNeu").trigger();
  Menue("mnuNoChange").trigger();
  EXPECT_EQ(neu.count(), 1);
  EXPECT_EQ(noChange.count(), 1);
  EXPECT_TRUE(fenster.isHidden());

  AllesAusfuellen();
  fenster.NeuBeginnen();
  EXPECT_TRUE(zustand.benutzer == Benutzer()) << "an emptied callsign decides no class";
  EXPECT_TRUE(fenster.isVisible());
  EXPECT_EQ(fenster.focusWidget(), &Feld("txtName"));
}

TEST_F(BenutzerfensterTest, Tasten) {
  const char* folge[] = {"txtName",    "txtStrasse",    "txtOrt",    "txtTelefon",
                         "txtTelefax", "txtRufzeichen", "txtKlasse", "txtStandort"};
  Feld("txtName").setFocus();
  for (const char* name : folge) {
    EXPECT_EQ(QApplication::focusWidget(), &Feld(name)) << name;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &Feld(name)) << "Enter moves nothing";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  }
  EXPECT_EQ(QApplication::focusWidget(), &Feld("txtStandort"));
  for (int i = 0; i < 9; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  EXPECT_EQ(QApplication::focusWidget(), &Feld("txtName"));
  EXPECT_TRUE(fenster.isVisible());
}

TEST_F(BenutzerfensterTest, WasNichtInDieDateiPasstWirdNichtAngenommen) {
  for (const QChar zeichen : u"J\"öΩ€"_s) {
    QKeyEvent taste(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, zeichen);
    QApplication::sendEvent(&Feld("txtName"), &taste);
  }
  EXPECT_EQ(zustand.benutzer.Name, "Jö€");
  EXPECT_EQ(buehne.ton.anzahl, 2);
}

TEST_F(BenutzerfensterTest, Tooltips) {
  fenster.TooltipsZeigen(true);
  EXPECT_EQ(Feld("txtKlasse").toolTip(), u"Eingabe: Genehmigungsklasse 1, 2 oder 3"_s);
  fenster.TooltipsZeigen(false);
  EXPECT_EQ(Feld("txtKlasse").toolTip(), QString());
}

}  // namespace
}  // namespace vesk
