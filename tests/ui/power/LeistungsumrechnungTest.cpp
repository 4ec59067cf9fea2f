#include <gtest/gtest.h>

#include "Laufzeitfehler.h"
#include "Leistungsumrechnung.h"

namespace vesk {
namespace {

using enum Leistungseinheit;
using Ergebnis = Umrechnungsergebnis;

struct Fall {
  Leistungseinheit quelle;
  const char* text;
  const char* dbm;
  const char* dbw;
  const char* watt;
};

TEST(Leistungsumrechnung, Tabelle) {
  const Fall faelle[] = {
      {DBm, "100", "", "70.00", "10000000.000"}, {DBm, "50", "", "20.00", "100.000"},
      {DBm, "36.99", "", "6.99", "5.000"},       {DBm, "30", "", "0.00", "1.000"},
      {DBm, "0", "", "-30.00", "0.001"},         {DBm, "-10", "", "-40.00", "0.000"},
      {DBm, "-30", "", "-60.00", "0.000"},       {DBm, "0.5", "", "-29.50", "0.001"},
      {DBm, "--3", "", "-30.00", "0.001"},       {DBW, "70", "100.00", "", "10000000.000"},
      {DBW, "20", "50.00", "", "100.000"},       {DBW, "0", "30.00", "", "1.000"},
      {DBW, "-3", "27.00", "", "0.501"},         {DBW, "7", "37.00", "", "5.012"},
      {Watt, "1", "30.00", "0.00", ""},          {Watt, "2", "33.01", "3.01", ""},
      {Watt, "5", "36.99", "6.99", ""},          {Watt, "100", "50.00", "20.00", ""},
      {Watt, "750", "58.75", "28.75", ""},       {Watt, "1000", "60.00", "30.00", ""},
      {Watt, "0.001", "0.00", "-30.00", ""},     {Watt, "0.5", "26.99", "-3.01", ""},
      {Watt, "20000000", "103.01", "73.01", ""},
  };
  for (const Fall& fall : faelle) {
    const Leistungsumrechnung ist = Umrechnen(fall.quelle, fall.text, '.');
    EXPECT_EQ(ist.ergebnis, Ergebnis::Umgerechnet) << fall.text;
    EXPECT_EQ(ist.texte, (std::array<std::string, 3>{fall.dbm, fall.dbw, fall.watt})) << fall.text;
  }
  EXPECT_EQ(Umrechnen(DBW, "-3", ',').texte[2], "0,501");
}

TEST(Leistungsumrechnung, Grenzen) {
  struct Ablehnung {
    Leistungseinheit quelle;
    const char* text;
    Ergebnis ergebnis;
  };
  const Ablehnung faelle[] = {
      {DBm, "100.1", Ergebnis::ZuGross},
      {DBW, "70.5", Ergebnis::ZuGross},
      {DBW, "70.00001", Ergebnis::ZuGross},
      {Watt, "0", Ergebnis::NichtPositiv},
      {Watt, "-1", Ergebnis::NichtPositiv},
      {Watt, ".", Ergebnis::NichtPositiv},
      {DBm, "", Ergebnis::Leer},
      {Watt, "", Ergebnis::Leer},
  };
  for (const Ablehnung& fall : faelle) {
    const Leistungsumrechnung ist = Umrechnen(fall.quelle, fall.text, '.');
    EXPECT_EQ(ist.ergebnis, fall.ergebnis) << fall.text;
    EXPECT_EQ(ist.texte, (std::array<std::string, 3>{})) << fall.text;
  }
  EXPECT_THROW(Umrechnen(Watt, std::string(60, '9'), '.'), Laufzeitfehler);
  EXPECT_EQ(Umrechnen(DBm, "-" + std::string(38, '9'), '.').texte[2], "0.000");
}

}  // namespace
}  // namespace vesk
