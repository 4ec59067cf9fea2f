#include "ui/options/SendeartTab.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include "station/Ergebniswerte.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Ausgabefeld.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Farben.h"
#include "ui/basis/Zahlenfeld.h"
#include "ui/basis/Zugang.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, Sendearten.size()> SendeartNamen = {
    u"Telegrafie",          u"SSB (mit Prozessor)",
    u"AM (50% Modulation)", u"FM",
    u"Packet Radio, SSTV",  u"ATV",
    u"Digital (GSM)",       u"Alle"};

constexpr std::array<QStringView, AnzahlZyklen> ZyklusNamen = {u"TX 1Min - RX 5Min", u"TX 2Min - RX 4Min",
                                                               u"TX 3Min - RX 3Min", u"TX 4Min - RX 2Min",
                                                               u"TX 5Min - RX 1Min", u"TX 6Min - RX 0Min"};

constexpr std::array<QStringView, 3> TypNamen = {u"AM (AFu)", u"TV (Fernsehmodulation)", u"GSM"};

/// A frame with one button per name, in a row or column, as control array `feld`.
template <typename Knopf, std::size_t N>
QGroupBox* Reihe(const QString& name, const QString& titel, QBoxLayout::Direction richtung,
                 const QString& feld, const std::array<QStringView, N>& namen, std::array<Knopf*, N>& knoepfe,
                 QWidget* eltern) {
  auto* rahmen = new QGroupBox(titel, eltern);
  rahmen->setObjectName(name);
  auto* reihe = new QBoxLayout(richtung, rahmen);
  for (std::size_t i = 0; i < N; ++i) {
    knoepfe.at(i) = new Knopf(namen.at(i).toString(), rahmen);
    knoepfe.at(i)->setObjectName(feld + u'_' + QString::number(i));
    reihe->addWidget(knoepfe.at(i));
  }
  reihe->addStretch();
  return rahmen;
}

QLabel* Beschriftung(const QString& name, const QString& text, QLineEdit& feld) {
  auto* label = new QLabel(text, feld.parentWidget());
  label->setObjectName(name);
  label->setBuddy(&feld);
  return label;
}

}  // namespace

SendeartTab::SendeartTab(Ablauf& ablauf, Signalton& ton) {
  // In the order of the focus.
  rhmModulationsart = Reihe(u"rhmModulationsart"_s, u"Modulationsart"_s, QBoxLayout::TopToBottom,
                            u"chkBetriebsart"_s, SendeartNamen, chkBetriebsart, this);
  rhmCycle = Reihe(u"rhmCycle"_s, u"Sende/Empfangs- Zyklus"_s, QBoxLayout::TopToBottom, u"optDuty"_s,
                   ZyklusNamen, optDuty, this);
  rhmBetriebsart = Reihe(u"rhmBetriebsart"_s, u"Berechnung für Grenzwerttyp (nur für VDE 0848 Teil 3-1)"_s,
                         QBoxLayout::LeftToRight, u"optSSB"_s, TypNamen, optSSB, this);
  txtSelectedModes = new Ausgabefeld(this);
  txtSelectedModes->setObjectName(u"txtSelectedModes"_s);
  txtSelectedModes->setAccessibleName(u"Gewählte Betriebsarten"_s);
  txtFaktorB = new Zahlenfeld(ton, this);
  txtFaktorB->setObjectName(u"txtFaktorB"_s);
  ansage_ = new Ansage(this);
  Anordnen();
  Verbinden(ablauf);
}

void SendeartTab::Anordnen() {
  auto* lblMod1 = new QLabel(
      u"Bitte die gewünschte Betriebsart ankreuzen. (Mehrfachauswahl zulässig)\n"
      "Der ermittelte Faktor wirkt sich nicht auf HSM- Berechnungen aus!"_s,
      this);
  lblMod1->setObjectName(u"lblMod1"_s);
  lblMod1->setWordWrap(true);
  auto* gitter = new QGridLayout(this);
  gitter->addWidget(lblMod1, 0, 0, 1, 2);
  gitter->addWidget(rhmModulationsart, 1, 0);
  gitter->addWidget(rhmCycle, 1, 1);
  gitter->addWidget(rhmBetriebsart, 2, 0, 1, 2);

  const int ziffer = fontMetrics().horizontalAdvance(u'0');
  GenauBreit(*txtFaktorB, 9);
  auto* ergebnis = new QHBoxLayout;
  ergebnis->addWidget(Beschriftung(u"lblSelectedModes"_s, u"Gewählte Betriebsarten: "_s, *txtSelectedModes));
  ergebnis->addWidget(txtSelectedModes, 1);
  ergebnis->addSpacing(2 * ziffer);
  ergebnis->addWidget(Beschriftung(u"lblFaktorB"_s, u"Faktor für Sendeart: "_s, *txtFaktorB));
  ergebnis->addWidget(txtFaktorB);
  gitter->addLayout(ergebnis, 3, 0, 1, 2);
  gitter->setRowStretch(4, 1);
  gitter->setColumnStretch(0, 1);
  gitter->setColumnStretch(1, 1);
}

void SendeartTab::Verbinden(Ablauf& ablauf) {
  const auto melden = [&](const auto& knoepfe, auto tun) {
    for (std::size_t i = 0; i < knoepfe.size(); ++i) {
      connect(knoepfe.at(i), &QAbstractButton::clicked, this,
              [&ablauf, tun, i] { ablauf.Tun(Mit(tun, static_cast<int>(i))); });
    }
  };
  melden(chkBetriebsart, BetriebsartGeklickt);
  melden(optDuty, ZyklusGeklickt);
  melden(optSSB, GrenzwerttypGeklickt);
  // What is typed here is never read; left alone, the field shows the factor in force again.
  connect(txtFaktorB, &Zahlenfeld::verlassen, this,
          [&ablauf] { ablauf.TunBeimVerlassen([](Station&, const Kataloge&) { return Meldungen(); }); });
}

void SendeartTab::Zeigen(const Station& s) {
  for (std::size_t i = 0; i < s.kreuze.size(); ++i) Ankreuzen(*chkBetriebsart.at(i), s.kreuze.at(i));
  for (std::size_t i = 0; i < optDuty.size(); ++i) {
    const int nummer = static_cast<int>(i);
    Ankreuzen(*optDuty.at(i), nummer == s.zyklus);
    // Tab goes to the selected one; the others are reached by the cursor keys.
    optDuty.at(i)->setFocusPolicy(nummer == std::max(s.zyklus, 0) ? Qt::StrongFocus : Qt::ClickFocus);
  }
  for (std::size_t i = 0; i < optSSB.size(); ++i) {
    Ankreuzen(*optSSB.at(i), static_cast<int>(i) == s.werte.Grenzwerttyp);
  }
  Schreiben(*txtSelectedModes, s.SelectedModes);
  const Ergebniswert faktor = FaktorDerSendeart(s);
  ErgebnisZeigen(*txtFaktorB, faktor, Faktor(s.werte) < 1.0F ? farben::Gruen : farben::HellGruen);
  ansage_->Zeigen({faktor});
}

}  // namespace vesk
