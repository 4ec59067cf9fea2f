#include "rechnen/Csv.h"

namespace vesk {

namespace {

bool IstBlank(char zeichen, char trenner) {
  return zeichen == ' ' || (zeichen == '\t' && trenner != '\t');
}

/// The cell behind the quote at `von`, which becomes the first character behind the closing quote.
std::string_view InAnfuehrung(char*& von, const char* ende) {
  char* const anfang = ++von;
  char* geschrieben = anfang;
  for (; von != ende; ++von) {
    if (*von == '"') {
      const bool doppelt = von + 1 != ende && von[1] == '"';
      if (!doppelt) {
        ++von;
        return {anfang, geschrieben};
      }
      ++von;
    }
    *geschrieben++ = *von;
  }
  throw Eingabefehler("Ein Anführungszeichen ist nicht geschlossen.");
}

/// Without the quotes around it.
std::string Zelleninhalt(std::string_view text) {
  std::string inhalt;
  for (const char z : Einzeilig(text)) inhalt.append(z == '"' ? 2 : 1, z);
  return inhalt;
}

/// In quotes, and in one line.
char* ZelleSchreiben(std::string_view text, char* ziel) {
  *ziel++ = '"';
  for (const char z : text) {
    if (z == '"') *ziel++ = '"';
    *ziel++ = z >= 0 && z < ' ' ? ' ' : z;
  }
  *ziel++ = '"';
  return ziel;
}

}  // namespace

void CsvZerlegen(std::span<char> zeile, char trenner, std::vector<std::string_view>& zellen) {
  zellen.clear();
  char* von = zeile.data();
  char* const ende = von + zeile.size();
  for (;;) {
    while (von != ende && IstBlank(*von, trenner)) ++von;
    if (von != ende && *von == '"') {
      zellen.push_back(InAnfuehrung(von, ende));
      while (von != ende && IstBlank(*von, trenner)) ++von;
      if (von != ende && *von != trenner) {
        throw Eingabefehler("Hinter einem Anführungszeichen steht mehr als die Zelle.");
      }
    } else {
      const char* const anfang = von;
      while (von != ende && *von != trenner) ++von;
      const char* bis = von;
      while (bis != anfang && IstBlank(bis[-1], trenner)) --bis;
      zellen.emplace_back(anfang, bis);
    }
    if (von == ende) return;
    ++von;
  }
}

Csvschreiber::Csvschreiber(char trenner, char dezimal)
    : trenner_(trenner), dezimal_(dezimal), dezimale_(dezimal), hinweise_(Zelleninhalt) {}

void Csvschreiber::KopfSchreiben(Puffer& aus) const {
  char* ziel = TextSchreiben("Zeile", aus.Platz(PlatzFuerErgebnisse));
  const auto spalte = [&](std::string_view name) {
    *ziel++ = trenner_;
    ziel = TextSchreiben(name, ziel);
  };
  spalte("Fehler");
  for (const Textfeld& feld : Textfelder) spalte(feld.name);
  spalte("Nahfeldflags");
  for (const Zahlfeld& feld : Zahlfelder) spalte(feld.name);
  spalte("Meldungen");
  spalte("Laufzeitfehler");
  *ziel++ = '\n';
  aus.Bis(ziel);
}

/// Figures and titles have neither separators nor quotes.
char* Csvschreiber::FeldSchreiben(std::string_view text, char* ziel) const {
  for (const char z : text) *ziel++ = z == '.' ? dezimal_ : z == '\n' ? ' ' : z;
  return ziel;
}

void Csvschreiber::Schreiben(const Rechnung& rechnung, std::size_t zeile, Puffer& aus) {
  const Rechenergebnis& e = rechnung.ergebnis;
  const std::vector<std::string_view>& meldungen = hinweise_(e);
  char* ziel = aus.Platz(PlatzFuerErgebnisse + PlatzFuerTexte(rechnung.auftrag.werte, meldungen));
  ziel = NummerSchreiben(zeile, ziel);
  *ziel++ = trenner_;
  for (const Textfeld& feld : Textfelder) {
    *ziel++ = trenner_;
    ziel = FeldSchreiben(Text(rechnung, feld), ziel);
  }
  *ziel++ = trenner_;
  if (e.vollstaendig) *ziel++ = static_cast<char>('0' + e.Nahfeldflags);
  const auto werte = Zahlwerte(rechnung);
  for (std::size_t i = 0; i < werte.size(); ++i) {
    *ziel++ = trenner_;
    const std::optional<Modus>& nur = Zahlfelder[i].nur;
    if (werte[i] && (!nur || *nur == e.modus)) ziel = dezimale_.Schreiben(*werte[i], ziel);
  }
  *ziel++ = trenner_;
  for (const std::string_view meldung : meldungen) {
    ziel = TextSchreiben(meldung == meldungen.front() ? "\"" : " | ", ziel);
    ziel = TextSchreiben(meldung, ziel);
  }
  if (!meldungen.empty()) *ziel++ = '"';
  *ziel++ = trenner_;
  if (e.fehler) ziel = ZelleSchreiben(Fehlermeldung(*e.fehler).text, ziel);
  *ziel++ = '\n';
  aus.Bis(ziel);
}

void Csvschreiber::Ablehnen(std::string_view warum, std::size_t zeile, Puffer& aus) const {
  char* ziel = aus.Platz(PlatzFuerErgebnisse + 2 * warum.size());
  ziel = NummerSchreiben(zeile, ziel);
  *ziel++ = trenner_;
  ziel = ZelleSchreiben(warum, ziel);
  aus.Bis(TextSchreiben(std::string(Textfelder.size() + Zahlfelder.size() + 3, trenner_) + '\n', ziel));
}

}  // namespace vesk
