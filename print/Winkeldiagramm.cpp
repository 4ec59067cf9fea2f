#include <QFont>
#include <QPainter>
#include <algorithm>
#include <array>

#include "engine/Zahlen.h"
#include "print/Dokumente.h"
#include "print/Polardiagramm.h"
#include "print/Satz.h"
#include "station/Winkel.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

static_assert(AnzahlSektoren == PolarSektoren);

constexpr double Bildradius = 80;                // mm; 8 m at 1 : 100
constexpr QColor Gitterfarbe(0x80, 0x80, 0x80);  // lighter lines break up into dots in print
constexpr std::size_t ErsterAbstand = 3;         // column of the table

struct Abstandsart {
  QStringView name;
  QStringView titel;
};

/// In the order of Winkelkurve.
constexpr std::array<Abstandsart, 3> Abstandsarten = {{
    {u"ohne HSM", u"Sicherheitsabstände ohne HSM"},
    {u"HSM 306", u"Sicherheitsabstände mit HSM gemäß VfG 306"},
    {u"HSM VDE", u"Sicherheitsabstände mit HSM gemäß DIN VDE 0848 Teil 3-1"},
}};

struct Tabellenspalte {
  QString kopf;
  bool fett = false;
  std::array<QString, AnzahlSektoren> texte{};
};

struct Angabe {
  QStringView beschriftung;
  QString text;
};

/// What the page shows.
struct Diagrammblatt {
  QString bezug;
  QString ebene;
  std::array<Angabe, 4> angaben;
  std::array<Tabellenspalte, ErsterAbstand + Abstandsarten.size()> tabelle;
  QString bildtitel;
  Polardaten bild;
  QString hinweis;  ///< that the wanted scale is not the one drawn
};

QString Ebenentext(Winkelebene ebene) {
  return ebene == Winkelebene::Keine ? QString() : QString::fromUtf8(Ebenentitel(ebene));
}

// ------------------------------------------------------------------------------------------------ scale

/// A distance in m is drawn within the rim.
bool Passt(double abstand, double massstab) {
  return !(abstand * 1000 > Bildradius * massstab);
}

/// The largest of the usual scales with which `abstand` is drawn within the rim.
double UeblicherMassstab(double abstand) {
  for (const double massstab : {50., 100., 200., 250., 500.}) {
    if (Passt(abstand, massstab)) return massstab;
  }
  double zehner = 1000;
  while (true) {
    for (const double stufe : {1., 2., 5.}) {
      if (Passt(abstand, stufe * zehner)) return stufe * zehner;
    }
    zehner *= 10;
  }
}

/// As typed, a single has some seven digits.
QString Massstabstext(double zahl) {
  constexpr double Million = 1e6;
  return zahl < Million ? QString::number(zahl, 'g', 7) : QString::number(zahl, 'f', 0);
}

// --------------------------------------------------------------------------------------------- contents

QString Kurztext(const std::string& text) {
  constexpr qsizetype Hoechstens = 1200;  // more than there is room for
  return Papiertext(text).left(Hoechstens);
}

std::array<Tabellenspalte, 6> Tabelle(const Winkelblatt& blatt, std::size_t art) {
  std::array<Tabellenspalte, 6> tabelle{{{u"Winkel [°]"_s},
                                         {u"rel. Dämpfung"_s},
                                         {u"EIRP [W]"_s},
                                         {u"ohne HSM [m]"_s},
                                         {u"HSM 306 [m]"_s},
                                         {u"HSM VDE [m]"_s}}};
  const auto zahl = [](std::optional<float> wert) {
    return wert ? QString::fromStdString(Formatieren(*wert)) : QString();
  };
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    const Sektor& sektor = blatt.tabelle.sektoren[i];
    tabelle[0].texte.at(i) = QString::fromStdString(Sektorname(i));
    tabelle[1].texte.at(i) = Kurztext(blatt.daempfung.at(i));
    tabelle[2].texte.at(i) = zahl(sektor.EIRP);
    for (std::size_t a = 0; a < Abstandsarten.size(); ++a) {
      tabelle.at(ErsterAbstand + a).texte.at(i) = zahl(Sektorabstand(sektor, Winkelkurve(a)));
    }
  }
  tabelle.at(ErsterAbstand + art).fett = true;
  return tabelle;
}

