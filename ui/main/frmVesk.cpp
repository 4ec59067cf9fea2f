#include "frmVesk.h"

#include <QAction>
#include <QCloseEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include "Farben.h"
#include "Haupthilfe.h"
#include "Klicklabel.h"
#include "Tastenfilter.h"
#include "Zahlen.h"
#include "Zustand.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr float HoechsterGewinn = 100;  // dBi

/// A number of more digits than the record can hold is surely too high; its sign tells in which direction.
float ZahlOderGrenze(const std::string& text) {
  try {
    return Zahl(text);
  } catch (const Laufzeitfehler&) {
    return text.find('-') == std::string::npos ? 2 * HoechsterGewinn : 0;
  }
}

}  // namespace

Modus frmVesk::modus() const {
  return lblModus->property("Tag").toString() == "Abstand"_L1 ? Modus::Abstand : Modus::Leistung;
}

bool frmVesk::AFu() const {
  return Aktion("mnuAFu").isChecked();
}

bool frmVesk::MeldungenAn() const {
  return Aktion("mnuMeldungen").isChecked();
}

QAction& frmVesk::Aktion(const char* name) const {
  auto* aktion = findChild<QAction*>(QLatin1String(name));
  Q_ASSERT(aktion != nullptr);
  return *aktion;
}

void frmVesk::Scharfschalten() {
  cmdBerechnen->setProperty("Tag", u"True"_s);
  scharf_ = true;
}

void frmVesk::Entschaerfen() {
  scharf_ = false;
}

bool frmVesk::Ausgeben() const {
  const QString tag = cmdBerechnen->property("Tag").toString();
  return tag == "True"_L1 || tag.toInt() != 0;
}

void frmVesk::EreignisseVerbinden() {
  Rechenwerte& werte = zustand_.werte;
  for (const Eingabe& eingabe : eingaben_) {
    eingabe.feld->installEventFilter(this);
    connect(eingabe.feld, &Zahlenfeld::gedrueckt, eingabe.feld, &QLineEdit::clear);
    connect(eingabe.feld, &Zahlenfeld::verlassen, this, [this, feld = eingabe.feld] {
      if (!scharf_) return;
      Verlassen(feld);
      if (feld == txtQRG) Q_EMIT qrgVerlassen();
    });
    // What is shown no longer belongs to what is typed; it must not be copied before it is calculated anew.
    connect(eingabe.feld, &QLineEdit::textEdited, this, [this] { KopierenErlauben(false); });
    connect(eingabe.feld, &Zahlenfeld::gedrueckt, this, [this] { KopierenErlauben(false); });
  }
  connect(txtPWR, &Zahlenfeld::gedrueckt, this, [this, &werte] {
    werte.PWRText.clear();
    WertAusgabeNull();
  });
  connect(txtQRG, &Zahlenfeld::gedrueckt, this, [this, &werte] {
    werte.QRGText.clear();
    WertAusgabeNull();
  });
  const auto minusErlauben = [&werte] { werte.MinusErlaubt = true; };
  connect(txtGewinn, &Zahlenfeld::betreten, this, minusErlauben);
  connect(txtGewinn, &QLineEdit::textEdited, this, [minusErlauben](const QString& text) {
    if (text.isEmpty()) minusErlauben();
  });
  connect(txtGewinn, &Zahlenfeld::gedrueckt, this, [this, minusErlauben] {
    lblGewinn->setProperty("Tag", u"dBi"_s);
    minusErlauben();
  });
  connect(lblModus, &Klicklabel::geklickt, this, &frmVesk::modusGeklickt);
  connect(lblQRG, &Klicklabel::geklickt, this, &frmVesk::qrgGeklickt);
  connect(cmdBerechnen, &QPushButton::clicked, this, &frmVesk::berechnenVerlangt);
  connect(cmdCopy, &QPushButton::clicked, this, &frmVesk::kopierenVerlangt);
  for (QWidget* widget : {static_cast<QWidget*>(cmdBerechnen), static_cast<QWidget*>(cmdCopy),
                          static_cast<QWidget*>(txtStrahlung)}) {
    widget->installEventFilter(this);
  }
}

