#include <gtest/gtest.h>

#include <QDir>
#include <iostream>
#include <sstream>

#include "app/Kommandozeile.h"
#include "persistence/Lageplandatei.h"
#include "persistence/UserDatei.h"
#include "persistence/Winkeldatei.h"
#include "tests/Tabelle.h"
#include "tests/persistence/Muster.h"
#include "tests/persistence/Ordner.h"

using namespace Qt::StringLiterals;

namespace vesk {
namespace {

Lageplan Plan() {
  Lageplan plan;
  plan.objekte.emplace_back().punkte = {{0, 0}, {9, 0}, {9, 8}};
  return plan;
}

/// A directory with files of all kinds, in which the program is called.
struct Drucken : testing::Test {
  Drucken() {
    qputenv("SOURCE_DATE_EPOCH", "946684800");
    QDir::setCurrent(QString::fromStdString(ordner.pfad.string()));
    Station s = Musterstation();
    const std::string ohne = UserDateiSchreiben(s);
    for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) s.Zellen[Zellenindex(spalte, ZeileWinkel)] = "2";
    const std::string user = UserDateiSchreiben(s);
    const Winkeldaten winkel{"Beam", "8", "14", {"0", "1", "2", "3", "4", "5", "6", "7", "8"}};
    const std::string ang = WinkelSchreiben(winkel);
    const std::pair<const char*, std::string> dateien[] = {
        {"user.dat", user},
        {"ohne.dat", ohne},
        {"user.lageplan", LageplanBytes(Plan())},
        {"kaputt.dat", user},
        {"kaputt.lageplan", "{"},
        {"Kabel.txt", Inhalt(VESK_DATEN "/Kabel.txt")},
        {"v240.dat", Ersetzt(user, "\"251\"", "\"240\"")},
        {"v210.dat", Ersetzt(user, "\"251\"", "\"210\"")},
        {"halb.dat", user.substr(0, user.size() / 2)},
        {"leer", ""},
        {"h-14.ang", ang},
        {"144.ang", Ersetzt(ang, "\"14\"", "\"144\"")},
        {"komma.ang", Ersetzt(ang, "\"7\"", "\"7,5\"")},
        {"riese.ang", Ersetzt(ang, "\"7\"", "\"-9999\"")},
    };
    for (const auto& [name, bytes] : dateien) Anlegen(ordner / name, bytes);
    vorher = Bestand();
  }
  ~Drucken() override {
    QDir::setCurrent(bisher);
    qunsetenv("SOURCE_DATE_EPOCH");
  }

  std::map<std::string, std::string> Bestand() const {
    std::map<std::string, std::string> dateien;
    for (const auto& datei : std::filesystem::directory_iterator(ordner.pfad)) {
      dateien[datei.path().filename().string()] = Inhalt(datei.path());
    }
    return dateien;
  }
  int Rufen(const std::string& zeile) {
    std::ostringstream aus;
    std::ostringstream fehler;
    const QString alles = QString::fromStdString("drucken --verzeichnis . " + zeile);
    const Aufruf aufruf = KommandozeileAusfuehren(alles.split(u' '), ',', {std::cin, aus, fehler});
    EXPECT_EQ(aus.str(), "");
    gemeldet = fehler.str();
    return aufruf.rueckgabe.value();
  }

  const QString bisher = QDir::currentPath();
  Ordner ordner;
  std::map<std::string, std::string> vorher;
  std::string gemeldet;
};

TEST_F(Drucken, EntwederDasPdfOderEineMeldung) {
  for (const Tabellenzeile& fall : Tabelle("app/Drucken.csv")) {
    EXPECT_EQ(Rufen(fall["zeile"] + " --nach aus.pdf"), fall.Zahl("rueckgabe")) << fall.text << gemeldet;
    const bool gut = fall["rueckgabe"] == "0";
    EXPECT_TRUE(gut ? gemeldet.empty() : gemeldet.find(fall["meldung"]) != std::string::npos)
        << fall.text << "\n"
        << gemeldet;
    std::map<std::string, std::string> jetzt = Bestand();
    EXPECT_EQ(jetzt["aus.pdf"].starts_with("%PDF-"), gut) << fall.text;
    jetzt.erase("aus.pdf");
    EXPECT_TRUE(jetzt == vorher) << fall.text;
    std::filesystem::remove(ordner / "aus.pdf");
  }
}

TEST_F(Drucken, GleicheDatenGebenGleicheBytesUndFehlerLassenSieStehen) {
  const std::string zeile = "--art mappe --datei user.dat --nach ";
  EXPECT_EQ(Rufen(zeile + "aus.pdf"), 0);
  const std::string pdf = Inhalt(ordner / "aus.pdf");
  EXPECT_EQ(Rufen(zeile + "aus.pdf"), 0);
  EXPECT_TRUE(Inhalt(ordner / "aus.pdf") == pdf);
  EXPECT_EQ(Rufen("--art mappe --datei halb.dat --nach aus.pdf"), 1);
  EXPECT_TRUE(Inhalt(ordner / "aus.pdf") == pdf);

  EXPECT_EQ(Rufen("--art lageplan --datei user.dat --nach Plan.SVG"), 0) << gemeldet;
  EXPECT_TRUE(Inhalt(ordner / "Plan.SVG").starts_with("<?xml"));

  const std::pair<std::string, const char*> ziele[] = {{"keins/aus.pdf", "Das Verzeichnis gibt es nicht."},
                                                       {".", "Verzeichnis"},
                                                       {"/dev/full", "keine gewöhnliche"}};
  for (const auto& [ziel, meldung] : ziele) {
    EXPECT_EQ(Rufen(zeile + ziel), 1) << ziel;
    EXPECT_NE(gemeldet.find(meldung), std::string::npos) << gemeldet;
  }
  std::filesystem::create_symlink("user.dat", ordner / "auch.dat");
  for (const char* ziel : {"./user.dat", "auch.dat", "user.lageplan", "Kabel.txt", "h-14.ang"}) {
    EXPECT_EQ(Rufen(zeile + ziel + std::string(" --winkeldatei h-14.ang")), 2) << ziel;
    EXPECT_NE(gemeldet.find("überschreiben"), std::string::npos) << gemeldet;
  }
}

}  // namespace
}  // namespace vesk
