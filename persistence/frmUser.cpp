#include "frmUser.h"

#include <QAction>
#include <QApplication>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSignalBlocker>
#include <algorithm>

#include "Benutzerhilfe.h"
#include "Farben.h"
#include "Meldung.h"
#include "Plattform.h"
#include "Textfeld.h"
#include "UserDatei.h"
#include "Zustand.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// The second letter of a German callsign tells the class of its licence.
QString Klasse(const QString& rufzeichen) {
  const QChar zweites = rufzeichen.size() > 1 ? rufzeichen.at(1) : QChar();
  if (zweites == u'B' || zweites == u'C' || zweites == u'D') return u"2"_s;
  return zweites == u'O' ? u"3"_s : u"1"_s;
}

/// Upper case without moving the cursor.
void Grossschreiben(QLineEdit& feld) {
  const QString gross = feld.text().toUpper();
  if (gross == feld.text()) return;
  const int schreibmarke = feld.cursorPosition();
  feld.setText(gross);
  feld.setCursorPosition(schreibmarke);
}

}  // namespace

frmUser::frmUser(Zustand& zustand, Plattform& plattform, QWidget* eltern)
    : QDialog(eltern), zustand_(zustand), plattform_(plattform) {
  setObjectName(u"frmUser"_s);
  setWindowTitle(u"Persönliche Daten "_s);
  auto* raster = new QGridLayout(this);
  txtName = FeldAnlegen(*raster, u"Name"_s, u"&Name"_s);
  txtStrasse = FeldAnlegen(*raster, u"Strasse"_s, u"&Straße"_s);
  txtOrt = FeldAnlegen(*raster, u"Ort"_s, u"&Ort"_s);
  txtTelefon = FeldAnlegen(*raster, u"Telefon"_s, u"&Telefon"_s);
  txtTelefax = FeldAnlegen(*raster, u"Telefax"_s, u"Telefa&x"_s);
  txtRufzeichen = FeldAnlegen(*raster, u"Rufzeichen"_s, u"&Rufzeichen"_s);
  txtKlasse = FeldAnlegen(*raster, u"Klasse"_s, u"&Klasse"_s);
  txtStandort = FeldAnlegen(*raster, u"Standort"_s, u"St&andort"_s);
  raster->setRowStretch(raster->rowCount(), 1);
  felder_ = {{{txtName, &Benutzer::Name, Pflicht::Ja},
              {txtStrasse, &Benutzer::Strasse, Pflicht::Ja},
              {txtOrt, &Benutzer::Ort, Pflicht::Ja},
              {txtTelefon, &Benutzer::Telefon, Pflicht::Nein},
              {txtTelefax, &Benutzer::Telefax, Pflicht::Nein},
              {txtRufzeichen, &Benutzer::Rufzeichen, Pflicht::Ja},
              {txtKlasse, &Benutzer::Klasse, Pflicht::Ja},
              {txtStandort, &Benutzer::Standort, Pflicht::NurBeimSpeichern}}};
  MenueAnlegen();
  FelderVerbinden();
  FarbenZuruecksetzen();
}

QLineEdit* frmUser::FeldAnlegen(QGridLayout& raster, const QString& name, const QString& titel) {
  auto* feld = new Textfeld(plattform_.ton, this);
  feld->setObjectName(u"txt"_s + name);
  feld->setMaxLength(static_cast<int>(MaxFeldlaenge));
  feld->setMinimumWidth(fontMetrics().horizontalAdvance(QString(40, u'0')));
  auto* label = new QLabel(titel, this);
  label->setObjectName(u"lbl"_s + name);
  label->setBuddy(feld);
  feld->setAccessibleName(QString(titel).remove(u'&'));
  const int zeile = raster.rowCount();
  raster.addWidget(label, zeile, 0);
  raster.addWidget(feld, zeile, 1);
  return feld;
}

void frmUser::MenueAnlegen() {
  auto* leiste = new QMenuBar(this);
  QMenu* menue = leiste->addMenu(u"&Datei"_s);
  menue->setToolTipsVisible(true);
  const auto eintrag = [&](const QString& name, const QString& titel, auto antwort) {
    QAction* aktion = menue->addAction(titel);
    aktion->setObjectName(name);
    connect(aktion, &QAction::triggered, this, antwort);
    return aktion;
  };
  eintrag(u"mnuUserNeu"_s, u"&Neu"_s, &frmUser::UserNeu);
  eintrag(u"mnuUserLaden"_s, u"&Laden"_s, &frmUser::UserLaden);
  eintrag(u"mnuUserSpeichern"_s, u"&Speichern"_s, &frmUser::mnuUserSpeichern_Click);
  eintrag(u"mnuUserSpeichernUnter"_s, u"Speichern &unter"_s, &frmUser::UserSpeichernUnter);
  QAction* drucken = eintrag(u"mnuUserPrint"_s, u"&Drucken"_s, &frmUser::mnuUserPrint_Click);
  drucken->setEnabled(false);
  drucken->setToolTip(u"Drucken kommt mit einer späteren Version."_s);
  eintrag(u"mnuUserDelete"_s, u"Daten l&öschen"_s, &frmUser::mnuUserDelete_Click);
  eintrag(u"mnuNoChange"_s, u"Änderungen &rückgängig machen"_s, &frmUser::mnuNoChange_Click);
  eintrag(u"mnuUserBeenden"_s, u"S&chließen"_s, &frmUser::hide);
  layout()->setMenuBar(leiste);
}

