#include "engine/Ausgabe.h"

#include "engine/Zahlen.h"

namespace vesk {

namespace {

constexpr float GrenzeKilowatt = 10000.0F;  // EIRP above this is shown in kW

void Strahlung(float eirp, Feldtexte& texte) {
  if (eirp <= GrenzeKilowatt) {
    texte[Feld::StrahlungTitel] = "Strahlungsleistung EIRP [W]";
    texte[Feld::Strahlung] = Formatieren(eirp);
  } else {
    texte[Feld::StrahlungTitel] = "Strahlungsleistung [KW]";
    texte[Feld::Strahlung] = Formatieren(static_cast<float>(eirp / 1000.0));
  }
}

/// The three fields of a pacemaker limit: emptied where no threshold is defined.
void HSMFelder(float Uss, float grenzwert, Feld feldUss, Feld feldGrenzwert, Feld feldAusgabe,
               Feldtexte& texte) {
  if (Uss == 0) {
    texte[feldUss] = texte[feldGrenzwert] = texte[feldAusgabe] = "";
  } else {
    texte[feldUss] = Formatieren(Uss);
    texte[feldGrenzwert] = Formatieren(grenzwert);
  }
}

}  // namespace

void Kopftexte(const Auswertefrequenzen& frequenz, char trenner, Feldtexte& texte) {
  const std::string hsm = Formatieren(frequenz.hsm, 2, trenner);
  texte[Feld::KopfOhneHSM] = "ohne HSM\n" + Formatieren(frequenz.grenzwert, 2, trenner);
  texte[Feld::KopfHSMvde] = "HSM VDE\n" + hsm;
  texte[Feld::KopfHSM306] = "HSM 306\n" + hsm;
}

Feldtexte Ausgabetexte(const Rechenergebnis& e, char trenner) {
  Feldtexte texte;
  if (!e.begonnen) return texte;
  const Grenzwerte& g = e.grenzwerte;
  Kopftexte(g.frequenz, trenner, texte);

  if (e.EIRP) Strahlung(*e.EIRP, texte);
  if (e.AntEinPWR) texte[Feld::WAntEinPWR] = Formatieren(*e.AntEinPWR);
  if (e.WEIRP) texte[Feld::WEIRP] = Formatieren(*e.WEIRP);
  if (e.ohneHSM && e.HSM306 && e.HSMvde) {
    texte[Feld::AusgabeOhneHSM] = Formatieren(*e.ohneHSM);
    texte[Feld::AusgabeHSM306] = Formatieren(*e.HSM306);
    texte[Feld::AusgabeHSMvde] = Formatieren(*e.HSMvde);
  }
  if (!e.vollstaendig) return texte;

  HSMFelder(g.hsm306.Uss, g.hsm306.Grenzwert, Feld::Uss306, Feld::GrenzwertHSM306, Feld::AusgabeHSM306,
            texte);
  HSMFelder(g.hsmVDE.Uss, g.hsmVDE.Grenzwert, Feld::UssVDE, Feld::GrenzwertHSMvde, Feld::AusgabeHSMvde,
            texte);
  texte[Feld::GrenzwertOhneHSM] = Formatieren(g.ohneHSM);
  texte[Feld::Nahfeld] = Formatieren(g.Nahfeld);
  texte[Feld::Fernfeld] = Formatieren(g.Fernfeld);
  return texte;
}

}  // namespace vesk
