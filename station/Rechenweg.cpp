#include "station/Rechenweg.h"

#include <span>

#include "engine/Zahlen.h"
#include "station/Optionen.h"
#include "station/Rechenwegteile.h"
#include "station/Spalten.h"
#include "station/Text.h"

namespace vesk {

namespace {

Spaltenrechnung Durchrechnen(const Station& s, const Kataloge& k, int spalte) {
  const std::optional<Rechenart> haelt = HaltendeArt(s, spalte);
  Spaltenrechnung r{.s = s,
                    .k = k,
                    .spalte = spalte,
                    .satz = s.Datenblattspalten.at(static_cast<std::size_t>(spalte)),
                    .haelt = haelt.has_value(),
                    .art = haelt.value_or(Rechenart{.modus = Modus::Abstand, .afu = s.einstellungen.AFu}),
                    .werte = Spaltenwerte(s, spalte),
                    .zahlen = {},
                    .zurueck = {}};
  r.zahlen = Berechnen(r.werte, {.modus = Modus::Abstand, .afu = r.art.afu});
  if (r.art.modus == Modus::Leistung) {
    Rechenwerte abstand = r.werte;
    abstand.PWRText = Zelle(s, spalte, ZeileOhneHSM);
    r.zurueck = Berechnen(abstand, r.art);
  }
  return r;
}

Rechenzeile Wortzeile(const std::string& name, const std::string& text, const char* einheit = "") {
  const std::string worte(OhneBlanks(text));
  return {.text = name,
          .eingabe = Groesse{
              {}, {}, worte.empty() ? "nicht angegeben" : worte, IstDezimalzahl(worte) ? einheit : ""}};
}

/// A number too large for the calculation stands as it was typed.
Rechenzeile Zahlzeile(const std::string& name, const Zeichen& zeichen, const std::string& getippt) {
  if (OhneBlanks(getippt).empty()) return Wortzeile(name, {});
  try {
    return {.text = name, .eingabe = Wert(zeichen, Dezimal(getippt))};
  } catch (const Laufzeitfehler&) {
    return {.text = name, .eingabe = Wert(zeichen, getippt)};
  }
}

std::string Zyklustext(const Spaltenrechnung& r) {
  const int option = ZyklusAusText(r.satz.Zyklusfaktor).option;
  if (option < 0) return "Zyklusfaktor";
  return "Zyklusfaktor (" + std::to_string(option + 1) + " von 6 min)";
}

void KabelEingaben(const Spaltenrechnung& r, Rechenabschnitt& abschnitt) {
  if (!Positiv(r.satz.KabelLaenge) || !r.zahlen.vollstaendig) return;
  const int index = Kabelindex(r.satz, r.k);
  const std::string kabel = index < 0 ? "" : r.k.kabel.liste.at(static_cast<std::size_t>(index));
  abschnitt.zeilen.push_back(Wortzeile("Kabel", kabel));
  abschnitt.zeilen.push_back(Zahlzeile("Kabellänge", zeichen::l, r.satz.KabelLaenge));
  const bool ohneStecker = OhneBlanks(r.satz.Stecker).empty();
  abschnitt.zeilen.push_back(
      Zahlzeile("Stecker etc.", zeichen::aStecker, ohneStecker ? "0" : r.satz.Stecker));
}

/// How an input is read that is not a plain number, such as "14,2".
std::string Lesart(const std::string& text) {
  try {
    return "„" + text + "“ wird als " + Dezimal(text) + " gelesen.";
  } catch (const Laufzeitfehler&) {
    return "„" + text + "“ ist zu groß.";
  }
}

void Lesarten(const Spaltenrechnung& r, Rechenabschnitt& abschnitt) {
  const Zeile gegeben = r.zurueck ? ZeileOhneHSM : ZeileLeistung;
  for (const Zeile zeile : {ZeileFrequenz, gegeben, ZeileVerluste, ZeileGewinn, ZeileWinkel}) {
    const std::string text(OhneBlanks(Zelle(r.s, r.spalte, zeile)));
    if (!text.empty() && !IstDezimalzahl(text)) abschnitt.zeilen.push_back({.text = Lesart(text)});
  }
}

}  // namespace

const char* Signaltyp(std::int16_t typ) {
  if (typ == GrenzwertAM) return "AM (AFu)";
  return typ == GrenzwertTV ? "TV (Fernsehmodulation)" : "GSM";
}

Groesse Auswertefrequenz(const Spaltenrechnung& r, const Zeichen& zeichen, float mhz) {
  if (r.art.afu && AmateurbandVon(r.zahlen.grenzwerte.QRG) != nullptr) return Wert(zeichen, mhz);
  return Wert(zeichen::f, Dezimal(r.werte.QRGText));
}

Ausdruck Eingabe(const Zeichen& zeichen, const std::string& getippt) {
  return Term(Wert(zeichen, Dezimal(getippt)));
}

Rechenabschnitt Eingabenabschnitt(const Spaltenrechnung& r) {
  const auto zelle = [&](Zeile zeile) { return Zelle(r.s, r.spalte, zeile); };
  Rechenabschnitt abschnitt{"Eingaben", {}};
  abschnitt.zeilen = {
      Zahlzeile("Frequenz", zeichen::f, r.werte.QRGText),
      r.zurueck ? Zahlzeile("Sicherheitsabstand ohne HSM", zeichen::d, zelle(ZeileOhneHSM))
                : Zahlzeile("Sendeleistung", zeichen::P, r.werte.PWRText),
      Zahlzeile("Antennengewinn", zeichen::G, r.werte.GewinnText),
      Zahlzeile("Kabelverluste", zeichen::a, r.werte.DaempfungText),
      Zahlzeile("Winkeldämpfung", zeichen::w, r.werte.WinkelDaempfungText),
      {.text = "Modulationsfaktor", .eingabe = Wert(zeichen::FModus, r.werte.Modulationsfaktor)},
      {.text = Zyklustext(r), .eingabe = Wert(zeichen::FZyklus, r.werte.Zyklusfaktor)},
      Wortzeile("Betriebsarten", zelle(ZeileBetriebsarten)),
      Wortzeile("Grenzwerttyp (HSM VDE)", Signaltyp(r.werte.Grenzwerttyp)),
      Wortzeile("Antenne", zelle(ZeileAntenne)),
      Wortzeile("Montagehöhe über Grund", zelle(ZeileHoehe), "m"),
      Wortzeile("Strahlungsrichtung", zelle(ZeileRichtung), "Grad"),
  };
  KabelEingaben(r, abschnitt);
  Lesarten(r, abschnitt);
  return abschnitt;
}

Rechenabschnitt Frequenzabschnitt(const Spaltenrechnung& r) {
  const Grenzwerte& g = r.zahlen.grenzwerte;
  const Amateurband* const band = AmateurbandVon(g.QRG);
  Rechenabschnitt abschnitt{"Frequenzen", {}};
  if (!r.art.afu) {
    abschnitt.zeilen = {{.text = "Gerechnet wird für genau diese Frequenz f."}};
  } else if (band == nullptr) {
    abschnitt.zeilen = {
        {.text = "f liegt in keinem Amateurband der Bandtabelle; gerechnet wird für genau diese Frequenz."}};
  } else {
    abschnitt.zeilen = {
        {.text = std::string("f steht für das Amateurband ") + band->name +
                 "; gerechnet wird bei seinen ungünstigsten Frequenzen:"},
        {.text = "Kleinster Grenzwert ohne HSM", .eingabe = Wert(zeichen::fE, g.frequenz.grenzwert)},
        {.text = "Herzschrittmacher (HSM)", .eingabe = Wert(zeichen::fHSM, g.frequenz.hsm)},
        {.text = "Größte Wellenlänge", .eingabe = Wert(zeichen::fLambda, g.frequenz.lambda)}};
  }
  return abschnitt;
}

Rechenabschnitt Fehlerabschnitt(const Spaltenrechnung& r) {
  std::string satz;
  if (!r.zahlen.fehler) {
    satz = "Frequenz und Sendeleistung müssen Zahlen größer als 0 sein; so läßt sich nichts berechnen.";
  } else if (r.zahlen.begonnen && r.zahlen.grenzwerte.ohneHSM == 0) {
    satz = "Unter 0.003 MHz nennt Vfg 306/97 keinen Grenzwert; ohne ihn gibt es keinen Sicherheitsabstand.";
  } else if (r.zahlen.fehler == Fehlerart::Ueberlauf) {
    satz = "Ein Wert ist zu groß; die Spalte läßt sich nicht berechnen.";
  } else {
    satz = "Mit diesen Werten läßt sich kein Sicherheitsabstand berechnen.";
  }
  Rechenabschnitt abschnitt{"Ergebnis", {{.text = satz}}};
  if (SpalteVeraltet(r.s, r.spalte)) {
    abschnitt.zeilen.push_back({.text = "Die Abstände im Datenblatt gehören nicht zu diesen Eingaben."});
  }
  return abschnitt;
}

std::vector<Rechenabschnitt> Rechenweg(const Station& s, const Kataloge& k, int spalte) {
  using Abschnitt = Rechenabschnitt (*)(const Spaltenrechnung&);
  static constexpr Abschnitt Fehlerhaft[] = {Eingabenabschnitt, Fehlerabschnitt};
  static constexpr Abschnitt Vorwaerts[] = {Eingabenabschnitt,       Frequenzabschnitt,  Kabelabschnitt,
                                            Winkelabschnitt,         Leistungsabschnitt, Wellenabschnitt,
                                            Personenschutzabschnitt, HSM306Abschnitt,    HSMvdeAbschnitt,
                                            Faktorabschnitt,         Abstandsabschnitt,  Nahfeldabschnitt};
  // The power comes from the limit there.
  static constexpr Abschnitt Rueckwaerts[] = {
      Eingabenabschnitt,       Frequenzabschnitt, Kabelabschnitt,  Winkelabschnitt, Wellenabschnitt,
      Personenschutzabschnitt, HSM306Abschnitt,   HSMvdeAbschnitt, Faktorabschnitt, Rueckwaertsabschnitt,
      Leistungsabschnitt,      Abstandsabschnitt, Nahfeldabschnitt};

  const Spaltenrechnung r = Durchrechnen(s, k, spalte);
  std::span<const Abschnitt> folge = r.zurueck ? std::span<const Abschnitt>(Rueckwaerts) : Vorwaerts;
  if (!r.zahlen.vollstaendig) folge = Fehlerhaft;
  std::vector<Rechenabschnitt> weg;
  for (const Abschnitt abschnitt : folge) {
    weg.push_back(abschnitt(r));
    if (weg.back().zeilen.empty()) weg.pop_back();
  }
  return weg;
}

}  // namespace vesk
