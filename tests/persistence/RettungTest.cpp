#include <gtest/gtest.h>

#include "persistence/Winkelablauf.h"
#include "station/Winkel.h"
#include "tests/persistence/Programmlauf.h"

namespace vesk {
namespace {

using namespace std::chrono_literals;

struct RettungTest : DateiablaufTest {
  std::vector<fs::path> Kopien() const {
    std::vector<fs::path> kopien;
    for (const auto& eintrag : fs::directory_iterator(ordner.pfad)) {
      if (eintrag.path().extension() == ".rettung") kopien.push_back(eintrag.path());
    }
    return kopien;
  }
  /// A program that dies with `name` typed and not saved.
  void Abstuerzen(const fs::path& datei, const std::string& name) const {
    Lauf lauf(ordner.pfad);
    if (datei != user) lauf.SpeichernUnter(datei);
    lauf.Aendern(name);
    lauf.ablauf.RettungSichern();
  }
  /// The next one; `fragen`: what it offers, and the answer.
  using Fragen = std::vector<std::pair<std::string, Antwort>>;
  static void Anbieten(Lauf& lauf, const Fragen& fragen) {
    for (const auto& [teil, antwort] : fragen) lauf.fragen.Erwarten("Vesk", teil, antwort);
    lauf.ablauf.RettungAnbieten();
    lauf.fragen.AllesGezeigt();
  }
};

TEST_F(RettungTest, KommtInDieDateiDieSieMeint) {
  std::error_code keineLinks;
  fs::create_directory_symlink(anderswo.pfad, ordner / "weg", keineLinks);
  Abstuerzen((keineLinks ? anderswo.pfad : ordner / "weg") / "user.dat", "dort");
  fs::remove(ordner / "weg");
  Abstuerzen(user, "hier");
  ASSERT_EQ(Kopien().size(), 2U) << "two files of one name";
  const fs::path dortige = anderswo / "user.dat";
  for (const fs::path& kopie : Kopien()) {
    const bool dort = Inhalt(kopie).find("dort") != std::string::npos;
    fs::last_write_time(kopie, fs::last_write_time(dortige) + (dort ? 2min : 1min));
  }
  {
    Lauf lauf(ordner.pfad);
    Anbieten(lauf, {{"ungesicherte Änderungen an user.dat", Antwort::Ja}});
    EXPECT_EQ(lauf.station.benutzer.Name, "dort") << "the newest first";
    EXPECT_EQ(Kopien().size(), 2U) << "a second crash loses nothing either";
    lauf.ablauf.UserSpeichern();
    EXPECT_EQ(Kopien().size(), 1U) << "safe now";
  }
  EXPECT_EQ(NameIn(dortige), "dort");
  EXPECT_EQ(NameIn(anderswo / "user-alt.dat"), "eins") << "what was replaced";
  EXPECT_EQ(NameIn(user), "eins");
  Lauf lauf(ordner.pfad);
  Anbieten(lauf, {{"user.dat", Antwort::Ja}});
  EXPECT_EQ(lauf.station.UserVerzeichnis, PfadZumZeigen(ordner.pfad));
  lauf.ablauf.UserSpeichern();
  EXPECT_EQ(NameIn(user) + NameIn(ordner / "user-alt.dat"), "hiereins");
}

TEST_F(RettungTest, EineNeuereDateiGilt) {
  for (const std::string gespeichert : {"getippt", "später"}) {
    Abstuerzen(anderswo / "dl1.dat", "getippt");
    Anlegen(anderswo / "dl1.dat", MusterMit(gespeichert));
    fs::last_write_time(Kopien().at(0), fs::last_write_time(anderswo / "dl1.dat") - 1min);
    Lauf lauf(ordner.pfad);
    const std::string daneben = PfadZumZeigen(anderswo / "dl1-alt.dat");
    if (gespeichert == "später") lauf.fragen.Erwarten("Hinweis", "Es bleibt daneben erhalten:\n" + daneben);
    Anbieten(lauf, {});
    EXPECT_TRUE(Kopien().empty());
    EXPECT_EQ(fs::exists(anderswo / "dl1-alt.dat"), gespeichert == "später");
  }
  EXPECT_EQ(NameIn(anderswo / "dl1-alt.dat"), "getippt");
}

/// Whoever can put a copy into the directory has chosen what it names.
TEST_F(RettungTest, WasKeineUserDateiIstBleibtWieEsIst) {
  for (const std::string name : {"x.sh", "x.dat"}) {
    const fs::path fremd = anderswo / name;
    {
      Lauf lauf(ordner.pfad);
      lauf.SpeichernUnter(fremd);
      lauf.station.winkel.datei = PfadAlsUtf8(fremd);
      WinkelGetippt(lauf.station, lauf.kataloge, Winkelfeld::Antenne, "Quad");
      lauf.Aendern("getippt");
      lauf.ablauf.RettungSichern();
    }
    Anlegen(fremd, "fremd");
    fs::last_write_time(Kopien().at(0), fs::last_write_time(fremd) - 1min);
    Lauf lauf(ordner.pfad);
    Anbieten(lauf, {{name == "x.sh" ? "für ein neues Rufzeichen" : "an x.dat", Antwort::Ja}});
    EXPECT_EQ(lauf.station.benutzer.Name + lauf.station.winkel.datei, "getippt");
    EXPECT_EQ(Inhalt(fremd), "fremd");
    EXPECT_EQ(anderswo.Anzahl(), 1) << "nothing beside it";
    fs::remove(fremd);
    fs::remove(Kopien().at(0));
  }
}

TEST_F(RettungTest, ZweiProgrammeAnEinerDatei) {
  Lauf dritter(ordner.pfad);
  {
    Lauf erster(ordner.pfad, "bereits in einem anderen Vesk geöffnet");
    erster.Aendern("erster");
    erster.ablauf.RettungSichern();
    Lauf zweiter(ordner.pfad, "bereits in einem anderen Vesk geöffnet");
    Anbieten(zweiter, {});
    zweiter.Aendern("zweiter");
    zweiter.ablauf.RettungSichern();
    EXPECT_EQ(Kopien().size(), 2U);
    Anbieten(dritter, {});
  }
  Anbieten(dritter, {{"user.dat", Antwort::Nein}, {"user.dat", Antwort::Ja}});
  Rettung::Verwerfen(Kopien().at(0));
  EXPECT_EQ(Kopien().size(), 1U) << "of a program that runs";
}

/// A kill may come at any moment: the copy taken up stays until the one that takes its place stands.
TEST_F(RettungTest, DieAlteKopieGehtErstNachDerNeuen) {
  Abstuerzen(user, "getippt");
  Lauf lauf(ordner.pfad);
  Anbieten(lauf, {{"user.dat", Antwort::Ja}});
  const fs::path alte = Kopien().at(0);
  lauf.station.UserDatei = "fort/user.dat";
  lauf.Aendern("weiter");
  lauf.station.ProgrammVerzeichnis = PfadAlsUtf8(ordner / "fehlt");
  lauf.ablauf.RettungSichern();
  EXPECT_EQ(Kopien(), std::vector{alte});
  EXPECT_TRUE(lauf.station.ohneRettung);
  lauf.station.ProgrammVerzeichnis = PfadAlsUtf8(ordner.pfad);
  lauf.ablauf.RettungSichern();
  EXPECT_TRUE(Kopien().size() == 1 && Kopien()[0] != alte);
  EXPECT_FALSE(lauf.station.ohneRettung);
  fs::remove(Kopien()[0]);
  lauf.Laden(std::nullopt);
  EXPECT_EQ(Kopien().size(), 1U) << "somebody has tidied up, and a dialog may stand for long";
}

TEST_F(RettungTest, DatenDieNurEinenNamenBekommenStehenInKeinerDatei) {
  Anlegen(anderswo / "dl2.dat", MusterMit("dort"));
  {
    Lauf lauf(ordner.pfad);
    lauf.Neu();
    lauf.Aendern("getippt");
    lauf.fragen.Erwarten("Vesk", "Trotzdem eine andere Datei laden?", Antwort::Ja);
    lauf.fragen.Erwarten("User Datei laden", "Soll sie dorthin kopiert werden?", Antwort::Nein);
    lauf.Laden(anderswo / "dl2.dat");
    lauf.ablauf.RettungSichern();
  }
  Lauf lauf(ordner.pfad);
  Anbieten(lauf, {{"ungesicherte Änderungen an dl2.dat", Antwort::Ja}});
  EXPECT_EQ(lauf.station.benutzer.Name, "getippt");
}

TEST_F(RettungTest, NurWasFehltWirdZurueckgeholt) {
  {
    Lauf lauf(ordner.pfad);
    lauf.station.lageplan.nord = 5;
    lauf.station.UserGeaendert = true;
    lauf.ablauf.RettungSichern();
  }
  Anlegen(user, MusterMit("von Hand"));
  Lauf lauf(ordner.pfad);
  Anbieten(lauf, {{"ungesicherte Änderungen am Lageplan zu user.dat", Antwort::Ja}});
  EXPECT_TRUE(lauf.station.benutzer.Name == "von Hand" && lauf.station.lageplan.nord == 5);
}

TEST_F(RettungTest, EineWinkeltabelleGehtNichtVerloren) {
  const fs::path datei = ordner / "h-b.ang";
  {
    Lauf lauf(ordner.pfad);
    Station& s = lauf.station;
    s.winkel.datei = PfadAlsUtf8(datei);
    WinkelGetippt(s, lauf.kataloge, Winkelfeld::Antenne, "Quad");
    WinkeldaempfungGetippt(s, lauf.kataloge, 3, "7.5");
    lauf.ablauf.RettungSichern();
    Lauf naechster(anderswo.pfad);
    Anlegen(user, MusterMit("von Hand"));
    fs::copy_file(Kopien().at(0), anderswo / ".nach-absturz.rettung");
    Anbieten(naechster, {{"Es gibt eine nicht gespeicherte Winkeltabelle.\nSoll sie", Antwort::Nein}});
    Anlegen(user, MusterMit("eins"));
    lauf.Speichern("gesichert");
    EXPECT_EQ(Kopien().size(), 1U) << "the table is still in no file";
    lauf.fragen.Erwarten("Vesk", "Die Winkeltabelle wurde geändert und nicht gespeichert.", Antwort::Nein);
    EXPECT_FALSE(lauf.ablauf.Beenden());
  }
  {
    fs::copy_file(Kopien().at(0), anderswo / "kopie");
    Lauf lauf(ordner.pfad);
    Winkeldaten quad{"Quad", "", "", {}};
    quad.daempfung[3] = "7.5";
    Anlegen(datei, WinkelSchreiben(quad));
    Anbieten(lauf, {});
    EXPECT_TRUE(Kopien().empty()) << "the table stands in its file";
    fs::copy_file(anderswo / "kopie", ordner / ".user.dat.rettung");
  }
  Anlegen(datei, "[andere]");
  Lauf lauf(ordner.pfad);
  Anbieten(lauf, {{"Es gibt eine nicht gespeicherte Winkeltabelle.\nSoll sie", Antwort::Ja}});
  Station& s = lauf.station;
  EXPECT_EQ(s.winkel.antenne + s.Datenblattspalten[0].Winkel[3] + s.benutzer.Name, "Quad7.5gesichert");
  EXPECT_FALSE(s.UserGeaendert);
  lauf.fragen.Erwarten("Winkel-Datei speichern", "h-b.ang gibt es bereits.", Antwort::Ja);
  Winkelablauf(s, lauf.fragen).Speichern();
  EXPECT_EQ(Inhalt(ordner / "h-b-alt.ang"), "[andere]");
  lauf.ablauf.RettungSichern();
  EXPECT_TRUE(Kopien().empty());
  WinkelGetippt(s, lauf.kataloge, Winkelfeld::Antenne, "Beam");
  s.Datenblattspalten[2].Winkel = s.Datenblattspalten[0].Winkel;
  s.Zellen[Zellenindex(2, ZeileAntenne)] = "Beam";
  WinkelGetippt(s, lauf.kataloge, Winkelfeld::Gewinn, "11.1");
  lauf.fragen.Erwarten("Vesk", "Die Winkeltabelle wurde geändert und nicht gespeichert.", Antwort::Nein);
  EXPECT_FALSE(lauf.ablauf.Beenden());
  s.Datenblattspalten[2].Gewinn = "11.1";
  EXPECT_TRUE(lauf.ablauf.Beenden()) << "a table that stands in a column is saved with it";
}

}  // namespace
}  // namespace vesk
