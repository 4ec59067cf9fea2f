#include "station/Papiere.h"

#include <algorithm>

#include "engine/Ausgabe.h"
#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Haupthandlungen.h"
#include "station/Lageplanhandlungen.h"
#include "station/Operator.h"
#include "station/Passung.h"
#include "station/Spalten.h"
#include "station/Text.h"

namespace vesk {

namespace {

using Befunde = std::vector<Befund>;

struct Angabe {
  Zeile zeile;
  const char* fehlt;
  const char* keineZahl = nullptr;  ///< of a row that must be above 0
};
constexpr Angabe Angaben[] = {
    {ZeileHoehe, "Die Montagehöhe über Grund fehlt."},
    {ZeileRichtung, "Die Strahlungsrichtung fehlt."},
    {ZeileFrequenz, "Die Frequenz fehlt.", "Die Frequenz muß eine Zahl über 0 sein."},
    {ZeileAntenne, "Die Antennenbezeichnung fehlt."},
    {ZeileBetriebsarten, "Die Betriebsarten fehlen."},
    {ZeileLeistung, "Die Sendeleistung fehlt.", "Die Sendeleistung muß eine Zahl über 0 sein."},
    {ZeileVerluste, "Die Kabelverluste fehlen."},
    {ZeileGewinn, "Der Antennengewinn fehlt."},
};

struct Abstand {
  Zeile zeile;
  Feld feld;
  int bit;  ///< of Nahfeldbits
  const char* name;
};
constexpr Abstand Abstaende[] = {
    {ZeileOhneHSM, Feld::AusgabeOhneHSM, NahfeldOhneHSM, "ohne HSM"},
    {ZeileHSM306, Feld::AusgabeHSM306, NahfeldHSM306, "HSM 306"},
    {ZeileHSMvde, Feld::AusgabeHSMvde, NahfeldHSMvde, "HSM VDE"},
};

/// By the order of Benutzerfelder.
constexpr std::array<const char*, Benutzerfelder.size()> Benutzersaetze = {
    "Der Name fehlt.",    "Die Straße fehlt.",     "Der Ort fehlt.",    "Das Telefon fehlt.",
    "Das Telefax fehlt.", "Das Rufzeichen fehlt.", "Die Klasse fehlt.", "Der Standort fehlt.",
};

/// By the order of Winkelbeleg.
constexpr std::array<const char*, 5> Beleggruende = {
    "",
    "",
    "Zur Spalte gehört keine vollständige Winkeltabelle.",
    "In der Winkeltabelle der Spalte kommt sie nicht vor.",
    "Die Winkeltabelle der Spalte läßt sich nicht berechnen.",
};

bool Leer(std::string_view text) {
  return OhneBlanks(text).empty();
}

Befund InSpalte(int spalte, Zeile zeile, const std::string& satz) {
  return {Spaltenname(spalte) + ": " + satz, InZelle{spalte, zeile}};
}

void BenutzerPruefen(const Benutzer& benutzer, Befunde& befunde) {
  for (std::size_t feld = 0; feld < Benutzerfelder.size(); ++feld) {
    if (Pflichtfelder[feld] == Pflicht::Nein || !Leer(benutzer.*Benutzerfelder[feld])) continue;
    befunde.push_back({std::string("Persönliche Daten: ") + Benutzersaetze[feld], BeimBenutzer{feld}});
  }
}

void AngabenPruefen(const Station& s, int spalte, Befunde& befunde) {
  for (const Angabe& angabe : Angaben) {
    const std::string& text = Zelle(s, spalte, angabe.zeile);
    if (Leer(text)) {
      befunde.push_back(InSpalte(spalte, angabe.zeile, angabe.fehlt));
    } else if (angabe.keineZahl != nullptr && !Positiv(text)) {
      befunde.push_back(InSpalte(spalte, angabe.zeile, angabe.keineZahl));
    }
  }
}

void FaktorPruefen(const Station& s, int spalte, Befunde& befunde) {
  const float faktor = Spaltenfaktor(s, spalte);
  if (!(faktor < 1) || Zelle(s, spalte, ZeileOhneHSM).empty()) return;
  befunde.push_back(InSpalte(spalte, ZeileBetriebsarten,
                             "Gerechnet ist mit dem Faktor " + Formatieren(faktor) +
                                 "; er darf beim Funkbetrieb nicht überschritten werden."));
}

void WinkelPruefen(const Station& s, int spalte, Befunde& befunde) {
  const Winkelbeleg beleg = WinkelbelegDerSpalte(s, spalte);
  if (beleg == Winkelbeleg::Unnoetig || beleg == Winkelbeleg::Diagramm) return;
  const std::string dB(OhneBlanks(Zelle(s, spalte, ZeileWinkel)));
  Befund befund = InSpalte(spalte, ZeileWinkel,
                           "Die Winkeldämpfung von " + dB + " dB ist durch kein Winkeldiagramm belegt: " +
                               Beleggruende.at(static_cast<std::size_t>(beleg)));
  if (beleg == Winkelbeleg::Unvollstaendig) befund.ort = ImWinkelblatt{};
  befunde.push_back(befund);
}

/// One sentence about some of the distances.
void AbstaendeMelden(int spalte, int bits, const std::string& einer, const std::string& mehrere,
                     Befunde& befunde) {
  std::vector<const Abstand*> gemeint;
  for (const Abstand& abstand : Abstaende) {
    if ((bits & abstand.bit) != 0) gemeint.push_back(&abstand);
  }
  if (gemeint.empty()) return;
  std::string namen;
  for (const Abstand* abstand : gemeint) {
    if (!namen.empty()) namen += abstand == gemeint.back() ? " und " : ", ";
    namen += abstand->name;
  }
  const std::string satz = gemeint.size() == 1 ? "Der Sicherheitsabstand " + namen + einer
                                               : "Die Sicherheitsabstände " + namen + mehrere;
  befunde.push_back(InSpalte(spalte, gemeint.front()->zeile, satz));
}

/// The distances are there wherever there is a limit. Without frequency and power none is missing yet.
void FehlendePruefen(const Station& s, int spalte, const Rechenergebnis& e, Befunde& befunde) {
  if (!e.begonnen && !e.fehler) return;
  if (!e.vollstaendig) {
    befunde.push_back(InSpalte(spalte, ZeileOhneHSM, "Die Sicherheitsabstände lassen sich nicht berechnen."));
    return;
  }
  const Feldtexte texte = Ausgabetexte(e, '.');
  int fehlend = 0;
  for (const Abstand& abstand : Abstaende) {
    const bool grenzwert = !texte[abstand.feld].value_or("").empty();
    if (grenzwert && Zelle(s, spalte, abstand.zeile).empty()) fehlend |= abstand.bit;
  }
  AbstaendeMelden(spalte, fehlend, " fehlt.", " fehlen.", befunde);
}

/// Bits of the distances of a column that holds. A distance computed backwards is the one typed; the
/// pacemaker distances are those of its power.
int Nahfeldflags(const Station& s, int spalte, const Rechenart& art, const Rechenergebnis& vorwaerts) {
  int flags = vorwaerts.Nahfeldflags;
  for (const Abstand& abstand : Abstaende) {
    if (Zelle(s, spalte, abstand.zeile).empty()) flags &= ~abstand.bit;
  }
  if (art.modus == Modus::Abstand) return flags;
  Rechenwerte werte = Spaltenwerte(s, spalte);
  werte.PWRText = Zelle(s, spalte, ZeileOhneHSM);
  return (flags & ~NahfeldOhneHSM) | (Berechnen(werte, art).Nahfeldflags & NahfeldOhneHSM);
}

void NahfeldPruefen(int spalte, int flags, float bis, Befunde& befunde) {
  const std::string rest = " im Nahfeld, das bis " + Formatieren(bis) +
                           " m reicht; eventuell ist eine Nahfeldberechnung oder Messung erforderlich.";
  AbstaendeMelden(spalte, flags, " liegt" + rest, " liegen" + rest, befunde);
}

void ErgebnissePruefen(const Station& s, int spalte, Befunde& befunde) {
  if (SpalteVeraltet(s, spalte)) {
    befunde.push_back(InSpalte(spalte, ZeileOhneHSM,
                               "Die Sicherheitsabstände gehören nicht zu den Angaben der Spalte; sie "
                               "müssen neu berechnet werden."));
    return;
  }
  const std::optional<Rechenart> haelt = HaltendeArt(s, spalte);
  const Rechenart art{.modus = Modus::Abstand, .afu = haelt ? haelt->afu : s.einstellungen.AFu};
  Rechenwerte werte = Spaltenwerte(s, spalte);
  const Rechenergebnis e = Berechnen(werte, art);
  FehlendePruefen(s, spalte, e, befunde);
  if (haelt) NahfeldPruefen(spalte, Nahfeldflags(s, spalte, *haelt, e), e.grenzwerte.Nahfeld, befunde);
}

}  // namespace

std::vector<int> BenutzteSpalten(const Station& s) {
  std::vector<int> spalten;
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    const auto* const erste = s.Zellen.data() + Zellenindex(spalte, ZeileHoehe);
    if (!std::all_of(erste, erste + AnzahlZeilen, Leer)) spalten.push_back(spalte);
  }
  return spalten;
}

