#include <gtest/gtest.h>

#include <QRegularExpression>
#include <filesystem>
#include <functional>
#include <map>

#include "engine/Ausgabe.h"
#include "engine/Zahlen.h"
#include "persistence/Antennendatei.h"
#include "persistence/Dateigrenzen.h"
#include "persistence/Kabeldatei.h"
#include "persistence/Lageplandatei.h"
#include "persistence/UserDatei.h"
#include "station/Datenblatt.h"
#include "station/Haupthandlungen.h"
#include "station/Leistungsumrechnung.h"
#include "station/Papiere.h"
#include "station/Passung.h"
#include "station/Spalten.h"
#include "station/Verlauf.h"
#include "tests/ui/Handbuchseiten.h"

using namespace Qt::StringLiterals;

/// Figures of the manual stand in <span class="wert" data-fall="key=value ...">; the keys say how the program
/// comes to them. Any other figure with a unit is one of these values, a band or a bound of the program.
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

/// One of the examples that come with the program, as it is or with another height of its antenna.
Werte Plan(Werte& fall) {
  Station s;
  const std::filesystem::path pfad = std::filesystem::path(VESK_DATEN) / "beispiele" / fall["plan"];
  UserDateiLesen(DateiLesen(pfad.string() + ".dat", grenzen::UserDatei).bytes, s);
  s.lageplan = LageplanLesen(DateiLesen(pfad.string() + ".lageplan", grenzen::UserDatei).bytes).plan;
  const bool wieGezeichnet = !fall.contains("hoehe");
  for (const int spalte : BenutzteSpalten(s)) {
    if (!wieGezeichnet) ZelleSetzen(s, spalte, ZeileHoehe, fall["hoehe"]);
  }
  EXPECT_EQ(LageplanPruefen(s).empty(), wieGezeichnet) << pfad;
  Werte werte = {{"Hoehe", Zelle(s, 1, ZeileHoehe)}};
  for (const Zone& zone : ZonenBestimmen(s)) {
    std::string name = Zonenname(zone.art);
    std::erase(name, ' ');
    const Passung passung = PassungPruefen(Planpruefung(s.lageplan), s.lageplan, zone);
    werte[name] = Formatieren(Hoechstabstand(zone), 2, '.');
    werte["Plan" + name] = Formatieren(passung.imGrundriss, 2, '.');
    if (passung.passt != Passt::Nicht) continue;
    const Abhilfe abhilfe = AbhilfeSuchen(s, zone);
    werte["Haus" + name] = Formatieren(passung.verstoesse.front().ueber, 2, '.');
    werte["Höhe" + name] = Formatieren(abhilfe.hoehe.value_or(0), 1, '.');
    werte["Leistung" + name] = Formatieren(abhilfe.leistungen.front().watt, 2, '.');
  }
  return werte;
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
  if (fall["grenze"] == "schritte") return {{"", std::to_string(Verlauf::MaxSchritte)}};
  if (fall.contains("plan")) return Plan(fall);
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

const QRegularExpression Wertmuster(u"<span class=\"wert\" data-fall=\"([^\"]*)\">([^<]*)</span>"_s);

/// Bounds that the manual names: just below them the program behaves otherwise than just above.
QSet<QString> Grenzen() {
  const auto grenzwerte = [](double mhz, std::int16_t typ = GrenzwertAM) {
    return GrenzwerteBestimmen(static_cast<float>(mhz), false, typ);
  };
  const auto bereich = [&](double mhz) { return grenzwerte(mhz).ausserhalb; };
  const auto vde = [&](double mhz) { return grenzwerte(mhz).hsmVDE.ausserhalb; };
  const auto tv = [&](double mhz) { return grenzwerte(mhz, GrenzwertTV).hsmVDE.Uss == 0; };
  const auto gewinn = [](double dBi) {
    Station s;
    EingabeGetippt(s, {}, Eingabefeld::Gewinn, std::to_string(dBi));
    FeldVerlassen(s, {}, Eingabefeld::Gewinn);
    return s.werte.GewinnText == "100";
  };
  const auto pegel = [](Leistungseinheit einheit) {
    return [einheit](double wert) {
      return Umrechnen(einheit, std::to_string(wert), '.').ergebnis == Umrechnungsergebnis::ZuGross;
    };
  };
  const auto kilowatt = [](double watt) {
    Werte fall = {{"qrg", "14"}, {"pwr", std::to_string(watt)}};
    return Zahl(Rechnung(fall)["txtStrahlung"]) < 100;
  };
  const std::tuple<const char*, double, std::function<bool(double)>> kippt[] = {
      {"0.003 MHz", 0.003, bereich},
      {"0,003 MHz", 0.003, bereich},
      {"300000 MHz", 3e5, bereich},
      {"300 GHz", 3e5, bereich},
      {"0.03 MHz", 0.03, vde},
      {"30 KHz", 0.03, vde},
      {"2500 MHz", 2500, vde},
      {"2,5 GHz", 2500, vde},
      {"79 MHz", 79, tv},
      {"1100 MHz", 1100, tv},
      {"50 MHz", 50, [&](double mhz) { return grenzwerte(mhz).hsm306.Uss == 0; }},
      {"100 MHz", 100, [&](double mhz) { return grenzwerte(mhz).hsmVDE.Uss == 0; }},
      {"10 MHz", 10, [&](double mhz) { return grenzwerte(mhz).ohneHSM > 27.5F; }},
      {"400 MHz", 400, [&](double mhz) { return grenzwerte(mhz).ohneHSM > 27.5F; }},
      {"100 dBi", 100, gewinn},
      {"100 dBm", 100, pegel(Leistungseinheit::DBm)},
      {"70 dBW", 70, pegel(Leistungseinheit::DBW)},
      {"10000 W", 10000, kilowatt}};
  QSet<QString> grenzen;
  for (const auto& [text, wert, ist] : kippt) {
    EXPECT_NE(ist(wert * 0.9999), ist(wert * 1.0001)) << text;
    grenzen << QString::fromUtf8(text);
  }
  const Antenne antenne =
      AntennenLaden("[x]\n" + std::string(30, 't') + ',' + std::string(30, 'a') + ",#").Antennen.at(0);
  const auto zeichen = [&](std::size_t anzahl) { grenzen << u"%1 Zeichen"_s.arg(anzahl); };
  for (const std::size_t anzahl :
       {MaxZellenlaenge, antenne.typ.size(), antenne.art.size(), std::size_t{HerstellerSpalten}})
    zeichen(anzahl);
  grenzen << u"%1 Kabel"_s.arg(KabelMax) << u"%1 Kabel"_s.arg(KabelMax - 1)
          << u"%1 MHz"_s.arg(Kabelfrequenz.front()) << u"%1 MHz"_s.arg(Kabelfrequenz.back())
          << u"%1 Wellenlängen"_s.arg(FernfeldInLambda) << u"%1 Wellenlängen"_s.arg(1 / (2 * Pi), 0, 'f', 3)
          << u"%1 V/m"_s.arg(double(grenzwerte(3000).ohneHSM));
  return grenzen;
}

/// What is measured in, and zero.
const QSet<QString> Masse = {u"100 m"_s, u"1 mW"_s, u"1 W"_s, u"0 W"_s, u"0.00 W"_s, u"0 dB"_s, u"0 dBi"_s};

TEST(Hilfewerte, KeineZahlMitEinheitBleibtUngeprueft) {
  const QRegularExpression geprueft(
      u"<span class=\"(?:wert|formel)\".*?</span>|<pre>.*?</pre>|<title>.*?</title>"_s,
      QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpression argument(u"=([\\d.]+)(?=[ \"])"_s);
  const QRegularExpression zahl(
      u"(?<![\\w.,])(\\d(?:[\\d.,]*\\d)?)[ |]*(dB[mWid]?|V/m|[MGKk]Hz|[ckm]?m|[km]?W|V|Zeichen|Kabel|"
      "Wellenlängen|Schritte)(?![\\wäöüß])"_s);
  const QSet<QString> grenzen = Grenzen();
  const QMap<QString, QString> seiten = Handbuchseiten();
  for (auto seite = seiten.begin(); seite != seiten.end(); ++seite) {
    QSet<double> vorgaben;
    for (auto treffer = Wertmuster.globalMatch(*seite); treffer.hasNext();) {
      const QString fall = treffer.next().captured(1) + u' ';
      for (auto wert = argument.globalMatch(fall); wert.hasNext();)
        vorgaben << wert.next().captured(1).toDouble();
    }
    QString text = *seite;
    text.remove(geprueft).replace(QRegularExpression(u"<[^>]*>"_s), u"|"_s);
    for (auto treffer = zahl.globalMatch(text); treffer.hasNext();) {
      const QRegularExpressionMatch fund = treffer.next();
      const QString angabe = fund.captured(1) + u' ' + fund.captured(2);
      const bool band = !Band(QString(angabe).remove(u' ').toStdString()).empty();
      EXPECT_TRUE(band || vorgaben.contains(fund.captured(1).toDouble()) ||
                  (grenzen + Masse).contains(angabe))
          << seite.key().toStdString() << ": " << angabe.toStdString();
    }
  }
}

TEST(Hilfewerte, DieBeispieleDesLageplansPassen) {
  for (const char* name : {"Reihenhaus", "Einfamilienhaus", "Balkon"}) {
    Werte fall = {{"plan", name}};
    EXPECT_NE(Plan(fall)["ohneHSM"], "") << name;
    EXPECT_TRUE(Handbuchseiten()[u"lageplan.html"_s].contains(QString::fromUtf8(name) + u".dat"_s)) << name;
  }
}

TEST(Hilfewerte, AlleZahlenStimmenMitDemProgramm) {
  int anzahl = 0;
  const QMap<QString, QString> seiten = Handbuchseiten();
  for (auto seite = seiten.begin(); seite != seiten.end(); ++seite) {
    const QString& name = seite.key();
    const QString& html = *seite;
    EXPECT_EQ(html.count(u"class=\"wert\""_s), html.count(Wertmuster)) << name.toStdString();
    for (auto treffer = Wertmuster.globalMatch(html); treffer.hasNext(); ++anzahl) {
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
