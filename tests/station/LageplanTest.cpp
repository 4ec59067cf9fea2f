#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>
#include <random>

#include "engine/Zahlen.h"
#include "station/Papiere.h"
#include "station/Passung.h"
#include "station/Summenzone.h"
#include "tests/station/Tisch.h"

namespace vesk {

namespace {

constexpr double Bogen = std::numbers::pi / 180;

Umriss Rechteck(double x, double y, double breite, double hoehe) {
  return {{x, y}, {x + breite, y}, {x + breite, y + hoehe}, {x, y + hoehe}};
}

Planobjekt Objekt(Planart art, Umriss punkte, double hoehe = 0, Nutzung nutzung = Nutzung::Eigen) {
  Planobjekt objekt;
  objekt.art = art;
  objekt.punkte = std::move(punkte);
  objekt.hoehe = hoehe;
  objekt.nutzung = nutzung;
  return objekt;
}

Planobjekt Antenne(Punkt mast) {
  Planobjekt objekt = Objekt(Planart::Antenne, {mast});
  objekt.spalten.set(0);
  return objekt;
}

Spaltenzone Kugel(double abstand, std::optional<double> hoehe) {
  Spaltenzone zone;
  zone.spalte = 1;
  zone.hoehe = hoehe;
  zone.abstand.fill(abstand);
  zone.bis = 360;
  return zone;
}

/// 20 m at the front, then less and less, 4 m to the side.
Spaltenzone Richtantenne(Winkelebene ebene, double von, double bis, double hoehe) {
  Spaltenzone zone = Kugel(20, hoehe);
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) zone.abstand.at(i) = 20 - 2.0 * static_cast<double>(i);
  zone.ebene = ebene;
  zone.von = von;
  zone.bis = bis;
  return zone;
}

TEST(Zonen, ReichweiteVonHand) {
  constexpr Hoehen Grund = UeberGrund;
  const Spaltenzone fest = Richtantenne(Winkelebene::Horizontal, 90, 90, 10);
  const Spaltenzone gedreht = Richtantenne(Winkelebene::Horizontal, 350, 370, 10);
  const Spaltenzone hoch = Richtantenne(Winkelebene::Vertikal, 0, 360, 10);
  struct Fall {
    const char* name;
    Spaltenzone zone;
    double azimut;
    double breite;
    std::optional<Hoehen> hoehen;
    double weite;
  };
  const Fall faelle[] = {
      {"ganz", Kugel(10, 8), 0, 1, {}, 10},
      {"2 m über Grund, 6 m darunter", Kugel(10, 8), 0, 1, Grund, 8},
      {"im Haus bis zur Antenne", Kugel(10, 8), 0, 1, Hoehen{0, 9}, 10},
      {"über allem", Kugel(5, 8), 0, 1, Grund, 0},
      {"ohne Höhe überall", Kugel(10, {}), 0, 1, Grund, 10},
      {"vorn", fest, 90, 0, {}, 20},
      {"15 Grad daneben", fest, 105, 0, {}, 18},
      {"Sektorgrenze: der größere", fest, 100, 0, {}, 20},
      {"75 Grad auf der anderen Seite", fest, 15, 0, {}, 6},
      {"hinten gespiegelt", fest, 270, 0, {}, 20},
      {"schräg hinten", fest, 225, 0, {}, 12},
      {"über Norden hinweg", gedreht, 0, 0, {}, 20},
      {"in der Drehspanne", gedreht, 8, 0, {}, 20},
      {"21 Grad neben der Drehspanne", gedreht, 31, 0, {}, 16},
      {"hinter der Drehspanne", gedreht, 180, 0, {}, 20},
      {"ein Grad trifft zwei Sektoren", fest, 119.5, 1, {}, 16},
      {"unter jedem Sektor", hoch, 0, 1, Hoehen{0, 0}, 0},
      {"am oberen Rand eines Sektors", hoch, 0, 1, Hoehen{2, 2}, 16 * std::cos(30 * Bogen)},
      {"in Höhe der Antenne", hoch, 0, 1, Hoehen{10, 10}, 20},
      {"höher als die Sektorgrenze", hoch, 0, 1, Hoehen{13.6, 13.6}, 17.637},
  };
  for (const Fall& fall : faelle) {
    EXPECT_NEAR(Reichweite(fall.zone, fall.azimut, fall.breite, fall.hoehen), fall.weite, 0.02) << fall.name;
  }
}

TEST(Zonen, EinSchnittReichtNieWeiterAlsDerAbstand) {
  const Spaltenzone zone = Richtantenne(Winkelebene::Vertikal, 0, 360, 12.5);
  for (double z = 0; z < 40; z += 0.037) EXPECT_LE(Reichweite(zone, 0, 0, Hoehen{z, z}), 20);
}

TEST(Zonen, FeldIstEinsWoDieReichweiteEndet) {
  for (const Winkelebene ebene : {Winkelebene::Keine, Winkelebene::Horizontal, Winkelebene::Vertikal}) {
    const Spaltenzone zone = Richtantenne(ebene, 40, 70, 9);
    for (const auto& hoehen :
         {std::optional<Hoehen>{}, std::optional(UeberGrund), std::optional(Hoehen{0, 7})}) {
      for (int azimut = 0; azimut < 360; azimut += 7) {
        const double weite = Reichweite(zone, azimut, 1, hoehen);
        if (weite == 0) continue;
        EXPECT_GE(Feldverhaeltnis(zone, azimut, 1, weite - 1e-6, hoehen), 1 - 1e-9);
        EXPECT_LT(Feldverhaeltnis(zone, azimut, 1, weite + 1e-6, hoehen), 1);
      }
    }
  }
}

/// Column A at the centre of a controlled plot; `d` is its distance without pacemaker in m.
struct Grundstueck : Tisch {
  Grundstueck() {
    Eingeben("14.2", "400", "6").Rechnen().Kopieren();
    s.lageplan.objekte = {Antenne({})};
    d = double{Hoechstabstand(ZonenBestimmen(s).front())};
    s.lageplan.objekte = {Antenne({}), Objekt(Planart::Grundstueck, Rechteck(-d, -d, 2 * d, 2 * d)),
                          Objekt(Planart::Bereich, Rechteck(-d, -d, 2 * d, 2 * d))};
  }
  Planobjekt& Bereich() { return s.lageplan.objekte[2]; }
  Planobjekt& Mastort() { return s.lageplan.objekte[0]; }
  Zone OhneHSM() const { return ZonenBestimmen(s).front(); }
  Passung Pruefen() const { return PassungPruefen(Planpruefung(s.lageplan), s.lageplan, OhneHSM()); }
  void Nachbarhaus(Umriss umriss, double hoehe) {
    s.lageplan.objekte.push_back(Objekt(Planart::Gebaeude, std::move(umriss), hoehe, Nutzung::Nachbar));
  }

