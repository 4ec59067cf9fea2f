#include <gtest/gtest.h>

#include "station/Planbearbeitung.h"

namespace vesk {
namespace {

TEST(Planbearbeitung, ZahlenUndMasse) {
  struct Fall {
    const char* text;
    const char* gelesen;  ///< length, or length and direction; "-": none
  };
  for (const auto& [text, gelesen] : std::initializer_list<Fall>{{"12,5", "12.5"},
                                                                 {" 12.5 ", "12.5"},
                                                                 {"+7", "7"},
                                                                 {"3,;450", "3|90"},
                                                                 {"12,5<-90", "12.5|270"},
                                                                 {"1,2345", "1.235"},
                                                                 {"0", "-"},
                                                                 {"-3", "-"},
                                                                 {"12;", "-"},
                                                                 {"1e3", "-"},
                                                                 {"nan", "-"},
                                                                 {"1,2,3", "-"},
                                                                 {"12 m", "-"},
                                                                 {"", "-"}}) {
    const auto mass = MassLesen(text);
    std::string ist = mass ? Dezimaltext(mass->laenge) : "-";
    if (mass && mass->azimut) ist += '|' + Dezimaltext(*mass->azimut);
    EXPECT_EQ(ist, gelesen) << text;
  }
  for (const char* text : {"50,7374; -7,0982", "50.7374, -7.0982", "50,7374 -7,0982"}) {
    const auto ort = GeoLesen(text);
    ASSERT_TRUE(ort) << text;
    EXPECT_EQ(Geotext(*ort), "50.737400; -7.098200") << text;
  }
  EXPECT_FALSE(GeoLesen("91; 7") || GeoLesen("50,7") || GeoLesen("7; 181"));
}

/// The reference point lies beside the grid of the origin, north is to the right.
Lageplan Plan() {
  Lageplan plan;
  plan.bezug = {0.25, 0};
  plan.nord = 90;
  plan.objekte = {NeuesPlanobjekt(Planart::Grundstueck, {0, 0}), NeuesPlanobjekt(Planart::Gebaeude, {5, 5}),
                  NeuesPlanobjekt(Planart::Antenne, {8, 8})};
  return plan;
}

TEST(Planbearbeitung, ZeigerFaengt) {
  constexpr Fang Alles{.raster = 1, .winkel = true, .ecken = true, .weite = 0.3};
  constexpr Fang NurWinkel{.raster = 0, .winkel = true, .ecken = false};
  constexpr Fang NurRaster{.raster = 1, .winkel = false, .ecken = true, .weite = 0};
  const Umriss schraeg{{0, 0}, {3, 4}};
  struct Fall {
    Fang fang;
    Punkt punkt;
    Umriss linie;
    Punkt gefangen;
  };
  for (const auto& [fang, punkt, linie, gefangen] : std::initializer_list<Fall>{
           {Alles, {7.9, 8.2}, {}, {8, 8}},                 // the antenna
           {Alles, {7.5, 8.4}, {}, {7.25, 8}},              // the grid of the reference point
           {Alles, {12.6, 30.5}, {{2.5, 30}}, {12.5, 30}},  // the first edge lies level
           {NurWinkel, {-1, 7.1}, schraeg, {-1.048, 7.036}},
           {NurWinkel, {6.1, 7.9}, schraeg, {5.988, 7.984}},  // straight on
           {NurWinkel, {3, 9}, schraeg, {3, 9}},              // 37 degrees off
           {NurRaster, {-1, 7.1}, schraeg, {-0.75, 7}}}) {
    const Punkt ist = Gefangen(Plan(), fang, punkt, linie, Fangecken(Plan(), std::nullopt));
    EXPECT_NEAR(ist.x, gefangen.x, 1e-9) << punkt.x << ' ' << punkt.y;
    EXPECT_NEAR(ist.y, gefangen.y, 1e-9) << punkt.x << ' ' << punkt.y;
  }
  const Punkt getippt = Abgetragen(Plan(), {1, 1}, {2, 90}, {5, 5});
  EXPECT_NEAR(getippt.x, 1, 1e-9);
  EXPECT_NEAR(getippt.y, -1, 1e-9);
  EXPECT_EQ(Masstext(Plan(), {1, 1}, getippt), "2 m < 90°");
  EXPECT_NEAR(Abgetragen(Plan(), {1, 1}, {10, std::nullopt}, {4, 5}).y, 9, 1e-9);
}

TEST(Planbearbeitung, WasGemeintIst) {
  using Stelle = std::optional<Planstelle>;
  const Lageplan plan = BereichWieGrundstueck(Plan());
  Artenwahl ohneAntenne = Artenwahl().set();
  ohneAntenne.reset(static_cast<std::size_t>(Planart::Antenne));
  struct Fall {
    Punkt punkt;
    Artenwahl arten;
    std::optional<std::size_t> gewaehlt;
    Stelle gemeint;
  };
  const Artenwahl alle = Artenwahl().set();
  for (const auto& [punkt, arten, gewaehlt, gemeint] :
       std::initializer_list<Fall>{{{8.1, 8}, alle, {}, Planstelle{2, {}}},
                                   {{8.1, 8}, ohneAntenne, {}, Planstelle{1, {}}},
                                   {{5.1, 9}, alle, {}, Planstelle{1, {}}},
                                   {{2, 2}, alle, {}, Planstelle{0, {}}},
                                   {{5.1, 5}, alle, 1, Planstelle{1, 0}},
                                   {{5.1, 5}, alle, 7, Planstelle{1, {}}},
                                   {{0.1, 3}, alle, {}, Planstelle{0, {}}},
                                   {{0.1, 3}, alle, 3, Planstelle{3, {}}},  // shares its edges
                                   {{-3, 2}, alle, 1, std::nullopt}}) {
    EXPECT_EQ(StelleBei(plan, punkt, 0.5, arten, gewaehlt), gemeint) << punkt.x << ' ' << punkt.y;
  }
}

TEST(Planbearbeitung, EckenUndUmrisse) {
  const Lageplan plan = Plan();
  const Umriss& haus = plan.objekte[1].punkte;
  EXPECT_EQ(NaechsteKante(haus, {15.5, 9}), 1U);
  EXPECT_EQ(NaechsteKante(haus, {4, 9}), 3U);
  const Lageplan mit = MitEcke(plan, {1, 3});
  EXPECT_EQ(mit.objekte[1].punkte.back(), (Punkt{5, 10}));
  const Lageplan dreieck = OhneEcke(plan, {1, 0}).value();
  EXPECT_EQ(dreieck.objekte[1].punkte.front(), (Punkt{15, 5}));
  EXPECT_FALSE(OhneEcke(dreieck, {1, 0}) || OhneEcke(plan, {2, 0}) || OhneEcke(plan, {1, 9}));
  EXPECT_EQ(Verschoben(plan, {1, 2}, {1, -1}).objekte[1].punkte[2], (Punkt{16, 14}));
  EXPECT_EQ(Verschoben(plan, {1, {}}, {1, -1}).objekte[1].punkte[0], (Punkt{6, 4}));
  EXPECT_EQ(Fangecken(plan, Planstelle{1, {}}).size(), 5U);
  EXPECT_EQ(Fangecken(plan, Planstelle{1, 2}).size(), 8U);
  Lageplan bereich = BereichWieGrundstueck(BereichWieGrundstueck(plan));
  ASSERT_EQ(bereich.objekte.size(), 4U);
  EXPECT_EQ(bereich.objekte.back().art, Planart::Bereich);
  EXPECT_EQ(bereich.objekte.back().punkte, plan.objekte[0].punkte);
  EXPECT_EQ(BereichWieGrundstueck({}), Lageplan());
}

TEST(Planbearbeitung, KarteEichen) {
  Hintergrund bild;
  bild.bildpunkte = {Punkt{0, 100}, Punkt{200, 100}};
  bild.abstand = 100;
  bild.ort = {10, 20};
  EXPECT_EQ(Bildstelle(bild, {60, 45}), (Punkt{100, 50}));
  const auto geeicht = Geeicht(bild, {60, 45}, {85, 45}, 10);
  ASSERT_TRUE(geeicht);
  EXPECT_EQ(geeicht->bildpunkte[1], (Punkt{150, 50}));
  EXPECT_EQ(Bildstelle(*geeicht, {60, 45}), (Punkt{100, 50}));
  EXPECT_EQ(Bildstelle(*geeicht, {70, 45}), (Punkt{150, 50}));
  EXPECT_EQ(Planort(*geeicht, {150, 50}), (Punkt{70, 45}));
  EXPECT_FALSE(Geeicht(bild, {60, 45}, {60, 45}, 10) || Geeicht(bild, {60, 45}, {61, 45}, 0) ||
               Geeicht(bild, {0, 45}, {60, 45}, 10));
}

}  // namespace
}  // namespace vesk
