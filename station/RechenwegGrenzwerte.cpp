#include <algorithm>
#include <array>
#include <cmath>

#include "engine/Grenzwert.h"
#include "station/Rechenwegteile.h"

/// The three limits: which row of which regulation applies, and what it gives.
namespace vesk {

namespace {

constexpr Zeichen U306{"U", "306", "V"};
constexpr Zeichen Spitze306{"Ê", "306", "V/m"};
constexpr Zeichen UVDE{"U", "VDE", "V"};
constexpr std::array<Zeichen, 3> SpitzenVDE = {{{"Ê", "1", "V/m"}, {"Ê", "2", "V/m"}, {"Ê", "3", "V/m"}}};

constexpr const char* Vfg = "Vfg 306/97";
constexpr const char* VDE = "DIN VDE 0848 Teil 3-1 (Entwurf vom 11.11.98)";

/// "14.35 MHz liegt im Abschnitt 10 MHz ≤ f < 20 MHz"
std::string Abschnittstext(const Groesse& f, const Frequenzbereich& b) {
  std::string text = f.zahl + " MHz liegt im Abschnitt ";
  if (!std::isfinite(b.bis)) return text + "ab " + Dezimal(b.von) + " MHz";
  text += Dezimal(b.von) + (b.ohneVon ? " < " : " ≤ ") + "f" + (b.mitBis ? " ≤ " : " < ");
  return text + Dezimal(b.bis) + " MHz";
}

Ausdruck WurzelZwei() {
  return Wurzel(Term(2.0));
}

/// (f / f0) ^ p; a falling curve with its fraction turned over.
Ausdruck Frequenzgang(const Groesse& f, double f0, double p) {
  Ausdruck bruch = p > 0 ? Term(f) / Term(f0) : Term(f0) / Term(f);
  return std::abs(p) == 1 ? bruch : Hoch(std::move(bruch), Term(std::abs(p)));
}

Ausdruck Umgerechnet(const Umrechnung& u, const Ausdruck& U, const Groesse& f, double f0) {
  Ausdruck feld = U * Term(u.faktor);
  if (u.Z != 1) feld = std::move(feld) * Term(u.Z);
  return u.p == 0 ? feld : std::move(feld) * Frequenzgang(f, f0, u.p);
}

std::string Bereichstext(float von, float bis) {
  return Dezimal(von) + " bis " + Dezimal(bis) + " MHz";
}

/// The peak field strengths that the threshold is converted into, and the limit from the smallest.
std::vector<Rechenzeile> Umrechnungszeilen(const HSMvdeWerte& werte, const Umrechnungszeile& zeile,
                                           const Groesse& f, float mhz) {
  std::vector<Rechenzeile> zeilen;
  std::array<double, SpitzenVDE.size()> felder{};
  const auto anzahl = static_cast<std::size_t>(zeile.anzahl);
  for (std::size_t i = 0; i < anzahl; ++i) {
    felder[i] = Spitzenfeld(zeile, i, werte.Uss, mhz);
    zeilen.push_back(
        {.gleichung =
             Gleich(SpitzenVDE[i], Umgerechnet(zeile.umrechnungen[i], Term(UVDE, werte.Uss), f, zeile.f0),
                    felder[i])});
  }
  const auto kleinstes = std::min_element(felder.begin(), felder.begin() + zeile.anzahl) - felder.begin();
  // The limit is taken from the candidate at its five decimals.
  const double spitze = static_cast<double>(werte.Kandidaten.front()) / 1e5;
  const Zeichen& zeichen = SpitzenVDE.at(static_cast<std::size_t>(kleinstes));
  zeilen.push_back({.text = anzahl > 1 ? "Der kleinste Spitzenwert gilt:" : "",
                    .gleichung = Gleich(zeichen::EVDE, Term(Wert(zeichen, Dezimal(spitze))) / WurzelZwei(),
                                        werte.Grenzwert)});
  return zeilen;
}

}  // namespace

Rechenabschnitt Personenschutzabschnitt(const Spaltenrechnung& r) {
  const Grenzwerte& g = r.zahlen.grenzwerte;
  const Groesse f = Auswertefrequenz(r, zeichen::fE, g.frequenz.grenzwert);
  const Grenzwertzeile& zeile = *GrenzwertzeileFuer(g.QRG, g.frequenz.grenzwert);
  std::string text = std::string(Vfg) + ": " + Abschnittstext(f, zeile.bereich) + '.';
  if (g.ausserhalb) text += " Über 300 GHz ist kein Grenzwert bestimmt; gerechnet wird mit diesem.";
  Gleichung gleichung = Gleich(zeichen::E, zeile.faktor);
  if (zeile.exponent > 0) {
    gleichung = Gleich(zeichen::E, Term(zeile.faktor) * Wurzel(Term(f)), g.ohneHSM);
  } else if (zeile.exponent < 0) {
    gleichung = Gleich(zeichen::E, Term(zeile.faktor) / Wurzel(Term(f)), g.ohneHSM);
  }
  return {"Grenzwert ohne HSM", {{.text = text, .gleichung = gleichung}}};
}

Rechenabschnitt HSM306Abschnitt(const Spaltenrechnung& r) {
  const float mhz = r.zahlen.grenzwerte.frequenz.hsm;
  const HSM306Werte& werte = r.zahlen.grenzwerte.hsm306;
  const Groesse f = Auswertefrequenz(r, zeichen::fHSM, mhz);
  const HSM306Zeile* const zeile = HSM306ZeileFuer(mhz);
  Rechenabschnitt abschnitt{"Grenzwert HSM 306", {}};
  if (zeile == nullptr) {
    abschnitt.zeilen = {{.text = std::string(Vfg) + " nennt Störschwellen nur von " +
                                 Bereichstext(HSM306Von, HSM306Bis) + ". Für " + f.zahl +
                                 " MHz gibt es keinen Grenzwert und keinen Abstand HSM 306."}};
    return abschnitt;
  }
  const Frequenzbereich bereich{static_cast<float>(zeile->fu), zeile->fo, false, zeile->fo == HSM306Bis};
  const Ausdruck fu = Term(Groesse{"f", "u", Dezimal(zeile->fu), "MHz"});
  const Ausdruck fo = Term(Wert(Zeichen{"f", "o", "MHz"}, zeile->fo));
  const Ausdruck Uu = Term(Groesse{"U", "u", Dezimal(zeile->Uu), "V"});
  const Ausdruck Uo = Term(Groesse{"U", "o", Dezimal(zeile->Uo), "V"});
  abschnitt.zeilen = {
      {.text = std::string(Vfg) + ": " + Abschnittstext(f, bereich) +
               "; die Störschwelle verläuft darin geradlinig über dem Logarithmus der Frequenz.",
       .gleichung = Gleich(U306, (Uo - Uu) * (Ln(Term(f) / fu) / Ln(fo / fu)) + Uu, werte.Uss)},
      {.gleichung =
           Gleich(Spitze306, Term(U306, werte.Uss) / Term(f) * Term(Spitzenfeld306), werte.Spitzenfeld)},
      {.gleichung =
           Gleich(zeichen::E306, Term(Spitze306, werte.Spitzenfeld) / WurzelZwei(), werte.Grenzwert)}};
  return abschnitt;
}

Rechenabschnitt HSMvdeAbschnitt(const Spaltenrechnung& r) {
  const float mhz = r.zahlen.grenzwerte.frequenz.hsm;
  const HSMvdeWerte& werte = r.zahlen.grenzwerte.hsmVDE;
  const Groesse f = Auswertefrequenz(r, zeichen::fHSM, mhz);
  const auto schwellen = HSMvdeZeilen(r.werte.Grenzwerttyp);
  const HSMvdeZeile* const schwelle = ZeileFuer(schwellen, mhz);
  const std::string typ = std::string(", Grenzwerttyp ") + Signaltyp(r.werte.Grenzwerttyp);
  Rechenabschnitt abschnitt{"Grenzwert HSM VDE", {}};
  if (schwelle == nullptr) {
    abschnitt.zeilen = {{.text = std::string(VDE) + typ + ", nennt Störschwellen nur von " +
                                 Bereichstext(schwellen.front().bereich.von, schwellen.back().bereich.bis) +
                                 ". Für " + f.zahl +
                                 " MHz gibt es keinen Grenzwert und keinen Abstand HSM VDE."}};
    return abschnitt;
  }
  const std::string text =
      std::string(VDE) + typ + ": " + Abschnittstext(f, schwelle->bereich) + " der Störschwelle.";
  if (schwelle->p == 0) {
    abschnitt.zeilen = {{.text = text, .gleichung = Gleich(UVDE, schwelle->U0)}};
  } else {
    abschnitt.zeilen = {
        {.text = text,
         .gleichung =
             Gleich(UVDE, Term(schwelle->U0) * Frequenzgang(f, schwelle->f0, schwelle->p), werte.Uss)}};
  }
  const Umrechnungszeile* const zeile = UmrechnungszeileFuer(mhz);
  if (zeile == nullptr) {
    abschnitt.zeilen.push_back(
        {.text = "Für " + f.zahl +
                 " MHz nennt der Entwurf keine Umrechnung, also keinen Grenzwert. "
                 "Der Abstand 0.00 im Datenblatt heißt nicht, daß keiner nötig wäre."});
    return abschnitt;
  }
  abschnitt.zeilen.push_back({.text = Abschnittstext(f, zeile->bereich) + " der Umrechnung."});
  for (Rechenzeile& z : Umrechnungszeilen(werte, *zeile, f, mhz)) abschnitt.zeilen.push_back(std::move(z));
  return abschnitt;
}

}  // namespace vesk
