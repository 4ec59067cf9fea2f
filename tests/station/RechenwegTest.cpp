#include <cmath>
#include <cstdlib>
#include <numeric>
#include <random>
#include <sstream>
#include <tuple>

#include "engine/Zahlen.h"
#include "station/Formel.h"
#include "station/Rechenweg.h"
#include "tests/station/Tisch.h"

namespace vesk {
namespace {

double Ausgerechnet(const Ausdruck& a) {
  using enum Ausdruck::Art;
  std::vector<double> t;
  for (const Ausdruck& teil : a.teile) t.push_back(Ausgerechnet(teil));
  if (a.art == Groesse) {
    EXPECT_EQ(a.groesse.zahl.find_first_not_of("-.0123456789"), std::string::npos) << a.groesse.zahl;
    return std::stod(a.groesse.zahl);
  }
  if (a.art == Summe) return std::accumulate(t.begin(), t.end(), 0.0);
  if (a.art == Differenz) return 2 * t.at(0) - std::accumulate(t.begin(), t.end(), 0.0);
  if (a.art == Produkt) return std::accumulate(t.begin(), t.end(), 1.0, std::multiplies<>());
  if (a.art == Bruch) return t.at(0) / t.at(1);
  if (a.art == Wurzel) return std::sqrt(t.at(0));
  return a.art == Potenz ? std::pow(t.at(0), t.at(1)) : std::log(t.at(0));
}

/// Unit of the last digit; zeros before a missing point only fill up.
double Einheit(const std::string& zahl) {
  const std::size_t punkt = zahl.find('.');
  if (punkt != std::string::npos) return 1 / std::pow(10.0, double(zahl.size() - punkt) - 1);
  return zahl.size() > 5 ? std::pow(10.0, double(zahl.size() - zahl.find_last_not_of('0') - 1)) : 1;
}

std::size_t Stellenzahl(const std::string& zahl) {
  const std::size_t erste = std::min(zahl.find_first_of("123456789"), zahl.size());
  return zahl.size() - erste - (zahl.find('.', erste) != std::string::npos ? 1 : 0);
}

std::string Name(const Groesse& g) {
  return g.index.empty() ? g.symbol : g.symbol + '_' + g.index;
}

/// A column of the sheet whose way is checked.
class Rechenwege : public testing::Test, protected Tisch {
 protected:
  Rechenwege() { s.einstellungen.Meldungen = false; }

  void Setzen(const std::string& f, const std::string& P, const std::string& G = "2.15",
              const std::string& a = "1.1", const std::string& w = "0") {
    Zelle(1, ZeileFrequenz, f).Zelle(1, ZeileLeistung, P).Zelle(1, ZeileGewinn, G);
    Zelle(1, ZeileVerluste, a).Zelle(1, ZeileWinkel, w);
    s.spaltenfarben[0].rueckwaerts = false;
  }
  void Rechnen() { Tun(KopfGeklickt, 1); }
  /// Row 6 from row 10.
  void Rueckwaerts(const std::string& abstand) {
    Rechenwerte werte = Spaltenwerte(s, 1);
    werte.PWRText = abstand;
    const Rechenergebnis e = Berechnen(werte, {Modus::Leistung, s.einstellungen.AFu});
    Zelle(1, ZeileLeistung, *Ausgabetexte(e, '.')[Feld::AusgabeOhneHSM]).Zelle(1, ZeileOhneHSM, abstand);
    Zelle(1, ZeileHSM306, "").Zelle(1, ZeileHSMvde, "");
    s.spaltenfarben[0].rueckwaerts = true;
  }

  std::string Text() const {
    std::string text;
    for (const Rechenabschnitt& abschnitt : Rechenweg(s, k, 1)) {
      text += abschnitt.titel + '\n';
      for (const Rechenzeile& zeile : abschnitt.zeilen) text += zeile.text + '\n';
    }
    return text;
  }

  /// Symbols stand for what has been given or found before.
  void SymbolePruefen(const Ausdruck& a) {
    static const std::string aushilfen = " π f_u f_o U_u U_o f_1 f_2 α_1 α_2 ";
    for (const Ausdruck& teil : a.teile) SymbolePruefen(teil);
    const std::string name = Name(a.groesse);
    if (name.empty() || aushilfen.find(' ' + name + ' ') != std::string::npos) return;
    const std::string& vorher = bekannt_[name];
    ASSERT_FALSE(vorher.empty()) << name;
    ASSERT_NEAR(std::stod(vorher), std::stod(a.groesse.zahl), Einheit(vorher)) << name;
  }

