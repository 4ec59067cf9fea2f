#include "frmOptions.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTabWidget>

#include "Datenblatt.h"
#include "Laufzeitfehler.h"
#include "OptionenHilfe.h"
#include "OptionenUmgebung.h"
#include "Rollseite.h"
#include "SendeartTab.h"
#include "Zustand.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

constexpr int WinkelSeite = 3;

}  // namespace

frmOptions::frmOptions(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern)
    : QMainWindow(eltern), zustand_(zustand), umgebung_(umgebung) {
  setObjectName(u"frmOptions"_s);
  setWindowTitle(u"Optionen"_s);
  SSTab1 = new QTabWidget(this);
  SSTab1->setObjectName(u"SSTab1"_s);
  sendeart_ = new SendeartTab(zustand, plattform, umgebung);
  SSTab1->addTab(new Rollseite(sendeart_), u"Sendeart"_s);
  SSTab1->addTab(new Rollseite(new QWidget), u"Kabel"_s);
  SSTab1->addTab(new Rollseite(new QWidget), u"Antennen"_s);
  SSTab1->addTab(new Rollseite(new QWidget), u"Winkel"_s);
  setCentralWidget(SSTab1);
  MenueBauen();
  connect(SSTab1, &QTabWidget::currentChanged, this, &frmOptions::ReiterGewechselt);
  ReiterGewechselt(SSTab1->currentIndex());
  OptionenHilfenummern(*this);
}

void frmOptions::MenueBauen() {
  mnuDatei = menuBar()->addMenu(u"&Datei"_s);
  mnuDatei->menuAction()->setObjectName(u"mnuDatei"_s);
  mnuDatei->setToolTipsVisible(true);
  Eintrag(u"mnuWinkelLaden"_s, u"Daten &laden"_s);
  Eintrag(u"mnuWinkelSpeichern"_s, u"Daten &Speichern"_s);
  Eintrag(u"mnuWinkelUnter"_s, u"Daten speichern &Unter"_s);
  Eintrag(u"mnuWDelete"_s, u"Daten &Löschen"_s);
  Gesperrt(u"mnuWNoChange"_s, u"Änderungen &Rückgängig machen"_s,
           u"Die gespeicherte Tabelle kommt mit \"Daten laden\" zurück."_s);
  mnuDatei->addSeparator();
  const QString spaeter = u"Das Drucken kommt mit einer späteren Version."_s;
  Gesperrt(u"mnuWDruck"_s, u"Daten Drucken &ohne HSM"_s, spaeter);
  Gesperrt(u"mnuWHSM306"_s, u"Daten Drucken HSM &306"_s, spaeter);
  Gesperrt(u"mnuWHSMvde"_s, u"Daten Drucken HSM &VDE"_s, spaeter);
  mnuDatei->addSeparator();
  Eintrag(u"mnuWinkelBeispiel"_s, u"&Beispiel"_s);

  QAction* fenster = menuBar()->addAction(u"&Fenster Schließen"_s);
  fenster->setObjectName(u"mnuFenster"_s);
  connect(fenster, &QAction::triggered, this, &QWidget::hide);
}

QAction* frmOptions::Eintrag(const QString& name, const QString& text) {
  QAction* eintrag = mnuDatei->addAction(text);
  eintrag->setObjectName(name);
  return eintrag;
}

void frmOptions::Gesperrt(const QString& name, const QString& text, const QString& grund) {
  QAction* eintrag = Eintrag(name, text);
  eintrag->setEnabled(false);
  eintrag->setToolTip(grund);
}

void frmOptions::ReiterGewechselt(int reiter) {
  mnuDatei->menuAction()->setEnabled(reiter == WinkelSeite);
}

void frmOptions::Laden() {
  zustand_.Datenblattspalten.front() = LeereSpalte();
  sendeart_->Laden();
  sendeart_->Vorbelegen();
  // Room for the largest tab; the desktop's own bars and the window's frame need a little, too.
  resize(sizeHint().boundedTo(screen()->availableSize() * 0.95));
}

void frmOptions::Startfaktoren() {
  sendeart_->Startfaktoren();
}

void frmOptions::SatzLaden() {
  const auto spalte = static_cast<std::size_t>(zustand_.werte.Spalte);
  if (spalte >= zustand_.Datenblattspalten.size()) throw Laufzeitfehler(Fehlerart::Index);
  // A copy: the tabs write to the records while they load.
  const Datenblattspalte satz = zustand_.Datenblattspalten.at(spalte);
  sendeart_->SatzLaden(satz);
}

void frmOptions::ArbeitssatzAuffrischen() {
  sendeart_->SatzSchreiben(zustand_.Datenblattspalten.front());
}

QString frmOptions::GewaehlteSendearten() const {
  return sendeart_->GewaehlteSendearten();
}

void frmOptions::closeEvent(QCloseEvent* ereignis) {
  // The window keeps its state; leaving it by its frame also says that columns go without its options.
  ereignis->ignore();
  hide();
  umgebung_.OptionenBeruecksichtigenSetzen(false);
}

}  // namespace vesk
