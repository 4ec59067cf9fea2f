#pragma once
#include "persistence/Rueckfragen.h"
#include "tests/Antworten.h"

namespace vesk {

class Antwortliste : public Rueckfragen, public Boxfolge {
 public:
  void Fehler(const std::string& text) { Erwarten("Vesk - Fehlermeldung", text); }
  void Datei(std::optional<std::filesystem::path> pfad) { dialoge_.Antworten(std::move(pfad)); }
  /// The dialog shown last.
  const Dateiwahl& Wahl() const { return dialoge_.gezeigt.back(); }

  Antwort Fragen(const Hinweis& hinweis) override { return Beantworten(hinweis); }
  std::optional<std::filesystem::path> ZumOeffnen(const Dateiwahl& wahl) override {
    return dialoge_.Waehlen(wahl);
  }
  std::optional<std::filesystem::path> ZumSpeichern(const Dateiwahl& wahl) override {
    return dialoge_.Waehlen(wahl);
  }

 private:
  Wahlfolge<Dateiwahl, std::filesystem::path> dialoge_;
};

}  // namespace vesk
