#include <gtest/gtest.h>
#include <sys/stat.h>

#include "../persistence/Muster.h"
#include "../persistence/Ordner.h"
#include "Dateiablauf.h"
#include "Skript.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

namespace fs = std::filesystem;

/// Stands for the windows: check marks of its own, and a note of what it was told.
struct Attrappe : Dateifenster {
  explicit Attrappe(Zustand& einer) : zustand(einer) {}

  void SchalterLesen(Einstellungen& e) const override {
    e.ToolTips = marken.ToolTips;
    e.AFu = marken.AFu;
    e.Fenster = marken.Fenster;
    e.Meldungen = marken.Meldungen;
  }
  void Abschliessen() override {}
  void StandZeigen(const Lesebericht& einer) override {
    bericht = einer;
    marken = zustand.einstellungen;
  }
  void NachLadenAuffrischen() override { ++aufgefrischt; }
  void TitelSetzen(const QString& einer, const QString& haupt, const QString&) override {
    titel = einer + u" / "_s + haupt;
  }
  void BenutzerfensterVerbergen() override { ++verborgen; }
  void BenutzerNeuBeginnen() override {
    zustand.benutzer = {};
    ++neu;
  }
  bool DatenblattLoeschen() override {
    if (!loeschen) return false;
    zustand.Zellen = {};
    zustand.UserGeaendert = true;
    return true;
  }

  Zustand& zustand;
  Einstellungen marken;
  Lesebericht bericht;
  QString titel;
  int aufgefrischt = 0;
  int verborgen = 0;
  int neu = 0;
  bool loeschen = true;
};

/// One running program in a directory.
struct Lauf {
  explicit Lauf(const fs::path& verzeichnis) {
    zustand.ProgrammVerzeichnis = verzeichnis.string();
    zustand.Arbeitsverzeichnis = "/anderswo";
  }
  void Aendern(const std::string& name) {
    zustand.benutzer.Name = name;
    zustand.UserGeaendert = true;
  }

  skript::Buehne buehne;
  Zustand zustand;
  Attrappe fenster{zustand};
  Dateiablauf ablauf{zustand, buehne.plattform, fenster};
};

std::string MusterMit(const std::string& name) {
  Zustand stand = Musterstand();
  stand.benutzer.Name = name;
  return UserDateiSchreiben(stand);
}

std::string MusterVersion(const std::string& version) {
  std::string bytes = UserDateiSchreiben(Musterstand());
  return bytes.replace(bytes.find("251"), 3, version);
}

std::string NameIn(const fs::path& pfad) {
  Zustand stand;
  UserDateiLesen(Inhalt(pfad), stand);
  return stand.benutzer.Name;
}

ino_t Inode(const fs::path& pfad) {
  struct stat angaben {};
  stat(pfad.c_str(), &angaben);
  return angaben.st_ino;
}

TEST(Dateiablauf, OhneDateiEntstehtSieAmEnde) {
  const Ordner ordner;
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  EXPECT_EQ(ordner.Anzahl(), 0);
  EXPECT_EQ(lauf.fenster.titel, u"Persönliche Daten  / EMVU Sicherheitsabstand:  user.dat"_s);
  lauf.fenster.marken.Fenster = true;
  EXPECT_TRUE(lauf.ablauf.Beenden());
  Zustand soll;
  UserDateiVorgaben(soll);
  soll.einstellungen.Fenster = true;
  EXPECT_EQ(Inhalt(ordner / "user.dat"), UserDateiSchreiben(soll));
}

TEST(Dateiablauf, EineAktuelleDateiWirdNichtAngefasst) {
  const Ordner ordner;
  Anlegen(ordner / "user.dat", UserDateiSchreiben(Musterstand()));
  const ino_t vorher = Inode(ordner / "user.dat");
  Lauf lauf(ordner.pfad);
  lauf.zustand.werte.Zyklusfaktor = 0.25F;
  lauf.ablauf.InitLaden();
  EXPECT_TRUE(GleicherInhalt(lauf.zustand, Musterstand()));
  EXPECT_EQ(lauf.fenster.bericht.Spalten.count(), 7U);
  EXPECT_EQ(lauf.zustand.werte.Zyklusfaktor, 0.25F);
  EXPECT_EQ(lauf.zustand.Arbeitsverzeichnis, ordner.pfad.string());
  EXPECT_FALSE(lauf.zustand.UserGeaendert);
  EXPECT_TRUE(lauf.ablauf.Beenden());
  EXPECT_EQ(Inode(ordner / "user.dat"), vorher);
  EXPECT_EQ(ordner.Anzahl(), 1);
}

