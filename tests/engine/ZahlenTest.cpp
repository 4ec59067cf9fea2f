#include <gtest/gtest.h>

#include <cmath>

#include "engine/Laufzeitfehler.h"
#include "engine/Tastenfilter.h"
#include "engine/Zahlen.h"
#include "tests/Tabelle.h"

namespace vesk {
namespace {

using namespace std::string_literals;

TEST(Zahlen, Formatieren) {
  for (const Tabellenzeile& zeile : Tabelle("engine/Formatieren.csv")) {
    EXPECT_EQ(Formatieren(zeile.Wert("wert")), zeile["text"]) << zeile.text;
  }
  EXPECT_EQ(Formatieren(18.068F, 2, ','), "18,07");
  EXPECT_EQ(Formatieren(0.0005, 3, ','), "0,001");
  EXPECT_EQ(Formatieren(1e300, 0, '.').size(), 301U);
  EXPECT_THROW(Formatieren(std::numeric_limits<float>::infinity()), Laufzeitfehler);
}

/// Singles around every half of a hundredth must round as their shortest decimal does.
TEST(Zahlen, FormatierenAnDenHalben) {
  for (int n = 1; n < 400000; n += 7) {
    const float halb = static_cast<float>(n) / 200.0F;
    for (const float wert : {std::nextafter(halb, 0.0F), halb, std::nextafter(halb, 1e9F), -halb}) {
      // Ten places hold the whole shortest decimal here; the long form rounds nothing away.
      std::string lang = Formatieren(wert, 10, '.');
      const bool auf = lang[lang.size() - 8] >= '5';
      lang.resize(lang.size() - 8);
      const double erwartet = std::abs(static_cast<double>(Zahl(lang))) + (auf ? 0.01 : 0.0);
      const double ist = std::abs(static_cast<double>(Zahl(Formatieren(wert))));
      ASSERT_NEAR(ist, erwartet, 0.001 + erwartet * 1e-6) << lang;
    }
  }
}

TEST(Zahlen, Zahl) {
  for (const Tabellenzeile& zeile : Tabelle("engine/Zahl.csv")) {
    EXPECT_EQ(Zahl(zeile["text"]), zeile.Wert("wert")) << zeile.text;
  }
  EXPECT_EQ(Zahl("0.0" + std::string(400, '0') + "1"), 0);
  for (const std::string& text :
       {"3.5e38"s, "1.5e400"s, "0.00001e400"s, "12e9223372036854775807"s, "-" + std::string(400, '9')}) {
    EXPECT_THROW(Zahl(text), Laufzeitfehler) << text;
    EXPECT_EQ(Positiv(text), text.front() != '-') << text;
  }
  for (const char* text : {"0", "-1", "abc", ""}) EXPECT_FALSE(Positiv(text)) << text;
  EXPECT_TRUE(Positiv("0.001"));
}

TEST(Zahlen, GitterindexUndLogarithmus) {
  EXPECT_EQ(Gitterindex(1, 1), 0);
  EXPECT_EQ(Gitterindex(2, 1), 12);
  EXPECT_EQ(Gitterindex(7, 12), 83);
  EXPECT_EQ(Gitterindex(2731, 7), 32766);
  EXPECT_THROW(Gitterindex(2731, 9), Laufzeitfehler);
  EXPECT_NEAR(Log10(1000), 3, 1e-12);
  EXPECT_THROW(Log10(0), Laufzeitfehler);
  EXPECT_THROW(Log10(-1), Laufzeitfehler);
}

TEST(Tastenfilter, Zeichen) {
  for (const Tabellenzeile& zeile : Tabelle("engine/Tastenfilter.csv")) {
    Tastenmarken marken{.MinusErlaubt = zeile["minus"] == "1", .EnterGedrueckt = true};
    const Filterantwort antwort = KeyPress(zeile.Zahl("taste"), marken);
    EXPECT_EQ(antwort.zeichen, zeile.Zahl("heraus")) << zeile.text;
    EXPECT_EQ(antwort.piep, zeile["piep"] == "1") << zeile.text;
    EXPECT_EQ(marken.MinusErlaubt, zeile["danach"] == "1") << zeile.text;
    EXPECT_EQ(marken.EnterGedrueckt, zeile["taste"] == "13") << zeile.text;
  }
}

}  // namespace
}  // namespace vesk
