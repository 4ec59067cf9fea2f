#include "print/Satz.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr double Werteinzug = 34;  // where the texts beside their captions begin
constexpr Schrift Grundschrift{10};

QRectF Hochsatz() {
  return Satzspiegel(Blattformat::Hoch);
}

Block Textzeile(const QString& text, const Schrift& schrift, double einzug) {
  return {.hoehe = Zeilenhoehe(schrift), .malen = [=](Blatt& blatt, double oben) {
            blatt.Text({Hochsatz().left() + einzug, oben + Oberlaenge(schrift)}, text, schrift);
          }};
}

Block Schreibzeile(const QString& beschriftung) {
  constexpr double Hoehe = 7;
  return {.hoehe = Hoehe, .malen = [=](Blatt& blatt, double oben) {
            const QRectF satz = Hochsatz();
            const double grund = oben + Hoehe - 1.5;
            blatt.Text({satz.left(), grund}, beschriftung, Grundschrift);
            blatt.Linie({satz.left() + Werteinzug, grund + 0.6}, {satz.right(), grund + 0.6});
          }};
}

/// From `links` as far as `bis`; the dots of all lines stand below each other.
void Punktreihe(Blatt& blatt, QPointF links, double bis) {
  constexpr double Punkt = 0.25;
  constexpr double Abstand = 1.8;
  const double rechts = Hochsatz().right();
  const double anfang = rechts - std::ceil((rechts - bis) / Abstand) * Abstand;
  if (anfang <= links.x()) return;
  QPen stift(Qt::black, Punkt * Blatt::Einheit, Qt::CustomDashLine, Qt::FlatCap);
  stift.setDashPattern({1, Abstand / Punkt - 1});
  blatt.Maler().setPen(stift);
  const double y = links.y() - Punkt / 2;
  blatt.Maler().drawLine(QPointF(anfang, y) * Blatt::Einheit, QPointF(links.x(), y) * Blatt::Einheit);
}

struct Gesetzt {
  double oben;
  std::function<void(Blatt&, double oben)> malen;
};

}  // namespace

void Seitenkopf(Blatt& blatt, Blattformat format, const QString& titel, const QString& rechts) {
  constexpr double Anteil = 0.68;  // of the line, for a title that has something beside it
  const QRectF satz = Satzspiegel(format);
  const double platz = rechts.isEmpty() ? satz.width() : satz.width() * Anteil;
  const Schrift gross = Eingepasst(titel, {.punkt = 15, .fett = true}, platz, 9);
  const double grund = satz.top() + 6;
  const QString gekuerzt = Gekuerzt(titel, gross, platz);
  blatt.Text({satz.left(), grund}, gekuerzt, gross);
  const double rest = satz.width() - Textbreite(gekuerzt, gross) - 8;
  const Schrift klein{.punkt = 11, .fett = true};
  blatt.Text({satz.right(), grund}, Gekuerzt(rechts, klein, rest), klein, Buendig::Rechts);
  blatt.Linie({satz.left(), grund + 2.5}, {satz.right(), grund + 2.5}, 0.35);
}

void Unterschriftzeile(Blatt& blatt, double links, double oben, double breite) {
  constexpr double Anteil = 0.62;
  const Schrift Klein{8};
  const double linie = oben + Unterschrifthoehe - Zeilenhoehe(Klein) - 1;
  const double datum = links + breite * Anteil + 8;
  for (const auto& [text, von, bis] : {std::tuple{u"Unterschrift"_s, links, links + breite * Anteil},
                                       std::tuple{u"Datum"_s, datum, links + breite}}) {
    blatt.Linie({von, linie}, {bis, linie});
    blatt.Text({von, linie + 0.6 + Oberlaenge(Klein)}, text, Klein);
  }
}

QString Papiertext(const std::string& utf8) {
  return QString::fromStdString(utf8).simplified();
}

Bloecke& operator+=(Bloecke& bloecke, Bloecke weitere) {
  std::move(weitere.begin(), weitere.end(), std::back_inserter(bloecke));
  return bloecke;
}

