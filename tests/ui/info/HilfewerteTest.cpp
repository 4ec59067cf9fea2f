#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <map>

#include "engine/Ausgabe.h"
#include "engine/Zahlen.h"
#include "persistence/Kabeldatei.h"
#include "station/Leistungsumrechnung.h"

using namespace Qt::StringLiterals;

/// Figures of the manual stand in <span class="wert" data-fall="key=value ...">; the keys say how the program
/// comes to them.
namespace vesk {
namespace {

using Werte = std::map<std::string, std::string>;

std::int16_t Typ(Werte& fall) {
  return fall["typ"] == "GSM" ? GrenzwertGSM : fall["typ"] == "TV" ? GrenzwertTV : GrenzwertAM;
}

/// Fields of the main window after a calculation, and the factor.
Werte Rechnung(Werte& fall) {
  const bool abstand = !fall.contains("abstand");
  Rechenwerte werte;
  werte.QRGText = fall["qrg"];
  werte.PWRText = fall[abstand ? "pwr" : "abstand"];
  werte.GewinnText = fall["gewinn"];
  werte.DaempfungText = fall["daempfung"];
  werte.WinkelDaempfungText = fall["winkel"];
  werte.Grenzwerttyp = Typ(fall);
  const std::string faktor = fall["faktor"] + fall["sendeart"];
  if (!faktor.empty()) werte.Modulationsfaktor = Zahl(faktor);
  if (fall.contains("minuten")) werte.Zyklusfaktor = Zahl(fall["minuten"]) / 6;
  const Rechenart art{abstand ? Modus::Abstand : Modus::Leistung, !fall.contains("exakt")};
  const Feldtexte texte = Ausgabetexte(Berechnen(werte, art), '.');
  Werte felder = {{"faktor", Formatieren(Faktor(werte))}};
  for (std::size_t i = 0; i < AnzahlFelder; ++i) {
    felder[std::string(Feldnamen[i])] = texte[static_cast<Feld>(i)].value_or("(nicht geschrieben)");
  }
  return felder;
}

Werte Band(const std::string& name) {
  const auto text = [](float mhz) { return QString::number(double(mhz), 'g', 6).toStdString(); };
  for (const Amateurband& band : Amateurbaender()) {
    if (QString::fromUtf8(band.name).remove(u' ').toStdString() != name) continue;
    const Auswertefrequenzen& bei = band.auswertung;
    return {{"von", text(band.von)},
            {"bis", text(band.bis)},
            {"grenzwert", text(bei.grenzwert)},
            {"hsm", text(bei.hsm)},
            {"lambda", text(bei.lambda)}};
  }
  return {};
}

Werte Kabelverluste(Werte& fall) {
  Kabelfelder felder{.QRG = fall["mhz"], .KabelLaenge = fall["laenge"], .Stecker = fall["stecker"]};
  KabeldaempfungRechnen(KabelOhneDatei(), 0, felder);
  return {{"txtD100", felder.D100},
          {"txtKabeldaempfung", felder.Kabeldaempfung},
          {"txtGesamtdaempfung", felder.Gesamtdaempfung}};
}

/// Interference threshold or peak field strength of a pacemaker, by the key.
Werte Schwelle(Werte& fall) {
  const float mhz = Zahl(fall["uss306"] + fall["spitze306"] + fall["ussvde"] + fall["spitzevde"]);
  const HSMvdeWerte vde = HSMvde(mhz, Typ(fall));
  float wert = static_cast<float>(vde.Kandidaten[0]) / 100000;
  if (!fall["uss306"].empty()) wert = HSM306(mhz).Uss;
  if (!fall["spitze306"].empty()) wert = HSM306(mhz).Spitzenfeld;
  if (!fall["ussvde"].empty()) wert = vde.Uss;
  return {{"", Formatieren(wert, 3, '.')}};
}

/// What the program comes to, by the names that a case may give as its "feld".
Werte Ergebnisse(Werte fall) {
  if (fall.contains("qrg") || fall.contains("minuten")) return Rechnung(fall);
  if (fall.contains("band")) return Band(fall["band"]);
  if (fall.contains("kabel")) return Kabelverluste(fall);
  if (fall.contains("art")) return {{"", std::string(Sendearten.at(std::stoul(fall["art"])).faktor)}};
  const std::string einheiten[] = {"dbm", "dbw", "watt"};
  for (std::size_t i = 0; i < std::size(einheiten); ++i) {
    if (!fall.contains(einheiten[i])) continue;
    const auto texte = Umrechnen(Leistungseinheit{i}, fall[einheiten[i]], '.').texte;
    return {{"dbm", texte[0]}, {"dbw", texte[1]}, {"watt", texte[2]}};
  }
  return Schwelle(fall);
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
      Werte fall;
      for (const QString& paar : fund.captured(1).split(u' ')) {
        fall[paar.section(u'=', 0, 0).toStdString()] = paar.section(u'=', 1).toStdString();
      }
      const std::string feld = fall["feld"];
      EXPECT_EQ(fund.captured(2).toStdString(), Ergebnisse(std::move(fall))[feld])
          << name.toStdString() << ": " << fund.captured(1).toStdString();
    }
  }
  EXPECT_GT(anzahl, 300);
}

}  // namespace
}  // namespace vesk
