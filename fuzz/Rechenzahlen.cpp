#include <cmath>
#include <limits>
#include <optional>

#include "engine/Berechnung.h"
#include "fuzz/Vorrat.h"

namespace vesk {

namespace {

/// As the calculation does it: a fault is told in the result, which is filled as far as it got.
Rechenergebnis Rechnen(const Stationswerte& station, Modus modus, const Grenzwerte& grenzwerte) {
  Rechenergebnis e;
  e.grenzwerte = grenzwerte;
  try {
    AusgabenBestimmen(station, modus, e);
  } catch (const Laufzeitfehler& fehler) {
    e.fehler = fehler.art;
  }
  return e;
}

void GrenzwertePruefen(const Grenzwerte& g) {
  for (const float wert : {g.ohneHSM, g.hsm306.Uss, g.hsm306.Spitzenfeld, g.hsm306.Grenzwert, g.hsmVDE.Uss,
                           g.hsmVDE.Grenzwert, g.Lambda, g.Nahfeld, g.Fernfeld}) {
    Pruefen(std::isfinite(wert) && wert >= 0);
  }
  Pruefen(g.ausserhalb || g.ohneHSM > 0);
  // No limit without a threshold; of Vfg 306/97 each threshold has one.
  Pruefen((g.hsm306.Uss != 0) == (g.hsm306.Grenzwert != 0));
  Pruefen(g.hsmVDE.Uss != 0 || g.hsmVDE.Grenzwert == 0);
  Pruefen(g.hsmVDE.Anzahl == 0 || g.hsmVDE.Kandidaten[0] > 0);
}

/// Every figure is a number; all of them are there unless a fault is told.
void ErgebnisPruefen(const Rechenergebnis& e) {
  Pruefen(e.vollstaendig != e.fehler.has_value());
  for (const auto& wert : {e.EIRP, e.AntEinPWR, e.WEIRP, e.ohneHSM, e.HSM306, e.HSMvde}) {
    Pruefen(!wert || (std::isfinite(*wert) && *wert >= 0));
  }
  if (!e.vollstaendig) return;
  Pruefen(e.AntEinPWR && e.WEIRP && e.ohneHSM && e.HSM306 && e.HSMvde);
  Pruefen(e.Nahfeldflags >= 0 && e.Nahfeldflags <= 7);
  Pruefen((e.Nahfeldflags & NahfeldHSM306) == 0 || e.grenzwerte.hsm306.Uss != 0);
  Pruefen((e.Nahfeldflags & NahfeldHSMvde) == 0 || e.grenzwerte.hsmVDE.Uss != 0);
}

bool NichtKleiner(const Rechenergebnis& mehr, const Rechenergebnis& weniger) {
  return *mehr.ohneHSM >= *weniger.ohneHSM && *mehr.HSM306 >= *weniger.HSM306 &&
         *mehr.HSMvde >= *weniger.HSMvde;
}

/// More power never asks for less distance, more distance never allows for less power.
void AnstiegPruefen(const Rechenergebnis& e, Stationswerte station, float zuschlag) {
  if (!e.vollstaendig || !(zuschlag > 0)) return;
  station.PWR += zuschlag;
  const Rechenergebnis mehr = Rechnen(station, e.modus, e.grenzwerte);
  if (mehr.vollstaendig) Pruefen(NichtKleiner(mehr, e));
}

/// The power that a distance allows asks for that distance.
void RueckwegPruefen(const Rechenergebnis& leistung, const Stationswerte& station) {
  constexpr float Kleinste = std::numeric_limits<float>::min();  // below it, singles lose digits
  constexpr double Genau = 1e-5;
  // Above this the sum of the levels drops digits of the power's own.
  constexpr float HoechsterPegel = 1e6F;
  for (const float db : {station.Gewinn, station.Daempfung, station.Winkel}) {
    if (!(std::abs(db) < HoechsterPegel)) return;
  }
  if (!leistung.vollstaendig) return;
  const auto pruefen = [&](const std::optional<float>& erlaubt, float grenzwert,
                           std::optional<float> Rechenergebnis::*abstand) {
    if (grenzwert == 0 || *erlaubt < Kleinste) return;
    Stationswerte hin = station;
    hin.PWR = *erlaubt;
    const Rechenergebnis e = Rechnen(hin, Modus::Abstand, leistung.grenzwerte);
    if (e.vollstaendig && *e.WEIRP >= Kleinste) {
      Pruefen(std::abs(double(*(e.*abstand)) - station.PWR) <= station.PWR * Genau);
    }
  };
  const Grenzwerte& g = leistung.grenzwerte;
  pruefen(leistung.ohneHSM, g.ohneHSM, &Rechenergebnis::ohneHSM);
  pruefen(leistung.HSM306, g.hsm306.Grenzwert, &Rechenergebnis::HSM306);
  pruefen(leistung.HSMvde, g.hsmVDE.Grenzwert, &Rechenergebnis::HSMvde);
}

/// Any bits at all or, more often met in life, 10^-6.5 to 10^6.5.
float Groesse(Vorrat& vorrat, bool roh) {
  return roh ? vorrat.Bits<float>() : std::pow(10.0F, static_cast<float>(vorrat.Bits<std::int16_t>()) / 5000);
}
/// Likewise, or -327 to 327 dB.
float Pegel(Vorrat& vorrat, bool roh) {
  return roh ? vorrat.Bits<float>() : static_cast<float>(vorrat.Bits<std::int16_t>()) / 100;
}

std::optional<Grenzwerte> GrenzwerteBei(float qrg, bool afu, std::int16_t typ) {
  Grenzwerte g = GrenzwerteBestimmen(qrg, afu, typ);
  try {
    FelderBestimmen(g);
  } catch (const Laufzeitfehler&) {
    return std::nullopt;
  }
  return g;
}

}  // namespace

}  // namespace vesk

/// The calculation on singles, whatever text could give them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  using namespace vesk;
  Vorrat vorrat(daten, laenge);
  const bool afu = vorrat.Ja();
  const auto typ = static_cast<std::int16_t>(vorrat.Wahl(4));
  const bool roh = vorrat.Ja();
  const float qrg = Groesse(vorrat, roh);
  Stationswerte station;
  station.PWR = Groesse(vorrat, roh);
  for (float* db : {&station.Gewinn, &station.Daempfung, &station.Winkel}) *db = Pegel(vorrat, roh);
  station.Faktor = Groesse(vorrat, roh);
  const float zuschlag = Groesse(vorrat, roh);

  const std::optional<Grenzwerte> g = GrenzwerteBei(qrg, afu, typ);
  // Below that no calculation begins.
  if (!g || !(qrg > 0) || !(station.PWR > 0)) return 0;
  GrenzwertePruefen(*g);
  for (const Modus modus : {Modus::Abstand, Modus::Leistung}) {
    const Rechenergebnis e = Rechnen(station, modus, *g);
    ErgebnisPruefen(e);
    AnstiegPruefen(e, station, zuschlag);
    if (modus == Modus::Leistung && station.Faktor > 0) RueckwegPruefen(e, station);
  }
  return 0;
}
