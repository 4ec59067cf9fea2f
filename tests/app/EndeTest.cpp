// Asked to end from outside, by a signal or by the desktop, whatever stands open.
#include <csignal>

#include "platform/Endesignal.h"
#include "platform/QtPlattform.h"
#include "station/Haupthandlungen.h"
#include "tests/app/Lauf.h"

namespace vesk {
namespace {

struct Jasager : Meldungsboxen {
  Antwort Zeigen(const Hinweis& box) override {
    return box.knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Ja;
  }
};

/// The whole program with boxes and dialogs that are real, or say yes to everything.
struct Laufend {
  Laufend(const QString& verzeichnis, Meldungsboxen& boxen) : Laufend(verzeichnis, boxen, {}) {}
  Laufend(const QString& verzeichnis, Meldungsboxen& boxen, const std::function<void(Laufend&)>& vorher)
      : plattform{boxen,      dialoge,       buehne.hilfe,      buehne.speicher,
                  buehne.ton, buehne.papier, buehne.betrachter, buehne.fortschritt},
        programm(station, plattform, {verzeichnis, {}}) {
    buehne.speicher.werte = Lauf::OhneTips;
    QObject::connect(&signal, &Endesignal::verlangt, &programm, &Programm::EndeVerlangt);
    QObject::connect(&programm, &Programm::beendet, &programm, [this](int code) { rueckgabe = code; });
    signal.Lauschen();
    if (vorher) vorher(*this);
    programm.Starten();
  }
  void Tippen() {
    programm.Tun([](Station& s, const Kataloge&) {
      s.benutzer.Name = "Anna";
      s.UserGeaendert = true;
      return Meldungen{};
    });
  }
  bool Ende() {
    return QTest::qWaitFor([this] { return rueckgabe.has_value(); }, 3000);
  }

  Endesignal signal;
  skript::Buehne buehne;
  QtDateidialoge dialoge;
  Plattform plattform;
  Station station;
  Programm programm;
  std::optional<int> rueckgabe;
};

/// Demands the end as soon as a box stands open.
struct Verlangen {
  explicit Verlangen(int signal) {
    QObject::connect(&takt, &QTimer::timeout, qApp, [this, signal] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (++takte > 300 && box != nullptr) {
        ADD_FAILURE() << "bleibt offen";
        box->done(0);
      }
      if (box != nullptr && !std::exchange(verlangt, true)) Senden(signal);
    });
    takt.start(10);
  }
  /// 0: the desktop's demand.
  static void Senden(int signal) {
    if (signal == 0) QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit));
    if (signal != 0) raise(signal);
  }
  QTimer takt;
  int takte = 0;
  bool verlangt = false;
};

struct Ende : testing::Test, Verzeichnis {
  std::string NaechstesMal() const {
    Jasager boxen;
    return Laufend(path(), boxen).station.benutzer.Name;
  }
};

TEST_F(Ende, WasOffenStehtWirdAbgebrochenUndAllesGesichert) {
  const std::tuple<const char*, int, std::function<void(Laufend&)>, int> faelle[] = {
      {"Speichern unter", SIGTERM, [](Laufend& l) { l.programm.Befehlen(Befehl::DateiSpeichernUnter); }, 0},
      {"Laden", SIGINT, [](Laufend& l) { l.programm.Befehlen(Befehl::DateiLaden); }, 0},
      {"Frage", SIGHUP, [](Laufend& l) { l.programm.Befehlen(Befehl::UserNeu); }, 0},
      {"Meldung", 0, [](Laufend& l) { l.programm.Tun(Mit(BerechnenVerlangt)); }, 0},
      {"PDF", 0, [](Laufend& l) { l.programm.Befehlen(Befehl::PdfSpeichern); }, 0},
      {"neues Rufzeichen", 0,
       [](Laufend& l) {
         l.station.neuesRufzeichen = true;
         l.programm.Befehlen(Befehl::DateiSpeichernUnter);
       },
       1},
  };
  for (const auto& [was, signal, oeffnen, rueckgabe] : faelle) {
    SCOPED_TRACE(was);
    QFile::remove(filePath(u"user.dat"_s));
    {
      QtMeldungsboxen boxen;
      Laufend lauf(path(), boxen);
      lauf.Tippen();
      Verlangen ende(signal);
      oeffnen(lauf);
      EXPECT_TRUE(ende.verlangt && lauf.Ende());
      EXPECT_EQ(lauf.rueckgabe, rueckgabe);
    }
    EXPECT_EQ(NaechstesMal(), "Anna");
  }
}

/// A missing file that cannot be made is no change of the user's.
TEST_F(Ende, OhneAenderungenWirdNichtsAngeboten) {
  QFile::link(filePath(u"fehlt/user.dat"_s), filePath(u"user.dat"_s));
  QtMeldungsboxen boxen;
  Laufend lauf(path(), boxen);
  lauf.programm.EndeVerlangt();
  EXPECT_TRUE(lauf.Ende());
  EXPECT_EQ(lauf.rueckgabe, 0);
}

TEST_F(Ende, BeimStartBleibtDieRettungskopie) {
  Jasager ja;
  {
    Laufend absturz(path(), ja);
    absturz.Tippen();
    absturz.programm.RettungSichern();
  }
  QFile::remove(filePath(u"Kabel.txt"_s));  // another box, after the question
  QtMeldungsboxen boxen;
  Verlangen ende(SIGTERM);
  { EXPECT_TRUE(Laufend(path(), boxen).Ende()); }
  EXPECT_EQ(NaechstesMal(), "Anna");
}

}  // namespace
}  // namespace vesk
