#include "station/Operator.h"

#include <algorithm>

#include "engine/Version.h"
#include "station/Text.h"

namespace vesk {

namespace {

constexpr std::size_t FeldRufzeichen = 5;
constexpr std::size_t FeldKlasse = 6;

/// Second letter of a German callsign: the class of its licence.
const char* KlasseAus(const std::string& rufzeichen) {
  const char zweites = rufzeichen.size() > 1 ? rufzeichen[1] : ' ';
  if (zweites == 'B' || zweites == 'C' || zweites == 'D') return "2";
  return zweites == 'O' ? "3" : "1";
}

void Setzen(Station& s, std::string Benutzer::*feld, const std::string& text) {
  if (s.benutzer.*feld == text) return;
  s.benutzer.*feld = text;
  s.UserGeaendert = true;
}

}  // namespace

Meldungen BenutzerGetippt(Station& s, const Kataloge&, std::size_t feld, const std::string& text) {
  const bool gross = feld == FeldRufzeichen || feld == FeldKlasse;
  Setzen(s, Benutzerfelder.at(feld), gross ? Grossbuchstaben(text) : text);
  return {};
}

void KlasseBestimmen(Station& s) {
  if (s.benutzer.Rufzeichen == s.klasseEntschieden) return;
  s.klasseEntschieden = s.benutzer.Rufzeichen;
  Setzen(s, &Benutzer::Klasse, KlasseAus(s.klasseEntschieden));
}

Meldungen UserCheck(Station& s, bool drucken) {
  KlasseBestimmen(s);
  bool vollstaendig = true;
  for (std::size_t i = 0; i < Benutzerfelder.size(); ++i) {
    const bool geprueft =
        Pflichtfelder[i] == Pflicht::Ja || (Pflichtfelder[i] == Pflicht::NurBeimSpeichern && !drucken);
    if (!geprueft) continue;
    const bool leer = (s.benutzer.*Benutzerfelder[i]).empty();
    s.benutzermarken[i] = leer ? Pruefmarke::Fehlt : Pruefmarke::Gut;
    vollstaendig = vollstaendig && !leer;
  }
  if (vollstaendig) return {};
  constexpr const char* Titel = "Felder bitte korrekt ausfüllen";
  if (!drucken)
    return {{MitHilfe({Titel, "Die violetten Felder müssen alle ausgefüllt werden!"}, HilfeBenutzer)}};
  return {{MitHilfe({Titel, "\nDie persönlichen Daten sind nicht vollständig.\nDatenblatt trotzdem drucken?",
                     Knoepfe::JaNein},
                    HilfeBenutzer)}};
}

Meldungen BenutzerLoeschen(Station&, const Kataloge&) {
  Meldung frage{Bestaetigung("Vesk", "User-Daten wirklich löschen?")};
  frage.danach = [](Station& s, const Kataloge& k, Antwort antwort) {
    if (antwort == Antwort::Ja) BenutzerLeeren(s);
    return BenutzerVerbergen(s, k);
  };
  return {frage};
}

void BenutzerLeeren(Station& s) {
  for (const auto feld : Benutzerfelder) Setzen(s, feld, {});
  s.klasseEntschieden.clear();
}

Meldungen BenutzerVerbergen(Station& s, const Kataloge&) {
  KlasseBestimmen(s);
  s.fenster.benutzer = false;
  return {};
}

std::string TitelBenutzerfenster(const Station& s) {
  return "Persönliche Daten " + s.benutzer.Rufzeichen;
}

std::string TitelHauptfenster(const Station& s) {
  return "EMVU Sicherheitsabstand:  " + s.UserDatei;
}

std::string TitelDatenblatt(const Station& s) {
  // A long directory would push the name of the file out of the title bar.
  constexpr std::size_t ZuLang = 40;
  const std::string kopf = "Datenblatt  Vfg 306/97 Anlage Blatt 5.2  -  ";
  if (Zeichenzahl(s.UserVerzeichnis) >= ZuLang) return kopf + s.UserDatei;
  return kopf + s.UserVerzeichnis + "\\" + s.UserDatei;
}

std::string DruckFusszeile(const Station& s) {
  return s.Fusszeile + "Erstellt mit " + std::string(Produktname) + " v " + VersionLang() + " - " +
         std::string(Rechtshinweis);
}

}  // namespace vesk