TEST(Dateiablauf, EineLeereDateiAendertNichts) {
  const Ordner ordner;
  Anlegen(ordner / "user.dat", "");
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  EXPECT_EQ(lauf.fenster.titel, QString()) << "titles stay";
  EXPECT_TRUE(lauf.ablauf.Beenden());
  EXPECT_EQ(Inhalt(ordner / "user.dat"), "");
}

TEST(Dateiablauf, AlteVersionen) {
  const Ordner ordner;
  for (const char* version : {"240", "210"}) {
    const bool zuAlt = version == std::string("210");
    const std::string alt = MusterVersion(version);
    Anlegen(ordner / "user.dat", alt);
    Lauf lauf(ordner.pfad);
    const QString meldung =
        u"Daten aus Programmversion %1.\ruser.dat wird umbenannt in user.bak\r%2user.dat wird "
        "neu erstellt."_s.arg(QLatin1String(version), zuAlt ? u"Eine leere Datei: "_s : QString());
    lauf.buehne.boxen.Erwarten(u"Hinweis"_s, meldung);
    lauf.ablauf.InitLaden();
    EXPECT_EQ(Inhalt(ordner / "User.bak"), alt);
    EXPECT_FALSE(lauf.zustand.UserGeaendert);
    EXPECT_EQ(lauf.fenster.verborgen, 1);
    EXPECT_EQ(ordner.Anzahl(), 2) << "no further copy";

    Zustand soll;
    if (!zuAlt) soll = Musterstand();
    soll.benutzer = Musterstand().benutzer;
    soll.einstellungen = Musterstand().einstellungen;
    if (!zuAlt) {
      for (std::size_t i = 1; i <= 7; ++i) {
        soll.Datenblattspalten[i].Grenzwerttyp = 0;
        soll.Datenblattspalten[i].Reserve = {};
      }
    }
    FaktorenNormalisieren(soll);
    EXPECT_EQ(Inhalt(ordner / "user.dat"), UserDateiSchreiben(soll));
  }
}

TEST(Dateiablauf, UmwandelnOhneSicherungskopieVerliertNichts) {
  const Ordner ordner;
  const std::string alt = MusterVersion("240");
  Anlegen(ordner / "user.dat", alt);
  fs::create_directory(ordner / "User.bak");
  Lauf lauf(ordner.pfad);
  lauf.buehne.boxen.Erwarten(u"Hinweis"_s, u"240"_s);
  lauf.ablauf.InitLaden();
  EXPECT_EQ(Inhalt(ordner / "user-alt.dat"), alt);
  EXPECT_NE(Inhalt(ordner / "user.dat"), alt);
}

TEST(Dateiablauf, EineBeschaedigteDateiBleibtErhalten) {
  const Ordner ordner;
  const std::string bytes = "[User],Eva\r\n\"fremder Text\",#WAS#";
  Anlegen(ordner / "user.dat", bytes);
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  EXPECT_EQ(lauf.zustand.benutzer.Name, "Eva");
  EXPECT_EQ(Inhalt(ordner / "user.dat"), bytes);
  lauf.Aendern("Eva M.");
  EXPECT_TRUE(lauf.ablauf.UserSpeichern());
  lauf.Aendern("Eva Müller");
  EXPECT_TRUE(lauf.ablauf.UserSpeichern());
  EXPECT_EQ(Inhalt(ordner / "user-alt.dat"), bytes);
  EXPECT_EQ(NameIn(ordner / "user.dat"), "Eva Müller");
  EXPECT_EQ(ordner.Anzahl(), 2);
}

