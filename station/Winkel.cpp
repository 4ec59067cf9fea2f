#include "station/Winkel.h"

#include <algorithm>

#include "engine/Zahlen.h"
#include "station/Optionen.h"
#include "station/Rechnung.h"

namespace vesk {

namespace {

using Daempfungen = std::array<std::string, AnzahlSektoren>;

constexpr const char* Beispielleistung = "347.59";

constexpr std::array Winkeltexte = {&Winkelseite::antenne, &Winkelseite::gewinn, &Winkelseite::frequenz,
                                    &Winkelseite::AntEinPWR, &Winkelseite::massstab};

Daempfungen& Tabelle(Station& s) {
  return s.Datenblattspalten[0].Winkel;
}

/// Power, gain, frequency and what decides the limits; the attenuations are a sector's own.
bool KopfGleich(const Winkeleingabe& a, const Winkeleingabe& b) {
  return a.sektoren.AntEinPWR == b.sektoren.AntEinPWR && a.sektoren.gewinn == b.sektoren.gewinn &&
         a.frequenz == b.frequenz && a.afu == b.afu && a.grenzwerttyp == b.grenzwerttyp;
}

void OhneDatei(Station& s, const std::string& herkunft) {
  s.winkel.datei.clear();
  s.winkel.dateiGelesen = false;
  s.winkel.herkunft = herkunft;
}

/// A table of the current column with what else the page shows of it.
void AusSatz(Station& s, const Daempfungen& daempfung, const std::string& herkunft) {
  WinkelErsetzen(s, daempfung);
  OhneDatei(s, herkunft);
  s.winkel.antenne = s.werte.Spalte == 0 ? std::string() : Zelle(s, s.werte.Spalte, ZeileAntenne);
  s.winkel.gewinn = s.werte.GewinnText;
  s.winkel.frequenz = s.werte.QRGText;
}

Meldungen BeispielSetzen(Station& s, const Kataloge& k) {
  const Winkeldaten beispiel{"Beispiel Tonna 17el",
                             "15.3",
                             "144",
                             {"0.00", "0.85", "3.33", "11.25", "12.92", "14.58", "16.67", "17.50", "20.00"}};
  WinkelErsetzen(s, beispiel.daempfung);
  OhneDatei(s, "Beispiel");
  s.winkel.antenne = beispiel.antenne;
  s.winkel.gewinn = beispiel.gewinn;
  s.winkel.frequenz = beispiel.frequenz;
  s.winkel.AntEinPWR = Beispielleistung;
  WinkelInSpalte(s);
  return SektorenBerechnen(s, k);
}

}  // namespace

const std::string& WinkelText(const Winkelseite& seite, Winkelfeld feld) {
  return seite.*Winkeltexte.at(static_cast<std::size_t>(feld));
}

Winkeleingabe Winkeleingaben(const Station& s) {
  return {.sektoren = {.AntEinPWR = s.winkel.AntEinPWR,
                       .gewinn = s.winkel.gewinn,
                       .daempfung = s.Datenblattspalten[0].Winkel},
          .frequenz = s.winkel.frequenz,
          .afu = s.einstellungen.AFu,
          .grenzwerttyp = s.werte.Grenzwerttyp};
}

bool SektorAktuell(const Station& s, std::size_t sektor) {
  if (!s.winkel.ergebnis) return false;
  const Winkeleingabe jetzt = Winkeleingaben(s);
  const Winkeleingabe& damals = s.winkel.ergebnis->eingabe;
  return KopfGleich(jetzt, damals) &&
         jetzt.sektoren.daempfung.at(sektor) == damals.sektoren.daempfung.at(sektor);
}

bool EIRPAktuell(const Station& s, std::size_t sektor) {
  if (sektor != 0 || !s.winkel.EIRPausRechnung) return SektorAktuell(s, sektor);
  if (!Aktuell(s) || !s.ergebnis->zahlen.AntEinPWR) return false;
  return s.winkel.gewinn == s.werte.GewinnText && s.winkel.frequenz == s.werte.QRGText &&
         s.winkel.AntEinPWR == Formatieren(*s.ergebnis->zahlen.AntEinPWR);
}

std::string EIRPText(const Station& s, std::size_t sektor) {
  if (sektor == 0 && s.winkel.EIRPausRechnung) {
    return s.ergebnis && s.ergebnis->zahlen.WEIRP ? Formatieren(*s.ergebnis->zahlen.WEIRP) : std::string();
  }
  if (!s.winkel.ergebnis || sektor >= s.winkel.ergebnis->tabelle.sektoren.size()) return {};
  return Formatieren(s.winkel.ergebnis->tabelle.sektoren[sektor].EIRP);
}

bool WinkelUngesichert(const Station& s) {
  const Winkelseite& w = s.winkel;
  const Daempfungen& tabelle = s.Datenblattspalten[0].Winkel;
  // Gain and frequency that nobody has typed here stand where they come from.
  const std::string gewinn = w.kopfGetippt ? w.gewinn : "";
  const std::string frequenz = w.kopfGetippt ? w.frequenz : "";
  const auto leer = [](const std::string& text) { return text.empty(); };
  const bool nichts = leer(w.antenne) && leer(gewinn) && leer(frequenz);
  if (!w.bearbeitet || (nichts && std::all_of(tabelle.begin(), tabelle.end(), leer))) return false;
  for (int spalte = 1; spalte <= static_cast<int>(AnzahlSpalten); ++spalte) {
    const Datenblattspalte& satz = s.Datenblattspalten.at(static_cast<std::size_t>(spalte));
    const auto steht = [](const std::string& text, const std::string& dort) {
      return text.empty() || text == dort;
    };
    if (tabelle == satz.Winkel && steht(w.antenne, Zelle(s, spalte, ZeileAntenne)) &&
        steht(gewinn, satz.Gewinn) && steht(frequenz, satz.QRG)) {
      return false;
    }
  }
  return true;
}

Winkeldaten WinkeldatenDerSeite(const Station& s) {
  return {s.winkel.antenne, s.winkel.gewinn, s.winkel.frequenz, s.Datenblattspalten[0].Winkel};
}

std::optional<float> Sektorabstand(const Sektor& sektor, Winkelkurve kurve) {
  if (kurve == Winkelkurve::OhneHSM) return sektor.ohneHSM;
  return kurve == Winkelkurve::HSM306 ? sektor.HSM306 : sektor.HSMvde;
}

std::optional<float> Sektorabstand(const Station& s, std::size_t sektor, Winkelkurve kurve) {
  if (!s.winkel.ergebnis || sektor >= s.winkel.ergebnis->tabelle.sektoren.size()) return std::nullopt;
  return Sektorabstand(s.winkel.ergebnis->tabelle.sektoren[sektor], kurve);
}

Meldungen WinkelGetippt(Station& s, const Kataloge&, Winkelfeld feld, const std::string& text) {
  s.winkel.*Winkeltexte.at(static_cast<std::size_t>(feld)) = text;
  if (feld <= Winkelfeld::Frequenz) s.winkel.bearbeitet = true;
  if (feld == Winkelfeld::Gewinn || feld == Winkelfeld::Frequenz) s.winkel.kopfGetippt = true;
  return {};
}

Meldungen WinkeldaempfungGetippt(Station& s, const Kataloge&, std::size_t sektor, const std::string& text) {
  Tabelle(s).at(sektor) = text;
  s.winkel.bearbeitet = true;
  // What is typed survives a look at another column.
  WinkelInSpalte(s);
  return {};
}

Meldungen SektorenBerechnen(Station& s, const Kataloge&) {
  const Winkeleingabe eingabe = Winkeleingaben(s);
  const float mhz = Zahl(eingabe.frequenz);
  const Grenzwerte grenzwerte = GrenzwerteBestimmen(mhz, eingabe.afu, eingabe.grenzwerttyp);
  // Heads over figures of another frequency would tell the wrong one.
  if (!s.ergebnis) s.koepfe = grenzwerte.frequenz;
  s.winkel.ergebnis = Winkelergebnis{eingabe, SektorenRechnen(eingabe.sektoren, grenzwerte)};
  s.winkel.EIRPausRechnung = false;

  Meldungen meldungen;
  if (grenzwerte.ausserhalb) meldungen.push_back({BereichsHinweis()});
  if (grenzwerte.hsmVDE.ausserhalb && s.einstellungen.Meldungen) meldungen.push_back({HSMBereichsHinweis()});
  if (const auto& fehler = s.winkel.ergebnis->tabelle.fehler) meldungen.push_back({Fehlermeldung(*fehler)});
  return meldungen;
}

Meldungen WinkeldaempfungNehmen(Station& s, const Kataloge& k, std::size_t sektor) {
  WinkelInSpalte(s);
  WinkeldaempfungSetzen(s, Tabelle(s).at(sektor));
  return Neurechnen(s, k);
}

Meldungen WinkelBeispiel(Station& s, const Kataloge& k) {
  if (!s.winkel.bearbeitet) return BeispielSetzen(s, k);
  Meldung frage{Bestaetigung("Beispiel", "Die Winkeltabelle wurde geändert. Änderungen verwerfen?")};
  frage.danach = [](Station& t, const Kataloge& kataloge, Antwort antwort) {
    return antwort == Antwort::Ja ? BeispielSetzen(t, kataloge) : Meldungen{};
  };
  return {frage};
}

Meldungen WinkelLoeschen(Station&, const Kataloge&) {
  Meldung frage{Bestaetigung("Winkeldämpfung", "Datenblatt wirklich löschen?")};
  frage.danach = [](Station& s, const Kataloge&, Antwort antwort) {
    if (antwort != Antwort::Ja) return Meldungen{};
    WinkelErsetzen(s, {});
    // The file still holds what has just been cleared here.
    s.winkel.dateiGelesen = false;
    WinkelInSpalte(s);
    return Meldungen{};
  };
  return {frage};
}

void WinkelErsetzen(Station& s, const Daempfungen& daempfung) {
  Tabelle(s) = daempfung;
  s.winkel.ergebnis.reset();
  s.winkel.EIRPausRechnung = false;
  s.winkel.bearbeitet = s.winkel.kopfGetippt = false;
}

Meldungen WinkelUebernehmen(Station& s, const Daempfungen& daempfung, const std::string& herkunft) {
  if (daempfung == Tabelle(s)) return {};
  if (!s.winkel.bearbeitet) {
    AusSatz(s, daempfung, herkunft);
    return {};
  }
  const std::string woher = herkunft.empty() ? "eine leere" : "die Tabelle " + herkunft;
  Meldung frage{Bestaetigung("Winkeldämpfung",
                             "Die Winkeltabelle wurde geändert und nicht gespeichert.\n"
                             "Soll " +
                                 woher + " an ihre Stelle treten?")};
  frage.danach = [daempfung, herkunft](Station& t, const Kataloge&, Antwort antwort) {
    if (antwort == Antwort::Ja) AusSatz(t, daempfung, herkunft);
    return Meldungen{};
  };
  return {frage};
}

}  // namespace vesk
