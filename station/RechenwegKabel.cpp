#include <cmath>

#include "engine/Zahlen.h"
#include "station/Optionen.h"
#include "station/Papiere.h"
#include "station/Rechenwegteile.h"

/// Where losses and angle attenuation come from.
namespace vesk {

namespace {

constexpr Zeichen alpha{"α", "", "dB"};
constexpr Zeichen alpha1{"α", "1", "dB"};
constexpr Zeichen alpha2{"α", "2", "dB"};
constexpr Zeichen f1{"f", "1", "MHz"};
constexpr Zeichen f2{"f", "2", "MHz"};
constexpr Zeichen b{"b", "", ""};

/// The cable of a column's record with its losses by the catalogue as it is now.
struct Kabelstand {
  int index;
  std::string name;
  bool eigeneWerte;  ///< the catalogue has its losses; else the user typed its loss per 100 m
  Kabelfelder felder;
};

Kabelstand Nachrechnen(const Datenblattspalte& satz, const Kataloge& k) {
  const int index = Kabelindex(satz, k);
  Kabelstand stand{index, {}, true, {}};
  if (index >= 0) stand.name = k.kabel.liste.at(static_cast<std::size_t>(index));
  stand.eigeneWerte = stand.name != AnderesKabel;
  stand.felder = {.QRG = satz.QRG,
                  .D100 = stand.eigeneWerte ? std::string() : satz.D100,
                  .KabelLaenge = satz.KabelLaenge,
                  .Stecker = satz.Stecker};
  KabeldaempfungRechnen(k.kabel, index, stand.felder);
  return stand;
}

bool GleicheZahl(const std::string& zahl, const std::string& andere) {
  return !zahl.empty() && !andere.empty() && Zahl(zahl) == Zahl(andere);
}

Groesse Kabelfrequenz(const Spaltenrechnung& r) {
  const bool dieselbe = GleicheZahl(r.satz.QRG, r.werte.QRGText);
  return Wert(dieselbe ? zeichen::f : zeichen::fKabel, Dezimal(r.satz.QRG));
}

/// Loss per 100 m between two frequencies of the catalogue.
void Zwischenwert(const Kabel& kabel, const Groesse& frequenz, float d100, std::vector<Rechenzeile>& zeilen) {
  const std::size_t j = *Kabelintervall(Zahl(frequenz.zahl));
  const Ausdruck links = Term(alpha1, kabel.Kabelwert[j]);
  const Ausdruck unten = Term(f1, vesk::Kabelfrequenz[j]);
  const float exponent = kabel.Kabelexponent[j];
  zeilen.push_back({.text = kabel.Kabelname + " nach Katalog: " + Dezimal(kabel.Kabelwert[j]) +
                            " dB je 100 m bei " + Dezimal(vesk::Kabelfrequenz[j]) + " MHz, " +
                            Dezimal(kabel.Kabelwert[j + 1]) + " dB bei " +
                            Dezimal(vesk::Kabelfrequenz[j + 1]) + " MHz, dazwischen ein Potenzgesetz.",
                    .gleichung = Gleich(b,
                                        Ln(Term(alpha2, kabel.Kabelwert[j + 1]) / links) /
                                            Ln(Term(f2, vesk::Kabelfrequenz[j + 1]) / unten),
                                        exponent)});
  zeilen.push_back(
      {.gleichung = Gleich(alpha, links * Hoch(Term(frequenz) / unten, Term(b, exponent)), d100)});
}

void Verlustzeilen(const Spaltenrechnung& r, const Kabelstand& stand, std::vector<Rechenzeile>& zeilen) {
  const Groesse frequenz = Kabelfrequenz(r);
  const float laenge = Zahl(r.satz.KabelLaenge);
  float d100 = Zahl(r.satz.D100);
  if (frequenz.index == zeichen::fKabel.index) {
    zeilen.push_back(
        {.text = "Die Kabelverluste sind für eine andere Frequenz als die der Spalte berechnet:"});
    zeilen.push_back({.text = "Frequenz der Kabelverluste", .eingabe = frequenz});
  }
  if (stand.eigeneWerte) {
    bool gefunden = false;
    d100 = KabelwertErmitteln(r.k.kabel, stand.index, Zahl(frequenz.zahl), gefunden);
    Zwischenwert(r.k.kabel.kabel.at(static_cast<std::size_t>(stand.index)), frequenz, d100, zeilen);
  } else {
    zeilen.push_back({.text = "Dämpfung je 100 m, von Hand eingetragen", .eingabe = Wert(alpha, d100)});
  }
  const float verlust = Kabelverlust(d100, laenge);
  zeilen.push_back({.gleichung = Gleich(
                        zeichen::aKabel,
                        Term(alpha, d100) * Eingabe(zeichen::l, r.satz.KabelLaenge) / Term(100.0), verlust)});
  zeilen.push_back(
      {.gleichung = GleichImBlatt(zeichen::a,
                                  Term(zeichen::aKabel, verlust) + Eingabe(zeichen::aStecker, r.satz.Stecker),
                                  r.werte.DaempfungText, Zahl(r.werte.DaempfungText))});
}

/// The total is that of the record's cable, and not typed.
bool AusDemKabel(const Datenblattspalte& satz, const std::string& verluste) {
  return !satz.D100.empty() && GleicheZahl(verluste, satz.Gesamtdaempfung);
}

/// Why the record's cable does not give the losses of the column.
std::string Abweichung(const Datenblattspalte& satz, const std::string& verluste, const Kabelstand& stand) {
  const std::string& heute = stand.felder.Gesamtdaempfung;
  if (!AusDemKabel(satz, verluste)) {
    const std::string von = "Die Kabelverluste a sind von Hand eingetragen.";
    return heute.empty() ? von : von + " Das Kabel der Spalte ergibt " + heute + " dB.";
  }
  const std::string anfang = "Die Kabelverluste a sind aus " + satz.D100 + " dB je 100 m berechnet. ";
  if (stand.index < 0) return anfang + "Das Kabel steht nicht mehr im Katalog.";
  if (heute.empty()) return anfang + "Der Katalog nennt für " + satz.QRG + " MHz keinen Wert.";
  if (!GleicheZahl(stand.felder.D100, satz.D100)) {
    return anfang + "Der Katalog nennt für " + stand.name + " heute " + stand.felder.D100 +
           " dB: Kabel, Frequenz oder Katalog sind andere.";
  }
  return anfang + "Mit Länge und Steckern der Spalte sind es jetzt " + heute + " dB.";
}

}  // namespace

std::optional<std::string> Kabelabweichung(const Station& s, const Kataloge& k, int spalte) try {
  constexpr float Rundungen = 0.02F;  // dB; of the loss per 100 m and of the total
  const Datenblattspalte& satz = s.Datenblattspalten.at(static_cast<std::size_t>(spalte));
  const std::string& verluste = Zelle(s, spalte, ZeileVerluste);
  if (!Positiv(satz.KabelLaenge) || !AusDemKabel(satz, verluste)) return std::nullopt;
  const Kabelstand stand = Nachrechnen(satz, k);
  const std::string& heute = stand.felder.Gesamtdaempfung;
  // Where the catalogue has no value the user types one.
  const bool ohneWert = stand.index >= 0 && heute.empty();
  const bool gleich = !heute.empty() && std::abs(Zahl(heute) - Zahl(verluste)) < Rundungen;
  if (ohneWert || gleich) return std::nullopt;
  return Abweichung(satz, verluste, stand);
} catch (const Laufzeitfehler&) {
  return std::nullopt;  // the text is no number, which is a finding of its own
}

Rechenabschnitt Kabelabschnitt(const Spaltenrechnung& r) {
  Rechenabschnitt abschnitt{"Kabelverluste", {}};
  try {
    const Kabelstand stand = Nachrechnen(r.satz, r.k);
    if (!Positiv(r.satz.KabelLaenge)) {
      const bool ohne = Zahl(r.werte.DaempfungText) == 0;
      abschnitt.zeilen = {{.text = ohne ? "Es sind keine Verluste angesetzt."
                                        : "Die Kabelverluste a sind von Hand eingetragen."}};
    } else if (GleicheZahl(stand.felder.Gesamtdaempfung, r.werte.DaempfungText)) {
      Verlustzeilen(r, stand, abschnitt.zeilen);
    } else {
      abschnitt.zeilen = {{.text = Abweichung(r.satz, r.werte.DaempfungText, stand)}};
    }
  } catch (const Laufzeitfehler&) {
    abschnitt.zeilen = {{.text = "Die Kabelverluste a sind wie eingetragen; mit dem Kabel der Spalte läßt "
                                 "sich nicht rechnen."}};
  }
  return abschnitt;
}

Rechenabschnitt Winkelabschnitt(const Spaltenrechnung& r) {
  Rechenabschnitt abschnitt{"Winkeldämpfung", {}};
  switch (WinkelbelegDerSpalte(r.s, r.spalte)) {
    case Winkelbeleg::Unnoetig:
      break;
    case Winkelbeleg::Unvollstaendig:
      abschnitt.zeilen = {{.text = "w ist von Hand eingetragen; die Spalte hat keine vollständige "
                                   "Winkeltabelle."}};
      break;
    case Winkelbeleg::Fremd:
      abschnitt.zeilen = {{.text = "w ist von Hand eingetragen; kein Sektor der Winkeltabelle hat diesen "
                                   "Wert."}};
      break;
    case Winkelbeleg::Diagramm:
    case Winkelbeleg::NichtBerechenbar: {
      std::size_t i = 0;
      while (Zahl(r.satz.Winkel.at(i)) != Zahl(r.werte.WinkelDaempfungText)) ++i;
      abschnitt.zeilen = {{.text = "w ist der Wert des Sektors " + std::to_string(10 * i) + " bis " +
                                   std::to_string(10 * (i + 1)) + " Grad der Winkeltabelle."}};
    }
  }
  return abschnitt;
}

}  // namespace vesk
