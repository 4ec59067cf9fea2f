#include "UserDatei.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "Itemleser.h"
#include "Laufzeitfehler.h"
#include "Version.h"
#include "Windows1252.h"
#include "Zahlen.h"

namespace vesk {

namespace {

constexpr std::string_view AeltesteUmwandelbare = "220";
constexpr std::string_view AeltesteAktuelle = "251";
/// Files above this version hold all 28 fields of a column, older ones the first 24.
constexpr float LetzteMit24Feldern = 250;

constexpr std::array Benutzerfelder = {
    &Benutzer::Name,    &Benutzer::Strasse,    &Benutzer::Ort,    &Benutzer::Telefon,
    &Benutzer::Telefax, &Benutzer::Rufzeichen, &Benutzer::Klasse, &Benutzer::Standort,
};

/// Positions 1 to 15 of a column's record; 16 to 24 are `Winkel`, 25 `Grenzwerttyp`, 26 to 28 `Reserve`.
constexpr std::array Spaltentexte = {
    &Datenblattspalte::Modulationsfaktor,
    &Datenblattspalte::Zyklusfaktor,
    &Datenblattspalte::KabelLaenge,
    &Datenblattspalte::KabelIndex,
    &Datenblattspalte::Antenne,
    &Datenblattspalte::D100,
    &Datenblattspalte::Kabeldaempfung,
    &Datenblattspalte::Stecker,
    &Datenblattspalte::Gesamtdaempfung,
    &Datenblattspalte::QRG,
    &Datenblattspalte::Gewinn,
    &Datenblattspalte::Winkeldaempfung,
    &Datenblattspalte::AbstandOhneHSM,
    &Datenblattspalte::AbstandHSM306,
    &Datenblattspalte::AbstandHSMvde,
};

/// A number beyond the range of single counts as infinite instead of ending the reading.
float WertOhneFehler(std::string_view text) {
  try {
    return Zahl(text);
  } catch (const Laufzeitfehler&) {
    const bool negativ = text.substr(text.find_first_not_of(" \t\r\n")).starts_with('-');
    return negativ ? -std::numeric_limits<float>::infinity() : std::numeric_limits<float>::infinity();
  }
}

/// A text item is one line without double quotes: a line end becomes a blank, a quote an apostrophe.
std::string AlsItem(std::string text) {
  if (text.find_first_of("\r\n\"") == std::string::npos) return text;
  const std::size_t crlf = 2;
  for (std::size_t i = text.find("\r\n"); i != std::string::npos; i = text.find("\r\n", i)) {
    text.replace(i, crlf, " ");
  }
  std::replace_if(
      text.begin(), text.end(), [](char z) { return z == '\r' || z == '\n'; }, ' ');
  std::replace(text.begin(), text.end(), '"', '\'');
  return text;
}

bool GleichBuchstaben(std::string_view item, std::string_view gross) {
  const auto gleich = [](char a, char b) { return a == b || (a >= 'a' && a <= 'z' && a - 'a' + 'A' == b); };
  return std::equal(item.begin(), item.end(), gross.begin(), gross.end(), gleich);
}

std::optional<int> GanzeZahl(std::string_view item) {
  int wert = 0;
  const auto [ende, fehler] = std::from_chars(item.data(), item.data() + item.size(), wert);
  if (fehler != std::errc() || ende != item.data() + item.size()) return std::nullopt;
  return wert;
}

/// One pass over the items of a file into the state.
struct Lesegang {
  Itemleser items;
  Zustand& zustand;
  Lesebericht bericht;
  bool fertig = false;

  void Text(std::string& ziel, std::size_t hoechstens = MaxFeldlaenge) {
    const auto item = items.Naechstes();
    if (!item) return;
    ziel = AlsItem(NachUtf8(item->substr(0, hoechstens)));
    bericht.etwasGelesen = true;
  }

