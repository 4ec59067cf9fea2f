#include "fuzz/ausfall/Rundgang.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListView>
#include <QTimer>
#include <cstdlib>
#include <iostream>

#include "app/Desktop.h"
#include "app/Programm.h"
#include "station/Haupthandlungen.h"

using namespace Qt::StringLiterals;

namespace vesk::ausfall {

namespace {

/// What the dialogs are given, one after the other.
const QString Gewaehlt[] = {u"Papiere.pdf"_s, u"Turm.ang"_s, u"Zweite.dat"_s};

/// Answers what stands open: a dialog with the next file, a question with No.
class Antworter : public QTimer {
 public:
  explicit Antworter(const QString& ordner) : ordner_(ordner) {
    // Queued: an answer may open the next box.
    connect(this, &QTimer::timeout, this, &Antworter::Antworten, Qt::QueuedConnection);
    start(20);
  }

 private:
  void Antworten() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    if (auto* dateien = qobject_cast<QFileDialog*>(dialog)) {
      if (nummer_ == std::size(Gewaehlt)) std::abort();
      // What is marked in the list counts more than what is typed.
      dateien->findChild<QListView*>(u"listView"_s)->clearSelection();
      dateien->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(ordner_ + u'/' + Gewaehlt[nummer_++]);
      // The dialog keeps its own way of accepting to itself.
      QMetaObject::invokeMethod(dateien, "accept");
    } else {
      dialog->done(0);
    }
  }

  QString ordner_;
  std::size_t nummer_ = 0;
};

void Schritte(Programm& programm) {
  const auto tun = [&](const Handlung& handlung) {
    programm.Tun(handlung);
    QCoreApplication::processEvents();
  };
  for (const auto& [feld, text] : {std::pair(Eingabefeld::QRG, "14.2"), std::pair(Eingabefeld::PWR, "100")}) {
    tun(Mit(FeldBetreten, feld));
    tun(Mit(EingabeGetippt, feld, std::string(text)));
    tun(Mit(FeldVerlassen, feld));
  }
  tun(BerechnenVerlangt);
  tun(InFreieSpalteKopieren);
  using enum Befehl;
  for (const Befehl befehl : {OptionenZeigen, DatenblattZeigen, BenutzerZeigen, LeistungsumrechnungZeigen,
                              BaenderZeigen, DiagrammeZeigen, TipZeigen, Handbuch, DateiSpeichern,
                              PdfSpeichern, WinkelSpeichernUnter, DateiSpeichernUnter, InfoZeigen}) {
    programm.Befehlen(befehl);
    QCoreApplication::processEvents();
  }
  programm.RettungSichern();
  programm.Befehlen(Beenden);
}

}  // namespace

int Rundgehen(const QString& verzeichnis) {
  const Verzeichnisse verzeichnisse =
      VerzeichnisseBestimmen(verzeichnis, QApplication::applicationDirPath() + u"/../.."_s);
  const QString gewaehlt = verzeichnis + u"/../gewaehlt"_s;
  QDir().mkpath(gewaehlt);
  Desktop desktop(verzeichnisse);
  MitgelieferteKopieren(verzeichnisse, desktop.speicher);
  Station station;
  Programm programm(station, desktop.plattform, verzeichnisse);
  QObject::connect(
      &programm, &Programm::beendet, qApp, [](int rueckgabe) { QApplication::exit(rueckgabe); },
      Qt::QueuedConnection);
  const Antworter antworter(gewaehlt);
  QTimer::singleShot(0, &programm, [&] {
    programm.Starten();
    Schritte(programm);
  });
  const int rueckgabe = QApplication::exec();
  for (const QString& datei : Gewaehlt) {
    if (QFileInfo::exists(gewaehlt + u'/' + datei)) continue;
    std::cerr << "Rundgang: " << datei.toStdString() << " fehlt\n";
    return 1;
  }
  return rueckgabe;
}

}  // namespace vesk::ausfall
