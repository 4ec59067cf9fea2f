#include "persistence/Antennendatei.h"

#include <algorithm>
#include <limits>

#include "engine/Zahlen.h"
#include "persistence/Itemleser.h"
#include "station/Bandkennung.h"
#include "station/Text.h"

namespace vesk {

namespace {

constexpr std::string_view MeldungDefekt = "Fehler in Antennendatei: Antennen.txt";
// An entry is addressed by a 16-bit number.
constexpr std::size_t AntennenMax = std::size_t{std::numeric_limits<std::int16_t>::max()} + 1;

// Widths of the fields in characters; in Windows-1252 a character is a byte.
constexpr std::size_t HerstellerBreite = 10;
constexpr std::size_t TypBreite = 10;
constexpr std::size_t ArtBreite = 15;
constexpr std::size_t GewinnBreite = 5;
constexpr std::size_t ElementeBreite = 3;

std::string Feld(std::string_view bytes, std::size_t breite) {
  return NachUtf8(OhneBlanks(bytes.substr(0, breite)));
}

void Einsetzen(std::string& zeile, std::size_t stelle, std::string_view text, std::size_t breite) {
  text = text.substr(0, breite);
  zeile.replace(stelle, text.size(), text);
}

bool IstAbschnitt(std::string_view eintrag) {
  return eintrag.starts_with('[');
}

bool IstSchluss(std::string_view eintrag) {
  return OhneBlanks(eintrag) == "#";
}

std::string_view Abschnittsname(std::string_view eintrag) {
  return eintrag.substr(1, eintrag.find(']') - 1);
}

class Lader {
 public:
  Lader(std::string_view bytes, Antennenkatalog& katalog) : leser_(bytes), katalog_(katalog) {}

  /// False when the file ends within a group or before the kind.
  bool Laden();

 private:
  bool AntenneLesen(std::string_view typ);
  bool GruppenLesen(Antenne& antenne);
  /// At "#", at the next section (which closes an entry, too) or at the end of the file.
  bool EintragZuEnde() const;

  Itemleser leser_;
  Antennenkatalog& katalog_;
  std::string_view hersteller_;
  bool erste_ = false;
};

bool Lader::Laden() {
  while (const auto item = leser_.Naechstes()) {
    if (IstAbschnitt(*item)) {
      hersteller_ = Abschnittsname(*item);
      erste_ = true;
      continue;
    }
    const bool trenner = item->empty() || IstSchluss(*item);
    if (!trenner && !AntenneLesen(*item)) return false;
  }
  return true;
}

bool Lader::AntenneLesen(std::string_view typ) {
  constexpr std::size_t TypSpalte = 10;
  constexpr std::size_t TypSpalten = 12;
  if (katalog_.Antennen.size() == AntennenMax) throw Laufzeitfehler(Fehlerart::Ueberlauf);
  std::string zeile(AntennenSpalten, ' ');
  if (erste_) Einsetzen(zeile, 0, hersteller_, HerstellerSpalten);
  Einsetzen(zeile, TypSpalte, typ, TypSpalten);
  erste_ = false;
  katalog_.zeilen.push_back(NachUtf8(zeile));
  Antenne& antenne = katalog_.Antennen.emplace_back();
  antenne.hersteller = Feld(hersteller_, HerstellerBreite);
  antenne.typ = Feld(typ, TypBreite);
  if (!EintragZuEnde()) antenne.art = Feld(*leser_.Naechstes(), ArtBreite);
  return GruppenLesen(antenne);
}

bool Lader::GruppenLesen(Antenne& antenne) {
  for (std::size_t i = 0; i < AntennenBaender; ++i) {
    if (EintragZuEnde()) return true;
    Antennenband band;
    band.kennung = Bandkennung(*leser_.Naechstes());
    const auto gewinn = leser_.Naechstes();
    const auto elemente = leser_.Naechstes();
    if (!elemente) return false;
    band.gewinn = Formatieren(Zahl(*gewinn)).substr(0, GewinnBreite);
    band.elemente = Feld(*elemente, ElementeBreite);
    if (!band.kennung.empty()) antenne.baender.push_back(std::move(band));
  }
  if (!EintragZuEnde()) throw Laufzeitfehler(Fehlerart::Index);
  return true;
}

bool Lader::EintragZuEnde() const {
  const auto item = Itemleser(leser_).Naechstes();
  return !item || IstSchluss(*item) || IstAbschnitt(*item);
}

}  // namespace

Antennenkatalog AntennenLaden(std::string_view bytes) {
  Antennenkatalog katalog;
  try {
    const std::string text = AlsWindows1252(bytes);
    if (!Lader(text, katalog).Laden()) katalog.Meldung = MeldungDefekt;
  } catch (const Laufzeitfehler& fehler) {
    katalog.fehler = fehler.art;
  }
  return katalog;
}

Antennenkatalog AntennenUnlesbar(const std::string& grund) {
  Antennenkatalog katalog;
  katalog.Meldung = std::string(MeldungDefekt) + "\n" + grund;
  return katalog;
}

}  // namespace vesk