  void Wahrheitswert(bool& ziel) {
    const auto item = items.Naechstes();
    if (!item) return;
    const bool wahr = GleichBuchstaben(*item, "#TRUE#");
    const auto zahl = GanzeZahl(*item);
    if (!wahr && !zahl && !GleichBuchstaben(*item, "#FALSE#")) return;
    ziel = wahr || zahl.value_or(0) != 0;
    bericht.etwasGelesen = true;
  }

  void Ganzzahl(std::int16_t& ziel) {
    const auto item = items.Naechstes();
    const auto zahl = item ? GanzeZahl(*item) : std::nullopt;
    if (!zahl || *zahl != static_cast<std::int16_t>(*zahl)) return;
    ziel = static_cast<std::int16_t>(*zahl);
    bericht.etwasGelesen = true;
  }
};

/// Collects the lines of a file.
struct Schreibgang {
  const Zustand& zustand;
  std::string bytes;

  void Trennen() {
    if (!bytes.empty() && bytes.back() != '\n') bytes += ',';
  }
  void Text(const std::string& utf8) {
    Trennen();
    bytes.append(1, '"').append(AlsItem(NachWindows1252(utf8))).append(1, '"');
  }
  void Wahrheitswert(bool wert) {
    Trennen();
    bytes += wert ? "#TRUE#" : "#FALSE#";
  }
  void Ganzzahl(std::int16_t wert) {
    Trennen();
    bytes += std::to_string(wert);
  }
  void Zeilenende() { bytes += "\r\n"; }
};

void UserLesen(Lesegang& gang) {
  gang.bericht.User = true;
  for (const auto feld : Benutzerfelder) gang.Text(gang.zustand.benutzer.*feld);
}

void UserSchreiben(Schreibgang& gang) {
  for (const auto feld : Benutzerfelder) {
    gang.Zeilenende();
    gang.Text(gang.zustand.benutzer.*feld);
  }
}

template <bool Einstellungen::*Schalter>
void SchalterLesen(Lesegang& gang) {
  gang.bericht.ToolTips = gang.bericht.ToolTips || Schalter == &Einstellungen::ToolTips;
  gang.bericht.AFu = gang.bericht.AFu || Schalter == &Einstellungen::AFu;
  gang.Wahrheitswert(gang.zustand.einstellungen.*Schalter);
}

template <bool Einstellungen::*Schalter>
void SchalterSchreiben(Schreibgang& gang) {
  gang.Wahrheitswert(gang.zustand.einstellungen.*Schalter);
}

void VersionLesen(Lesegang& gang) {
  const auto item = gang.items.Naechstes();
  if (!item) return;
  gang.bericht.versionstext = NachUtf8(*item);
  if (*item < AeltesteUmwandelbare) {
    gang.bericht.version = Dateiversion::ZuAlt;
    gang.fertig = true;
  } else {
    gang.bericht.version = *item < AeltesteAktuelle ? Dateiversion::Umwandelbar : Dateiversion::Aktuell;
  }
}

void VersionSchreiben(Schreibgang& gang) {
  gang.Text(VersionText());
}

void FooterLesen(Lesegang& gang) {
  std::string& fusszeile = gang.zustand.Fusszeile;
  gang.Text(fusszeile);
  // Older versions stored the whole printed line; the generated part must not come twice.
  if (fusszeile.find("Erstellt") != std::string::npos) fusszeile.clear();
}

void FooterSchreiben(Schreibgang& gang) {
  gang.Text(gang.zustand.Fusszeile);
}

void DatenblattLesen(Lesegang& gang) {
  for (std::string& zelle : gang.zustand.Zellen) gang.Text(zelle, MaxZellenlaenge);
}

void DatenblattSchreiben(Schreibgang& gang) {
  for (const std::string& zelle : gang.zustand.Zellen) {
    gang.Zeilenende();
    gang.Text(zelle);
  }
}

void SpalteLesen(Lesegang& gang, std::size_t nummer) {
  Datenblattspalte& spalte = gang.zustand.Datenblattspalten.at(nummer);
  gang.bericht.Spalten.set(nummer - 1);
  for (const auto feld : Spaltentexte) gang.Text(spalte.*feld);
  for (std::string& winkel : spalte.Winkel) gang.Text(winkel);
  if (!(WertOhneFehler(gang.bericht.versionstext) > LetzteMit24Feldern)) return;
  gang.Ganzzahl(spalte.Grenzwerttyp);
  for (std::string& reserve : spalte.Reserve) gang.Text(reserve);
}

void SpalteSchreiben(Schreibgang& gang, std::size_t nummer) {
  const Datenblattspalte& spalte = gang.zustand.Datenblattspalten.at(nummer);
  gang.Text(std::string{'[', static_cast<char>('A' + nummer - 1), ']'});
  for (const auto feld : Spaltentexte) gang.Text(spalte.*feld);
  for (const std::string& winkel : spalte.Winkel) gang.Text(winkel);
  gang.Ganzzahl(spalte.Grenzwerttyp);
  for (const std::string& reserve : spalte.Reserve) gang.Text(reserve);
  gang.Zeilenende();
}

/// One named section. Writing starts behind the name on the same line.
struct Abschnitt {
  std::string_view name;
  void (*lesen)(Lesegang&);
  void (*schreiben)(Schreibgang&);
};

/// The sections in the order of the file; the seven column records follow.
constexpr Abschnitt Abschnitte[] = {
    {"User", UserLesen, UserSchreiben},
    {"ToolTips", SchalterLesen<&Einstellungen::ToolTips>, SchalterSchreiben<&Einstellungen::ToolTips>},
    {"AFu", SchalterLesen<&Einstellungen::AFu>, SchalterSchreiben<&Einstellungen::AFu>},
    {"Fenster", SchalterLesen<&Einstellungen::Fenster>, SchalterSchreiben<&Einstellungen::Fenster>},
    {"Meldungen", SchalterLesen<&Einstellungen::Meldungen>, SchalterSchreiben<&Einstellungen::Meldungen>},
    {"Version", VersionLesen, VersionSchreiben},
    {"Footer", FooterLesen, FooterSchreiben},
    {"Datenblatt", DatenblattLesen, DatenblattSchreiben},
};

std::string_view Abschnittsname(std::string_view item) {
  const std::size_t ende = item.find(']');
  if (!item.starts_with('[') || ende == std::string_view::npos) return {};
  return item.substr(1, ende - 1);
}

void AbschnittLesen(std::string_view name, Lesegang& gang) {
  const auto* abschnitt = std::find_if(std::begin(Abschnitte), std::end(Abschnitte),
                                       [&](const Abschnitt& einer) { return einer.name == name; });
  if (abschnitt != std::end(Abschnitte)) {
    abschnitt->lesen(gang);
  } else if (name >= "A" && name <= "G") {
    // "Foo" lies between "A" and "G" as well and is column F, "G1" and "a" are not.
    SpalteLesen(gang, static_cast<std::size_t>(name.front() - 'A') + 1);
  }
}

/// Whether every item of `bytes` comes again, in its order, when the state is written. Empty ones carry
/// nothing.
bool StehtWiederDrin(std::string_view bytes, const Zustand& zustand) {
  const std::string neu = UserDateiSchreiben(zustand);
  Itemleser alteItems(bytes);
  Itemleser neueItems(neu);
  const auto naechstes = [](Itemleser& items) {
    auto item = items.Naechstes();
    while (item && item->empty()) item = items.Naechstes();
    return item;
  };
  for (auto altes = naechstes(alteItems); altes; altes = naechstes(alteItems)) {
    if (altes != naechstes(neueItems)) return false;
  }
  return true;
}

std::string ErzeugteFusszeile() {
  return "Erstellt mit " + std::string(Produktname) + " v " + VersionLang() + " - " +
         std::string(Rechtshinweis);
}

}  // namespace

Lesebericht UserDateiLesen(std::string_view bytes, Zustand& zustand) {
  constexpr std::string_view ReihenfolgeMarke = "\xEF\xBB\xBF";
  std::string umgewandelt;
  bool verlustfrei = true;
  // No file of the program is valid UTF-8, its second line sees to that; so an editor has changed it.
  if (IstUtf8(bytes)) {
    if (bytes.starts_with(ReihenfolgeMarke)) bytes.remove_prefix(ReihenfolgeMarke.size());
    umgewandelt = NachWindows1252(bytes);
    verlustfrei = NachUtf8(umgewandelt) == bytes;
    bytes = umgewandelt;
  }
  Lesegang gang{Itemleser(bytes), zustand, {}};
  while (!gang.fertig) {
    const auto item = gang.items.Naechstes();
    if (!item) break;
    AbschnittLesen(Abschnittsname(*item), gang);
  }
  gang.bericht.verlustfrei = verlustfrei && StehtWiederDrin(bytes, zustand);
  return gang.bericht;
}

std::string UserDateiSchreiben(const Zustand& zustand) {
  Schreibgang gang{zustand, {}};
  gang.bytes.reserve(8192);
  gang.Text("Die Datei wird vom Programm erstellt");
  gang.Zeilenende();
  gang.Text("bitte nichts ändern");
  gang.Zeilenende();
  gang.Zeilenende();
  for (const Abschnitt& abschnitt : Abschnitte) {
    gang.Text("[" + std::string(abschnitt.name) + "]");
    abschnitt.schreiben(gang);
    gang.Zeilenende();
  }
  for (std::size_t nummer = 1; nummer <= AnzahlSpalten; ++nummer) SpalteSchreiben(gang, nummer);
  return std::move(gang.bytes);
}

void FaktorenNormalisieren(Zustand& zustand) {
  for (std::size_t nummer = 1; nummer <= AnzahlSpalten; ++nummer) {
    Datenblattspalte& spalte = zustand.Datenblattspalten.at(nummer);
    for (std::string* faktor : {&spalte.Modulationsfaktor, &spalte.Zyklusfaktor}) {
      const float wert = WertOhneFehler(*faktor);
      if (wert == 0 || wert > 1) *faktor = "1.00";
    }
  }
}

void UserDateiVorgaben(Zustand& zustand) {
  for (std::size_t nummer = 1; nummer <= AnzahlSpalten; ++nummer) {
    Datenblattspalte& spalte = zustand.Datenblattspalten.at(nummer);
    spalte.Modulationsfaktor = "1";
    spalte.Zyklusfaktor = "1";
    spalte.Grenzwerttyp = GrenzwertAM;
  }
}

float Faktorprodukt(const Datenblattspalte& spalte) {
  return WertOhneFehler(spalte.Modulationsfaktor) * WertOhneFehler(spalte.Zyklusfaktor);
}

std::string DruckFusszeile(const Zustand& zustand) {
  return zustand.Fusszeile + ErzeugteFusszeile();
}

std::string Migrationsmeldung(const Lesebericht& bericht, std::string_view datei) {
  const std::size_t punkt = datei.find('.');
  const std::string f(datei);
  const std::string stamm = punkt == std::string_view::npos ? std::string() : f.substr(0, punkt);
  const std::string leer = bericht.version == Dateiversion::ZuAlt ? "Eine leere Datei: " : "";
  return "Daten aus Programmversion " + bericht.versionstext + ".\r" + f + " wird umbenannt in " + stamm +
         ".bak\r" + leer + f + " wird neu erstellt.";
}

std::string TitelBenutzerfenster(const Zustand& zustand) {
  return "Persönliche Daten " + zustand.benutzer.Rufzeichen;
}

std::string TitelHauptfenster(const Zustand& zustand) {
  return "EMVU Sicherheitsabstand:  " + zustand.UserDatei;
}

std::string TitelDatenblatt(const Zustand& zustand) {
  // A long directory would push the name of the file out of the title bar.
  constexpr std::size_t ZuLang = 40;
  const std::string kopf = "Datenblatt  Vfg 306/97 Anlage Blatt 5.2  -  ";
  if (Zeichenzahl(zustand.UserVerzeichnis) >= ZuLang) return kopf + zustand.UserDatei;
  return kopf + zustand.UserVerzeichnis + "\\" + zustand.UserDatei;
}

}  // namespace vesk
