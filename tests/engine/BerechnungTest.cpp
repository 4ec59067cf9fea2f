#include <gtest/gtest.h>

#include "Ausgabe.h"
#include "Berechnung.h"
#include "Hinweise.h"

namespace vesk {
namespace {

/// Inputs as typed, then the texts of the output fields; an empty output is a greyed (or unwritten) field.
struct Fall {
  const char* art;  // "AFu" or "exakt", then the signal type
  float modulation, zyklus;
  const char *qrg, *pwr, *gewinn, *daempfung, *winkel;
  const char *strahlung, *grenzwert, *grenzwert306, *grenzwertVDE, *uss306, *ussVDE;
  const char *ohneHSM, *hsm306, *hsmVDE, *nahfeld, *fernfeld, *antEinPWR, *wEIRP;
  int flags;
};

constexpr Fall Abstandsfaelle[] = {
    {"AFu AM", 1,      1,      "14.2", "100",  "",     "",     "",      "100.00", "27.50",  "6.56",
     "12.33",  "0.32", "0.89", "1.99", "8.35", "4.44", "3.41", "85.66", "100.00", "100.00", 1},
    {"AFu AM", 0.4F,   1,      "14.2", "100",  "",     "",     "",      "100.00", "27.50",  "6.56",
     "12.33",  "0.32", "0.89", "1.26", "8.35", "4.44", "3.41", "85.66", "100.00", "100.00", 1},
    {"AFu AM", 0.4F,   0.5F,   "14.2", "100",  "",     "",     "",      "100.00", "27.50",  "6.56",
     "12.33",  "0.32", "0.89", "0.89", "8.35", "4.44", "3.41", "85.66", "100.00", "100.00", 1},
    {"AFu AM", 1,      1.0F / 6, "14.2", "100",  "",     "",     "",      "100.00", "27.50",  "6.56",
     "12.33",  "0.32", "0.89",   "0.81", "8.35", "4.44", "3.41", "85.66", "100.00", "100.00", 1},
    {"exakt AM", 1,      1,      "14.2", "100",  "",     "",     "",      "100.00", "27.50",  "6.62",
     "12.33",    "0.32", "0.89", "1.99", "8.28", "4.44", "3.36", "84.45", "100.00", "100.00", 1},
    {"AFu AM", 1,      1,      "1.85", "750",   "2.15", "0.5",   "",       "1096.63", "63.28",   "15.11",
     "25.37",  "0.10", "0.12", "2.87", "12.00", "7.15", "26.29", "660.70", "668.44",  "1096.63", 7},
    {"AFu AM", 1,      1,      "3.6",  "100",  "2.15", "1",     "",       "130.32", "44.63",  "10.43",
     "30.56",  "0.14", "0.35", "1.40", "6.00", "2.05", "13.63", "342.62", "79.43",  "130.32", 7},
    {"AFu AM", 1,      1,      "7",    "750",  "-3",   "2",    "0.5",    "237.17", "32.65",  "9.34",
     "22.03",  "0.23", "0.89", "2.44", "8.53", "3.62", "6.82", "171.31", "473.22", "211.38", 5},
    {"AFu AM", 0.5F,   1,      "10",   "150",  "2.15", "",     "",       "246.09", "27.50",  "8.70",
     "12.33",  "0.30", "0.89", "2.21", "9.88", "6.97", "4.72", "118.73", "150.00", "246.09", 1},
    {"AFu AM", 1,      1,      "18.05", "100",   "6.5",  "1.2",  "",      "338.84", "27.50",  "5.40",
     "12.33",  "0.33", "0.89", "3.67",  "18.66", "8.17", "2.64", "66.37", "75.86",  "338.84", 0},
    {"AFu AM", 1,      1,      "18.1", "100",   "6.5",  "1.2",  "",      "338.84", "27.50",  "5.42",
     "12.33",  "0.33", "0.89", "3.67", "18.61", "8.17", "2.64", "66.25", "75.86",  "338.84", 0},
    {"AFu AM", 1,      1,      "21",   "750",   "8.15",  "1.5",  "3",     "3467.86", "27.50",   "4.51",
     "12.33",  "0.33", "0.89", "8.30", "50.68", "18.51", "2.27", "57.10", "530.96",  "1738.05", 0},
    {"AFu AM", 1,      1,      "21.2", "750",   "8.15",  "1.5",  "3",     "3467.86", "27.50",   "4.58",
     "12.33",  "0.33", "0.89", "8.30", "49.82", "18.51", "2.25", "56.56", "530.96",  "1738.05", 0},
    {"AFu AM", 1,      1,      "28.5", "750",   "10.15", "1.8",  "11.25", "5129.34", "27.50",  "2.76",
     "7.38",   "0.28", "0.53", "3.91", "38.89", "14.55", "1.70", "42.83", "495.52",  "384.65", 0},
    {"AFu AM", 1,  1,      "50.1", "25", "9",     "1",    "",      "157.74", "27.50",  "",
     "2.93",   "", "0.21", "2.50", "",   "23.48", "0.95", "23.98", "19.86",  "157.74", 0},
    {"exakt AM", 1,      1,      "50",   "25",    "9",     "1",    "",      "157.74", "27.50",  "1.17",
     "3.03",     "0.20", "0.22", "2.50", "58.60", "22.70", "0.95", "23.98", "19.86",  "157.74", 0},
    {"AFu AM", 1,  1,  "145",  "50", "12.5", "1.2",  "3.33", "674.48", "27.50",  "",
     "",       "", "", "3.53", "",   "",     "0.33", "8.33", "37.93",  "313.31", 0},
    {"AFu TV", 1,  1,      "145",  "50", "12.5",  "1.2",  "3.33", "674.48", "27.50",  "",
     "2.58",   "", "0.19", "3.53", "",   "37.61", "0.33", "8.33", "37.93",  "313.31", 0},
    {"AFu TV", 1,  1,      "435",  "20", "18",   "2.5",  "",     "709.63", "28.51",  "",
     "35.53",  "", "0.34", "5.12", "",   "4.11", "0.11", "2.79", "11.25",  "709.63", 0},
    {"AFu GSM", 1,  1,      "1296", "10", "20",   "3",    "",     "501.19", "48.42",  "",
     "45.78",   "", "0.43", "2.53", "",   "2.68", "0.04", "0.97", "5.01",   "501.19", 0},
    {"AFu GSM", 1,  1,      "2400", "5", "24",   "2",    "",     "792.45", "61.00",  "",
     "907.61",  "", "2.31", "2.53", "",  "0.17", "0.02", "0.52", "3.15",   "792.45", 0},
    {"exakt GSM", 1,  1,      "2500", "5", "24",   "2",    "",     "792.45", "61.00",  "",
     "0.00",      "", "1.85", "2.53", "",  "0.00", "0.02", "0.48", "3.15",   "792.45", 4},
    {"AFu AM", 1,  1,  "3400", "2", "20", "",     "",     "200.00", "61.00",  "",
     "",       "", "", "1.27", "",  "",   "0.01", "0.35", "2.00",   "200.00", 0},
    {"exakt AM", 1,      1,      "0.1365", "50",   "-20",  "",       "",        "0.50",  "87.00", "55.02",
     "168.19",   "0.03", "0.06", "0.04",   "0.07", "0.02", "349.55", "8785.13", "50.00", "0.50",  7},
    {"exakt AM", 1,      1,      "0.5",  "100",  "",     "",      "",        "100.00", "87.00",  "26.41",
     "45.92",    "0.05", "0.06", "0.63", "2.07", "1.19", "95.43", "2398.34", "100.00", "100.00", 7},
    {"AFu AM", 1,      1,      "14.2",  "10000", "",      "",     "",      "10000.00", "27.50",    "6.56",
     "12.33",  "0.32", "0.89", "19.92", "83.48", "44.40", "3.41", "85.66", "10000.00", "10000.00", 0},
    {"AFu AM", 1,      1,      "14.2",  "10000.01", "",      "",     "",      "10.00 kW", "27.50",    "6.56",
     "12.33",  "0.32", "0.89", "19.92", "83.48",    "44.40", "3.41", "85.66", "10000.01", "10000.01", 0},
    {"AFu AM", 1,      1,      "14.2",  "1000",  "10",    "",     "",      "10000.00", "27.50",    "6.56",
     "12.33",  "0.32", "0.89", "19.92", "83.48", "44.40", "3.41", "85.66", "1000.00",  "10000.00", 0},
    {"AFu AM", 1,      1,      "14.2",  "750",   "12",    "",     "",      "11.89 kW", "27.50",    "6.56",
     "12.33",  "0.32", "0.89", "21.71", "91.01", "48.41", "3.41", "85.66", "750.00",   "11886.70", 0},
    {"exakt AM", 1,  1,  "300001", "100", "", "",     "",     "100.00", "61.00",  "",
     "",         "", "", "0.90",   "",    "", "0.00", "0.00", "100.00", "100.00", 0},
};

constexpr Fall Leistungsfaelle[] = {
    {"AFu AM", 1,      1,      "14.2",    "10",     "",       "",     "",      "", "27.50",   "6.56",
     "12.33",  "0.32", "0.89", "2521.04", "143.50", "507.20", "3.41", "85.66", "", "2521.04", 0},
    {"AFu AM", 0.4F,   1,      "14.2",    "10",     "",       "",     "",      "", "27.50",   "6.56",
     "12.33",  "0.32", "0.89", "6302.60", "143.50", "507.20", "3.41", "85.66", "", "6302.60", 0},
    {"AFu AM", 1,      1,      "14.2",   "2",    "",      "",     "",      "", "27.50",  "6.56",
     "12.33",  "0.32", "0.89", "100.84", "5.74", "20.29", "3.41", "85.66", "", "100.84", 7},
    {"AFu AM", 1,      1,      "7",       "12",     "2.15",    "1",    "0",      "", "32.65",   "9.34",
     "22.03",  "0.23", "0.89", "3926.97", "321.07", "1787.09", "6.82", "171.31", "", "5117.49", 0},
    {"AFu AM", 1,      1,      "1.85",     "20",      "2.15",    "0.5",   "",       "", "63.28",    "15.11",
     "25.37",  "0.10", "0.12", "36521.72", "2081.63", "5868.70", "26.29", "660.70", "", "53401.23", 7},
    {"AFu AM", 1,  1,  "145",    "5", "12.5", "1.2",  "3.33", "", "27.50",   "",
     "",       "", "", "100.58", "",  "",     "0.33", "8.33", "", "1356.81", 0},
    {"AFu TV", 1,  1,      "145",    "5", "12.5", "1.2",  "3.33", "", "27.50",   "",
     "2.58",   "", "0.19", "100.58", "",  "0.88", "0.33", "8.33", "", "1356.81", 0},
    {"AFu GSM", 1,  1,      "1296", "0.02", "20",   "3",    "",     "", "48.42", "",
     "45.78",   "", "0.43", "0.00", "",     "0.00", "0.04", "0.97", "", "0.03",  5},
    {"exakt GSM", 1,  1,      "2500",  "10", "24",   "2",    "",     "", "61.00",    "",
     "0.00",      "", "1.85", "78.27", "",   "0.00", "0.02", "0.48", "", "12404.36", 0},
    {"exakt AM", 1,  1,  "300001", "1", "", "",     "",     "", "61.00",  "",
     "",         "", "", "124.04", "",  "", "0.00", "0.00", "", "124.04", 0},
};

Rechenwerte Werte(const Fall& fall) {
  Rechenwerte werte;
  werte.QRGText = fall.qrg;
  werte.PWRText = fall.pwr;
  werte.GewinnText = fall.gewinn;
  werte.DaempfungText = fall.daempfung;
  werte.WinkelDaempfungText = fall.winkel;
  werte.Modulationsfaktor = fall.modulation;
  werte.Zyklusfaktor = fall.zyklus;
  const std::string art = fall.art;
  werte.Grenzwerttyp = art.ends_with("AM") ? GrenzwertAM : art.ends_with("TV") ? GrenzwertTV : GrenzwertGSM;
  return werte;
}

void Pruefen(const Fall& fall, Modus modus) {
  Rechenwerte werte = Werte(fall);
  const Rechenergebnis ergebnis = Berechnen(werte, {modus, std::string(fall.art).starts_with("AFu")});
  const Feldtexte texte = Ausgabetexte(ergebnis, ',');
  const std::string wo = std::string(fall.art) + " " + fall.qrg + " " + fall.pwr;
  std::string strahlung = texte[Feld::Strahlung].value_or("");
  if (texte[Feld::StrahlungTitel] == "Strahlungsleistung [KW]") strahlung += " kW";
  EXPECT_EQ(strahlung, fall.strahlung) << wo;
  const std::pair<Feld, const char*> felder[] = {
      {Feld::GrenzwertOhneHSM, fall.grenzwert},
      {Feld::GrenzwertHSM306, fall.grenzwert306},
      {Feld::GrenzwertHSMvde, fall.grenzwertVDE},
      {Feld::Uss306, fall.uss306},
      {Feld::UssVDE, fall.ussVDE},
      {Feld::AusgabeOhneHSM, fall.ohneHSM},
      {Feld::AusgabeHSM306, fall.hsm306},
      {Feld::AusgabeHSMvde, fall.hsmVDE},
      {Feld::Nahfeld, fall.nahfeld},
      {Feld::Fernfeld, fall.fernfeld},
      {Feld::WAntEinPWR, fall.antEinPWR},
      {Feld::WEIRP, fall.wEIRP},
  };
  for (const auto& [feld, text] : felder) {
    EXPECT_EQ(texte[feld].value_or(""), text) << wo << " " << Feldnamen[static_cast<std::size_t>(feld)];
  }
  EXPECT_EQ(ergebnis.Nahfeldflags, fall.flags) << wo;
  EXPECT_FALSE(ergebnis.fehler) << wo;
}

TEST(Berechnen, Abstandsmodus) {
  for (const Fall& fall : Abstandsfaelle) Pruefen(fall, Modus::Abstand);
}

TEST(Berechnen, Leistungsmodus) {
  for (const Fall& fall : Leistungsfaelle) Pruefen(fall, Modus::Leistung);
}

TEST(Berechnen, KopftexteTragenDenDezimaltrenner) {
  Rechenwerte werte = Werte(Abstandsfaelle[0]);
  const Feldtexte texte = Ausgabetexte(Berechnen(werte, {}), ',');
  EXPECT_EQ(texte[Feld::KopfOhneHSM], "ohne HSM\n14,00");
  EXPECT_EQ(texte[Feld::KopfHSM306], "HSM 306\n14,35");
  EXPECT_EQ(texte[Feld::KopfHSMvde], "HSM VDE\n14,35");
}

TEST(Berechnen, FehlerLaesstStehenWasGerechnetIst) {
  Rechenwerte werte;
  werte.QRGText = "0.002";
  werte.PWRText = "100";
  Rechenergebnis e = Berechnen(werte, {Modus::Abstand, false});
  EXPECT_EQ(e.fehler, Fehlerart::Gleitkomma);
  EXPECT_TRUE(e.grenzwerte.ausserhalb);
  Feldtexte texte = Ausgabetexte(e, '.');
  EXPECT_EQ(texte[Feld::Strahlung], "100.00");
  EXPECT_EQ(texte[Feld::WEIRP], "100.00");
  EXPECT_FALSE(texte[Feld::AusgabeOhneHSM]);
  EXPECT_FALSE(texte[Feld::Nahfeld]);
  EXPECT_EQ(werte.GewinnText, "0");

  e = Berechnen(werte, {Modus::Leistung, false});
  EXPECT_EQ(e.fehler, Fehlerart::Gleitkomma);
  texte = Ausgabetexte(e, '.');
  EXPECT_EQ(texte[Feld::AusgabeOhneHSM], "0.00");
  EXPECT_FALSE(texte[Feld::WEIRP]);
  EXPECT_FALSE(texte[Feld::GrenzwertOhneHSM]);
}

TEST(Berechnen, StummeEndenUndUeberlauf) {
  struct Ende {
    const char *qrg, *pwr, *gewinn;
    bool begonnen;
    std::optional<Fehlerart> fehler;
  };
  const Ende faelle[] = {
      {"", "100", "", false, {}},
      {"14.2", "0", "", false, {}},
      {"-14", "100", "", false, {}},
      {"abc", "100", "", false, {}},
      {"14.2", "1e39", "", false, Fehlerart::Ueberlauf},
      {"14.2", "100", "1e39", true, Fehlerart::Ueberlauf},
      {"14.2", "100", "390", true, Fehlerart::Ueberlauf},
      {"14.2", "100", "3900", true, Fehlerart::Gleitkomma},
      {"1e-40", "100", "", true, Fehlerart::Ueberlauf},
  };
  for (const Ende& fall : faelle) {
    Rechenwerte werte;
    werte.QRGText = fall.qrg;
    werte.PWRText = fall.pwr;
    werte.GewinnText = fall.gewinn;
    werte.Uss306 = 7;
    const Rechenergebnis e = Berechnen(werte, {Modus::Abstand, false});
    EXPECT_EQ(e.begonnen, fall.begonnen) << fall.qrg << " " << fall.pwr;
    EXPECT_EQ(e.fehler, fall.fehler) << fall.qrg << " " << fall.pwr << " " << fall.gewinn;
    EXPECT_NE(werte.Uss306, 7) << "Grenzwerte einer früheren Rechnung dürfen nicht stehen bleiben";
  }
}

TEST(Berechnen, NurGrenzwerte) {
  Rechenwerte werte = Werte(Abstandsfaelle[0]);
  const Rechenergebnis e = Berechnen(werte, {Modus::Abstand, true, false});
  EXPECT_EQ(werte.GrenzwertOhneHSM, 27.5F);
  EXPECT_GT(werte.Uss306, 0.3F);
  EXPECT_FALSE(e.EIRP);
  EXPECT_FALSE(e.vollstaendig);
}

TEST(Hinweise, Nahfeld) {
  EXPECT_EQ(NahfeldHinweis(5, Modus::Abstand).text,
            "Das Nahfeld ist größer als der berechnete Sicherheitsabstand \nohne HSM und HSM VDE!\n"
            "Eine Nahfeldberechnung oder Messung \nist eventuell dann erforderlich, \n"
            "wenn der vorhandene Sicherheitsabstand \nkleiner ist als die Nahfeldgrenze. \n"
            "Siehe auch: Hilfehandbuch Nahfeldsituation Aufklärung.\n\n"
            "Diese Meldung in Zukunft wieder anzeigen?");
  EXPECT_TRUE(NahfeldHinweis(7, Modus::Abstand).text.starts_with("Das Nahfeld ist größer als alle erf"));
  EXPECT_TRUE(
      NahfeldHinweis(7, Modus::Leistung).text.starts_with("Das Nahfeld ist größer als der eingegebene"));
  EXPECT_EQ(Fehlermeldung(Fehlerart::Ueberlauf).titel, "Vesk - Fehlermeldung");
}

}  // namespace
}  // namespace vesk
