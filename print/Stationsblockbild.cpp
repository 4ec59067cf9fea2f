#include <QPainter>
#include <cmath>

#include "engine/Zahlen.h"
#include "print/Dokumente.h"
#include "print/Satz.h"
#include "station/Datenblatt.h"
#include "station/Optionen.h"
#include "station/Spalten.h"
#include "station/Text.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// A box of the chain, and the power behind it.
struct Kettenglied {
  QString titel;
  QStringList zeilen;
  QString leistung;
  bool doppelt = false;  ///< takes the place of two
};
using Kette = std::vector<Kettenglied>;

QString Watt(const std::optional<float>& watt) {
  return watt ? QString::fromStdString(Formatieren(*watt)) + u" W"_s : u"– W"_s;
}

/// A text of the sheet with its unit, or that it is missing.
QString Angabe(const QString& name, const std::string& text, const QString& einheit) {
  const QString inhalt = Papiertext(text);
  return inhalt.isEmpty() ? name + u" fehlt"_s : inhalt + u' ' + einheit;
}

/// A column as a chain: what its record says, and the powers that the calculation gives.
class Kettenbau {
 public:
  Kettenbau(const Station& s, const Kataloge& k, int spalte)
      : s_(s), k_(k), spalte_(spalte), satz_(s.Datenblattspalten.at(static_cast<std::size_t>(spalte))) {
    const std::optional<Rechenart> haelt = HaltendeArt(s, spalte);
    Rechenwerte werte = Spaltenwerte(s, spalte);
    ergebnis_ = Berechnen(werte, {.modus = Modus::Abstand, .afu = haelt ? haelt->afu : s.einstellungen.AFu});
  }

  Kette Bauen() const {
    Kette kette{{u"Sender"_s, {Angabe(u"Leistung"_s, Text(ZeileLeistung), u"W"_s)}, Watt(Senderleistung())}};
    for (Kettenglied& glied : Verluste()) kette.push_back(std::move(glied));
    kette.push_back(Antenne());
    return kette;
  }

 private:
  const std::string& Text(Zeile zeile) const { return Zelle(s_, spalte_, zeile); }

  std::optional<float> Senderleistung() const {
    return ergebnis_.AntEinPWR ? std::optional(Zahl(Text(ZeileLeistung))) : std::nullopt;
  }

  /// At the input of the antenna if the cable were all; by the formulas of the calculation.
  std::optional<float> HinterKabel() const {
    if (!ergebnis_.AntEinPWR) return std::nullopt;
    Rechenergebnis e;
    e.grenzwerte = ergebnis_.grenzwerte;
    try {
      AusgabenBestimmen({.PWR = *Senderleistung(), .Daempfung = Zahl(satz_.Kabeldaempfung)}, Modus::Abstand,
                        e);
    } catch (const Laufzeitfehler&) {
      return std::nullopt;
    }
    return e.AntEinPWR;
  }

  /// Cable and connectors of the record are those of the column.
  bool Aufteilbar() const {
    constexpr float Rundung = 0.0051F;  // dB: each of the figures is rounded to two places
    const auto zahlOderNichts = [](const std::string& text) {
      return OhneBlanks(text).empty() || IstZahl(OhneBlanks(text));
    };
    const std::string& stecker = satz_.Stecker;
    if (!IstZahl(satz_.Kabeldaempfung) || !zahlOderNichts(stecker) || !IstZahl(Text(ZeileVerluste)))
      return false;
    try {
      const float summe = Zahl(satz_.Kabeldaempfung) + Zahl(stecker);
      return std::abs(summe - Zahl(Text(ZeileVerluste))) < Rundung;
    } catch (const Laufzeitfehler&) {
      return false;
    }
  }

  QStringList Kabelzeilen() const {
    const int index = Kabelindex(satz_, k_);
    QStringList zeilen{index < 0 ? u"Kabeltyp fehlt"_s
                                 : Papiertext(k_.kabel.liste.at(static_cast<std::size_t>(index)))};
    zeilen.append(Angabe(u"Länge"_s, satz_.KabelLaenge, u"m"_s));
    QString je = Angabe(u"Verlust je 100 m"_s, satz_.D100, u"dB je 100 m"_s);
    if (!satz_.QRG.empty() && satz_.QRG != Text(ZeileFrequenz))
      je += u" bei "_s + Papiertext(satz_.QRG) + u" MHz"_s;
    return zeilen << je << Papiertext(satz_.Kabeldaempfung) + u" dB"_s;
  }

  Kette Verluste() const {
    if (Aufteilbar()) {
      return {{u"Kabel"_s, Kabelzeilen(), Watt(HinterKabel())},
              {u"Stecker, Schalter"_s,
               {Angabe(u"Verlust"_s, satz_.Stecker, u"dB"_s)},
               Watt(ergebnis_.AntEinPWR)}};
    }
    const QString verluste = Papiertext(Text(ZeileVerluste));
    const QString text =
        verluste.isEmpty() ? u"Verluste fehlen"_s : u"Verluste laut Datenblatt: "_s + verluste + u" dB"_s;
    return {{u"Kabel, Stecker, Schalter"_s, {text}, Watt(ergebnis_.AntEinPWR), true}};
  }