Bloecke Textbloecke(const QString& text, const Schrift& schrift, double einzug, const QString& vorsatz) {
  Bloecke bloecke;
  for (const QString& zeile : Umbrechen(text, schrift, Hochsatz().width() - einzug)) {
    bloecke.push_back(Textzeile(zeile, schrift, einzug));
  }
  Block& erster = bloecke.front();
  erster.malen = [=, zeile = erster.malen](Blatt& blatt, double oben) {
    blatt.Text({Hochsatz().left(), oben + Oberlaenge(schrift)}, vorsatz, schrift);
    zeile(blatt, oben);
  };
  return bloecke;
}

Block Ueberschrift(const QString& text, const QString& rechts) {
  const Schrift fett{.punkt = 11, .fett = true};
  const Schrift klein{8};
  return {.hoehe = Zeilenhoehe(fett) + 1.6,
          .malen =
              [=](Blatt& blatt, double oben) {
                const double grund = oben + Oberlaenge(fett);
                const double platz = Hochsatz().width() - Textbreite(rechts, klein) - 4;
                blatt.Text({Hochsatz().left(), grund}, Gekuerzt(text, fett, platz), fett);
                blatt.Text({Hochsatz().right(), grund}, rechts, klein, Buendig::Rechts);
              },
          .davor = 6,
          .mitNaechstem = true};
}

Bloecke Feldbloecke(QStringView beschriftung, const QString& text) {
  if (text.isEmpty()) return {Schreibzeile(beschriftung.toString())};
  Bloecke bloecke = Textbloecke(text, Grundschrift, Werteinzug, beschriftung.toString());
  bloecke.front().davor = 1.8;
  return bloecke;
}

Block Listenzeile(const QString& links, const QString& rechts) {
  return {.hoehe = 5.6, .malen = [=](Blatt& blatt, double oben) {
            const QRectF satz = Hochsatz();
            const double grund = oben + Oberlaenge(Grundschrift);
            const double bis = satz.right() - Textbreite(rechts, Grundschrift) - 1;
            const QString titel = Gekuerzt(links, Grundschrift, bis - satz.left() - 4);
            blatt.Text({satz.left(), grund}, titel, Grundschrift);
            blatt.Text({satz.right(), grund}, rechts, Grundschrift, Buendig::Rechts);
            Punktreihe(blatt, {satz.left() + Textbreite(titel, Grundschrift) + 1, grund}, bis);
          }};
}

std::vector<Seite> Seitenumbruch(const Bloecke& bloecke, const QString& titel, const QString& rechts,
                                 bool ersteMitKopf) {
  const QRectF satz = Hochsatz();
  std::vector<std::vector<Gesetzt>> seiten(1);
  double oben = satz.top() + (ersteMitKopf ? Seitenkopfhoehe : 0);
  for (auto block = bloecke.begin(); block != bloecke.end();) {
    auto ende = block;
    double hoehe = 0;
    bool weiter = true;
    while (weiter && ende != bloecke.end()) {
      hoehe += ende->hoehe + ende->davor;
      weiter = ende++->mitNaechstem;
    }
    if (oben + hoehe > satz.bottom() && !seiten.back().empty()) {
      seiten.emplace_back();
      oben = satz.top() + Seitenkopfhoehe;
    }
    for (; block != ende; ++block) {
      if (!seiten.back().empty()) oben += block->davor;
      seiten.back().push_back({oben, block->malen});
      oben += block->hoehe;
    }
  }
  std::vector<Seite> fertig;
  for (auto& teile : seiten) {
    const bool kopf = ersteMitKopf || !fertig.empty();
    fertig.push_back({Blattformat::Hoch, [=, teile = std::move(teile)](Blatt& blatt) {
                        if (kopf) Seitenkopf(blatt, Blattformat::Hoch, titel, rechts);
                        for (const Gesetzt& teil : teile) teil.malen(blatt, teil.oben);
                      }});
  }
  return fertig;
}

}  // namespace vesk