void frmVesk::Verlassen(Zahlenfeld* feld) {
  Rechenwerte& werte = zustand_.werte;
  if (feld == txtQRG) return;
  if (feld == txtPWR) {
    if (txtPWR->text().isEmpty()) return;
    werte.PWRText = txtPWR->text().toStdString();
    Q_EMIT pwrVerlassen(txtPWR->text());
    return;
  }
  if (feld->text().isEmpty()) feld->setText(u"0"_s);
  if (feld == txtGewinn) {
    if (ZahlOderGrenze(txtGewinn->text().toStdString()) > HoechsterGewinn) txtGewinn->setText(u"100"_s);
    werte.MinusErlaubt = false;
  }
  for (const Eingabe& eingabe : eingaben_) {
    if (eingabe.feld == feld) werte.*eingabe.text = feld->text().toStdString();
  }
}

void frmVesk::Uebernehmen() {
  for (const Eingabe& eingabe : eingaben_) {
    if (eingabe.feld->hasFocus()) Verlassen(eingabe.feld);
  }
  // The cursor stays where it is; a gain may still be negative.
  zustand_.werte.MinusErlaubt = txtGewinn->hasFocus();
  TexteUebernehmen();
}

void frmVesk::TexteUebernehmen() {
  for (const Eingabe& eingabe : eingaben_) zustand_.werte.*eingabe.text = eingabe.feld->text().toStdString();
}

bool frmVesk::BerechnenGedrueckt() const {
  return cmdBerechnen->isDown();
}

void frmVesk::QrgFokussieren() {
  txtQRG->setFocus(Qt::OtherFocusReason);
}

bool frmVesk::EingabenGueltig() {
  bool gueltig = true;
  for (QLineEdit* feld : {txtQRG, txtPWR}) {
    const bool gut = Positiv(feld->text().toStdString());
    Hintergrund(*feld, gut ? farben::Weiss : farben::Rot);
    gueltig = gueltig && gut;
  }
  return gueltig;
}

void frmVesk::switchLeistung() {
  WertNull();
  zustand_.werte.PWRText.clear();
  EingabenZeigen();

  const bool leistung = lblModus->property("Tag").toString() != "Leistung"_L1;
  lblModus->setProperty("Tag", leistung ? u"Leistung"_s : u"Abstand"_s);
  Textfarbe(*lblModus, leistung ? BGR(0x008000) : BGR(0xFF0000));
  if (leistung) {
    Aktion("mnuAbstand").setText(u"Sicherheitsabstand berechnen"_s);
    lblModus->setText(u"Berechnung max. Sendeleistung"_s);
    lblPWR->setText(u"Sicherheitsabstand [m]"_s);
    lblSicherheit->setText(u"Maximal zulässige Sendeleistung [W]"_s);
    txtPWR->setToolTip(u"Eingabe: Maximal möglicher Sicherheitsabstand in Metern"_s);
    txtAusgabe->setToolTip(u"Ausgabe: Maximale Senderausgangsleistung in Watt"_s);
    lblModus->setToolTip(u"Klick zum Umschalten auf Berechnung des Sicherheitsabstandes"_s);
  } else {
    Aktion("mnuAbstand").setText(u"Maximale Sendeleistung berechnen"_s);
    lblModus->setText(u"Berechnung Sicherheitsabstand"_s);
    lblPWR->setText(u"Sendeleistung [W]"_s);
    lblSicherheit->setText(u"Erforderlicher Sicherheitsabstand [m]"_s);
    txtPWR->setToolTip(u"Eingabe: Senderausgangsleistung in Watt"_s);
    txtAusgabe->setToolTip(u"Ausgabe: Errechneter Sicherheitsabstand in Metern"_s);
    lblModus->setToolTip(u"Klick zum Umschalten auf Berechnung der Sendeleistung"_s);
  }
  txtPWR->setAccessibleName(lblPWR->text());
  BeschreibungenSetzen(*this, HauptTooltipsModus(leistung));
  FeldFarben();
}

void frmVesk::AbstandEinschalten() {
  lblModus->setProperty("Tag", u"Leistung"_s);
  switchLeistung();
}

void frmVesk::EingabenZeigen() {
  for (const Eingabe& eingabe : eingaben_) {
    eingabe.feld->setText(QString::fromStdString(zustand_.werte.*eingabe.text));
    eingabe.feld->setCursorPosition(0);
  }
}

