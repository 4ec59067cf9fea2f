#include "app/Desktoplage.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QStringList>
#include <QWidget>
#include <algorithm>

#include "platform/Plattform.h"
#include "ui/basis/Einpassen.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr auto Fensterabschnitt = "Fenster"_L1;
constexpr auto Dateiabschnitt = "Dateien"_L1;
constexpr auto Zuletzt = "Zuletzt"_L1;

/// The screen may be smaller than the one that the window was left on, or its letters larger.
void AufDenBildschirm(QWidget& fenster) {
  QRect platz = fenster.screen()->availableGeometry();
  platz.setTop(platz.bottom() - Fensterplatz(fenster).height());  // the title goes above
  QRect lage(fenster.geometry().topLeft(), fenster.size().boundedTo(platz.size()));
  lage.moveRight(std::min(lage.right(), platz.right()));
  lage.moveBottom(std::min(lage.bottom(), platz.bottom()));
  lage.moveTopLeft({std::max(lage.left(), platz.left()), std::max(lage.top(), platz.top())});
  fenster.setGeometry(lage);
}

/// Of a dialog the toolkit would take its contents for its frame, as long as that has not been seen, and put
/// the title above the screen. Main windows are placed by the desktop: false.
bool InDieMitte(QWidget& fenster) {
  if (qobject_cast<const QDialog*>(&fenster) == nullptr) return false;
  const QWidget* bei =
      fenster.parentWidget() != nullptr ? fenster.parentWidget() : QApplication::activeWindow();
  if (bei != nullptr) fenster.setScreen(bei->screen());
  QRect lage({}, fenster.size().expandedTo(fenster.minimumSizeHint()));
  lage.moveCenter(fenster.parentWidget() != nullptr ? bei->geometry().center()
                                                    : fenster.screen()->availableGeometry().center());
  fenster.setGeometry(lage);
  return true;
}

}  // namespace

void LageMerken(const QWidget& fenster, Benutzerspeicher& speicher) {
  if (!fenster.objectName().startsWith(u"frm"_s)) return;
  speicher.Schreiben(Fensterabschnitt, fenster.objectName(),
                     QString::fromLatin1(fenster.saveGeometry().toBase64()));
}

void LageHolen(QWidget& fenster, Benutzerspeicher& speicher) {
  const auto lage = speicher.Lesen(Fensterabschnitt, fenster.objectName());
  const bool bekannt = lage && fenster.restoreGeometry(QByteArray::fromBase64(lage->toLatin1()));
  if (!bekannt && !InDieMitte(fenster)) return;
  if (fenster.windowState() == Qt::WindowNoState) AufDenBildschirm(fenster);
}

std::vector<std::string> ZuletztBenutzt(Benutzerspeicher& speicher) {
  const QStringList zeilen =
      speicher.Lesen(Dateiabschnitt, Zuletzt).value_or(QString()).split(u'\n', Qt::SkipEmptyParts);
  std::vector<std::string> dateien;
  for (const QString& zeile : zeilen.mid(0, MaxZuletzt)) dateien.push_back(zeile.toStdString());
  return dateien;
}

void ZuletztMerken(const std::vector<std::string>& dateien, Benutzerspeicher& speicher) {
  QStringList zeilen;
  for (const std::string& datei : dateien) zeilen << QString::fromStdString(datei);
  speicher.Schreiben(Dateiabschnitt, Zuletzt, zeilen.join(u'\n'));
}

}  // namespace vesk
