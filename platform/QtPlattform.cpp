#include "QtPlattform.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>

namespace vesk {

namespace {

/// A box that can only be left by a button when it asks a question: neither Escape nor the frame answers it.
class StrengeBox : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;
  bool nurKnoepfe = false;

 protected:
  void keyPressEvent(QKeyEvent* ereignis) override {
    if (nurKnoepfe && ereignis->key() == Qt::Key_Escape) return;
    QMessageBox::keyPressEvent(ereignis);
  }
  void closeEvent(QCloseEvent* ereignis) override {
    if (nurKnoepfe) {
      ereignis->ignore();
    } else {
      QMessageBox::closeEvent(ereignis);
    }
  }
};

QFileDialog* NeuerDialog(const Dateiwahl& wahl) {
  auto* dialog = new QFileDialog(QApplication::activeWindow(), wahl.titel, wahl.verzeichnis, wahl.filter);
  dialog->setDefaultSuffix(wahl.endung);
  if (!wahl.vorschlag.isEmpty()) dialog->selectFile(wahl.vorschlag);
  return dialog;
}

std::optional<QString> Ausfuehren(QFileDialog* dialog) {
  std::optional<QString> wahl;
  if (dialog->exec() == QDialog::Accepted && !dialog->selectedFiles().isEmpty()) {
    wahl = QDir::cleanPath(dialog->selectedFiles().constFirst());
  }
  dialog->deleteLater();
  return wahl;
}

}  // namespace

Antwort QtMeldungsboxen::Zeigen(const Box& box) {
  StrengeBox fenster(QApplication::activeWindow());
  fenster.setWindowTitle(box.titel);
  fenster.setTextFormat(Qt::PlainText);
  // Some texts break their lines with CR, which a label does not show.
  fenster.setText(QString(box.text).replace(QLatin1Char('\r'), QLatin1Char('\n')));
  switch (box.symbol) {
    case Symbol::Ausrufezeichen:
      fenster.setIcon(QMessageBox::Warning);
      break;
    case Symbol::Frage:
      fenster.setIcon(QMessageBox::Question);
      break;
  }
  if (box.knoepfe == Knoepfe::OK) {
    fenster.addButton(QStringLiteral("&OK"), QMessageBox::AcceptRole);
    fenster.exec();
    return Antwort::OK;
  }
  QPushButton* ja = fenster.addButton(QStringLiteral("&Ja"), QMessageBox::YesRole);
  QPushButton* nein = fenster.addButton(QStringLiteral("&Nein"), QMessageBox::NoRole);
  fenster.setDefaultButton(box.vorgabe == Antwort::Nein ? nein : ja);
  fenster.nurKnoepfe = true;
  fenster.exec();
  return fenster.clickedButton() == ja ? Antwort::Ja : Antwort::Nein;
}

std::optional<QString> QtDateidialoge::Oeffnen(const Dateiwahl& wahl) {
  QFileDialog* dialog = NeuerDialog(wahl);
  dialog->setFileMode(QFileDialog::ExistingFile);
  return Ausfuehren(dialog);
}

std::optional<QString> QtDateidialoge::Speichern(const Dateiwahl& wahl) {
  QFileDialog* dialog = NeuerDialog(wahl);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  return Ausfuehren(dialog);
}

std::optional<QString> QtBenutzerspeicher::Lesen(const QString& abschnitt, const QString& schluessel) {
  const QVariant wert = QSettings().value(abschnitt + QLatin1Char('/') + schluessel);
  if (!wert.isValid()) return std::nullopt;
  return wert.toString();
}

void QtBenutzerspeicher::Schreiben(const QString& abschnitt, const QString& schluessel, const QString& wert) {
  QSettings().setValue(abschnitt + QLatin1Char('/') + schluessel, wert);
}

void QtSignalton::Piep() {
  QApplication::beep();
}

}  // namespace vesk