Diagrammblatt Inhalte(const Winkelblatt& blatt, std::size_t art, Massstabswunsch gewuenscht) {
  Polarkurve kurve;
  std::transform(blatt.tabelle.sektoren.begin(), blatt.tabelle.sektoren.end(), kurve.werte.begin(),
                 [art](const Sektor& sektor) { return Sektorabstand(sektor, Winkelkurve(art)); });
  const double hoechster = std::max_element(kurve.werte.begin(), kurve.werte.end())->value_or(0);
  const bool passt = gewuenscht && Passt(hoechster, *gewuenscht);
  const double massstab = passt ? *gewuenscht : UeblicherMassstab(hoechster);
  QString hinweis;
  if (gewuenscht && !passt) {
    hinweis = u"Im Maßstab 1:"_s + Massstabstext(*gewuenscht) + u" reicht das Bild über das Blatt hinaus."_s;
  }
  return {.bezug = Papiertext(blatt.bezug),
          .ebene = Ebenentext(blatt.ebene),
          .angaben = {{{u"Antenne:", Kurztext(blatt.antenne)},
                       {u"Gewinn [dBi]:", Kurztext(blatt.gewinn)},
                       {u"Frequenzband [MHz]:", Kurztext(blatt.frequenz)},
                       {u"Antenneneingangsleistung [W]:", Kurztext(blatt.AntEinPWR)}}},
          .tabelle = Tabelle(blatt, art),
          .bildtitel = Abstandsarten.at(art).titel.toString() + u" in 10° Winkeln.  Maßstab 1:"_s +
                       Massstabstext(massstab) + u"  (1cm = "_s + Massstabstext(massstab / 100) + u"m)"_s,
          .bild = {.titel = {},
                   .einheit = u"m"_s,
                   .kurven = {kurve},
                   .massstab = Polarmassstab{1000 / massstab * Blatt::Einheit, Bildradius * Blatt::Einheit}},
          .hinweis = hinweis};
}

// --------------------------------------------------------------------------------------------- painting

/// No more than `zeilen` lines; what does not fit is left out.
QStringList Gekuerzt(const QString& text, const Schrift& schrift, double breite, qsizetype zeilen) {
  QStringList alle = Umbrechen(text, schrift, breite);
  if (alle.size() <= zeilen) return alle;
  alle = alle.first(zeilen);
  alle.last() = Gekuerzt(alle.last() + u" …"_s, schrift, breite);
  return alle;
}

double AngabenMalen(Blatt& blatt, const Diagrammblatt& d, double oben) {
  const Schrift Grundschrift{10};
  constexpr double Einzug = 60;
  constexpr qsizetype Zeilen = 3;
  const QRectF satz = Satzspiegel(Blattformat::Hoch);
  if (!d.ebene.isEmpty()) {
    blatt.Text({satz.left(), oben + Oberlaenge(Grundschrift)}, d.ebene, {.punkt = 10, .fett = true});
    oben += 7;
  }
  for (const Angabe& angabe : d.angaben) {
    const double breite = satz.width() - Einzug;
    const Schrift schrift = Eingepasst(angabe.text, Grundschrift, breite, 8);
    double grund = oben + Oberlaenge(Grundschrift);
    blatt.Text({satz.left(), grund}, angabe.beschriftung.toString(), Grundschrift);
    for (const QString& zeile : Gekuerzt(angabe.text, schrift, breite, Zeilen)) {
      blatt.Text({satz.left() + Einzug, grund}, zeile, schrift);
      oben = grund;
      grund += Zeilenhoehe(schrift);
    }
    oben += 2;
  }
  return oben;
}

/// A figure that one can read when it is made to fit its column; 42 digits are the longest of the program's
/// own.
bool IstZahl(const QString& text) {
  constexpr qsizetype Hoechstens = 45;
  bool zahl = false;
  text.toDouble(&zahl);
  return zahl && text.size() <= Hoechstens;
}

/// The digits before, and those behind the decimal point, with their widths in mm.
struct Ziffernbreiten {
  double vor = 0;
  double nach = 0;
};
Ziffernbreiten Breiten(const Tabellenspalte& spalte, const Schrift& schrift) {
  Ziffernbreiten breiten;
  for (const QString& text : spalte.texte) {
    if (!IstZahl(text)) continue;
    const double vor = Textbreite(text.section(u'.', 0, 0), schrift);
    breiten.vor = std::max(breiten.vor, vor);
    breiten.nach = std::max(breiten.nach, Textbreite(text, schrift) - vor);
  }
  return breiten;
}

void SpalteMalen(Blatt& blatt, const Tabellenspalte& spalte, double mitte, double breite, double grund,
                 double zeilenhoehe) {
  // One size for the whole column, so that its points stand one below another.
  Schrift schrift{.punkt = 9, .fett = spalte.fett};
  const Ziffernbreiten voll = Breiten(spalte, schrift);
  schrift.punkt *= std::min(1., breite / (voll.vor + voll.nach + 0.1));
  const Ziffernbreiten breiten = Breiten(spalte, schrift);
  for (const QString& text : spalte.texte) {
    if (IstZahl(text)) {
      blatt.Zahl({mitte + (breiten.vor - breiten.nach) / 2, grund}, text, schrift);
    } else {
      blatt.Einzeiler({mitte, grund}, breite, text, {.punkt = 9, .fett = spalte.fett}, 6, Buendig::Mitte);
    }
    grund += zeilenhoehe;
  }
}

