#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <sstream>
#include <vector>

#include "Kommandozeile.h"

namespace vesk {
namespace {

struct Lauf {
  int code;
  std::string aus;
  std::string fehler;
};

Lauf Ausfuehren(const std::string& zeile) {
  std::istringstream worte(zeile);
  const std::vector<std::string> argumente{std::istream_iterator<std::string>(worte), {}};
  std::ostringstream aus;
  std::ostringstream fehler;
  const int code = Rechnen(argumente, ',', aus, fehler);
  return {code, aus.str(), fehler.str()};
}

QJsonObject Json(const Lauf& lauf) {
  return QJsonDocument::fromJson(QByteArray::fromStdString(lauf.aus)).object();
}

TEST(Rechnen, JsonTraegtAlleFelder) {
  const QJsonObject o = Json(Ausfuehren("--qrg 14,2 --pwr 100 --faktor 0.4 --json"));
  EXPECT_EQ(o[u"txtAusgabe"].toString(), u"1.26");
  EXPECT_EQ(o[u"txtQRG"].toString(), u"14.2");
  EXPECT_EQ(o[u"txtGewinn"].toString(), u"0");
  EXPECT_EQ(o[u"lblHSM306"].toString(), u"HSM 306\n14,35");
  EXPECT_EQ(o[u"Nahfeldflags"].toInt(), 1);
  EXPECT_EQ(o[u"Meldungen"].toArray().size(), 1);
  EXPECT_NEAR(o[u"Werte"].toObject()[u"Fernfeld"].toDouble(), 85.655, 1e-9);
  EXPECT_FALSE(o.contains(u"Laufzeitfehler"));
}

TEST(Rechnen, GraueFelderSindLeer) {
  const QJsonObject o =
      Json(Ausfuehren("--qrg 145 --abstand 5 --gewinn=12.5 --daempfung 1,2 --winkel 3.33 --json"));
  EXPECT_EQ(o[u"txtAusgabe"].toString(), u"100.58");
  EXPECT_EQ(o[u"txtAusgabeHSM306"].toString(), u"");
  EXPECT_EQ(o[u"txtStrahlung"].toString(), u"");
}

TEST(Rechnen, LaufzeitfehlerGibtAusWasGerechnetIst) {
  const Lauf lauf = Ausfuehren("--qrg 0.002 --pwr 100 --exakt --json");
  EXPECT_EQ(lauf.code, 1);
  EXPECT_NE(lauf.fehler.find("Gleitkommafehler"), std::string::npos);
  const QJsonObject o = Json(lauf);
  EXPECT_EQ(o[u"txtStrahlung"].toString(), u"100.00");
  EXPECT_EQ(o[u"Laufzeitfehler"].toString(), u"Gleitkommafehler in der Berechnung.");
  EXPECT_EQ(o[u"Meldungen"].toArray().size(), 2);
}

TEST(Rechnen, FalscheEingaben) {
  const std::pair<std::string, const char*> faelle[] = {
      {"", "--qrg"},
      {"--qrg 14", "--abstand"},
      {"--pwr 100", "--qrg"},
      {"--qrg abc --pwr 1", "keine Zahl"},
      {"--qrg 1,2,3 --pwr 1", "keine Zahl"},
      {"--qrg nan --pwr 1", "keine Zahl"},
      {"--qrg inf --pwr 1", "keine Zahl"},
      {"--qrg --14 --pwr 1", "keine Zahl"},
      {"--qrg 14 --pwr 0", "größer als 0"},
      {"--qrg 14 --pwr " + std::string(400, '9'), "zu groß"},
      {"--qrg 14 --pwr 1 --daempfung -1", "negativ"},
      {"--qrg 14 --pwr 1 --gewinn 101", "100 dBi"},
      {"--qrg 14 --pwr 1 --faktor 0", "höchstens 1"},
      {"--qrg 14 --pwr 1 --typ FM", "AM, TV oder GSM"},
      {"--qrg 14 --pwr 1 --abstand 2", "schließen einander aus"},
      {"--qrg 14 --pwr", "fehlt ihr Wert"},
      {"--qrg 14 --pwr 1 --foo", "Unbekannte Option: --foo"},
      {"--qrg 14 --pwr 1 rest", "Unerwartete Angabe: rest"},
  };
  for (const auto& [zeile, text] : faelle) {
    const Lauf lauf = Ausfuehren(zeile);
    EXPECT_EQ(lauf.code, 2) << zeile;
    EXPECT_EQ(lauf.aus, "") << zeile;
    EXPECT_NE(lauf.fehler.find(text), std::string::npos) << zeile << "\n" << lauf.fehler;
  }
}

}  // namespace
}  // namespace vesk
