#include "frmOptions.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTabWidget>

#include "AntennenTab.h"
#include "Datenblatt.h"
#include "KabelTab.h"
#include "Laufzeitfehler.h"
#include "OptionenHilfe.h"
#include "OptionenUmgebung.h"
#include "Rollseite.h"
#include "SendeartTab.h"
#include "WinkelTab.h"
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
  kabel_ = new KabelTab(zustand, plattform, umgebung);
  SSTab1->addTab(new Rollseite(kabel_), u"Kabel"_s);
  antennen_ = new AntennenTab(zustand, plattform, umgebung);
  SSTab1->addTab(new Rollseite(antennen_), u"Antennen"_s);
  winkel_ = new WinkelTab(zustand, plattform, umgebung);
  SSTab1->addTab(new Rollseite(winkel_), u"Winkel"_s);
  connect(antennen_, &AntennenTab::antenneGewaehlt, winkel_, &WinkelTab::AntenneSetzen);
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
  const auto winkeleintrag = [this](const QString& name, const QString& text, auto tun) {
    connect(Eintrag(name, text), &QAction::triggered, winkel_, tun);
  };
  winkeleintrag(u"mnuWinkelLaden"_s, u"Daten &laden"_s, &WinkelTab::WinkelOeffnen);
  winkeleintrag(u"mnuWinkelSpeichern"_s, u"Daten &Speichern"_s, &WinkelTab::WinkelSpeichern);
  winkeleintrag(u"mnuWinkelUnter"_s, u"Daten speichern &Unter"_s, &WinkelTab::WinkelSpeichernUnter);
  winkeleintrag(u"mnuWDelete"_s, u"Daten &Löschen"_s, &WinkelTab::TabelleLoeschen);
  Gesperrt(u"mnuWNoChange"_s, u"Änderungen &Rückgängig machen"_s,
           u"Die gespeicherte Tabelle kommt mit \"Daten laden\" zurück."_s);
  mnuDatei->addSeparator();
  const QString spaeter = u"Das Drucken kommt mit einer späteren Version."_s;
  Gesperrt(u"mnuWDruck"_s, u"Daten Drucken &ohne HSM"_s, spaeter);
  Gesperrt(u"mnuWHSM306"_s, u"Daten Drucken HSM &306"_s, spaeter);
  Gesperrt(u"mnuWHSMvde"_s, u"Daten Drucken HSM &VDE"_s, spaeter);
  mnuDatei->addSeparator();
  winkeleintrag(u"mnuWinkelBeispiel"_s, u"&Beispiel"_s, &WinkelTab::Beispiel);

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
  kabel_->Laden();
  sendeart_->Vorbelegen();
  antennen_->Laden();
  winkel_->Laden();
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
  kabel_->SatzLaden(satz);
  antennen_->SatzLaden(satz);
  winkel_->SatzLaden(satz);
}

void frmOptions::ArbeitssatzAuffrischen() {
  Datenblattspalte& satz = zustand_.Datenblattspalten.front();
  sendeart_->SatzSchreiben(satz);
  kabel_->SatzSchreiben(satz);
  antennen_->SatzSchreiben(satz);
  winkel_->SatzSchreiben(satz);
}

void frmOptions::HauptfrequenzUebernehmen(const QString& text) {
  kabel_->HauptfrequenzUebernehmen(text);
}

void frmOptions::AntEinPWRSetzen(const QString& text) {
  winkel_->AntEinPWRSetzen(text);
}

void frmOptions::RechnungZeigen(const Feldtexte& texte) {
  winkel_->RechnungZeigen(texte);
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
