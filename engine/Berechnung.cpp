#include "engine/Berechnung.h"

#include <cmath>

#include "engine/Grenzwert.h"
#include "engine/Zahlen.h"

namespace vesk {

namespace {

constexpr double NahfeldJeLambda = 1 / (2 * Pi);

double HochZehn(double exponent) {
  return std::pow(10.0, exponent);
}

double Wurzel(double wert) {
  return std::sqrt(wert);
}

void AbstaendeBestimmen(const Stationswerte& s, Rechenergebnis& e) {
  const Grenzwerte& g = e.grenzwerte;
  const double pegel = 10 * Log10(s.PWR);
  e.EIRP = AlsSingle(HochZehn((pegel + s.Gewinn - s.Daempfung) * 0.1));
  e.AntEinPWR = AlsSingle(HochZehn((pegel - s.Daempfung) * 0.1));
  e.WEIRP = AlsSingle(HochZehn((pegel + s.Gewinn - s.Daempfung - s.Winkel) * 0.1));

  // The factors of mode and cycle average the power over time, which only the limit for persons without a
  // pacemaker allows; the pacemaker distances always take the full power.
  const double feld = Wurzel(*e.WEIRP);
  e.ohneHSM = AlsSingle(feld / g.ohneHSM * Wurzel30 * Wurzel(s.Faktor));
  e.HSMvde = g.hsmVDE.Grenzwert != 0 ? AlsSingle(Wurzel30 * feld / g.hsmVDE.Grenzwert) : 0;
  e.HSM306 = g.hsm306.Grenzwert != 0 ? AlsSingle(Wurzel30 * feld / g.hsm306.Grenzwert) : 0;
}

void LeistungenBestimmen(const Stationswerte& s, Rechenergebnis& e) {
  const Grenzwerte& g = e.grenzwerte;
  const double gewinn = HochZehn((static_cast<double>(s.Gewinn) - s.Daempfung - s.Winkel) * 0.1);
  const auto leistung = [gewinn](double abstand, float grenzwert) {
    const double feld = abstand * grenzwert / Wurzel30;
    return AlsSingle(feld * feld / gewinn);
  };
  e.ohneHSM = leistung(s.PWR / Wurzel(s.Faktor), g.ohneHSM);
  e.HSM306 = leistung(s.PWR, g.hsm306.Grenzwert);
  e.HSMvde = leistung(s.PWR, g.hsmVDE.Grenzwert);
  const double pegel = 10 * Log10(*e.ohneHSM);
  e.WEIRP = AlsSingle(HochZehn((pegel + s.Gewinn - s.Daempfung) * 0.1));
  e.AntEinPWR = AlsSingle(HochZehn((pegel - s.Daempfung) * 0.1));
}

int Nahfeldflags(const Rechenergebnis& e, const Stationswerte& s) {
  const Grenzwerte& g = e.grenzwerte;
  const auto jenseits = [&](const std::optional<float>& abstand) {
    return g.Nahfeld > (e.modus == Modus::Abstand ? *abstand : s.PWR);
  };
  int flags = 0;
  if (jenseits(e.ohneHSM)) flags |= NahfeldOhneHSM;
  if (g.hsm306.Uss != 0 && jenseits(e.HSM306)) flags |= NahfeldHSM306;
  if (g.hsmVDE.Uss != 0 && jenseits(e.HSMvde)) flags |= NahfeldHSMvde;
  return flags;
}

float ZahlOderNull(std::string& text) {
  if (text.empty()) text = "0";
  return Zahl(text);
}

void Durchrechnen(Rechenwerte& werte, const Rechenart& art, Rechenergebnis& e) {
  werte.QRG = Zahl(werte.QRGText);
  Stationswerte station;
  station.PWR = Zahl(werte.PWRText);
  if (werte.QRG <= 0 || station.PWR <= 0) return;

  e.begonnen = true;
  e.grenzwerte = GrenzwerteBestimmen(werte.QRG, art.afu, werte.Grenzwerttyp);
  FelderBestimmen(e.grenzwerte);

  station.Gewinn = ZahlOderNull(werte.GewinnText);
  station.Daempfung = ZahlOderNull(werte.DaempfungText);
  station.Winkel = ZahlOderNull(werte.WinkelDaempfungText);
  station.Faktor = Faktor(werte);
  AusgabenBestimmen(station, art.modus, e);
}

}  // namespace

Grenzwerte GrenzwerteBestimmen(float qrg, bool afu, std::int16_t grenzwerttyp) {
  const Auswertefrequenzen frequenz = Bandlogik(qrg, afu);
  return {.QRG = qrg,
          .frequenz = frequenz,
          .ausserhalb = !ImRechenbereich(qrg),
          .ohneHSM = Grenzwert(qrg, frequenz.grenzwert),
          .hsm306 = HSM306(frequenz.hsm),
          .hsmVDE = HSMvde(frequenz.hsm, grenzwerttyp)};
}

void FelderBestimmen(Grenzwerte& g) {
  g.Lambda = AlsSingle(Lichtgeschwindigkeit / g.frequenz.lambda);
  g.Nahfeld = AlsSingle(g.Lambda * NahfeldJeLambda);
  g.Fernfeld = AlsSingle(FernfeldInLambda * g.Lambda);
}

void GrenzwerteZuruecksetzen(Rechenwerte& werte) {
  werte.GrenzwertOhneHSM = werte.GrenzwertHSM306 = werte.GrenzwertHSMvde = 0;
  werte.SpitzenfeldHSM306 = werte.Uss306 = werte.UssVDE = 0;
}

void GrenzwerteEintragen(const Grenzwerte& g, Rechenwerte& werte) {
  werte.QRGGrenzwert = g.frequenz.grenzwert;
  werte.QRGHSM = g.frequenz.hsm;
  werte.QRGLambda = g.frequenz.lambda;
  werte.GrenzwertOhneHSM = g.ohneHSM;
  werte.GrenzwertHSM306 = g.hsm306.Grenzwert;
  werte.GrenzwertHSMvde = g.hsmVDE.Grenzwert;
  werte.SpitzenfeldHSM306 = g.hsm306.Spitzenfeld;
  werte.Uss306 = g.hsm306.Uss;
  werte.UssVDE = g.hsmVDE.Uss;
}

void AusgabenBestimmen(const Stationswerte& station, Modus modus, Rechenergebnis& ergebnis) {
  ergebnis.modus = modus;
  if (modus == Modus::Abstand) {
    AbstaendeBestimmen(station, ergebnis);
  } else {
    LeistungenBestimmen(station, ergebnis);
  }
  ergebnis.Nahfeldflags = Nahfeldflags(ergebnis, station);
  ergebnis.vollstaendig = true;
}

Rechenergebnis Berechnen(Rechenwerte& werte, const Rechenart& art) {
  Rechenergebnis ergebnis;
  ergebnis.modus = art.modus;
  GrenzwerteZuruecksetzen(werte);
  try {
    Durchrechnen(werte, art, ergebnis);
  } catch (const Laufzeitfehler& fehler) {
    ergebnis.fehler = fehler.art;
  }
  if (ergebnis.begonnen) GrenzwerteEintragen(ergebnis.grenzwerte, werte);
  return ergebnis;
}

}  // namespace vesk
