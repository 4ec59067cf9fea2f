#include "engine/Zahlen.h"
#include "station/Diagramme.h"
#include "station/Kurven.h"
#include "tests/station/Tisch.h"

namespace vesk {
namespace {

struct Schaubilder : testing::Test, Tisch {
  /// What the main window gives for a power resp. distance of a curve.
  void WieGerechnet(const Kurvenschar& schar, Modus modus) {
    for (std::size_t i = 0; i < schar.kurven.front().size(); i += 9) {
      Rechenwerte werte = s.werte;
      werte.PWRText = std::to_string(schar.kurven[0][i].x);
      const Rechenergebnis e = Berechnen(werte, {.modus = modus, .afu = s.einstellungen.AFu});
      const std::array<float, 3> erwartet = {*e.ohneHSM, *e.HSMvde, *e.HSM306};
      for (std::size_t art = 0; art < erwartet.size(); ++art) {
        const auto& y = schar.kurven.at(art).at(i).y;
        EXPECT_EQ(y.has_value(), erwartet.at(art) > 0);
        EXPECT_NEAR(y.value_or(0), double{erwartet.at(art)}, 1e-4 * double{erwartet.at(art)});
      }
    }
  }
};

TEST_F(Schaubilder, AbstandUndLeistungLiegenAufDerRechnung) {
  EXPECT_EQ(AbstandUeberLeistung(s).grund, "Im Hauptfenster fehlen Frequenz oder Sendeleistung.");
  for (const char* const qrg : {"14.2", "144", "50.5"}) {
    Tun(BetriebsartGeklickt, 0).Eingeben(qrg, "100", "6", "1.5", "3").Rechnen();
    const Kurvenschar abstand = AbstandUeberLeistung(s);
    const Kurvenschar leistung = LeistungUeberAbstand(s);
    WieGerechnet(abstand, Modus::Abstand);
    WieGerechnet(leistung, Modus::Leistung);
    EXPECT_EQ(abstand.jetzt, 100);
    EXPECT_EQ(Formatieren(float(*abstand.werte[0])), Ohne());
    EXPECT_EQ(Formatieren(float(leistung.jetzt)), Ohne());
    EXPECT_NEAR(*leistung.werte[0], 100, 1e-3);
    EXPECT_EQ(abstand.kurven[0].front().x, 2);
    EXPECT_EQ(abstand.kurven[0].back().x, 500);
  }
  Tun(ModusGeklickt).Eingeben("14.2", "10", "2.15", "1").Rechnen();
  EXPECT_EQ(LeistungUeberAbstand(s).jetzt, 10);
  EXPECT_EQ(Formatieren(float(AbstandUeberLeistung(s).jetzt)), Ohne());
  EXPECT_NEAR(*AbstandUeberLeistung(s).werte[0], 10, 1e-4);
  Tippen(Eingabefeld::Gewinn, "-9999").Verlassen();
  EXPECT_EQ(AbstandUeberLeistung(s).grund, "Gleitkommafehler in der Berechnung.");
}

/// The least and the greatest frequency with a value.
std::pair<double, double> Definiert(const Kurve& kurve) {
  std::pair<double, double> bereich{};
  for (const Kurvenpunkt& punkt : kurve) {
    if (!punkt.y) continue;
    if (bereich.first == 0) bereich.first = punkt.x;
    bereich.second = punkt.x;
  }
  return bereich;
}

TEST_F(Schaubilder, GrenzwerteEndenWoDieVorschriftEndet) {
  const auto kurven = Grenzwertkurven(0.01, 100000, {GrenzwertAM, GrenzwertTV, GrenzwertGSM});
  const std::pair<double, double> erwartet[] = {
      {0.01, 100000}, {0.03, 100}, {79, 1100}, {850, 2500}, {0.05, 50}};
  ASSERT_EQ(kurven.size(), std::size(erwartet));
  for (std::size_t i = 0; i < kurven.size(); ++i) {
    const auto [von, bis] = Definiert(kurven[i].kurve);
    EXPECT_NEAR(von / erwartet[i].first, 1, 1e-6) << kurven[i].name;
    EXPECT_NEAR(bis / erwartet[i].second, 1, 1e-6) << kurven[i].name;
  }
  EXPECT_EQ(kurven[2].name, "HSM VDE (TV)");
  // The step at 2 GHz is one, not a slope over half a decade.
  const Kurve& ohne = kurven[0].kurve;
  const auto stufe =
      std::find_if(ohne.begin(), ohne.end(), [](const auto& punkt) { return punkt.x >= 2000; });
  EXPECT_EQ(*stufe->y, 61);
  EXPECT_NEAR(*std::prev(stufe)->y, 61.49, 0.01);
}

TEST_F(Schaubilder, DieBaenderDerSpaltenStehenBeiIhrenGrenzwerten) {
  Eingeben("7.05").Rechnen().Kopieren().Eingeben("7.05", "10").Rechnen().Kopieren();
  Tun(AFuUmschalten).Eingeben("0.005").Tun(GrenzwerttypGeklickt, 2).Rechnen();
  const Grenzwertbild bild = GrenzwerteDerStation(s);
  ASSERT_EQ(bild.marken.size(), 2U);
  EXPECT_EQ(bild.marken[0].name + ',' + bild.marken[1].name, "AB,");
  EXPECT_EQ(bild.marken[0].grenzwerte.frequenz.hsm, 7.1F);  // of the band, although AFu is off now
  EXPECT_EQ(bild.marken[1].grenzwerte.frequenz.hsm, 0.005F);
  EXPECT_LT(bild.von, 0.005);
  EXPECT_EQ(bild.kurven.size(), 4U);  // AM of the columns, GSM of the main window
}

TEST_F(Schaubilder, HoechstensFuenfKabel) {
  EXPECT_EQ(GezeigteKabel(s, k), std::vector{0});
  for (int i = 6; i > 0; --i) Tun(KabelAnkreuzen, i, true);
  Tun(KabelAnkreuzen, 99, true);
  EXPECT_EQ(GezeigteKabel(s, k), (std::vector{0, 3, 4, 5, 6}));
  EXPECT_EQ(gesagt.size(), 3U);
  Tun(KabelAnkreuzen, 0, false).Eingeben("20");
  const std::vector<Kabelkurve> kurven = Kabelkurven(s, k);
  ASSERT_EQ(kurven.size(), 4U);
  EXPECT_EQ(kurven[0].name, "RG174");
  EXPECT_NEAR(*kurven[0].jetzt, 10.1, 0.01);
  EXPECT_NEAR(*kurven[0].kurve.back().y, 186, 0.01);
  Eingeben("10000");
  EXPECT_EQ(Kabelkurven(s, k)[0].jetzt, std::nullopt);
}

}  // namespace
}  // namespace vesk