  /// Every equation gives its result, at `stellen` digits or at the sheet's; how many there are.
  int Gleichungen(std::size_t stellen = 6) {
    int anzahl = 0;
    bekannt_.clear();
    for (const Rechenabschnitt& abschnitt : Rechenweg(s, k, 1)) {
      for (const Rechenzeile& zeile : abschnitt.zeilen) {
        if (zeile.eingabe) bekannt_[Name(*zeile.eingabe)] = zeile.eingabe->zahl;
        if (!zeile.gleichung) continue;
        ++anzahl;
        const auto& [g, formel] = *zeile.gleichung;
        SymbolePruefen(formel);
        EXPECT_TRUE(IstDezimalzahl(g.zahl)) << g.zahl;
        EXPECT_NEAR(Ausgerechnet(formel), std::stod(g.zahl), Einheit(g.zahl)) << Name(g);
        const bool blatt =
            std::string("d P a").find(g.symbol) != std::string::npos && Einheit(g.zahl) == 0.01;
        EXPECT_TRUE(blatt || formel.art == Ausdruck::Art::Groesse || Stellenzahl(g.zahl) >= stellen)
            << g.zahl;
        bekannt_[Name(g)] = g.zahl;
      }
    }
    return anzahl;
  }

  /// Single precision cannot vouch for the last digits of a number above 10000.
  void WieImBlatt(const std::string& name, Zeile zeile) {
    const std::string zelle = Blatt(1, zeile);
    const bool genannt = Text().find("Im Datenblatt steht " + zelle + ' ') != std::string::npos;
    EXPECT_TRUE(bekannt_[name] == zelle || (zelle.size() > 7 && genannt)) << bekannt_[name] << ' ' << zelle;
  }

  /// The way of a column that holds.
  void Pruefen(int kabel = 0, std::size_t stellen = 6) {
    const std::optional<Rechenart> art = HaltendeArt(s, 1);
    ASSERT_TRUE(art);
    const bool zurueck = art->modus == Modus::Leistung;
    if (zurueck) ++rueckwaerts_;
    Rechenwerte werte = Spaltenwerte(s, 1);
    const Grenzwerte g = Berechnen(werte, {Modus::Abstand, art->afu}).grenzwerte;
    const int hsm306 = g.hsm306.Uss == 0 ? 0 : 4;
    const int hsmVDE = (g.hsmVDE.Uss == 0 ? 0 : 1) + (g.hsmVDE.Anzahl == 0 ? 0 : g.hsmVDE.Anzahl + 2);
    EXPECT_EQ(Gleichungen(stellen), 8 + hsm306 + hsmVDE + kabel);
    WieImBlatt("d", ZeileOhneHSM);
    WieImBlatt("P", ZeileLeistung);
    if (zurueck) return;
    WieImBlatt("d_306", ZeileHSM306);
    if (g.hsmVDE.Uss == 0 || g.hsmVDE.Anzahl > 0) WieImBlatt("d_VDE", ZeileHSMvde);
    EXPECT_EQ(Text().find("Datenblatt zeigt"), std::string::npos);
  }