  double d = 0;
};

TEST(Zonen, SindDieAbstaendeDesDatenblatts) {
  Grundstueck tisch;
  const auto zonen = ZonenBestimmen(tisch.s);
  ASSERT_EQ(zonen.size(), 3U);
  for (const Zone& zone : zonen) {
    constexpr std::array Zeilen = {ZeileOhneHSM, ZeileHSM306, ZeileHSMvde};
    EXPECT_EQ(Formatieren(static_cast<float>(Hoechstabstand(zone))),
              tisch.Blatt(1, Zeilen.at(static_cast<std::size_t>(zone.art))));
    EXPECT_FALSE(Veraltet(zone));
  }
  tisch.Zelle(1, ZeileLeistung, "500");
  EXPECT_TRUE(Veraltet(tisch.OhneHSM()));
  EXPECT_NEAR(Hoechstabstand(tisch.OhneHSM()), tisch.d * std::sqrt(1.25), 1e-4);
}

TEST(Zonen, TabelleUndRichtungDerSpalte) {
  Grundstueck tisch;
  auto& winkel = tisch.s.Datenblattspalten[1].Winkel;
  winkel = {"0", "0", "0", "6.0206", "20", "20", "20", "20", "20"};
  tisch.Zelle(1, ZeileRichtung, "90°").Zelle(1, ZeileHoehe, "12,5 m");
  tisch.Mastort().ebene = Winkelebene::Horizontal;
  const Spaltenzone zone = tisch.OhneHSM().spalten.front();
  EXPECT_EQ(zone.hoehe, 12.5);
  EXPECT_NEAR(Reichweite(zone, 90, 0), tisch.d, 1e-5);
  EXPECT_NEAR(Reichweite(zone, 125, 0), tisch.d / 2, 1e-5);
  EXPECT_NEAR(Reichweite(zone, 0, 0), tisch.d / 10, 1e-5);
  tisch.Zelle(1, ZeileRichtung, "ND");
  EXPECT_NEAR(Reichweite(tisch.OhneHSM().spalten.front(), 0, 0), tisch.d, 1e-5);
  winkel[8] = "viel";
  EXPECT_EQ(tisch.OhneHSM().spalten.front().ebene, Winkelebene::Keine);
}

TEST(Passung, WoUndUmWievielMeter) {
  Grundstueck tisch;
  const double d = tisch.d;
  EXPECT_EQ(tisch.Pruefen().passt, Passt::ImGrundriss);  // touches the edge on all sides
  tisch.Mastort().punkte = {{1, 0}};
  Passung passung = tisch.Pruefen();
  EXPECT_EQ(passung.passt, Passt::Nicht);
  ASSERT_EQ(passung.verstoesse.size(), 1U);
  EXPECT_NEAR(passung.verstoesse[0].ueber, 1, 0.001);
  EXPECT_NEAR(passung.verstoesse[0].ort.x, d + 1, 0.001);
  EXPECT_EQ(Verstosstext(tisch.s.lageplan, {1, 0}, passung.verstoesse[0]),
            "reicht im O bis 2 m über Grund 1.00 m über den kontrollierten Bereich hinaus");

  tisch.Zelle(1, ZeileHoehe, Formatieren(static_cast<float>(2 + d * 0.9)));
  passung = tisch.Pruefen();
  EXPECT_EQ(passung.passt, Passt::InDerHoehe);
  EXPECT_NEAR(passung.imGrundriss, 1, 0.001);

  // The wall of a tall house on the controlled ground, as near as half the distance.
  tisch.Nachbarhaus(Rechteck(1 - 20, d / 2, 40, 5), 100);
  passung = tisch.Pruefen();
  ASSERT_EQ(passung.verstoesse.size(), 1U);
  EXPECT_EQ(passung.verstoesse[0].gebaeude, 3U);
  EXPECT_NEAR(passung.verstoesse[0].ueber, d / 2, 0.01);
  tisch.s.lageplan.objekte[3].hoehe = 1;
  EXPECT_EQ(tisch.Pruefen().passt, Passt::InDerHoehe);
  tisch.s.lageplan.objekte[3].hoehe = 0;  // not told
  EXPECT_EQ(tisch.Pruefen().passt, Passt::Nicht);
}

TEST(Passung, EinfallenderWinkelDesBereichsZaehlt) {
  Grundstueck tisch;
  const double d = tisch.d;
  // A notch, narrower than two corners of the zone are apart.
  tisch.Bereich().punkte = {{-d, -d}, {d, -d}, {d, -0.1}, {d / 2, 0}, {d, 0.1}, {d, d}, {-d, d}};
  EXPECT_EQ(tisch.Pruefen().passt, Passt::Nicht);
  tisch.Bereich().punkte = {{-d, -d}, {d, -d}, {-d, d}, {d, d}};  // crosses itself
  EXPECT_EQ(tisch.Pruefen().passt, Passt::Nicht);
}

TEST(Passung, WasGanzInnenLiegtZaehlt) {
  Grundstueck tisch;
  const double d = tisch.d;
  tisch.Zelle(1, ZeileHoehe, "1");
  tisch.Nachbarhaus(Rechteck(-2 * d, -2 * d, 4 * d, 4 * d), 9);  // the zone does not reach its walls
  Passung passung = tisch.Pruefen();
  ASSERT_EQ(passung.verstoesse.size(), 1U);
  EXPECT_NEAR(passung.verstoesse[0].ueber, d, 0.001);
  // Deepest neither at a wall nor in the middle of what they share.
  tisch.s.lageplan.objekte.back().punkte = Rechteck(-0.2 * d, -2 * d, 4 * d, 4 * d);
  EXPECT_NEAR(tisch.Pruefen().verstoesse.at(0).ueber, d, 0.005);
  tisch.s.lageplan.objekte.pop_back();
  // Two areas surround a square; the zone goes beyond it on all sides.
  const double h = d / 4;
  tisch.Bereich().punkte = {{h, -d}, {h, 0}, {0, 0}, {0, 2 * h}, {h, 2 * h}, {h, d}, {-d, d}, {-d, -d}};
  tisch.s.lageplan.objekte.push_back(Objekt(
      Planart::Bereich, {{h, -d}, {d, -d}, {d, d}, {h, d}, {h, 2 * h}, {2 * h, 2 * h}, {2 * h, 0}, {h, 0}}));
  passung = tisch.Pruefen();
  ASSERT_EQ(passung.verstoesse.size(), 1U);
  EXPECT_NEAR(passung.verstoesse[0].ueber, h, 0.001);
}

TEST(Passung, AbhilfeIstKnapp) {
  Grundstueck tisch;
  const double d = tisch.d;
  const double frei = 0.75 * d + 0.2;  // to the edge in the east
  tisch.Bereich().punkte = Rechteck(-d - 0.2, -d - 0.2, 2 * d + 0.4, 2 * d + 0.4);
  tisch.Mastort().punkte = {{d / 4, 0}};
  tisch.Zelle(1, ZeileHoehe, "1");
  const Abhilfe abhilfe = AbhilfeSuchen(tisch.s, tisch.OhneHSM());
  ASSERT_EQ(abhilfe.leistungen.size(), 1U);
  EXPECT_NEAR(abhilfe.leistungen[0].watt, 400 * frei * frei / (d * d), 1.5);
  ASSERT_TRUE(abhilfe.hoehe && abhilfe.verschiebung);
  EXPECT_NEAR(*abhilfe.hoehe, 2 + std::sqrt(d * d - frei * frei), 0.1);
  EXPECT_NEAR(abhilfe.verschiebung->weite, d / 4 - 0.2, 0.1);
  EXPECT_EQ(abhilfe.verschiebung->azimut, 270);
  // Each of them is enough, and a little less is not.
  const auto passt = [&](const Station& s) {
    return PassungPruefen(Planpruefung(s.lageplan), s.lageplan, ZonenBestimmen(s).front()).passt !=
           Passt::Nicht;
  };
  const auto mit = [&](Zeile zeile, double wert) {
    Station s = tisch.s;
    ZelleSetzen(s, 1, zeile, Formatieren(static_cast<float>(wert)));
    return passt(s);
  };
  EXPECT_TRUE(mit(ZeileLeistung, abhilfe.leistungen[0].watt));
  EXPECT_FALSE(mit(ZeileLeistung, abhilfe.leistungen[0].watt * 1.01));
  EXPECT_TRUE(mit(ZeileHoehe, *abhilfe.hoehe));
  EXPECT_FALSE(mit(ZeileHoehe, *abhilfe.hoehe - 0.11));
  Station s = tisch.s;
  s.lageplan.objekte[0].punkte = {abhilfe.verschiebung->ort};
  EXPECT_TRUE(passt(s));
}

/// Plans by chance: patterns, heights, north and places.
struct Zufallsplan {
  explicit Zufallsplan(unsigned saat) : zufall(saat) {
    plan.nord = Zahl(0, 360);
    for (int i = 0; i < 3; ++i) {
      plan.objekte.push_back(Antenne({Zahl(-20, 20), Zahl(-20, 20)}));
      Spaltenzone spalte = Richtantenne(static_cast<Winkelebene>(zufall() % 3), Zahl(0, 360), 0, Zahl(0, 15));
      spalte.bis = spalte.von + Zahl(0, 200);
      for (double& abstand : spalte.abstand) abstand = Zahl(1, 20);
      zonen.push_back(
          {plan.objekte.size() - 1, Winkelkurve::OhneHSM, {spalte, Kugel(Zahl(1, 15), Zahl(0, 15))}});
    }
  }
  double Zahl(double von, double bis) { return std::uniform_real_distribution<>(von, bis)(zufall); }

