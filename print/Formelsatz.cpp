#include "print/Formelsatz.h"

#include <QPainter>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

using Art = Ausdruck::Art;

// Shares of the size of the letters.
constexpr double Versal = 0.72;  // height of a digit
constexpr double Tiefe = 0.10;   // what a line keeps free below; only few letters reach deeper
constexpr double Klammertiefe = 0.21;
constexpr double Klammerhoehe = 0.94;
constexpr double Achse = 0.26;  // height of the minus sign, on which the fraction bar lies
constexpr double Klein = 0.72;  // indices and exponents
constexpr double Bruchluft = 0.18;
constexpr double Bruchueberstand = 0.12;
constexpr double Duenn = 0.17;       // space before a unit
constexpr double Zeilenluft = 0.45;  // between the lines of a broken equation

double Geviert(double punkt) {
  constexpr double MillimeterJePunkt = 25.4 / 72;
  return punkt * MillimeterJePunkt;
}

Kasten Textkasten(const QString& text, const Schrift& schrift) {
  const double em = Geviert(schrift.punkt);
  return {.breite = Textbreite(text, schrift),
          .ueber = Versal * em,
          .unter = Tiefe * em,
          .text = text,
          .schrift = schrift};
}

/// Takes up a part whose place is set.
void Aufnehmen(Kasten& ganzes, Kasten teil) {
  ganzes.breite = std::max(ganzes.breite, teil.ort.x() + teil.breite);
  ganzes.ueber = std::max(ganzes.ueber, teil.ueber - teil.ort.y());
  ganzes.unter = std::max(ganzes.unter, teil.unter + teil.ort.y());
  ganzes.teile.push_back(std::move(teil));
}

/// Puts a part behind the others, `tiefer` than the base line.
void Anfuegen(Kasten& zeile, Kasten teil, double tiefer = 0) {
  teil.ort = {zeile.breite, tiefer};
  Aufnehmen(zeile, std::move(teil));
}

Kasten Reihe(std::vector<Kasten> teile) {
  Kasten zeile;
  for (Kasten& teil : teile) Anfuegen(zeile, std::move(teil));
  return zeile;
}

QString Zahltext(const Groesse& groesse) {
  QString text = QString::fromStdString(groesse.zahl);
  if (text.startsWith(u'-')) text[0] = u'\u2212';
  return text;
}

/// Sets one side of an equation. In an exponent and in a fraction it is flat: further fractions have a slash
/// instead of a bar.
class Formelsatz {
 public:
  Formelsatz(Einsatz einsatz, double punkt, bool flach = false)
      : einsatz_(einsatz), punkt_(punkt), em_(Geviert(punkt)), flach_(flach) {}

  Kasten Setzen(const Ausdruck& a) const;

 private:
  enum class Rang { Summe, Produkt, Potenz, Einfach };
  Rang RangVon(const Ausdruck& a) const;
  bool BeginntMitMinus(const Ausdruck& a) const;

  Kasten Zeichen(const QString& text) const { return Textkasten(text, {.punkt = punkt_}); }
  /// In brackets when it binds less than `rang`, or, as it is not the `erster` part, begins with a sign.
  Kasten Teil(const Ausdruck& a, Rang rang, bool erster = true) const;
  Kasten Folge(const Ausdruck& a, const QString& zeichen, Rang erster, Rang weitere) const;
  Kasten Klammern(Kasten inhalt) const;
  Kasten Bruch(const Ausdruck& a) const;
  Kasten Wurzel(const Ausdruck& a) const;
  Kasten Potenz(const Ausdruck& a) const;

  Einsatz einsatz_;
  double punkt_;
  double em_;
  bool flach_;
};

Formelsatz::Rang Formelsatz::RangVon(const Ausdruck& a) const {
  if (a.art == Art::Groesse) return BeginntMitMinus(a) ? Rang::Summe : Rang::Einfach;
  if (a.art == Art::Summe || a.art == Art::Differenz) return Rang::Summe;
  return a.art == Art::Produkt || (a.art == Art::Bruch && flach_) ? Rang::Produkt : Rang::Potenz;
}

bool Formelsatz::BeginntMitMinus(const Ausdruck& a) const {
  if (a.art == Art::Groesse) {
    return (einsatz_ == Einsatz::Zahlen || a.groesse.symbol.empty()) && a.groesse.zahl.starts_with('-');
  }
  if (RangVon(a) > Rang::Produkt) return false;
  const Ausdruck& erster = a.teile.front();
  const bool offen = erster.art == Art::Groesse || RangVon(erster) >= RangVon(a);
  return offen && BeginntMitMinus(erster);
}

