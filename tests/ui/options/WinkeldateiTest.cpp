#include <gtest/gtest.h>

#include "Sektoren.h"
#include "Winkeldatei.h"
#include "Zahlen.h"

namespace vesk {
namespace {

const Winkeldaten Beispieldaten{
    "Yagi \"Süd\"",
    "15.3",
    "144",
    {"0.00", "0.85", "3.33", "11.25", "12.92", "14.58", "16.67", "17.50", "20.00"}};

TEST(Winkeldatei, SchreibtZwoelfZeilenUndLiestSieZurueck) {
  const std::string bytes = WinkelSchreiben(Beispieldaten);
  EXPECT_EQ(bytes,
            "\"[Yagi 'S\xFC"
            "d']\"\r\n\"15.3\"\r\n\"144\"\r\n\"0.00\"\r\n\"0.85\"\r\n\"3.33\"\r\n\"11.25\"\r\n"
            "\"12.92\"\r\n\"14.58\"\r\n\"16.67\"\r\n\"17.50\"\r\n\"20.00\"\r\n");
  const GeleseneWinkeldaten gelesen = WinkelLesen(bytes);
  EXPECT_EQ(gelesen.antenne, "Yagi 'Süd'");
  EXPECT_EQ(gelesen.gewinn, "15.3");
  EXPECT_EQ(gelesen.frequenz, "144");
  EXPECT_EQ(gelesen.daempfung, Beispieldaten.daempfung);
}

TEST(Winkeldatei, KlammernImNamenBleibenLesbar) {
  Winkeldaten daten = Beispieldaten;
  daten.antenne = "Quad [alt] 2el";
  EXPECT_EQ(WinkelLesen(WinkelSchreiben(daten)).antenne, "Quad (alt) 2el");
}

using Text = std::optional<std::string>;

struct Lesefall {
  const char* name;
  std::string bytes;
  Text antenne;
  Text gewinn;
  Text frequenz;
  std::string daempfung;  ///< the nine rows, joined by "|"
};

void PrintTo(const Lesefall& fall, std::ostream* strom) {
  *strom << fall.name;
}

class WinkelLesenTest : public testing::TestWithParam<Lesefall> {};

TEST_P(WinkelLesenTest, VerstehtVonHandGeschriebenes) {
  const Lesefall& fall = GetParam();
  const GeleseneWinkeldaten daten = WinkelLesen(fall.bytes);
  EXPECT_EQ(daten.antenne, fall.antenne);
  EXPECT_EQ(daten.gewinn, fall.gewinn);
  EXPECT_EQ(daten.frequenz, fall.frequenz);
  std::string daempfung;
  for (const std::string& wert : daten.daempfung) daempfung += wert + "|";
  EXPECT_EQ(daempfung, fall.daempfung);
}

INSTANTIATE_TEST_SUITE_P(
    Dateien, WinkelLesenTest,
    testing::Values(Lesefall{"leer", "", {}, {}, {}, "|||||||||"},
                    Lesefall{"nurName", "\"[A]\"\r\n", "A", {}, {}, "|||||||||"},
                    Lesefall{"ohneKlammer", "[A", "A", {}, {}, "|||||||||"},
                    Lesefall{"ohneName", "12\n144\n0\n1\n", {}, "12", "144", "0|1||||||||"},
                    Lesefall{"leereFrequenz", "\"[]\"\n\"\"\n\"\"\n\"0\"\n", "", "", "", "0|||||||||"},
                    Lesefall{"LeerzeilenAmEnde", "[A]\n12\n\n\n  \n", "A", "12", {}, "|||||||||"},
                    Lesefall{"Dezimalkomma", "[A, lang]\n15,3\n144\n0\n\"3,33\"\n11,25\n", "A, lang", "15,3",
                             "144", "0|3,33|11,25|||||||"},
                    Lesefall{"eineZeile", "\"[A]\", \"12\" ,\"144\",\"0\",\"1\",2\n3\n", "A", "12", "144",
                             "0|1|2|3||||||"},
                    Lesefall{"offeneAnfuehrung", "\"[A]\n\"12\n144", "A", "12", "144", "|||||||||"},
                    Lesefall{"zuViele", "[A]\n1\n2\n0\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n", "A", "1", "2",
                             "0|1|2|3|4|5|6|7|8|"}),
    [](const auto& fall) { return fall.param.name; });

TEST(Winkeldatei, EbeneSteckImNamen) {
  EXPECT_EQ(EbeneAusName("h-beam.ang"), Winkelebene::Horizontal);
  EXPECT_EQ(EbeneAusName("H-beam.ang"), Winkelebene::Horizontal);
  EXPECT_EQ(EbeneAusName("V-.ang"), Winkelebene::Vertikal);
  EXPECT_EQ(EbeneAusName("hbeam.ang"), Winkelebene::Keine);
  EXPECT_EQ(EbeneAusName("h"), Winkelebene::Keine);
}

struct Sektortexte {
  const char* EIRP;
  const char* ohneHSM;
  const char* HSM306;
  const char* HSMvde;
};

std::string Feldtext(const std::optional<float>& wert) {
  return wert ? Formatieren(*wert) : std::string();
}

void Vergleichen(const Sektoreingabe& eingabe, float qrg, std::int16_t typ,
                 const std::array<Sektortexte, AnzahlSektoren>& erwartet) {
  Grenzwerte grenzwerte = GrenzwerteBestimmen(qrg, true, typ);
  const Sektortabelle tabelle = SektorenRechnen(eingabe, grenzwerte);
  EXPECT_EQ(tabelle.fehler, std::nullopt);
  ASSERT_EQ(tabelle.sektoren.size(), erwartet.size());
  for (std::size_t i = 0; i < erwartet.size(); ++i) {
    const Sektor& sektor = tabelle.sektoren[i];
    EXPECT_EQ(Formatieren(sektor.EIRP), erwartet[i].EIRP) << i;
    EXPECT_EQ(Formatieren(sektor.ohneHSM), erwartet[i].ohneHSM) << i;
    EXPECT_EQ(Feldtext(sektor.HSM306), erwartet[i].HSM306) << i;
    EXPECT_EQ(Feldtext(sektor.HSMvde), erwartet[i].HSMvde) << i;
  }
}

TEST(Sektoren, ZweiMeterMitFernsehmodulation) {
  Vergleichen({"347.59", "15.3", Beispieldaten.daempfung}, 144, GrenzwertTV,
              {{{"11777.89", "21.61", "", "230.58"},
                {"9684.28", "19.60", "", "209.08"},
                {"5471.01", "14.73", "", "157.15"},
                {"883.22", "5.92", "", "63.14"},
                {"601.27", "4.88", "", "52.10"},
                {"410.27", "4.03", "", "43.04"},
                {"253.55", "3.17", "", "33.83"},
                {"209.44", "2.88", "", "30.75"},
                {"117.78", "2.16", "", "23.06"}}});
}

TEST(Sektoren, ZwanzigMeter) {
  Vergleichen({"100", "7.15", Beispieldaten.daempfung}, 14.2F, GrenzwertAM,
              {{{"518.80", "4.54", "19.01", "10.11"},
                {"426.58", "4.11", "17.24", "9.17"},
                {"240.99", "3.09", "12.96", "6.89"},
                {"38.90", "1.24", "5.21", "2.77"},
                {"26.49", "1.02", "4.30", "2.29"},
                {"18.07", "0.85", "3.55", "1.89"},
                {"11.17", "0.67", "2.79", "1.48"},
                {"9.23", "0.60", "2.54", "1.35"},
                {"5.19", "0.45", "1.90", "1.01"}}});
}

TEST(Sektoren, FehlerBeendenDieTabelle) {
  Grenzwerte grenzwerte = GrenzwerteBestimmen(144, true, GrenzwertAM);
  Sektoreingabe eingabe{"0", "15.3", Beispieldaten.daempfung};
  EXPECT_EQ(SektorenRechnen(eingabe, grenzwerte).fehler, Fehlerart::Gleitkomma);

  eingabe.AntEinPWR = "100";
  eingabe.daempfung[3] = "-9999";
  const Sektortabelle abgebrochen = SektorenRechnen(eingabe, grenzwerte);
  EXPECT_TRUE(abgebrochen.fehler.has_value());
  EXPECT_EQ(abgebrochen.sektoren.size(), 3U);

  grenzwerte.ohneHSM = 0;
  EXPECT_EQ(SektorenRechnen({"100", "0", {}}, grenzwerte).fehler, Fehlerart::Gleitkomma);
}

TEST(Sektoren, DezimalkommaBeendetDieZahl) {
  Grenzwerte grenzwerte = GrenzwerteBestimmen(144, true, GrenzwertAM);
  Sektoreingabe eingabe{"100", "0", {"3,33", "3"}};
  const Sektortabelle tabelle = SektorenRechnen(eingabe, grenzwerte);
  EXPECT_EQ(tabelle.sektoren.at(0).EIRP, tabelle.sektoren.at(1).EIRP);
}

}  // namespace
}  // namespace vesk
