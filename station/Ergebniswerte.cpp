#include "station/Ergebniswerte.h"

#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Spalten.h"
#include "station/Wegweiser.h"
#include "station/Winkel.h"

namespace vesk {

namespace {

struct Einheit {
  std::string_view zeichen;
  std::string_view wort;
};
constexpr Einheit Einheiten[] = {
    {" [m]", " Meter"}, {" [W]", " Watt"}, {" [V/m]", " Volt je Meter"}, {" [V]", " Volt"}, {" [dB]", " dB"},
};

/// In the order of Ausgabefolge. The first ones say what is being calculated; the next is Station's own.
constexpr std::array<const char*, Ausgabefolge.size()> Ausgabenamen = {
    " ohne HSM",
    " HSM VDE",
    " HSM 306",
    nullptr,
    "Grenzwert ohne HSM [V/m]",
    "Grenzwert HSM VDE [V/m]",
    "Grenzwert HSM 306 [V/m]",
    "Spitzenspannung Uss HSM VDE [V]",
    "Spitzenspannung Uss HSM 306 [V]",
    "Nahfeld bis [m]",
    "Fernfeld ab [m]",
};

std::string Ausgabename(const Station& s, std::size_t stelle) {
  const char* name = Ausgabenamen.at(stelle);
  if (name == nullptr) return s.StrahlungTitel;
  if (*name != ' ') return name;
  return s.modus == Modus::Leistung ? "Sendeleistung" + std::string(name) + " [W]"
                                    : "Sicherheitsabstand" + std::string(name) + " [m]";
}

/// The distances of a sector, in their order.
struct Winkelabstand {
  const char* name;
  Winkelkurve kurve;
};
constexpr Winkelabstand Winkelabstaende[] = {
    {"Abstand ohne HSM ", Winkelkurve::OhneHSM},
    {"Abstand HSM VDE ", Winkelkurve::HSMvde},
    {"Abstand HSM 306 ", Winkelkurve::HSM306},
};

}  // namespace

std::string InWorten(const Ergebniswert& wert) {
  const std::string_view name = wert.name;
  for (const Einheit& einheit : Einheiten) {
    if (!name.ends_with(einheit.zeichen)) continue;
    std::string text(name.substr(0, name.size() - einheit.zeichen.size()));
    return text.append(1, ' ').append(wert.text).append(einheit.wort);
  }
  return wert.name + ' ' + wert.text;
}

Ergebniswerte Hauptwerte(const Station& s, const Feldtexte& texte) {
  const bool veraltet = ErgebnisVeraltet(s);
  Ergebniswerte werte;
  for (std::size_t i = 0; i < Ausgabefolge.size(); ++i) {
    werte.push_back({Ausgabename(s, i), texte[Ausgabefolge.at(i)].value_or(""), veraltet});
  }
  return werte;
}

Ergebniswert FaktorDerSendeart(const Station& s) {
  return {"Faktor für Sendeart", Formatieren(Faktor(s.werte))};
}

Ergebniswerte Kabelwerte(const Station& s) {
  const Datenblattspalte& kabel = s.Datenblattspalten.front();
  const bool veraltet = !KabelAktuell(s);
  return {
      {"Dämpfung gesamt [dB]", kabel.Gesamtdaempfung, veraltet && !kabel.Gesamtdaempfung.empty()},
      {"Kabeldämpfung [dB]", kabel.Kabeldaempfung, veraltet && !kabel.Kabeldaempfung.empty()},
      {"Kabeldämpfung je 100m [dB]", kabel.D100},
  };
}

Ergebniswerte Winkelwerte(const Station& s) {
  Ergebniswerte werte;
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    const std::string grad = Sektorname(i) + " Grad ";
    const std::string EIRP = EIRPText(s, i);
    werte.push_back({"EIRP " + grad + "[W]", EIRP, !EIRP.empty() && !EIRPAktuell(s, i)});
    const bool veraltet = !SektorAktuell(s, i);
    for (const Winkelabstand& art : Winkelabstaende) {
      const std::optional<float> wert = Sektorabstand(s, i, art.kurve);
      werte.push_back({art.name + grad + "[m]", wert ? Formatieren(*wert) : "", wert && veraltet});
    }
  }
  return werte;
}

Ergebniswerte Blattwerte(const Station& s) {
  Ergebniswerte werte;
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    const bool veraltet = SpalteVeraltet(s, spalte);
    for (const Zeile zeile : {ZeileOhneHSM, ZeileHSM306, ZeileHSMvde}) {
      werte.push_back({Zellentitel(spalte, zeile), Zelle(s, spalte, zeile), veraltet});
    }
  }
  return werte;
}

}  // namespace vesk
