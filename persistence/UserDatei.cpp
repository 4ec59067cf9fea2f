#include "persistence/UserDatei.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <limits>
#include <optional>

#include "engine/Laufzeitfehler.h"
#include "engine/Version.h"
#include "engine/Zahlen.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Itemleser.h"
#include "persistence/Itemschreiber.h"
#include "station/Datenblatt.h"
#include "station/Operator.h"
#include "station/Text.h"

namespace vesk {

namespace {

constexpr std::string_view AeltesteUmwandelbare = "220";
constexpr std::string_view AeltesteAktuelle = "251";
/// Files above this version hold all 28 fields of a column, older ones the first 24.
constexpr float LetzteMit24Feldern = 250;

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

/// One pass over the items of a file into the station.
struct Lesegang {
  Itemleser items;
  Station& station;
  Lesebericht bericht{};
  bool datenblatt = false;  ///< met, as were the records of `spalten`
  std::bitset<AnzahlSpalten> spalten{};
  bool fertig = false;

  /// An item that belongs to the section being read.
  std::optional<std::string_view> Naechstes() {
    const auto item = items.Naechstes();
    bericht.abgebrochen = bericht.abgebrochen || !item;
    return item;
  }

  /// In Windows-1252 a character is a byte.
  void Text(std::string& ziel, std::size_t hoechstens = MaxFeldlaenge) {
    if (const auto item = Naechstes()) ziel = AlsItem(NachUtf8(item->substr(0, hoechstens)));
  }

  void Wahrheitswert(bool& ziel) {
    if (const auto item = Naechstes()) ziel = AlsWahrheitswert(*item).value_or(ziel);
  }