  std::map<std::string, std::string> bekannt_;
  int rueckwaerts_ = 0;
};

TEST_F(Rechenwege, JedeGleichungInJedemAbschnitt) {
  std::vector<float> frequenzen;
  for (const Amateurband& band : Amateurbaender()) frequenzen.insert(frequenzen.end(), {band.von, band.bis});
  std::istringstream grenzen(
      "0.003 0.03 0.05 0.1 0.15 0.2 0.5 0.63 0.79 1 1.3 1.7 2 3 5 7 9.5 10 20 22 50 79 100 144 200 240 400 "
      "500 "
      "600 850 1100 1200 1500 1800 2000 2500");
  for (float grenze = 0; grenzen >> grenze;) {
    for (const float f : {std::nextafter(grenze, 0.F), grenze, std::nextafter(grenze, 1e9F), grenze * 1.1F})
      if (f >= 0.003F) frequenzen.push_back(f);
  }
  for (const float f : frequenzen) {
    for (const int fall : {0, 1, 2, 3, 4, 5}) {
      s.einstellungen.AFu = fall % 2 == 0;
      s.Datenblattspalten[1] = LeereSpalte();
      s.Datenblattspalten[1].Grenzwerttyp = std::int16_t(fall / 2);
      s.Datenblattspalten[1].Zyklusfaktor = fall == 2 ? "0.17" : "1.00";
      SCOPED_TRACE(Dezimal(f) + " MHz, " + std::to_string(fall));
      Setzen(Dezimal(f), "100", "2.15", "1.1", fall == 4 ? "3.33" : "0");
      Rechnen();
      Pruefen();
      Rueckwaerts("7.5");
      Pruefen();
    }
  }
  EXPECT_GT(rueckwaerts_, 900);
}

/// One for every 250 actions of VESK_ZUFALL.
TEST_F(Rechenwege, Zufallsspalten) {
  const char* anzahl = std::getenv("VESK_ZUFALL");
  const int laeufe = static_cast<int>(anzahl != nullptr ? std::strtol(anzahl, nullptr, 10) : 100000) / 250;
  std::mt19937 zufall(7);
  const auto zahl = [&](double von, double bis, int stellen) {
    return Formatieren(std::uniform_real_distribution(von, bis)(zufall), stellen, '.');
  };
  for (int i = 0; i < laeufe; ++i) {
    s.einstellungen.AFu = i % 2 == 0;
    const std::string f = Formatieren(std::exp(std::stod(zahl(0, 8, 4))), 3, '.');
    Setzen(f, zahl(1, 1500, i % 4), zahl(-20, 30, 2), zahl(0, 12, 2), i % 3 == 0 ? zahl(0, 25, 2) : "0");
    Zelle(1, ZeileBetriebsarten, i % 5 == 0 ? "cw" : "ssb pr");
    s.Datenblattspalten[1] = LeereSpalte();
    s.Datenblattspalten[1].Modulationsfaktor = "0.40";
    s.Datenblattspalten[1].Zyklusfaktor = i % 7 == 0 ? "0.33" : "0.17";
    s.Datenblattspalten[1].Grenzwerttyp = std::int16_t(i % 3);
    int kabel = 0;
    if (i % 4 != 0) {
      Tun(ZelleGeklickt, 1);
      const bool anderes = i % 8 == 1;
      Tun(KabelfeldGetippt, Kabelfeld::Stecker, i % 8 == 3 ? zahl(0, 2, 1) : std::string());
      Tun(KabelfeldGetippt, Kabelfeld::QRG, f).Verlassen();
      Kabel(anderes ? "Anderes Kabel" : k.kabel.liste.at(zufall() % (k.kabel.liste.size() - 1)),
            zahl(1, 150, 1));
      if (anderes) Tun(KabelfeldGetippt, Kabelfeld::D100, zahl(1, 30, 2)).Tun(KabelGleich);
      kabel = anderes ? 2 : 4;
    }
    Rechnen();
    Pruefen(kabel, 5);
    Rueckwaerts(zahl(5, 60, 2));
    Pruefen(kabel, 5);
  }
  EXPECT_GT(rueckwaerts_, laeufe * 9 / 10);
}

TEST_F(Rechenwege, NenntRegelUndAbschnitt) {
  using Fall = std::tuple<const char*, std::int16_t, bool, const char*>;
  for (const auto& [f, typ, afu, text] : std::initializer_list<Fall>{
           {"14.2", 0, true, "Vfg 306/97: 14 MHz liegt im Abschnitt 10 ≤ f < 400 MHz."},
           {"14.2", 0, true, "14.35 MHz liegt im Abschnitt 10 ≤ f < 20 MHz; die Störschwelle"},
           {"14.2", 0, false, "für genau diese Frequenz"},
           {"1", 0, false, "Vfg 306/97: 1 MHz liegt im Abschnitt 1 ≤ f < 10 MHz."},
           {"0.1", 0, false, "Vfg 306/97: 0.1 MHz liegt im Abschnitt 0.003 ≤ f < 0.15 MHz."},
           {"50", 0, false, "50 MHz liegt im Abschnitt 20 ≤ f ≤ 50 MHz; die Störschwelle"},
           {"50", 0, true, "Für 51 MHz gibt es keinen Grenzwert und keinen Abstand HSM 306."},
           {"100", 0, false, "Grenzwerttyp AM (AFu): 100 MHz liegt im Abschnitt 79 ≤ f ≤ 100 MHz"},
           {"145", 0, true, "nennt Störschwellen nur von 0.03 bis 100 MHz. Für 144 MHz"},
           {"145", 1, true, "Grenzwerttyp TV (Fernsehmodulation): 144 MHz liegt im Abschnitt 144 ≤ f < 200"},
           {"1900", 2, false, "Grenzwerttyp GSM: 1900 MHz liegt im Abschnitt 1800 < f < 2000 MHz"},
           {"1900", 2, false, "1900 MHz liegt im Abschnitt 1500 ≤ f < 2500 MHz der Umrechnung."},
           {"2500", 2, false, "Für 2500 MHz nennt der Entwurf keine Umrechnung"},
           {"400000", 0, false, "Über 300 GHz ist kein Grenzwert bestimmt"},
       }) {
    s.einstellungen.AFu = afu;
    s.Datenblattspalten[1].Grenzwerttyp = typ;
    Setzen(f, "100");
    Rechnen();
    EXPECT_NE(Text().find(text), std::string::npos) << text << '\n' << Text();
  }
}

TEST_F(Rechenwege, SagtWasMitDerSpalteIst) {
  const auto sagt = [this](const char* satz) {
    EXPECT_NE(Text().find(satz), std::string::npos) << satz << '\n' << Text();
  };
  Eingeben("14.2", "100").Kabel("RG213", "50").Rechnen();
  Kopieren();
  const Station mitKabel = s;
  EXPECT_EQ(Gleichungen(), 21);
  sagt("RG213 nach Katalog: 1.86 dB je 100 m bei 10 MHz, 2.66 dB bei 20 MHz");
  Zelle(1, ZeileVerluste, "1.11 dB");
  EXPECT_EQ(Gleichungen(), 21);
  Zelle(1, ZeileVerluste, "2");
  sagt("von Hand eingetragen. Das Kabel der Spalte ergibt 1.11 dB.");
  sagt("Es zeigt in m: ohne HSM 1.75, HSM 306 7.35, HSM VDE 3.91.");
  s = mitKabel;
  s.Datenblattspalten[1].KabelIndex = "1";
  sagt("heute 4.16 dB: Kabel, Frequenz oder Katalog sind andere.");
  s.Datenblattspalten[1].KabelIndex = "99";
  sagt("Das Kabel steht nicht mehr im Katalog.");
  s = mitKabel;
  Zelle(1, ZeileFrequenz, "21");
  sagt("für eine andere Frequenz als die der Spalte");
  EXPECT_EQ(Gleichungen(), 21);
  for (const auto text :
       {&Datenblattspalte::KabelLaenge, &Datenblattspalte::Stecker, &Datenblattspalte::QRG}) {
    s.Datenblattspalten[1].*text = std::string(45, '9');
    sagt("mit dem Kabel der Spalte läßt sich nicht rechnen");
    s = mitKabel;
  }
  Zelle(1, ZeileBetriebsarten, "cw ssb ").Zelle(1, ZeileWinkel, "3");
  s.Datenblattspalten[1].Modulationsfaktor = "0.50";
  sagt("Betriebsarten: cw 0.40, ssb 0.50; der größte Faktor gilt.");
  sagt("verpflichtet sich");
  sagt("keine vollständige Winkeltabelle");
  s.Datenblattspalten[1].Winkel = {"0", "1", "3.0", "3", "5", "6", "7", "8", "9"};
  sagt("w ist der Wert des Sektors 20 bis 30 Grad");
  Zelle(1, ZeileWinkel, "4");
  sagt("kein Sektor der Winkeltabelle hat diesen Wert");
  sagt(
      "Im reaktiven Nahfeld (bis 3.41 m): ohne HSM (0.78 m), HSM VDE (2.47 m). Außerhalb: HSM 306 (4.64 m).");
}

TEST_F(Rechenwege, OhneRechnungNurEingabenUndGrund) {
  const std::string neuner(20, '9');
  for (const auto& [f, P, G, satz] : std::initializer_list<std::array<const char*, 4>>{
           {"0.002", "100", "0", "Unter 0.003 MHz nennt Vfg 306/97 keinen Grenzwert"},
           {"14.2", "1e99", "0", "„1e99“ ist zu groß."},
           {"14.2", "100", "1e99", "Ein Wert ist zu groß"},
           {"14.2", "100", neuner.c_str(), "Mit diesen Werten läßt sich kein"},
           {"abc", "100", "0", "„abc“ wird als 0 gelesen."},
           {"", "", "", "müssen Zahlen größer als 0 sein"},
       }) {
    Setzen(f, P, G, "");
    EXPECT_EQ(Rechenweg(s, k, 1).size(), 2U) << f << ' ' << P << ' ' << G;
    EXPECT_EQ(Gleichungen(), 0);
    EXPECT_NE(Text().find(satz), std::string::npos) << Text();
  }
  Setzen("14,2", "1e3", "+5", "", ".5");
  EXPECT_EQ(Gleichungen(), 17);
  EXPECT_NE(Text().find("„14,2“ wird als 14 gelesen."), std::string::npos);
  EXPECT_NE(Text().find("Im Datenblatt stehen diese Abstände noch nicht."), std::string::npos);
}

}  // namespace
}  // namespace vesk
