#include "station/Sektoren.h"

#include <cmath>

#include "engine/Zahlen.h"

namespace vesk {

namespace {

float Abstand(float EIRP, float grenzwert) {
  return AlsSingle(Wurzel30 * std::sqrt(double{EIRP}) / double{grenzwert});
}

Sektor SektorRechnen(double pegel, const std::string& daempfung, const Grenzwerte& g) {
  Sektor sektor;
  sektor.EIRP = AlsSingle(std::pow(10.0, (pegel - double{Zahl(daempfung)}) / 10));
  sektor.ohneHSM = Abstand(sektor.EIRP, g.ohneHSM);
  if (g.hsmVDE.Grenzwert != 0) sektor.HSMvde = Abstand(sektor.EIRP, g.hsmVDE.Grenzwert);
  if (g.hsm306.Grenzwert != 0) sektor.HSM306 = Abstand(sektor.EIRP, g.hsm306.Grenzwert);
  return sektor;
}

}  // namespace

Sektortabelle SektorenRechnen(const Sektoreingabe& eingabe, const Grenzwerte& grenzwerte) {
  Sektortabelle tabelle;
  try {
    const double pegel = 10 * Log10(Zahl(eingabe.AntEinPWR)) + double{Zahl(eingabe.gewinn)};
    for (const std::string& daempfung : eingabe.daempfung) {
      tabelle.sektoren.push_back(SektorRechnen(pegel, daempfung, grenzwerte));
    }
  } catch (const Laufzeitfehler& fehler) {
    tabelle.fehler = fehler.art;
  }
  return tabelle;
}

}  // namespace vesk
