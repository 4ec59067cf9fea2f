#pragma once
#include <span>
#include <string_view>
#include <vector>

#include "rechnen/Dezimal.h"
#include "rechnen/Felder.h"
#include "rechnen/Puffer.h"

namespace vesk {

/// The cells of one line, which is changed where it has quotes. Blanks around a cell do not count. A quote
/// ends in its line: what stands in a table has no line feeds, and a forgotten one costs a single row. Throws
/// Eingabefehler.
void CsvZerlegen(std::span<char> zeile, char trenner, std::vector<std::string_view>& zellen);

/// Calculations as rows of a table: the fields of the JSON objects, without the question in the notes and
/// each in one line.
class Csvschreiber {
 public:
  /// `dezimal`: the decimal separator of all numbers, other than `trenner`.
  Csvschreiber(char trenner, char dezimal);

  void KopfSchreiben(Puffer& aus) const;
  void Schreiben(const Rechnung& rechnung, std::size_t zeile, Puffer& aus);
  /// In the place of a calculation that its input does not allow.
  void Ablehnen(std::string_view warum, std::size_t zeile, Puffer& aus) const;

 private:
  char* FeldSchreiben(std::string_view text, char* ziel) const;

  char trenner_;
  char dezimal_;
  Dezimalschreiber dezimale_;
  Meldungstexte hinweise_;
};

}  // namespace vesk
