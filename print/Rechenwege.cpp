#include <algorithm>
#include <array>
#include <span>

#include "print/Dokumente.h"
#include "print/Formelsatz.h"
#include "print/Satz.h"
#include "station/Datenblatt.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Sizes of the letters of a page in points, and which share of their usual size its gaps keep at least.
struct Satzmass {
  double text;
  double formel;
  double luft;
};

/// The first that brings a way onto one page is taken.
constexpr std::array<Satzmass, 6> Satzmasse = {{
    {8, 9, 0.8},
    {7.6, 8.5, 0.75},
    {7.2, 8, 0.7},
    {6.8, 7.6, 0.6},
    {6.4, 7.2, 0.5},
    {6, 6.8, 0.4},
}};
constexpr double MeisteLuft = 1.6;
/// Where not even the smallest does, the way goes on over further pages that are easy to read.
constexpr double LuftMehrererSeiten = 1.2;

constexpr double Einzug = 4;  // of the equations, mm

// Places in a line of the table of inputs, mm.
constexpr double Tabellenspalte = 93;  // from one of its two columns to the other
constexpr double Symbolstelle = 44;
constexpr double Wertstelle = 53;
constexpr double Komma = 64;
constexpr double Einheitstelle = 76;
constexpr double Tabellenende = 85;
constexpr double Spalt = 1.5;

/// Draws from an upper left corner.
using Maler = std::function<void(Blatt&, QPointF ecke)>;
struct Tabellenzelle {
  double hoehe = 0;
  Maler malen;
};

/// Lines of one style on the base lines of another.
Maler Zeilenmaler(const QStringList& zeilen, const Schrift& schrift, const Schrift& grundschrift, double x) {
  return [=](Blatt& blatt, QPointF ecke) {
    ecke += {x, Oberlaenge(grundschrift)};
    for (const QString& zeile : zeilen) {
      blatt.Text(ecke, zeile, schrift);
      ecke.ry() += Zeilenhoehe(grundschrift);
    }
  };
}

/// Symbol, number at the decimal point, unit.
Maler Zahlmaler(const Groesse& groesse, const QString& zahl, const Schrift& schrift) {
  const QString einheit = QString::fromStdString(groesse.einheit);
  const double platz = Tabellenende - Wertstelle - Textbreite(einheit, schrift) - Spalt;
  const Schrift passend = Eingepasst(zahl, schrift, platz, 1);
  const double vorKomma = Textbreite(zahl.section(u'.', 0, 0), passend);
  const double breite = Textbreite(zahl, passend);
  // A number too long for its place begins further left, or its unit stands further right.
  double x = std::max(Wertstelle, Komma - vorKomma);
  if (x + breite > Wertstelle + platz) x = Wertstelle;
  const double xEinheit = std::max(Einheitstelle, x + breite + Spalt);
  return [=, symbol = Symbolkasten(groesse, schrift.punkt)](Blatt& blatt, QPointF ecke) {
    const double grund = ecke.y() + Oberlaenge(schrift);
    Malen(blatt, {ecke.x() + Symbolstelle, grund}, symbol);
    blatt.Text({ecke.x() + x, grund}, zahl, passend);
    blatt.Text({ecke.x() + xEinheit, grund}, einheit, schrift);
  };
}

Tabellenzelle ZelleSetzen(const Rechenzeile& zeile, const Schrift& schrift) {
  const QString wert = Papiertext(zeile.eingabe->zahl);
  const QStringList name = Umbrechen(Papiertext(zeile.text), schrift, Symbolstelle - Spalt);
  bool zahl = false;
  wert.toDouble(&zahl);
  // Words begin where the symbols do and may be of several lines.
  const double platz = Tabellenende - Symbolstelle;
  const Schrift passend = Eingepasst(wert, schrift, platz, 6);
  const QStringList worte = Umbrechen(wert, passend, platz);
  const auto zeilen = static_cast<double>(std::max(name.size(), zahl ? 1 : worte.size()));
  return {zeilen * Zeilenhoehe(schrift),
          [links = Zeilenmaler(name, schrift, schrift, 0),
           rechts = zahl ? Zahlmaler(*zeile.eingabe, wert, schrift)
                         : Zeilenmaler(worte, passend, schrift, Symbolstelle)](Blatt& blatt, QPointF ecke) {
            links(blatt, ecke);
            rechts(blatt, ecke);
          }};
}

/// Two columns, to be read downwards.
Bloecke Eingabentabelle(std::span<const Rechenzeile> eingaben, const Schrift& schrift) {
  std::vector<Tabellenzelle> zellen;
  for (const Rechenzeile& zeile : eingaben) zellen.push_back(ZelleSetzen(zeile, schrift));
  const std::size_t hoch = (zellen.size() + 1) / 2;
  zellen.resize(2 * hoch, {0, [](Blatt&, QPointF) {}});
  Bloecke bloecke;
  for (std::size_t i = 0; i < hoch; ++i) {
    const Tabellenzelle& links = zellen[i];
    const Tabellenzelle& rechts = zellen[i + hoch];
    bloecke.push_back({.hoehe = std::max(links.hoehe, rechts.hoehe),
                       .malen = [l = links.malen, r = rechts.malen](Blatt& blatt, double oben) {
                         const double rand = Satzspiegel(Blattformat::Hoch).left();
                         l(blatt, {rand, oben});
                         r(blatt, {rand + Tabellenspalte, oben});
                       }});
  }
  return bloecke;
}