TEST(Dateiablauf, WasNichtGelesenWerdenKannWirdGesagt) {
  const Ordner ordner;
  fs::create_directory(ordner / "user.dat");
  Lauf lauf(ordner.pfad);
  lauf.buehne.boxen.Erwarten(
      u"Vesk - Fehlermeldung"_s,
      u"Die Datei user.dat konnte nicht gelesen werden.\nUnter diesem Namen gibt es ein "
      "Verzeichnis."_s);
  lauf.ablauf.InitLaden();
  lauf.Aendern("Eva");
  lauf.buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s,
                             u"Die Datei user.dat konnte nicht gespeichert werden."_s);
  EXPECT_FALSE(lauf.ablauf.UserSpeichern());
  EXPECT_TRUE(lauf.zustand.UserGeaendert);
}

TEST(Dateiablauf, WennDasSpeichernScheitertWirdVorDemEndeGefragt) {
  const Ordner ordner;
  const fs::path unter = ordner / "unter";
  fs::create_directory(unter);
  Lauf lauf(unter);
  lauf.ablauf.InitLaden();
  lauf.Aendern("Eva");
  fs::remove(unter);
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    lauf.buehne.boxen.Erwarten(
        u"Vesk - Fehlermeldung"_s,
        u"Die Datei user.dat konnte nicht gespeichert werden.\nDas Verzeichnis gibt es nicht."_s);
    lauf.buehne.boxen.Erwarten(u"Vesk"_s, u"Programm trotzdem beenden?"_s, antwort);
    EXPECT_EQ(lauf.ablauf.Beenden(), antwort == Antwort::Ja);
    EXPECT_TRUE(lauf.zustand.UserGeaendert);
    EXPECT_EQ(lauf.zustand.benutzer.Name, "Eva");
  }
  lauf.ablauf.BenutzerfensterVerborgen();
  EXPECT_TRUE(lauf.ablauf.Beenden()) << "decided once";
}

TEST(Dateiablauf, SpeichernUnter) {
  const Ordner ordner;
  const Ordner anderswo;
  Anlegen(ordner / "user.dat", MusterMit("alt"));
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  lauf.buehne.dialoge.Antworten(std::nullopt);
  lauf.ablauf.UserSpeichernUnter();
  EXPECT_EQ(lauf.zustand.UserDatei, "user.dat");
  EXPECT_FALSE(lauf.zustand.UserGeaendert);
  const Dateiwahl& wahl = lauf.buehne.dialoge.gezeigt.back();
  EXPECT_EQ(wahl.titel, u"Datenblatt speichern"_s);
  EXPECT_EQ(wahl.endung, u"dat"_s);

  lauf.Aendern("neu");
  lauf.buehne.dialoge.Antworten(QString::fromStdString((anderswo / "dl1.dat").string()));
  lauf.ablauf.UserSpeichernUnter();
  EXPECT_EQ(NameIn(anderswo / "dl1.dat"), "neu");
  EXPECT_EQ(NameIn(ordner / "user.dat"), "alt");
  EXPECT_EQ(lauf.zustand.UserVerzeichnis, anderswo.pfad.string());
  EXPECT_TRUE(lauf.fenster.titel.endsWith(u"dl1.dat"_s));
  lauf.Aendern("neuer");
  EXPECT_TRUE(lauf.ablauf.UserSpeichern());
  EXPECT_EQ(NameIn(anderswo / "dl1.dat"), "neuer") << "goes on where it was saved";

  lauf.buehne.dialoge.Antworten(QString::fromStdString((ordner / "fehlt/x.dat").string()));
  lauf.buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s,
                             u"Die Datei x.dat konnte nicht gespeichert werden."_s);
  lauf.ablauf.UserSpeichernUnter();
  EXPECT_EQ(lauf.zustand.UserDatei, "dl1.dat") << "a failure leaves the file that was worked on";
  EXPECT_TRUE(lauf.zustand.UserGeaendert);
  EXPECT_TRUE(lauf.ablauf.Beenden());
}

