#include "print/Dokumente.h"
#include "print/Satz.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr QStringView Titel = u"Unterlagen der ortsfesten Amateurfunkstelle";

/// A callsign of a usual length is large.
Bloecke Rufzeichen(const QString& rufzeichen) {
  if (rufzeichen.isEmpty()) return Feldbloecke(u"Rufzeichen", rufzeichen);
  constexpr double Gross = 44;
  constexpr double Klein = 10;
  constexpr qsizetype Ueblich = 60;
  Schrift schrift{.punkt = Klein, .fett = true};
  if (rufzeichen.size() <= Ueblich) {
    schrift.punkt = Gross;
    schrift = Eingepasst(rufzeichen, schrift, Satzspiegel(Blattformat::Hoch).width(), Klein);
  }
  return Textbloecke(rufzeichen, schrift);
}

Block Trennlinie() {
  return {.hoehe = 3,
          .malen =
              [](Blatt& blatt, double oben) {
                const QRectF satz = Satzspiegel(Blattformat::Hoch);
                blatt.Linie({satz.left(), oben}, {satz.right(), oben}, 0.35);
              },
          .davor = 4};
}

Bloecke Kopf(const Station& s, const QDate& datum) {
  constexpr double Freiraum = 14;
  Bloecke bloecke{{.hoehe = Freiraum, .malen = [](Blatt&, double) {}}};
  bloecke += Textbloecke(Titel.toString(), {.punkt = 16, .fett = true});
  bloecke.back().hoehe += Freiraum;
  bloecke += Rufzeichen(Papiertext(s.benutzer.Rufzeichen));
  bloecke.push_back(Trennlinie());
  bloecke += Feldbloecke(u"Name", Papiertext(s.benutzer.Name));
  bloecke += Feldbloecke(u"Standort", Papiertext(s.benutzer.Standort));
  bloecke += Feldbloecke(u"Datum", datum.toString(u"dd.MM.yyyy"_s));
  return bloecke;
}

/// The pages before the contents' first document are `eigene`.
Bloecke Verzeichnis(const Inhalt& inhalt, std::size_t eigene) {
  Bloecke bloecke{Ueberschrift(u"Inhalt"_s, u"Seite"_s)};
  std::size_t seite = eigene + 1;
  for (const auto& [titel, seiten] : inhalt) {
    bloecke.push_back(Listenzeile(titel, QString::number(seite)));
    seite += seiten;
  }
  return bloecke;
}

Bloecke Offenes(const std::vector<Befund>& befunde) {
  if (befunde.empty()) return {};
  Bloecke bloecke{Ueberschrift(u"Vor dem Einreichen offen:"_s)};
  for (const Befund& befund : befunde) {
    bloecke += Textbloecke(QString::fromStdString(befund.text), {9}, 5, u"–"_s);
    bloecke.back().hoehe += 0.8;
  }
  return bloecke;
}

}  // namespace

Dokument Deckblatt(const Station& s, const Kataloge& k, const Inhalt& inhalt, const QDate& datum) {
  const Bloecke kopf = Kopf(s, datum);
  const Bloecke offenes = Offenes(PapierePruefen(s, k));
  const auto seiten = [&](std::size_t eigene) {
    Bloecke bloecke = kopf;
    bloecke += Verzeichnis(inhalt, eigene);
    bloecke += offenes;
    return Seitenumbruch(bloecke, Titel.toString(), Papiertext(s.benutzer.Rufzeichen), false);
  };
  return {u"Deckblatt"_s, seiten(seiten(0).size())};
}

}  // namespace vesk
