#include <gtest/gtest.h>

#include "Laufzeitfehler.h"
#include "Spaltenskript.h"
#include "Spaltenuebernahme.h"

namespace vesk {

namespace {

using Log = std::vector<std::string>;

class Uebernahme : public testing::Test {
 protected:
  Uebernahme() {
    zustand.werte.Spalte = 3;
    zustand.werte.Zyklusfaktor = 0.5F;
    const std::pair<int, const char*> texte[] = {{3, "14.2"}, {6, "750"}, {7, "1.87"}, {8, "150"}, {9, ""}};
    for (const auto& [zeile, text] : texte) fenster.Zelle(3, zeile) = text;
    for (int zeile = 10; zeile <= 12; ++zeile) fenster.Zelle(3, zeile) = "alt";
  }
  std::string Ergebnisse() {
    return fenster.Zelle(3, 10) + ' ' + fenster.Zelle(3, 11) + ' ' + fenster.Zelle(3, 12);
  }

  const std::string eingaben = "Eingaben 14.2|750|1.87|150|";
  Zustand zustand;
  Spaltenskript fenster{zustand};
  Spaltenuebernahme uebernahme{zustand, fenster};
};

TEST_F(Uebernahme, RechnenLaedtRechnetUndTraegtEin) {
  uebernahme.Rechnen();
  EXPECT_EQ(fenster.Log(), (Log{"Abstand", eingaben, "Optionen 3", "Faktor 3 0.20", "Berechnen laut"}));
  EXPECT_EQ(zustand.werte.GewinnText, "150");
  EXPECT_TRUE(zustand.werte.Pruefergebnis);
  EXPECT_EQ(Ergebnisse(), "1.99 41.91 22.29");
  EXPECT_EQ(zustand.Datenblattspalten[3].AbstandOhneHSM, "1.99");
  EXPECT_EQ(zustand.Datenblattspalten[3].AbstandHSM306, "41.91");
  EXPECT_EQ(zustand.Datenblattspalten[3].AbstandHSMvde, "22.29");
  EXPECT_TRUE(zustand.UserGeaendert);

  zustand.UserGeaendert = false;
  zustand.Datenblattspalten[3].AbstandHSMvde.clear();
  uebernahme.Rechnen();
  EXPECT_FALSE(zustand.UserGeaendert) << "dieselben Ergebnisse sind keine Änderung";
}

TEST_F(Uebernahme, GeaenderteOptionWirdNichtZurueckgeladen) {
  for (const auto tun : {&Spaltenuebernahme::OptionGeaendert, &Spaltenuebernahme::Anwenden}) {
    (uebernahme.*tun)();
    EXPECT_EQ(fenster.Log(), (Log{"Abstand", eingaben, "Faktor 3 0.50", "Berechnen laut"}));
  }
}

TEST_F(Uebernahme, OhneSpalte) {
  zustand.werte.Spalte = 0;
  uebernahme.Rechnen();
  uebernahme.ZelleGeklickt();
  uebernahme.KopfGeklickt();
  uebernahme.OptionGeaendert();
  EXPECT_EQ(fenster.Log(), Log{});
  uebernahme.Anwenden();
  EXPECT_EQ(fenster.Log(), Log{"Berechnen laut"});
}

TEST_F(Uebernahme, ZellklickRechnetStill) {
  uebernahme.ZelleGeklickt();
  EXPECT_EQ(fenster.Log(), (Log{"Abstand", eingaben, "Optionen 3", "Faktor 3 0.20", "Berechnen still"}));
  EXPECT_EQ(Ergebnisse(), "1.99 41.91 22.29");
}

TEST_F(Uebernahme, KopfklickMeldetEinmal) {
  uebernahme.KopfGeklickt();
  EXPECT_EQ(fenster.Log(), (Log{"Optionen 3", "Abstand", eingaben, "Faktor 3 0.20", "Berechnen still",
                                eingaben, "Abstand", eingaben, "Faktor 3 0.20", "Berechnen laut"}));
}

TEST_F(Uebernahme, KopfklickNimmtDieLeistungDesModus) {
  // Zeile 12 vor dem Eintragen, hier durch eine misslungene Rechnung erhalten.
  fenster.modus_ = Modus::Leistung;
  fenster.beimBerechnen = [] { throw Laufzeitfehler(Fehlerart::Gleitkomma); };
  EXPECT_THROW(uebernahme.KopfGeklickt(), Laufzeitfehler);
  EXPECT_EQ(fenster.Log()[5], "Eingaben 14.2|alt|1.87|150|");
}

TEST_F(Uebernahme, UnvollstaendigeSpalte) {
  struct Fall {
    const char* frequenz;
    const char* leistung;
    bool rotFrequenz;
    bool rotLeistung;
  };
  const Fall faelle[] = {{"", "100", true, false},
                         {"14 MHz", "0", false, true},
                         {"x", "-1", true, true},
                         {"14,2", "1e99", false, false}};
  zustand.werte.LetzteSpalte = 5;
  for (const Fall& fall : faelle) {
    fenster.Zelle(3, 3) = fall.frequenz;
    fenster.Zelle(3, 6) = fall.leistung;
    fenster.rot.fill(true);
    for (int zeile = 10; zeile <= 12; ++zeile) fenster.Zelle(3, zeile) = "alt";
    uebernahme.ZelleGeklickt();
    const bool unvollstaendig = fall.rotFrequenz || fall.rotLeistung;
    EXPECT_EQ(zustand.werte.Pruefergebnis, !unvollstaendig);
    EXPECT_EQ(fenster.Rot(3, 3), fall.rotFrequenz) << fall.frequenz;
    EXPECT_EQ(fenster.Rot(3, 6), fall.rotLeistung) << fall.leistung;
    EXPECT_FALSE(fenster.Rot(5, 3) || fenster.Rot(5, 6));
    if (!unvollstaendig) continue;
    EXPECT_EQ(fenster.Log().back(), "Optionen 3");
    EXPECT_EQ(Ergebnisse(), "alt alt alt") << "ein Klick leert nichts";
    uebernahme.Rechnen();
    EXPECT_EQ(fenster.Log().back(), "Hinweis");
    EXPECT_EQ(Ergebnisse(), "  ");
  }
}

TEST_F(Uebernahme, FehlerLaesstDieErgebnisseStehen) {
  fenster.beimBerechnen = [] { throw Laufzeitfehler(Fehlerart::Ueberlauf); };
  uebernahme.ZelleGeklickt();
  EXPECT_EQ(Ergebnisse(), "alt alt alt");
  EXPECT_THROW(uebernahme.Rechnen(), Laufzeitfehler);
  EXPECT_EQ(Ergebnisse(), "alt alt alt");
  EXPECT_FALSE(uebernahme.Laeuft());
  fenster.beimBerechnen = nullptr;
  uebernahme.Rechnen();
  EXPECT_EQ(Ergebnisse(), "1.99 41.91 22.29");
}

TEST_F(Uebernahme, NichtsWaehrendEinerLaufenden) {
  fenster.beimBerechnen = [this] {
    fenster.Log();
    EXPECT_TRUE(uebernahme.Laeuft());
    uebernahme.ZelleGeklickt();
    uebernahme.KopfGeklickt();
    uebernahme.Anwenden();
    EXPECT_EQ(fenster.Log(), Log{});
  };
  uebernahme.Rechnen();
  EXPECT_EQ(Ergebnisse(), "1.99 41.91 22.29");

  fenster.beimBerechnen = nullptr;
  fenster.rechnungLaeuft = true;
  uebernahme.KopfGeklickt();
  uebernahme.Rechnen();
  EXPECT_EQ(fenster.Log(), Log{});
}

}  // namespace

}  // namespace vesk