void frmVesk::AFuZeigen() {
  const bool afu = AFu();
  lblQRG->setText(afu ? u"AFu-Band [MHz]"_s : u"Betriebsfrequenz [MHz]"_s);
  txtQRG->setAccessibleName(lblQRG->text());
  lblQRG->setToolTip(afu ? u"Klick zum Umschalten auf frequenzgenaue Berechnung"_s
                         : u"Klick zum Umschalten auf AFu-Berechnung"_s);
  Aktion("mnuAFu").setToolTip(
      afu ? u"Berechnung für Amateurfunk mit dem ungünstigsten Wert je Band. (Eingabe: 1, 3, 7, 14 etc.)"_s
          : u"Frequenzeingabe [MHz]. Berechnung exakt für die eingegebene Frequenz."_s);
}

void frmVesk::TooltipsZeigen(bool an) {
  AFuZeigen();
  if (!an) lblQRG->setToolTip({});
  TooltipsSetzen(*this, HauptTooltips(), an);
  TooltipsSetzen(*this, HauptTooltipsModus(modus() == Modus::Leistung), an);
}

void frmVesk::KopierknopfZeigen(const QString& buchstabe) {
  cmdCopy->setText(buchstabe.isEmpty() ? u"Datenblatt voll"_s : u"Kopieren in Spalte "_s + buchstabe);
  if (buchstabe.isEmpty()) cmdCopy->setEnabled(false);
}

void frmVesk::KopierenErlauben(bool erlaubt) {
  cmdCopy->setEnabled(erlaubt);
}

void frmVesk::NachKopieren() {
  cmdBerechnen->setFocus(Qt::OtherFocusReason);
  cmdCopy->setEnabled(false);
}

QString frmVesk::Ergebnis(Feld feld) const {
  switch (feld) {
    case Feld::AusgabeOhneHSM:
      return txtAusgabe->text();
    case Feld::AusgabeHSM306:
      return txtAusgabeHSM306->text();
    case Feld::AusgabeHSMvde:
      return txtAusgabeHSMvde->text();
    default:
      return {};
  }
}

bool frmVesk::TasteImFeld(QWidget* feld, int taste) {
  struct Weg {
    QWidget* feld;
    QWidget* vor;
    QWidget* zurueck;
  };
  const Weg wege[] = {
      {txtQRG, txtPWR, nullptr},
      {txtPWR, txtGewinn, txtQRG},
      {txtGewinn, txtDaempfung, txtPWR},
      {txtDaempfung, txtWinkelDaempfung, txtGewinn},
      {txtWinkelDaempfung, cmdBerechnen, txtDaempfung},
      {txtStrahlung, nullptr, cmdBerechnen},
      {cmdBerechnen, nullptr, txtWinkelDaempfung},
      {cmdCopy, nullptr, cmdBerechnen},
  };
  const bool enter = taste == Qt::Key_Return || taste == Qt::Key_Enter;
  if (!enter && taste != Qt::Key_Down && taste != Qt::Key_Up) return false;
  if (enter && (feld == cmdBerechnen || feld == cmdCopy)) {
    static_cast<QPushButton*>(feld)->click();
    return true;
  }
  if (enter) KeyPress('\r', zustand_.werte);
  if (enter && feld == txtQRG && txtQRG->text().isEmpty()) return true;
  for (const Weg& weg : wege) {
    if (weg.feld != feld) continue;
    if (QWidget* ziel = taste == Qt::Key_Up ? weg.zurueck : weg.vor) ziel->setFocus(Qt::OtherFocusReason);
  }
  return true;
}

bool frmVesk::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (objekt == cmdBerechnen && ereignis->type() == QEvent::MouseButtonRelease) Q_EMIT berechnenLosgelassen();
  if (ereignis->type() == QEvent::KeyPress) {
    const auto* taste = static_cast<QKeyEvent*>(ereignis);
    const bool enter = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
    if (enter && taste->isAutoRepeat()) return true;
    const auto umschalter = taste->modifiers() & ~Qt::KeypadModifier;
    if (umschalter == Qt::NoModifier && TasteImFeld(qobject_cast<QWidget*>(objekt), taste->key()))
      return true;
  }
  return QMainWindow::eventFilter(objekt, ereignis);
}

void frmVesk::closeEvent(QCloseEvent* ereignis) {
  // The program decides whether it ends; its windows close with it.
  ereignis->ignore();
  Q_EMIT geschlossen();
}

}  // namespace vesk
