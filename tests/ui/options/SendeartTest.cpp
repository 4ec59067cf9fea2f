#include <gtest/gtest.h>

#include "Sendeart.h"
#include "Zahlen.h"

namespace vesk {
namespace {

/// Ticked boxes as the digits of their indices.
Sendeartkreuze Kreuze(std::string_view ziffern) {
  Sendeartkreuze kreuze{};
  for (const char ziffer : ziffern) kreuze.at(static_cast<std::size_t>(ziffer - '0')) = true;
  return kreuze;
}

std::string Ziffern(const Sendeartkreuze& kreuze) {
  std::string ziffern;
  for (std::size_t i = 0; i < kreuze.size(); ++i) {
    if (kreuze.at(i)) ziffern += static_cast<char>('0' + i);
  }
  return ziffern;
}

TEST(Sendeart, FaktorUndKuerzel) {
  struct Fall {
    std::string_view kreuze;
    int zyklus;
    std::string_view text;
    std::string_view modulation;
    std::string_view zyklusfaktor;
    std::string_view produkt;
  };
  constexpr Fall Faelle[] = {
      {"", 5, "", "1.00", "1.00", "1.00"},
      {"0", 5, "cw ", "0.40", "1.00", "0.40"},
      {"0", 2, "cw ", "0.40", "0.50", "0.20"},
      {"0", 0, "cw ", "0.40", "0.17", "0.07"},
      {"01", 5, "cw ssb ", "0.50", "1.00", "0.50"},
      {"012", 3, "cw ssb am ", "0.50", "0.67", "0.33"},
      {"0123", 5, "cw ssb am ", "1.00", "1.00", "1.00"},
      {"1", 1, "ssb ", "0.50", "0.33", "0.17"},
      {"1", 4, "ssb ", "0.50", "0.83", "0.42"},
      {"3", 0, "fm ", "1.00", "0.17", "0.17"},
      {"34", 5, "fm pr ", "1.00", "1.00", "1.00"},
      {"5", 5, "atv ", "1.00", "1.00", "1.00"},
      {"7", 5, "alle ", "1.00", "1.00", "1.00"},
      {"7", 0, "alle ", "1.00", "0.17", "0.17"},
      {"0123456", 5, "cw ssb am ", "1.00", "1.00", "1.00"},
  };
  for (const Fall& fall : Faelle) {
    SCOPED_TRACE(fall.kreuze);
    const Sendeartwahl wahl = ModulationsFaktorErmitteln(Kreuze(fall.kreuze));
    EXPECT_EQ(wahl.text, fall.text);
    EXPECT_EQ(wahl.anzahl, static_cast<int>(fall.kreuze.size()));
    EXPECT_EQ(Formatieren(wahl.faktor), fall.modulation);
    EXPECT_EQ(Formatieren(ZyklusfaktorVon(fall.zyklus)), fall.zyklusfaktor);
    EXPECT_EQ(Formatieren(ZyklusfaktorVon(fall.zyklus) * wahl.faktor), fall.produkt);
  }
  EXPECT_EQ(ZyklusfaktorVon(5), 1.0F);
}

TEST(Sendeart, AusschliessendeArten) {
  struct Fall {
    std::string_view vorher;  ///< as the click left the boxes
    int geklickt;
    std::string_view nachher;
    Grenzwerttypen typ;
  };
  constexpr Fall Faelle[] = {{"07", 0, "0", GrenzwertAM},    {"0123", 3, "0123", GrenzwertAM},
                             {"014", 4, "014", GrenzwertAM}, {"1", 0, "1", GrenzwertAM},
                             {"25", 2, "2", GrenzwertAM},    {"05", 5, "5", GrenzwertTV},
                             {"", 5, "5", GrenzwertTV},      {"56", 6, "6", GrenzwertGSM},
                             {"", 7, "7", GrenzwertAM},      {"01237", 7, "7", GrenzwertAM}};
  for (const Fall& fall : Faelle) {
    SCOPED_TRACE(std::string(fall.vorher) + " Klick " + std::to_string(fall.geklickt));
    const auto folge = OptionModulation(Kreuze(fall.vorher), fall.geklickt);
    ASSERT_TRUE(folge);
    EXPECT_EQ(Ziffern(folge->kreuze), fall.nachher);
    EXPECT_EQ(folge->typ, fall.typ);
  }
  EXPECT_FALSE(OptionModulation({}, 8));
  EXPECT_FALSE(OptionModulation({}, -1));
}

TEST(Sendeart, SchluesselInDerZelle) {
  struct Fall {
    std::string_view zelle;
    std::string_view kreuze;
    std::string_view ausKuerzeln;
  };
  constexpr Fall Faelle[] = {
      {"", "", ""},
      {"SSB, FM", "13", "13"},
      {"Alle Betriebsarten", "0123456", "7"},
      {"alle ", "0123456", "7"},
      {"cw ssb am ", "012", "012"},
      {"J3E A1A", "01", "01"},
      {"a3e/f3e/f2e", "234", "234"},
      {"CAM", "2", "2"},  // keys are found inside other words
      {"fm pr ", "34", "34"},
      {"Sprechfunk", "4", "4"},  // "pr"
      {"ATV+GSM", "56", "56"},
      {"rtty ÄÖÜß", "", ""},
  };
  for (const Fall& fall : Faelle) {
    SCOPED_TRACE(fall.zelle);
    EXPECT_EQ(Ziffern(ModulationsArtAnkreuzen(fall.zelle)), fall.kreuze);
    EXPECT_EQ(Ziffern(KreuzeAusKuerzeln(fall.zelle)), fall.ausKuerzeln);
  }
}

TEST(Sendeart, ZyklusAusDemSatz) {
  struct Fall {
    std::string_view text;
    int option;
    float faktor;
  };
  const Fall Faelle[] = {
      {"1.00", 5, 1.0F},
      {"1", 5, 1.0F},
      {"0.17", 0, ZyklusfaktorVon(0)},
      {"0.33", 1, ZyklusfaktorVon(1)},
      {"0.5", 2, 0.5F},
      {"0.67", 3, ZyklusfaktorVon(3)},
      {"0.83", 4, ZyklusfaktorVon(4)},
      {"0.25", -1, 0.25F},
      {"0.171", -1, 0.171F},
      {"", 5, 1.0F},
      {"0", 5, 1.0F},
      {"-0.5", 5, 1.0F},
      {"1.5", 5, 1.0F},
      {"1e99", 5, 1.0F},
      {"abc", 5, 1.0F},
  };
  for (const Fall& fall : Faelle) {
    SCOPED_TRACE(fall.text);
    const Zykluswahl wahl = ZyklusAusText(fall.text);
    EXPECT_EQ(wahl.option, fall.option);
    EXPECT_EQ(wahl.faktor, fall.faktor);
  }
}

}  // namespace
}  // namespace vesk