  void Ganzzahl(std::int16_t& ziel) {
    if (const auto item = Naechstes()) ziel = AlsGanzzahl(*item).value_or(ziel);
  }
};

void UserLesen(Lesegang& gang) {
  gang.bericht.User = true;
  for (const auto feld : Benutzerfelder) gang.Text(gang.station.benutzer.*feld);
}

void UserSchreiben(Itemschreiber& items, const Station& station) {
  for (const auto feld : Benutzerfelder) {
    items.Zeilenende();
    items.Text(station.benutzer.*feld);
  }
}

template <bool Einstellungen::*Schalter>
void SchalterLesen(Lesegang& gang) {
  gang.Wahrheitswert(gang.station.einstellungen.*Schalter);
}

template <bool Einstellungen::*Schalter>
void SchalterSchreiben(Itemschreiber& items, const Station& station) {
  items.Wahrheitswert(station.einstellungen.*Schalter);
}

void VersionLesen(Lesegang& gang) {
  const auto item = gang.Naechstes();
  if (!item) return;
  gang.bericht.versionstext = NachUtf8(*item);
  if (*item < AeltesteUmwandelbare) {
    gang.bericht.version = Dateiversion::ZuAlt;
    gang.fertig = true;
  } else {
    gang.bericht.version = *item < AeltesteAktuelle ? Dateiversion::Umwandelbar : Dateiversion::Aktuell;
  }
}

void VersionSchreiben(Itemschreiber& items, const Station& /*station*/) {
  items.Text(VersionText());
}

void FooterLesen(Lesegang& gang) {
  std::string& fusszeile = gang.station.Fusszeile;
  gang.Text(fusszeile);
  // Older versions stored the whole printed line; the generated part must not come twice.
  if (fusszeile.find("Erstellt") != std::string::npos) fusszeile.clear();
}

void FooterSchreiben(Itemschreiber& items, const Station& station) {
  items.Text(station.Fusszeile);
}

void DatenblattLesen(Lesegang& gang) {
  gang.datenblatt = true;
  for (std::string& zelle : gang.station.Zellen) gang.Text(zelle, MaxZellenlaenge);
}

void DatenblattSchreiben(Itemschreiber& items, const Station& station) {
  for (const std::string& zelle : station.Zellen) {
    items.Zeilenende();
    items.Text(zelle);
  }
}

void SpalteLesen(Lesegang& gang, std::size_t nummer) {
  Datenblattspalte& spalte = gang.station.Datenblattspalten.at(nummer);
  gang.spalten.set(nummer - 1);
  for (const auto feld : Spaltentexte) gang.Text(spalte.*feld);
  for (std::string& winkel : spalte.Winkel) gang.Text(winkel);
  const float faktor = WertOhneFehler(spalte.Modulationsfaktor) * WertOhneFehler(spalte.Zyklusfaktor);
  gang.station.spaltenfarben.at(nummer - 1).ohneHSM = faktor >= 1 ? Toenung::Blass : Toenung::Kraeftig;
  gang.station.spaltenfarben.at(nummer - 1).hsm = true;
  if (!(WertOhneFehler(gang.bericht.versionstext) > LetzteMit24Feldern)) return;
  gang.Ganzzahl(spalte.Grenzwerttyp);
  for (std::string& reserve : spalte.Reserve) gang.Text(reserve);
}

void SpalteSchreiben(Itemschreiber& items, const Station& station, std::size_t nummer) {
  const Datenblattspalte& spalte = station.Datenblattspalten.at(nummer);
  items.Text(std::string{'[', Spaltenbuchstabe(static_cast<std::int16_t>(nummer)), ']'});
  for (const auto feld : Spaltentexte) items.Text(spalte.*feld);
  for (const std::string& winkel : spalte.Winkel) items.Text(winkel);
  items.Ganzzahl(spalte.Grenzwerttyp);
  for (const std::string& reserve : spalte.Reserve) items.Text(reserve);
  items.Zeilenende();
}

/// One named section. Writing starts behind the name on the same line.
struct Abschnitt {
  std::string_view name;
  void (*lesen)(Lesegang&);
  void (*schreiben)(Itemschreiber&, const Station&);
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
  const bool spalte = name >= "A" && name <= "G";
  gang.bericht.bekannt =
      gang.bericht.bekannt || abschnitt != std::end(Abschnitte) || (spalte && name.size() == 1);
  if (abschnitt != std::end(Abschnitte)) {
    abschnitt->lesen(gang);
  } else if (spalte) {
    // "Foo" lies between "A" and "G" as well and is column F, "G1" and "a" are not.
    SpalteLesen(gang, static_cast<std::size_t>(name.front() - 'A') + 1);
  }
}

/// Whether every item of `bytes` comes again, in its order, when the state is written. Empty ones carry
/// nothing.
bool StehtWiederDrin(std::string_view bytes, const Station& station) {
  const std::string neu = UserDateiSchreiben(station);
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

}  // namespace

Lesebericht UserDateiLesen(std::string_view bytes, Station& station) {
  // No file of the program is valid UTF-8, its second line sees to that; one that is has been edited.
  const std::string text = AlsWindows1252(bytes);
  for (Spaltenfarben& farben : station.spaltenfarben) farben.rueckwaerts = false;
  Lesegang gang{Itemleser(text), station};
  while (!gang.fertig) {
    const auto item = gang.items.Naechstes();
    if (!item) break;
    AbschnittLesen(Abschnittsname(*item), gang);
  }
  const bool ganz = gang.fertig ? !gang.items.AmEnde() : gang.datenblatt && gang.spalten.all();
  gang.bericht.abgebrochen = gang.bericht.abgebrochen || !ganz;
  const bool jedesZeichen = text == bytes || bytes.ends_with(NachUtf8(text));
  gang.bericht.verlustfrei = jedesZeichen && StehtWiederDrin(text, station);
  return gang.bericht;
}

Fehlergrund WarumUnbrauchbar(const std::string& name, const Gelesen& datei, bool ganz) {
  if (Fehlergrund grund = WarumOhneInhalt(name, datei)) return grund;
  Station probe;
  const Lesebericht bericht = UserDateiLesen(datei.bytes, probe);
  if (!bericht.bekannt) return "Die Datei " + name + " enthält keine Daten von Vesk.";
  if (bericht.abgebrochen && ganz) return "Die Datei " + name + " ist unvollständig: Sie endet zu früh.";
  return std::nullopt;
}

std::string UserDateiSchreiben(const Station& station) {
  Itemschreiber items;
  items.Text("Die Datei wird vom Programm erstellt");
  items.Zeilenende();
  items.Text("bitte nichts ändern");
  items.Zeilenende();
  items.Zeilenende();
  for (const Abschnitt& abschnitt : Abschnitte) {
    items.Text("[" + std::string(abschnitt.name) + "]");
    abschnitt.schreiben(items, station);
    items.Zeilenende();
  }
  for (std::size_t nummer = 1; nummer <= AnzahlSpalten; ++nummer) SpalteSchreiben(items, station, nummer);
  return std::move(items).Bytes();
}

void FaktorenNormalisieren(Station& station) {
  for (std::size_t nummer = 1; nummer <= AnzahlSpalten; ++nummer) {
    Datenblattspalte& spalte = station.Datenblattspalten.at(nummer);
    for (std::string* faktor : {&spalte.Modulationsfaktor, &spalte.Zyklusfaktor}) {
      const float wert = WertOhneFehler(*faktor);
      if (wert == 0 || wert > 1) *faktor = "1.00";
    }
  }
}

void UserDateiVorgaben(Station& station) {
  for (std::size_t nummer = 1; nummer <= AnzahlSpalten; ++nummer) {
    Datenblattspalte& spalte = station.Datenblattspalten.at(nummer);
    spalte.Modulationsfaktor = "1";
    spalte.Zyklusfaktor = "1";
    spalte.Grenzwerttyp = GrenzwertAM;
  }
}

std::string Migrationsmeldung(const Lesebericht& bericht, std::string_view datei) {
  const std::size_t punkt = datei.find('.');
  const std::string f(datei);
  const std::string stamm = punkt == std::string_view::npos ? std::string() : f.substr(0, punkt);
  const std::string leer = bericht.version == Dateiversion::ZuAlt ? "Eine leere Datei: " : "";
  return "Daten aus Programmversion " + Anfang(bericht.versionstext, grenzen::Meldungswort) + ".\r" + f +
         " wird umbenannt in " + stamm + ".bak\r" + leer + f + " wird neu erstellt.";
}

}  // namespace vesk