Block Gleichungsblock(const Gleichung& gleichung, const Satzmass& mass, double gleich) {
  const double breite = Satzspiegel(Blattformat::Hoch).width();
  Kasten kasten = Gleichungskasten(gleichung, mass.formel, gleich, breite);
  return {.hoehe = kasten.ueber + kasten.unter,
          .malen =
              [kasten = std::move(kasten)](Blatt& blatt, double oben) {
                Malen(blatt, {Satzspiegel(Blattformat::Hoch).left(), oben + kasten.ueber}, kasten);
              },
          .davor = 1.3};
}

Bloecke Abschnittsbloecke(const Rechenabschnitt& abschnitt, const Satzmass& mass, double gleich) {
  const Schrift schrift{.punkt = mass.text};
  Bloecke bloecke = Textbloecke(Papiertext(abschnitt.titel), {.punkt = mass.text + 0.5, .fett = true});
  bloecke.front().davor = 2.6;
  bloecke.back().mitNaechstem = true;
  for (auto zeile = abschnitt.zeilen.begin(); zeile != abschnitt.zeilen.end();) {
    const auto ende = std::find_if(zeile, abschnitt.zeilen.end(), [](const auto& z) { return !z.eingabe; });
    if (ende != zeile) {
      Bloecke tabelle = Eingabentabelle({zeile, ende}, schrift);
      tabelle.front().davor = 0.8;
      bloecke += std::move(tabelle);
      zeile = ende;
      continue;
    }
    if (!zeile->text.empty()) {
      Bloecke text = Textbloecke(Papiertext(zeile->text), schrift);
      text.front().davor = 0.8;
      text.back().mitNaechstem = zeile->gleichung.has_value();
      bloecke += std::move(text);
    }
    if (zeile->gleichung) bloecke.push_back(Gleichungsblock(*zeile->gleichung, mass, gleich));
    ++zeile;
  }
  return bloecke;
}

/// One "=" below the other over the whole way.
double Gleichstelle(const std::vector<Rechenabschnitt>& weg, double punkt) {
  double breite = 0;
  for (const Rechenabschnitt& abschnitt : weg) {
    for (const Rechenzeile& zeile : abschnitt.zeilen) {
      if (zeile.gleichung) breite = std::max(breite, Symbolkasten(zeile.gleichung->ergebnis, punkt).breite);
    }
  }
  return Einzug + breite;
}

Bloecke Wegbloecke(const std::vector<Rechenabschnitt>& weg, const Satzmass& mass) {
  const double gleich = Gleichstelle(weg, mass.formel);
  Bloecke bloecke;
  for (const Rechenabschnitt& abschnitt : weg) bloecke += Abschnittsbloecke(abschnitt, mass, gleich);
  if (gleich == Einzug) return bloecke;
  Bloecke regel = Textbloecke(
      u"Ergebnisse sind gerundet angegeben; weitergerechnet wird mit allen Stellen, "
      u"die in den folgenden Gleichungen eingesetzt sind."_s,
      {.punkt = std::max(6.0, mass.text - 1)});
  regel.front().davor = 3;
  return bloecke += std::move(regel);
}

Bloecke Gelockert(Bloecke bloecke, double luft) {
  for (Block& block : bloecke) block.davor *= luft;
  return bloecke;
}

std::vector<Seite> Wegseiten(const std::vector<Rechenabschnitt>& weg, const QString& titel,
                             const QString& rufzeichen) {
  for (const Satzmass& mass : Satzmasse) {
    Bloecke bloecke = Wegbloecke(weg, mass);
    double luecken = 0;
    double frei = Satzspiegel(Blattformat::Hoch).height() - Seitenkopfhoehe;
    for (const Block& block : bloecke) {
      luecken += block.davor;
      frei -= block.hoehe;
    }
    const double luft = std::min(MeisteLuft, frei / luecken);
    if (luft >= mass.luft) return Seitenumbruch(Gelockert(std::move(bloecke), luft), titel, rufzeichen, true);
  }
  Bloecke bloecke = Gelockert(Wegbloecke(weg, Satzmasse.front()), LuftMehrererSeiten);
  return Seitenumbruch(bloecke, titel, rufzeichen, true);
}

}  // namespace

Dokument Rechenwege(const Station& s, const Kataloge& k) {
  const QString rufzeichen = Papiertext(s.benutzer.Rufzeichen);
  Dokument dokument{u"Rechenweg"_s, {}};
  for (const int spalte : BenutzteSpalten(s)) {
    QString titel =
        u"Rechenweg Spalte "_s + QChar::fromLatin1(Spaltenbuchstabe(static_cast<std::int16_t>(spalte)));
    const QString frequenz = Papiertext(Zelle(s, spalte, ZeileFrequenz));
    if (!frequenz.isEmpty()) titel += u" — "_s + frequenz + u" MHz"_s;
    for (Seite& seite : Wegseiten(Rechenweg(s, k, spalte), titel, rufzeichen)) {
      dokument.seiten.push_back(std::move(seite));
    }
  }
  if (!dokument.seiten.empty()) return dokument;
  const QString leer =
      u"Im Datenblatt ist keine Spalte ausgefüllt. Zu jeder ausgefüllten Spalte steht hier ihr Rechenweg."_s;
  dokument.seiten = Seitenumbruch(Textbloecke(leer), u"Rechenweg"_s, rufzeichen, true);
  return dokument;
}

}  // namespace vesk
