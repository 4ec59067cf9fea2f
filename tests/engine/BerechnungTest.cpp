#include <gtest/gtest.h>

#include "engine/Ausgabe.h"
#include "engine/Berechnung.h"
#include "engine/Hinweise.h"
#include "engine/Zahlen.h"
#include "tests/Tabelle.h"

namespace vesk {
namespace {

using namespace std::string_literals;

Rechenwerte Getippt(const std::string& qrg, const std::string& pwr, const std::string& gewinn = "") {
  Rechenwerte werte;
  werte.QRGText = qrg;
  werte.PWRText = pwr;
  werte.GewinnText = gewinn;
  return werte;
}

TEST(Berechnen, VomGetipptenZumGezeigten) {
  std::map<std::string, std::int16_t> typen = {{"AM", 0}, {"TV", 1}, {"GSM", 2}};
  for (const Tabellenzeile& zeile : Tabelle("engine/Berechnung.csv")) {
    SCOPED_TRACE(zeile.text);
    Rechenwerte werte = Getippt(zeile["qrg"], zeile["pwr"], zeile["gewinn"]);
    werte.DaempfungText = zeile["daempfung"];
    werte.WinkelDaempfungText = zeile["winkel"];
    werte.Modulationsfaktor = zeile.Wert("modulation");
    werte.Zyklusfaktor = zeile.Wert("zyklus");
    werte.Grenzwerttyp = typen.at(zeile["typ"]);
    const Modus modus = zeile["modus"] == "Abstand" ? Modus::Abstand : Modus::Leistung;
    const Rechenergebnis ergebnis = Berechnen(werte, {modus, zeile["band"] == "AFu"});
    EXPECT_FALSE(ergebnis.fehler);
    EXPECT_EQ(std::to_string(ergebnis.Nahfeldflags), zeile["nahfeld"]);
    const Feldtexte texte = Ausgabetexte(ergebnis, ',');
    for (std::size_t i = 0; i < AnzahlFelder; ++i) {
      const auto feld = static_cast<Feld>(i);
      if (feld == Feld::KopfOhneHSM || feld == Feld::KopfHSMvde || feld == Feld::KopfHSM306) continue;
      EXPECT_EQ(texte[feld].value_or("-"), zeile[std::string(Feldnamen[i])]) << Feldnamen[i];
    }
  }
}

/// At 2 kHz there is no limit: no distance, and a power of 0, which has no level.
TEST(Berechnen, FehlerLaesstStehenWasGerechnetIst) {
  for (const bool abstand : {true, false}) {
    Rechenwerte werte = Getippt("0.002", "100");
    const Rechenergebnis e = Berechnen(werte, {abstand ? Modus::Abstand : Modus::Leistung, false});
    EXPECT_EQ(e.fehler, Fehlerart::Gleitkomma);
    EXPECT_TRUE(e.grenzwerte.ausserhalb);
    const Feldtexte texte = Ausgabetexte(e, '.');
    for (const Feld feld : {Feld::Strahlung, Feld::WEIRP, Feld::WAntEinPWR}) {
      EXPECT_EQ(texte[feld].value_or("-"), abstand ? "100.00" : "-");
    }
    EXPECT_EQ(texte[Feld::AusgabeOhneHSM].value_or("-"), abstand ? "-" : "0.00");
    for (const Feld feld : {Feld::GrenzwertOhneHSM, Feld::Nahfeld}) EXPECT_FALSE(texte[feld]);
    EXPECT_EQ(werte.GewinnText, "0");
  }
}

TEST(Berechnen, StummeEndenUndUeberlauf) {
  for (const Tabellenzeile& zeile : Tabelle("engine/Enden.csv")) {
    Rechenwerte werte = Getippt(zeile["qrg"], zeile["pwr"], zeile["gewinn"]);
    werte.Uss306 = 7;
    const Rechenergebnis e = Berechnen(werte, {Modus::Abstand, false});
    EXPECT_EQ(e.begonnen, zeile["begonnen"] == "1") << zeile.text;
    EXPECT_EQ(e.fehler ? Laufzeitfehler(*e.fehler).what() : "", zeile["fehler"]) << zeile.text;
    EXPECT_NE(werte.Uss306, 7) << "Grenzwerte einer früheren Rechnung dürfen nicht stehen bleiben";
  }
}

TEST(Berechnen, GrenzwerteImSatzUndKoepfe) {
  Rechenwerte w = Getippt("1.85", "100");
  Berechnen(w, {Modus::Abstand, true});
  std::string texte;
  for (const float wert : {w.QRG, w.QRGGrenzwert, w.QRGHSM, w.QRGLambda, w.GrenzwertOhneHSM,
                           w.GrenzwertHSM306, w.GrenzwertHSMvde, w.SpitzenfeldHSM306, w.Uss306, w.UssVDE}) {
    texte += Formatieren(wert) + ' ';
  }
  EXPECT_EQ(texte, "1.85 1.89 1.89 1.82 63.28 15.11 25.37 21.37 0.10 0.12 ");
  w = Getippt("14.2", "100");
  const Feldtexte koepfe = Ausgabetexte(Berechnen(w, {Modus::Abstand, true}), ',');
  EXPECT_EQ(*koepfe[Feld::KopfOhneHSM] + *koepfe[Feld::KopfHSM306] + *koepfe[Feld::KopfHSMvde],
            "ohne HSM\n14,00HSM 306\n14,35HSM VDE\n14,35");
}

TEST(Hinweise, NahfeldNenntDieBetroffenenAbstaende) {
  EXPECT_TRUE(NahfeldHinweis(5, Modus::Abstand)
                  .text.starts_with("Das Nahfeld ist größer als der berechnete "
                                    "Sicherheitsabstand \nohne HSM und HSM VDE!\n"));
  for (const auto& [modus, was] : {std::pair(Modus::Abstand, "alle erforderlichen Sicherheitsabstände!"),
                                   std::pair(Modus::Leistung, "der eingegebene Sicherheitsabstand!")}) {
    EXPECT_TRUE(NahfeldHinweis(7, modus).text.starts_with("Das Nahfeld ist größer als "s + was));
  }
}

TEST(Hinweise, VorgabeUndTitel) {
  EXPECT_EQ(Bestaetigung("Titel", "Text").vorgabe, Antwort::Nein);
  EXPECT_EQ(Bestaetigung("Titel", "Text").knoepfe, Knoepfe::JaNein);
  EXPECT_EQ(Fehlermeldung(Fehlerart::Ueberlauf).titel, "Vesk - Fehlermeldung");
  EXPECT_EQ(Fehlermeldung("Text", "Titel").titel, "Titel");
}

}  // namespace
}  // namespace vesk