TEST(Dateiablauf, LadenSichertErstUndSchreibtDasGewaehlteNeu) {
  const Ordner ordner;
  Anlegen(ordner / "user.dat", MusterMit("eins"));
  std::string zwei = MusterMit("zwei");
  zwei.erase(std::remove(zwei.begin(), zwei.end(), '\r'), zwei.end());
  Anlegen(ordner / "zwei.dat", zwei);
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  lauf.Aendern("eins a");
  lauf.buehne.dialoge.Antworten(std::nullopt);
  lauf.ablauf.Laden();
  EXPECT_EQ(NameIn(ordner / "user.dat"), "eins") << "a cancelled choice neither saves nor reads";
  EXPECT_EQ(lauf.zustand.benutzer.Name, "eins a");
  EXPECT_EQ(lauf.fenster.aufgefrischt, 0);

  lauf.buehne.dialoge.Antworten(QString::fromStdString((ordner / "zwei.dat").string()));
  lauf.ablauf.Laden();
  EXPECT_EQ(NameIn(ordner / "user.dat"), "eins a");
  EXPECT_EQ(lauf.zustand.benutzer.Name, "zwei");
  EXPECT_EQ(Inhalt(ordner / "zwei.dat"), MusterMit("zwei"));
  EXPECT_EQ(lauf.fenster.aufgefrischt, 1);
  EXPECT_FALSE(lauf.zustand.UserGeaendert);
  EXPECT_EQ(ordner.Anzahl(), 2);

  lauf.Aendern("verworfen");
  lauf.ablauf.AenderungenVerwerfen();
  EXPECT_EQ(lauf.zustand.benutzer.Name, "zwei");
}

TEST(Dateiablauf, EineFremdeDateiErhaeltNichtDieDatenDesVorigen) {
  const Ordner ordner;
  Anlegen(ordner / "user.dat", MusterMit("eins"));
  const std::string fremd("\x7F\x45LF\0\x01,\"[User", 13);
  Anlegen(ordner / "fremd.dat", fremd);
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  lauf.buehne.dialoge.Antworten(QString::fromStdString((ordner / "fremd.dat").string()));
  lauf.ablauf.Laden();
  EXPECT_EQ(Inhalt(ordner / "fremd.dat"), fremd);
  EXPECT_EQ(lauf.zustand.benutzer.Name, "eins");
  lauf.Aendern("doch");
  EXPECT_TRUE(lauf.ablauf.UserSpeichern());
  EXPECT_EQ(Inhalt(ordner / "fremd-alt.dat"), fremd);
}

TEST(Dateiablauf, LadenFragtWennDasAlteNichtZuRettenIst) {
  const Ordner ordner;
  const Ordner anderswo;
  Anlegen(ordner / "user.dat", MusterMit("eins"));
  Anlegen(ordner / "zwei.dat", MusterMit("zwei"));
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  lauf.Aendern("eins a");
  lauf.zustand.Arbeitsverzeichnis = (ordner / "fehlt").string();
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    lauf.buehne.dialoge.Antworten(QString::fromStdString((ordner / "zwei.dat").string()));
    lauf.buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"konnte nicht gespeichert werden."_s);
    lauf.buehne.boxen.Erwarten(u"Vesk"_s, u"Trotzdem eine andere Datei laden?"_s, antwort);
    lauf.ablauf.Laden();
    EXPECT_EQ(lauf.zustand.benutzer.Name, antwort == Antwort::Ja ? "zwei" : "eins a");
  }
}

