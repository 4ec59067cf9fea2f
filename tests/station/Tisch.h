#pragma once
#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "engine/Ausgabe.h"
#include "persistence/Katalogdateien.h"
#include "station/Datenblatt.h"
#include "station/Haupthandlungen.h"
#include "station/Operator.h"
#include "station/Optionen.h"
#include "station/Rechnung.h"
#include "station/Spalten.h"
#include "station/Winkel.h"

namespace vesk {

/// A station and its user, without windows. Notes are answered with Ja unless `antworten` says otherwise;
/// what was said is kept by its titles.
struct Tisch {
  Tisch() {
    Meldungen meldungen;
    k = KatalogeLesen(VESK_DATEN, meldungen);
    EXPECT_TRUE(meldungen.empty());
    OptionenVorbelegen(s, k);
  }

  template <typename Funktion, typename... Werte>
  Tisch& Tun(Funktion tun, Werte... werte) {
    Sagen(Ausfuehren([&](Station& t, const Kataloge& kataloge) { return tun(t, kataloge, werte...); }, s, k));
    return *this;
  }
  void Sagen(const Meldungen& meldungen) {
    for (const Meldung& meldung : meldungen) {
      gesagt.push_back(meldung.hinweis.titel);
      Antwort antwort = meldung.hinweis.knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Ja;
      if (antwort == Antwort::Ja && !antworten.empty()) {
        antwort = antworten.front();
        antworten.pop_front();
      }
      if (!meldung.danach) continue;
      Sagen(Ausfuehren(
          [&](Station& t, const Kataloge& kataloge) { return meldung.danach(t, kataloge, antwort); }, s, k));
    }
  }

  /// Goes into the field, replaces its text and stays there.
  Tisch& Tippen(Eingabefeld feld, const std::string& text) {
    if (s.inArbeit && s.inArbeit != feld) Tun(FeldVerlassen, *s.inArbeit);
    if (s.inArbeit != feld) Tun(FeldBetreten, feld);
    if (feld == Eingabefeld::KabelQRG) return Tun(KabelfeldGetippt, Kabelfeld::QRG, text);
    return Tun(EingabeGetippt, feld, text);
  }
  Tisch& Verlassen() { return s.inArbeit ? Tun(FeldVerlassen, *s.inArbeit) : *this; }
  Tisch& Eingeben(const std::string& qrg, const std::string& pwr = "100", const std::string& gewinn = "0",
                  const std::string& daempfung = "", const std::string& winkel = "0") {
    Tippen(Eingabefeld::QRG, qrg).Tippen(Eingabefeld::PWR, pwr).Tippen(Eingabefeld::Gewinn, gewinn);
    if (!daempfung.empty()) Tippen(Eingabefeld::Daempfung, daempfung);
    return Tippen(Eingabefeld::Winkel, winkel).Verlassen();
  }
  Tisch& Rechnen() { return Verlassen().Tun(BerechnenVerlangt); }
  Tisch& Kopieren() { return Tun(InFreieSpalteKopieren); }
  Tisch& Kabel(const std::string& name, const std::string& laenge) {
    const auto& liste = k.kabel.liste;
    Tun(KabelfeldGetippt, Kabelfeld::KabelLaenge, laenge);
    return Tun(KabelGewaehlt, int(std::find(liste.begin(), liste.end(), name) - liste.begin()));
  }
  /// Types into a cell; row counted from 1.
  Tisch& Zelle(int spalte, Zeile zeile, const std::string& text) {
    return Tun(ZelleGetippt, Zellenindex(spalte, zeile), text);
  }

  std::string Ausgabe(Feld feld) const {
    return s.ergebnis ? Ausgabetexte(s.ergebnis->zahlen, '.')[feld].value_or("") : std::string();
  }
  std::string Ohne() const { return Ausgabe(Feld::AusgabeOhneHSM); }
  std::string HSM306() const { return Ausgabe(Feld::AusgabeHSM306); }
  std::string Blatt(int spalte, Zeile zeile) const { return vesk::Zelle(s, spalte, zeile); }
  bool Gesagt(const std::string& titel) const {
    return std::find(gesagt.begin(), gesagt.end(), titel) != gesagt.end();
  }

  Station s;
  Kataloge k;
  std::vector<std::string> gesagt;
  std::deque<Antwort> antworten;
};

}  // namespace vesk
