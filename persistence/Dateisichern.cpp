#include <algorithm>
#include <array>
#include <utility>

#include "engine/Version.h"
#include "persistence/Dateiablauf.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Pfade.h"
#include "station/Haupthandlungen.h"
#include "station/Operator.h"
#include "station/Text.h"
#include "station/Winkel.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

/// Windows keeps some names for devices, whatever follows their first dot.
bool Geraetename(const std::string& name) {
  const std::string stamm = Grossbuchstaben(OhneBlanks(name.substr(0, name.find('.'))));
  constexpr std::array Namen = {"CON", "PRN", "AUX", "NUL"};
  const bool nummeriert = stamm.starts_with("COM") || stamm.starts_with("LPT");
  return std::find(Namen.begin(), Namen.end(), stamm) != Namen.end() ||
         (nummeriert && stamm.size() == 4 && stamm.back() >= '1' && stamm.back() <= '9');
}

/// What a file name cannot hold, on whatever medium, becomes a hyphen: "DK2XYZ/P" goes to "DK2XYZ-P.dat".
std::string Dateiname(std::string rufzeichen) {
  constexpr std::string_view Verboten = "/\\:*?\"<>|\x7F";
  std::replace_if(
      rufzeichen.begin(), rufzeichen.end(),
      [&](char z) {
        return static_cast<unsigned char>(z) < ' ' || Verboten.find(z) != std::string_view::npos;
      },
      '-');
  return (Geraetename(rufzeichen) ? "_" : "") + rufzeichen + ".dat";
}

}  // namespace

void Dateiablauf::UserSpeichern() {
  const Vorgang vorgang(*this);
  if (!vorgang || Sichern()) return;
  // The user's window tells by itself what is missing.
  if (!station_.neuesRufzeichen || !station_.benutzer.Rufzeichen.empty() || station_.fenster.benutzer) return;
  Sagen("Bitte zuerst das neue Rufzeichen in den Benutzerdaten eingeben.");
}

void Dateiablauf::UserSpeichernUnter() {
  const Vorgang vorgang(*this);
  if (vorgang) SpeichernUnter();
}

void Dateiablauf::BenutzerVerborgen() {
  const Vorgang vorgang(*this);
  if (vorgang && !beendet_) Sichern();
}

bool Dateiablauf::Beenden() {
  if (beendet_) return true;
  const Vorgang vorgang(*this);
  if (!vorgang) return false;
  // Whoever ends the machine may not wait for the answers.
  RettungErneuern();
  const bool gerettet = Sichern() || NichtsZuVerlieren();
  const std::string grund =
      station_.neuesRufzeichen ? "Die Daten des neuen Rufzeichens sind noch nicht gesichert.\n" : "";
  if (!gerettet && !Frage(std::string(Produktname), grund + "Programm trotzdem beenden?")) return false;
  if (WinkelUngesichert(station_) &&
      !Frage(std::string(Produktname),
             "Die Winkeltabelle wurde geändert und nicht gespeichert.\nProgramm trotzdem beenden?")) {
    return false;
  }
  beendet_ = true;
  rettung_.Aufgeben();
  return true;
}

bool Dateiablauf::NichtsZuVerlieren() const {
  const bool leer = std::all_of(station_.Zellen.begin(), station_.Zellen.end(),
                                [](const std::string& zelle) { return zelle.empty(); });
  return station_.neuesRufzeichen && leer && station_.benutzer == Benutzer();
}

/// Writes if something has changed. True: nothing is left to be saved. The data of a new callsign go into a
/// file of their own, never into the current one, which is another callsign's.
bool Dateiablauf::Sichern() {
  EingabenAbschliessen();
  if (!station_.UserGeaendert) return true;
  if (!station_.neuesRufzeichen) return Schreiben(false);
  return !station_.benutzer.Rufzeichen.empty() && SpeichernUnter();
}