Kasten Formelsatz::Setzen(const Ausdruck& a) const {
  switch (a.art) {
    case Art::Groesse:
      if (einsatz_ == Einsatz::Symbole && !a.groesse.symbol.empty()) return Symbolkasten(a.groesse, punkt_);
      return Zeichen(Zahltext(a.groesse));
    case Art::Summe:
      return Folge(a, u" + "_s, Rang::Summe, Rang::Summe);
    case Art::Differenz:
      return Folge(a, u" \u2212 "_s, Rang::Summe, Rang::Produkt);
    case Art::Produkt:
      return Folge(a, u"·"_s, Rang::Produkt, flach_ ? Rang::Potenz : Rang::Produkt);
    case Art::Bruch:
      return flach_ ? Folge(a, u"/"_s, Rang::Produkt, Rang::Potenz) : Bruch(a);
    case Art::Wurzel:
      return Wurzel(a);
    case Art::Potenz:
      return Potenz(a);
    case Art::Logarithmus:
      return Reihe({Zeichen(u"ln"_s), Klammern(Setzen(a.teile.front()))});
  }
  return {};
}

Kasten Formelsatz::Teil(const Ausdruck& a, Rang rang, bool erster) const {
  // A sign at the very front needs no brackets, whatever follows it.
  const bool vorzeichen = a.art == Art::Groesse && erster && rang <= Rang::Produkt;
  const bool klammern = erster ? RangVon(a) < rang && !vorzeichen : RangVon(a) < rang || BeginntMitMinus(a);
  Kasten kasten = Setzen(a);
  return klammern ? Klammern(std::move(kasten)) : kasten;
}

Kasten Formelsatz::Folge(const Ausdruck& a, const QString& zeichen, Rang erster, Rang weitere) const {
  Kasten zeile = Reihe({Teil(a.teile.front(), erster)});
  for (std::size_t i = 1; i < a.teile.size(); ++i) {
    Anfuegen(zeile, Zeichen(zeichen));
    Anfuegen(zeile, Teil(a.teile[i], weitere, false));
  }
  return zeile;
}

Kasten Formelsatz::Klammern(Kasten inhalt) const {
  constexpr double AbHoehe = 1.3;  // an index alone lets them as they are
  const double hoehe = (inhalt.ueber + inhalt.unter) / em_;
  Kasten auf = Zeichen(u"("_s);
  Kasten zu = Zeichen(u")"_s);
  double tiefer = 0;
  if (hoehe > AbHoehe) {
    auf.streckung = zu.streckung = hoehe / Klammerhoehe;
    tiefer = inhalt.unter - Klammertiefe * auf.streckung * em_;
  }
  Kasten zeile;
  Anfuegen(zeile, std::move(auf), tiefer);
  Anfuegen(zeile, std::move(inhalt));
  Anfuegen(zeile, std::move(zu), tiefer);
  return zeile;
}

Kasten Formelsatz::Bruch(const Ausdruck& a) const {
  const Formelsatz flach(einsatz_, punkt_, true);
  Kasten zaehler = flach.Setzen(a.teile.at(0));
  Kasten nenner = flach.Setzen(a.teile.at(1));
  const double balken = std::max(zaehler.breite, nenner.breite) + 2 * Bruchueberstand * em_;
  const double rand = Bruchueberstand * em_;  // between neighbouring bars
  const double y = -Achse * em_;
  zaehler.ort = {rand + (balken - zaehler.breite) / 2, y - Bruchluft * em_ - zaehler.unter};
  nenner.ort = {rand + (balken - nenner.breite) / 2, y + Bruchluft * em_ + nenner.ueber};
  Kasten bruch{.breite = balken + 2 * rand, .striche = {{rand, y, rand + balken, y}}};
  Aufnehmen(bruch, std::move(zaehler));
  Aufnehmen(bruch, std::move(nenner));
  return bruch;
}

Kasten Formelsatz::Wurzel(const Ausdruck& a) const {
  Kasten inhalt = Setzen(a.teile.front());
  const double oben = -inhalt.ueber - 0.14 * em_;
  const double ende = 0.52 * em_ + inhalt.breite + 0.08 * em_;
  const QPointF spitze(0.28 * em_, inhalt.unter);
  const QPointF ecke(0.46 * em_, oben);
  const QPointF haken(0.12 * em_, -0.34 * em_);
  inhalt.ort = {0.52 * em_, 0};
  Kasten wurzel{.breite = ende + 0.06 * em_, .ueber = -oben};
  wurzel.striche = {{{0, -0.28 * em_}, haken}, {haken, spitze}, {spitze, ecke}, {ecke, {ende, oben}}};
  Aufnehmen(wurzel, std::move(inhalt));
  return wurzel;
}

