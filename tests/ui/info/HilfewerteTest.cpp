#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include "Ausgabe.h"
#include "Kabelkatalog.h"
#include "Leistungsumrechnung.h"
#include "Rechenwerte.h"
#include "Zahlen.h"

using namespace Qt::StringLiterals;

/// Figures of the manual stand in <span class="wert" data-fall="key=value ...">; the keys say how the program
/// comes to them.
namespace vesk {
namespace {

using Fall = QMap<QString, std::string>;

Fall FallLesen(const QString& text) {
  Fall fall;
  for (const QString& paar : text.split(u' ', Qt::SkipEmptyParts)) {
    fall[paar.section(u'=', 0, 0)] = paar.section(u'=', 1).toStdString();
  }
  return fall;
}

std::int16_t Typ(const Fall& fall) {
  const std::string typ = fall.value(u"typ"_s, "AM");
  if (typ == "AM") return GrenzwertAM;
  return typ == "TV" ? GrenzwertTV : GrenzwertGSM;
}

void FaktorenSetzen(const Fall& fall, Rechenwerte& werte) {
  werte.Modulationsfaktor = Zahl(fall.value(u"faktor"_s, fall.value(u"sendeart"_s, "1.00")));
  werte.Zyklusfaktor = static_cast<float>(1.0 / 6 * static_cast<double>(Zahl(fall.value(u"minuten"_s, "6"))));
}

/// A field of the main window (or txtWEIRP_0) after a calculation.
std::string Feldwert(const Fall& fall) {
  Rechenwerte werte;
  werte.QRGText = fall[u"qrg"_s];
  werte.PWRText = fall.value(u"pwr"_s, fall.value(u"abstand"_s));
  werte.GewinnText = fall.value(u"gewinn"_s);
  werte.DaempfungText = fall.value(u"daempfung"_s);
  werte.WinkelDaempfungText = fall.value(u"winkel"_s);
  werte.Grenzwerttyp = Typ(fall);
  FaktorenSetzen(fall, werte);
  Rechenart art;
  art.modus = fall.contains(u"abstand"_s) ? Modus::Leistung : Modus::Abstand;
  art.afu = !fall.contains(u"exakt"_s);
  const Feldtexte texte = Ausgabetexte(Berechnen(werte, art), '.');
  for (std::size_t i = 0; i < AnzahlFelder; ++i) {
    if (Feldnamen[i] == fall[u"feld"_s]) return texte[static_cast<Feld>(i)].value_or("(nicht geschrieben)");
  }
  return "(unbekanntes Feld)";
}

std::string Bandwert(const Fall& fall) {
  for (const Amateurband& band : Amateurbaender()) {
    if (QString::fromUtf8(band.name).remove(u' ').toStdString() != fall[u"band"_s]) continue;
    const QMap<QString, float> felder = {{u"von"_s, band.von},
                                         {u"bis"_s, band.bis},
                                         {u"grenzwert"_s, band.auswertung.grenzwert},
                                         {u"hsm"_s, band.auswertung.hsm},
                                         {u"lambda"_s, band.auswertung.lambda}};
    const float wert = felder.value(QString::fromStdString(fall[u"feld"_s]));
    return QString::number(static_cast<double>(wert), 'g', 6).toStdString();
  }
  return "(unbekanntes Band)";
}

std::string Kabelwert(const Fall& fall) {
  Kabelfelder felder;
  felder.QRG = fall[u"mhz"_s];
  felder.KabelLaenge = fall[u"laenge"_s];
  felder.Stecker = fall[u"stecker"_s];
  bool gefunden = false;
  KabeldaempfungRechnen(KabelOhneDatei(), 0, felder, gefunden);
  const QMap<QString, std::string> werte = {{u"txtD100"_s, felder.D100},
                                            {u"txtKabeldaempfung"_s, felder.Kabeldaempfung},
                                            {u"txtGesamtdaempfung"_s, felder.Gesamtdaempfung}};
  return werte.value(QString::fromStdString(fall[u"feld"_s]));
}

std::string Pegelwert(Leistungseinheit quelle, const std::string& text, const std::string& feld) {
  const QMap<QString, std::size_t> einheiten = {{u"dbm"_s, 0}, {u"dbw"_s, 1}, {u"watt"_s, 2}};
  return Umrechnen(quelle, text, '.').texte.at(einheiten.value(QString::fromStdString(feld)));
}

/// Interference thresholds and their peak field strengths, with three decimals.
std::string Schwelle(float wert) {
  return Formatieren(wert, 3, '.');
}

std::string Wert(const Fall& fall) {
  if (fall.contains(u"band"_s)) return Bandwert(fall);
  if (fall.contains(u"kabel"_s)) return Kabelwert(fall);
  if (fall.contains(u"qrg"_s)) return Feldwert(fall);
  if (fall.contains(u"uss306"_s)) return Schwelle(HSM306(Zahl(fall[u"uss306"_s])).Uss);
  if (fall.contains(u"spitze306"_s)) return Schwelle(HSM306(Zahl(fall[u"spitze306"_s])).Spitzenfeld);
  if (fall.contains(u"ussvde"_s)) return Schwelle(HSMvde(Zahl(fall[u"ussvde"_s]), Typ(fall)).Uss);
  if (fall.contains(u"spitzevde"_s)) {
    const auto kleinster = HSMvde(Zahl(fall[u"spitzevde"_s]), Typ(fall)).Kandidaten[0];
    return Schwelle(static_cast<float>(kleinster) / 100000);
  }
  if (fall.contains(u"art"_s)) return std::string(Sendearten.at(std::stoul(fall[u"art"_s])).faktor);
  if (fall.contains(u"watt"_s)) return Pegelwert(Leistungseinheit::Watt, fall[u"watt"_s], fall[u"feld"_s]);
  if (fall.contains(u"dbw"_s)) return Pegelwert(Leistungseinheit::DBW, fall[u"dbw"_s], fall[u"feld"_s]);
  if (fall.contains(u"dbm"_s)) return Pegelwert(Leistungseinheit::DBm, fall[u"dbm"_s], fall[u"feld"_s]);
  Rechenwerte werte;
  FaktorenSetzen(fall, werte);
  return Formatieren(Faktor(werte));
}

TEST(Hilfewerte, AlleZahlenStimmenMitDemProgramm) {
  const QRegularExpression muster(u"<span class=\"wert\" data-fall=\"([^\"]*)\">([^<]*)</span>"_s);
  const QDir verzeichnis(QStringLiteral(VESK_DATEN "/hilfe"));
  int anzahl = 0;
  for (const QString& name : verzeichnis.entryList({u"*.html"_s})) {
    QFile datei(verzeichnis.filePath(name));
    ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(datei.readAll());
    EXPECT_EQ(html.count(u"class=\"wert\""_s), html.count(muster)) << name.toStdString();
    for (auto treffer = muster.globalMatch(html); treffer.hasNext(); ++anzahl) {
      const QRegularExpressionMatch fund = treffer.next();
      EXPECT_EQ(fund.captured(2).toStdString(), Wert(FallLesen(fund.captured(1))))
          << name.toStdString() << ": " << fund.captured(1).toStdString();
    }
  }
  EXPECT_GT(anzahl, 300);
}

}  // namespace
}  // namespace vesk
