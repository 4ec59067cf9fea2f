#include "persistence/Winkelablauf.h"

#include "persistence/Dateien.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Pfade.h"
#include "station/Optionen.h"
#include "station/Text.h"
#include "station/Winkel.h"

namespace vesk {

namespace fs = std::filesystem;

namespace {

constexpr const char* TitelLaden = "Winkel-Datei laden";
constexpr const char* TitelSpeichern = "Winkel-Datei speichern";

/// Characters of the file that the program's own files do not have; they are question marks here.
std::string FremdeZeichen(const std::string& bytes) {
  return IstUtf8(bytes) ? OhneWindows1252(OhneMarke(bytes)) : "";
}

}  // namespace

void WinkelZeigen(Station& station, const GeleseneWinkeldaten& daten) {
  WinkelErsetzen(station, daten.daempfung);
  if (daten.antenne) station.winkel.antenne = *daten.antenne;
  if (daten.gewinn) station.winkel.gewinn = *daten.gewinn;
  if (daten.frequenz) {
    station.winkel.frequenz = daten.frequenz->empty() ? station.werte.QRGText : *daten.frequenz;
  }
  WinkelInSpalte(station);
}

Dateiwahl Winkelablauf::Wahl(const char* titel) const {
  const fs::path datei = PfadAusUtf8(station_.winkel.datei);
  return {titel, "Winkel Dateien (*.ang)", "ang",
          datei.empty() ? PfadAusUtf8(station_.ProgrammVerzeichnis) : datei.parent_path(),
          PfadAlsUtf8(datei.filename())};
}

/// Always false, so that a caller can return it.
bool Winkelablauf::Fehler(const fs::path& pfad, const std::string& was, const std::string& grund) {
  rueckfragen_.Fragen(Fehlermeldung("Die Datei " + PfadAlsUtf8(pfad.filename()) + " konnte nicht " + was +
                                    " werden.\n" + grund));
  return false;
}

/// The table is that of the file from now on.
void Winkelablauf::DateiNennen(const fs::path& pfad, bool vorhanden) {
  Winkelseite& seite = station_.winkel;
  seite.datei = PfadAlsUtf8(pfad);
  seite.herkunft.clear();
  seite.dateiGelesen = vorhanden;
  seite.bearbeitet = seite.kopfGetippt = false;
}

// ---------------------------------------------------------------------------------------------- reading

bool Winkelablauf::Verwerfbar() {
  const Hinweis frage = Bestaetigung(TitelLaden, "Die Winkeltabelle wurde geändert. Änderungen verwerfen?");
  return !station_.winkel.bearbeitet || rueckfragen_.Fragen(frage) == Antwort::Ja;
}

void Winkelablauf::Lesen(const fs::path& pfad) {
  Dateistand stand(grenzen::Winkel);
  const Gelesen datei = stand.Lesen(pfad);
  if (datei.status == Lesestatus::Fehler) {
    Fehler(pfad, "gelesen", datei.grund);
    return;
  }
  stand_ = std::move(stand);
  const GeleseneWinkeldaten daten = WinkelLesen(datei.bytes);
  WinkelZeigen(station_, daten);
  // Where the table is not all that the file holds, saving asks before it replaces the file.
  DateiNennen(pfad, datei.status == Lesestatus::Gelesen && daten.ganz);
  if (daten.ganz) return;
  const std::string fremd = FremdeZeichen(datei.bytes);
  rueckfragen_.Fragen(
      {TitelLaden, "Die Datei " + PfadAlsUtf8(pfad.filename()) +
                       (fremd.empty() ? " enthält noch anderes als eine Winkeltabelle. Hier steht nur, was "
                                        "davon in die Tabelle paßt."
                                      : " enthält Zeichen, die eine Winkeldatei nicht aufnehmen kann. Hier "
                                        "steht statt ihrer ein Fragezeichen: " +
                                            Anfang(fremd, grenzen::Meldungswort))});
}

void Winkelablauf::Oeffnen() {
  if (!Verwerfbar()) return;
  if (const auto pfad = rueckfragen_.ZumOeffnen(Wahl(TitelLaden))) Lesen(*pfad);
}

bool Winkelablauf::Oeffnen(const fs::path& pfad) {
  if (const Fehlergrund grund =
          WarumOhneInhalt(PfadAlsUtf8(pfad.filename()), DateiLesen(pfad, grenzen::Winkel))) {
    rueckfragen_.Fragen(Fehlermeldung(*grund));
    return false;
  }
  if (!Verwerfbar()) return false;
  Lesen(pfad);
  return true;
}

// ----------------------------------------------------------------------------------------------- saving

void Winkelablauf::Speichern() {
  const fs::path pfad = PfadAusUtf8(station_.winkel.datei);
  if (pfad.empty()) {
    SpeichernUnter();
  } else {
    Schreiben(pfad, false);
  }
}

void Winkelablauf::SpeichernUnter() {
  if (const auto pfad = rueckfragen_.ZumSpeichern(Wahl(TitelSpeichern))) Schreiben(*pfad, true);
}

/// `gefragt`: the dialog has asked whether the file may be replaced.
void Winkelablauf::Schreiben(const fs::path& pfad, bool gefragt) {
  const Winkeldaten daten = WinkeldatenDerSeite(station_);
  const std::string fremd = OhneWindows1252(daten.antenne);
  if (!fremd.empty()) {
    Fehler(pfad, "gespeichert",
           "Eine Winkeldatei kann diese Zeichen im Namen der Antenne nicht aufnehmen: " +
               Anfang(fremd, grenzen::Meldungswort));
  } else if (const std::string bytes = WinkelSchreiben(daten); Ersetzen(pfad, bytes, gefragt)) {
    // Without quotes and brackets.
    station_.winkel.antenne = WinkelLesen(bytes).antenne.value_or("");
    DateiNennen(pfad, true);
  }
}

/// False: the table stands nowhere, and the user knows.
bool Winkelablauf::Ersetzen(const fs::path& pfad, const std::string& bytes, bool gefragt) {
  const bool andere = gefragt && pfad != PfadAusUtf8(station_.winkel.datei);
  const bool fremd = !andere && stand_.Fremd(pfad, bytes);
  if (!andere && !DarfErsetzen(pfad, bytes, fremd, gefragt)) return false;
  const auto [ausgang, grund] = stand_.Schreiben(pfad, bytes, andere || fremd);
  // Somebody has written it in this moment.
  if (ausgang == Dateistand::Ausgang::FremdGeaendert) return Ersetzen(pfad, bytes, gefragt);
  return ausgang == Dateistand::Ausgang::Geschrieben || Fehler(pfad, "gespeichert", grund);
}

bool Winkelablauf::DarfErsetzen(const fs::path& pfad, const std::string& bytes, bool fremd, bool gefragt) {
  const Gelesen jetzt = DateiLesen(pfad, grenzen::Winkel);
  std::error_code egal;
  if (jetzt.status == Lesestatus::Fehlt || jetzt.bytes == bytes || fs::is_directory(pfad, egal)) return true;
  const bool behalten = fremd || !WinkelLesen(jetzt.bytes).ganz;
  const bool bekannt = stand_.Kennt(pfad);
  const bool gelesen = station_.winkel.dateiGelesen && bekannt;
  const std::string warum = jetzt.status == Lesestatus::Fehler ? NichtLesbar
                            : gelesen                          ? VonAnderenGeaendert
                                                               : "gibt es bereits.";
  const std::string frage = behalten ? Ueberschreibfrage(pfad, warum)
                                     : "Die Datei " + PfadAlsUtf8(pfad.filename()) +
                                           " gibt es bereits. Soll sie überschrieben werden?";
  const bool fragen = gefragt ? fremd && bekannt : fremd || !station_.winkel.dateiGelesen;
  if (fragen && rueckfragen_.Fragen(Bestaetigung(TitelSpeichern, frage)) != Antwort::Ja) return false;
  const Fehlergrund grund = behalten ? DateiKopieren(pfad, Altname(pfad)) : std::nullopt;
  return !grund || Fehler(pfad, "gespeichert", *grund);
}

}  // namespace vesk
