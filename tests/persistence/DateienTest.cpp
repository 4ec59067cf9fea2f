#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "persistence/Dateien.h"
#include "persistence/Dateistand.h"
#include "persistence/Pfade.h"
#include "tests/Tabelle.h"
#include "tests/persistence/Ordner.h"

namespace vesk {
namespace {

namespace fs = std::filesystem;

constexpr const char* System = fs::path::preferred_separator == '/' ? "Posix" : "Windows";

TEST(DateiSchreiben, WasNichtGehtHatEinenGrundUndLaesstAllesStehen) {
  const Ordner ordner;
  Anlegen(ordner / "datei", "alt");
  fs::create_directory(ordner / "ordner");
  std::error_code egal;
  fs::create_symlink("kreis2", ordner / "kreis1", egal);
  fs::create_symlink("kreis1", ordner / "kreis2", egal);
  const int vorher = ordner.Anzahl();

  for (const Tabellenzeile& zeile : Tabelle("persistence/Schreibfehler.csv")) {
    if (zeile["wo"] != System && zeile["wo"] != "ueberall") continue;
    const fs::path pfad = ordner / Ersetzt(zeile["pfad"], "{300}", std::string(300, 'x'));
    EXPECT_EQ(DateiSchreiben(pfad, "neu"), zeile["grund"]) << pfad;
    EXPECT_NE(DateiKopieren(ordner / "datei", pfad), std::nullopt) << pfad;
    EXPECT_NE(Dateistand(99).Schreiben(pfad, "neu").ausgang, Dateistand::Ausgang::Geschrieben) << pfad;
  }
  EXPECT_EQ(Inhalt(ordner / "datei"), "alt");
  EXPECT_EQ(ordner.Anzahl(), vorher);
}

TEST(DateiLesen, WasImmerDortSteht) {
  const Ordner ordner;
  Anlegen(ordner / "leer", "");
  Anlegen(ordner / "lang", std::string(1000, 'x'));
  EXPECT_EQ(DateiLesen(ordner / "fehlt", 9).status, Lesestatus::Fehlt);
  EXPECT_EQ(DateiLesen(ordner / "leer", 0).status, Lesestatus::Gelesen);
  EXPECT_EQ(DateiLesen(ordner.pfad, 9).grund, "Unter diesem Namen gibt es ein Verzeichnis.");
  for (const std::size_t grenze : {999U, 1000U, 1001U}) {
    const Gelesen gelesen = DateiLesen(ordner / "lang", grenze);
    EXPECT_EQ(gelesen.bytes.size(), grenze < 1000 ? 0 : 1000);
    EXPECT_EQ(gelesen.status, grenze < 1000 ? Lesestatus::Fehler : Lesestatus::Gelesen);
  }
}

TEST(Altname, HaeltJedeFassungEinmalFest) {
  const Ordner ordner;
  for (const char* fassung : {"eins", "zwei", "eins"}) {
    Anlegen(ordner / "x.dat", fassung);
    EXPECT_EQ(DateiKopieren(ordner / "x.dat", Altname(ordner / "x.dat")), std::nullopt);
  }
  EXPECT_EQ(Inhalt(ordner / "x-alt.dat") + Inhalt(ordner / "x-alt2.dat"), "einszwei");
  EXPECT_EQ(ordner.Anzahl(), 3);
}

using Ausgang = Dateistand::Ausgang;

TEST(Dateistand, ZweiProgrammeAnEinerDatei) {
  const Ordner ordner;
  const fs::path pfad = ordner / "user.dat";
  Anlegen(pfad, "0");
  Dateistand a(99);
  Dateistand b(99);
  a.Lesen(pfad);
  b.Lesen(pfad);
  EXPECT_TRUE(b.AnderswoOffen() && b.AndereArbeitenAn(pfad));
  a.Lesen(pfad);
  EXPECT_FALSE(a.AnderswoOffen() || a.AndereArbeitenAn(pfad)) << "one's own lock does not count";

  EXPECT_EQ(a.Schreiben(pfad, "a").ausgang, Ausgang::Geschrieben);
  EXPECT_TRUE(b.AndereArbeitenAn(pfad)) << "the lock goes over to the new file";
  EXPECT_EQ(b.Schreiben(pfad, "b").ausgang, Ausgang::FremdGeaendert);
  EXPECT_EQ(Inhalt(pfad), "a");
  EXPECT_EQ(b.Schreiben(pfad, "bb", true).ausgang, Ausgang::Geschrieben);
  EXPECT_EQ(a.Schreiben(pfad, "a").ausgang, Ausgang::FremdGeaendert);
  EXPECT_EQ(a.Schreiben(pfad, "bb").ausgang, Ausgang::Geschrieben) << "the same content loses nothing";
}

TEST(Pfade, NamenSindUtf8) {
  const Ordner ordner;
  const std::string name = "Größe “€”.dat";
  const fs::path pfad = ordner / PfadAusUtf8("ä/" + name);
  fs::create_directory(pfad.parent_path());
  EXPECT_EQ(DateiSchreiben(pfad, "x"), std::nullopt);
  for (const auto& eintrag : fs::directory_iterator(pfad.parent_path())) {
    EXPECT_EQ(PfadAlsUtf8(eintrag.path()), PfadAlsUtf8(ordner.pfad) + "/ä/" + name);
    EXPECT_EQ(PfadZumZeigen(eintrag.path().filename()), name);
  }
  EXPECT_EQ(PfadAlsUtf8(PfadAusUtf8("kein\xFFUtf8")), System == std::string("Posix") ? "kein\xFFUtf8" : "");
}

TEST(Dateistand, WasDieDateiSeitherWurde) {
  const Ordner ordner;
  const fs::path pfad = ordner / "user.dat";
  Dateistand stand(99);
  EXPECT_EQ(stand.Lesen(pfad).status, Lesestatus::Fehlt);
  Anlegen(pfad, "fremd");
  EXPECT_EQ(stand.Schreiben(pfad, "neu").ausgang, Ausgang::FremdGeaendert) << "came into being";
  fs::remove(pfad);
  EXPECT_EQ(stand.Schreiben(pfad, "neu").ausgang, Ausgang::Geschrieben);
  fs::last_write_time(pfad, fs::file_time_type::clock::now());
  EXPECT_EQ(stand.Schreiben(pfad, "neuer").ausgang, Ausgang::Geschrieben) << "only touched";
  fs::remove(pfad);
  EXPECT_EQ(stand.Schreiben(pfad, "wieder da").ausgang, Ausgang::Geschrieben) << "vanished";
  Anlegen(ordner / "andere.dat", "x");
  EXPECT_EQ(stand.Schreiben(ordner / "andere.dat", "y").ausgang, Ausgang::FremdGeaendert) << "never read";
}

TEST(Dateistand, GleichzeitigesSpeichernVerliertNichts) {
  const Ordner ordner;
  const fs::path pfad = ordner / "zahl";
  Anlegen(pfad, "0");
  std::atomic<bool> gescheitert = false;
  const auto hundertmalPlusEins = [&](const char* wer) {
    for (int i = 0; i < 100 && !gescheitert;) {
      Dateistand stand(99);
      const int zahl = std::stoi(stand.Lesen(pfad).bytes);
      const Ausgang ausgang = stand.Schreiben(pfad, std::to_string(zahl + 1) + wer).ausgang;
      if (ausgang == Ausgang::Fehler) gescheitert = true;
      if (ausgang == Ausgang::Geschrieben) ++i;
    }
  };
  std::thread anderer(hundertmalPlusEins, " anderer");
  hundertmalPlusEins(" einer");
  anderer.join();
  EXPECT_EQ(std::stoi(Inhalt(pfad)), 200);
}

}  // namespace
}  // namespace vesk
