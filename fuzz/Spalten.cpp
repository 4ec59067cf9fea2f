#include "station/Spalten.h"

#include <cmath>
#include <limits>

#include "engine/Laufzeitfehler.h"
#include "engine/Zahlen.h"
#include "fuzz/Benutzer.h"
#include "station/Datenblatt.h"
#include "station/Formel.h"
#include "station/Papiere.h"
#include "station/Rechenweg.h"
#include "station/Spaltenstand.h"
#include "station/Wegweiser.h"

namespace vesk {

namespace {

constexpr Zeile Ergebniszeilen[] = {ZeileOhneHSM, ZeileHSM306, ZeileHSMvde};

/// The record of a column without what a calculation writes into it.
Datenblattspalte OhneAbstaende(Datenblattspalte satz) {
  satz.AbstandOhneHSM = satz.AbstandHSM306 = satz.AbstandHSMvde = {};
  return satz;
}

/// A sheet as a file may bring it: any text in any place, a line each.
void SpalteFuellen(Station& s, int spalte, Vorrat& vorrat) {
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    s.Zellen.at(Zellenindex(spalte, Zeile(zeile))) = vorrat.Zeile();
  }
  Datenblattspalte& satz = s.Datenblattspalten.at(static_cast<std::size_t>(spalte));
  for (std::string* text :
       {&satz.Modulationsfaktor, &satz.Zyklusfaktor, &satz.KabelLaenge, &satz.KabelIndex, &satz.Antenne,
        &satz.D100, &satz.Kabeldaempfung, &satz.Stecker, &satz.Gesamtdaempfung, &satz.QRG, &satz.Gewinn,
        &satz.Winkeldaempfung, &satz.AbstandOhneHSM, &satz.AbstandHSM306, &satz.AbstandHSMvde}) {
    *text = vorrat.Zeile();
  }
  for (std::string& text : satz.Winkel) text = vorrat.Zeile();
  satz.Grenzwerttyp = vorrat.Bits<std::int16_t>();
  vorrat.Zeile();
}

/// The main window shows what the column says; the column keeps what it is, but for its results.
void UebernahmePruefen(const Station& vorher, const Station& s, int spalte, bool still, bool fehler) {
  Pruefen(s.werte.Spalte == spalte && s.modus == Modus::Abstand);
  const auto satz = static_cast<std::size_t>(spalte);
  Pruefen(OhneAbstaende(s.Datenblattspalten.at(satz)) == OhneAbstaende(vorher.Datenblattspalten.at(satz)));
  const Rechenwerte werte = Spaltenwerte(s, spalte);
  // An empty gain, loss or angle counts as 0, which the main window then shows.
  const auto gezeigt = [](const std::string& a, const std::string& b) {
    return a == b || (a == "0" && b.empty());
  };
  for (const auto text : Eingabetexte) Pruefen(gezeigt(s.werte.*text, werte.*text));
  Pruefen(Faktor(s.werte) == Faktor(werte) && s.werte.Grenzwerttyp == werte.Grenzwerttyp);

  for (std::size_t i = 0; i < s.Zellen.size(); ++i) {
    const bool ergebnis = i >= Zellenindex(spalte, ZeileOhneHSM) && i <= Zellenindex(spalte, ZeileHSMvde);
    Pruefen(ergebnis || s.Zellen.at(i) == vorher.Zellen.at(i));
  }
  if (Aktuell(s) && !fehler) {
    Pruefen(HaltendeArt(s, spalte).has_value());
    for (const Zeile zeile : Ergebniszeilen) Pruefen(Zelle(s, spalte, zeile).size() <= MaxZellenlaenge);
  } else if (!EingabenVollstaendig(s)) {
    // The cells that are missing are marked, and no result stands beside them, here or there.
    Pruefen(!s.ergebnis &&
            (s.rot[Zellenindex(spalte, ZeileFrequenz)] || s.rot[Zellenindex(spalte, ZeileLeistung)]));
    for (const Zeile zeile : Ergebniszeilen) Pruefen(still || Zelle(s, spalte, zeile).empty());
  }
}

/// How far the inputs of a column go: numbers and levels (dB).
struct Spanne {
  float groesstes;
  float pegel;
};
constexpr Spanne Gewoehnlich{1000, 60};  // with others single precision carries fewer digits
constexpr Spanne Rechenbar{std::numeric_limits<float>::max(), 1e6F};  // sums of higher levels lose the power

bool Innerhalb(const Spanne& spanne, const Station& s, int spalte) {
  const Rechenwerte werte = Spaltenwerte(s, spalte);
  const Datenblattspalte& satz = s.Datenblattspalten.at(static_cast<std::size_t>(spalte));
  const auto unter = [](float groesstes) {
    return [groesstes](const std::string* text) { return std::abs(Zahl(*text)) <= groesstes; };
  };
  try {
    const auto werteliste = {&werte.QRGText, &werte.PWRText, &satz.QRG, &satz.KabelLaenge, &satz.D100};
    const auto pegel = {&werte.GewinnText,    &werte.DaempfungText, &werte.WinkelDaempfungText,
                        &satz.Kabeldaempfung, &satz.Stecker,        &satz.Gesamtdaempfung};
    return Zahl(werte.QRGText) > 1 / spanne.groesstes && Zahl(werte.PWRText) > 1 / spanne.groesstes &&
           std::all_of(werteliste.begin(), werteliste.end(), unter(spanne.groesstes)) &&
           std::all_of(pegel.begin(), pegel.end(), unter(spanne.pegel));
  } catch (const Laufzeitfehler&) {
    return false;
  }
}

/// The formula gives the number, as exactly as its digits say, and there are enough of them.
void GleichungPruefen(const Gleichung& gleichung, bool rechenbar, bool gewoehnlich) {
  const std::string& zahl = gleichung.ergebnis.zahl;
  Pruefen(!zahl.empty() && zahl.find_first_not_of("-.0123456789") == std::string::npos);
  const std::size_t punkt = zahl.find('.');
  const std::size_t nullen = zahl.size() - 1 - std::min(zahl.find_last_not_of('0'), zahl.size() - 1);
  const double einheit =
      std::pow(10.0, punkt == std::string::npos ? double(nullen) : double(punkt) + 1 - double(zahl.size()));
  const double wert = std::strtod(zahl.c_str(), nullptr);
  const double genau = Zahlenwert(gleichung.formel);
  if (!rechenbar) return;
  // Among the smallest singles the next one is further away than the digit that is printed.
  const double stufe = std::numeric_limits<float>::denorm_min();
  Pruefen(std::abs(genau - wert) <= einheit * 1.001 + stufe + std::abs(wert) * 1e-12);
  // Fewer digits than the sheet or than three: what is printed is not what the formula gives.
  Pruefen(!gewoehnlich || std::abs(genau - wert) <= std::max(0.0101, std::abs(wert) * 1e-3));
}

void RechenwegPruefen(const Station& s, const Kataloge& k, int spalte) {
  const bool rechenbar = Innerhalb(Rechenbar, s, spalte);
  const bool gewoehnlich = Innerhalb(Gewoehnlich, s, spalte);
  for (const Rechenabschnitt& abschnitt : Rechenweg(s, k, spalte)) {
    Pruefen(!abschnitt.zeilen.empty() || abschnitt.titel.empty());
    for (const Rechenzeile& zeile : abschnitt.zeilen) {
      if (zeile.gleichung) GleichungPruefen(*zeile.gleichung, rechenbar, gewoehnlich);
    }
  }
}

/// Whoever reads a column copes with any.
void LesenPruefen(const Station& s, const Kataloge& k, int spalte) {
  Pruefen(Spaltenfaktor(s, spalte) > 0 && Spaltenfaktor(s, spalte) <= 1);
  Spaltenstand(s, spalte);
  RechenwegPruefen(s, k, spalte);
  WinkelbelegDerSpalte(s, spalte);
  for (const Winkelblatt& blatt : WinkelblaetterDerSpalten(s)) {
    Pruefen(blatt.tabelle.sektoren.empty() || blatt.tabelle.sektoren.size() == AnzahlSektoren);
  }
  for (const Befund& befund : PapierePruefen(s, k)) Pruefen(!befund.text.empty());
  Farbensinn(s);
}

void Fuzzen(Vorrat& vorrat) {
  Probebenutzer benutzer(vorrat);
  Station& s = benutzer.s;
  s.OptionenBeruecksichtigen = !vorrat.Ja();
  s.einstellungen.AFu = !vorrat.Ja();
  if (vorrat.Ja()) benutzer.Tun(WinkeldaempfungGetippt, std::size_t{2}, std::string("4.5"));
  if (vorrat.Ja()) benutzer.Tun(BetriebsartGeklickt, 2);
  if (vorrat.Ja()) benutzer.Tun(ModusGeklickt);
  if (vorrat.Ja()) benutzer.Tippen(Eingabefeld::QRG, "145");
  const bool still = vorrat.Ja();
  const int spalte = benutzer.Spalte();
  vorrat.Zeile();
  SpalteFuellen(s, spalte, vorrat);
  LesenPruefen(s, benutzer.k, spalte);

  // A field that is left may calculate before; that is not the column's doing.
  if (s.inArbeit) benutzer.Tun(FeldVerlassen, *s.inArbeit);
  const Station vorher = s;
  const bool fehler = still ? benutzer.Tun(ZelleGeklickt, spalte) : benutzer.Tun(KopfGeklickt, spalte);
  UebernahmePruefen(vorher, s, spalte, still, fehler);
  benutzer.Pruefen();
  LesenPruefen(s, benutzer.k, spalte);
  benutzer.Tun(SpalteKopieren);
  benutzer.Tun(KopfGeklickt, benutzer.Spalte());
  benutzer.Tun(BerechnenVerlangt);
  benutzer.Pruefen();
}

}  // namespace

}  // namespace vesk

/// A column with a record from anywhere is taken over.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
  vesk::Vorrat vorrat(daten, laenge);
  vesk::Fuzzen(vorrat);
  return 0;
}