void frmUser::FelderVerbinden() {
  for (const Feld& feld : felder_) {
    feld.feld->installEventFilter(this);
    connect(feld.feld, &QLineEdit::textChanged, this, [this, feld] { FeldGeaendert(feld); });
  }
  connect(txtRufzeichen, &QLineEdit::textEdited, this, [this] { Grossschreiben(*txtRufzeichen); });
}

void frmUser::FeldGeaendert(const Feld& feld) {
  if (feld.feld == txtKlasse) Grossschreiben(*txtKlasse);
  std::string& ziel = zustand_.benutzer.*feld.text;
  const std::string text = feld.feld->text().toStdString();
  if (ziel == text) return;
  ziel = text;
  zustand_.UserGeaendert = true;
}

void frmUser::Fuellen() {
  std::string& klasse = zustand_.benutzer.Klasse;
  klasse = QString::fromStdString(klasse).toUpper().toStdString();
  for (const Feld& feld : felder_) {
    const QSignalBlocker still(feld.feld);
    feld.feld->setText(QString::fromStdString(zustand_.benutzer.*feld.text));
    feld.feld->setCursorPosition(0);
  }
  klasseEntschieden_ = txtRufzeichen->text();
  FarbenZuruecksetzen();
}

void frmUser::Leeren() {
  for (const Feld& feld : felder_) feld.feld->clear();
  klasseEntschieden_.clear();
}

void frmUser::NeuBeginnen() {
  Leeren();
  FarbenZuruecksetzen();
  show();
  txtName->setFocus();
}

void frmUser::Abschliessen() {
  if (txtRufzeichen->text() == klasseEntschieden_) return;
  klasseEntschieden_ = txtRufzeichen->text();
  txtKlasse->setText(Klasse(klasseEntschieden_));
}

void frmUser::TooltipsZeigen(bool an) {
  TooltipsSetzen(*this, BenutzerTooltips(), an);
}

void frmUser::FarbenZuruecksetzen() {
  for (const Feld& feld : felder_) {
    if (feld.pflicht != Pflicht::Nein) Hintergrund(*feld.feld, farben::HellViolett);
  }
}

int frmUser::UserCheck(int modus) {
  Abschliessen();
  const bool drucken = modus != 0;
  bool vollstaendig = true;
  for (const Feld& feld : felder_) {
    const bool geprueft =
        feld.pflicht == Pflicht::Ja || (feld.pflicht == Pflicht::NurBeimSpeichern && !drucken);
    if (!geprueft) continue;
    const bool leer = feld.feld->text().isEmpty();
    Hintergrund(*feld.feld, leer ? farben::Rot : farben::Weiss);
    vollstaendig = vollstaendig && !leer;
  }
  if (vollstaendig) return static_cast<int>(Antwort::Ja);
  const std::string text =
      drucken ? "\nDie persönlichen Daten sind nicht vollständig.\nDatenblatt trotzdem drucken?"
              : "Die violetten Felder müssen alle ausgefüllt werden!";
  const Antwort antwort =
      Zeigen(plattform_.boxen, zustand_.werte, {"Felder bitte korrekt ausfüllen", text, drucken});
  return static_cast<int>(antwort);
}

void frmUser::mnuUserSpeichern_Click() {
  UserCheck(0);
  Q_EMIT UserSpeichern();
}

void frmUser::mnuUserPrint_Click() {
  constexpr int Drucken = 51;
  if (UserCheck(Drucken) == static_cast<int>(Antwort::Ja)) Q_EMIT UserPrint();
}

void frmUser::mnuUserDelete_Click() {
  if (Bestaetigt(plattform_.boxen, zustand_.werte, u"Vesk"_s, u"User-Daten wirklich löschen?"_s)) {
    Leeren();
  }
  hide();
}

void frmUser::mnuNoChange_Click() {
  Q_EMIT NoChange();
  hide();
}

void frmUser::reject() {
  hide();
}

bool frmUser::FeldWechseln(const QObject* von, int schritt) {
  const auto* platz =
      std::find_if(felder_.begin(), felder_.end(), [&](const Feld& feld) { return feld.feld == von; });
  const auto ziel = platz - felder_.begin() + schritt;
  if (ziel >= 0 && ziel < std::ssize(felder_)) felder_.at(static_cast<std::size_t>(ziel)).feld->setFocus();
  return true;
}

bool frmUser::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() == QEvent::KeyPress) {
    const int taste = static_cast<QKeyEvent*>(ereignis)->key();
    if (taste == Qt::Key_Down) return FeldWechseln(objekt, 1);
    if (taste == Qt::Key_Up) return FeldWechseln(objekt, -1);
  }
  if (ereignis->type() == QEvent::FocusOut && objekt == txtRufzeichen) {
    // An opened menu or another program has not taken the user away from the field.
    const Qt::FocusReason grund = static_cast<QFocusEvent*>(ereignis)->reason();
    const bool anderesProgramm =
        grund == Qt::ActiveWindowFocusReason && QApplication::activeWindow() == nullptr;
    if (grund != Qt::PopupFocusReason && grund != Qt::MenuBarFocusReason && !anderesProgramm) Abschliessen();
  }
  return QDialog::eventFilter(objekt, ereignis);
}

void frmUser::keyPressEvent(QKeyEvent* ereignis) {
  // Enter must never press anything here.
  if (ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter) {
    ereignis->accept();
    return;
  }
  QDialog::keyPressEvent(ereignis);
}

void frmUser::hideEvent(QHideEvent* ereignis) {
  QDialog::hideEvent(ereignis);
  if (ereignis->spontaneous()) return;
  Abschliessen();
  // Saving may open a box; the window must be out of its modal loop by then.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (isHidden()) Q_EMIT verborgen();
      },
      Qt::QueuedConnection);
}

}  // namespace vesk
