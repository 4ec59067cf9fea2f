#include "persistence/Winkelablauf.h"

#include <system_error>

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

Dateiwahl Wahl(const Station& station, const char* titel) {
  const fs::path datei = PfadAusUtf8(station.winkel.datei);
  return {titel, "Winkel Dateien (*.ang)", "ang",
          datei.empty() ? PfadAusUtf8(station.ProgrammVerzeichnis) : datei.parent_path(),
          PfadAlsUtf8(datei.filename())};
}

void FehlerSagen(Rueckfragen& rueckfragen, const fs::path& pfad, const std::string& was,
                 const std::string& grund) {
  rueckfragen.Fragen(Fehlermeldung("Die Datei " + PfadAlsUtf8(pfad.filename()) + " konnte nicht " + was +
                                   " werden.\n" + grund));
}

/// The table is that of the file from now on.
void DateiNennen(Winkelseite& seite, const fs::path& pfad, bool vorhanden) {
  seite.datei = PfadAlsUtf8(pfad);
  seite.herkunft.clear();
  seite.dateiGelesen = vorhanden;
  seite.bearbeitet = false;
}

Fehlergrund TabelleSchreiben(const Station& station, const fs::path& pfad) {
  const Winkeldaten daten = WinkeldatenDerSeite(station);
  const std::string fremd = OhneWindows1252(daten.antenne);
  if (!fremd.empty()) {
    return "Eine Winkeldatei kann diese Zeichen im Namen der Antenne nicht aufnehmen: " +
           Anfang(fremd, grenzen::Meldungswort);
  }
  return DateiSchreiben(pfad, WinkelSchreiben(daten));
}

void Schreiben(Station& station, Rueckfragen& rueckfragen, const fs::path& pfad) {
  if (const Fehlergrund grund = TabelleSchreiben(station, pfad)) {
    FehlerSagen(rueckfragen, pfad, "gespeichert", *grund);
  } else {
    DateiNennen(station.winkel, pfad, true);
  }
}

bool Verwerfbar(const Station& station, Rueckfragen& rueckfragen) {
  const Hinweis frage = Bestaetigung(TitelLaden, "Die Winkeltabelle wurde geändert. Änderungen verwerfen?");
  return !station.winkel.bearbeitet || rueckfragen.Fragen(frage) == Antwort::Ja;
}

void Lesen(Station& station, Rueckfragen& rueckfragen, const fs::path& pfad) {
  const Gelesen datei = DateiLesen(pfad, grenzen::Winkel);
  if (datei.status == Lesestatus::Fehler) {
    FehlerSagen(rueckfragen, pfad, "gelesen", datei.grund);
    return;
  }
  WinkelZeigen(station, WinkelLesen(datei.bytes));
  const std::string fremd = IstUtf8(datei.bytes) ? OhneWindows1252(OhneMarke(datei.bytes)) : "";
  // Where characters of the file are missing here, saving asks before it replaces the file.
  DateiNennen(station.winkel, pfad, datei.status == Lesestatus::Gelesen && fremd.empty());
  if (fremd.empty()) return;
  rueckfragen.Fragen({TitelLaden, "Die Datei " + PfadAlsUtf8(pfad.filename()) +
                                      " enthält Zeichen, die eine Winkeldatei nicht aufnehmen kann. Hier "
                                      "steht statt ihrer ein Fragezeichen: " +
                                      Anfang(fremd, grenzen::Meldungswort)});
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

void WinkelOeffnen(Station& station, Rueckfragen& rueckfragen) {
  if (!Verwerfbar(station, rueckfragen)) return;
  if (const auto pfad = rueckfragen.ZumOeffnen(Wahl(station, TitelLaden))) Lesen(station, rueckfragen, *pfad);
}

bool WinkelOeffnen(Station& station, Rueckfragen& rueckfragen, const fs::path& pfad) {
  if (const Fehlergrund grund =
          WarumOhneInhalt(PfadAlsUtf8(pfad.filename()), DateiLesen(pfad, grenzen::Winkel))) {
    rueckfragen.Fragen(Fehlermeldung(*grund));
    return false;
  }
  if (!Verwerfbar(station, rueckfragen)) return false;
  Lesen(station, rueckfragen, pfad);
  return true;
}

void WinkelSpeichern(Station& station, Rueckfragen& rueckfragen) {
  const fs::path pfad = PfadAusUtf8(station.winkel.datei);
  if (pfad.empty()) {
    WinkelSpeichernUnter(station, rueckfragen);
    return;
  }
  std::error_code egal;
  const Hinweis frage = Bestaetigung(TitelSpeichern, "Die Datei " + PfadAlsUtf8(pfad.filename()) +
                                                         " gibt es bereits. Soll sie überschrieben werden?");
  const bool fremd = !station.winkel.dateiGelesen && fs::exists(pfad, egal);
  if (!fremd || rueckfragen.Fragen(frage) == Antwort::Ja) Schreiben(station, rueckfragen, pfad);
}

void WinkelSpeichernUnter(Station& station, Rueckfragen& rueckfragen) {
  const auto pfad = rueckfragen.ZumSpeichern(Wahl(station, TitelSpeichern));
  if (pfad) Schreiben(station, rueckfragen, *pfad);
}

}  // namespace vesk
