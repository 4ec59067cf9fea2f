#pragma once
#include <string>
#include <utility>
#include <vector>

#include "rechnen/Dezimal.h"
#include "rechnen/Felder.h"
#include "rechnen/Puffer.h"

namespace vesk {

/// Calculations as JSON objects with sorted keys: every field under its name, null for what there is not.
class Jsonschreiber {
 public:
  enum class Form { Eingerueckt, EineZeile };

  explicit Jsonschreiber(Form form);

  /// `zeile`: where the calculation stands in a table; 0: in none.
  void Schreiben(const Rechnung& rechnung, std::size_t zeile, Puffer& aus);
  /// In the place of a calculation that its input does not allow.
  void Ablehnen(std::string_view warum, std::size_t zeile, Puffer& aus) const;

 private:
  /// A key, with all that stands before the value, and the position of its field.
  using Eintraege = std::vector<std::pair<Stueck, std::size_t>>;

  std::string Umbruch(std::size_t tiefe) const;
  Stueck Schluessel(std::size_t tiefe, std::string_view name) const;
  char* KopfSchreiben(const Rechenergebnis& ergebnis, const std::vector<std::string_view>& meldungen,
                      char* ziel) const;
  char* WerteSchreiben(const Rechnung& rechnung, char* ziel);
  char* TexteSchreiben(const Rechnung& rechnung, char* ziel) const;

  Form form_;
  Eintraege zahlen_, texte_;
  Stueck fehler_, laufzeitfehler_, meldungen_, meldung_, meldungenEnde_, flags_, werte_, werteEnde_, zeile_,
      ende_;
  Dezimalschreiber dezimale_{'.'};
  Meldungstexte hinweise_;
};

}  // namespace vesk
