#include "ui/options/frmOptions.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>

#include "station/Optionen.h"
#include "station/Vorschau.h"
#include "station/Winkel.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Menue.h"
#include "ui/basis/Rollseite.h"
#include "ui/options/AntennenTab.h"
#include "ui/options/KabelTab.h"
#include "ui/options/OptionenHilfe.h"
#include "ui/options/SendeartTab.h"
#include "ui/options/WinkelTab.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

template <Winkelkurve kurve>
void Diagramm(Ablauf& ablauf) {
  ablauf.Tun(Mit(WinkeldiagrammZeigen, kurve));
}

constexpr Menueeintrag Dateimenue[] = {
    {u"mnuWinkelLaden", u"Daten &laden", Befehlend<Befehl::WinkelLaden>},
    {u"mnuWinkelSpeichern", u"Daten &Speichern", Befehlend<Befehl::WinkelSpeichern>},
    {u"mnuWinkelUnter", u"Daten speichern &Unter", Befehlend<Befehl::WinkelSpeichernUnter>},
    {u"mnuWDelete", u"Daten &Löschen", Tuend<WinkelLoeschen>},
    {u"mnuWNoChange", u"Änderungen &Rückgängig machen", nullptr,
     u"Die gespeicherte Tabelle kommt mit \"Daten laden\" zurück."},
    {},
    {u"mnuWDruck", u"Daten Drucken &ohne HSM", Diagramm<Winkelkurve::OhneHSM>},
    {u"mnuWHSM306", u"Daten Drucken HSM &306", Diagramm<Winkelkurve::HSM306>},
    {u"mnuWHSMvde", u"Daten Drucken HSM &VDE", Diagramm<Winkelkurve::HSMvde>},
    {},
    {u"mnuWinkelBeispiel", u"&Beispiel", Tuend<WinkelBeispiel>},
};

}  // namespace

frmOptions::frmOptions(Ablauf& ablauf, const Kataloge& kataloge, Signalton& ton, QWidget* eltern)
    : QMainWindow(eltern),
      ablauf_(ablauf),
      sendeart_(new SendeartTab(ablauf, ton)),
      kabel_(new KabelTab(ablauf, kataloge, ton)),
      antennen_(new AntennenTab(ablauf, kataloge)),
      winkel_(new WinkelTab(ablauf, ton)),
      SSTab1(new QTabWidget(this)) {
  setObjectName(u"frmOptions"_s);
  setWindowTitle(u"Optionen"_s);
  SSTab1->setObjectName(u"SSTab1"_s);
  SSTab1->addTab(new Rollseite(sendeart_), u"Sendeart"_s);
  SSTab1->addTab(new Rollseite(kabel_), u"Kabel"_s);
  SSTab1->addTab(new Rollseite(antennen_), u"Antennen"_s);
  const int winkelseite = SSTab1->addTab(new Rollseite(winkel_), u"Winkel"_s);
  setCentralWidget(SSTab1);

  Fenstermenue& menue = MenueAnlegen(*menuBar(), u"mnuDatei"_s, u"&Datei"_s, Dateimenue, ablauf);
  QAction* mnuDatei = menue.menuAction();
  mnuDatei->setEnabled(false);
  mnuDatei->setToolTip(u"Die Dateien der Winkeltabellen gehören zur Karte „Winkel“."_s);
  mnuWHSM306 = menue.findChild<QAction*>(u"mnuWHSM306"_s);
  mnuWHSMvde = menue.findChild<QAction*>(u"mnuWHSMvde"_s);
  connect(SSTab1, &QTabWidget::currentChanged, this,
          [=](int reiter) { mnuDatei->setEnabled(reiter == winkelseite); });
  QAction* fenster = menuBar()->addAction(u"&Fenster Schließen"_s);
  fenster->setObjectName(u"mnuFenster"_s);
  connect(fenster, &QAction::triggered, this, [this] { ablauf_.Tun(OptionenVerbergen); });

  OptionenHilfenummern(*this, *SSTab1);
  Einpassen(*this);
}

void frmOptions::Zeigen(const Station& s) {
  if (tooltips_ != s.einstellungen.ToolTips) {
    tooltips_ = s.einstellungen.ToolTips;
    OptionenTooltips(*this, *tooltips_);
  }
  sendeart_->Zeigen(s);
  kabel_->Zeigen(s);
  antennen_->Zeigen(s);
  winkel_->Zeigen(s);
  const auto erlauben = [&](QAction& eintrag, std::optional<float> Sektor::*abstand) {
    const bool da = s.winkel.ergebnis && !s.winkel.ergebnis->tabelle.sektoren.empty() &&
                    s.winkel.ergebnis->tabelle.sektoren.front().*abstand;
    eintrag.setEnabled(da);
    eintrag.setToolTip(da ? QString()
                          : u"Die Tabelle hat keine Abstände dafür: noch nicht berechnet, oder kein "
                            "Grenzwert bei dieser Frequenz."_s);
  };
  erlauben(*mnuWHSM306, &Sektor::HSM306);
  erlauben(*mnuWHSMvde, &Sektor::HSMvde);
}

void frmOptions::Hinzeigen() {
  activateWindow();
  SSTab1->setCurrentIndex(SSTab1->count() - 1);
  winkel_->Hinzeigen();
}

void frmOptions::closeEvent(QCloseEvent* ereignis) {
  ereignis->ignore();
  ablauf_.Tun(OptionenSchliessen);
}

}  // namespace vesk
