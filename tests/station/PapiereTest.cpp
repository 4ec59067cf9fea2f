#include "engine/Zahlen.h"
#include "station/Papiere.h"
#include "tests/Tabelle.h"
#include "tests/station/Tisch.h"

namespace vesk {
namespace {

/// Everything that is filed is there: an operator and one column for 28 MHz with its angle table.
struct Antragsteller : Tisch {
  explicit Antragsteller(bool exakt = false) {
    s.benutzer = {"Jörg Müßig", "Am Weiß 3", "Köln", "", "", "DL1ABC", "1", "Flurstück 7/2"};
    if (exakt) Tun(AFuUmschalten);
    Eingeben("28", "750", "8", "1", "3.33").Rechnen().Kopieren();
    if (exakt) Tun(AFuUmschalten);
    Beschreiben();
    Winkel() = {"0.00", "0.85", "3.330", "11.25", "12.92", "14.58", "16.67", "17.50", "20.00"};
  }
  void Beschreiben() {
    Zelle(1, ZeileHoehe, "12").Zelle(1, ZeileRichtung, "ND").Zelle(1, ZeileAntenne, "Beam");
  }
  Winkeldaempfungen& Winkel() { return s.Datenblattspalten[1].Winkel; }
  void Aendern(Zeile zeile, const std::string& text) { Zelle(1, zeile, text).Tun(KopfGeklickt, 1); }
};

/// The text that is open, and its place.
void Erwarten(const Station& s, const Kataloge& k, const std::string& texte, const Papierort& ort) {
  const std::vector<Befund> befunde = PapierePruefen(s, k);
  std::string alle;
  for (const Befund& befund : befunde) alle += (alle.empty() ? "" : "\n") + befund.text;
  EXPECT_EQ(alle, texte);
  ASSERT_FALSE(befunde.empty());
  EXPECT_EQ(befunde.front().ort, ort) << texte;
}

TEST(Papiere, JedesOffeneWirdGenannt) {
  Antragsteller fertig;
  fertig.Aendern(ZeileFrequenz, "145");  // no pacemaker limit, no distance
  EXPECT_EQ(PapierePruefen(fertig.s, fertig.k), std::vector<Befund>());
  for (const Tabellenzeile& fall : Tabelle("station/Papiere.csv")) {
    Antragsteller a;
    const auto nummer = std::size_t(fall.Zahl("nummer"));
    if (fall["was"] == "Feld") a.s.benutzer.*Benutzerfelder.at(nummer) = fall["text"];
    if (fall["was"] == "Sektor") a.Winkel().at(nummer) = fall["text"];
    if (fall["was"] == "Zelle") a.Zelle(1, Zeile(nummer), fall["text"]);
    if (fall["gerechnet"] == "ja") a.Tun(KopfGeklickt, 1);
    Papierort ort = ImWinkelblatt{};
    if (fall["ort"] == "Feld") ort = BeimBenutzer{std::size_t(fall.Zahl("stelle"))};
    if (fall["ort"] == "Zelle") ort = InZelle{1, Zeile(fall.Zahl("stelle"))};
    Erwarten(a.s, a.k, Ersetzt(fall["befund"], "|", ";"), ort);

    const Station vorher = a.s;
    a.Tun(ZumBefund, ort);
    constexpr std::array Fenster = {&Fensterlage::benutzer, &Fensterlage::datenblatt, &Fensterlage::optionen};
    EXPECT_TRUE(a.s.fenster.*Fenster.at(ort.index())) << fall.text;
    a.s.fenster = vorher.fenster;
    EXPECT_EQ(a.s, vorher);
  }
}

struct Offen : testing::Test, Antragsteller {};

TEST_F(Offen, LeeresBlatt) {
  s.Zellen = {};
  Erwarten(s, k, "Datenblatt: Keine Spalte ist ausgefüllt.", InZelle{1, ZeileFrequenz});
}

TEST_F(Offen, OhneFrequenzUndLeistungFehltKeinAbstand) {
  Zelle(1, ZeileWinkel, "0")
      .Zelle(1, ZeileFrequenz, "")
      .Zelle(1, ZeileLeistung, "viel")
      .Tun(ZelleGeklickt, 1);
  Tun(SpalteRechnen);
  Erwarten(s, k, "Spalte A: Die Frequenz fehlt.\nSpalte A: Die Sendeleistung muß eine Zahl über 0 sein.",
           InZelle{1, ZeileFrequenz});
}

TEST_F(Offen, Faktor) {
  Tun(ZelleGeklickt, 1).Tun(ZyklusGeklickt, 2);
  Erwarten(
      s, k,
      "Spalte A: Gerechnet ist mit dem Faktor 0.50; er darf beim Funkbetrieb nicht überschritten werden.",
      InZelle{1, ZeileBetriebsarten});
}

TEST_F(Offen, NichtBerechenbar) {
  Zelle(1, ZeileWinkel, "0").Zelle(1, ZeileFrequenz, "0.002");
  for (const Zeile zeile : {ZeileOhneHSM, ZeileHSM306, ZeileHSMvde}) Zelle(1, zeile, "");
  Erwarten(s, k, "Spalte A: Die Sicherheitsabstände lassen sich nicht berechnen.", InZelle{1, ZeileOhneHSM});
}

const std::string ImNahfeld =
    "Spalte A: Der Sicherheitsabstand ohne HSM liegt im Nahfeld, das bis 1.70 m reicht; eventuell ist eine "
    "Nahfeldberechnung oder Messung erforderlich.";

TEST_F(Offen, NahfeldDerGenauenFrequenz) {
  Tun(AFuUmschalten).Zelle(1, ZeileFrequenz, "29.5");
  Aendern(ZeileLeistung, "20");
  Tun(AFuUmschalten);
  Erwarten(s, k, Ersetzt(ImNahfeld, "1.70", "1.62"), InZelle{1, ZeileOhneHSM});
}

TEST_F(Offen, RueckwaertsGerechneteSpalte) {
  Tun(DatenblattLeeren).Tun(ModusGeklickt).Eingeben("28", "0.3").Rechnen().Kopieren();
  Beschreiben();
  Erwarten(s, k, "Spalte A: Die Sicherheitsabstände HSM 306 und HSM VDE fehlen.\n" + ImNahfeld,
           InZelle{1, ZeileHSM306});
}

/// A record knows its cable by the place in the list, which whoever edits the file changes.
TEST_F(Offen, EinAnderesKabelAnDerStelle) {
  Tun(DatenblattLeeren).Eingeben("14.2").Kabel("RG213", "15").Rechnen().Kopieren();
  Beschreiben();
  EXPECT_EQ(Kabelabweichung(s, k, 1), std::nullopt);
  std::swap(k.kabel.kabel[0], k.kabel.kabel[1]);
  std::swap(k.kabel.liste[0], k.kabel.liste[1]);
  const std::string anfang = "Die Kabelverluste a sind aus 2.23 dB je 100 m berechnet. ";
  EXPECT_EQ(Kabelabweichung(s, k, 1),
            anfang + "Der Katalog nennt für RG58 heute 4.16 dB: Kabel, Frequenz oder Katalog sind andere.");
  const std::vector<Befund> befunde = PapierePruefen(s, k);
  EXPECT_TRUE(std::any_of(befunde.begin(), befunde.end(), [](const Befund& befund) {
    return befund.ort == Papierort(InZelle{1, ZeileVerluste});
  }));
  s.Datenblattspalten[1].KabelIndex = "-1";
  EXPECT_EQ(Kabelabweichung(s, k, 1), anfang + "Das Kabel steht nicht mehr im Katalog.");
  Zelle(1, ZeileVerluste, "3");
  EXPECT_EQ(Kabelabweichung(s, k, 1), std::nullopt) << "typed";
}

TEST(Papiere, WinkelblattEinerSpalteHatIhreAbstaende) {
  for (const bool exakt : {false, true}) {
    Antragsteller a(exakt);
    EXPECT_EQ(PapierePruefen(a.s, a.k), std::vector<Befund>());
    ASSERT_EQ(WinkelblaetterDerSpalten(a.s).size(), 1);
    const Winkelblatt blatt = WinkelblaetterDerSpalten(a.s).front();
    EXPECT_EQ(blatt.bezug + blatt.frequenz + blatt.AntEinPWR, "Spalte A28595.75");
    const Sektor& sektor = blatt.tabelle.sektoren.at(2);
    EXPECT_EQ(Formatieren(sektor.ohneHSM), a.Blatt(1, ZeileOhneHSM));
    EXPECT_EQ(Formatieren(sektor.HSM306.value()), a.Blatt(1, ZeileHSM306));
    EXPECT_EQ(Formatieren(sektor.HSMvde.value()), a.Blatt(1, ZeileHSMvde));
    a.Aendern(ZeileLeistung, "0.04");  // 0.03 W at the antenna, when rounded, would give less
    const Winkelblatt klein = WinkelblaetterDerSpalten(a.s).front();
    EXPECT_EQ(Formatieren(klein.tabelle.sektoren.at(2).HSM306.value()), a.Blatt(1, ZeileHSM306));
    a.Aendern(ZeileWinkel, "0");
    EXPECT_TRUE(WinkelblaetterDerSpalten(a.s).empty());
  }
}

TEST(Papiere, WinkelseiteNimmtDieGroessteLeistungIhresBandes) {
  Tisch t;
  for (const char* watt : {"10", "750", "20"}) t.Eingeben("28", watt, "0", "1").Rechnen().Kopieren();
  t.Eingeben("145", "900").Rechnen().Kopieren();
  t.s.Datenblattspalten[2].Grenzwerttyp = GrenzwertTV;
  t.s.winkel.frequenz = "29.2";
  EXPECT_TRUE(WinkelseiteAusSpalte(t.s));
  EXPECT_EQ(t.s.winkel.AntEinPWR, "595.75");
  EXPECT_EQ(t.s.werte.Grenzwerttyp, GrenzwertTV);
  t.s.winkel.frequenz = "7";
  EXPECT_FALSE(WinkelseiteAusSpalte(t.s));
}

TEST(Papiere, WinkelblattDerSeiteNurMitDaempfungen) {
  Tisch t;
  t.Eingeben("144", "100").Rechnen();
  EXPECT_TRUE(WinkelblattDerSeite(t.s).tabelle.sektoren.empty());
  t.Tun(WinkelBeispiel);
  t.s.winkel.datei = "/daten/h-tonna.ang";
  const Winkelblatt blatt = WinkelblattDerSeite(t.s);
  EXPECT_EQ(blatt.tabelle, t.s.winkel.ergebnis->tabelle);
  EXPECT_EQ(blatt.tabelle.sektoren.size(), AnzahlSektoren);
  EXPECT_EQ(blatt.ebene, Winkelebene::Horizontal);
  t.Tun(WinkeldaempfungGetippt, std::size_t{8}, std::string("-9999"));
  EXPECT_TRUE(WinkelblattDerSeite(t.s).tabelle.sektoren.empty());
  EXPECT_TRUE(WinkelblattDerSeite(t.s).tabelle.fehler);
}

}  // namespace
}  // namespace vesk
