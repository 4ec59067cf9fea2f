#include <gtest/gtest.h>

#include "persistence/Lageplandatei.h"
#include "tests/persistence/Programmlauf.h"

namespace vesk {
namespace {

using namespace std::chrono_literals;

std::string PlanMit(const std::string& name, const std::string& karte = "") {
  Lageplan plan;
  plan.bezugsname = name;
  if (!karte.empty()) plan.hintergrund.emplace().datei = karte;
  return LageplanBytes(plan);
}

void Zeichnen(Lauf& lauf, const std::string& name) {
  lauf.station.lageplan.bezugsname = name;
  lauf.station.UserGeaendert = true;
}

struct LageplanablaufTest : DateiablaufTest {
  /// Names of the plan in the station and in its file; "-": there is no file.
  static std::string Stand(const Lauf& lauf, const fs::path& pfad) {
    return lauf.station.lageplan.bezugsname + "|" + Stand(pfad);
  }
  static std::string Stand(const fs::path& pfad) {
    return fs::exists(pfad) ? LageplanLesen(Inhalt(pfad)).plan.bezugsname : "-";
  }
  fs::path plan = ordner / "user.lageplan";
  fs::path alt = ordner / "user-alt.lageplan";
};

TEST_F(LageplanablaufTest, EineDateiNurFuerEinenPlan) {
  Lauf lauf(ordner.pfad);
  lauf.Speichern("ohne Plan");
  EXPECT_FALSE(fs::exists(plan));
  Zeichnen(lauf, "a");
  lauf.ablauf.UserSpeichern();
  EXPECT_EQ(Stand(Lauf(ordner.pfad, "bereits in einem anderen Vesk"), plan), "a|a");
  fs::last_write_time(plan, fs::last_write_time(plan) - 1min);
  const auto vorher = fs::last_write_time(plan);
  lauf.Speichern("nur die Daten");
  EXPECT_EQ(fs::last_write_time(plan), vorher);
  fs::remove(plan);
  lauf.Speichern("der Plan ist verschwunden");
  EXPECT_EQ(Stand(plan), "a");
  Zeichnen(lauf, "");
  EXPECT_TRUE(lauf.ablauf.Beenden());
  EXPECT_EQ(Stand(plan), "") << "emptied, not left as it was";
}

TEST_F(LageplanablaufTest, SpeichernUnterUndNeuesRufzeichen) {
  Lauf lauf(ordner.pfad);
  Zeichnen(lauf, "a");
  lauf.station.lageplan.hintergrund.emplace().datei = "karte.png";
  lauf.SpeichernUnter(anderswo / "dl1.dat");
  EXPECT_EQ(PfadAusUtf8(lauf.station.lageplan.hintergrund->datei), ordner / "karte.png") << "stays there";
  EXPECT_EQ(Stand(lauf, anderswo / "dl1.lageplan"), "a|a");
  lauf.SpeichernUnter(ordner / "kopie.dat");
  EXPECT_EQ(Stand(ordner / "kopie.lageplan"), "a") << "also a plan that has not changed";
  Zeichnen(lauf, "b");
  Anlegen(ordner / "fremd.lageplan", PlanMit("fremder"));
  lauf.fragen.Erwarten("Hinweis", "Neben fremd.dat lag schon ein Lageplan. Er bleibt als fremd-alt.lageplan");
  lauf.SpeichernUnter(ordner / "fremd.dat");
  EXPECT_EQ(Stand(lauf, ordner / "fremd.lageplan") + Stand(ordner / "fremd-alt.lageplan"), "b|bfremder");
  EXPECT_EQ(Stand(anderswo / "dl1.lageplan"), "a");

  lauf.Neu();
  EXPECT_EQ(Stand(lauf, ordner / "fremd.lageplan"), "|b");
  Zeichnen(lauf, "c");
  lauf.fragen.Erwarten("Vesk", "Programm trotzdem beenden?", Antwort::Nein);
  EXPECT_FALSE(lauf.ablauf.Beenden()) << "a plan is something to lose";
  lauf.station.benutzer.Rufzeichen = "DL2";
  lauf.SpeichernUnter(ordner / "DL2.dat");
  EXPECT_EQ(Stand(lauf, ordner / "DL2.lageplan") + Stand(ordner / "fremd.lageplan"), "c|cb");
}

TEST_F(LageplanablaufTest, LadenUndVerwerfen) {
  Anlegen(ordner / "zwei.dat", MusterMit("zwei"));
  Lauf lauf(ordner.pfad);
  Zeichnen(lauf, "a");
  lauf.Laden(ordner / "zwei.dat");
  EXPECT_EQ(Stand(lauf, plan), "|a") << "saved first, and not taken along";
  lauf.Laden(user);
  for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
    Zeichnen(lauf, "b");
    lauf.fragen.Erwarten("Vesk", "Auch der Lageplan wurde geändert. Alle Änderungen verwerfen?", antwort);
    lauf.ablauf.AenderungenVerwerfen();
    EXPECT_EQ(Stand(lauf, plan), antwort == Antwort::Ja ? "a|a" : "b|a");
  }
  Zeichnen(lauf, "c");
  Anlegen(plan, "{");
  lauf.fragen.Fehler(
      "user.lageplan konnte nicht gelesen werden.\nSie ist beschädigt (Zeile 1).\nAlle Änderungen");
  lauf.ablauf.AenderungenVerwerfen();
  EXPECT_EQ(lauf.station.lageplan.bezugsname, "c");
}

TEST_F(LageplanablaufTest, EinUserVonAnderswoBringtSeinenPlanMit) {
  Anlegen(plan, PlanMit("hiesiger"));
  for (const bool mitPlan : {true, false}) {
    Anlegen(anderswo / "user.dat", MusterMit(mitPlan ? "zwei" : "drei"));
    if (mitPlan) Anlegen(anderswo / "user.lageplan", PlanMit("dortiger", "karte.png"));
    Lauf lauf(ordner.pfad);
    lauf.fragen.Erwarten("User Datei laden", "Soll sie dorthin kopiert werden?", Antwort::Ja);
    lauf.Laden(anderswo / "user.dat");
    EXPECT_EQ(Stand(lauf, plan), mitPlan ? "dortiger|dortiger" : "|-");
    EXPECT_EQ(Stand(mitPlan ? alt : ordner / "user-alt2.lageplan"), mitPlan ? "hiesiger" : "dortiger");
    EXPECT_EQ(lauf.station.lageplan.hintergrund.value_or(Hintergrund()).datei,
              mitPlan ? PfadAlsUtf8(anderswo / "karte.png") : "");
    fs::remove(anderswo / "user.lageplan");
  }
  Anlegen(anderswo / "neu.dat", MusterMit("neu"));
  Lauf lauf(ordner.pfad);
  Zeichnen(lauf, "a");
  lauf.fragen.Erwarten("User Datei laden", "Soll sie dorthin kopiert werden?", Antwort::Nein);
  lauf.Laden(anderswo / "neu.dat");
  lauf.ablauf.UserSpeichern();
  EXPECT_EQ(Stand(lauf, ordner / "neu.lageplan"), "a|a") << "the data that stay, under its name";
}

TEST_F(LageplanablaufTest, FremdesWirdNichtUngefragtErsetzt) {
  for (const std::string& bytes :
       {PlanMit("fremder"), std::string("{\"format\":"), std::string(2'000'000, ' ')}) {
    Anlegen(plan, PlanMit("a"));
    const bool fremd = bytes == PlanMit("fremder");
    if (!fremd) Anlegen(plan, bytes);
    Lauf lauf(ordner.pfad, nullptr,
              fremd ? nullptr : "Die Datei user.lageplan konnte nicht gelesen werden.\nSie ist");
    Anlegen(plan, bytes);
    lauf.Speichern("nur die Daten");
    const std::string frage =
        fremd ? "wurde inzwischen von einem anderen" : "konnte nicht gelesen werden.\nSoll sie";
    for (const Antwort antwort : {Antwort::Nein, Antwort::Ja}) {
      EXPECT_EQ(Inhalt(plan), bytes);
      Zeichnen(lauf, "b");
      lauf.fragen.Erwarten("Vesk", "Die Datei user.lageplan " + frage, antwort);
      lauf.ablauf.UserSpeichern();
      EXPECT_EQ(lauf.station.UserGeaendert, antwort == Antwort::Nein);
    }
    EXPECT_EQ(Stand(plan), "b");
    EXPECT_EQ(Inhalt(alt), bytes);
    fs::remove(alt);
  }
}

TEST_F(LageplanablaufTest, EineVonBeidenDateienLaesstSichNichtSchreiben) {
  Lauf lauf(ordner.pfad);
  Zeichnen(lauf, "a");
  fs::create_directory(plan);
  lauf.fragen.Fehler(
      "Die Datei user.lageplan konnte nicht gespeichert werden.\nUnter diesem Namen gibt es ein");
  lauf.Speichern("eins a");
  EXPECT_EQ(NameIn(user), "eins a");
  EXPECT_TRUE(lauf.station.UserGeaendert);
  lauf.ablauf.RettungSichern();
  fs::remove(plan);
  {
    Lauf naechster(ordner.pfad, "bereits in einem anderen Vesk");
    naechster.ablauf.RettungAnbieten();  // the copy of a program that runs
    EXPECT_EQ(Stand(naechster, plan), "|-");
  }
  lauf.ablauf.UserSpeichern();
  EXPECT_EQ(Stand(lauf, plan), "a|a");
}

TEST_F(LageplanablaufTest, DieKopieFuerEinenAbsturz) {
  const auto abstuerzen = [&](const std::string& name, const char* gezeichnet) {
    Lauf lauf(ordner.pfad);
    if (!name.empty()) lauf.Aendern(name);
    Zeichnen(lauf, gezeichnet);
    if (name.empty()) lauf.station.UserGeaendert = false;
    lauf.ablauf.RettungSichern();
  };
  Anlegen(plan, PlanMit("a"));
  abstuerzen("", "b");
  {
    Lauf lauf(ordner.pfad);
    lauf.fragen.Erwarten("Vesk", "ungesicherte Änderungen am Lageplan zu user.dat.\nSollen", Antwort::Ja);
    lauf.ablauf.RettungAnbieten();
    EXPECT_EQ(Stand(lauf, plan), "b|a");
    lauf.ablauf.UserSpeichern();
    EXPECT_EQ(Stand(lauf, plan) + Stand(alt), "b|ba") << "what was replaced";
  }
  abstuerzen("zwei", "b");
  {
    Lauf lauf(ordner.pfad);
    lauf.fragen.Erwarten("Vesk", "ungesicherte Änderungen an user.dat.\nSollen", Antwort::Ja);
    lauf.ablauf.RettungAnbieten();
    EXPECT_EQ(lauf.station.benutzer.Name + Stand(lauf, plan), "zweib|b") << "the plan was saved";
    lauf.ablauf.UserSpeichern();
  }
  abstuerzen("drei", "c");
  Anlegen(plan, PlanMit("später"));
  fs::last_write_time(plan, fs::last_write_time(plan) + 1min);
  Lauf lauf(ordner.pfad);
  lauf.fragen.Erwarten("Hinweis", "user-alt2.lageplan");
  lauf.fragen.Erwarten("Vesk", "ungesicherte Änderungen an user.dat.\nSollen", Antwort::Ja);
  lauf.ablauf.RettungAnbieten();
  EXPECT_EQ(lauf.station.benutzer.Name + Stand(lauf, plan), "dreispäter|später");
  EXPECT_EQ(Stand(ordner / "user-alt2.lageplan"), "c");
}

TEST_F(LageplanablaufTest, EineNeuereZerstoerteDateiGiltNicht) {
  {
    Lauf lauf(ordner.pfad);
    Zeichnen(lauf, "c");
    lauf.ablauf.RettungSichern();
  }
  Anlegen(plan, "{");
  fs::last_write_time(plan, fs::last_write_time(plan) + 1min);
  Lauf lauf(ordner.pfad, nullptr, "Die Datei user.lageplan konnte nicht gelesen werden.\nSie ist beschädigt");
  lauf.fragen.Erwarten("Vesk", "ungesicherte Änderungen am Lageplan", Antwort::Ja);
  lauf.ablauf.RettungAnbieten();
  EXPECT_EQ(lauf.station.lageplan.bezugsname, "c");
}

/// As programs have left it that knew no plans.
TEST_F(LageplanablaufTest, EineAlteKopieOhnePlan) {
  Anlegen(plan, PlanMit("a"));
  for (const fs::path& datei : {user, ordner / "geloescht.dat", fs::path()}) {
    const std::string pfad = datei.empty() ? "" : PfadAlsUtf8(WirklicherPfad(datei));
    const std::string zwei = MusterMit("zwei");
    Anlegen(ordner / ".user.dat.rettung",
            std::to_string(pfad.size()) + ":" + pfad + std::to_string(zwei.size()) + ":" + zwei + "0:0:");
    fs::last_write_time(ordner / ".user.dat.rettung", fs::last_write_time(user) + 1min);
    Lauf lauf(ordner.pfad);
    lauf.fragen.Erwarten("Vesk", "ungesicherte Änderungen", Antwort::Ja);
    lauf.ablauf.RettungAnbieten();
    EXPECT_EQ(lauf.station.benutzer.Name + lauf.station.lageplan.bezugsname,
              datei == user ? "zweia" : "zwei");
  }
}

}  // namespace
}  // namespace vesk
