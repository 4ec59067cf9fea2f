#include "platform/QtPlattform.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Where the last dialog has just led back to, while nobody knows it yet.
QPointer<QWidget>& Voriges() {
  static QPointer<QWidget> fenster;
  return fenster;
}

/// The window that a box belongs to and stays in front of, also before one is active and beside another
/// program.
QWidget* Vordergrund() {
  if (Voriges()) return Voriges();
  if (QWidget* aktiv = QApplication::activeWindow()) return aktiv;
  const QWidgetList fenster = QApplication::topLevelWidgets();
  const auto offen = std::find_if(fenster.begin(), fenster.end(), [](const QWidget* w) {
    return w->isVisible() && w->windowType() == Qt::Window;
  });
  return offen == fenster.end() ? nullptr : *offen;
}

/// Leads back to the window that was in front before, also after several dialogs in a row.
class Rueckweg {
 public:
  Rueckweg() : vorher_(Vordergrund()) {}
  ~Rueckweg() {
    if (!vorher_ || !vorher_->isVisible()) return;
    vorher_->activateWindow();
    // The window system tells later; until then the next dialog would take any window for the active one.
    Voriges() = vorher_;
    QTimer::singleShot(0, vorher_, [] { Voriges().clear(); });
  }
  Q_DISABLE_COPY_MOVE(Rueckweg)

  QWidget* Fenster() const { return vorher_; }

 private:
  QPointer<QWidget> vorher_;
};

/// A box that only a key press of its own answers: one held down since before it opened repeats, and its
/// release answers nothing. A question can only be left by a button, neither by Escape nor by the frame.
class StrengeBox : public QMessageBox {
 public:
  StrengeBox(bool frage, const Tastenuhr& uhr, QWidget* vor) : QMessageBox(vor), frage_(frage), uhr_(uhr) {}

  void Fragen() {
    const QList<QWidget*> kinder = findChildren<QWidget*>();
    for (QWidget* kind : kinder) kind->installEventFilter(this);
    installEventFilter(this);
    exec();
  }

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override {
    if (ereignis->type() == QEvent::KeyPress) {
      const auto* taste = static_cast<QKeyEvent*>(ereignis);
      if (uhr_.Wiederholt(*taste) || (frage_ && taste->key() == Qt::Key_Escape)) return true;
    }
    return QMessageBox::eventFilter(objekt, ereignis);
  }
  void closeEvent(QCloseEvent* ereignis) override {
    if (frage_) {
      ereignis->ignore();
    } else {
      QMessageBox::closeEvent(ereignis);
    }
  }

 private:
  bool frage_;
  const Tastenuhr& uhr_;
};

QFileDialog* NeuerDialog(QWidget* vor, const Dialogwahl& wahl) {
  auto* dialog = new QFileDialog(vor, wahl.titel, wahl.verzeichnis, wahl.filter);
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

QByteArray Inhalt(const QString& datei) {
  QFile quelle(datei);
  return quelle.open(QFile::ReadOnly) ? quelle.readAll() : QByteArray();
}

bool Abgeschrieben(const QString& von, const QString& nach) {
  QFile::remove(nach);
  if (QFile::copy(von, nach) && Inhalt(nach) == Inhalt(von)) return true;
  QFile::remove(nach);
  return false;
}

/// A line for each value, down to the end of the last one.
bool Vollstaendig(const QString& datei, qsizetype werte) {
  const QByteArray inhalt = Inhalt(datei);
  const QList<QByteArray> zeilen = inhalt.split('\n');
  const auto anzahl =
      std::count_if(zeilen.begin(), zeilen.end(), [](const auto& z) { return z.contains('='); });
  return inhalt.endsWith('\n') && anzahl >= werte;
}

}  // namespace

bool Tastenuhr::Wiederholt(const QKeyEvent& druck) const {
  if (druck.isAutoRepeat()) return true;
  const auto stelle = losgelassen_.constFind(druck.key());
  return druck.timestamp() != 0 && stelle != losgelassen_.constEnd() && *stelle == druck.timestamp();
}

bool Tastenuhr::eventFilter(QObject*, QEvent* ereignis) {
  if (ereignis->type() == QEvent::KeyRelease) {
    const auto* taste = static_cast<QKeyEvent*>(ereignis);
    losgelassen_[taste->key()] = taste->timestamp();
  }
  return false;
}

