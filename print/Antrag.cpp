#include "print/Dokumente.h"
#include "print/Satz.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr QStringView Titel[] = {u"Angaben", u"zur Gewährleistung des Personenschutzes"};
constexpr QStringView Rechtsgrundlage[] = {
    u"Gemäß §7 (AFuG) in Verbindung mit §6 (TKZulV) werden die Berechnungsunterlagen und ggf. die",
    u"ergänzenden Meßprotokolle von folgender ortsfester Amateurfunkstelle(n) vorgelegt."};

/// The operator ticks one of the boxes by hand.
void WeitereAnlagen(Blatt& blatt, double oben) {
  constexpr double Kasten = 3.6;
  const Schrift Normal{10};
  QPointF punkt(Satzspiegel(Blattformat::Hoch).left(), oben + Oberlaenge(Normal));
  const auto schreiben = [&](const QString& text) {
    blatt.Text(punkt, text, Normal);
    punkt.rx() += Textbreite(text, Normal) + 10;
  };
  schreiben(u"Am Standort sind weitere ortsfeste Sendefunkanlagen vorhanden"_s);
  for (const QString& antwort : {u"ja"_s, u"nein"_s}) {
    blatt.Rahmen({punkt.x(), punkt.y() - Kasten + 0.5, Kasten, Kasten}, 0.2);
    punkt.rx() += Kasten + 2;
    schreiben(antwort);
  }
}

/// For an enclosure that the operator adds.
Block Leerzeile() {
  constexpr double Hoehe = 7;
  return {.hoehe = Hoehe, .malen = [](Blatt& blatt, double oben) {
            const QRectF satz = Satzspiegel(Blattformat::Hoch);
            blatt.Linie({satz.left(), oben + Hoehe - 0.5}, {satz.right(), oben + Hoehe - 0.5});
          }};
}

Bloecke Betreiber(const Station& s) {
  Bloecke bloecke{Ueberschrift(u"Betreiber"_s)};
  for (std::size_t i = 0; i < Benutzerfelder.size(); ++i) {
    if (Benutzerfelder.at(i) == &Benutzer::Standort)
      bloecke.push_back(Ueberschrift(u"Ortsfeste Amateurfunkstelle"_s));
    bloecke += Feldbloecke(Benutzerbeschriftungen.at(i), Papiertext(s.benutzer.*Benutzerfelder.at(i)));
  }
  return bloecke;
}

Bloecke Beigefuegt(const Inhalt& beilagen) {
  constexpr int Leerzeilen = 3;
  Bloecke bloecke{Ueberschrift(u"Beigefügt sind:"_s)};
  for (const auto& [titel, seiten] : beilagen) {
    bloecke.push_back(
        Listenzeile(titel, QString::number(seiten) + (seiten == 1 ? u" Seite"_s : u" Seiten"_s)));
  }
  bloecke.insert(bloecke.end(), Leerzeilen, Leerzeile());
  return bloecke;
}

}  // namespace

Dokument Antrag(const Station& s, const Inhalt& beilagen) {
  Bloecke bloecke;
  bloecke += Textbloecke(Titel[0].toString(), {.punkt = 16, .fett = true});
  bloecke += Textbloecke(Titel[1].toString(), {.punkt = 13, .fett = true});
  bloecke.back().hoehe += 8;
  for (const QStringView zeile : Rechtsgrundlage) bloecke += Textbloecke(zeile.toString());
  bloecke += Betreiber(s);
  bloecke.push_back({.hoehe = 6, .malen = WeitereAnlagen, .davor = 6});
  bloecke += Beigefuegt(beilagen);
  bloecke.push_back({.hoehe = Unterschrifthoehe,
                     .malen =
                         [](Blatt& blatt, double oben) {
                           const QRectF satz = Satzspiegel(Blattformat::Hoch);
                           Unterschriftzeile(blatt, satz.left(), oben, satz.width());
                         },
                     .davor = 6});
  const QString titel = u"Angaben zur Gewährleistung des Personenschutzes"_s;
  return {u"Antrag"_s, Seitenumbruch(bloecke, titel, Papiertext(s.benutzer.Rufzeichen), false)};
}

}  // namespace vesk
