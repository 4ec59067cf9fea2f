// The two forms of the data sheet above and below their grid.
#include <algorithm>

#include "print/Formular.h"
#include "print/Satz.h"
#include "station/Spalten.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Schrift Hinweisschrift{8};

QRectF Quersatz() {
  return Satzspiegel(Blattformat::Quer);
}

/// A pacemaker distance is empty because there is no such limit at the frequency.
bool OhneGrenzwert(const Station& s, int spalte, const Rechenart& art) {
  Rechenwerte werte = Spaltenwerte(s, spalte);
  const Grenzwerte g = Berechnen(werte, art).grenzwerte;
  return (Zelle(s, spalte, ZeileHSM306).empty() && g.hsm306.Grenzwert == 0) ||
         (Zelle(s, spalte, ZeileHSMvde).empty() && g.hsmVDE.Grenzwert == 0);
}

}  // namespace

Spaltenlagen LagenDerSpalten(const Station& s) {
  Spaltenlagen lagen;
  for (const int spalte : BenutzteSpalten(s)) {
    const auto i = static_cast<std::size_t>(spalte) - 1;
    // What a file does not tell, the figures do: they hold only backwards.
    const auto wie = HaltendeArt(s, spalte);
    const bool rueckwaerts = s.spaltenfarben.at(i).rueckwaerts || (wie && wie->modus == Modus::Leistung);
    lagen.at(i) = {true, rueckwaerts, SpalteVeraltet(s, spalte), wie && OhneGrenzwert(s, spalte, *wie)};
  }
  return lagen;
}

Streifenfolge Spaltenhinweis(const std::vector<int>& spalten, const QString& satz) {
  if (spalten.empty()) return {};
  QString text = spalten.size() == 1 ? u"Spalte "_s : u"Spalten "_s;
  for (std::size_t i = 0; i < spalten.size(); ++i) {
    if (i > 0) text += i + 1 == spalten.size() ? u" und "_s : u", "_s;
    text += QChar::fromLatin1(Spaltenbuchstabe(static_cast<std::int16_t>(spalten[i])));
  }
  text += u": "_s + satz;
  Streifenfolge folge;
  for (const QString& zeile : Umbrechen(text, Hinweisschrift, Quersatz().width())) {
    folge.push_back(
        {Zeilenhoehe(Hinweisschrift), [zeile](Blatt& blatt, double oben) {
           blatt.Text({Quersatz().left(), oben + Oberlaenge(Hinweisschrift)}, zeile, Hinweisschrift);
         }});
  }
  return folge;
}

Streifenfolge Hinweisstreifen(const Spaltenlagen& lagen, Formart art) {
  const auto mit = [&](bool Spaltenlage::*eigenschaft) {
    std::vector<int> spalten;
    for (std::size_t i = 0; i < lagen.size(); ++i) {
      if (lagen.at(i).*eigenschaft) spalten.push_back(static_cast<int>(i) + 1);
    }
    return spalten;
  };
  const bool farbig = art == Formart::Eigene;
  Streifenfolge folge{{1.5, [](Blatt& blatt, double oben) {
                         blatt.Linie({Quersatz().left(), oben}, {Quersatz().right(), oben}, Hauptlinie);
                       }}};
  Anhaengen(folge,
            Spaltenhinweis(mit(&Spaltenlage::rueckwaerts),
                           farbig ? u"In Türkis, weil die Sendeleistung (Zeile 6) aus dem Sicherheitsabstand "
                                    u"ohne HSM (Zeile 10) berechnet ist."_s
                                  : u"Die Sendeleistung (Zeile 6) ist aus dem Sicherheitsabstand ohne HSM "
                                    u"(Zeile 10) berechnet."_s));
  Anhaengen(folge,
            Spaltenhinweis(mit(&Spaltenlage::ohneGrenzwert),
                           u"Wo in Zeile 11 oder 12 nichts steht, ist für diese Frequenz kein Grenzwert "
                           u"festgelegt."_s));
  Anhaengen(folge, Spaltenhinweis(mit(&Spaltenlage::veraltet),
                                  u"Die Sicherheitsabstände (Zeilen 10 bis 12"_s +
                                      (farbig ? u", grau"_s : QString()) +
                                      u") gehören nicht zu den Eingaben darüber; sie müssen neu "
                                      u"berechnet werden."_s));
  return folge;
}

Streifenfolge Angabestreifen(const QString& beschriftung, const std::vector<std::string>& angaben) {
  constexpr double Einzug = 28;
  const Schrift schrift{9};
  constexpr double Schreibhoehe = 7;
  QStringList teile;
  for (const std::string& angabe : angaben) teile.append(Papiertext(angabe));
  teile.removeAll(QString());
  Streifenfolge folge;
  for (const QString& zeile : Umbrechen(teile.join(u", "_s), schrift, Quersatz().width() - Einzug)) {
    const QString vorn = folge.empty() ? beschriftung : QString();
    const double hoehe = zeile.isEmpty() ? Schreibhoehe : Zeilenhoehe(schrift) + 0.8;
    folge.push_back({hoehe, [=](Blatt& blatt, double oben) {
                       const double grund = oben + hoehe - 0.8 - Zeilenhoehe(schrift) + Oberlaenge(schrift);
                       const double links = Quersatz().left() + Einzug;
                       blatt.Text({Quersatz().left(), grund}, vorn, schrift);
                       blatt.Text({links, grund}, zeile, schrift);
                       if (zeile.isEmpty()) blatt.Linie({links, grund + 0.6}, {links + 120, grund + 0.6});
                     }});
  }
  return folge;
}

}  // namespace vesk
