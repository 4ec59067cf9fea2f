#include <gtest/gtest.h>

#include <cmath>

#include "engine/Bandlogik.h"
#include "engine/Grenzwert.h"
#include "engine/HSM.h"
#include "engine/Rechenwerte.h"
#include "engine/Zahlen.h"
#include "tests/Tabelle.h"

namespace vesk {
namespace {

TEST(Grenzwert, Personenschutz) {
  for (const Tabellenzeile& zeile : Tabelle("engine/Grenzwert.csv")) {
    EXPECT_EQ(Formatieren(Grenzwert(zeile.Wert("qrg"), zeile.Wert("f"))), zeile["grenzwert"]) << zeile.text;
  }
}

TEST(Bandlogik, JedesBandVonRandZuRand) {
  const std::vector<Tabellenzeile> tabelle = Tabelle("engine/Baender.csv");
  ASSERT_EQ(Amateurbaender().size(), tabelle.size());
  for (std::size_t i = 0; i < tabelle.size(); ++i) {
    const Tabellenzeile& zeile = tabelle[i];
    SCOPED_TRACE(zeile.text);
    const Amateurband& band = Amateurbaender()[i];
    EXPECT_EQ(band.name, zeile["name"]);
    EXPECT_EQ(band.kennung, zeile["kennung"]);
    const Auswertefrequenzen auswertung{zeile.Wert("grenzwert"), zeile.Wert("hsm"), zeile.Wert("lambda")};
    const float von = zeile.Wert("von");
    const float bis = zeile.Wert("bis");
    for (const float qrg : {von, bis}) {
      EXPECT_EQ(AmateurbandVon(qrg), &band);
      EXPECT_EQ(Bandlogik(qrg, true), auswertung);
      EXPECT_EQ(Bandlogik(qrg, false), (Auswertefrequenzen{qrg, qrg, qrg}));
    }
    for (const float qrg : {std::nextafter(von, 0.0F), std::nextafter(bis, 1e9F)}) {
      EXPECT_EQ(AmateurbandVon(qrg), nullptr);
      EXPECT_EQ(Bandlogik(qrg, true), (Auswertefrequenzen{qrg, qrg, qrg}));
    }
  }
}

TEST(Bandlogik, Rechenbereich) {
  EXPECT_TRUE(ImRechenbereich(0.003F) && ImRechenbereich(300000));
  EXPECT_FALSE(ImRechenbereich(0.0029F) || ImRechenbereich(300001));
}

/// The reference figures have six significant digits.
void Gleich(double wert, const Tabellenzeile& zeile, const char* spalte) {
  const double referenz = static_cast<double>(zeile.Wert(spalte));
  EXPECT_NEAR(wert, referenz, 6e-6 * referenz) << spalte << " in " << zeile.text;
}

TEST(HSM306, Grenzwerte) {
  for (const Tabellenzeile& zeile : Tabelle("engine/HSM306.csv")) {
    const HSM306Werte werte = HSM306(zeile.Wert("f"));
    Gleich(werte.Uss, zeile, "Uss");
    Gleich(werte.Spitzenfeld, zeile, "spitzenfeld");
    Gleich(werte.Grenzwert, zeile, "grenzwert");
  }
}

TEST(HSMvde, GrenzwerteUndKandidaten) {
  std::map<std::string, std::int16_t> typen = {{"AM", 0}, {"TV", 1}, {"GSM", 2}};
  for (const Tabellenzeile& zeile : Tabelle("engine/HSMvde.csv")) {
    const float f = zeile.Wert("f");
    const HSMvdeWerte werte = HSMvde(f, typen.at(zeile["typ"]));
    Gleich(werte.Uss, zeile, "Uss");
    Gleich(werte.Grenzwert, zeile, "grenzwert");
    std::string kandidaten;
    for (int i = 0; i < werte.Anzahl; ++i) {
      kandidaten += (i > 0 ? " " : "") + Kandidatentext(werte.Kandidaten.at(static_cast<std::size_t>(i)));
    }
    EXPECT_EQ(kandidaten, zeile["kandidaten"]) << zeile.text;
    EXPECT_EQ(werte.ausserhalb, f < 0.03F || f > 2500) << zeile.text;
  }
  EXPECT_EQ(HSMvde(900, 7), HSMvde(900, GrenzwertGSM));
}

}  // namespace
}  // namespace vesk
