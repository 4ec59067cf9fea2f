#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <regex>

#include "rechnen/Dezimal.h"
#include "tests/Tabelle.h"
#include "tests/rechnen/Aufruf.h"

namespace vesk {
namespace {

bool Enthaelt(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}

/// The keys at this depth that have no value.
std::string OhneWert(const std::string& json, int tiefe) {
  const std::regex muster("\n" + std::string(4 * static_cast<std::size_t>(tiefe), ' ') + "\"(\\w+)\": null");
  std::string namen;
  for (std::sregex_iterator i(json.begin(), json.end(), muster); i != std::sregex_iterator(); ++i) {
    namen += (namen.empty() ? "" : " ") + (*i)[1].str();
  }
  return namen;
}

TEST(Rechnen, JsonTraegtAlleFelder) {
  const std::string json = Rechenlauf("--json --qrg 14,2 --pwr 100 --faktor 0.4 --gewinn -,0").aus;
  EXPECT_TRUE(json.starts_with("{\n    \"Meldungen\": [\n        \"Das Nahfeld ist größer")) << json;
  const std::string meldungen = json.substr(0, json.find("Nahfeldflags"));
  EXPECT_TRUE(meldungen.find("wieder") == std::string::npos && meldungen.find("\\n") == std::string::npos);
  for (const char* feld :
       {"\n    \"txtAusgabe\": \"1.26\",", "\n    \"txtGewinn\": \"-.0\",",
        "\n    ],\n    \"Nahfeldflags\": 1,\n    \"Werte\": {\n        \"AbstandHSM306\": ",
        "\n        \"Fernfeld\": 85.655,", "\n    \"lblHSM306\": \"HSM 306\\n14,35\","}) {
    EXPECT_TRUE(Enthaelt(json, feld)) << feld << json;
  }
  EXPECT_TRUE(json.ends_with("    \"txtWinkelDaempfung\": \"0\"\n}\n")) << json;
  EXPECT_EQ(OhneWert(json, 1) + OhneWert(json, 2), "");
}

TEST(Rechnen, UndefiniertesHatKeinenWert) {
  const std::string json =
      Rechenlauf("-json --qrg 145 --abstand 5 --gewinn=12.5 --daempfung 1,2 --winkel 3.33").aus;
  EXPECT_TRUE(Enthaelt(json, "\"txtAusgabe\": \"100.58\"")) << json;
  EXPECT_EQ(OhneWert(json, 1),
            "lblStrahlung txtAusgabeHSM306 txtAusgabeHSMvde txtGrenzwertHSM306 "
            "txtGrenzwertHSMvde txtStrahlung txtUssHSM306 txtUssVDE");
  EXPECT_EQ(OhneWert(json, 2),
            "EIRP GrenzwertHSM306 GrenzwertHSMvde LeistungHSM306 "
            "LeistungHSMvde SpitzenfeldHSM306 Uss306 UssVDE");
}

TEST(Rechnen, GenaueFrequenzOhneMeldungen) {
  const std::string json = Rechenlauf("--json --qrg 50,5 --pwr 500 --exakt").aus;
  EXPECT_TRUE(json.starts_with("{\n    \"Meldungen\": [\n    ],\n    \"Nahfeldflags\": 0,")) << json;
  EXPECT_TRUE(Enthaelt(json, "\"QRGGrenzwert\": 50.5,")) << json;
}

TEST(Rechnen, LaufzeitfehlerGibtAusWasGerechnetIst) {
  const Rechenlauf lauf("--json --qrg 0.002 --pwr 100 --exakt");
  EXPECT_EQ(lauf.rueckgabe, 1);
  EXPECT_TRUE(Enthaelt(lauf.aus, "\"txtStrahlung\": \"100.00\"")) << lauf.aus;
  EXPECT_TRUE(lauf.aus.starts_with("{\n    \"Laufzeitfehler\": \"Gleitkommafehler in der Berechnung.\","));
  EXPECT_TRUE(OhneWert(Rechenlauf("--json --qrg 0.002 --abstand 5 --exakt").aus, 1)
                  .starts_with("Nahfeldflags lblStrahlung txtAusgabe txtAusgabeHSM306 txtAusgabeHSMvde"));
}

/// The same digits as the library's, over all sizes, with the powers of two, which have one neighbour nearer,
/// and a single just below a power of ten.
TEST(Rechnen, ZahlenSindDieKuerzestenIhresWertes) {
  constexpr std::uint32_t Schritt = 0x1FFF;
  Dezimalschreiber schreiber('.');
  for (std::uint32_t bits = 1; bits < std::bit_cast<std::uint32_t>(0x1p60F); bits += Schritt) {
    for (const std::uint32_t welche : {bits, bits & 0xFF800000U, std::bit_cast<std::uint32_t>(0.01F)}) {
      std::array<char, 64> text;
      const auto gelesen = [&](const char* ende) {
        double zahl = -1;
        std::from_chars(text.data(), ende, zahl);
        return zahl;
      };
      const auto wert = std::bit_cast<float>(welche);
      const double hier = gelesen(schreiber.Schreiben(wert, text.data()));
      ASSERT_EQ(hier, gelesen(std::to_chars(text.begin(), text.end(), wert).ptr)) << wert;
    }
  }
}

TEST(Rechnen, GrosseUndKleineZahlenSindGueltigesJson) {
  const std::string json = Rechenlauf("--json --qrg 1000000 --pwr 1000000000 --gewinn 100").aus;
  for (const char* feld : {"\"AbstandOhneHSM\": 283931072,", "\"AntEinPWR\": 1000000000,", "\"EIRP\": 1e+19,",
                           "\"Fernfeld\": 0.00119917,", "\"Nahfeld\": 4.771346e-05,", "\"QRG\": 1000000,"}) {
    EXPECT_TRUE(Enthaelt(json, feld)) << feld << json;
  }
}

TEST(Rechnen, ErgebnisseStehenUnterIhrenKoepfen) {
  const std::string aus = Rechenlauf("--qrg 14,2 --pwr 100 --faktor 0.4").aus;
  EXPECT_TRUE(Enthaelt(aus, R"(
                                                    ohne HSM         HSM VDE         HSM 306
Berechnung für  f  [MHz]                               14,00           14,35           14,35
Grenzwert der Ersatzfeldstärke Eg [V/m]                27.50           12.33            6.56
Spitzenspannung Uss [V]                                                 0.89            0.32
Erforderlicher Sicherheitsabstand [m]                   1.26            4.44            8.35
)")) << aus;
}

TEST(Rechnen, FalscheEingaben) {
  for (const Tabellenzeile& fall : Tabelle("rechnen/Rechnen.csv")) {
    const Rechenlauf lauf(fall["zeile"]);
    EXPECT_TRUE(lauf.rueckgabe == 2 && lauf.aus.empty()) << fall.text;
    EXPECT_TRUE(Enthaelt(lauf.fehler, fall["meldung"])) << fall.text << "\n" << lauf.fehler;
  }
}

TEST(Rechnen, AusgabeDieNichtGeht) {
  for (const char* argumente : {"--qrg 14 --pwr 1", "-h", "--stapel --qrg 14 --pwr 1"}) {
    std::istringstream ein("typ\nAM\n");
    std::ostream verschlossen(nullptr);
    const Rechenlauf lauf(argumente, ein, verschlossen);
    EXPECT_EQ(lauf.rueckgabe, 1) << argumente;
    EXPECT_TRUE(Enthaelt(lauf.fehler, "Ausgabe")) << argumente << lauf.fehler;
  }
}

}  // namespace
}  // namespace vesk
