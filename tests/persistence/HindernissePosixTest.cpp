#include <dirent.h>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <utility>

#include "tests/persistence/Programmlauf.h"

namespace {
int eintraegeBisZumFehler = -1;
}

/// Listing a directory fails after some entries when the test wants it.
extern "C" dirent* readdir(DIR* verzeichnis) {
  using Readdir = dirent* (*)(DIR*);
  static const auto eigentlich = reinterpret_cast<Readdir>(dlsym(RTLD_NEXT, "readdir"));
  if (eintraegeBisZumFehler < 0 || eintraegeBisZumFehler-- > 0) return eigentlich(verzeichnis);
  errno = EIO;
  return nullptr;
}

namespace vesk {
namespace {

/// What somebody has put under a hidden name that the program needs.
struct Falle {
  const char* art;
  std::function<void(const fs::path& opfer, const fs::path& name)> stellen;
};
const Falle Fallen[] = {
    {"link", [](const fs::path& opfer, const fs::path& name) { fs::create_symlink(opfer, name); }},
    {"dangling link",
     [](const fs::path& opfer, const fs::path& name) { fs::create_symlink(opfer / "x", name); }},
    {"circular link", [](const fs::path&, const fs::path& name) { fs::create_symlink(name, name); }},
    {"hard link", [](const fs::path& opfer, const fs::path& name) { fs::create_hard_link(opfer, name); }},
    {"directory", [](const fs::path&, const fs::path& name) { fs::create_directory(name); }},
};

fs::path Kopie(const fs::path& ordner) {
  for (const auto& eintrag : fs::directory_iterator(ordner)) {
    if (eintrag.is_regular_file() && eintrag.path().extension() == ".rettung") return eintrag.path();
  }
  return {};
}

struct HindernisseTest : DateiablaufTest {
  HindernisseTest() { Anlegen(opfer, "unersetzlich"); }
  fs::path opfer = anderswo / "opfer";
};

TEST_F(HindernisseTest, EinFremderNameBeimSpeichernWirdGesagt) {
  for (const Falle& falle : Fallen) {
    falle.stellen(opfer, ordner / ".user.dat.neu");
    Lauf lauf(ordner.pfad);
    lauf.fragen.Fehler(
        "user.dat konnte nicht gespeichert werden.\nZum Speichern wird der Name .user.dat.neu");
    lauf.Speichern("neu");
    EXPECT_TRUE(lauf.station.UserGeaendert) << falle.art;
    EXPECT_EQ(NameIn(user) + Inhalt(opfer), "einsunersetzlich") << falle.art;
    fs::remove(ordner / ".user.dat.neu");
  }
}

TEST_F(HindernisseTest, DieKopieNimmtEinenFreienNamen) {
  fs::path name;
  {
    Lauf lauf(ordner.pfad);
    lauf.Aendern("getippt");
    lauf.ablauf.RettungSichern();
    name = Kopie(ordner.pfad);
    EXPECT_TRUE(lauf.ablauf.Beenden());
  }
  Anlegen(user, MusterMit("eins"));
  const fs::path rest = anderswo / ".opfer.neu";  // of another saving, beside what a link leads to
  Anlegen(rest, "angefangen");
  for (const std::string zusatz : {"", ".neu"}) {
    for (const Falle& falle : Fallen) {
      const fs::path belegt = name.string() + zusatz;
      falle.stellen(opfer, belegt);
      Lauf lauf(ordner.pfad);
      lauf.Aendern("getippt");
      lauf.ablauf.RettungSichern();
      fs::remove(belegt);
      EXPECT_NE(Inhalt(Kopie(ordner.pfad)).find("getippt"), std::string::npos) << falle.art << zusatz;
      EXPECT_EQ(Inhalt(opfer) + Inhalt(rest), "unersetzlichangefangen") << falle.art << zusatz;
      fs::remove(Kopie(ordner.pfad));
    }
  }
}

TEST_F(HindernisseTest, DieKopieEinesAnderenBenutzersSperrtNichts) {
  Anlegen(ordner / ".user.dat.rettung", "fremd");
  fs::permissions(ordner / ".user.dat.rettung", fs::perms(0400));
  const pid_t kind = fork();
  if (kind == 0) {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(1);
    Lauf lauf(ordner.pfad);
    lauf.Aendern("getippt");
    lauf.ablauf.RettungSichern();
    _exit(fs::exists(ordner / ".user.dat-2.rettung") ? 0 : 1);
  }
  int zustand = 1;
  waitpid(kind, &zustand, 0);
  EXPECT_EQ(zustand, 0);
}

TEST_F(HindernisseTest, RechteDerDatei) {
  for (const fs::perms rechte : {fs::perms(0600), fs::perms(0640)}) {
    fs::permissions(user, rechte);
    {
      Lauf lauf(ordner.pfad);
      lauf.Aendern("getippt");
      lauf.ablauf.RettungSichern();
      EXPECT_EQ(fs::status(Kopie(ordner.pfad)).permissions(), rechte);
      // Another program has saved meanwhile.
      Anlegen(user, MusterMit("später"));
    }
    fs::last_write_time(Kopie(ordner.pfad), fs::last_write_time(user) - std::chrono::minutes(1));
    Lauf lauf(ordner.pfad);
    lauf.fragen.Erwarten("Hinweis", "user-alt.dat");
    lauf.ablauf.RettungAnbieten();
    EXPECT_EQ(fs::status(ordner / "user-alt.dat").permissions(), rechte);
    fs::remove(ordner / "user-alt.dat");
  }
  Lauf lauf(ordner.pfad);
  lauf.Neu();
  lauf.Aendern("ohne Datei");
  lauf.ablauf.RettungSichern();
  EXPECT_EQ(fs::status(Kopie(ordner.pfad)).permissions(), fs::perms(0600));
}

TEST_F(HindernisseTest, EinVerzeichnisDasSichNichtAuflistenLaesst) {
  Lauf lauf(ordner.pfad);
  for (const int eintraege : {0, 3}) {  // "." and ".." count
    eintraegeBisZumFehler = eintraege;
    EXPECT_NO_THROW(lauf.ablauf.RettungAnbieten());
    EXPECT_EQ(std::exchange(eintraegeBisZumFehler, -1), -1) << "it has come to the failure";
  }
}

TEST_F(HindernisseTest, EinVerzeichnisDasKeinUtf8Ist) {
  const fs::path hier = ordner.pfad / "\xFF";
  fs::create_directory(hier);
  for (const std::string name : {"eins", "zwei"}) {
    Lauf lauf(hier);
    lauf.Aendern(name);
    lauf.ablauf.RettungSichern();
    EXPECT_NE(Kopie(hier), fs::path());
    EXPECT_TRUE(lauf.ablauf.Beenden());
    EXPECT_EQ(NameIn(hier / "user.dat"), name);
  }
  EXPECT_EQ(ordner.Anzahl(), 2) << "no other directory";
}

}  // namespace
}  // namespace vesk
