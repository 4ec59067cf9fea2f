#include <gtest/gtest.h>

#include <map>

#include "station/Operator.h"
#include "tests/persistence/Programmlauf.h"

namespace vesk {
namespace {

using namespace std::chrono_literals;

TEST_F(DateiablaufTest, NurWasSichAendertWirdGeschrieben) {
  fs::last_write_time(user, fs::last_write_time(user) - 1min);
  const auto vorher = fs::last_write_time(user);
  Lauf lauf(ordner.pfad);
  EXPECT_EQ(UserDateiSchreiben(lauf.station), MusterMit("eins"));
  EXPECT_EQ(lauf.station.klasseEntschieden, "DL1ABC") << "the stored class stands";
  EXPECT_TRUE(lauf.ablauf.Beenden());
  EXPECT_EQ(fs::last_write_time(user), vorher);

  fs::remove(user);
  Lauf neu(ordner.pfad);
  EXPECT_TRUE(neu.station.titelGesetzt && ordner.Anzahl() == 0);
  EXPECT_TRUE(neu.ablauf.Beenden());
  Station soll;
  UserDateiVorgaben(soll);
  EXPECT_EQ(Inhalt(user), UserDateiSchreiben(soll));
}

TEST_F(DateiablaufTest, AlteVersionenWerdenUmgewandelt) {
  std::string frueher;
  for (const std::string version : {"240", "210"}) {
    std::string alt = MusterMit("eins");
    Anlegen(user, alt.replace(alt.find("251"), 3, version));
    const Lauf lauf(ordner.pfad, ("Daten aus Programmversion " + version).c_str());
    EXPECT_EQ(Inhalt(ordner / "User.bak"), alt);
    EXPECT_EQ(Inhalt(user), UserDateiSchreiben(lauf.station));
    EXPECT_EQ(Inhalt(ordner / "User-alt.bak"), frueher) << "of the conversion before";
    EXPECT_EQ(ordner.Anzahl(), frueher.empty() ? 2 : 3) << "no further copy";
    frueher = alt;
  }
}

TEST_F(DateiablaufTest, WasNichtVerstandenWurdeBleibtErhalten) {
  for (const std::string& bytes : {std::string("[User],Eva\r\n\"fremd\",#WAS#"),
                                   MusterMit("Eva").substr(0, 500), MusterMit("Eva") + "fremd"}) {
    Anlegen(user, bytes);
    Lauf lauf(ordner.pfad);
    EXPECT_EQ(lauf.station.benutzer.Name, "Eva");
    EXPECT_EQ(Inhalt(user), bytes);
    lauf.Speichern("Eva M.");
    lauf.Speichern("Eva Müller");
    EXPECT_EQ(Inhalt(ordner / "user-alt.dat"), bytes);
    EXPECT_EQ(NameIn(user), "Eva Müller");
    EXPECT_EQ(ordner.Anzahl(), 2);
    fs::remove(ordner / "user-alt.dat");
  }
}

TEST_F(DateiablaufTest, SpeichernUnter) {
  Lauf lauf(ordner.pfad);
  lauf.SpeichernUnter(std::nullopt);
  EXPECT_FALSE(lauf.station.UserGeaendert);
  EXPECT_EQ(lauf.fragen.Wahl().vorschlag, "user.dat");
  lauf.SpeichernUnter(anderswo / "dl1.dat");
  lauf.Speichern("neuer");
  EXPECT_EQ(NameIn(anderswo / "dl1.dat"), "neuer") << "goes on where it was saved";
  EXPECT_EQ(NameIn(user), "eins");
  EXPECT_EQ(TitelHauptfenster(lauf.station), "EMVU Sicherheitsabstand:  dl1.dat");
  lauf.Aendern("verworfen");
  lauf.ablauf.AenderungenVerwerfen();
  EXPECT_EQ(lauf.station.benutzer.Name, "neuer");

  lauf.fragen.Fehler("Die Datei x.dat konnte nicht gespeichert werden.\nDas Verzeichnis gibt es nicht.");
  lauf.SpeichernUnter(ordner / "fehlt/x.dat");
  EXPECT_EQ(lauf.station.UserDatei, "dl1.dat") << "a failure leaves the file that was worked on";
  EXPECT_EQ(lauf.station.UserVerzeichnis, PfadZumZeigen(anderswo.pfad));
  EXPECT_TRUE(lauf.station.UserGeaendert);
}

TEST_F(DateiablaufTest, LadenSichertErstUndSchreibtDasGewaehlteNeu) {
  Anlegen(ordner / "zwei.dat", MusterMit("zwei") + "\r\n");
  Lauf lauf(ordner.pfad);
  Station& s = lauf.station;
  lauf.Aendern("eins a");
  lauf.Laden(std::nullopt);
  EXPECT_EQ(NameIn(user), "eins") << "a cancelled choice neither saves nor reads";
  s.werte.Spalte = 3;
  s.rot.set(2);
  s.benutzermarken[0] = Pruefmarke::Fehlt;
  lauf.Laden(ordner / "zwei.dat");
  EXPECT_EQ(NameIn(user), "eins a");
  EXPECT_EQ(s.benutzer.Name, "zwei");
  EXPECT_EQ(Inhalt(ordner / "zwei.dat"), MusterMit("zwei"));
  EXPECT_TRUE(s.werte.Spalte == 0 && s.rot.none() && s.benutzermarken[0] == Pruefmarke::Keine)
      << "marks of the former file";
  EXPECT_FALSE(s.UserGeaendert);

  Anlegen(user, MusterMit("eins b"));
  lauf.Aendern("zwei a");
  s.Arbeitsverzeichnis = PfadAlsUtf8(ordner / "fehlt");
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    lauf.fragen.Fehler("konnte nicht gespeichert werden.");
    lauf.fragen.Erwarten("Vesk", "Trotzdem eine andere Datei laden?", antwort);
    lauf.Laden(user);
    EXPECT_EQ(s.benutzer.Name, antwort == Antwort::Ja ? "eins b" : "zwei a");
  }
}

TEST_F(DateiablaufTest, UngeeigneteDateienWerdenAbgelehnt) {
  Anlegen(ordner / "leer.dat", "");
  Anlegen(ordner / "fremd.dat", std::string("\x7F\x45LF\0\x01,\"[User", 13));
  fs::create_directory(ordner / "ordner.dat");
  Lauf lauf(ordner.pfad);
  for (const auto& [name, meldung] : std::map<std::string, const char*>{
           {"leer.dat", "Die Datei leer.dat ist leer.\nEs wird weiter mit user.dat gearbeitet."},
           {"fremd.dat", "Die Datei fremd.dat enthält keine Daten von Vesk."},
           {"ordner.dat",
            "Die Datei ordner.dat konnte nicht gelesen werden.\nUnter diesem Namen gibt es ein"},
           {"fehlt.dat", "Die Datei fehlt.dat gibt es nicht."}}) {
    lauf.Aendern("vor " + name);
    lauf.fragen.Fehler(meldung);
    lauf.Laden(ordner / name);
    EXPECT_EQ(NameIn(user), "vor " + name) << "saved first";
    EXPECT_EQ(lauf.station.benutzer.Name + lauf.station.UserDatei, "vor " + name + "user.dat");
  }
  EXPECT_EQ(ordner.Anzahl(), 4) << "all of them as they were";
}

TEST_F(DateiablaufTest, EineUnvollstaendigeDateiMischtSichNicht) {
  const std::string halb = MusterMit("zwei").substr(0, 500);
  Anlegen(ordner / "zwei.dat", halb);
  Lauf lauf(ordner.pfad);
  lauf.fragen.Erwarten("Hinweis", "Die Datei zwei.dat ist unvollständig");
  lauf.Laden(ordner / "zwei.dat");
  EXPECT_EQ(lauf.station.benutzer.Name + lauf.station.Zellen.front(), "zwei12.5");
  EXPECT_EQ(lauf.station.Zellen.back() + lauf.station.Datenblattspalten[7].Antenne, "")
      << "of the one before";
  EXPECT_EQ(Inhalt(ordner / "zwei-alt.dat"), halb);
  EXPECT_EQ(Inhalt(ordner / "zwei.dat"), UserDateiSchreiben(lauf.station));
}

TEST_F(DateiablaufTest, EineDateiVonAnderswo) {
  Anlegen(anderswo / "dl1.dat", MusterMit("Stick"));
  Lauf lauf(ordner.pfad);
  lauf.fragen.Erwarten("User Datei laden", "Soll sie dorthin kopiert werden?", Antwort::Nein);
  lauf.Laden(anderswo / "dl1.dat");
  EXPECT_EQ(lauf.station.benutzer.Name, "eins") << "not found in the program directory";
  lauf.Speichern("hier");
  EXPECT_EQ(NameIn(ordner / "dl1.dat"), "hier");

  lauf.fragen.Erwarten("User Datei laden", "Soll sie dorthin kopiert werden?", Antwort::Ja);
  lauf.Laden(anderswo / "dl1.dat");
  EXPECT_EQ(lauf.station.benutzer.Name, "Stick");
  EXPECT_EQ(lauf.station.UserVerzeichnis, PfadZumZeigen(ordner.pfad)) << "where the file really is";
  EXPECT_EQ(NameIn(ordner / "dl1-alt.dat"), "hier") << "the other file of that name is kept";
}

TEST_F(DateiablaufTest, AenderungenVerwerfen) {
  Lauf lauf(ordner.pfad);
  lauf.Aendern("verworfen");
  lauf.ablauf.AenderungenVerwerfen();
  EXPECT_EQ(lauf.station.benutzer.Name, "eins");
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    lauf.station.Zellen[0] = "getippt";
    lauf.fragen.Erwarten("Vesk", "Auch das Datenblatt wurde geändert.", antwort);
    lauf.ablauf.AenderungenVerwerfen();
    EXPECT_EQ(lauf.station.Zellen[0], antwort == Antwort::Ja ? "12.5" : "getippt");
  }
  lauf.Aendern("bleibt");
  fs::remove(user);
  lauf.fragen.Fehler("Die Datei user.dat gibt es nicht.\nAlle Änderungen bleiben erhalten.");
  lauf.ablauf.AenderungenVerwerfen();
  EXPECT_EQ(lauf.station.benutzer.Name, "bleibt");
  EXPECT_TRUE(lauf.station.UserGeaendert);
}

