#include "station/Baender.h"
#include "station/Katalogwechsel.h"
#include "tests/station/Tisch.h"

namespace vesk {
namespace {

struct Katalogwechsel : testing::Test, Tisch {
  Katalogwechsel() { Eingeben("14.2").Kabel("RG58", "20").Rechnen().Kopieren(); }
  /// The cable as the option and as column A have it, and what is to be said.
  std::string Wechsel(const Kataloge& neu) {
    const Meldungen meldungen = KatalogeGewechselt(s, k, neu);
    k = neu;
    std::string text;
    for (const int spalte : {0, 1}) {
      const int index = Kabelindex(s.Datenblattspalten.at(std::size_t(spalte)), k);
      text += (index < 0 ? "keins" : k.kabel.liste.at(std::size_t(index))) + " ";
    }
    text += KabelAktuell(s) ? "aktuell" : "veraltet";
    for (const Meldung& meldung : meldungen) text += ": " + meldung.hinweis.text;
    return text;
  }
  Kataloge Umgestellt(std::size_t a, std::size_t b) const {
    Kataloge neu = k;
    std::swap(neu.kabel.liste.at(a), neu.kabel.liste.at(b));
    std::swap(neu.kabel.kabel.at(a), neu.kabel.kabel.at(b));
    return neu;
  }
};

TEST_F(Katalogwechsel, KabelWerdenAnIhremNamenWiedergefunden) {
  s.UserGeaendert = false;
  const auto rg58 = std::size_t(Kabelindex(s, k));
  EXPECT_EQ(Wechsel(Umgestellt(rg58, 0)), "RG58 RG58 aktuell");
  EXPECT_TRUE(s.UserGeaendert) << "the file holds the place in the list";
  Kataloge anders = k;
  anders.kabel.kabel[0].Kabelwert[3] += 1;
  EXPECT_EQ(Wechsel(anders), "RG58 RG58 veraltet");
  Tun(KabelGleich);
  anders.kabel.liste[0] = "ZZ";
  EXPECT_EQ(Wechsel(anders),
            "keins keins veraltet: Im neuen Katalog fehlen Kabel dieser Station: RG58\n"
            "Ihre Verluste bleiben, wie sie sind. Gewählt ist dort kein Kabel mehr.");
  EXPECT_TRUE(Bandgrundlage(s, k).ends_with("Kein Kabel gewählt, 20 m: Verluste unbekannt."));
}

TEST_F(Katalogwechsel, AnderesKabelUndEinesOhneLaenge) {
  Kabel("Anderes Kabel", "20").Tun(KabelfeldGetippt, Kabelfeld::D100, std::string("5")).Tun(KabelGleich);
  EXPECT_EQ(Wechsel(Umgestellt(0, 1)), "Anderes Kabel RG58 aktuell");
  Kabel("RG58", "");
  Kataloge ohne = k;
  *std::find(ohne.kabel.liste.begin(), ohne.kabel.liste.end(), "RG58") = "ZZ";
  s.Datenblattspalten[1].KabelLaenge.clear();
  EXPECT_EQ(Wechsel(ohne), ohne.kabel.liste.at(std::size_t(ohne.kabel.auswahl)) + " keins aktuell");
}

}  // namespace
}  // namespace vesk