  Kettenglied Antenne() const {
    const QString name = Papiertext(Text(ZeileAntenne));
    const QString typ = Papiertext(satz_.Antenne);
    QStringList zeilen{name.isEmpty() ? u"Bezeichnung fehlt"_s : name};
    if (!typ.isEmpty() && typ != name) zeilen.append(u"Typ "_s + typ);
    zeilen.append(Angabe(u"Gewinn"_s, Text(ZeileGewinn), u"dBi"_s));
    const QString winkel = Papiertext(Text(ZeileWinkel));
    if (!winkel.isEmpty()) zeilen.append(u"Winkeldämpfung "_s + winkel + u" dB"_s);
    return {u"Antenne"_s, zeilen, Watt(ergebnis_.WEIRP)};
  }

  const Station& s_;
  const Kataloge& k_;
  const int spalte_;
  const Datenblattspalte& satz_;
  Rechenergebnis ergebnis_;
};

// mm; four boxes and as many arrows take the width of the page
constexpr double Kastenbreite = 32;
constexpr double Kastenhoehe = 25;
constexpr double Pfeil = 12.5;
constexpr double Titelhoehe = 8;

/// `oben`: above the power, or nothing.
void PfeilMalen(Blatt& blatt, QPointF von, const QString& oben, const QString& leistung) {
  constexpr double Zeile = 3.4;
  const QPointF bis = von + QPointF(Pfeil - 0.5, 0);
  blatt.Linie(von, bis, 0.35);
  for (const double seite : {-1., 1.}) blatt.Linie(bis, bis + QPointF(-2, seite), 0.35);
  const Schrift fett{.punkt = 7.5, .fett = true};
  const QPointF grund = von + QPointF(Pfeil / 2, -1.6);
  blatt.Text(grund - QPointF(0, Zeile), oben, fett, Buendig::Mitte);
  blatt.Einzeiler(grund, Pfeil - 0.6, leistung, fett, 1, Buendig::Mitte);
}

void KastenMalen(Blatt& blatt, const QRectF& kasten, const Kettenglied& glied) {
  constexpr double Rand = 1.5;
  constexpr qsizetype Meiste = 120;  // characters of a text that are measured
  const Schrift fett{.punkt = 8.5, .fett = true};
  blatt.Rahmen(kasten, 0.3);
  double grund = kasten.top() + 1 + Oberlaenge(fett);
  blatt.Text({kasten.center().x(), grund}, glied.titel, fett, Buendig::Mitte);
  grund += 1.2;
  for (const QString& ganz : glied.zeilen) {
    const QString text = ganz.left(Meiste);
    const double breite = kasten.width() - 2 * Rand;
    const Schrift schrift = Eingepasst(text, {8}, breite, 6);
    for (const QString& zeile : Umbrechen(text, schrift, breite, 2)) {
      grund += Zeilenhoehe(schrift);
      if (grund > kasten.bottom() - 0.8) return;
      blatt.Text({kasten.center().x(), grund}, zeile, schrift, Buendig::Mitte);
    }
  }
}

Block Kettenblock(const QString& titel, const Kette& kette) {
  return {.hoehe = Titelhoehe + Kastenhoehe,
          .malen =
              [=](Blatt& blatt, double oben) {
                const QRectF satz = Satzspiegel(Blattformat::Hoch);
                const Schrift fett{.punkt = 10, .fett = true};
                blatt.Text({satz.left(), oben + Oberlaenge(fett)},
                           Umbrechen(titel, fett, satz.width(), 1).first(), fett);
                QPointF ecke(satz.left(), oben + Titelhoehe);
                for (const Kettenglied& glied : kette) {
                  const double breite = glied.doppelt ? 2 * Kastenbreite + Pfeil : Kastenbreite;
                  KastenMalen(blatt, {ecke, QSizeF(breite, Kastenhoehe)}, glied);
                  const QPointF ausgang = ecke + QPointF(breite, Kastenhoehe / 2);
                  const bool letztes = &glied == &kette.back();
                  PfeilMalen(blatt, ausgang, letztes ? u"EIRP"_s : QString(), glied.leistung);
                  ecke.rx() += breite + Pfeil;
                }
              },
          .davor = 9};
}

}  // namespace

Dokument Stationsblockbild(const Station& s, const Kataloge& k) {
  Bloecke bloecke;
  for (const int spalte : BenutzteSpalten(s)) {
    const QString titel = QString::fromStdString(Spaltenname(spalte)) + u": "_s +
                          Angabe(u"Frequenz"_s, Zelle(s, spalte, ZeileFrequenz), u"MHz"_s);
    bloecke.push_back(Kettenblock(titel, Kettenbau(s, k, spalte).Bauen()));
  }
  if (bloecke.empty()) bloecke = Textbloecke(u"Keine Spalte des Datenblatts ist ausgefüllt."_s);
  Bloecke hinweis = Textbloecke(
      u"An den Pfeilen steht die Leistung an dieser Stelle, hinter der Antenne die Strahlungsleistung EIRP "
      u"mit "
      u"Winkeldämpfung; alle ohne Faktor für Sendeart und Sendezyklus."_s,
      {8});
  hinweis.front().davor = 6;
  bloecke += std::move(hinweis);
  const QString titel = u"Stationsblockbild"_s;
  return {titel, Seitenumbruch(bloecke, titel, Papiertext(s.benutzer.Rufzeichen), true)};
}

}  // namespace vesk
