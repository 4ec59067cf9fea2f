#include <algorithm>
#include <array>
#include <utility>

#include "engine/Version.h"
#include "persistence/Dateiablauf.h"
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
  return station_.neuesRufzeichen && leer && station_.benutzer == Benutzer() &&
         LageplanLeer(station_.lageplan);
}

/// Writes if something has changed. True: nothing is left to be saved. The data of a new callsign go into a
/// file of their own, never into the current one, which is another callsign's.
bool Dateiablauf::Sichern() {
  EingabenAbschliessen();
  if (!station_.UserGeaendert) return true;
  if (!station_.neuesRufzeichen) return UserSchreiben(false) && PlanSchreiben();
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
  RettungErneuern();  // the dialog may stand for long
  const std::string& rufzeichen = station_.benutzer.Rufzeichen;
  const std::string eigener = rufzeichen.empty() ? "" : Dateiname(rufzeichen);
  const auto pfad = rueckfragen_.ZumSpeichern(
      Wahl("Datenblatt speichern", station_.neuesRufzeichen ? eigener : station_.UserDatei));
  if (!pfad) return false;
  const fs::path alterPfad = Pfad();
  const bool andereDatei = *pfad != alterPfad;
  if (andereDatei && user_.stand.AndereArbeitenAn(*pfad) &&
      !Frage(std::string(Produktname), "Die Datei " + PfadAlsUtf8(pfad->filename()) +
                                           " ist in einem anderen Vesk geöffnet. Trotzdem überschreiben?")) {
    return false;
  }
  DateiWechseln(*pfad);
  station_.UserGeaendert = true;
  const bool alteFassung = std::exchange(user_.alteFassungNoetig, user_.alteFassungNoetig && !andereDatei);
  // The dialog has asked whether another file may be replaced.
  if (UserSchreiben(andereDatei)) return PlanSchreiben();
  DateiWechseln(alterPfad);
  user_.alteFassungNoetig = alteFassung;
  return false;
}

Fehlergrund Dateiablauf::WarumVergeben(const fs::path& pfad, std::string_view endung) const {
  const fs::path wirklich = WirklicherPfad(pfad);
  const bool user = endung != "dat" && wirklich == WirklicherPfad(Pfad());
  if (!user && wirklich != WirklicherPfad(planpfad_)) return std::nullopt;
  return "In " + PfadAlsUtf8(pfad.filename()) + (user ? " stehen die Daten" : " steht der Lageplan") +
         " der Station.\nBitte einen anderen Namen wählen.";
}

bool Dateiablauf::UserSchreiben(bool auchFremdes) {
  FaktorenNormalisieren(station_);
  const std::string bytes = UserDateiSchreiben(station_);
  if (!Ersetzen(user_, Pfad(), bytes, auchFremdes)) return false;
  station_.UserGeaendert = false;
  station_.neuesRufzeichen = false;
  station_.ohneDatei = false;
  station_.titelGesetzt = true;
  station_.fenster.benutzer = false;
  gespeichert_ = BlattJetzt();
  rettung_.Gesichert(bytes);
  RettungErneuern();
  return true;
}

/// Puts `bytes` into a file under the rules that hold for all of them. False: they stand nowhere, and the
/// user knows.
bool Dateiablauf::Ersetzen(Arbeitsdatei& datei, const fs::path& pfad, const std::string& bytes,
                           bool auchFremdes) {
  if (datei.alteFassungNoetig && !AlteFassungBehalten(datei, pfad)) return false;
  const auto vorbild = pfad == Pfad() ? std::nullopt : std::optional(Pfad());
  Dateistand::Ergebnis ergebnis = datei.stand.Schreiben(pfad, bytes, auchFremdes, vorbild);
  if (ergebnis.ausgang == Dateistand::Ausgang::FremdGeaendert) {
    if (!DarfFremdesUeberschreiben(datei, pfad)) return false;
    ergebnis = datei.stand.Schreiben(pfad, bytes, true, vorbild);
  }
  if (ergebnis.ausgang == Dateistand::Ausgang::Fehler) {
    return Fehler("Die Datei " + PfadAlsUtf8(pfad.filename()) + " konnte nicht gespeichert werden.",
                  ergebnis.grund);
  }
  datei.abgelehnt = false;
  return true;
}

bool Dateiablauf::DarfFremdesUeberschreiben(Arbeitsdatei& datei, const fs::path& pfad) {
  const bool lesbar = !datei.abgelehnt && DateiLesen(pfad, grenzen::UserDatei).status != Lesestatus::Fehler;
  const std::string frage = Ueberschreibfrage(pfad, lesbar ? VonAnderenGeaendert : NichtLesbar);
  return Frage(std::string(Produktname), frage) && AlteFassungBehalten(datei, pfad);
}

bool Dateiablauf::AlteFassungBehalten(Arbeitsdatei& datei, const fs::path& pfad) {
  if (const Fehlergrund grund = DateiKopieren(pfad, Altname(pfad))) {
    return Fehler("Die Datei " + PfadAlsUtf8(pfad.filename()) + " konnte nicht gespeichert werden.", *grund);
  }
  datei.alteFassungNoetig = false;
  return true;
}

}  // namespace vesk
