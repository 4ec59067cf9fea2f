#include "station/Wegweiser.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Haupthandlungen.h"
#include "station/Optionen.h"
#include "station/Papiere.h"
#include "station/Rechnung.h"
#include "station/Spalten.h"
#include "station/Vorschau.h"

namespace vesk {

namespace {

Schritt Fehlend(const Station& s) {
  if (!Positiv(s.werte.QRGText)) return {"Frequenz fehlt"};
  return {s.modus == Modus::Abstand ? "Leistung fehlt" : "Abstand fehlt", {}, true};
}

/// A column holds the inputs of the main window: copied from the table of all bands, without a result here.
bool SchonImBlatt(const Station& s) {
  const Rechenwerte& w = s.werte;
  const std::array<std::pair<Zeile, const std::string*>, 4> eingaben = {{{ZeileFrequenz, &w.QRGText},
                                                                         {ZeileLeistung, &w.PWRText},
                                                                         {ZeileVerluste, &w.DaempfungText},
                                                                         {ZeileGewinn, &w.GewinnText}}};
  const auto haelt = [&](int spalte) {
    return std::all_of(eingaben.begin(), eingaben.end(), [&](const auto& eingabe) {
      const std::string& text = *eingabe.second;
      return Zelle(s, spalte, eingabe.first) == (text.empty() ? "0" : text);
    });
  };
  const std::vector<int> spalten = BenutzteSpalten(s);
  return s.modus == Modus::Abstand && std::any_of(spalten.begin(), spalten.end(), haelt);
}

/// What is left when nothing is to be calculated or copied.
Schritt ZuDenPapieren(const Station& s, const Kataloge& k) {
  if (s.UserGeaendert) return {"Datei speichern", {}, false, true};
  const std::size_t offen = PapierePruefen(s, k).size();
  if (offen == 0) return {"Papiere drucken", PapiereZeigen};
  return {"Papiere prüfen (" + std::to_string(offen) + " offen)", PapiereZeigen};
}

void Anfuegen(std::string& text, const std::string& dazu, const char* trenner) {
  if (!text.empty() && !dazu.empty()) text += trenner;
  text += dazu;
}

/// The distances that the near field reaches beyond.
std::string NahfeldAngabe(const Ergebnis& ergebnis) {
  const int flags = ergebnis.zahlen.Nahfeldflags;
  if (flags == 0) return {};
  if (ergebnis.eingabe.modus == Modus::Leistung) return "N: Der Sicherheitsabstand liegt im Nahfeld.";
  std::string namen;
  if ((flags & NahfeldOhneHSM) != 0) Anfuegen(namen, "ohne HSM", ", ");
  if ((flags & NahfeldHSMvde) != 0) Anfuegen(namen, "HSM VDE", ", ");
  if ((flags & NahfeldHSM306) != 0) Anfuegen(namen, "HSM 306", ", ");
  return "N: Im Nahfeld (" + namen + ").";
}

}  // namespace

Schritt NaechsterSchritt(const Station& s, const Kataloge& k) {
  const int spalte = s.werte.Spalte;
  if (spalte != 0) {
    if (SpalteVeraltet(s, spalte)) return {Spaltenname(spalte) + " veraltet: Rechnen", Rechnen};
    return ZuDenPapieren(s, k);
  }
  if (!EingabenVollstaendig(s)) {
    // After the last copy the fields may be empty; then the sheet counts.
    const bool begonnen = !s.werte.QRGText.empty() || !s.werte.PWRText.empty();
    return begonnen || BenutzteSpalten(s).empty() ? Fehlend(s) : ZuDenPapieren(s, k);
  }
  if (!s.ergebnis && !SchonImBlatt(s)) return {"Berechnen: =", Rechnen};
  if (ErgebnisVeraltet(s)) return {"Ergebnis veraltet: =", Rechnen};
  if (Kopierbar(s))
    return {"In Spalte " + NaechsteFreieSpalte(s.Zellen) + " kopieren", InFreieSpalteKopieren};
  return ZuDenPapieren(s, k);
}

std::string WarumNichtKopierbar(const Station& s) {
  if (Kopierbar(s)) return {};
  if (NaechsteFreieSpalte(s.Zellen).empty()) return "Alle sieben Spalten des Datenblatts sind belegt.";
  if (!s.ergebnis) return "Es ist noch nichts berechnet.";
  if (ErgebnisVeraltet(s)) return "Das Ergebnis gehört nicht zu diesen Eingaben. Bitte neu berechnen.";
  return "Dieses Ergebnis steht schon im Datenblatt.";
}

bool ErgebnisVeraltet(const Station& s) {
  return s.ergebnis && (!Aktuell(s) || !KabelAktuell(s));
}

std::string Farbensinn(const Station& s) {
  std::string text;
  const auto satz = [&](bool wahr, const std::string& dazu) {
    if (wahr) Anfuegen(text, dazu, " ");
  };
  satz(s.markeQRG == Pruefmarke::Fehlt, "! Frequenz fehlt.");
  satz(s.markePWR == Pruefmarke::Fehlt,
       s.modus == Modus::Abstand ? "! Sendeleistung fehlt." : "! Sicherheitsabstand fehlt.");
  satz(ErgebnisVeraltet(s), "Veraltet: Die Werte gehören zu anderen Eingaben.");
  if (!s.ergebnis || !s.ergebnis->zahlen.vollstaendig) return text;
  std::string ohne;
  if (s.farbeVDE == Blockfarbe::Grau) Anfuegen(ohne, "HSM VDE", " und ");
  if (s.farbe306 == Blockfarbe::Grau) Anfuegen(ohne, "HSM 306", " und ");
  satz(!ohne.empty(), "Kein Grenzwert bei dieser Frequenz: " + ohne + ".");
  satz(true, NahfeldAngabe(*s.ergebnis));
  const float faktor = s.ergebnis->eingabe.faktor;
  satz(faktor < 1.0F, "„ohne HSM“ gilt für den Faktor " + Formatieren(faktor) + " der Sendeart.");
  return text;
}

std::string FaktorUndTyp(const Station& s) {
  constexpr std::array Typen = {"AM", "TV", "GSM"};
  const auto typ = static_cast<std::size_t>(s.werte.Grenzwerttyp);
  return Formatieren(Faktor(s.werte)) + ", " + (typ < Typen.size() ? Typen[typ] : "GSM");
}

std::string Kabelangabe(const Station& s, const Kataloge& k) {
  const std::string& laenge = s.Datenblattspalten[0].KabelLaenge;
  const int index = Kabelindex(s, k);
  if (laenge.empty() || index < 0) return {};
  return k.kabel.liste.at(static_cast<std::size_t>(index)) + ", " + laenge + " m";
}

Meldungen Rechnen(Station& s, const Kataloge& k) {
  return s.werte.Spalte == 0 ? BerechnenVerlangt(s, k) : SpalteRechnen(s, k);
}

Meldungen RechnenUndKopieren(Station& s, const Kataloge& k) {
  Abschliessen(s, k);
  Meldungen meldungen;
  if (!Aktuell(s) || !KabelAktuell(s)) meldungen = BerechnenVerlangt(s, k);
  if (!Aktuell(s)) return meldungen;
  if (const std::string grund = WarumNichtKopierbar(s); !grund.empty()) {
    meldungen.push_back({MitHilfe({"Hinweis", grund}, HilfeKopieren)});
    return meldungen;
  }
  Anhaengen(meldungen, InFreieSpalteKopieren(s, k));
  return meldungen;
}

Meldungen SpalteAufsuchen(Station& s, const Kataloge& k, int spalte) {
  Meldungen meldungen = DatenblattOeffnen(s, k);
  if (!SpalteFrei(s.Zellen, static_cast<std::int16_t>(spalte))) {
    Anhaengen(meldungen, ZelleGeklickt(s, k, spalte));
  }
  return meldungen;
}

}  // namespace vesk
