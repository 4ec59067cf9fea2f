#include "platform/QtDrucker.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTextDocument>
#include <type_traits>
#include <utility>

#include "platform/Druckerlader.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// First and last page to print, counted from 0.
std::pair<std::size_t, std::size_t> Bereich(const QPrinter& drucker, std::size_t anzahl) {
  const int ende = static_cast<int>(anzahl);
  const int von = std::clamp(drucker.fromPage(), 1, ende);
  const int bis = drucker.toPage() == 0 ? ende : std::clamp(drucker.toPage(), von, ende);
  return {static_cast<std::size_t>(von - 1), static_cast<std::size_t>(bis - 1)};
}

/// The toolkit writes PDF into a file without telling when the disk is full: then the end is missing.
bool Angekommen(const QPrinter& drucker) {
  if (drucker.printerState() == QPrinter::Error) return false;
  if (drucker.outputFileName().isEmpty()) return true;
  constexpr qint64 Ende = 16;  // bytes; the last line is "%%EOF"
  QFile datei(drucker.outputFileName());
  return datei.open(QFile::ReadOnly) && datei.size() > Ende && datei.seek(datei.size() - Ende) &&
         datei.read(Ende).contains("%%EOF");
}

Druckausgang Fehlschlag(const QPrinter& drucker) {
  const QString datei = QDir::toNativeSeparators(drucker.outputFileName());
  const QString grund =
      datei.isEmpty()
          ? u"Der Drucker „%1“ hat den Auftrag nicht angenommen."_s.arg(drucker.printerName())
          : u"Die Datei %1 konnte nicht geschrieben werden. Fehlt dort der Platz oder die Berechtigung?"_s
                .arg(datei);
  return {Druckausgang::Gescheitert, grund.toStdString()};
}

/// What is A4 goes on the paper that the user has chosen. False: the printer does not know the size.
bool Einlegen(QPrinter& drucker, const QPageLayout& blatt, const QPageSize& gewaehlt) {
  const bool a4 = blatt.pageSize().id() == QPageSize::A4;
  const bool bekannt = drucker.setPageSize(a4 ? gewaehlt : blatt.pageSize());
  drucker.setPageOrientation(blatt.orientation());
  return a4 || bekannt;
}

}  // namespace

QtDrucker::QtDrucker(Druckerdialog dialog) : dialog_(std::move(dialog)) {}
QtDrucker::~QtDrucker() = default;

Druckausgang DruckerErfragen(QPrinter& drucker, const QString& titel, const QString& knopf, int seiten) {
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return Druckausgang::KeinDrucker;
  QPrintDialog dialog(&drucker, QApplication::activeWindow());
  dialog.setWindowTitle(titel);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, seiten > 1);
  if (seiten > 1) dialog.setMinMax(1, seiten);
  for (QDialogButtonBox* kasten : dialog.findChildren<QDialogButtonBox*>()) {
    if (QPushButton* ja = kasten->button(QDialogButtonBox::Ok)) ja->setText(knopf);
  }
  return dialog.exec() == QDialog::Accepted ? Druckausgang::Gedruckt : Druckausgang::Abgebrochen;
}

Druckausgang QtDrucker::Waehlen(const QString& titel, const QString& knopf, int seiten) {
  if (!drucker_) drucker_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  drucker_->setPageSize(QPageSize(QPageSize::A4));
  // Pages chosen last time were those of other papers.
  drucker_->setPrintRange(QPrinter::AllPages);
  drucker_->setFromTo(0, 0);
  return dialog_(*drucker_, titel, knopf, seiten);
}

Druckausgang QtDrucker::Einrichten() {
  return Waehlen(u"Drucker einrichten"_s, u"Übernehmen"_s, 1);
}

Druckausgang QtDrucker::Drucken(const Druckauftrag& auftrag, const Fortschritt& fortschritt) {
  Druckausgang wahl = Waehlen(u"Drucken"_s, u"Drucken"_s, static_cast<int>(auftrag.seiten.size()));
  if (wahl.art != Druckausgang::Gedruckt) return wahl;
  drucker_->setDocName(auftrag.titel);
  drucker_->setFullPage(true);
  const auto [erste, letzte] = Bereich(*drucker_, auftrag.seiten.size());
  const QPageSize gewaehlt = drucker_->pageLayout().pageSize();
  for (std::size_t seite = erste; seite <= letzte; ++seite) {
    if (Einlegen(*drucker_, auftrag.seiten.at(seite), gewaehlt)) continue;
    drucker_->setPageSize(gewaehlt);
    return {Druckausgang::Gescheitert,
            u"Der Drucker „%1“ hat kein Papier der Größe %2; für den Lageplan läßt sich auch A4 wählen."_s
                .arg(drucker_->printerName(), auftrag.seiten.at(seite).pageSize().name())
                .toStdString()};
  }
  Einlegen(*drucker_, auftrag.seiten.at(erste), gewaehlt);
  QPainter maler;
  if (!maler.begin(drucker_.get())) return Fehlschlag(*drucker_);
  for (std::size_t seite = erste; seite <= letzte; ++seite) {
    if (!fortschritt(seite - erste, letzte - erste + 1)) {
      drucker_->abort();
      return Druckausgang::Abgebrochen;
    }
    if (seite != erste) {
      Einlegen(*drucker_, auftrag.seiten.at(seite), gewaehlt);
      if (!drucker_->newPage()) return Fehlschlag(*drucker_);
    }
    auftrag.malen(seite, maler, drucker_->resolution() / 25.4);
  }
  return maler.end() && Angekommen(*drucker_) ? Druckausgang::Gedruckt : Fehlschlag(*drucker_);
}

Druckausgang QtDrucker::TextDrucken(const QTextDocument& dokument, const QString& titel) {
  Druckausgang wahl = Waehlen(u"Drucken"_s, u"Drucken"_s, 1);
  if (wahl.art != Druckausgang::Gedruckt) return wahl;
  drucker_->setDocName(titel);
  drucker_->setPageOrientation(QPageLayout::Portrait);
  dokument.print(drucker_.get());
  return Angekommen(*drucker_) ? Druckausgang::Gedruckt : Fehlschlag(*drucker_);
}

}  // namespace vesk

extern "C" __attribute__((visibility("default"))) vesk::Drucker* vesk_drucker_anlegen() {
  return new vesk::QtDrucker;
}
static_assert(std::is_same_v<decltype(vesk_drucker_anlegen), vesk::Druckeranleger>);
