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

TEST(DateiLesen, WasKeineGewoehnlicheDateiIst) {
  const Ordner ordner;
  mkfifo((ordner / "rohr").c_str(), 0600);
  const std::string grund = "Unter diesem Namen gibt es etwas, das keine gewöhnliche Datei ist.";
  EXPECT_EQ(DateiLesen(ordner / "rohr", 9).grund, grund);
  EXPECT_EQ(DateiSchreiben(ordner / "rohr", "neu"), grund);
  EXPECT_EQ(DateiLesen("/dev/zero", 9).grund, grund);
}

}  // namespace
}  // namespace vesk
