#include "Antennenkatalog.h"

#include <algorithm>
#include <limits>

#include "Bandkennung.h"
#include "Itemleser.h"
#include "Katalogtext.h"
#include "Windows1252.h"
#include "Zahlen.h"

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

constexpr std::size_t Zeilenbreite = 100;

std::string Feld(std::string_view bytes, std::size_t breite) {
  return NachUtf8(OhneBlanks(bytes.substr(0, breite)));
}

void Einsetzen(std::string& zeile, std::size_t stelle, std::string_view text,
               std::size_t breite = Zeilenbreite) {
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
  std::string zeile(Zeilenbreite, ' ');
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

std::string Rechtsbuendig(const std::string& text, std::size_t breite) {
  return text.size() < breite ? std::string(breite - text.size(), ' ') + text : text;
}

std::string Bandzeile(const Antenne& antenne, const Antennenband& band) {
  constexpr std::size_t KennungBreite = 5;
  std::string zeile =
      Rechtsbuendig(band.kennung, KennungBreite) + "  -  " + Rechtsbuendig(band.gewinn, GewinnBreite);
  if (Zahl(band.elemente) == 0) return zeile;
  return zeile + "  -  " + Rechtsbuendig(band.elemente, ElementeBreite) +
         (antenne.art == "Helix" ? "cm" : " el. ");
}

/// Lower case of the letters that Windows-1252 has in the two blocks that catalogues use (A-Z, À-Þ).
std::string Kleinbuchstaben(std::string_view utf8) {
  std::string klein(utf8);
  bool block = false;
  for (char& zeichen : klein) {
    const auto byte = static_cast<unsigned char>(zeichen);
    const bool gross = block ? byte >= 0x80 && byte <= 0x9E && byte != 0x97 : byte >= 'A' && byte <= 'Z';
    if (gross) zeichen = static_cast<char>(byte + 0x20);
    block = byte == 0xC3;
  }
  return klein;
}

/// Band label of a search word that is a number throughout ("144", "14,2"); "3el" is none.
std::string Wortkennung(std::string_view wort) {
  constexpr std::size_t Ziffern = 12;
  if (wort.size() > Ziffern || wort.find_first_not_of("0123456789.,") != std::string_view::npos) return {};
  std::string zahl(wort);
  std::replace(zahl.begin(), zahl.end(), ',', '.');
  return Bandkennung(zahl);
}

}  // namespace

Antennenkatalog AntennenLaden(std::string_view bytes) {
  Antennenkatalog katalog;
  try {
    const std::string text = Katalogbytes(bytes);
    if (!Lader(text, katalog).Laden()) katalog.Meldung = MeldungDefekt;
  } catch (const Laufzeitfehler& fehler) {
    katalog.fehler = fehler.art;
  }
  return katalog;
}

Antennenkatalog AntennenUnlesbar() {
  Antennenkatalog katalog;
  katalog.Meldung = MeldungDefekt;
  return katalog;
}

std::string Antennenkopf() {
  std::string kopf(Zeilenbreite, ' ');
  Einsetzen(kopf, 0, "Herst.");
  Einsetzen(kopf, 26, "Typ");
  Einsetzen(kopf, 71, "MHz");
  Einsetzen(kopf, 85, "dBi");
  Einsetzen(kopf, 96, "el");
  return kopf;
}

Antennenwahl AntenneWaehlen(const Antenne& antenne, std::string_view QRGText) {
  Antennenwahl wahl;
  const std::string kennung = Bandkennung(QRGText);
  for (const Antennenband& band : antenne.baender) {
    wahl.zeilen.push_back(Bandzeile(antenne, band));
    if (!kennung.empty() && Zahl(band.kennung) == Zahl(kennung)) {
      wahl.markiert = static_cast<int>(wahl.zeilen.size()) - 1;
      wahl.gewinn = band.gewinn;
    }
  }
  // A half-wave dipole may be cut for any frequency.
  if (!wahl.Passt() && antenne.art == "Dipol") wahl.gewinn = "2.15";
  return wahl;
}

Antennensuche::Antennensuche(const std::vector<Antenne>& antennen) {
  eintraege_.reserve(antennen.size());
  for (const Antenne& antenne : antennen) {
    Eintrag& eintrag = eintraege_.emplace_back();
    eintrag.text = Kleinbuchstaben(antenne.hersteller + '\n' + antenne.typ + '\n' + antenne.art);
    for (const Antennenband& band : antenne.baender) eintrag.kennungen.push_back(band.kennung);
  }
}

std::vector<bool> Antennensuche::Treffer(std::string_view eingabe) const {
  struct Wort {
    std::string text;
    std::string kennung;
  };
  std::vector<Wort> worte;
  for (std::string_view rest = OhneBlanks(eingabe); !rest.empty();) {
    const std::string_view wort = rest.substr(0, rest.find_first_of(" \t"));
    worte.push_back({Kleinbuchstaben(wort), Wortkennung(wort)});
    rest = OhneBlanks(rest.substr(wort.size()));
  }
  std::vector<bool> treffer;
  treffer.reserve(eintraege_.size());
  for (const Eintrag& eintrag : eintraege_) {
    treffer.push_back(std::all_of(worte.begin(), worte.end(), [&](const Wort& wort) {
      return eintrag.text.find(wort.text) != std::string::npos ||
             std::find(eintrag.kennungen.begin(), eintrag.kennungen.end(), wort.kennung) !=
                 eintrag.kennungen.end();
    }));
  }
  return treffer;
}

}  // namespace vesk
