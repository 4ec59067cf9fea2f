#include <gtest/gtest.h>

#include "engine/Zahlen.h"
#include "station/Leistungsumrechnung.h"
#include "station/Sendeart.h"
#include "tests/Tabelle.h"

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
  for (const Tabellenzeile& zeile : Tabelle("station/Sendearten.csv")) {
    const Sendeartwahl wahl = ModulationsFaktorErmitteln(Kreuze(zeile["kreuze"]));
    EXPECT_EQ(wahl.text, zeile["text"]);
    EXPECT_EQ(std::size_t(wahl.anzahl), zeile["kreuze"].size()) << zeile.text;
    EXPECT_EQ(Formatieren(wahl.faktor), zeile["faktor"]) << zeile.text;
  }
}

TEST(Sendeart, AusschliessendeArten) {
  for (const Tabellenzeile& zeile : Tabelle("station/Sendeartklicks.csv")) {
    const auto folge = OptionModulation(Kreuze(zeile["vorher"]), zeile.Zahl("geklickt"));
    ASSERT_TRUE(folge);
    EXPECT_EQ(Ziffern(folge->kreuze), zeile["nachher"]) << zeile.text;
    EXPECT_EQ(folge->typ, zeile.Zahl("typ")) << zeile.text;
  }
  for (const int index : {-1, 8}) EXPECT_FALSE(OptionModulation({}, index));
}

TEST(Sendeart, SchluesselInDerZelle) {
  for (const Tabellenzeile& zeile : Tabelle("station/Sendeartzellen.csv")) {
    EXPECT_EQ(Ziffern(ModulationsArtAnkreuzen(zeile["zelle"])), zeile["kreuze"]) << zeile.text;
    EXPECT_EQ(Ziffern(KreuzeAusKuerzeln(zeile["zelle"])), zeile["ausKuerzeln"]) << zeile.text;
  }
}

TEST(Sendeart, ZyklusAusDemSatz) {
  constexpr std::array<const char*, AnzahlZyklen> Texte = {"0.17", "0.33", "0.5", "0.67", "0.83", "1.00"};
  for (int i = 0; i < AnzahlZyklen; ++i) {
    const Zykluswahl wahl = ZyklusAusText(Texte.at(static_cast<std::size_t>(i)));
    EXPECT_EQ(wahl.option, i);
    EXPECT_FLOAT_EQ(wahl.faktor, static_cast<float>(i + 1) / 6.0F);
  }
  EXPECT_EQ(ZyklusfaktorVon(5), 1.0F);
  for (const auto& [text, faktor] : {std::pair("0.25", 0.25F), std::pair("0.171", 0.171F)}) {
    EXPECT_EQ(ZyklusAusText(text).option, -1) << text;
    EXPECT_EQ(ZyklusAusText(text).faktor, faktor) << text;
  }
  for (const char* text : {"", "1", "0", "-0.5", "1e-40", "1.5", "1e99", "abc"}) {
    EXPECT_EQ(ZyklusAusText(text).option, 5) << text;
    EXPECT_EQ(FaktorAusText(text), 1.0F) << text;
  }
}

TEST(Leistungsumrechnung, Tabelle) {
  for (const Tabellenzeile& zeile : Tabelle("station/Leistungen.csv")) {
    const Leistungsumrechnung ist = Umrechnen(Leistungseinheit(zeile.Zahl("einheit")), zeile["text"], '.');
    EXPECT_EQ(int(ist.ergebnis), zeile.Zahl("ergebnis")) << zeile.text;
    EXPECT_EQ(ist.texte, (std::array{zeile["dBm"], zeile["dBW"], zeile["Watt"]})) << zeile.text;
  }
  EXPECT_EQ(Umrechnen(Leistungseinheit::DBm, "27", ',').texte[1], "-3,00");
  EXPECT_THROW(Umrechnen(Leistungseinheit::Watt, std::string(60, '9'), '.'), Laufzeitfehler);
}

}  // namespace
}  // namespace vesk
