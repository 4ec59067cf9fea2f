#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <random>
#include <thread>

#include "persistence/Dateien.h"
#include "persistence/Dateistand.h"
#include "tests/Tabelle.h"
#include "tests/persistence/Ordner.h"

namespace vesk {
namespace {

namespace fs = std::filesystem;

/// Runs `tun` in a process of its own.
pid_t Starten(const std::function<int()>& tun) {
  const pid_t kind = fork();
  if (kind == 0) _exit(tun());
  return kind;
}

/// What it returned; -1: it was killed.
int Ende(pid_t kind) {
  int zustand = 0;
  waitpid(kind, &zustand, 0);
  return WIFEXITED(zustand) ? WEXITSTATUS(zustand) : -1;
}

TEST(DateiSchreiben, NachJedemAbschussAltOderNeuUndGanz) {
  const Ordner ordner;
  const fs::path pfad = ordner / "user.dat";
  const std::string alt(60000, 'A');
  const std::string neu(90000, 'B');
  ASSERT_EQ(DateiSchreiben(pfad, alt), std::nullopt);

  std::minstd_rand zufall(4711);
  int mittendrin = 0;
  std::string zuletzt = alt;
  // On a busy machine many children are killed before they have begun.
  for (int i = 0; i < 250 || (mittendrin < 20 && i < 2500); ++i) {
    const pid_t kind = Starten([&] {
      for (bool b = true;; b = !b) {
        if (DateiSchreiben(pfad, b ? neu : alt)) return 1;
      }
    });
    std::this_thread::sleep_for(std::chrono::microseconds(zufall() % 20000));
    kill(kind, SIGKILL);
    ASSERT_EQ(Ende(kind), -1);
    const std::string jetzt = Inhalt(pfad);
    ASSERT_TRUE(jetzt == alt || jetzt == neu) << "kill " << i << ", " << jetzt.size() << " bytes";
    ASSERT_LE(ordner.Anzahl(), 2) << "more than one remainder";
    if (jetzt != zuletzt || ordner.Anzahl() == 2) ++mittendrin;
    zuletzt = jetzt;
  }
  EXPECT_GE(mittendrin, 20) << "the kills did not fall into the saving";
  ASSERT_EQ(DateiSchreiben(pfad, "ende"), std::nullopt);
  EXPECT_EQ(Inhalt(pfad), "ende");
  EXPECT_EQ(ordner.Anzahl(), 1);
}

TEST(DateiSchreiben, WasNichtGehtHatEinenGrundUndLaesstAllesStehen) {
  const Ordner ordner;
  Anlegen(ordner / "datei", "alt");
  fs::create_directory(ordner / "ordner");
  fs::create_symlink("kreis2", ordner / "kreis1");
  fs::create_symlink("kreis1", ordner / "kreis2");
  mkfifo((ordner / "rohr").c_str(), 0600);
  const int vorher = ordner.Anzahl();

  for (const Tabellenzeile& zeile : Tabelle("persistence/Schreibfehler.csv")) {
    const fs::path pfad = ordner / Ersetzt(zeile["pfad"], "{300}", std::string(300, 'x'));
    EXPECT_EQ(DateiSchreiben(pfad, "neu"), zeile["grund"]) << pfad;
    EXPECT_NE(DateiKopieren(ordner / "datei", pfad), std::nullopt) << pfad;
    EXPECT_NE(Dateistand().Schreiben(pfad, "neu").ausgang, Dateistand::Ausgang::Geschrieben) << pfad;
  }
  EXPECT_EQ(Inhalt(ordner / "datei"), "alt");
  EXPECT_EQ(ordner.Anzahl(), vorher);
}

TEST(DateiSchreiben, KeinPlatzUndKeineBerechtigung) {
  const Ordner ordner;
  const fs::path pfad = ordner / "user.dat";
  Anlegen(pfad, "alt");
  const auto voll = [&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit grenze{4096, 4096};
    setrlimit(RLIMIT_FSIZE, &grenze);
    return DateiSchreiben(pfad, std::string(5000, 'x')).value_or("").find("Platz") == std::string::npos;
  };
  EXPECT_EQ(Ende(Starten(voll)), 0);
  const auto verboten = [&] {
    if (geteuid() == 0 && setuid(65534) != 0) return true;
    return DateiSchreiben(pfad, "neu") != "Die Berechtigung fehlt.";
  };
  fs::permissions(ordner.pfad, fs::perms(0555));
  fs::permissions(pfad, fs::perms(0666));
  EXPECT_EQ(Ende(Starten(verboten)), 0) << "read-only directory";
  fs::permissions(ordner.pfad, fs::perms(0777));
  fs::permissions(pfad, fs::perms(0444));
  EXPECT_EQ(Ende(Starten(verboten)), 0) << "read-only file in a directory that could be written";
  EXPECT_EQ(Inhalt(pfad), "alt");
  EXPECT_EQ(ordner.Anzahl(), 1);
}

TEST(DateiSchreiben, RechteUndVerknuepfungenBleiben) {
  const Ordner ordner;
  fs::create_directory(ordner / "anderswo");
  Anlegen(ordner / "anderswo/ziel.dat", "alt");
  fs::permissions(ordner / "anderswo/ziel.dat", fs::perms(0640));
  fs::create_symlink("anderswo/ziel.dat", ordner / "user.dat");
  fs::create_symlink("anderswo/neu.dat", ordner / "neu.dat");

  EXPECT_EQ(DateiSchreiben(ordner / "user.dat", "eins"), std::nullopt);
  EXPECT_EQ(DateiSchreiben(ordner / "neu.dat", "zwei"), std::nullopt);
  EXPECT_TRUE(fs::is_symlink(ordner / "user.dat") && fs::is_symlink(ordner / "neu.dat"));
  EXPECT_EQ(Inhalt(ordner / "anderswo/ziel.dat"), "eins");
  EXPECT_EQ(Inhalt(ordner / "anderswo/neu.dat"), "zwei");
  EXPECT_EQ(fs::status(ordner / "anderswo/ziel.dat").permissions(), fs::perms(0640));

  EXPECT_EQ(DateiKopieren(ordner / "user.dat", ordner / "User.bak"), std::nullopt);
  EXPECT_EQ(Inhalt(ordner / "User.bak"), "eins");
  EXPECT_EQ(fs::status(ordner / "User.bak").permissions(), fs::perms(0640));
}

TEST(DateiLesen, WasImmerDortSteht) {
  const Ordner ordner;
  Anlegen(ordner / "leer", "");
  Anlegen(ordner / "lang", std::string(1000, 'x'));
  mkfifo((ordner / "rohr").c_str(), 0600);
  EXPECT_EQ(DateiLesen(ordner / "fehlt").status, Lesestatus::Fehlt);
  EXPECT_EQ(DateiLesen(ordner / "leer").status, Lesestatus::Gelesen);
  EXPECT_EQ(DateiLesen(ordner.pfad).grund, "Unter diesem Namen gibt es ein Verzeichnis.");
  EXPECT_EQ(DateiLesen(ordner / "rohr").status, Lesestatus::Fehler);
  EXPECT_EQ(DateiLesen("/dev/zero").status, Lesestatus::Fehler);
  for (const std::size_t grenze : {999U, 1000U, 1001U}) {
    const Gelesen gelesen = DateiLesen(ordner / "lang", grenze);
    EXPECT_EQ(gelesen.bytes.size(), std::min<std::size_t>(grenze, 1000));
    EXPECT_EQ(gelesen.abgeschnitten, grenze < 1000);
  }
}

using Ausgang = Dateistand::Ausgang;

TEST(Dateistand, ZweiProgrammeAnEinerDatei) {
  const Ordner ordner;
  const fs::path pfad = ordner / "user.dat";
  Anlegen(pfad, "0");
  Dateistand a;
  Dateistand b;
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

TEST(Dateistand, WasDieDateiSeitherWurde) {
  const Ordner ordner;
  const fs::path pfad = ordner / "user.dat";
  Dateistand stand;
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
  const auto hundertmalPlusEins = [&](const char* wer) {
    for (int i = 0; i < 100;) {
      Dateistand stand;
      const int zahl = std::stoi(stand.Lesen(pfad).bytes);
      const Ausgang ausgang = stand.Schreiben(pfad, std::to_string(zahl + 1) + wer).ausgang;
      if (ausgang == Ausgang::Fehler) _exit(1);
      if (ausgang == Ausgang::Geschrieben) ++i;
    }
  };
  const pid_t kind = Starten([&] { return hundertmalPlusEins(" Kind"), 0; });
  hundertmalPlusEins(" Mutter");
  EXPECT_EQ(Ende(kind), 0);
  EXPECT_EQ(std::stoi(Inhalt(pfad)), 200);
}

}  // namespace
}  // namespace vesk
