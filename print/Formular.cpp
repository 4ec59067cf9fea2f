#include "print/Formular.h"

#include <algorithm>

#include "print/Satz.h"
#include "station/Spalten.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr double Nummernbreite = 6;
constexpr double Beschriftungsbreite = 55;  // with the number
constexpr double Spaltenbreite = 30;
constexpr double Rand = 1;    // of a cell
constexpr double Achse = 16;  // of the decimal points, from the left end of a cell
constexpr double KleinsteSchrift = 6;
constexpr double Kastenlinie = 0.15;
// Teal as in the cells of the window, but dark enough for white paper.
constexpr QColor Tuerkis(0, 128, 128);
constexpr QColor Grau(112, 112, 112);

constexpr Schrift Zellenschrift{8};

QRectF Quersatz() {
  return Satzspiegel(Blattformat::Quer);
}

double Links(std::size_t spalte) {
  return Quersatz().left() + Beschriftungsbreite + static_cast<double>(spalte) * Spaltenbreite;
}

void Waagrechte(Blatt& blatt, double y, double staerke) {
  blatt.Linie({Quersatz().left(), y}, {Quersatz().right(), y}, staerke);
}

void Senkrechte(Blatt& blatt, double oben, double hoehe) {
  blatt.Linie({Quersatz().left(), oben}, {Quersatz().left(), oben + hoehe});
  for (std::size_t i = 0; i <= AnzahlSpalten; ++i) blatt.Linie({Links(i), oben}, {Links(i), oben + hoehe});
}

/// A cell's text as it is set.
struct Zellensatz {
  QStringList zeilen;
  Schrift schrift;
  bool zahl = false;  ///< stands at the decimal points
};

Zellensatz Setzen(const Gitterzelle& zelle) {
  Schrift schrift = Zellenschrift;
  schrift.farbe = zelle.farbe;
  bool zahl = false;
  zelle.text.toDouble(&zahl);
  if (zahl) {
    const QString ganze = zelle.text.section(u'.', 0, 0);
    const QString bruch = zelle.text.sliced(ganze.size());
    const Schrift links = Eingepasst(ganze, schrift, Achse - Rand, 0);
    const Schrift rechts = Eingepasst(bruch, schrift, Spaltenbreite - Achse - Rand, 0);
    const Schrift& enger = links.punkt < rechts.punkt ? links : rechts;
    if (enger.punkt >= KleinsteSchrift) return {{zelle.text}, enger, true};
  }
  constexpr double Breite = Spaltenbreite - 2 * Rand;
  schrift = Eingepasst(zelle.text, schrift, Breite, KleinsteSchrift);
  return {Umbrechen(zelle.text, schrift, Breite), schrift};
}

/// Some lines of a row.
struct Zeilenstueck {
  Gitterzeile zeile;
  std::array<Zellensatz, AnzahlSpalten> saetze;
  qsizetype von = 0;
  qsizetype bis = 0;
  Formart art = Formart::Eigene;
  double luft = 0;

  double Oben() const { return art == Formart::Eigene && zeile.linie > 0 ? luft + 0.4 : luft; }
  double Hoehe() const {
    double hoehe = Zeilenhoehe(Zellenschrift);
    for (const Zellensatz& satz : saetze) {
      const auto zeilen = static_cast<double>(std::min(bis, satz.zeilen.size()) - von);
      hoehe = std::max(hoehe, zeilen * Zeilenhoehe(satz.schrift));
    }
    return Oben() + hoehe + luft;
  }

  void ZelleMalen(Blatt& blatt, const Zellensatz& satz, double links, double oben) const {
    // Single lines of a row share their base line, whatever their size.
    QPointF punkt(links + (satz.zahl ? Achse : Spaltenbreite / 2),
                  oben + Oberlaenge(satz.zeilen.size() > 1 ? satz.schrift : Zellenschrift));
    for (qsizetype i = von; i < std::min(bis, satz.zeilen.size()); ++i) {
      if (satz.zahl) {
        blatt.Zahl(punkt, satz.zeilen[i], satz.schrift);
      } else {
        blatt.Text(punkt, satz.zeilen[i], satz.schrift, Buendig::Mitte);
      }
      punkt.ry() += Zeilenhoehe(satz.schrift);
    }
  }

  void operator()(Blatt& blatt, double oben) const {
    if (von == 0) {
      const QPointF punkt(Quersatz().left() + Nummernbreite, oben + Oben() + Oberlaenge(Zellenschrift));
      if (zeile.linie > 0) Waagrechte(blatt, oben, zeile.linie);
      blatt.Text(punkt - QPointF(2 * Rand, 0), zeile.nummer, Zellenschrift, Buendig::Rechts);
      blatt.Text(punkt, zeile.beschriftung, Zellenschrift);
    }
    for (std::size_t i = 0; i < saetze.size(); ++i) ZelleMalen(blatt, saetze.at(i), Links(i), oben + Oben());
    if (art == Formart::Eigene) return;
    Senkrechte(blatt, oben, Hoehe());
    Waagrechte(blatt, oben + Hoehe(), Kastenlinie);
  }
};

/// What the head of a column says below its letter.
QStringList Kopfworte(const Spaltenlage& lage) {
  QStringList worte;
  if (lage.rueckwaerts) worte.append(u"aus dem Abstand berechnet"_s);
  if (lage.veraltet) worte.append(u"Abstände nicht aktuell"_s);
  return worte;
}

