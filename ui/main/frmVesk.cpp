#include "ui/main/frmVesk.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

#include "station/Haupthandlungen.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Feldfolge.h"
#include "ui/basis/Klicklabel.h"
#include "ui/main/Statuszeile.h"

namespace vesk {

QAction& frmVesk::Aktion(const char* name) const {
  auto* aktion = findChild<QAction*>(QLatin1String(name));
  Q_ASSERT(aktion != nullptr);
  return *aktion;
}

void frmVesk::EreignisseVerbinden() {
  for (std::size_t i = 0; i < eingaben_.size(); ++i) {
    const Zahlenfeld* feld = eingaben_.at(i);
    const auto welches = static_cast<Eingabefeld>(i);
    connect(feld, &QLineEdit::textEdited, this, [this, welches](const QString& text) {
      ablauf_.TunBeimTippen(Eingabe(welches), Mit(EingabeGetippt, welches, text.toStdString()));
    });
    connect(feld, &Zahlenfeld::gedrueckt, this,
            [this, welches] { ablauf_.Tun(Mit(EingabeGeklickt, welches)); });
    connect(feld, &Zahlenfeld::betreten, this,
            [this, welches] { ablauf_.TunBeimVerlassen(Mit(FeldBetreten, welches)); });
    connect(feld, &Zahlenfeld::verlassen, this,
            [this, welches] { ablauf_.TunBeimVerlassen(Mit(FeldVerlassen, welches)); });
  }
  connect(lblModus, &Klicklabel::geklickt, this, [this] { ablauf_.Tun(ModusGeklickt); });
  connect(lblQRG, &Klicklabel::geklickt, this, [this] { ablauf_.Tun(AFuUmschalten); });
  connect(cmdBerechnen, &QPushButton::clicked, this, [this] { ablauf_.Tun(BerechnenVerlangt); });
  connect(cmdCopy, &QPushButton::clicked, this, [this] { ablauf_.Tun(InFreieSpalteKopieren); });
  connect(status_, &Statuszeile::weiter, this, [this](const Schritt& schritt) {
    if (schritt.tun) return ablauf_.Tun(schritt.tun);
    if (schritt.speichern) return ablauf_.Befehlen(Befehl::DateiSpeichern);
    Eingabe(schritt.zurLeistung ? Eingabefeld::PWR : Eingabefeld::QRG).setFocus(Qt::TabFocusReason);
  });
}

void frmVesk::TastenVerbinden() {
  // Of the orders that share a control the one made last is asked first.
  new Feldfolge({cmdBerechnen, &Ausgabe(Feld::Strahlung)}, this);
  new Feldfolge({cmdBerechnen, cmdCopy}, this);
  std::vector<QWidget*> folge(eingaben_.begin(), eingaben_.end());
  folge.push_back(cmdBerechnen);
  new Feldfolge(folge, this);
  Eingabe(Eingabefeld::QRG).installEventFilter(this);

  QWidget* vorher = cmdCopy;
  for (const Feld feld : {Feld::GrenzwertOhneHSM, Feld::GrenzwertHSMvde, Feld::GrenzwertHSM306, Feld::UssVDE,
                          Feld::Uss306, Feld::AusgabeOhneHSM, Feld::AusgabeHSMvde, Feld::AusgabeHSM306,
                          Feld::Strahlung, Feld::Nahfeld, Feld::Fernfeld}) {
    setTabOrder(vorher, &Ausgabe(feld));
    vorher = &Ausgabe(feld);
  }
  // Whoever wants the switches by keys goes back from the first field; nobody passes them on the way down.
  setTabOrder(lblModus, lblQRG);
  setTabOrder(lblQRG, &Eingabe(Eingabefeld::QRG));
}

void frmVesk::QrgFokussieren() {
  Eingabe(Eingabefeld::QRG).setFocus(Qt::OtherFocusReason);
}

/// Enter in an empty frequency field does nothing.
bool frmVesk::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() == QEvent::KeyPress && objekt == &Eingabe(Eingabefeld::QRG)) {
    const int taste = static_cast<QKeyEvent*>(ereignis)->key();
    if (taste == Qt::Key_Return || taste == Qt::Key_Enter) return Eingabe(Eingabefeld::QRG).text().isEmpty();
  }
  return QMainWindow::eventFilter(objekt, ereignis);
}

void frmVesk::paintEvent(QPaintEvent* ereignis) {
  QMainWindow::paintEvent(ereignis);
  Q_EMIT gemalt();
}

void frmVesk::closeEvent(QCloseEvent* ereignis) {
  // The program decides whether it ends; its windows close with it.
  ereignis->ignore();
  ablauf_.Befehlen(Befehl::Beenden);
}

}  // namespace vesk
