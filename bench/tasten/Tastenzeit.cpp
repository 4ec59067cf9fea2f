#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "app/Desktop.h"
#include "app/Programm.h"
#include "station/Haupthandlungen.h"

using namespace Qt::StringLiterals;

namespace {

QWidget& Ding(const QString& fenster, const QString& name) {
  const QWidgetList alle = QApplication::topLevelWidgets();
  for (QWidget* eines : alle) {
    if (eines->objectName() != fenster) continue;
    if (auto* ding = eines->findChild<QWidget*>(name)) return *ding;
  }
  qFatal("%s fehlt", qPrintable(name));
}

/// A box would stop the clock.
class Stumm : public vesk::Meldungsboxen {
 public:
  vesk::Antwort Zeigen(const vesk::Hinweis& box) override {
    std::printf("%s\n", box.text.c_str());
    return vesk::Antwort::Nein;
  }
};

/// From the key to the last window painted.
double Dauer(QWidget& feld, Qt::Key taste, Qt::KeyboardModifiers zusatz) {
  const auto beginn = std::chrono::steady_clock::now();
  QTest::keyClick(&feld, taste, zusatz);
  // Layouts first, then what each window has to paint anew.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
  QCoreApplication::processEvents();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - beginn).count();
}

void Messen(const char* was, QWidget& feld, const std::vector<QKeyCombination>& tasten, int mal) {
  std::vector<double> zeiten;
  for (int i = 0; i < mal; ++i) {
    for (const QKeyCombination taste : tasten)
      zeiten.push_back(Dauer(feld, taste.key(), taste.keyboardModifiers()));
  }
  std::sort(zeiten.begin(), zeiten.end());
  std::printf("%-34s %6.2f ms (höchstens %.2f)\n", was, zeiten[zeiten.size() / 2], zeiten.back());
}

}  // namespace

/// All windows of the work are open, on the shipped catalogues; one frame is 16 ms.
int main(int anzahl, char** argumente) {
  const QTemporaryDir heim;
  qputenv("HOME", heim.path().toLocal8Bit());
  const QApplication anwendung(anzahl, argumente);
  QApplication::setApplicationName(u"Tastenzeit"_s);
  QApplication::setOrganizationName(u"Vesk"_s);
  const vesk::Verzeichnisse verzeichnisse =
      vesk::VerzeichnisseBestimmen(heim.path(), QApplication::applicationDirPath() + u"/../.."_s);
  vesk::Desktop desktop(verzeichnisse);
  desktop.speicher.Schreiben(u"Options"_s, u"Show Tips at Startup"_s, u"0"_s);
  vesk::MitgelieferteKopieren(verzeichnisse, desktop.speicher);
  vesk::Station station;
  Stumm boxen;
  vesk::Plattform plattform{boxen,       desktop.dialoge, desktop.hilfe,      desktop.speicher,
                            desktop.ton, desktop.drucker, desktop.betrachter, desktop.fortschritt};
  vesk::Programm programm(station, plattform, verzeichnisse);
  programm.Starten();
  station.einstellungen.Meldungen = false;
  programm.Befehlen(vesk::Befehl::DatenblattZeigen);

  QWidget& leistung = Ding(u"frmVesk"_s, u"txtPWR"_s);
  programm.Tun(vesk::Mit(vesk::EingabeGetippt, vesk::Eingabefeld::QRG, std::string("14.2")));
  programm.Tun(vesk::Mit(vesk::EingabeGetippt, vesk::Eingabefeld::PWR, std::string("10")));
  leistung.setFocus();
  const auto messen = [&](const char* fenster) {
    std::printf("%s\n", fenster);
    Messen("  Tippen", leistung, {Qt::Key_1, Qt::Key_Backspace}, 50);
    Messen("  Rechnen", leistung, {Qt::Key_1, Qt::Key_F5, Qt::Key_Backspace, Qt::Key_F5}, 50);
    Messen("  Rückgängig", leistung, {Qt::CTRL | Qt::Key_Z}, 20);
    Messen("  Wiederholen", leistung, {Qt::CTRL | Qt::Key_Y}, 20);
    QTest::keyClick(&leistung, Qt::Key_F5);
  };
  messen("Hauptfenster, Datenblatt und Optionen offen");
  programm.Befehlen(vesk::Befehl::BaenderZeigen);
  messen("dazu alle Bänder");
  programm.Befehlen(vesk::Befehl::DiagrammeZeigen);
  messen("dazu die Diagramme");
  return 0;
}