bool DialogeAbbrechen() {
  bool offen = false;
  for (QWidget* fenster : QApplication::topLevelWidgets()) {
    auto* dialog = qobject_cast<QDialog*>(fenster);
    if (dialog == nullptr || !dialog->isVisible() || !dialog->isModal()) continue;
    offen = true;
    if (auto* anzeige = qobject_cast<QProgressDialog*>(dialog)) {
      anzeige->cancel();
    } else {
      dialog->reject();
    }
  }
  return offen;
}

QtMeldungsboxen::QtMeldungsboxen() {
  qApp->installEventFilter(&uhr_);
}

Antwort QtMeldungsboxen::Zeigen(const Hinweis& box) {
  const bool frage = box.knoepfe == Knoepfe::JaNein;
  const Rueckweg rueckweg;
  StrengeBox fenster(frage, uhr_, rueckweg.Fenster());
  fenster.setProperty(HilfekontextEigenschaft, box.hilfe);
  fenster.setWindowTitle(QString::fromStdString(box.titel));
  fenster.setTextFormat(Qt::PlainText);
  // Some texts break their lines with CR, which a label does not show.
  fenster.setText(QString::fromStdString(box.text).replace(QLatin1Char('\r'), QLatin1Char('\n')));
  fenster.setIcon(box.symbol == Symbol::Frage ? QMessageBox::Question : QMessageBox::Warning);
  if (!frage) {
    fenster.addButton(QStringLiteral("&OK"), QMessageBox::AcceptRole);
    fenster.Fragen();
    return Antwort::OK;
  }
  QPushButton* ja = fenster.addButton(QStringLiteral("&Ja"), QMessageBox::YesRole);
  QPushButton* nein = fenster.addButton(QStringLiteral("&Nein"), QMessageBox::NoRole);
  fenster.setDefaultButton(box.vorgabe == Antwort::Nein ? nein : ja);
  fenster.Fragen();
  if (fenster.clickedButton() == nullptr) return Antwort::Keine;
  return fenster.clickedButton() == ja ? Antwort::Ja : Antwort::Nein;
}

std::optional<QString> QtDateidialoge::Oeffnen(const Dialogwahl& wahl) {
  const Rueckweg rueckweg;
  QFileDialog* dialog = NeuerDialog(rueckweg.Fenster(), wahl);
  dialog->setFileMode(QFileDialog::ExistingFile);
  return Ausfuehren(dialog);
}

std::optional<QString> QtDateidialoge::Speichern(const Dialogwahl& wahl) {
  const Rueckweg rueckweg;
  QFileDialog* dialog = NeuerDialog(rueckweg.Fenster(), wahl);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  return Ausfuehren(dialog);
}

std::optional<QString> QtBenutzerspeicher::Lesen(const QString& abschnitt, const QString& schluessel) {
  const QVariant wert = QSettings().value(abschnitt + QLatin1Char('/') + schluessel);
  if (!wert.isValid()) return std::nullopt;
  return wert.toString();
}

/// On a full disk the toolkit puts a file that is cut off in the place of the former one.
void QtBenutzerspeicher::Schreiben(const QString& abschnitt, const QString& schluessel, const QString& wert) {
  QSettings speicher;
  const QString datei = speicher.fileName();
  const QString alt = datei + u".alt"_s;
  const bool vorhanden = QFile::exists(datei);  // on Windows it is no file
  if (vorhanden && !Abgeschrieben(datei, alt)) return;
  speicher.setValue(abschnitt + u'/' + schluessel, wert);
  speicher.sync();
  if (vorhanden && !Vollstaendig(datei, speicher.allKeys().size())) {
    std::error_code egal;
    std::filesystem::rename(alt.toStdString(), datei.toStdString(), egal);
  } else {
    QFile::remove(alt);
  }
}

bool QtBetrachter::Oeffnen(const QString& datei) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(datei));
}

Fortschritt QtFortschrittsanzeige::Beginnen(const QString& titel) {
  auto rueckweg = std::make_shared<Rueckweg>();
  auto anzeige = std::make_shared<QProgressDialog>(titel, u"Abbrechen"_s, 0, 0, rueckweg->Fenster());
  anzeige->setWindowModality(Qt::ApplicationModal);
  anzeige->setMinimumDuration(500);  // ms
  return [rueckweg, anzeige](std::size_t fertig, std::size_t von) {
    anzeige->setMaximum(static_cast<int>(von));
    anzeige->setValue(static_cast<int>(fertig));
    return !anzeige->wasCanceled();
  };
}

void QtSignalton::Piep() {
  QApplication::beep();
}

}  // namespace vesk
