#include <gtest/gtest.h>

#include <algorithm>

#include "persistence/Lageplandatei.h"
#include "tests/Tabelle.h"
#include "tests/persistence/Muster.h"

namespace vesk {
namespace {

TEST(Lageplandatei, Rundreise) {
  const std::string bytes = LageplanBytes(Musterplan());
  const Lageplanlesung lesung = LageplanLesen(bytes);
  EXPECT_EQ(lesung.fehler + lesung.hinweis, "");
  EXPECT_TRUE(lesung.plan == Musterplan());
  EXPECT_EQ(LageplanBytes(lesung.plan), bytes);
  EXPECT_NE(bytes.find("[0.1,-2.0]"), std::string::npos) << "as short as can be";
  EXPECT_TRUE(LageplanLesen("\xEF\xBB\xBF" + bytes).plan == Musterplan()) << "saved by an editor";
  for (std::size_t laenge = 0; laenge < bytes.size() - 2; ++laenge) {
    ASSERT_NE(LageplanLesen(bytes.substr(0, laenge)).fehler, "") << laenge;
  }
}

TEST(Lageplandatei, Name) {
  for (const auto& [user, plan] : {std::pair("a/user.dat", "a/user.lageplan"),
                                   {"DL1.X.DAT", "DL1.X.lageplan"},
                                   {"user.txt", "user.txt.lageplan"},
                                   {"x.lageplan", "x.lageplan.lageplan"}}) {
    EXPECT_EQ(Lageplanpfad(user), plan);
  }
}

std::string Eingesetzt(std::string text) {
  const std::string kopf = R"({"format":"vesk-lageplan","version":)";
  text = Ersetzt(Ersetzt(text, "{p}", kopf + "1"), "{p2}", kopf + "2");
  return Ersetzt(Ersetzt(text, "{ff}", "\xFF"), "{tief}", std::string(32, '['));
}

/// What is left of a JSON text when order and layout do not count.
std::string Zeichen(std::string json) {
  for (const char* form : {"\n", " ", ".0", ",\"objekte\":[]"}) json = Ersetzt(json, form, "");
  std::sort(json.begin(), json.end());
  return json;
}

TEST(Lageplandatei, WasDarinStehenKann) {
  for (const Tabellenzeile& zeile : Tabelle("persistence/Lageplanlesung.csv")) {
    const std::string bytes = Eingesetzt(zeile["inhalt"]);
    const Lageplanlesung lesung = LageplanLesen(bytes);
    for (const auto& [ist, soll] :
         {std::pair(lesung.fehler, zeile["fehler"]), {lesung.hinweis, zeile["hinweis"]}}) {
      EXPECT_TRUE(ist.empty() == soll.empty() && ist.find(soll) != std::string::npos) << bytes << "\n" << ist;
    }
    EXPECT_EQ(static_cast<int>(lesung.plan.objekte.size()), zeile.Zahl("objekte")) << bytes;
    if (!lesung.fehler.empty()) continue;
    const std::string neu = LageplanBytes(lesung.plan);
    EXPECT_EQ(Zeichen(neu), Zeichen(bytes)) << neu;
    const Lageplanlesung nochmals = LageplanLesen(neu);
    EXPECT_TRUE(nochmals.plan == lesung.plan && nochmals.hinweis == lesung.hinweis) << neu;
  }
}

/// What was not understood under a name gives way to what the user enters there.
TEST(Lageplandatei, EinGueltigerWertErsetztDenUnverstandenen) {
  Lageplan plan = LageplanLesen(Eingesetzt(R"({p},"nord":"Nord","farbe":"rot"})")).plan;
  plan.nord = 7;
  const std::string bytes = LageplanBytes(plan);
  EXPECT_TRUE(bytes.find("\"nord\": 7.0") != std::string::npos && bytes.find("rot") != std::string::npos)
      << bytes;
}

}  // namespace
}  // namespace vesk