/// The inputs stand in groups; the distances are set off.
double Linie(int zeile) {
  if (zeile == ZeileOhneHSM) return Hauptlinie;
  return zeile == ZeileFrequenz || zeile == ZeileLeistung ? Nebenlinie : 0;
}

Streifen Buchstabenstreifen(const Spaltenlagen& lagen, Formart art) {
  const Schrift Buchstabe{9, true};
  const Schrift Wort{6.5};
  std::array<QStringList, AnzahlSpalten> worte;
  std::transform(lagen.begin(), lagen.end(), worte.begin(), Kopfworte);
  qsizetype zeilen = 0;
  for (const QStringList& diese : worte) zeilen = std::max(zeilen, diese.size());
  const double hoehe = Zeilenhoehe(Buchstabe) + static_cast<double>(zeilen) * Zeilenhoehe(Wort) + 2 * Rand;
  const auto malen = [=](Blatt& blatt, double oben) {
    Waagrechte(blatt, oben, Hauptlinie);
    for (std::size_t spalte = 0; spalte < AnzahlSpalten; ++spalte) {
      QPointF punkt(Links(spalte) + Spaltenbreite / 2, oben + Rand + Oberlaenge(Buchstabe));
      blatt.Text(punkt, QChar::fromLatin1(static_cast<char>('A' + spalte)), Buchstabe, Buendig::Mitte);
      for (const QString& wort : worte.at(spalte)) {
        punkt.ry() += Zeilenhoehe(Wort);
        blatt.Text(punkt, wort, Wort, Buendig::Mitte);
      }
    }
    if (art == Formart::Behoerde) Senkrechte(blatt, oben, hoehe);
    Waagrechte(blatt, oben + hoehe, Hauptlinie);
  };
  return {hoehe, malen, true};
}

}  // namespace

Streifenfolge Gitterstreifen(const Gitterzeile& zeile, Formart art, double luft) {
  constexpr qsizetype ZeilenJeStueck = 20;
  Zeilenstueck stueck{.zeile = zeile, .saetze = {}, .art = art, .luft = luft};
  std::transform(zeile.zellen.begin(), zeile.zellen.end(), stueck.saetze.begin(), Setzen);
  qsizetype zeilen = 1;
  for (const Zellensatz& satz : stueck.saetze) zeilen = std::max(zeilen, satz.zeilen.size());
  Streifenfolge folge;
  for (; stueck.von < zeilen; stueck.von = stueck.bis) {
    stueck.bis = std::min(zeilen, stueck.von + ZeilenJeStueck);
    folge.push_back({stueck.Hoehe(), stueck, true});
  }
  return folge;
}

Streifenfolge Datenblattstreifen(const Station& s, const Spaltenlagen& lagen, Formart art) {
  Streifenfolge folge;
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    const std::string_view name = Zeilenarten.at(static_cast<std::size_t>(zeile) - 1).beschriftung;
    Gitterzeile gitter{.nummer = QString::number(zeile),
                       .beschriftung = QString::fromUtf8(name.data(), qsizetype(name.size())),
                       .linie = Linie(zeile)};
    for (std::size_t i = 0; i < lagen.size(); ++i) {
      Gitterzelle& zelle = gitter.zellen.at(i);
      zelle.text = QString::fromStdString(Zelle(s, static_cast<int>(i) + 1, static_cast<Zeile>(zeile)));
      if (art == Formart::Behoerde) continue;
      if (lagen.at(i).rueckwaerts) zelle.farbe = Tuerkis;
      if (lagen.at(i).veraltet && zeile >= ZeileOhneHSM) zelle.farbe = Grau;
    }
    Anhaengen(folge, Gitterstreifen(gitter, art, art == Formart::Eigene ? 0.5 : 1.9));
  }
  return folge;
}

Dokument Formular(const QString& titel, const Station& s, const Spaltenlagen& lagen, Formart art,
                  const Streifenfolge& folge) {
  using Platz = std::pair<double, Streifen>;
  const double anfang = Quersatz().top() + Seitenkopfhoehe;
  const Streifen buchstaben = Buchstabenstreifen(lagen, art);
  std::vector<std::vector<Platz>> seiten(1);
  double y = anfang;
  const auto setzen = [&](const Streifen& streifen) {
    seiten.back().emplace_back(y, streifen);
    y += streifen.hoehe;
  };
  for (const Streifen& streifen : folge) {
    const auto ohneBuchstaben = [&] {
      return streifen.imGitter && (seiten.back().empty() || !seiten.back().back().second.imGitter);
    };
    const double braucht = streifen.hoehe + (ohneBuchstaben() ? buchstaben.hoehe : 0);
    if (y + braucht > Quersatz().bottom() && !seiten.back().empty()) {
      seiten.emplace_back();
      y = anfang;
    }
    if (ohneBuchstaben()) setzen(buchstaben);
    setzen(streifen);
  }
  Dokument dokument{titel, {}};
  const QString rufzeichen = Papiertext(s.benutzer.Rufzeichen);
  for (const std::vector<Platz>& seite : seiten) {
    dokument.seiten.push_back({Blattformat::Quer, [=](Blatt& blatt) {
                                 Seitenkopf(blatt, Blattformat::Quer, titel, rufzeichen);
                                 for (const auto& [oben, streifen] : seite) streifen.malen(blatt, oben);
                               }});
  }
  return dokument;
}

}  // namespace vesk
