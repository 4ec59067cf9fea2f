#include "tests/app/Lauf.h"

namespace vesk {
namespace {

const QStringList Stationen = {u"1.85 750 2.15 0.5 0"_s, u"3.6 100 2.15 1 0"_s,  u"7 750 -3 2 0.5"_s,
                               u"14.2 100 0 0 0"_s,      u"21 750 8.15 1.5 3"_s, u"28.5 750 10 1.8 11.25"_s,
                               u"50.1 25 9 1 0"_s};

struct Rundreise : testing::Test, Verzeichnis {
  QStringList Rettungen() const {
    return QDir(path()).entryList({u".*rettung"_s}, QDir::Files | QDir::Hidden);
  }
};

TEST_F(Rundreise, SiebenSpaltenUeberlebenDasProgramm) {
  std::array<std::string, AnzahlZellen> vorher;
  {
    Lauf lauf(path());
    for (const QString& eine : Stationen) {
      lauf.Rechnen(eine.split(u' '));
      lauf.Klick(u"cmdCopy"_s);
    }
    EXPECT_EQ(lauf.Ding<QPushButton>(u"cmdCopy"_s).text(), u"Datenblatt voll");
    EXPECT_EQ(lauf.Zelle(1, 10), u"2.87");
    EXPECT_EQ(lauf.Zelle(1, 5), u"alle ");
    vorher = lauf.station.Zellen;
    EXPECT_TRUE(lauf.Beenden());
  }
  Lauf lauf(path());
  EXPECT_FALSE(lauf.station.einstellungen.Meldungen);
  EXPECT_EQ(lauf.station.Zellen, vorher);
  lauf.Menue(u"mnuDatenblatt"_s);
  for (int spalte = 1; spalte <= 7; ++spalte) {
    lauf.Klick(lauf.Zellenname(spalte, 4), u"frmDatenblatt"_s);
    EXPECT_EQ(lauf.Text(u"txtPWR"_s), Stationen[spalte - 1].split(u' ')[1]);
    EXPECT_EQ(lauf.Text(u"txtAusgabe"_s), lauf.Zelle(spalte, 10));
    EXPECT_FALSE(lauf.Veraltet(lauf.Zellenname(spalte, 10), u"frmDatenblatt"_s));
  }
  EXPECT_EQ(lauf.station.Zellen, vorher);
}

/// A program that dies is one that is never asked to end.
TEST_F(Rundreise, NachEinemAbsturzKommtDasGetippteZurueck) {
  {
    Lauf lauf(path());
    lauf.Menue(u"mnuDatenblatt"_s);
    lauf.Ding<>(u"txtA_0"_s, u"frmDatenblatt"_s).setFocus();
    lauf.Tippen(u"12 m"_s);
    lauf.programm.RettungSichern();
    // Another program that starts meanwhile must not take it for a remainder.
    EXPECT_EQ(Lauf(path()).station.Zellen[0], "");
  }
  {
    skript::Buehne buehne;
    buehne.speicher.werte = Lauf::OhneTips;
    buehne.boxen.Erwarten("Vesk", "nicht ordentlich beendet", Antwort::Ja);
    Station station;
    Programm programm(station, buehne.plattform, {path(), {}});
    programm.Starten();
    EXPECT_EQ(station.Zellen[0], "12 m");
    EXPECT_TRUE(station.UserGeaendert);
    EXPECT_EQ(Rettungen().size(), 1);  // not saved yet, so a second crash loses nothing either
    programm.Befehlen(Befehl::DateiSpeichern);
    EXPECT_EQ(Rettungen().size(), 0);
  }
  EXPECT_EQ(Lauf(path()).station.Zellen[0], "12 m");
}

TEST_F(Rundreise, WoNichtsZuSchreibenIst) {
  skript::Buehne buehne;
  buehne.speicher.werte = Lauf::OhneTips;
  buehne.boxen.Erwarten("Vesk - Fehlermeldung", "läßt sich nichts schreiben.\nDie Berechtigung fehlt.");
  Station station;
  const QString daten = QStringLiteral(VESK_DATEN);
  Programm programm(station, buehne.plattform, {filePath(u"fehlt"_s), daten, "Die Berechtigung fehlt."});
  programm.Starten();
  programm.RettungSichern();
  EXPECT_TRUE(Lauf::Text(u"lblGespeichert"_s).endsWith(u": noch keine Datei"_s)) << "nobody will miss it";
  programm.Tun([](Station& s, const Kataloge&) {
    s.UserGeaendert = s.neuesRufzeichen = true;
    return Meldungen{};
  });
  programm.RettungSichern();
  EXPECT_TRUE(Lauf::Text(u"lblGespeichert"_s).endsWith(u"keine Kopie für den Fall eines Absturzes"_s));
  programm.Befehlen(Befehl::OptionenZeigen);
  EXPECT_GT(Lauf::Ding<QListWidget>(u"LstAntennen"_s, u"frmOptions"_s).count(), 2) << "the shipped ones";
}

TEST_F(Rundreise, KeinVerlustWennDasSpeichernScheitert) {
  Lauf lauf(path());
  lauf.Rechnen(Stationen[3].split(u' '));
  lauf.Klick(u"cmdCopy"_s);
  ASSERT_TRUE(QDir().mkpath(filePath(u"user.dat/belegt"_s)));
  lauf.buehne.boxen.Erwarten("Vesk - Fehlermeldung", "user.dat");
  lauf.buehne.boxen.Erwarten("Vesk", "Programm trotzdem beenden?", Antwort::Nein);
  EXPECT_FALSE(lauf.Beenden());
  EXPECT_TRUE(lauf.station.UserGeaendert);
  EXPECT_EQ(lauf.Zelle(1, 10), u"1.99");
  ASSERT_TRUE(QDir(filePath(u"user.dat"_s)).removeRecursively());
  EXPECT_TRUE(lauf.Beenden());
  EXPECT_TRUE(QFile::exists(filePath(u"user.dat"_s)));
}

}  // namespace
}  // namespace vesk
