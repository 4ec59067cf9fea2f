#include <algorithm>

#include "engine/Ausgabe.h"
#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Formel.h"
#include "station/Papiere.h"
#include "station/Spalten.h"
#include "station/Text.h"
#include "station/Winkel.h"

namespace vesk {

namespace {

/// No value: beyond the range of single.
std::optional<float> Wert(std::string_view text) {
  try {
    return Zahl(text);
  } catch (const Laufzeitfehler&) {
    return std::nullopt;
  }
}

/// Whole or empty: a diagram of some of the sectors would tell nothing of the others.
Sektortabelle Rechnen(const Winkeleingabe& eingabe) {
  try {
    const float mhz = Zahl(eingabe.frequenz);
    Sektortabelle tabelle =
        SektorenRechnen(eingabe.sektoren, GrenzwerteBestimmen(mhz, eingabe.afu, eingabe.grenzwerttyp));
    if (tabelle.fehler) tabelle.sektoren.clear();
    return tabelle;
  } catch (const Laufzeitfehler& fehler) {
    return {{}, fehler.art};
  }
}

const Winkeldaempfungen& Tabelle(const Station& s, int spalte) {
  return s.Datenblattspalten.at(static_cast<std::size_t>(spalte)).Winkel;
}

Winkelblatt Spaltenblatt(const Station& s, int spalte) {
  const std::optional<Rechenart> haelt = HaltendeArt(s, spalte);
  const Rechenart art{.modus = Modus::Abstand, .afu = haelt ? haelt->afu : s.einstellungen.AFu};
  Rechenwerte werte = Spaltenwerte(s, spalte);
  const Rechenergebnis e = Berechnen(werte, art);
  Winkelblatt blatt;
  blatt.bezug = Spaltenname(spalte);
  blatt.antenne = Zelle(s, spalte, ZeileAntenne);
  blatt.gewinn = Zelle(s, spalte, ZeileGewinn);
  blatt.frequenz = Zelle(s, spalte, ZeileFrequenz);
  blatt.daempfung = Tabelle(s, spalte);
  std::string leistung;
  if (e.AntEinPWR) {
    blatt.AntEinPWR = Formatieren(*e.AntEinPWR);
    // With the rounded power the sector of row 9 would not always give the distances of the column.
    leistung = Dezimal(*e.AntEinPWR);
  }
  blatt.tabelle = Rechnen({.sektoren = {leistung, blatt.gewinn, blatt.daempfung},
                           .frequenz = blatt.frequenz,
                           .afu = art.afu,
                           .grenzwerttyp = werte.Grenzwerttyp});
  return blatt;
}

bool GleichesBand(float eine, float andere) {
  return eine == andere ||
         (AmateurbandVon(eine) != nullptr && AmateurbandVon(eine) == AmateurbandVon(andere));
}

}  // namespace

bool IstZahl(std::string_view text) {
  const auto ziffer = [](char z) { return z >= '0' && z <= '9'; };
  text = OhneBlanks(text);
  if (text.starts_with('-')) text.remove_prefix(1);
  return std::any_of(text.begin(), text.end(), ziffer) && std::count(text.begin(), text.end(), '.') <= 1 &&
         std::all_of(text.begin(), text.end(), [&](char z) { return ziffer(z) || z == '.'; }) && Wert(text);
}

Winkelblatt WinkelblattDerSeite(const Station& s) {
  const Winkeleingabe eingabe = Winkeleingaben(s);
  const std::string& datei = s.winkel.datei;
  Winkelblatt blatt;
  blatt.antenne = s.winkel.antenne;
  blatt.gewinn = s.winkel.gewinn;
  blatt.frequenz = s.winkel.frequenz;
  blatt.AntEinPWR = s.winkel.AntEinPWR;
  blatt.ebene = EbeneAusName(std::string_view(datei).substr(datei.rfind('/') + 1));
  blatt.daempfung = eingabe.sektoren.daempfung;
  // The main direction is 0 from the start; it is the other sectors that make a table.
  const bool leer = std::all_of(blatt.daempfung.begin() + 1, blatt.daempfung.end(),
                                [](const std::string& text) { return OhneBlanks(text).empty(); });
  if (!leer) blatt.tabelle = Rechnen(eingabe);
  return blatt;
}

bool WinkelseiteAusSpalte(Station& s) {
  float groesste = 0;
  for (const int spalte : BenutzteSpalten(s)) {
    Rechenwerte werte = Spaltenwerte(s, spalte);
    const std::optional<float> leistung = Berechnen(werte, {}).AntEinPWR;
    const bool passt = GleichesBand(werte.QRG, Wert(s.winkel.frequenz).value_or(0));
    if (!passt || !leistung || *leistung <= groesste) continue;
    groesste = *leistung;
    s.winkel.AntEinPWR = Formatieren(groesste);
    s.werte.Grenzwerttyp = werte.Grenzwerttyp;
  }
  return groesste > 0;
}

Winkelbeleg WinkelbelegDerSpalte(const Station& s, int spalte) {
  const std::optional<float> anspruch = Wert(Zelle(s, spalte, ZeileWinkel));
  if (anspruch == 0.0F) return Winkelbeleg::Unnoetig;
  const Winkeldaempfungen& tabelle = Tabelle(s, spalte);
  if (!std::all_of(tabelle.begin(), tabelle.end(), IstZahl)) return Winkelbeleg::Unvollstaendig;
  const auto gleich = [&](const std::string& daempfung) { return Wert(daempfung) == anspruch; };
  if (std::none_of(tabelle.begin(), tabelle.end(), gleich)) return Winkelbeleg::Fremd;
  return Spaltenblatt(s, spalte).tabelle.fehler ? Winkelbeleg::NichtBerechenbar : Winkelbeleg::Diagramm;
}

std::vector<Winkelblatt> WinkelblaetterDerSpalten(const Station& s) {
  std::vector<Winkelblatt> blaetter;
  for (const int spalte : BenutzteSpalten(s)) {
    if (WinkelbelegDerSpalte(s, spalte) == Winkelbeleg::Diagramm) blaetter.push_back(Spaltenblatt(s, spalte));
  }
  return blaetter;
}

bool HatWinkeltabelle(const Station& s) {
  return !WinkelblattDerSeite(s).tabelle.sektoren.empty() || !WinkelblaetterDerSpalten(s).empty();
}

}  // namespace vesk