Kasten Formelsatz::Potenz(const Ausdruck& a) const {
  constexpr double Mindesthub = 0.4;
  constexpr double Ueberdeckung = 0.35;  // of the exponent with a high base
  Kasten basis = Reihe({Teil(a.teile.at(0), Rang::Einfach)});
  const double hub = std::max(Mindesthub * em_, basis.ueber - Ueberdeckung * em_);
  Anfuegen(basis, Formelsatz(einsatz_, punkt_ * Klein, true).Setzen(a.teile.at(1)), -hub);
  return basis;
}

bool HatSymbole(const Ausdruck& a) {
  return !a.groesse.symbol.empty() || std::any_of(a.teile.begin(), a.teile.end(), HatSymbole);
}

/// Number and unit.
Kasten Wertkasten(const Groesse& groesse, double punkt) {
  Kasten kasten = Reihe({Textkasten(Zahltext(groesse), {.punkt = punkt})});
  if (groesse.einheit.empty()) return kasten;
  kasten.breite += Duenn * Geviert(punkt);
  Anfuegen(kasten, Textkasten(QString::fromStdString(groesse.einheit), {.punkt = punkt}));
  return kasten;
}

/// The sides behind the first one, each with its "=". A side that reads like its neighbour is left out.
std::vector<Kasten> RechteSeiten(const Gleichung& g, double punkt) {
  const bool nurZahl = g.formel.art == Art::Groesse && g.formel.groesse.zahl == g.ergebnis.zahl;
  std::vector<Kasten> seiten;
  if (HatSymbole(g.formel)) seiten.push_back(Formelkasten(g.formel, Einsatz::Symbole, punkt));
  if (!nurZahl) seiten.push_back(Formelkasten(g.formel, Einsatz::Zahlen, punkt));
  seiten.push_back(Wertkasten(g.ergebnis, punkt));
  for (Kasten& seite : seiten) {
    seite = Reihe({Textkasten(u" = "_s, {.punkt = punkt}), std::move(seite)});
  }
  return seiten;
}

}  // namespace

Kasten Formelkasten(const Ausdruck& formel, Einsatz einsatz, double punkt) {
  return Formelsatz(einsatz, punkt).Setzen(formel);
}

Kasten Symbolkasten(const Groesse& groesse, double punkt) {
  constexpr double Tiefer = 0.2;
  const QString symbol = QString::fromStdString(groesse.symbol);
  // A word in italics would read like a product.
  Kasten kasten = Reihe({Textkasten(symbol, {.punkt = punkt, .kursiv = symbol.size() == 1})});
  if (groesse.index.empty()) return kasten;
  const Schrift klein{.punkt = punkt * Klein};
  Anfuegen(kasten, Textkasten(QString::fromStdString(groesse.index), klein), Tiefer * Geviert(punkt));
  return kasten;
}

Kasten Gleichungskasten(const Gleichung& gleichung, double punkt, double gleich, double breite) {
  std::vector<Kasten> seiten = RechteSeiten(gleichung, punkt);
  double breiteste = 0;
  for (const Kasten& seite : seiten) breiteste = std::max(breiteste, seite.breite);
  if (breiteste > breite - gleich) {
    constexpr double Knapp = 0.98;  // letters come in whole units only
    return Gleichungskasten(gleichung, punkt * Knapp * (breite - gleich) / breiteste, gleich, breite);
  }
  Kasten links = Symbolkasten(gleichung.ergebnis, punkt);
  links.ort.rx() = gleich - links.breite;
  Kasten ganzes;
  Kasten zeile;
  Aufnehmen(zeile, std::move(links));
  for (Kasten& seite : seiten) {
    if (zeile.breite + seite.breite > breite) {
      const double luft = Zeilenluft * Geviert(punkt);
      const double grund = zeile.ort.y() + zeile.unter + luft + seite.ueber;
      Aufnehmen(ganzes, std::move(zeile));
      zeile = {.breite = gleich, .ort = {0, grund}};
    }
    Anfuegen(zeile, std::move(seite));
  }
  Aufnehmen(ganzes, std::move(zeile));
  return ganzes;
}

void Malen(Blatt& blatt, QPointF grund, const Kasten& kasten) {
  if (kasten.streckung == 1) {
    blatt.Text(grund, kasten.text, kasten.schrift);
  } else {
    QPainter& maler = blatt.Maler();
    maler.save();
    maler.translate(grund * Blatt::Einheit);
    maler.scale(1, kasten.streckung);
    blatt.Text({0, 0}, kasten.text, kasten.schrift);
    maler.restore();
  }
  for (const QLineF& strich : kasten.striche) blatt.Linie(grund + strich.p1(), grund + strich.p2());
  for (const Kasten& teil : kasten.teile) Malen(blatt, grund + teil.ort, teil);
}

}  // namespace vesk
