#include "engine/Zahlen.h"
#include "fuzz/Vorrat.h"
#include "station/Sendeart.h"

namespace vesk {

namespace {

constexpr std::size_t Atv = 5;  // this one and those behind it exclude all others

/// At most three modes are named; a factor below 1 is as large as that of each of them.
void WahlPruefen(const Sendeartkreuze& kreuze) {
  const Sendeartwahl wahl = ModulationsFaktorErmitteln(kreuze);
  Pruefen(wahl.anzahl == std::count(kreuze.begin(), kreuze.end(), true));
  Pruefen(wahl.faktor > 0 && wahl.faktor <= 1);
  for (std::size_t i = 0; i < kreuze.size(); ++i) {
    Pruefen(!kreuze.at(i) || wahl.faktor >= Zahl(Sendearten.at(i).faktor));
  }
  Pruefen((wahl.anzahl > 0 && wahl.anzahl <= 3) || wahl.faktor == 1);
  // What is written names the boxes, as far as it names them at all.
  const Sendeartkreuze gelesen = KreuzeAusKuerzeln(wahl.text);
  if (wahl.anzahl <= 3 && !kreuze.back()) Pruefen(gelesen == kreuze);
}

void KlickPruefen(Sendeartkreuze kreuze, int index) {
  const std::optional<Sendeartfolge> folge = OptionModulation(kreuze, index);
  Pruefen(folge.has_value() == (index >= 0 && index < static_cast<int>(kreuze.size())));
  if (!folge) return;
  const auto allein = std::count(folge->kreuze.begin() + Atv, folge->kreuze.end(), true);
  const auto alle = std::count(folge->kreuze.begin(), folge->kreuze.end(), true);
  Pruefen(allein == 0 || (allein == 1 && alle == 1));
  WahlPruefen(folge->kreuze);
}

/// Whatever stands around it and however it is written, a name is found.
void ZellePruefen(const std::string& zelle, const std::string& davor) {
  const Sendeartkreuze kreuze = ModulationsArtAnkreuzen(zelle);
  Pruefen(!kreuze.back());
  WahlPruefen(kreuze);
  WahlPruefen(KreuzeAusKuerzeln(zelle));
  std::string gross = zelle;
  for (char& z : gross) z = z >= 'a' && z <= 'z' ? static_cast<char>(z - 'a' + 'A') : z;
  Pruefen(ModulationsArtAnkreuzen(gross) == kreuze && KreuzeAusKuerzeln(gross) == KreuzeAusKuerzeln(zelle));
  const Sendeartkreuze mehr = ModulationsArtAnkreuzen(davor + zelle);
  for (std::size_t i = 0; i < kreuze.size(); ++i) Pruefen(!kreuze.at(i) || mehr.at(i));
}

void FaktorPruefen(const std::string& text) {
  const Zykluswahl zyklus = ZyklusAusText(text);
  Pruefen(zyklus.faktor > 0 && zyklus.faktor <= 1 && zyklus.option >= -1 && zyklus.option < AnzahlZyklen);
  Pruefen(zyklus.option < 0 || zyklus.faktor == ZyklusfaktorVon(zyklus.option));
  // The options are kept at two decimals, and so is what a file says.
  const Zykluswahl nochmals = ZyklusAusText(Formatieren(zyklus.faktor));
  Pruefen(zyklus.option < 0 || nochmals.option == zyklus.option);
}

}  // namespace

}  // namespace vesk

/// Boxes, a row of modes and a factor of a file, a line each.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  Vorrat vorrat(daten, laenge);
  const int index = static_cast<int>(vorrat.Wahl(12)) - 2;
  Sendeartkreuze kreuze{};
  for (bool& kreuz : kreuze) kreuz = vorrat.Ja();
  vorrat.Zeile();
  WahlPruefen(kreuze);
  KlickPruefen(kreuze, index);
  const std::string zelle = vorrat.Zeile();
  FaktorPruefen(vorrat.Zeile());
  ZellePruefen(zelle, vorrat.Zeile());
  return 0;
}
