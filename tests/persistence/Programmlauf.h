#pragma once
#include "persistence/Dateiablauf.h"
#include "persistence/Pfade.h"
#include "tests/persistence/Antwortliste.h"
#include "tests/persistence/Muster.h"
#include "tests/persistence/Ordner.h"

namespace vesk {

namespace fs = std::filesystem;

inline std::string MusterMit(const std::string& name) {
  Station s = Musterstation();
  s.benutzer.Name = name;
  return UserDateiSchreiben(s);
}

inline std::string NameIn(const fs::path& pfad) {
  Station s;
  UserDateiLesen(Inhalt(pfad), s);
  return s.benutzer.Name;
}

/// One running program in a directory. One that goes without Beenden has crashed.
struct Lauf {
  explicit Lauf(const fs::path& verzeichnis, const char* hinweis = nullptr, const char* fehler = nullptr) {
    station.ProgrammVerzeichnis = PfadAlsUtf8(verzeichnis);
    station.Arbeitsverzeichnis = station.UserVerzeichnis = "/anderswo";
    if (hinweis != nullptr) fragen.Erwarten("Hinweis", hinweis);
    if (fehler != nullptr) fragen.Fehler(fehler);
    ablauf.InitLaden();
  }
  void Aendern(const std::string& name) { station.benutzer.Name = name, station.UserGeaendert = true; }
  void Speichern(const std::string& name) { Aendern(name), ablauf.UserSpeichern(); }
  void Laden(const std::optional<fs::path>& pfad) { fragen.Datei(pfad), ablauf.UserLaden(); }
  void SpeichernUnter(const std::optional<fs::path>& pfad) {
    fragen.Datei(pfad), ablauf.UserSpeichernUnter();
  }
  /// mnuUserNeu with both questions answered.
  void Neu() {
    fragen.Erwarten("Neues Datenblatt anlegen", "nacheinander", Antwort::Ja);
    fragen.Erwarten("Vesk", "Datenblatt wirklich löschen?", Antwort::Ja);
    ablauf.UserNeu();
  }

  Station station;
  Kataloge kataloge;
  Antwortliste fragen;
  Dateiablauf ablauf{station, kataloge, fragen};
};

/// A program directory whose file holds the operator "eins".
struct DateiablaufTest : testing::Test {
  DateiablaufTest() { Anlegen(user, MusterMit("eins")); }
  Ordner ordner;
  Ordner anderswo;
  fs::path user = ordner / "user.dat";
};

}  // namespace vesk
