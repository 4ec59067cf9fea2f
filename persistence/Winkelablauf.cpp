#include "persistence/Winkelablauf.h"

#include <system_error>

#include "persistence/Dateien.h"
#include "persistence/Pfade.h"
#include "persistence/Winkeldatei.h"
#include "station/Optionen.h"
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

void Schreiben(Station& station, Rueckfragen& rueckfragen, const fs::path& pfad) {
  const Winkelseite& seite = station.winkel;
  const Winkeldaten daten{seite.antenne, seite.gewinn, seite.frequenz, station.Datenblattspalten[0].Winkel};
  if (const Fehlergrund grund = DateiSchreiben(pfad, WinkelSchreiben(daten))) {
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
  const Gelesen datei = DateiLesen(pfad);
  if (datei.status == Lesestatus::Fehler) {
    FehlerSagen(rueckfragen, pfad, "gelesen", datei.grund);
    return;
  }
  const GeleseneWinkeldaten daten = WinkelLesen(datei.bytes);
  WinkelErsetzen(station, daten.daempfung);
  DateiNennen(station.winkel, pfad, datei.status == Lesestatus::Gelesen);
  if (daten.antenne) station.winkel.antenne = *daten.antenne;
  if (daten.gewinn) station.winkel.gewinn = *daten.gewinn;
  if (daten.frequenz) {
    station.winkel.frequenz = daten.frequenz->empty() ? station.werte.QRGText : *daten.frequenz;
  }
  WinkelInSpalte(station);
}

}  // namespace

void WinkelOeffnen(Station& station, Rueckfragen& rueckfragen) {
  if (!Verwerfbar(station, rueckfragen)) return;
  if (const auto pfad = rueckfragen.ZumOeffnen(Wahl(station, TitelLaden))) Lesen(station, rueckfragen, *pfad);
}

bool WinkelOeffnen(Station& station, Rueckfragen& rueckfragen, const fs::path& pfad) {
  if (const Fehlergrund grund = WarumOhneInhalt(PfadAlsUtf8(pfad.filename()), DateiLesen(pfad))) {
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
