#include "station/Kabelkatalog.h"

#include <cmath>

#include "engine/Zahlen.h"

namespace vesk {

namespace {

double Ln(double wert) {
  if (!(wert > 0)) throw Laufzeitfehler(Fehlerart::Gleitkomma);
  return std::log(wert);
}

}  // namespace

void KoeffizientenBestimmen(Kabel& kabel) {
  for (std::size_t j = 0; j < kabel.Kabelexponent.size(); ++j) {
    const double lnLinks = Ln(kabel.Kabelwert[j]);
    const double lnRechts = Ln(kabel.Kabelwert[j + 1]);
    const double lnF = Ln(Kabelfrequenz[j]);
    kabel.Kabelexponent[j] = AlsSingle((lnRechts - lnLinks) / (Ln(Kabelfrequenz[j + 1]) - lnF));
    kabel.Kabelkoeffizient[j] = AlsSingle(std::exp(lnLinks - double{kabel.Kabelexponent[j]} * lnF));
  }
}

std::optional<std::size_t> Kabelintervall(float f) {
  if (!(f >= Kabelfrequenz.front() && f <= Kabelfrequenz.back())) return std::nullopt;
  std::size_t j = 0;
  while (j + 2 < Kabelfrequenz.size() && f >= Kabelfrequenz[j + 1]) ++j;
  return j;
}

float KabelwertErmitteln(const Kabelkatalog& katalog, int auswahl, float f, bool& Pruefergebnis) {
  constexpr float Keiner = -1000;
  if (auswahl >= KabelMax) throw Laufzeitfehler(Fehlerart::Index);
  Pruefergebnis = false;
  const std::optional<std::size_t> intervall = Kabelintervall(f);
  if (auswahl < 0 || !intervall) return Keiner;
  const std::size_t j = *intervall;
  const Kabel& kabel = katalog.kabel[static_cast<std::size_t>(auswahl)];
  // A cable of the catalogue whose values have no logarithm here tells nothing of this frequency.
  if (auswahl < katalog.Kabelanzahl && kabel.Kabelkoeffizient[j] == 0) return Keiner;
  Pruefergebnis = true;
  return AlsSingle(std::exp(double{kabel.Kabelexponent[j]} * Ln(f)) * double{kabel.Kabelkoeffizient[j]});
}

float Kabelverlust(float d100, float laenge) {
  return AlsSingle(double{d100} / 100 * double{laenge});
}

void KabeldaempfungRechnen(const Kabelkatalog& katalog, int auswahl, Kabelfelder& felder) {
  bool Pruefergebnis = true;
  const float laenge = Zahl(felder.KabelLaenge);
  if (laenge == 0) return;
  float d100 = KabelwertErmitteln(katalog, auswahl, Zahl(felder.QRG), Pruefergebnis);
  if (d100 == 0) d100 = Zahl(felder.D100);
  if (Pruefergebnis) {
    felder.farbe = D100Farbe::Weiss;
    felder.D100 = Formatieren(d100);
  } else {
    felder.farbe = D100Farbe::Rot;
    d100 = Zahl(felder.D100);
    if (d100 == 0) {
      felder.D100.clear();
      felder.Kabeldaempfung.clear();
      felder.Gesamtdaempfung.clear();
      return;
    }
  }
  const float daempfung = Kabelverlust(d100, laenge);
  felder.Kabeldaempfung = Formatieren(daempfung);
  felder.Gesamtdaempfung = Formatieren(AlsSingle(double{daempfung} + double{Zahl(felder.Stecker)}));
}

}  // namespace vesk
