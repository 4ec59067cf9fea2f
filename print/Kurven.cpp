#include "print/Kurven.h"

#include <algorithm>
#include <utility>

#include "engine/Zahlen.h"
#include "station/Rechnung.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const QString& Frequenzachse() {
  static const QString titel = u"Frequenz [MHz]"_s;
  return titel;
}

QString Text(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

QString Zahltext(double wert) {
  return Text(Formatieren(static_cast<float>(wert)));
}

/// Without decimals that say nothing.
QString Kurztext(double wert) {
  QString text = Zahltext(wert);
  while (text.endsWith(u'0')) text.chop(1);
  return text.endsWith(u'.') ? text.chopped(1) : text;
}

// ------------------------------------------------------------------------------------ distance and power

/// One curve for each limit that is defined, with the value of the station in its name.
std::vector<Bildkurve> Scharkurven(const Kurvenschar& schar, const QString& einheit) {
  std::vector<Bildkurve> kurven;
  for (std::size_t i = 0; i < schar.kurven.size(); ++i) {
    if (!schar.werte.at(i)) continue;
    const double wert = *schar.werte.at(i);
    kurven.push_back({QString::fromUtf8(Grenzwertartnamen.at(i)) + u": "_s + Zahltext(wert) + einheit,
                      i,
                      schar.kurven.at(i),
                      {{schar.jetzt, wert, true}}});
  }
  return kurven;
}

Kurvenbild Scharbild(const Station& s, Diagrammart art) {
  const bool abstand = art == Diagrammart::AbstandUeberLeistung;
  const Kurvenschar schar = abstand ? AbstandUeberLeistung(s) : LeistungUeberAbstand(s);
  Kurvenbild bild;
  bild.titel = Diagrammname(art);
  bild.x.titel = abstand ? u"Sendeleistung [W]"_s : u"Abstand [m]"_s;
  bild.y = abstand ? u"Sicherheitsabstand [m]"_s : u"Zulässige Leistung [W]"_s;
  bild.leer = Text(schar.grund);
  const Kurve& eine = schar.kurven.front();
  if (eine.empty()) return bild;
  bild.untertitel = Eingabezeile(s);
  bild.x.von = eine.front().x;
  bild.x.bis = eine.back().x;
  bild.kurven = Scharkurven(schar, abstand ? u" m"_s : u" W"_s);
  bild.marken = {{schar.jetzt, Kurztext(schar.jetzt) + (abstand ? u" W"_s : u" m"_s), true}};
  return bild;
}

// ------------------------------------------------------------------------------------------------ cables

Kurvenbild Kabelbild(const Station& s, const Kataloge& k) {
  Kurvenbild bild;
  bild.titel = Diagrammname(Diagrammart::Kabel);
  bild.x = {Frequenzachse(), Kabelfrequenz.front(), Kabelfrequenz.back()};
  bild.y = u"Dämpfung [dB je 100 m]"_s;
  bild.leer = u"Es ist kein Kabel gewählt, dessen Dämpfung das Programm kennt."_s;
  for (const Kabelkurve& kabel : Kabelkurven(s, k)) {
    const std::size_t stil = bild.kurven.size();
    Bildkurve& kurve = bild.kurven.emplace_back(Bildkurve{Text(kabel.name), stil, kabel.kurve, {}});
    if (!kabel.jetzt) continue;
    kurve.name += u": "_s + Zahltext(*kabel.jetzt) + u" dB"_s;
    const double f = Zahl(s.werte.QRGText);
    kurve.punkte.push_back({f, *kabel.jetzt, true});
    bild.marken = {{f, Kurztext(f) + u" MHz"_s, true}};
  }
  return bild;
}

// ------------------------------------------------------------------------------------------------ limits

/// HSM VDE of further signal types in styles of their own.
std::vector<Bildkurve> Grenzwertlinien(const std::vector<Grenzwertkurve>& kurven) {
  std::vector<Bildkurve> linien;
  std::size_t weiterer = AnzahlGrenzwertarten;
  bool erste = true;
  for (const Grenzwertkurve& kurve : kurven) {
    const bool weitere = kurve.art == Grenzwertart::HSMvde && !std::exchange(erste, false);
    const std::size_t stil = weitere ? weiterer++ : static_cast<std::size_t>(kurve.art);
    linien.push_back({Text(kurve.name), stil, kurve.kurve, {}});
  }
  return linien;
}

/// The limits that hold at one frequency, at the frequencies of its band that they are taken from.
void Bepunkten(std::vector<Bildkurve>& linien, const std::vector<Grenzwertkurve>& kurven,
               const Grenzwertmarke& marke, bool voll) {
  const Dreiwerte werte = Feldstaerken(marke.grenzwerte);
  const Auswertefrequenzen& f = marke.grenzwerte.frequenz;
  for (std::size_t i = 0; i < linien.size(); ++i) {
    const Grenzwertart art = kurven[i].art;
    const std::optional<double>& wert = werte.at(static_cast<std::size_t>(art));
    if (!wert || (art == Grenzwertart::HSMvde && kurven[i].typ != marke.typ)) continue;
    linien[i].punkte.push_back({art == Grenzwertart::OhneHSM ? f.grenzwert : f.hsm, *wert, voll});
  }
}

Kurvenbild Grenzwertdiagramm(const Station& s) {
  const Grenzwertbild werte = GrenzwerteDerStation(s);
  Kurvenbild bild;
  bild.titel = Diagrammname(Diagrammart::Grenzwerte);
  bild.untertitel = u"Buchstaben: Spalten des Datenblatts; die Marken gelten für ihr Band."_s;
  bild.x = {Frequenzachse(), werte.von, werte.bis};
  bild.y = u"Grenzwert [V/m]"_s;
  bild.kurven = Grenzwertlinien(werte.kurven);
  for (const Grenzwertmarke& marke : werte.marken) {
    const bool jetzt = marke.name.empty();
    bild.marken.push_back({marke.grenzwerte.QRG, jetzt ? u"jetzt"_s : Text(marke.name), jetzt});
    Bepunkten(bild.kurven, werte.kurven, marke, jetzt);
  }
  std::sort(bild.marken.begin(), bild.marken.end(), [](const auto& a, const auto& b) { return a.x < b.x; });
  return bild;
}

}  // namespace