TEST_F(DateiablaufTest, NeuesRufzeichenSchreibtNieInDieAlteDatei) {
  Lauf lauf(ordner.pfad);
  lauf.Aendern("eins a");
  lauf.Neu();
  EXPECT_EQ(NameIn(user), "eins a") << "saved first";
  lauf.ablauf.AenderungenVerwerfen();
  EXPECT_EQ(lauf.station.benutzer.Name, "eins a") << "nothing was entered, nothing to ask";
  lauf.Neu();
  lauf.Aendern("zwei");
  lauf.station.fenster.benutzer = false;
  lauf.ablauf.BenutzerVerborgen();
  EXPECT_TRUE(lauf.station.UserGeaendert) << "without a callsign nothing is written anywhere";
  lauf.fragen.Erwarten("Hinweis", "Bitte zuerst das neue Rufzeichen");
  lauf.ablauf.UserSpeichern();
  for (const std::string name : {"con.1", "COM9", "COM0"}) {
    lauf.station.benutzer.Rufzeichen = name;
    lauf.SpeichernUnter(std::nullopt);
    EXPECT_EQ(lauf.fragen.Wahl().vorschlag, (name == "COM0" ? "" : "_") + name + ".dat") << "a device";
  }
  lauf.station.benutzer.Rufzeichen = "DK2XYZ/P";
  lauf.fragen.Datei(std::nullopt);
  lauf.fragen.Erwarten("Vesk", "Programm trotzdem beenden?", Antwort::Nein);
  EXPECT_FALSE(lauf.ablauf.Beenden());
  lauf.SpeichernUnter(ordner / "DK2XYZ-P.dat");
  EXPECT_EQ(lauf.fragen.Wahl().vorschlag, "DK2XYZ-P.dat");
  lauf.Aendern("zwei a");
  EXPECT_TRUE(lauf.ablauf.Beenden());
  EXPECT_EQ(NameIn(user), "eins a");
  EXPECT_EQ(NameIn(ordner / "DK2XYZ-P.dat"), "zwei a");
}

TEST_F(DateiablaufTest, ZweiProgrammeAnEinerDatei) {
  Lauf erster(ordner.pfad);
  Lauf zweiter(ordner.pfad, "Die Datei user.dat ist bereits in einem anderen Vesk geöffnet.");
  zweiter.ablauf.AenderungenVerwerfen();  // told once
  erster.Speichern("erster");
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    zweiter.fragen.Erwarten("Vesk", "user.dat wurde inzwischen von einem anderen Programm geändert.",
                            antwort);
    zweiter.Speichern("zweiter");
    EXPECT_EQ(NameIn(user), antwort == Antwort::Ja ? "zweiter" : "erster");
  }
  EXPECT_EQ(NameIn(ordner / "user-alt.dat"), "erster");
  zweiter.SpeichernUnter(ordner / "eigene.dat");
  erster.fragen.Erwarten("Vesk", "Die Datei eigene.dat ist in einem anderen Vesk geöffnet.", Antwort::Nein);
  erster.SpeichernUnter(ordner / "eigene.dat");
  EXPECT_EQ(NameIn(ordner / "eigene.dat"), "zweiter");
}

}  // namespace
}  // namespace vesk
