#include "fuzz/ausfall/Rundgang.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPrinter>
#include <QTimer>
#include <cstdlib>
#include <iostream>

#include "app/Desktop.h"
#include "app/Programm.h"
#include "fuzz/ausfall/Auftraege.h"
#include "platform/QtDrucker.h"
#include "station/Haupthandlungen.h"

using namespace Qt::StringLiterals;

namespace vesk::ausfall {

namespace {

/// What the dialogs are given, one after the other.
const QString Gewaehlt[] = {u"Haus.geojson"_s, u"Karte.png"_s,  u"Papiere.pdf"_s, u"Turm.ang"_s,
                            u"Turm.ang"_s,     u"Zweite.dat"_s, u"Zweite.dat"_s};
/// What there is afterwards, from the program directory.
const QString Entstanden[] = {u"../gewaehlt/Papiere.pdf"_s,
                              u"../gewaehlt/Gedruckt.pdf"_s,
                              u"../gewaehlt/Turm.ang"_s,
                              u"../gewaehlt/Zweite.dat"_s,
                              u"../gewaehlt/Zweite.lageplan"_s,
                              u"user.lageplan"_s,
                              u"Zweite.dat"_s,
                              u"Zweite.lageplan"_s,
                              u"Kabel-alt.txt"_s};

/// Answers what stands open: a dialog with the next file, a question with Yes.
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
    } else if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
      for (QAbstractButton* knopf : box->buttons()) {
        if (box->buttonRole(knopf) != QMessageBox::NoRole) return knopf->click();
      }
    } else {
      dialog->done(0);
    }
  }

  QString ordner_;
  std::size_t nummer_ = 0;
};

void Anlegen(const QString& pfad, const QByteArray& bytes) {
  QFile datei(pfad);
  if (!datei.open(QFile::WriteOnly) || datei.write(bytes) != bytes.size()) std::abort();
}

/// What the user has got from elsewhere, and what a crash has left.
void Vorbereiten(const QString& verzeichnis, const QString& gewaehlt) {
  QDir().mkpath(gewaehlt);
  Anlegen(gewaehlt + u"/Haus.geojson"_s, Haus);
  Anlegen(gewaehlt + u"/Kabel.txt"_s, [&] {
    QFile katalog(verzeichnis + u"/Kabel.txt"_s);
    return katalog.open(QFile::ReadOnly) ? katalog.readAll().replace("RG213", "NEU") : QByteArray();
  }());
  QImage karte(100, 80, QImage::Format_RGB32);
  karte.fill(Qt::white);
  if (!karte.save(gewaehlt + u"/Karte.png"_s)) std::abort();
  Lauf lauf(verzeichnis);
  lauf.programm.Starten();
  lauf.Tippen(Getippt);
  lauf.programm.RettungSichern();
}

void Schritte(Programm& programm, const QString& gewaehlt) {
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
  for (const Befehl befehl :
       {OptionenZeigen,     DatenblattZeigen,    BenutzerZeigen, LeistungsumrechnungZeigen,
        BaenderZeigen,      DiagrammeZeigen,     LageplanZeigen, GeojsonEinlesen,
        HintergrundWaehlen, TipZeigen,           Handbuch,       DateiSpeichern,
        DruckerEinrichten,  PapiereDrucken,      PdfSpeichern,   WinkelSpeichernUnter,
        WinkelLaden,        DateiSpeichernUnter, DateiLaden,     InfoZeigen}) {
    programm.Befehlen(befehl);
    QCoreApplication::processEvents();
  }
  programm.DateiOeffnen(gewaehlt + u"/Kabel.txt"_s);
  programm.RettungSichern();
  programm.Befehlen(Beenden);
}

/// The printers of the system are asked for; what is printed goes into a file.
Druckerdialog InDatei(const QString& pfad) {
  return [pfad](QPrinter& drucker, const QString& titel, const QString& knopf, int seiten) {
    DruckerErfragen(drucker, titel, knopf, seiten);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setOutputFileName(pfad);
    return Druckausgang(Druckausgang::Gedruckt);
  };
}

/// What is missing afterwards; empty: nothing.
std::string Mangel(const QString& verzeichnis, const Station& station) {
  for (const QString& datei : Entstanden) {
    if (!QFileInfo::exists(verzeichnis + u'/' + datei)) return datei.toStdString() + " fehlt";
  }
  if (station.benutzer.Name != Getippt) return "die Rettungskopie ist nicht zurückgeholt";
  const Lageplan& plan = station.lageplan;
  return plan.objekte.empty() || !plan.hintergrund ? "der Lageplan ist nicht geladen" : "";
}

}  // namespace

int Rundgehen(const QString& verzeichnis) {
  const Verzeichnisse verzeichnisse =
      VerzeichnisseBestimmen(verzeichnis, QApplication::applicationDirPath() + u"/../.."_s);
  const QString gewaehlt = verzeichnis + u"/../gewaehlt"_s;
  Desktop desktop(verzeichnisse);
  MitgelieferteKopieren(verzeichnisse, desktop.speicher);
  Vorbereiten(verzeichnis, gewaehlt);
  QtDrucker drucker(InDatei(gewaehlt + u"/Gedruckt.pdf"_s));
  Plattform plattform{desktop.boxen, desktop.dialoge, desktop.hilfe,      desktop.speicher,
                      desktop.ton,   drucker,         desktop.betrachter, desktop.fortschritt};
  Station station;
  Programm programm(station, plattform, verzeichnisse);
  QObject::connect(
      &programm, &Programm::beendet, qApp, [](int rueckgabe) { QApplication::exit(rueckgabe); },
      Qt::QueuedConnection);
  const Antworter antworter(gewaehlt);
  QTimer::singleShot(0, &programm, [&] {
    programm.Starten();
    Schritte(programm, gewaehlt);
  });
  const int rueckgabe = QApplication::exec();
  const std::string mangel = Mangel(verzeichnis, station);
  if (mangel.empty()) return rueckgabe;
  std::cerr << "Rundgang: " << mangel << '\n';
  return 1;
}

}  // namespace vesk::ausfall