QString Diagrammname(Diagrammart art) {
  switch (art) {
    case Diagrammart::AbstandUeberLeistung:
      return u"Abstand über der Leistung"_s;
    case Diagrammart::LeistungUeberAbstand:
      return u"Leistung über dem Abstand"_s;
    case Diagrammart::Kabel:
      return u"Kabeldämpfung"_s;
    case Diagrammart::Grenzwerte:
      break;
  }
  return u"Grenzwerte"_s;
}

QString Eingabezeile(const Station& s) {
  const auto oderNull = [](const std::string& text) { return text.empty() ? u"0"_s : Text(text); };
  const Rechenwerte& w = s.werte;
  return u"%1 MHz%2, Gewinn %3 dBi, Verluste %4 dB, Winkeldämpfung %5 dB, Faktor %6"_s.arg(
      Text(w.QRGText), s.einstellungen.AFu && Hauptband(s) != nullptr ? u" (AFu-Band)"_s : QString(),
      oderNull(w.GewinnText), oderNull(w.DaempfungText), oderNull(w.WinkelDaempfungText),
      Zahltext(double{Faktor(w)}));
}

Kurvenbild Diagramm(const Station& s, const Kataloge& k, Diagrammart art) {
  switch (art) {
    case Diagrammart::Kabel:
      return Kabelbild(s, k);
    case Diagrammart::Grenzwerte:
      return Grenzwertdiagramm(s);
    default:
      return Scharbild(s, art);
  }
}

Baenderbild BaenderbildVon(const Station& s, const std::vector<Bandzeile>& zeilen) {
  constexpr double Von = 1;  // MHz
  constexpr double Bis = 30000;
  const bool abstand = s.modus == Modus::Abstand;
  Baenderbild bild;
  Kurvenbild& oben = bild.abstaende;
  Kurvenbild& unten = bild.grenzwerte;
  oben.x = unten.x = {Frequenzachse(), Von, Bis};
  oben.y = abstand ? u"Sicherheitsabstand [m]"_s : u"Zulässige Leistung [W]"_s;
  oben.leer = u"Kein Band läßt sich berechnen."_s;
  unten.y = u"Grenzwert [V/m]"_s;
  const std::int16_t typ = s.werte.Grenzwerttyp;
  const std::vector<Grenzwertkurve> kurven = Grenzwertkurven(Von, Bis, {typ});
  unten.kurven = Grenzwertlinien(kurven);
  for (std::size_t i = 0; i < AnzahlGrenzwertarten; ++i) {
    oben.kurven.push_back({QString::fromUtf8(Grenzwertartnamen.at(i)), i, {}, {}});
  }
  for (std::size_t n = 0; n < zeilen.size(); ++n) {
    const Bandzeile& zeile = zeilen[n];
    const double f = zeile.band->auswertung.lambda;
    const bool angekreuzt = s.schaubilder.baender.test(n) && zeile.rechenbar;
    oben.marken.push_back({f, QString::fromLatin1(zeile.band->name), angekreuzt});
    if (zeile.rechenbar) Bepunkten(unten.kurven, kurven, {{}, zeile.zahlen.grenzwerte, typ}, angekreuzt);
    const Dreiwerte werte = zeile.rechenbar ? Ausgabewerte(zeile.zahlen) : Dreiwerte{};
    for (std::size_t i = 0; i < werte.size(); ++i) {
      oben.kurven.at(i).linie.push_back({f, werte.at(i)});
      if (werte.at(i)) oben.kurven.at(i).punkte.push_back({f, *werte.at(i), angekreuzt});
    }
  }
  std::erase_if(oben.kurven, [](const Bildkurve& kurve) { return kurve.punkte.empty(); });
  return bild;
}

void BaenderbildMalen(Blatt& blatt, const QRectF& flaeche, const Baenderbild& bild,
                      const Bildfarben& farben) {
  constexpr double Bequem = 75;  // mm
  constexpr double Oben = 0.58;
  if (bild.abstaende.kurven.empty()) return KurvenbildMalen(blatt, flaeche, bild.abstaende, farben);
  Bildfarben angepasst = farben;
  angepasst.punkt *= std::min(1.0, flaeche.height() / Bequem);
  QRectF oben = flaeche;
  oben.setHeight(flaeche.height() * Oben);
  KurvenbildMalen(blatt, oben, bild.abstaende, angepasst);
  KurvenbildMalen(blatt, {oben.bottomLeft(), flaeche.bottomRight()}, bild.grenzwerte, angepasst);
}

}  // namespace vesk
