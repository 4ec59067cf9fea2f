#include "station/Papiere.h"
#include "station/Verlauf.h"
#include "station/Wegweiser.h"
#include "tests/station/Tisch.h"

namespace vesk {
namespace {

struct Rueckgaengig : testing::Test, Tisch {
  template <typename Tat>
  void Schritt(Tat tat, const void* feld = nullptr) {
    const Station vorher = s;
    tat();
    verlauf.Merken(vorher, s, feld);
  }
  int Zurueck() {
    int schritte = 0;
    while (verlauf.Zurueck(s)) ++schritte;
    return schritte;
  }
  Verlauf verlauf;
};

TEST_F(Rueckgaengig, GetipptesUndWasDarausFolgt) {
  s.werte.GewinnText = s.werte.DaempfungText = s.werte.WinkelDaempfungText = "0";
  for (const char* text : {"1", "14", "14."}) {
    Schritt([&] { Tippen(Eingabefeld::QRG, text); }, &s.werte.QRGText);
  }
  Schritt([&] { Tun(TooltipsUmschalten); });  // from the keyboard, the field is left afterwards
  const Station vorher = s;
  Verlassen();
  verlauf.MerkenBeimVerlassen(vorher, s);
  Schritt([&] { Tippen(Eingabefeld::PWR, "1"); }, &s.werte.PWRText);
  Schritt([&] { Tun(BerechnenVerlangt); });  // nothing entered: no step, but the end of the typing
  const std::string ohne = Ohne();
  Schritt([&] { Tippen(Eingabefeld::PWR, "100"); }, &s.werte.PWRText);
  Schritt([&] { Tun(BerechnenVerlangt); });
  EXPECT_NE(Ohne(), ohne);
  EXPECT_TRUE(verlauf.Zurueck(s));
  EXPECT_EQ(s.werte.PWRText + '|' + Ohne(), "1|" + ohne);
  EXPECT_TRUE(Aktuell(s));
  EXPECT_EQ(Zurueck(), 2);
  EXPECT_EQ(s.werte.QRGText, "");
  while (verlauf.Vor(s)) continue;
  EXPECT_EQ(s.werte.PWRText, "100");
  EXPECT_TRUE(Aktuell(s));
}

TEST_F(Rueckgaengig, GeloeschtesKommtWieder) {
  Eingeben("14.2").Rechnen().Kopieren();
  const auto zellen = s.Zellen;
  Schritt([&] { Tun(SpalteLoeschen, 1); });
  EXPECT_NE(s.Zellen, zellen);
  Schritt([&] { Tun(TooltipsUmschalten); });
  Schritt([&] { Tun(DatenblattLoeschen); });
  EXPECT_EQ(Zurueck(), 2);  // clearing empties the options, too
  EXPECT_EQ(s.Zellen, zellen);
  EXPECT_FALSE(s.einstellungen.ToolTips);
  EXPECT_TRUE(s.UserGeaendert);
}

/// The data of one operator never get into the file of another.
TEST_F(Rueckgaengig, EndetBeiEinerAnderenDatei) {
  const auto wechseln = [&](const char* datei, const char* name) {
    Schritt([&] {
      s.UserDatei = datei;
      s.benutzer.Name = name;
    });
  };
  Schritt([&] { s.benutzer.Name = "Eins"; });
  wechseln("kopie.dat", "Eins");  // saved under another name: the same data
  EXPECT_TRUE(verlauf.ZurueckMoeglich());
  wechseln("user2.dat", "Zwei");
  EXPECT_FALSE(verlauf.ZurueckMoeglich());

  Schritt([&] { s.neuesRufzeichen = true, s.benutzer = {}; });
  EXPECT_TRUE(verlauf.Zurueck(s) && !s.neuesRufzeichen && verlauf.Vor(s));
  Schritt([&] { s.benutzer.Name = "Drei"; });
  Schritt([&] { s.UserDatei = "drei.dat", s.neuesRufzeichen = false; });
  EXPECT_FALSE(verlauf.ZurueckMoeglich());
}

TEST_F(Rueckgaengig, EineZurueckgeholteWinkeltabelleIstNichtGespeichert) {
  const auto gespeichert = [&](const char* datei) { s.winkel.datei = datei, s.winkel.bearbeitet = false; };
  gespeichert("a.ang");
  Schritt([&] { s.werte.PWRText = "100"; });
  Schritt([&] { Tun(WinkeldaempfungGetippt, std::size_t{1}, std::string("3")); });
  gespeichert("a.ang");
  EXPECT_TRUE(verlauf.Zurueck(s) && s.winkel.bearbeitet);
  EXPECT_TRUE(verlauf.Zurueck(s) && s.werte.PWRText != "100");
  EXPECT_TRUE(s.winkel.bearbeitet) << "still in no file";
  gespeichert("b.ang");
  EXPECT_TRUE(verlauf.Vor(s) && s.werte.PWRText == "100");
  EXPECT_FALSE(s.winkel.bearbeitet);
  EXPECT_EQ(s.winkel.datei, "b.ang");
}

TEST(Wegweiser, NenntDenNaechstenSchrittUndTutIhn) {
  Tisch t;
  std::string wege;
  const auto weg = [&] { wege += NaechsterSchritt(t.s, t.k).text + "; "; };
  const auto tun = [&] { t.Tun(NaechsterSchritt(t.s, t.k).tun); };
  weg();
  t.Tippen(Eingabefeld::QRG, "14.2").Verlassen();
  weg();
  t.Tippen(Eingabefeld::PWR, "100").Verlassen();
  weg();
  tun(), weg();
  t.Tippen(Eingabefeld::PWR, "50");
  weg();
  EXPECT_NE(WarumNichtKopierbar(t.s), "");
  tun(), weg();
  EXPECT_EQ(WarumNichtKopierbar(t.s), "");
  tun(), weg();
  EXPECT_TRUE(NaechsterSchritt(t.s, t.k).speichern);
  t.s.UserGeaendert = false;
  weg();
  EXPECT_EQ(wege,
            "Frequenz fehlt; Leistung fehlt; Berechnen: =; In Spalte A kopieren; Ergebnis veraltet: =; "
            "In Spalte A kopieren; Datei speichern; Papiere prüfen (" +
                std::to_string(PapierePruefen(t.s, t.k).size()) + " offen); ");
  EXPECT_EQ(t.Blatt(1, ZeileLeistung), "50");
  t.Tun(KopfGeklickt, 1).Zelle(1, ZeileLeistung, "60");
  EXPECT_EQ(NaechsterSchritt(t.s, t.k).text, "Spalte A veraltet: Rechnen");
}

TEST(Wegweiser, EineTasteRechnetUndKopiert) {
  Tisch t;
  t.Eingeben("14.2", "100").Tun(RechnenUndKopieren);
  t.Tippen(Eingabefeld::PWR, "50").Tun(RechnenUndKopieren).Tun(RechnenUndKopieren);
  EXPECT_EQ(t.Blatt(1, ZeileLeistung) + '|' + t.Blatt(2, ZeileLeistung) + '|' + t.Blatt(3, ZeileLeistung),
            "100|50|");
  EXPECT_TRUE(t.Gesagt("Hinweis"));  // it is there already
  t.Tippen(Eingabefeld::PWR, "").Tun(RechnenUndKopieren);
  EXPECT_EQ(NaechsteFreieSpalte(t.s.Zellen), "C");
  // An empty column takes nothing from the inputs.
  t.Tippen(Eingabefeld::PWR, "70").Tun(SpalteAufsuchen, 5);
  EXPECT_EQ(t.s.werte.PWRText, "70");
  EXPECT_TRUE(t.Tun(SpalteAufsuchen, 2).s.werte.Spalte == 2);
}

}  // namespace
}  // namespace vesk
