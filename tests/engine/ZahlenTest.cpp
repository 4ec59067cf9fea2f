#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

#include "Laufzeitfehler.h"
#include "Rechenwerte.h"
#include "Tastenfilter.h"
#include "Zahlen.h"

namespace vesk {
namespace {

TEST(Zahlen, Formatieren) {
  const std::pair<float, const char*> faelle[] = {
      {1234.567F, "1234.57"},
      {0.004F, "0.00"},
      {0.5F, "0.50"},
      {0.0F, "0.00"},
      {-0.001F, "0.00"},
      {0.125F, "0.13"},
      {0.375F, "0.38"},
      {-0.125F, "-0.13"},
      {2.675F, "2.68"},
      {0.005F, "0.01"},
      {99999.99F, "99999.99"},
      {1e7F, "10000000.00"},
      {85.655F, "85.66"},
      {9.995F, "10.00"},
      {-0.995F, "-1.00"},
      {1e-30F, "0.00"},
      {0.045F, "0.05"},
      {0.105F, "0.11"},
      {16777216.0F, "16777216.00"},
  };
  for (const auto& [wert, text] : faelle) EXPECT_EQ(Formatieren(wert), text);
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
      const float gekuerzt = Zahl(lang);
      const double erwartet = std::abs(static_cast<double>(gekuerzt)) + (auf ? 0.01 : 0.0);
      ASSERT_NEAR(std::abs(static_cast<double>(Zahl(Formatieren(wert)))), erwartet, 0.001 + erwartet * 1e-6)
          << lang;
    }
  }
}

TEST(Zahlen, Zahl) {
  const std::pair<const char*, float> faelle[] = {
      {"", 0},         {"abc", 0},    {"-", 0},        {".", 0},      {"1.5", 1.5F}, {"1,5", 1},
      {" 7.1 ", 7.1F}, {"12abc", 12}, {"1.2.3", 1.2F}, {"-3", -3},    {"--3", 0},    {"14 MHz", 14},
      {"1e3", 1000},   {"1e", 1},     {"1e+", 1},      {"+2", 2},     {".5", 0.5F},  {"5.", 5},
      {"inf", 0},      {"nan", 0},    {"0x10", 0},     {"1e-400", 0}, {"1e-46", 0},  {"3.4e38", 3.4e38F},
  };
  for (const auto& [text, wert] : faelle) EXPECT_EQ(Zahl(text), wert) << text;
  for (const auto& text :
       {std::string("3.5e38"), std::string("1e400"), std::string(400, '9'), "-" + std::string(400, '9')}) {
    EXPECT_THROW(Zahl(text), Laufzeitfehler) << text;
  }
}

/// A desktop program takes over the user's locale; its comma must not reach the numbers of the record.
TEST(Zahlen, GebietsschemaIstGleichgueltig) {
  const std::string vorher = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "de_DE.UTF-8");  // where it is installed
  EXPECT_THROW(Zahl("1.5e400"), Laufzeitfehler);
  EXPECT_THROW(Zahl("0.00001e400"), Laufzeitfehler);
  EXPECT_EQ(Zahl("2.5e-400"), 0);
  EXPECT_EQ(Zahl("0.0" + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(Zahl("0e99999999999999999999"), 0);
  EXPECT_EQ(Zahl("1e-99999999999999999999"), 0);
  EXPECT_EQ(Formatieren(1234.567F), "1234.57");
  std::setlocale(LC_ALL, vorher.c_str());
}

TEST(Zahlen, Gitterindex) {
  EXPECT_EQ(Gitterindex(1, 1), 0);
  EXPECT_EQ(Gitterindex(2, 1), 12);
  EXPECT_EQ(Gitterindex(3, 12), 35);
  EXPECT_EQ(Gitterindex(7, 12), 83);
  EXPECT_EQ(Gitterindex(2731, 7), 32766);
  EXPECT_THROW(Gitterindex(2731, 9), Laufzeitfehler);
}

TEST(Zahlen, LogarithmusVonNull) {
  EXPECT_THROW(Log10(0), Laufzeitfehler);
  EXPECT_THROW(Log10(-1), Laufzeitfehler);
  EXPECT_NEAR(Log10(1000), 3, 1e-12);
}

TEST(Tastenfilter, Zeichen) {
  struct Fall {
    int zeichen;
    bool minus;
    int heraus;
    bool piep;
    bool minusDanach;
    bool enter;
  };
  const Fall faelle[] = {
      {'7', true, '7', false, false, false},  {',', false, '.', false, false, false},
      {'.', false, '.', false, false, false}, {13, true, 0, false, false, true},
      {8, true, 8, false, false, false},      {'-', true, '-', false, true, false},
      {'-', false, 0, true, false, false},    {'a', true, 0, true, false, false},
      {0xE4, false, 0, true, false, false},
  };
  for (const Fall& fall : faelle) {
    Rechenwerte werte;
    werte.MinusErlaubt = fall.minus;
    werte.EnterGedrueckt = true;
    const Filterantwort antwort = KeyPress(fall.zeichen, werte);
    EXPECT_EQ(antwort.zeichen, fall.heraus);
    EXPECT_EQ(antwort.piep, fall.piep);
    EXPECT_EQ(werte.MinusErlaubt, fall.minusDanach);
    EXPECT_EQ(werte.EnterGedrueckt, fall.enter);
  }
}

}  // namespace
}  // namespace vesk
