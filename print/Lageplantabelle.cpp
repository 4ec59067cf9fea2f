#include "print/Lageplantabelle.h"

#include <algorithm>
#include <array>

#include "print/Planteile.h"
#include "print/Satz.h"
#include "station/Datenblatt.h"
#include "station/Passung.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr std::array Kurvenfolge = {Winkelkurve::OhneHSM, Winkelkurve::HSMvde, Winkelkurve::HSM306};

struct Tabellenspalte {
  QStringView kopf;
  double ort;  ///< from the left margin, mm
  double breite;
  Buendig buendig = Buendig::Links;
};
constexpr std::array<Tabellenspalte, 7> Spalten = {{
    {u"Antenne", 0, 44},
    {u"Spalte", 46, 12},
    {u"Höhe [m]", 60, 20},
    {u"Hauptrichtung", 82, 33},
    {u"ohne HSM [m]", 136, 20, Buendig::Rechts},
    {u"HSM VDE [m]", 157, 20, Buendig::Rechts},
    {u"HSM 306 [m]", 178, 20, Buendig::Rechts},
}};
using Tabellentexte = std::array<QString, Spalten.size()>;

Block Tabellenzeile(const Tabellentexte& texte, const Schrift& schrift, double linie) {
  constexpr double Hoehe = 5;
  return {.hoehe = Hoehe, .malen = [=](Blatt& blatt, double oben) {
            const QRectF satz = Satzspiegel(Blattformat::Hoch);
            if (linie > 0) blatt.Linie({satz.left(), oben}, {satz.right(), oben}, linie);
            for (std::size_t i = 0; i < texte.size(); ++i) {
              const Tabellenspalte& spalte = Spalten.at(i);
              blatt.Einzeiler({satz.left() + spalte.ort, oben + 3.7}, spalte.breite, texte.at(i), schrift, 5,
                              spalte.buendig);
            }
          }};
}

/// The greatest distance of a column for one kind; "–": it has none.
QString Abstand(const std::vector<Zone>& zonen, std::size_t antenne, Winkelkurve art, int spalte) {
  for (const Zone& zone : zonen) {
    if (zone.antenne != antenne || zone.art != art) continue;
    for (const Spaltenzone& eine : zone.spalten) {
      if (eine.spalte != spalte) continue;
      const QString zahl = Planzahl(*std::max_element(eine.abstand.begin(), eine.abstand.end()));
      return eine.veraltet ? zahl + u" veraltet"_s : zahl;
    }
  }
  return u"–"_s;
}

QString Hauptrichtung(const Station& s, const Planobjekt& antenne, int spalte) {
  QString text = Papiertext(Zelle(s, spalte, ZeileRichtung));
  if (antenne.drehbar) {
    text = antenne.bis - antenne.von >= 360
               ? u"drehbar"_s
               : u"drehbar %1° bis %2°"_s.arg(Vollkreis(antenne.von)).arg(Vollkreis(antenne.bis));
  }
  return text.isEmpty() ? u"–"_s : text;
}

Bloecke Antennenzeilen(const Station& s, std::size_t index, const std::vector<Zone>& zonen) {
  const Planobjekt& antenne = s.lageplan.objekte[index];
  QString name = Antennentext(s.lageplan, index);
  if (antenne.spalten.none()) {
    return {Tabellenzeile({name, u"keine"_s, QString(), QString(), u"–"_s, u"–"_s, u"–"_s}, {9}, 0.1)};
  }
  Bloecke bloecke;
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    if (!antenne.spalten[static_cast<std::size_t>(spalte) - 1]) continue;
    Tabellentexte texte{name, QChar::fromLatin1(Spaltenbuchstabe(static_cast<std::int16_t>(spalte))),
                        Papiertext(Zelle(s, spalte, ZeileHoehe)), Hauptrichtung(s, antenne, spalte)};
    if (texte[2].isEmpty()) texte[2] = u"fehlt"_s;
    for (std::size_t i = 0; i < Kurvenfolge.size(); ++i) {
      texte.at(4 + i) = Abstand(zonen, index, Kurvenfolge.at(i), spalte);
    }
    bloecke.push_back(Tabellenzeile(texte, {9}, name.isEmpty() ? 0 : 0.1));
    name.clear();
  }
  if (bloecke.size() == 1) return bloecke;
  Tabellentexte groesste{QString(), {}, {}, u"größter Abstand"_s, u"–"_s, u"–"_s, u"–"_s};
  for (const Zone& zone : zonen) {
    const auto art = std::find(Kurvenfolge.begin(), Kurvenfolge.end(), zone.art) - Kurvenfolge.begin();
    if (zone.antenne == index)
      groesste.at(4 + static_cast<std::size_t>(art)) = Planzahl(Hoechstabstand(zone));
  }
  for (Block& block : bloecke) block.mitNaechstem = true;
  bloecke.push_back(Tabellenzeile(groesste, {.punkt = 9, .fett = true}, 0));
  return bloecke;
}

