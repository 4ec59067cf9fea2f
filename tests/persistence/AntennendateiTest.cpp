#include <gtest/gtest.h>

#include <algorithm>

#include "persistence/Antennendatei.h"
#include "station/Bandkennung.h"
#include "tests/Tabelle.h"
#include "tests/persistence/Ordner.h"

namespace vesk {
namespace {

using Texte = std::vector<std::string>;

TEST(Bandkennung, BandOderDieZahlSelbst) {
  for (const Tabellenzeile& zeile : Tabelle("persistence/Bandkennung.csv")) {
    EXPECT_EQ(Bandkennung(zeile["text"]), zeile["kennung"]) << zeile.text;
  }
}

TEST(AntennenLaden, AbschnitteListenzeilenUndFeldbreiten) {
  const Antennenkatalog katalog = AntennenLaden(
      "[Hersteller lang]\r\nTyp mit Ueberlaenge,Art mit Ueberlaenge,144,12.345,123456,#\r\n"
      "B,Yagi,14.1,-3,2,21.2,7,3,#\r\n[C]\r\n\"D, gross\",Helix,430,12,77,#\r\n");
  ASSERT_EQ(katalog.Antennen.size(), 3U);
  EXPECT_EQ(katalog.Meldung, "");

  const Antenne& erste = katalog.Antennen[0];
  EXPECT_EQ(erste.hersteller + '|' + erste.typ + '|' + erste.art, "Hersteller|Typ mit Ue|Art mit Ueberla");
  EXPECT_EQ(erste.baender[0].gewinn + '|' + erste.baender[0].elemente, "12.35|123");
  EXPECT_EQ(katalog.Antennen[1].baender[1].kennung + katalog.Antennen[2].typ, "21.2D, gross");

  const auto zeile = [](std::string text) {
    text.resize(100, ' ');
    return text;
  };
  EXPECT_EQ(katalog.zeilen,
            (Texte{zeile("Herstelle Typ mit Uebe"), zeile("          B"), zeile("C         D, gross")}));
  std::string kopf = zeile("Herst.                    Typ                                          MHz");
  EXPECT_EQ(Antennenkopf(), kopf.replace(85, 13, "dBi        el"));
}

TEST(AntennenLaden, BehaeltWasLesbarWar) {
  const std::string neun = "1,1,1,2,1,1,3,1,1,4,1,1,5,1,1,6,1,1,7,1,1,8,1,1,9,1,1";
  for (const Tabellenzeile& zeile : Tabelle("persistence/Antennenlisten.csv")) {
    const Antennenkatalog katalog = AntennenLaden(Ersetzt(zeile["datei"], "{9}", neun));
    std::string gelesen;
    for (const Antenne& antenne : katalog.Antennen) {
      gelesen += antenne.typ + std::to_string(antenne.baender.size()) + " ";
    }
    EXPECT_EQ(gelesen, zeile["gelesen"]) << zeile.text;
    EXPECT_EQ(katalog.Meldung, zeile["defekt"] == "1" ? "Fehler in Antennendatei: Antennen.txt" : "")
        << zeile.text;
    EXPECT_EQ(katalog.fehler ? Laufzeitfehler(*katalog.fehler).what() : "", zeile["fehler"]) << zeile.text;
  }
}

TEST(AntenneWaehlen, Bandzeilen) {
  const auto zeilen = [](const char* datei) {
    return AntenneWaehlen(AntennenLaden(datei).Antennen.at(0), "").zeilen;
  };
  EXPECT_EQ(zeilen("X,Yagi,50,9.5,5,144,12,10,430,14.25,0,#"),
            (Texte{"   50  -   9.50  -    5 el. ", "  144  -  12.00  -   10 el. ", "  430  -  14.25"}));
  EXPECT_EQ(zeilen("H,Helix,430,12.3,77,1240,12.3,0,#"),
            (Texte{"  430  -  12.30  -   77cm", " 1240  -  12.30"}));
}

TEST(AntenneWaehlen, OhnePassendesBandGiltNurDerDipol) {
  for (const Tabellenzeile& zeile : Tabelle("persistence/Antennenwahl.csv")) {
    const Antennenwahl wahl = AntenneWaehlen(AntennenLaden(zeile["antenne"]).Antennen.at(0), zeile["qrg"]);
    EXPECT_EQ(wahl.markiert, zeile.Zahl("markiert")) << zeile.text;
    EXPECT_EQ(wahl.gewinn.value_or("keiner"), zeile["gewinn"]) << zeile.text;
  }
}

TEST(Antennensuche, AlleWorteMuessenVorkommen) {
  const Antennensuche suche(
      AntennenLaden("[Österreich]\nWY144,Yagi,430,14,10,#\nKurz,Yagi,144,12,0,#\n3el,Mehrband-Yagi,14,8,3,#\n"
                    "[B]\nDipol KW,Dipol,3.5,2.15,1,#\n")
          .Antennen);
  const auto nummern = [&](const std::string& eingabe) {
    std::string text;
    const std::vector<bool> treffer = suche.Treffer(eingabe);
    for (std::size_t i = 0; i < treffer.size(); ++i) {
      if (treffer[i]) text += std::to_string(i);
    }
    return text;
  };
  for (const Tabellenzeile& zeile : Tabelle("persistence/Antennensuche.csv")) {
    EXPECT_EQ(nummern(zeile["eingabe"]), zeile["treffer"]) << zeile.text;
  }
}

TEST(AntennenLaden, GelieferteDatei) {
  const Antennenkatalog katalog = AntennenLaden(Inhalt(std::string(VESK_DATEN) + "/Antennen.txt"));
  EXPECT_EQ(katalog.Meldung, "");
  EXPECT_EQ(katalog.fehler, std::nullopt);
  EXPECT_EQ(katalog.Antennen.size(), 79U);
  const std::vector<bool> treffer = Antennensuche(katalog.Antennen).Treffer("yagi 1296");
  EXPECT_EQ(std::count(treffer.begin(), treffer.end(), true), 5);
}

}  // namespace
}  // namespace vesk