TEST(Dateiablauf, EineDateiVonAnderswo) {
  const Ordner ordner;
  const Ordner stick;
  Anlegen(stick / "dl1.dat", MusterMit("Stick"));
  Lauf lauf(ordner.pfad);
  const auto laden = [&](Antwort antwort) {
    lauf.buehne.dialoge.Antworten(QString::fromStdString((stick / "dl1.dat").string()));
    lauf.buehne.boxen.Erwarten(
        u"User Datei laden"_s,
        u"Die Datei liegt nicht im Programmverzeichnis. Soll sie dorthin kopiert werden?"_s, antwort);
    lauf.ablauf.Laden();
  };
  lauf.ablauf.InitLaden();
  lauf.Aendern("voriger");
  laden(Antwort::Nein);
  EXPECT_EQ(lauf.zustand.benutzer.Name, "voriger") << "not found in the program directory";
  EXPECT_EQ(lauf.zustand.UserDatei, "dl1.dat");
  EXPECT_EQ(lauf.zustand.Datenblattspalten[3].Modulationsfaktor, "1");
  EXPECT_TRUE(lauf.ablauf.UserSpeichern());
  EXPECT_EQ(NameIn(ordner / "dl1.dat"), "voriger");

  laden(Antwort::Ja);
  EXPECT_EQ(lauf.zustand.benutzer.Name, "Stick");
  EXPECT_EQ(NameIn(ordner / "dl1-alt.dat"), "voriger") << "the other file of that name is kept";
  EXPECT_EQ(lauf.zustand.UserVerzeichnis, stick.pfad.string());
  const int vorher = ordner.Anzahl();
  laden(Antwort::Ja);
  EXPECT_EQ(ordner.Anzahl(), vorher) << "the same file needs no copy";
  lauf.Aendern("hier");
  EXPECT_TRUE(lauf.ablauf.UserSpeichern());
  EXPECT_EQ(NameIn(ordner / "dl1.dat"), "hier");
  EXPECT_EQ(NameIn(stick / "dl1.dat"), "Stick");

  fs::create_directory(ordner / "dl2.dat");
  fs::rename(stick / "dl1.dat", stick / "dl2.dat");
  lauf.buehne.dialoge.Antworten(QString::fromStdString((stick / "dl2.dat").string()));
  lauf.buehne.boxen.Erwarten(u"User Datei laden"_s, u"kopiert werden?"_s, Antwort::Ja);
  lauf.buehne.boxen.Erwarten(u"Vesk - Fehlermeldung"_s, u"Die Datei dl2.dat konnte nicht kopiert werden."_s);
  lauf.ablauf.Laden();
  EXPECT_EQ(lauf.zustand.UserDatei, "dl1.dat");
}

TEST(Dateiablauf, NeuesRufzeichenSchreibtNieInDieAlteDatei) {
  const Ordner ordner;
  Anlegen(ordner / "user.dat", MusterMit("eins"));
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  lauf.Aendern("eins a");
  lauf.buehne.boxen.Erwarten(u"Neues Datenblatt anlegen"_s,
                             u"Diese Funktion ist sinnvoll, um Datenblätter\nnacheinander"_s, Antwort::Ja);
  lauf.ablauf.UserNeu();
  EXPECT_EQ(NameIn(ordner / "user.dat"), "eins a");
  EXPECT_EQ(lauf.fenster.neu, 1);
  EXPECT_TRUE(lauf.ablauf.Beenden()) << "nothing was entered yet";
}

TEST(Dateiablauf, NeuesRufzeichenFragtNachSeinerDatei) {
  const Ordner ordner;
  Anlegen(ordner / "user.dat", MusterMit("eins"));
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  lauf.buehne.boxen.Erwarten(u"Neues Datenblatt anlegen"_s, u""_s, Antwort::Ja);
  lauf.ablauf.UserNeu();

  lauf.Aendern("zwei");
  lauf.ablauf.BenutzerfensterVerborgen();
  EXPECT_TRUE(lauf.zustand.UserGeaendert) << "without a callsign nothing is written anywhere";
  lauf.buehne.boxen.Erwarten(u"Hinweis"_s, u"Bitte zuerst das neue Rufzeichen"_s);
  lauf.ablauf.Speichern();
  lauf.zustand.benutzer.Rufzeichen = "DL2XY";
  lauf.buehne.dialoge.Antworten(std::nullopt);
  lauf.ablauf.BenutzerfensterVerborgen();
  EXPECT_EQ(lauf.buehne.dialoge.gezeigt.back().vorschlag, u"DL2XY.dat"_s);
  lauf.buehne.dialoge.Antworten(std::nullopt);
  lauf.buehne.boxen.Erwarten(u"Vesk"_s, u"Programm trotzdem beenden?"_s, Antwort::Nein);
  EXPECT_FALSE(lauf.ablauf.Beenden());
  lauf.buehne.dialoge.Antworten(QString::fromStdString((ordner / "DL2XY.dat").string()));
  EXPECT_TRUE(lauf.ablauf.UserSpeichern());
  lauf.Aendern("zwei a");
  EXPECT_TRUE(lauf.ablauf.Beenden());
  EXPECT_EQ(NameIn(ordner / "user.dat"), "eins");
  EXPECT_EQ(NameIn(ordner / "DL2XY.dat"), "zwei a");
}

