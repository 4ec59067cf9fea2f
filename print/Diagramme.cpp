#include "engine/Zahlen.h"
#include "print/Dokumente.h"
#include "print/Kurven.h"
#include "print/Satz.h"
#include "station/Datenblatt.h"
#include "station/Rechnung.h"
#include "station/Spalten.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Two charts one below the other.
Seite Bilderseite(const QString& titel, const QString& rechts, const std::array<Kurvenbild, 2>& bilder) {
  return {Blattformat::Hoch, [=](Blatt& blatt) {
            Seitenkopf(blatt, Blattformat::Hoch, titel, rechts);
            QRectF platz = Satzspiegel(Blattformat::Hoch);
            platz.setTop(platz.top() + Seitenkopfhoehe);
            constexpr double Abstand = 8;
            const double hoehe = (platz.height() - Abstand) / 2;
            for (const Kurvenbild& bild : bilder) {
              KurvenbildMalen(blatt, {platz.topLeft(), QSizeF(platz.width(), hoehe)}, bild);
              platz.setTop(platz.top() + hoehe + Abstand);
            }
          }};
}

struct Tabellenspalte {
  QStringView kopf;
  QStringView einheit;
  double breite;  ///< mm
};
constexpr std::array<Tabellenspalte, 7> Spalten = {{
    {u"Band", u"", 13},
    {u"Frequenz", u"[MHz]", 16},
    {u"Gewinn", u"[dBi]", 14},
    {u"Verluste", u"[dB]", 14},
    {u"ohne HSM", u"", 18},
    {u"HSM VDE", u"", 17},
    {u"HSM 306", u"", 17},
}};
constexpr double Tabellenluft = 3;

std::array<QString, Spalten.size()> Zellen(const Bandzeile& zeile) {
  const auto text = [](const std::string& utf8) { return QString::fromStdString(utf8); };
  const auto zahl = [&](Feld feld) {
    const std::string wert = zeile.texte[feld].value_or("");
    return wert.empty() ? u"–"_s : text(wert);
  };
  return {QString::fromLatin1(zeile.band->name),
          text(zeile.frequenz),
          text(zeile.gewinn),
          text(zeile.verluste),
          zahl(Feld::AusgabeOhneHSM),
          zahl(Feld::AusgabeHSMvde),
          zahl(Feld::AusgabeHSM306)};
}

/// The first column begins, the others end at their places. Returns where the next column begins.
template <typename Zellentext>
double ZellenMalen(Blatt& blatt, QPointF grund, const Schrift& schrift, Zellentext text) {
  for (std::size_t i = 0; i < Spalten.size(); ++i) {
    const double breite = Spalten.at(i).breite;
    blatt.Einzeiler(grund + QPointF(i == 0 ? 0 : breite, 0), breite - 1, text(i), schrift, 3,
                    i == 0 ? Buendig::Links : Buendig::Rechts);
    grund.rx() += breite;
  }
  return grund.x() + Tabellenluft;
}

/// One line, or two small ones.
void HinweisMalen(Blatt& blatt, QPointF ecke, double breite, double hoehe, const QString& text) {
  const Schrift schrift = Eingepasst(text, {8}, breite, 5.5);
  const QStringList zeilen = Umbrechen(text, schrift, breite, 2);
  const double oben = (hoehe - static_cast<double>(zeilen.size()) * Zeilenhoehe(schrift)) / 2;
  blatt.Absatz(ecke + QPointF(0, oben), breite, zeilen.join(u'\n'), schrift);
}

