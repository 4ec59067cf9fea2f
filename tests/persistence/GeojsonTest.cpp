#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "persistence/Abbildung.h"
#include "persistence/Lageplandatei.h"
#include "station/Planbearbeitung.h"
#include "tests/Tabelle.h"

namespace vesk {
namespace {

constexpr double Millimeter = 0.001;

std::string Eingesetzt(std::string text) {
  std::string ecken;
  for (int i = 0; i < 1000; ++i) ecken += (i == 0 ? "[7," : ",[7,") + std::to_string(51 + i * 1e-6) + "]";
  for (const auto& [kuerzel, inhalt] :
       {std::pair<const char*, std::string>("{r}", "[[7,51],[7.001,51],[7,51.001],[7,51]]"),
        {"{f}", R"({"type":"Feature")"},
        {"{g}", R"({"type":"Polygon","coordinates":)"},
        {"{k}", R"({"type":"FeatureCollection",)"},
        {"{tief}", std::string(1'000'000, '[')},
        {"{a}", "[[{ecken}]]"},
        {"{ecken}", ecken}}) {
    text = Ersetzt(text, kuerzel, inhalt);
  }
  return text;
}

TEST(Geojson, WasDarinStehenKann) {
  for (const Tabellenzeile& zeile : Tabelle("persistence/Geojson.csv")) {
    const Geojsonlesung lesung = GeojsonLesen(Eingesetzt(zeile["inhalt"]), {});
    const std::string hinweis = Ersetzt(zeile["hinweis"], "$", ";");
    for (const auto& [ist, soll] : {std::pair(lesung.fehler, zeile["fehler"]), {lesung.hinweis, hinweis}}) {
      EXPECT_TRUE(ist.empty() == soll.empty() && ist.find(soll) != std::string::npos) << zeile.text << "\n"
                                                                                      << ist;
    }
    std::ostringstream objekte;
    for (const Planobjekt& objekt : lesung.objekte) {
      objekte << (objekte.tellp() > 0 ? " " : "") << Artzeile(objekt.art).kennung << ":" << objekt.name << ":"
              << objekt.hoehe;
      EXPECT_EQ(objekt.punkte.size(), 3U) << zeile.text;
    }
    EXPECT_EQ(objekte.str(), zeile["objekte"]) << zeile.text;
    EXPECT_EQ(lesung.geo.has_value(), lesung.fehler.empty()) << zeile.text;
  }
}

/// Geodesics of 1000 m to the north and to the east of 7° E, 51° N, found with PROJ; the place itself in UTM.
struct Dreieck {
  const char* koordinaten;
  const char* crs;
};
constexpr Dreieck Dreiecke[] = {
    {"[[7,51],[7,51.008988896314186],[7.014245485331429,50.99999913157179],[7,51]]", "EPSG:4258"},
    {"[[359666.7037,5651728.6825],[359693.8297,5652728.1563],[360666.1758,5651701.5584]]", "EPSG:25832"},
    {"[[32359666.7037,5651728.6825],[32359693.8297,5652728.1563],[32360666.1758,5651701.5584]]", "EPSG:4647"},
};

TEST(Geojson, LaengenUndNordenSindDieDesGelaendes) {
  for (const double nord : {0., 90., 210.}) {
    Lageplan plan;
    plan.bezug = {20, -30};
    plan.geo = Geopunkt{7, 51};
    plan.nord = nord;
    for (const Dreieck& dreieck : Dreiecke) {
      const auto lesung =
          GeojsonLesen(R"({"type":"Polygon","crs":{"properties":{"name":")" + std::string(dreieck.crs) +
                           R"("}},"coordinates":[)" + dreieck.koordinaten + "]}",
                       plan);
      ASSERT_EQ(lesung.fehler, "");
      EXPECT_FALSE(lesung.geo);
      const Umriss& ist = lesung.objekte.at(0).punkte;
      const double s = 1000 * std::sin(nord * 3.14159265358979 / 180);
      const double c = 1000 * std::cos(nord * 3.14159265358979 / 180);
      for (const auto& [punkt, soll] : {std::pair(ist[0], Punkt{20, -30}),
                                        {ist[1], Punkt{20 + s, -30 + c}},
                                        {ist[2], Punkt{20 + c, -30 - s}}}) {
        EXPECT_NEAR(punkt.x, soll.x, 1.5 * Millimeter) << dreieck.crs << " " << nord;
        EXPECT_NEAR(punkt.y, soll.y, 1.5 * Millimeter) << dreieck.crs << " " << nord;
      }
    }
  }
}

/// UTM without a zone is taken for the zone that lies nearer.
TEST(Geojson, ZoneNachDemOrtDesPlans) {
  Lageplan plan;
  plan.geo = Geopunkt{13.377722, 52.516278};
  const auto lesung = GeojsonLesen(
      R"({"type":"Polygon","coordinates":[[[389919.27,5819699.44],[389920,5819699],[389920,5819700]]]})",
      plan);
  ASSERT_EQ(lesung.fehler, "");
  EXPECT_NEAR(lesung.objekte.at(0).punkte.at(0).x, 0, Millimeter);
}

TEST(Geojson, BezugspunktWirdVersetzt) {
  Lageplan plan;
  plan.nord = 30;
  plan.geo = {.laenge = 7, .breite = 51};
  const std::string flaeche = R"({"type":"Polygon","coordinates":[[[7,51],[7.002,51],[7.001,51.001]]]})";
  const auto vorher = GeojsonLesen(flaeche, plan).objekte.at(0).punkte;
  plan.bezug = {150, -90};
  plan.geo = GeoVersetzt(plan, {});
  const auto danach = GeojsonLesen(flaeche, plan).objekte.at(0).punkte;
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(vorher[i].x, danach[i].x, 0.01);
    EXPECT_NEAR(vorher[i].y, danach[i].y, 0.01);
  }
}

/// Found with PROJ.
TEST(Abbildung, Utm) {
  struct {
    int zone;
    Geopunkt ort;
    Punkt utm;
  } constexpr Faelle[] = {
      {32, {5.9, 47.3}, {265652.2066, 5243164.2448}},
      {32, {13.377722, 52.516278}, {796988.4745, 5827473.4973}},
      {33, {13.377722, 52.516278}, {389919.2704, 5819699.4385}},
      {33, {15, 55}, {500000, 6094791.4209}},
  };
  for (const auto& fall : Faelle) {
    const Punkt karte = Abgebildet(fall.ort, fall.zone * 6 - 183);
    EXPECT_NEAR(karte.x * 0.9996 + 500000, fall.utm.x, Millimeter);
    EXPECT_NEAR(karte.y * 0.9996, fall.utm.y, Millimeter);
    const Geopunkt ort = AusUtm(fall.zone, fall.utm.x, fall.utm.y);
    EXPECT_NEAR(ort.laenge, fall.ort.laenge, Millimeter / 70'000);
    EXPECT_NEAR(ort.breite, fall.ort.breite, Millimeter / 111'000);
  }
}

}  // namespace
}  // namespace vesk