  std::mt19937 zufall;
  Lageplan plan;
  std::vector<Zone> zonen;
};

bool InEinem(const std::vector<Umriss>& umrisse, Punkt punkt, double spielraum) {
  return std::any_of(umrisse.begin(), umrisse.end(), [&](const Umriss& umriss) {
    return Innerhalb(umriss, punkt) || Randabstand(umriss, punkt) < spielraum;
  });
}

TEST(Zonen, EigenschaftenAllerPlaene) {
  for (unsigned saat = 1; saat <= 8; ++saat) {
    Zufallsplan z(saat);
    const std::optional<Hoehen> hoehen = saat % 2 == 0 ? std::optional(UeberGrund) : std::nullopt;
    const auto summe = Summenumriss(z.plan, z.zonen, Winkelkurve::OhneHSM, hoehen);
    for (const Zone& zone : z.zonen) {
      const Umriss umriss = Grundriss(z.plan, zone, hoehen);
      if (umriss.empty()) continue;
      EXPECT_FALSE(Umrissfehler(umriss)) << saat;
      EXPECT_TRUE(Innerhalb(umriss, Mast(z.plan, zone))) << saat;
      Zone staerker = zone;
      for (Spaltenzone& spalte : staerker.spalten) {
        for (double& abstand : spalte.abstand) abstand *= 1.1;
      }
      const Umriss groesser = Grundriss(z.plan, staerker, hoehen);
      for (const Punkt& p : umriss) {
        EXPECT_TRUE(InEinem({groesser}, p, 1e-9)) << saat;
        EXPECT_TRUE(InEinem(summe, p, 0.05)) << saat << " " << p.x << " " << p.y;
      }
    }
  }
}

TEST(Passung, DrehenUndSchiebenDesGanzenAendertNichts) {
  for (unsigned saat = 1; saat <= 6; ++saat) {
    Zufallsplan z(saat);
    z.plan.objekte.push_back(Objekt(Planart::Bereich, {{-18, -25}, {22, -15}, {25, 18}, {3, 6}, {-20, 24}}));
    z.plan.objekte.push_back(Objekt(Planart::Gebaeude, Rechteck(2, 5, 9, 7), 6, Nutzung::Andere));
    Lageplan gedreht = z.plan;
    const double winkel = z.Zahl(0, 360);
    gedreht.nord += winkel;
    const auto drehen = [&](Punkt p) {
      const double c = std::cos(winkel * Bogen);
      const double s = std::sin(winkel * Bogen);
      return Punkt{p.x * c + p.y * s + 300, p.y * c - p.x * s - 70};
    };
    for (Planobjekt& objekt : gedreht.objekte) {
      for (Punkt& p : objekt.punkte) p = drehen(p);
    }
    for (const Zone& zone : z.zonen) {
      const Passung hier = PassungPruefen(Planpruefung(z.plan), z.plan, zone);
      const Passung dort = PassungPruefen(Planpruefung(gedreht), gedreht, zone);
      EXPECT_EQ(hier.passt, dort.passt);
      EXPECT_EQ(Passend(Planpruefung(z.plan), z.plan, zone), hier.passt != Passt::Nicht);
      ASSERT_EQ(hier.verstoesse.size(), dort.verstoesse.size());
      for (std::size_t i = 0; i < hier.verstoesse.size(); ++i) {
        EXPECT_NEAR(hier.verstoesse[i].ueber, dort.verstoesse[i].ueber, Passungstoleranz);
      }
      // The same by trying many points.
      const Umriss umriss = Grundriss(z.plan, zone, UeberGrund);
      double weitester = 0;
      const Gebiet bereich({z.plan.objekte[3].punkte});
      for (const Punkt& p : umriss) weitester = std::max(weitester, bereich.Abstand(p));
      const bool ueberGrund = !hier.verstoesse.empty() && !hier.verstoesse[0].gebaeude;
      EXPECT_GE((ueberGrund ? hier.verstoesse[0].ueber : Passungstoleranz) + 1e-9, weitester) << saat;
    }
  }
}

TEST(Lageplan, JedesOffeneWirdGenannt) {
  struct Weit : Grundstueck {
    Weit() {
      Bereich().punkte = Rechteck(-99, -99, 198, 198);
      Zelle(1, ZeileHoehe, "2");
    }
  };
  EXPECT_EQ(LageplanPruefen(Weit().s), std::vector<Planbefund>());
  struct Fall {
    std::function<void(Weit&)> aendern;
    const char* text;
  };
  const Fall faelle[] = {
      {[](auto& t) { t.Bereich().art = Planart::Nachbar; },
       "Der kontrollierte Bereich ist nicht eingezeichnet; ohne ihn paßt keine Zone."},
      {[](auto& t) { t.s.lageplan.objekte[1].punkte.pop_back(), t.s.lageplan.objekte[1].punkte.pop_back(); },
       "Grundstück 1: Ein Umriß braucht mindestens drei Ecken. Das Objekt zählt nicht."},
      {[](auto& t) { t.Nachbarhaus(Rechteck(30, 30, 9, 9), 0); },
       "Gebäude 1: Die Höhe fehlt; das Gebäude zählt in jeder Höhe."},
      {[](auto& t) { t.Mastort().spalten.reset(); },
       "Antenne 1: Der Antenne ist keine Spalte des Datenblatts zugeordnet. Das Objekt zählt nicht."},
      {[](auto& t) { t.Mastort().spalten.set(1); },
       "Antenne 1, Spalte B: Aus den Angaben der Spalte läßt sich kein Sicherheitsabstand berechnen; ihre "
       "Zone "
       "fehlt."},
      {[](auto& t) { t.Zelle(1, ZeileHoehe, "hoch"); },
       "Antenne 1, Spalte A: Die Montagehöhe ist keine Zahl; die Zone zählt in jeder Höhe."},
      {[](auto& t) { t.Mastort().ebene = Winkelebene::Vertikal; },
       "Antenne 1, Spalte A: Die Winkeltabelle der Spalte ist unvollständig; gezeichnet ist ein Kreis."},
      {[](auto& t) {
         t.Mastort().ebene = Winkelebene::Horizontal;
         t.s.Datenblattspalten[1].Winkel.fill("3");
         t.Zelle(1, ZeileRichtung, "ND");
       },
       "Antenne 1, Spalte A: Die Strahlungsrichtung ist keine Gradzahl; die Winkeltabelle zählt nach allen "
       "Seiten."},
      {[](auto& t) { t.Zelle(1, ZeileLeistung, "1"); },
       "Antenne 1, Spalte A: Die Sicherheitsabstände im Datenblatt sind veraltet."},
  };
  for (const Fall& fall : faelle) {
    Weit t;
    fall.aendern(t);
    const auto befunde = LageplanPruefen(t.s);
    ASSERT_FALSE(befunde.empty()) << fall.text;
    EXPECT_EQ(befunde.front().text, fall.text);
    EXPECT_EQ(PapierePruefen(t.s, t.k).back().text, "Lageplan: " + befunde.back().text);
  }
}

}  // namespace

}  // namespace vesk