double TabelleMalen(Blatt& blatt, const Diagrammblatt& d, double oben) {
  constexpr double Kopfhoehe = 7;
  constexpr double Hoehe = 5.6;
  constexpr double Grund = 1.8;  // base line above the foot of a row
  const QRectF satz = Satzspiegel(Blattformat::Hoch);
  const double breite = satz.width() / static_cast<double>(d.tabelle.size());
  const double kopf = oben + Kopfhoehe;
  double mitte = satz.left() + breite / 2;
  for (const Tabellenspalte& spalte : d.tabelle) {
    blatt.Text({mitte, kopf - Grund}, spalte.kopf, {.punkt = 9, .fett = true}, Buendig::Mitte);
    SpalteMalen(blatt, spalte, mitte, breite - 2, kopf + Hoehe - Grund, Hoehe);
    mitte += breite;
  }
  const double unten = kopf + Hoehe * AnzahlSektoren;
  blatt.Linie({satz.left(), kopf}, {satz.right(), kopf}, 0.35);
  for (std::size_t i = 1; i < AnzahlSektoren; ++i) {
    const double y = kopf + Hoehe * static_cast<double>(i);
    blatt.Linie({satz.left(), y}, {satz.right(), y}, 0.1);
  }
  blatt.Linie({satz.left(), unten}, {satz.right(), unten}, 0.2);
  return unten;
}

void BildMalen(Blatt& blatt, const Diagrammblatt& d, double oben) {
  constexpr double Bildhoehe = Bildradius + 20;
  const Schrift Klein{8};
  const QRectF satz = Satzspiegel(Blattformat::Hoch);
  const Schrift titel{.punkt = 10, .fett = true};
  blatt.Einzeiler({satz.center().x(), oben + Oberlaenge(titel)}, satz.width(), d.bildtitel, titel, 5,
                  Buendig::Mitte);
  oben += 7;
  blatt.Maler().setFont(Papierschrift(Klein));
  polardiagramm::paint(
      blatt.Maler(),
      {QPointF(satz.left(), oben) * Blatt::Einheit, QSizeF(satz.width(), Bildhoehe) * Blatt::Einheit}, d.bild,
      {.gitter = Gitterfarbe});
  oben += Bildhoehe + 1;
  oben +=
      blatt.Absatz({satz.left(), oben}, satz.width(),
                   u"Die Antenne steht im Mittelpunkt der Ringe, 0° ist ihre Hauptstrahlrichtung; das Bild "
                   u"ist zu ihr spiegelbildlich ergänzt. Für den Bereich hinter 90° liegen keine Angaben "
                   u"vor. Alle Abstände gelten für die volle Leistung, ohne Faktor für Sendeart."_s,
                   Klein);
  blatt.Text({satz.left(), oben + Oberlaenge(Klein)}, d.hinweis, {.punkt = 8, .fett = true});
}

}  // namespace

Dokument Winkeldiagramm(const Winkelblatt& blatt, Winkelkurve kurve, Massstabswunsch massstab) {
  const auto art = static_cast<std::size_t>(kurve);
  const Abstandsart& abstaende = Abstandsarten.at(art);
  Dokument dokument{u"Winkeldiagramm "_s + abstaende.name.toString(), {}};
  if (!blatt.bezug.empty()) dokument.titel += u" ("_s + Papiertext(blatt.bezug) + u')';
  const auto& sektoren = blatt.tabelle.sektoren;
  const auto vorhanden = [kurve](const Sektor& sektor) { return Sektorabstand(sektor, kurve).has_value(); };
  if (!std::all_of(sektoren.begin(), sektoren.end(), vorhanden) || sektoren.empty()) return dokument;
  dokument.seiten.push_back({Blattformat::Hoch, [d = Inhalte(blatt, art, massstab)](Blatt& papier) {
                               Seitenkopf(papier, Blattformat::Hoch, u"Winkeldämpfung in 10° - Schritten"_s,
                                          d.bezug);
                               double oben = Satzspiegel(Blattformat::Hoch).top() + Seitenkopfhoehe;
                               oben = AngabenMalen(papier, d, oben);
                               oben = TabelleMalen(papier, d, oben + 3);
                               BildMalen(papier, d, oben + 8);
                             }});
  return dokument;
}

}  // namespace vesk