/// Returns its height.
double Bandtabelle(Blatt& blatt, QPointF ecke, const std::vector<Bandzeile>& zeilen, bool abstand) {
  constexpr double Kopfhoehe = 8.5;
  constexpr double Zeilenhoch = 5;
  constexpr double Grund = 3.4;
  const Schrift kopf{.punkt = 8, .fett = true};
  const double rechts = Satzspiegel(Blattformat::Hoch).right();
  ZellenMalen(blatt, ecke + QPointF(0, Grund), kopf,
              [](std::size_t i) { return Spalten.at(i).kopf.toString(); });
  const double hinweis =
      ZellenMalen(blatt, ecke + QPointF(0, Grund + Zeilenhoehe(kopf)), kopf, [&](std::size_t i) {
        const QString einheit = Spalten.at(i).einheit.toString();
        return !einheit.isEmpty() || i == 0 ? einheit : abstand ? u"[m]"_s : u"[W]"_s;
      });
  blatt.Text({hinweis, ecke.y() + Grund}, u"Hinweis"_s, kopf);
  double y = ecke.y() + Kopfhoehe;
  blatt.Linie({ecke.x(), y}, {rechts, y}, 0.35);
  for (const Bandzeile& band : zeilen) {
    const auto zellen = Zellen(band);
    ZellenMalen(blatt, {ecke.x(), y + Grund}, {8}, [&](std::size_t i) { return zellen.at(i); });
    HinweisMalen(blatt, {hinweis, y}, rechts - hinweis, Zeilenhoch, QString::fromStdString(band.hinweis));
    y += Zeilenhoch;
    blatt.Linie({ecke.x(), y}, {rechts, y}, 0.1);
  }
  return y - ecke.y();
}

Seite Baenderseite(const Station& s, const Kataloge& k, const QString& rechts) {
  const std::vector<Bandzeile> zeilen = AlleBaender(s, k);
  const bool abstand = s.modus == Modus::Abstand;
  QString eingaben = abstand ? u"Sendeleistung %1 W. "_s : u"Sicherheitsabstand %1 m. "_s;
  eingaben = eingaben.arg(Papiertext(s.werte.PWRText)) + Papiertext(Bandgrundlage(s, k));
  return {Blattformat::Hoch, [=, bild = BaenderbildVon(s, zeilen)](Blatt& blatt) {
            Seitenkopf(blatt, Blattformat::Hoch, u"Alle Bänder"_s, rechts);
            QRectF platz = Satzspiegel(Blattformat::Hoch);
            platz.setTop(platz.top() + Seitenkopfhoehe);
            platz.setTop(platz.top() + blatt.Absatz(platz.topLeft(), platz.width(), eingaben) + 2);
            platz.setTop(platz.top() + Bandtabelle(blatt, platz.topLeft(), zeilen, abstand) + 6);
            BaenderbildMalen(blatt, platz, bild);
          }};
}

/// The main window as if the column's inputs stood there.
Station SpalteAlsEingabe(const Station& s, int spalte) {
  Station t = s;
  t.werte = Spaltenwerte(s, spalte);
  t.modus = Modus::Abstand;
  if (const auto art = HaltendeArt(s, spalte)) t.einstellungen.AFu = art->afu;
  return t;
}

Seite Leistungsseite(const Station& s, const Kataloge& k, const QString& titel, const QString& rechts) {
  return Bilderseite(
      titel, rechts,
      {Diagramm(s, k, Diagrammart::AbstandUeberLeistung), Diagramm(s, k, Diagrammart::LeistungUeberAbstand)});
}

}  // namespace

Dokument Diagramme(const Station& s, const Kataloge& k) {
  const QString rufzeichen = Papiertext(s.benutzer.Rufzeichen);
  const QString titel = u"Abstand und Leistung"_s;
  Dokument dokument{u"Diagramme"_s, {}};
  if (EingabenVollstaendig(s)) {
    dokument.seiten.push_back(Baenderseite(s, k, rufzeichen));
    dokument.seiten.push_back(Leistungsseite(s, k, titel, rufzeichen));
  } else {
    for (const int spalte : BenutzteSpalten(s)) {
      const Station t = SpalteAlsEingabe(s, spalte);
      if (!EingabenVollstaendig(t)) continue;
      const QChar buchstabe = QChar::fromLatin1(Spaltenbuchstabe(static_cast<std::int16_t>(spalte)));
      dokument.seiten.push_back(Leistungsseite(t, k, titel + u", Spalte "_s + buchstabe, rufzeichen));
    }
  }
  dokument.seiten.push_back(
      Bilderseite(u"Kabel und Grenzwerte"_s, rufzeichen,
                  {Diagramm(s, k, Diagrammart::Kabel), Diagramm(s, k, Diagrammart::Grenzwerte)}));
  return dokument;
}

}  // namespace vesk
