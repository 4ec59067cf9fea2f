#include <array>

#include "engine/Ausgabe.h"
#include "engine/Zahlen.h"
#include "station/Rechenwegteile.h"

/// From the power to the distances, or from a distance to the power.
namespace vesk {

namespace {

/// A distance with what belongs to it.
struct Abstandsart {
  const char* name;
  const Zeichen& zeichen;
  const Zeichen& grenzwert;
  Zeile zeile;
  Feld feld;
  std::optional<float> Rechenergebnis::*wert;
  Nahfeldbits bit;
};
constexpr std::array<Abstandsart, 3> Abstandsarten = {{
    {"ohne HSM", zeichen::d, zeichen::E, ZeileOhneHSM, Feld::AusgabeOhneHSM, &Rechenergebnis::ohneHSM,
     NahfeldOhneHSM},
    {"HSM 306", zeichen::d306, zeichen::E306, ZeileHSM306, Feld::AusgabeHSM306, &Rechenergebnis::HSM306,
     NahfeldHSM306},
    {"HSM VDE", zeichen::dVDE, zeichen::EVDE, ZeileHSMvde, Feld::AusgabeHSMvde, &Rechenergebnis::HSMvde,
     NahfeldHSMvde},
}};

float Grenzwert(const Spaltenrechnung& r, const Abstandsart& art) {
  const Grenzwerte& g = r.zahlen.grenzwerte;
  if (art.zeile == ZeileOhneHSM) return g.ohneHSM;
  return art.zeile == ZeileHSM306 ? g.hsm306.Grenzwert : g.hsmVDE.Grenzwert;
}

/// The distance that the way ends with, in the digits of the sheet.
std::string Abstandstext(const Spaltenrechnung& r, const Abstandsart& art) {
  if (r.zurueck && art.zeile == ZeileOhneHSM) return Dezimal(Zelle(r.s, r.spalte, ZeileOhneHSM));
  return *Ausgabetexte(r.zahlen, '.')[art.feld];
}

Ausdruck Sendeleistung(const Spaltenrechnung& r) {
  return Eingabe(zeichen::P, r.werte.PWRText);
}

Ausdruck Faktorterm(const Spaltenrechnung& r) {
  return Term(zeichen::F, Faktor(r.werte));
}

Ausdruck Zehntelexponent(const Spaltenrechnung& r) {
  return (Eingabe(zeichen::G, r.werte.GewinnText) - Eingabe(zeichen::a, r.werte.DaempfungText) -
          Eingabe(zeichen::w, r.werte.WinkelDaempfungText)) /
         Term(10.0);
}

/// Names a result whose digits in the sheet say more than single precision holds.
void GekuerztNennen(const Gleichung& gleichung, const std::string& text, std::vector<Rechenzeile>& zeilen) {
  if (gleichung.ergebnis.zahl == text) return;
  zeilen.push_back({.text = "Im Datenblatt steht " + text + ' ' + gleichung.ergebnis.einheit +
                            "; die letzten Stellen gehen über die Rechengenauigkeit hinaus."});
}

/// What the sheet shows instead of the distances above.
std::string Datenblattstand(const Spaltenrechnung& r) {
  std::string zellen;
  bool leer = true;
  for (const Abstandsart& art : Abstandsarten) {
    const std::string& zelle = Zelle(r.s, r.spalte, art.zeile);
    zellen += (zellen.empty() ? "" : ", ") + std::string(art.name) + ' ' + (zelle.empty() ? "nichts" : zelle);
    leer = leer && zelle.empty();
  }
  if (leer) return "Im Datenblatt stehen diese Abstände noch nicht.";
  return "Das Datenblatt ist nicht auf diesem Stand und muß neu gerechnet werden. Es zeigt in m: " + zellen +
         '.';
}

}  // namespace

Rechenabschnitt Leistungsabschnitt(const Spaltenrechnung& r) {
  const Ausdruck a = Eingabe(zeichen::a, r.werte.DaempfungText);
  return {"Leistung am Antenneneingang und Strahlungsleistung",
          {{.gleichung = Gleich(zeichen::PAnt, Sendeleistung(r) / Hoch(Term(10.0), a / Term(10.0)),
                                *r.zahlen.AntEinPWR)},
           {.gleichung = Gleich(zeichen::EIRP, Sendeleistung(r) * Hoch(Term(10.0), Zehntelexponent(r)),
                                *r.zahlen.WEIRP)}}};
}

Rechenabschnitt Wellenabschnitt(const Spaltenrechnung& r) {
  const Grenzwerte& g = r.zahlen.grenzwerte;
  const Groesse f = Auswertefrequenz(r, zeichen::fLambda, g.frequenz.lambda);
  const Ausdruck lambda = Term(zeichen::Lambda, g.Lambda);
  const Ausdruck pi = Term(Groesse{"π", {}, Dezimal(Pi), {}});
  return {"Wellenlänge, Ende des reaktiven Nahfelds, Beginn des Fernfelds",
          {{.gleichung = Gleich(zeichen::Lambda, Term(Lichtgeschwindigkeit) / Term(f), g.Lambda)},
           {.gleichung = Gleich(zeichen::Nahfeld, lambda / (Term(2.0) * pi), g.Nahfeld)},
           {.gleichung = Gleich(zeichen::Fernfeld, Term(FernfeldInLambda) * lambda, g.Fernfeld)}}};
}

Rechenabschnitt Faktorabschnitt(const Spaltenrechnung& r) {
  const float faktor = Faktor(r.werte);
  const Sendeartkreuze kreuze = KreuzeAusKuerzeln(Zelle(r.s, r.spalte, ZeileBetriebsarten));
  std::string arten;
  for (std::size_t i = 0; i < kreuze.size(); ++i) {
    if (!kreuze.at(i)) continue;
    arten += arten.empty() ? "Betriebsarten: " : ", ";
    arten += std::string(Sendearten.at(i).kuerzel) + std::string(Sendearten.at(i).faktor);
  }
  const Sendeartwahl genannt = ModulationsFaktorErmitteln(kreuze);
  if (genannt.anzahl > 1) {
    arten += genannt.anzahl > 3 ? "; ab vier Betriebsarten gilt 1.00" : "; der größte Faktor gilt";
  }
  if (genannt.anzahl > 0)
    arten += genannt.faktor < r.werte.Modulationsfaktor ? "; vermerkt ist ein größerer." : ".";
  std::string text = "F gilt nur für den Abstand ohne HSM; die Abstände HSM gelten für die volle Leistung.";
  if (faktor < 1) text += " Mit F < 1 verpflichtet sich der Betreiber, diesen Faktor nicht zu überschreiten.";
  Rechenabschnitt abschnitt{"Faktor für Sendeart", {}};
  abschnitt.zeilen = {{.text = arten,
                       .gleichung = Gleich(zeichen::F,
                                           Term(zeichen::FModus, r.werte.Modulationsfaktor) *
                                               Term(zeichen::FZyklus, r.werte.Zyklusfaktor),
                                           faktor)},
                      {.text = text}};
  return abschnitt;
}

Rechenabschnitt Rueckwaertsabschnitt(const Spaltenrechnung& r) {
  const Ausdruck d = Eingabe(zeichen::d, Zelle(r.s, r.spalte, ZeileOhneHSM));
  const Ausdruck feld =
      d * Term(zeichen::E, r.zahlen.grenzwerte.ohneHSM) / (Term(Wurzel30) * Wurzel(Faktorterm(r)));
  const std::string& text = r.werte.PWRText;
  const Gleichung gleichung = GleichImBlatt(
      zeichen::P, Hoch(feld, Term(2.0)) / Hoch(Term(10.0), Zehntelexponent(r)), text, *r.zurueck->ohneHSM);
  Rechenabschnitt abschnitt{"Größte Sendeleistung zum Abstand ohne HSM", {{.gleichung = gleichung}}};
  GekuerztNennen(gleichung, text, abschnitt.zeilen);
  return abschnitt;
}

Rechenabschnitt Abstandsabschnitt(const Spaltenrechnung& r) {
  Rechenabschnitt abschnitt{"Sicherheitsabstände", {}};
  bool ungenannt = false;
  for (const Abstandsart& art : Abstandsarten) {
    const float grenzwert = Grenzwert(r, art);
    if (grenzwert == 0 || (r.zurueck && art.zeile == ZeileOhneHSM)) continue;
    Ausdruck leistung = Term(zeichen::EIRP, *r.zahlen.WEIRP);
    if (art.zeile == ZeileOhneHSM) leistung = std::move(leistung) * Faktorterm(r);
    const std::string text = Abstandstext(r, art);
    const Gleichung gleichung =
        GleichImBlatt(art.zeichen, Term(Wurzel30) * Wurzel(leistung) / Term(art.grenzwert, grenzwert), text,
                      *(r.zahlen.*art.wert));
    abschnitt.zeilen.push_back({.gleichung = gleichung});
    GekuerztNennen(gleichung, text, abschnitt.zeilen);
    ungenannt = ungenannt || Zelle(r.s, r.spalte, art.zeile).empty();
  }
  if (!r.haelt) {
    abschnitt.zeilen.push_back({.text = Datenblattstand(r)});
  } else if (ungenannt) {
    abschnitt.zeilen.push_back({.text = "Die Abstände HSM stehen nicht im Datenblatt."});
  }
  return abschnitt;
}

Rechenabschnitt Nahfeldabschnitt(const Spaltenrechnung& r) {
  int flags = r.zahlen.Nahfeldflags;
  if (r.zurueck) flags = (flags & ~NahfeldOhneHSM) | (r.zurueck->Nahfeldflags & NahfeldOhneHSM);
  std::string innen;
  std::string aussen;
  for (const Abstandsart& art : Abstandsarten) {
    if (Grenzwert(r, art) == 0) continue;
    std::string& liste = (flags & art.bit) != 0 ? innen : aussen;
    liste += (liste.empty() ? "" : ", ") + std::string(art.name) + " (" + Abstandstext(r, art) + " m)";
  }
  const std::string grenze = Formatieren(r.zahlen.grenzwerte.Nahfeld) + " m";
  Rechenabschnitt abschnitt{"Nahfeld", {}};
  if (innen.empty()) {
    abschnitt.zeilen = {
        {.text = "Alle Abstände liegen außerhalb des reaktiven Nahfelds von " + grenze + '.'}};
    return abschnitt;
  }
  abschnitt.zeilen = {{.text = "Im reaktiven Nahfeld (bis " + grenze + "): " + innen + ". " +
                               (aussen.empty() ? "" : "Außerhalb: " + aussen + ". ") +
                               "Im Nahfeld ist die Formel nicht sicher; eine Nahfeldberechnung oder Messung "
                               "ist eventuell erforderlich, wenn der vorhandene Abstand kleiner ist als " +
                               grenze + '.'}};
  return abschnitt;
}

}  // namespace vesk
