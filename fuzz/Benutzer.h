#pragma once
#include <deque>

#include "engine/Ausgabe.h"
#include "engine/Zahlen.h"
#include "fuzz/Kataloge.h"
#include "fuzz/Vorrat.h"
#include "station/Haupthandlungen.h"
#include "station/Operator.h"
#include "station/Optionen.h"
#include "station/Rechnung.h"
#include "station/Spalten.h"
#include "station/Winkel.h"

namespace vesk {

/// A station in the hands of somebody who does what the bytes say. Its promises are looked at by Pruefen.
class Probebenutzer {
 public:
  explicit Probebenutzer(Vorrat& vorrat) : vorrat_(vorrat) { OptionenVorbelegen(s, k); }

  /// Answers questions as the bytes say; whether a fault was told.
  template <typename Funktion, typename... Werte>
  bool Tun(Funktion tun, const Werte&... werte) {
    return Beantworten(
        Ausfuehren([&](Station& t, const Kataloge& kataloge) { return tun(t, kataloge, werte...); }, s, k));
  }

  /// Leaves the field before, replaces the text of this one and stays there.
  void Tippen(Eingabefeld feld, const std::string& text) {
    if (s.inArbeit && s.inArbeit != feld) Tun(FeldVerlassen, *s.inArbeit);
    Tun(EingabeGetippt, feld, text);
  }

  int Spalte() { return static_cast<int>(vorrat_.Wahl(AnzahlSpalten)) + 1; }

  /// A text that somebody types, or the next line of the input.
  std::string Text() {
    static constexpr const char* Texte[] = {"14.2", "145",  "435", "",     "100",   "750", "0", "3.33",
                                            "-3",   "1e38", "7.1", "2600", "0.001", "50",  "1"};
    const std::size_t wahl = vorrat_.Wahl(std::size(Texte) + 1);
    return wahl < std::size(Texte) ? Texte[wahl] : vorrat_.Zeile();
  }

  void Pruefen() const {
    vesk::Pruefen(Faktor(s.werte) > 0 && Faktor(s.werte) <= 1);
    vesk::Pruefen(s.werte.Grenzwerttyp >= GrenzwertAM && s.werte.Grenzwerttyp <= GrenzwertGSM);
    vesk::Pruefen(s.werte.Spalte >= 0 && s.werte.Spalte <= AnzahlSpalten);
    if (Aktuell(s)) ErgebnisPruefen();
    for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) SpaltePruefen(spalte);
  }

  Station s;
  const Kataloge& k = Probekataloge();

 private:
  bool Beantworten(const Meldungen& meldungen) {
    bool fehler = false;
    for (const Meldung& meldung : meldungen) {
      vesk::Pruefen(!meldung.hinweis.text.empty());
      fehler = fehler || meldung.hinweis.titel == Fehlermeldung(Fehlerart::Index).titel;
      if (!meldung.danach) continue;
      const bool frage = meldung.hinweis.knoepfe == Knoepfe::JaNein;
      const Antwort antwort = !frage ? Antwort::OK : vorrat_.Ja() ? Antwort::Ja : Antwort::Nein;
      const auto danach = [&](Station& t, const Kataloge& kataloge) {
        return meldung.danach(t, kataloge, antwort);
      };
      fehler = Beantworten(Ausfuehren(danach, s, k)) || fehler;
    }
    return fehler;
  }

  /// What counts as up to date is what the inputs beside it give.
  void ErgebnisPruefen() const {
    vesk::Pruefen(EingabenVollstaendig(s) && !s.ergebnis->zahlen.fehler);
    Rechenwerte werte = s.werte;
    vesk::Pruefen(Berechnen(werte, {s.modus, s.einstellungen.AFu}) == s.ergebnis->zahlen);
  }

  /// The figures of a column that do not count as out of date have inputs, and are what one of the ways of
  /// calculating gives.
  void SpaltePruefen(int spalte) const {
    const auto zelle = [&](Zeile zeile) -> const std::string& { return Zelle(s, spalte, zeile); };
    if (zelle(ZeileOhneHSM).empty() && zelle(ZeileHSM306).empty() && zelle(ZeileHSMvde).empty()) return;
    const std::optional<Rechenart> art = HaltendeArt(s, spalte);
    if (!art) return;
    Rechenwerte werte = Spaltenwerte(s, spalte);
    // Backwards a power may be too small for two decimals; what was given is the distance.
    const bool zurueck = art->modus == Modus::Leistung;
    vesk::Pruefen(Positiv(zelle(ZeileFrequenz)) && Positiv(zelle(zurueck ? ZeileOhneHSM : ZeileLeistung)));
    if (zurueck) werte.PWRText = zelle(ZeileOhneHSM);
    const Rechenergebnis e = Berechnen(werte, *art);
    vesk::Pruefen(e.vollstaendig && Ausgabetexte(e, '.')[Feld::AusgabeOhneHSM] ==
                                        zelle(zurueck ? ZeileLeistung : ZeileOhneHSM));
  }

  Vorrat& vorrat_;
};

}  // namespace vesk