TEST(Dateiablauf, NeuesRufzeichenLaesstSichAbbrechen) {
  const Ordner ordner;
  Anlegen(ordner / "user.dat", MusterMit("eins"));
  Lauf lauf(ordner.pfad);
  lauf.ablauf.InitLaden();
  lauf.buehne.boxen.Erwarten(u"Neues Datenblatt anlegen"_s, u""_s, Antwort::Nein);
  lauf.ablauf.UserNeu();
  lauf.fenster.loeschen = false;
  lauf.buehne.boxen.Erwarten(u"Neues Datenblatt anlegen"_s, u""_s, Antwort::Ja);
  lauf.ablauf.UserNeu();
  EXPECT_EQ(lauf.fenster.neu, 0);
  EXPECT_TRUE(GleicherInhalt(lauf.zustand, [] {
    auto s = Musterstand();
    s.benutzer.Name = "eins";
    return s;
  }()));

  lauf.fenster.loeschen = true;
  lauf.buehne.boxen.Erwarten(u"Neues Datenblatt anlegen"_s, u""_s, Antwort::Ja);
  lauf.ablauf.UserNeu();
  lauf.ablauf.AenderungenVerwerfen();
  EXPECT_EQ(lauf.zustand.benutzer.Name, "eins");
  lauf.Aendern("eins a");
  EXPECT_TRUE(lauf.ablauf.UserSpeichern()) << "back to the old callsign";
  EXPECT_EQ(NameIn(ordner / "user.dat"), "eins a");
}

TEST(Dateiablauf, ZweiProgrammeAnEinerDatei) {
  const Ordner ordner;
  Anlegen(ordner / "user.dat", MusterMit("anfang"));
  Lauf erster(ordner.pfad);
  Lauf zweiter(ordner.pfad);
  erster.ablauf.InitLaden();
  zweiter.buehne.boxen.Erwarten(u"Hinweis"_s,
                                u"Die Datei user.dat ist bereits in einem anderen Vesk geöffnet."_s);
  zweiter.ablauf.InitLaden();
  zweiter.ablauf.AenderungenVerwerfen();  // told once

  erster.Aendern("erster");
  EXPECT_TRUE(erster.ablauf.UserSpeichern());
  zweiter.Aendern("zweiter");
  const QString frage = u"Die Datei user.dat wurde inzwischen von einem anderen Programm geändert."_s;
  zweiter.buehne.boxen.Erwarten(u"Vesk"_s, frage, Antwort::Nein);
  EXPECT_FALSE(zweiter.ablauf.UserSpeichern());
  EXPECT_EQ(NameIn(ordner / "user.dat"), "erster");
  EXPECT_TRUE(zweiter.zustand.UserGeaendert);
  zweiter.buehne.boxen.Erwarten(u"Vesk"_s, frage, Antwort::Ja);
  EXPECT_TRUE(zweiter.ablauf.UserSpeichern());
  EXPECT_EQ(NameIn(ordner / "user.dat"), "zweiter");
  EXPECT_EQ(NameIn(ordner / "user-alt.dat"), "erster");

  zweiter.buehne.dialoge.Antworten(QString::fromStdString((ordner / "eigene.dat").string()));
  zweiter.ablauf.UserSpeichernUnter();
  erster.buehne.dialoge.Antworten(QString::fromStdString((ordner / "eigene.dat").string()));
  erster.buehne.boxen.Erwarten(u"Vesk"_s, u"Die Datei eigene.dat ist in einem anderen Vesk geöffnet."_s,
                               Antwort::Nein);
  erster.ablauf.UserSpeichernUnter();
  EXPECT_EQ(NameIn(ordner / "eigene.dat"), "zweiter");
}

}  // namespace
}  // namespace vesk
