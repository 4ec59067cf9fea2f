#include <gtest/gtest.h>

#include "Bandlogik.h"
#include "Grenzwert.h"
#include "HSM.h"
#include "Rechenwerte.h"
#include "Zahlen.h"

namespace vesk {
namespace {

TEST(Grenzwert, Personenschutz) {
  const std::pair<float, const char*> faelle[] = {
      {0.003F, "87.00"},  {0.1365F, "87.00"}, {0.15F, "87.00"},     {0.999F, "87.00"},    {1.0F, "87.00"},
      {1.89F, "63.28"},   {3.8F, "44.63"},    {7.1F, "32.65"},      {9.99F, "27.53"},     {10.0F, "27.50"},
      {27.0F, "27.50"},   {399.9F, "27.50"},  {400.0F, "27.50"},    {430.0F, "28.51"},    {1240.0F, "48.42"},
      {1999.9F, "61.49"}, {2000.0F, "61.00"}, {300000.0F, "61.00"}, {300001.0F, "61.00"},
  };
  for (const auto& [f, text] : faelle) EXPECT_EQ(Formatieren(Grenzwert(f, f)), text) << f;
  EXPECT_EQ(Grenzwert(0.0029F, 0.0029F), 0);
  EXPECT_EQ(Grenzwert(300001, 14), 61);
  EXPECT_LT(Grenzwert(1, 1), 87.001F);
}

TEST(Bandlogik, Auswertefrequenzen) {
  struct Fall {
    bool afu;
    float qrg, grenzwert, hsm, lambda;
    bool imBereich;
  };
  const Fall faelle[] = {
      {false, 14.2F, 14.2F, 14.2F, 14.2F, true},
      {true, 14.2F, 14.0F, 14.35F, 14.0F, true},
      {true, 1.0F, 1.89F, 1.89F, 1.815F, true},
      {true, 1.89F, 1.89F, 1.89F, 1.815F, true},
      {true, 1.9F, 1.9F, 1.9F, 1.9F, true},
      {true, 0.99F, 0.99F, 0.99F, 0.99F, true},
      {true, 3.0F, 3.8F, 3.8F, 3.5F, true},
      {true, 7.0F, 7.1F, 7.1F, 7.0F, true},
      {true, 10.0F, 10.1F, 10.15F, 10.1F, true},
      {true, 18.0F, 18.068F, 18.168F, 18.068F, true},
      {true, 18.05F, 18.068F, 18.168F, 18.068F, true},
      {true, 18.068F, 18.068F, 18.168F, 18.068F, true},
      {true, 18.1F, 18.1F, 18.1F, 18.1F, true},
      {true, 21.0F, 21.0F, 21.45F, 21.0F, true},
      {true, 21.2F, 21.2F, 21.2F, 21.2F, true},
      {true, 24.0F, 24.89F, 24.99F, 24.89F, true},
      {true, 29.7F, 28.0F, 29.7F, 28.0F, true},
      {true, 50.1F, 50.0F, 51.0F, 50.0F, true},
      {true, 145.0F, 144.0F, 144.0F, 144.0F, true},
      {true, 439.0F, 430.0F, 430.0F, 430.0F, true},
      {true, 1296.0F, 1240.0F, 1240.0F, 1240.0F, true},
      {true, 2400.0F, 2320.0F, 2320.0F, 2320.0F, true},
      {true, 10368.0F, 10000.0F, 10000.0F, 10000.0F, true},
      {false, 0.003F, 0.003F, 0.003F, 0.003F, true},
      {false, 0.002F, 0.002F, 0.002F, 0.002F, false},
      {false, 300000.0F, 300000.0F, 300000.0F, 300000.0F, true},
      {false, 300001.0F, 300001.0F, 300001.0F, 300001.0F, false},
  };
  for (const Fall& fall : faelle) {
    const Auswertefrequenzen f = Bandlogik(fall.qrg, fall.afu);
    EXPECT_EQ(f.grenzwert, fall.grenzwert) << fall.qrg;
    EXPECT_EQ(f.hsm, fall.hsm) << fall.qrg;
    EXPECT_EQ(f.lambda, fall.lambda) << fall.qrg;
    EXPECT_EQ(ImRechenbereich(fall.qrg), fall.imBereich) << fall.qrg;
  }
}

/// Six significant digits, as the reference figures are told.
void Gleich(double wert, double referenz, float f) {
  EXPECT_NEAR(wert, referenz, 6e-6 * referenz) << f;
}

TEST(HSM306, Grenzwerte) {
  struct Fall {
    float f;
    double Uss, Spitzenfeld, Grenzwert;
  };
  const Fall faelle[] = {
      {0.049F, 0, 0, 0},
      {0.05F, 0.022, 182.6, 129.118},
      {0.1F, 0.022, 91.3, 64.5588},
      {0.15F, 0.0266797, 73.8138, 52.1943},
      {0.2F, 0.03, 62.25, 44.0174},
      {0.5F, 0.045, 37.35, 26.4104},
      {1.0F, 0.067, 27.805, 19.6611},
      {1.89F, 0.0973067, 21.3663, 15.1083},
      {2.0F, 0.1, 20.75, 14.6725},
      {3.8F, 0.135025, 14.7461, 10.4271},
      {5.0F, 0.15, 12.45, 8.80348},
      {7.1F, 0.225884, 13.2031, 9.33597},
      {10.0F, 0.3, 12.45, 8.80348},
      {10.15F, 0.300859, 12.3011, 8.69822},
      {14.0F, 0.319417, 9.46843, 6.69519},
      {14.35F, 0.320842, 9.27871, 6.56104},
      {18.168F, 0.334456, 7.63976, 5.40213},
      {20.0F, 0.34, 7.055, 4.98864},
      {21.45F, 0.329306, 6.37119, 4.50511},
      {24.99F, 0.305967, 5.08109, 3.59287},
      {29.7F, 0.279585, 3.90665, 2.76242},
      {50.0F, 0.2, 1.66, 1.1738},
      {50.01F, 0, 0, 0},
      {51.0F, 0, 0, 0},
  };
  for (const Fall& fall : faelle) {
    const HSM306Werte w = HSM306(fall.f);
    Gleich(w.Uss, fall.Uss, fall.f);
    Gleich(w.Spitzenfeld, fall.Spitzenfeld, fall.f);
    Gleich(w.Grenzwert, fall.Grenzwert, fall.f);
  }
}

TEST(HSMvde, GrenzwerteUndKandidaten) {
  struct Fall {
    std::int16_t typ;
    float f;
    double Uss;
    const char* kandidaten;
    double Grenzwert;
  };
  const Fall faelle[] = {
      {GrenzwertAM, 0.029F, 0, "", 0},
      {GrenzwertAM, 0.03F, 0.059, "01082.23703", 765.257},
      {GrenzwertAM, 0.5F, 0.059, "00064.93422", 45.9154},
      {GrenzwertAM, 0.7F, 0.0675895, "00053.13403", 37.5714},
      {GrenzwertAM, 0.9F, 0.079, "00048.30324", 34.1555},
      {GrenzwertAM, 1.1F, 0.0875985, "00043.82235", 30.9871},
      {GrenzwertAM, 1.5F, 0.105, "00038.52030", 27.238},
      {GrenzwertAM, 1.89F, 0.123216, "00035.87555", 25.3678},
      {GrenzwertAM, 2.9F, 0.235197, "00044.62991", 31.5581},
      {GrenzwertAM, 3.0F, 0.247551, "00045.40826 00048.52874 00128.72647", 32.1085},
      {GrenzwertAM, 3.8F, 0.35374, "00043.22096 00051.22626 00093.77786", 30.5618},
      {GrenzwertAM, 7.0F, 0.89, "00032.04578 00041.36752 00069.96544", 22.6598},
      {GrenzwertAM, 7.1F, 0.89, "00031.14944 00039.72854 00068.98001", 22.026},
      {GrenzwertAM, 9.4F, 0.89, "00017.77098 00017.85561 00052.10193", 12.566},
      {GrenzwertAM, 9.5F, 0.89, "00017.44400 00017.44715", 12.3348},
      {GrenzwertAM, 14.0F, 0.89, "00017.44400 00017.44715", 12.3348},
      {GrenzwertAM, 14.35F, 0.89, "00017.44400 00017.44715", 12.3348},
      {GrenzwertAM, 21.45F, 0.89, "00017.44400 00017.44715", 12.3348},
      {GrenzwertAM, 29.7F, 0.532745, "00010.44180 00010.44368", 7.38347},
      {GrenzwertAM, 50.0F, 0.218622, "00004.28499 00004.28577", 3.02995},
      {GrenzwertAM, 51.0F, 0.211343, "00004.14232 00004.14307", 2.92906},
      {GrenzwertAM, 79.0F, 0.1, "00001.96000 00001.96035", 1.38593},
      {GrenzwertAM, 100.0F, 0.1, "00001.96000 00001.96035", 1.38593},
      {GrenzwertAM, 100.1F, 0, "", 0},
      {GrenzwertAM, 144.0F, 0, "", 0},
      {GrenzwertTV, 78.9F, 0, "", 0},
      {GrenzwertTV, 79.0F, 0.13, "00002.54800 00002.54846", 1.80171},
      {GrenzwertTV, 144.0F, 0.186, "00003.64560 00003.64626", 2.57783},
      {GrenzwertTV, 145.0F, 0.191751, "00003.75832 00003.75899", 2.65753},
      {GrenzwertTV, 199.9F, 0.787579, "00015.43655 00015.43934", 10.9153},
      {GrenzwertTV, 200.0F, 0.789, "00015.46440 00015.46719", 10.935},
      {GrenzwertTV, 210.0F, 0.627317, "00014.19188 00014.19444", 10.0352},
      {GrenzwertTV, 230.0F, 0.40907, "00012.09219 00012.09437", 8.55047},
      {GrenzwertTV, 240.0F, 0.335, "00011.22261 00011.22463", 7.93558},
      {GrenzwertTV, 399.9F, 0.335, "00050.35120 00050.36029", 35.6037},
      {GrenzwertTV, 400.0F, 0.335, "00050.25000 00050.51681", 35.5321},
      {GrenzwertTV, 430.0F, 0.335, "00050.25000 00050.51681", 35.5321},
      {GrenzwertTV, 500.0F, 0.335, "00050.25000 00050.51681", 35.5321},
      {GrenzwertTV, 550.0F, 0.233213, "00034.98194 00035.16768", 24.736},
      {GrenzwertTV, 600.0F, 0.168, "00025.20000 00025.33380", 17.8191},
      {GrenzwertTV, 1100.0F, 0.241687, "00036.25312 00036.44561", 25.6348},
      {GrenzwertTV, 1100.1F, 0, "", 0},
      {GrenzwertTV, 1240.0F, 0, "", 0},
      {GrenzwertGSM, 849.0F, 0, "", 0},
      {GrenzwertGSM, 850.0F, 0.358, "00053.70000 00053.98513", 37.9716},
      {GrenzwertGSM, 900.0F, 0.358, "00053.70000 00053.98513", 37.9716},
      {GrenzwertGSM, 1199.0F, 0.358, "00053.70000 00053.98513", 37.9716},
      {GrenzwertGSM, 1240.0F, 0.431572, "00064.73584 00065.07956", 45.7752},
      {GrenzwertGSM, 1499.0F, 1.27239, "00190.85805 00191.87144", 134.957},
      {GrenzwertGSM, 1500.0F, 1.27723, "00191.58493 00192.60218", 135.471},
      {GrenzwertGSM, 1800.0F, 3.6108, "00935.91887 00940.88827", 661.795},
      {GrenzwertGSM, 1900.0F, 3.61, "01100.48841 01106.33162", 778.163},
      {GrenzwertGSM, 2000.0F, 3.61, "01283.55552 01290.37075", 907.611},
      {GrenzwertGSM, 2320.0F, 2.31277, "01283.55554 01290.37077", 907.611},
      {GrenzwertGSM, 2499.0F, 1.85054, "01283.55559 01290.37082", 907.611},
      {GrenzwertGSM, 2500.0F, 1.84832, "", 0},
      {GrenzwertGSM, 2500.1F, 0, "", 0},
  };
  for (const Fall& fall : faelle) {
    const HSMvdeWerte w = HSMvde(fall.f, fall.typ);
    Gleich(w.Uss, fall.Uss, fall.f);
    Gleich(w.Grenzwert, fall.Grenzwert, fall.f);
    std::string kandidaten;
    for (int i = 0; i < w.Anzahl; ++i) {
      kandidaten += (i > 0 ? " " : "") + Kandidatentext(w.Kandidaten.at(static_cast<std::size_t>(i)));
    }
    EXPECT_EQ(kandidaten, fall.kandidaten) << fall.f;
    EXPECT_EQ(w.ausserhalb, fall.f < 0.03F || fall.f > 2500) << fall.f;
  }
  EXPECT_EQ(HSMvde(900, 7).Uss, HSMvde(900, GrenzwertGSM).Uss);
}

}  // namespace
}  // namespace vesk