std::vector<Befund> PapierePruefen(const Station& s, const Kataloge& k) {
  Befunde befunde;
  BenutzerPruefen(s.benutzer, befunde);
  const std::vector<int> spalten = BenutzteSpalten(s);
  if (spalten.empty())
    befunde.push_back({"Datenblatt: Keine Spalte ist ausgefüllt.", InZelle{1, ZeileFrequenz}});
  for (const int spalte : spalten) {
    AngabenPruefen(s, spalte, befunde);
    if (const auto satz = Kabelabweichung(s, k, spalte)) {
      befunde.push_back(InSpalte(spalte, ZeileVerluste, *satz));
    }
    FaktorPruefen(s, spalte, befunde);
    WinkelPruefen(s, spalte, befunde);
    ErgebnissePruefen(s, spalte, befunde);
  }
  for (const Planbefund& befund : LageplanPruefen(s)) {
    befunde.push_back({"Lageplan: " + befund.text, ImLageplan{befund.objekt}});
  }
  return befunde;
}

Meldungen ZumBefund(Station& s, const Kataloge& k, const Papierort& ort) {
  if (std::holds_alternative<BeimBenutzer>(ort)) return BenutzerOeffnen(s, k);
  if (s.fenster.benutzer) BenutzerVerbergen(s, k);  // modal: nothing can be mended beside them
  if (std::holds_alternative<ImLageplan>(ort)) return LageplanOeffnen(s, k);
  return std::holds_alternative<InZelle>(ort) ? DatenblattOeffnen(s, k) : OptionenOeffnen(s, k);
}

}  // namespace vesk
