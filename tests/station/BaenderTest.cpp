#include "station/Baender.h"
#include "station/Wegweiser.h"
#include "tests/station/Tisch.h"

namespace vesk {
namespace {

using enum Eingabefeld;

struct Fall {
  const char* name;
  void (*vorbereiten)(Tisch&);
};

int Antennenindex(const Tisch& t, const std::string& typ) {
  const auto& antennen = t.k.antennen.Antennen;
  const auto fund =
      std::find_if(antennen.begin(), antennen.end(), [&](const auto& a) { return a.typ == typ; });
  return int(fund - antennen.begin());
}
void Antenne(Tisch& t, const std::string& typ) {
  t.Tun(AntenneGewaehlt, Antennenindex(t, typ)).Tun(AntenneNehmen);
}

constexpr Fall Faelle[] = {
    {"VonHand", [](Tisch& t) { t.Eingeben("14.2", "100", "10", "1.5", "3").Rechnen(); }},
    {"KabelUndAntenne",
     [](Tisch& t) {
       t.Tun(BetriebsartGeklickt, 0).Eingeben("14.2").Kabel("RG213", "20");
       Antenne(t, "Yagi 5el");
     }},
    {"Exakt",
     [](Tisch& t) {
       t.Tun(AFuUmschalten).Eingeben("145.5", "50").Kabel("H155", "35.5").Tun(GrenzwerttypGeklickt, 2);
       Antenne(t, "Doppelquad");
     }},
    {"Rueckwaerts",
     [](Tisch& t) {
       t.Tun(ModusGeklickt).Eingeben("7.05", "8").Kabel("RG58", "12");
       Antenne(t, "Dbl 2x20m");
     }},
    {"AnderesKabel",
     [](Tisch& t) {
       t.Eingeben("14.2", "400", "6").Kabel("Anderes Kabel", "20");
       t.Tun(KabelfeldGetippt, Kabelfeld::D100, std::string("8"));
       t.Tun(KabelfeldGetippt, Kabelfeld::Stecker, std::string("0.5")).Tun(KabelGleich);
     }},
    {"AusEinerSpalte",
     [](Tisch& t) {
       t.Eingeben("21").Kabel("RG213", "20");
       Antenne(t, "G5RV 31m");
       t.Rechnen().Kopieren().Eingeben("3.7", "5", "0").Kabel("RG58", "").Tun(ZelleGeklickt, 1);
       t.s.AntennenIndex = -1;  // as when the sheet was read from a file
     }},
    {"OhneOptionen", [](Tisch& t) { t.Eingeben("14.2").Kabel("RG213", "5").Tun(OptionenSchalten, false); }},
    {"MittenImTippen", [](Tisch& t) { t.Eingeben("14.2").Kabel("RG213", "50").Tippen(KabelQRG, "435"); }},
};

struct Baender : testing::TestWithParam<Fall>, Tisch {
  Baender() {
    GetParam().vorbereiten(*this);
    antenne = s.Datenblattspalten[0].Antenne;
  }
  std::string antenne;
};
INSTANTIATE_TEST_SUITE_P(Faelle, Baender, testing::ValuesIn(Faelle),
                         [](const auto& fall) { return std::string(fall.param.name); });

/// The next `frei` ticked bands from `erstes` on.
Baenderwahl Naechste(const Baenderwahl& kopierbar, std::size_t& erstes, int frei) {
  Baenderwahl wahl;
  for (; erstes < wahl.size() && int(wahl.count()) < frei; ++erstes) wahl[erstes] = kopierbar[erstes];
  return wahl;
}

TEST_P(Baender, KopiertWieVonHandGetippt) {
  const std::vector<Bandzeile> zeilen = AlleBaender(s, k);
  const Baenderwahl alle = KopierbareBaender(zeilen, Baenderwahl().set());
  ASSERT_GE(alle.count(), 3U);
  for (std::size_t i = 0; i < zeilen.size();) {
    const Baenderwahl wahl = Naechste(alle, i, FreieSpalten(s));
    Tisch kopiert = static_cast<const Tisch&>(*this);
    Tisch getippt = static_cast<const Tisch&>(*this);
    kopiert.Tun(BaenderKopieren, wahl);
    int spalte = AnzahlSpalten - FreieSpalten(s);
    for (std::size_t band = 0; band < zeilen.size(); ++band) {
      if (!wahl.test(band)) continue;
      getippt.Tippen(QRG, zeilen[band].frequenz).Verlassen();
      if (!antenne.empty()) Antenne(getippt, antenne);
      getippt.Rechnen().Kopieren();
      ++spalte;
      const bool abstand = s.modus == Modus::Abstand;
      EXPECT_EQ(kopiert.Blatt(spalte, abstand ? ZeileOhneHSM : ZeileLeistung),
                zeilen[band].texte[Feld::AusgabeOhneHSM]);
      EXPECT_EQ(kopiert.Blatt(spalte, ZeileGewinn), zeilen[band].gewinn);
    }
    EXPECT_EQ(kopiert.s.Zellen, getippt.s.Zellen);
    EXPECT_EQ(kopiert.s.spaltenfarben, getippt.s.spaltenfarben);
    for (std::size_t n = 1; n <= AnzahlSpalten; ++n) {
      EXPECT_EQ(kopiert.s.Datenblattspalten.at(n), getippt.s.Datenblattspalten.at(n)) << n;
      EXPECT_TRUE(kopiert.Blatt(int(n), ZeileFrequenz).empty() || Haelt(kopiert.s, int(n))) << n;
    }
    // All else is as before.
    kopiert.s.Zellen = s.Zellen;
    kopiert.s.spaltenfarben = s.spaltenfarben;
    std::copy(s.Datenblattspalten.begin() + 1, s.Datenblattspalten.end(),
              kopiert.s.Datenblattspalten.begin() + 1);
    EXPECT_TRUE(kopiert.s.UserGeaendert || wahl.none());
    kopiert.s.UserGeaendert = s.UserGeaendert;
    kopiert.s.ergebnis = s.ergebnis;  // of which a copy may stand in the sheet now
    EXPECT_EQ(kopiert.s, s);
  }
}

struct EineStation : testing::Test, Tisch {
  Bandzeile Band(const std::string& name) {
    zeilen = AlleBaender(s, k);
    return *std::find_if(zeilen.begin(), zeilen.end(), [&](const auto& z) { return z.band->name == name; });
  }
  Tisch& Ankreuzen(std::size_t von, std::size_t anzahl) {
    for (std::size_t i = 0; i < anzahl; ++i) Tun(BandAnkreuzen, von + i, true);
    return *this;
  }
  std::vector<Bandzeile> zeilen;
};

TEST_F(EineStation, DieEigeneFrequenzGiltInIhremBand) {
  Eingeben("14.2").Kabel("RG213", "50").Rechnen();
  EXPECT_EQ(Band("20 m").frequenz + ' ' + Band("20 m").verluste, "14.2 1.11");
  EXPECT_EQ(Band("20 m").texte[Feld::AusgabeOhneHSM], "1.75");
  EXPECT_EQ(Band("160 m").frequenz + ' ' + Band("17 m").frequenz + ' ' + Band("1.2 cm").frequenz,
            "1.815 18.068 24000");
  Tippen(QRG, "144").Verlassen();
  EXPECT_EQ(Band("20 m").frequenz + ' ' + Band("2 m").frequenz, "14 144");
}

TEST_F(EineStation, WasKopiertIstBrauchtKeinGleich) {
  Eingeben("14");
  EXPECT_EQ(NaechsterSchritt(s, k).text, "Berechnen: =");
  Tun(BaenderKopieren, Baenderwahl().set(4));
  EXPECT_EQ(NaechsterSchritt(s, k).text, "Datei speichern");
  Tippen(PWR, "50").Verlassen();
  EXPECT_EQ(NaechsterSchritt(s, k).text, "Berechnen: =");
}

TEST_F(EineStation, FehlenderGrenzwertWirdBegruendet) {
  Eingeben("144");
  for (const char* band : {"10 m", "6 m", "2 m", "3 cm"}) {
    const Bandzeile zeile = Band(band);
    EXPECT_EQ(zeile.texte[Feld::AusgabeHSM306] == "", zeile.hinweis.find("HSM 306") != std::string::npos)
        << band << ": " << zeile.hinweis;
  }
}

TEST_F(EineStation, WasNichtGehtStehtInWorten) {
  EXPECT_EQ(Band("20 m").hinweis, "Sendeleistung fehlt");
  Tun(BaenderKopieren, Baenderwahl().set());
  EXPECT_EQ(gesagt.back(), "Alle Bänder");
  Eingeben("144").Kabel("RG213", "20");
  EXPECT_EQ(
      Bandgrundlage(s, k),
      "Gewinn 0 dBi auf allen Bändern, wie eingetippt. Kabel RG213, 20 m: Verluste je Band aus dem Katalog.");
  EXPECT_TRUE(Band("3 cm").rechenbar);
  EXPECT_TRUE(Band("3 cm").hinweis.starts_with("Kabelverlust unbekannt")) << "where it is not cut off";
  Antenne(*this, "2m-Yagi 5m");
  EXPECT_EQ(KopierbareBaender(AlleBaender(s, k), Baenderwahl().set()), Baenderwahl().set(10));
  EXPECT_EQ(Band("20 m").hinweis, "Band der Antenne nicht im Katalog");
  EXPECT_EQ(Band("20 m").texte[Feld::AusgabeOhneHSM], std::nullopt);
  Tippen(Gewinn, "9").Verlassen();  // typed: no longer the antenna's
  EXPECT_EQ(Band("20 m").gewinn, "9");
  Tippen(PWR, std::string(45, '9')).Verlassen();
  EXPECT_EQ(Band("20 m").hinweis, "Überlauf");
  EXPECT_FALSE(Band("20 m").rechenbar);
}

TEST_F(EineStation, HinweiseKommenInEinerMeldung) {
  Eingeben("144", "100", "0", "1").Rechnen();
  gesagt.clear();
  Ankreuzen(0, 7);
  const Station vorher = s;
  const Meldungen meldungen = BaenderKopieren(s, k, s.schaubilder.baender);
  ASSERT_EQ(meldungen.size(), 1U);
  const std::string text = meldungen.front().hinweis.text;
  EXPECT_NE(text.find("\n30 m: Nahfeld bis 4.72 m, weiter als ohne HSM, HSM VDE"), std::string::npos) << text;
  EXPECT_EQ(FreieSpalten(s), 0);
  EXPECT_TRUE(s.schaubilder.baender.none());
  s = vorher;
  Tun(WarnmeldungenUmschalten);
  EXPECT_TRUE(BaenderKopieren(s, k, s.schaubilder.baender).empty());
  EXPECT_EQ(FreieSpalten(s), 0);
}

TEST_F(EineStation, MehrBaenderAlsFreieSpaltenKopiertNichts) {
  Eingeben("144").Rechnen().Kopieren();
  Ankreuzen(2, 7);
  const Station vorher = s;
  const Meldungen meldungen = BaenderKopieren(s, k, s.schaubilder.baender);
  ASSERT_EQ(meldungen.size(), 1U);
  EXPECT_NE(meldungen.front().hinweis.text.find("Bänder: 7\nFreie Spalten im Datenblatt: 6\n"),
            std::string::npos);
  EXPECT_EQ(s, vorher);
}

}  // namespace
}  // namespace vesk