Bloecke Zonentabelle(const Station& s, const std::vector<Zone>& zonen) {
  Tabellentexte koepfe;
  for (std::size_t i = 0; i < Spalten.size(); ++i) koepfe.at(i) = Spalten.at(i).kopf.toString();
  Bloecke bloecke{Tabellenzeile(koepfe, {.punkt = 8, .fett = true}, 0)};
  bloecke.front().mitNaechstem = true;
  for (std::size_t i = 0; i < s.lageplan.objekte.size(); ++i) {
    if (s.lageplan.objekte[i].art == Planart::Antenne) bloecke += Antennenzeilen(s, i, zonen);
  }
  if (bloecke.size() == 1) return Textbloecke(u"Auf dem Plan steht keine Antenne."_s);
  return bloecke;
}

/// Seen from the reference point.
Bloecke Standorte(const Lageplan& plan) {
  Bloecke bloecke;
  for (std::size_t i = 0; i < plan.objekte.size(); ++i) {
    const Planobjekt& antenne = plan.objekte[i];
    if (antenne.art != Planart::Antenne || antenne.punkte.empty()) continue;
    const Punkt weg{antenne.punkte.front().x - plan.bezug.x, antenne.punkte.front().y - plan.bezug.y};
    const QString ort =
        u"%1 m nach rechts, %2 m nach oben auf dem Plan"_s.arg(Planzahl(weg.x), Planzahl(weg.y));
    bloecke.push_back(Listenzeile(Antennentext(plan, i), ort));
  }
  if (bloecke.empty()) return bloecke;
  const QString name = Papiertext(plan.bezugsname);
  bloecke.front().davor = 1;
  Bloecke alle{Ueberschrift(u"Standorte, vom Bezugspunkt "_s +
                            (name.isEmpty() ? u"(Nullpunkt der Zeichnung)"_s : u"„%1“"_s.arg(name)))};
  return alle += std::move(bloecke);
}

/// What of a zone that fits is to be said; what does not fit is a finding.
QString Passungssatz(const Passung& passung) {
  if (passung.passt == Passt::ImGrundriss) return u"bleibt im kontrollierten Bereich."_s;
  QString satz =
      u"reicht nur dort über den kontrollierten Bereich hinaus, wo keine Personen sind: weder bis 2 m "
      u"über Grund noch in fremden Gebäuden"_s;
  if (passung.imGrundriss >= Passungstoleranz) {
    satz += u"; im Grundriß sind es "_s + Planzahl(passung.imGrundriss) + u" m"_s;
  }
  return satz + u'.';
}

Bloecke Punkte(const QStringList& saetze) {
  Bloecke bloecke;
  for (const QString& satz : saetze) {
    bloecke += Textbloecke(satz, {9}, 5, u"–"_s);
    bloecke.back().hoehe += 0.8;
  }
  return bloecke;
}

Bloecke Pruefung(const Station& s, const std::vector<Zone>& zonen) {
  const Planpruefung pruefung(s.lageplan);
  QStringList gut;
  for (const Zone& zone : zonen) {
    if (pruefung.bereich.leer()) break;
    const Passung passung = PassungPruefen(pruefung, s.lageplan, zone);
    if (passung.passt == Passt::Nicht) continue;
    gut.append(u"Antenne %1: Die Zone %2 %3"_s.arg(Antennentext(s.lageplan, zone.antenne),
                                                   QString::fromUtf8(Zonenname(zone.art)),
                                                   Passungssatz(passung)));
  }
  QStringList offen;
  for (const Planbefund& befund : LageplanPruefen(s)) offen.append(QString::fromStdString(befund.text));
  Bloecke bloecke;
  if (!gut.isEmpty()) bloecke.push_back(Ueberschrift(u"Geprüft"_s));
  bloecke += Punkte(gut);
  if (!offen.isEmpty()) bloecke.push_back(Ueberschrift(u"Offen"_s));
  bloecke += Punkte(offen);
  return bloecke;
}

}  // namespace

std::vector<Seite> Lageplantabelle(const Station& s, const std::vector<Zone>& zonen) {
  Bloecke bloecke = Zonentabelle(s, zonen);
  bloecke += Standorte(s.lageplan);
  bloecke += Pruefung(s, zonen);
  return Seitenumbruch(bloecke, u"Sicherheitszonen zum Lageplan"_s, Papiertext(s.benutzer.Rufzeichen), true);
}

}  // namespace vesk