/// Of the fields that the user may be in, two go into the file.
void Dateiablauf::EingabenAbschliessen() {
  KlasseBestimmen(station_);
  if (station_.inArbeit != Eingabefeld::KabelQRG) return;
  // What it has to say is said when a calculation is asked for; a fault does not stop the saving.
  Ausfuehren([](Station& s, const Kataloge& k) { return FeldVerlassen(s, k, Eingabefeld::KabelQRG); },
             station_, kataloge_);
}

bool Dateiablauf::SpeichernUnter() {
  EingabenAbschliessen();
  const std::string& rufzeichen = station_.benutzer.Rufzeichen;
  const std::string eigener = rufzeichen.empty() ? "" : Dateiname(rufzeichen);
  const auto pfad = rueckfragen_.ZumSpeichern(
      Wahl("Datenblatt speichern", station_.neuesRufzeichen ? eigener : station_.UserDatei));
  if (!pfad) return false;
  const fs::path alterPfad = Pfad();
  const bool andereDatei = *pfad != alterPfad;
  if (andereDatei && stand_.AndereArbeitenAn(*pfad) &&
      !Frage(std::string(Produktname), "Die Datei " + PfadAlsUtf8(pfad->filename()) +
                                           " ist in einem anderen Vesk geöffnet. Trotzdem überschreiben?")) {
    return false;
  }
  DateiWechseln(*pfad);
  station_.UserGeaendert = true;
  const bool alteFassung = std::exchange(alteFassungNoetig_, alteFassungNoetig_ && !andereDatei);
  // The dialog has asked whether another file may be replaced.
  const bool geschrieben = Schreiben(andereDatei);
  if (geschrieben) {
    station_.neuesRufzeichen = false;
  } else {
    DateiWechseln(alterPfad);
    alteFassungNoetig_ = alteFassung;
  }
  return geschrieben;
}

bool Dateiablauf::Schreiben(bool auchFremdes) {
  FaktorenNormalisieren(station_);
  const std::string bytes = UserDateiSchreiben(station_);
  const std::string gescheitert = "Die Datei " + station_.UserDatei + " konnte nicht gespeichert werden.";
  // What could not be read again must not replace what can.
  if (bytes.size() > grenzen::UserDatei) return Fehler(gescheitert, ZuGross(grenzen::UserDatei));
  if (alteFassungNoetig_ && !AlteFassungBehalten()) return false;

  Dateistand::Ergebnis ergebnis = stand_.Schreiben(Pfad(), bytes, auchFremdes);
  if (ergebnis.ausgang == Dateistand::Ausgang::FremdGeaendert && !FremdesUeberschreiben(bytes, ergebnis)) {
    return false;
  }
  if (ergebnis.ausgang == Dateistand::Ausgang::Fehler) {
    return Fehler(gescheitert, ergebnis.grund);
  }
  station_.UserGeaendert = false;
  station_.titelGesetzt = true;
  station_.fenster.benutzer = false;
  gespeichert_ = BlattJetzt();
  rettung_.Gesichert(bytes);
  RettungErneuern();
  return true;
}

bool Dateiablauf::FremdesUeberschreiben(const std::string& bytes, Dateistand::Ergebnis& ergebnis) {
  const bool lesbar = DateiLesen(Pfad(), grenzen::UserDatei).status != Lesestatus::Fehler;
  const std::string frage =
      "Die Datei " + station_.UserDatei +
      (lesbar ? " wurde inzwischen von einem anderen Programm geändert." : " konnte nicht gelesen werden.") +
      "\nSoll sie mit den Daten aus "
      "diesem Fenster überschrieben werden? Die andere Fassung bleibt dann als " +
      PfadAlsUtf8(FreierAltname(Pfad()).filename()) + " erhalten.";
  if (!Frage(std::string(Produktname), frage) || !AlteFassungBehalten()) return false;
  ergebnis = stand_.Schreiben(Pfad(), bytes, true);
  return true;
}

bool Dateiablauf::AlteFassungBehalten() {
  if (const Fehlergrund grund = DateiKopieren(Pfad(), FreierAltname(Pfad()))) {
    return Fehler("Die Datei " + station_.UserDatei + " konnte nicht gespeichert werden.", *grund);
  }
  alteFassungNoetig_ = false;
  return true;
}

}  // namespace vesk
