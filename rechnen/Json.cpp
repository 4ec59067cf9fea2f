#include "rechnen/Json.h"

#include <algorithm>
#include <numeric>

namespace vesk {

namespace {

/// Each byte can become six.
constexpr std::size_t PlatzFuerZeichenkette(std::size_t laenge) {
  return 6 * laenge + 2;
}

char* ZeichenketteSchreiben(std::string_view text, char* ziel) {
  constexpr std::string_view Hex = "0123456789abcdef";
  *ziel++ = '"';
  for (const char z : text) {
    const auto byte = static_cast<unsigned char>(z);
    if (byte >= 0x20 && z != '"' && z != '\\') [[likely]] {
      *ziel++ = z;
    } else if (z == '\n' || byte >= 0x20) {
      *ziel++ = '\\';
      *ziel++ = z == '\n' ? 'n' : z;
    } else {
      ziel = TextSchreiben("\\u00", ziel);
      *ziel++ = Hex[byte >> 4U];
      *ziel++ = Hex[byte & 15U];
    }
  }
  *ziel++ = '"';
  return ziel;
}

std::string Zeichenkette(std::string_view text) {
  std::string kette(PlatzFuerZeichenkette(text.size()), ' ');
  kette.resize(static_cast<std::size_t>(ZeichenketteSchreiben(text, kette.data()) - kette.data()));
  return kette;
}

}  // namespace

// Every key brings the comma before it; that of the first becomes the bracket that opens the object.

std::string Jsonschreiber::Umbruch(std::size_t tiefe) const {
  return form_ == Form::Eingerueckt ? '\n' + std::string(4 * tiefe, ' ') : "";
}

Stueck Jsonschreiber::Schluessel(std::size_t tiefe, std::string_view name) const {
  return Stueck("," + Umbruch(tiefe) + Zeichenkette(name) + (form_ == Form::Eingerueckt ? ": " : ":"));
}

Jsonschreiber::Jsonschreiber(Form form)
    : form_(form),
      fehler_(Schluessel(1, "Fehler")),
      laufzeitfehler_(Schluessel(1, "Laufzeitfehler")),
      meldungen_(Schluessel(1, "Meldungen")),
      meldung_("," + Umbruch(2)),
      meldungenEnde_(Umbruch(1) + "]"),
      flags_(Schluessel(1, "Nahfeldflags")),
      werte_(Schluessel(1, "Werte")),
      werteEnde_(Umbruch(1) + "}"),
      zeile_(Schluessel(1, "Zeile")),
      ende_(Umbruch(0) + "}\n"),
      hinweise_([](std::string_view meldung) { return Zeichenkette(Einzeilig(meldung)); }) {
  const auto sortiert = [](const auto& felder) {
    std::vector<std::size_t> stellen(felder.size());
    std::iota(stellen.begin(), stellen.end(), 0);
    std::sort(stellen.begin(), stellen.end(),
              [&](auto a, auto b) { return felder[a].name < felder[b].name; });
    return stellen;
  };
  for (const std::size_t i : sortiert(Zahlfelder)) zahlen_.emplace_back(Schluessel(2, Zahlfelder[i].name), i);
  for (const std::size_t i : sortiert(Textfelder)) texte_.emplace_back(Schluessel(1, Textfelder[i].name), i);
}

char* Jsonschreiber::KopfSchreiben(const Rechenergebnis& ergebnis,
                                   const std::vector<std::string_view>& meldungen, char* ziel) const {
  char* const anfang = ziel;
  if (ergebnis.fehler) {
    ziel = laufzeitfehler_.Schreiben(ziel);
    ziel = ZeichenketteSchreiben(Fehlermeldung(*ergebnis.fehler).text, ziel);
  }
  ziel = meldungen_.Schreiben(ziel);
  *anfang = '{';
  char* const liste = ziel;
  for (const std::string_view meldung : meldungen) {
    ziel = meldung_.Schreiben(ziel);
    ziel = TextSchreiben(meldung, ziel);
  }
  if (ziel == liste) ++ziel;
  *liste = '[';
  ziel = meldungenEnde_.Schreiben(ziel);
  ziel = flags_.Schreiben(ziel);
  if (!ergebnis.vollstaendig) return TextSchreiben("null", ziel);
  *ziel++ = static_cast<char>('0' + ergebnis.Nahfeldflags);
  return ziel;
}

char* Jsonschreiber::WerteSchreiben(const Rechnung& rechnung, char* ziel) {
  ziel = werte_.Schreiben(ziel);
  char* const anfang = ziel;
  const auto werte = Zahlwerte(rechnung);
  for (const auto& [schluessel, stelle] : zahlen_) {
    const std::optional<Modus>& nur = Zahlfelder[stelle].nur;
    if (nur && *nur != rechnung.ergebnis.modus) continue;
    ziel = schluessel.Schreiben(ziel);
    const std::optional<float>& wert = werte[stelle];
    ziel = wert ? dezimale_.Schreiben(*wert, ziel) : TextSchreiben("null", ziel);
  }
  *anfang = '{';
  return werteEnde_.Schreiben(ziel);
}

char* Jsonschreiber::TexteSchreiben(const Rechnung& rechnung, char* ziel) const {
  for (const auto& [schluessel, stelle] : texte_) {
    ziel = schluessel.Schreiben(ziel);
    const Textfeld& feld = Textfelder[stelle];
    const std::string_view text = Text(rechnung, feld);
    if (text.empty()) {
      ziel = TextSchreiben("null", ziel);
    } else if (feld.istZahl) {
      *ziel++ = '"';
      ziel = TextSchreiben(text, ziel);
      *ziel++ = '"';
    } else {
      ziel = ZeichenketteSchreiben(text, ziel);
    }
  }
  return ziel;
}

void Jsonschreiber::Schreiben(const Rechnung& rechnung, std::size_t zeile, Puffer& aus) {
  const std::vector<std::string_view>& meldungen = hinweise_(rechnung.ergebnis);
  char* ziel = aus.Platz(PlatzFuerErgebnisse + PlatzFuerTexte(rechnung.auftrag.werte, meldungen));
  ziel = KopfSchreiben(rechnung.ergebnis, meldungen, ziel);
  ziel = WerteSchreiben(rechnung, ziel);
  if (zeile != 0) ziel = NummerSchreiben(zeile, zeile_.Schreiben(ziel));
  ziel = TexteSchreiben(rechnung, ziel);
  aus.Bis(ende_.Schreiben(ziel));
}

void Jsonschreiber::Ablehnen(std::string_view warum, std::size_t zeile, Puffer& aus) const {
  char* const anfang = aus.Platz(PlatzFuerErgebnisse + PlatzFuerZeichenkette(warum.size()));
  char* ziel = ZeichenketteSchreiben(warum, fehler_.Schreiben(anfang));
  *anfang = '{';
  ziel = NummerSchreiben(zeile, zeile_.Schreiben(ziel));
  aus.Bis(ende_.Schreiben(ziel));
}

}  // namespace vesk
