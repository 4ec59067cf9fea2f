#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <utility>

#include "Plattform.h"
#include "SendeartTab.h"
#include "Zahlenfeld.h"
#include "Zustand.h"

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

QGroupBox* Rahmen(const QString& name, const QString& titel, QWidget* eltern) {
  auto* rahmen = new QGroupBox(titel, eltern);
  rahmen->setObjectName(name);
  return rahmen;
}

/// One button per name, in a row or column inside the frame, as control array `feld`.
template <typename Knopf, std::size_t N>
void Reihe(QGroupBox& rahmen, QBoxLayout::Direction richtung, const QString& feld,
           const std::array<QStringView, N>& namen, std::array<Knopf*, N>& knoepfe) {
  auto* reihe = new QBoxLayout(richtung, &rahmen);
  for (std::size_t i = 0; i < N; ++i) {
    knoepfe.at(i) = new Knopf(namen.at(i).toString(), &rahmen);
    knoepfe.at(i)->setObjectName(feld + u'_' + QString::number(i));
    reihe->addWidget(knoepfe.at(i));
  }
  reihe->addStretch();
}

QLabel* Beschriftung(const QString& name, const QString& text, QLineEdit& feld) {
  auto* label = new QLabel(text, feld.parentWidget());
  label->setObjectName(name);
  label->setBuddy(&feld);
  return label;
}

}  // namespace

SendeartTab::SendeartTab(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern)
    : QWidget(eltern), zustand_(zustand), plattform_(plattform), umgebung_(umgebung) {
  lblMod1 = new QLabel(u"Betriebsart"_s, this);
  lblMod1->setObjectName(u"lblMod1"_s);
  lblMod1->setWordWrap(true);
  SendeartenBauen();
  ZyklusBauen();
  GrenzwerttypBauen();
  Anordnen();
  Verbinden();
}

void SendeartTab::SendeartenBauen() {
  rhmModulationsart = Rahmen(u"rhmModulationsart"_s, u"Modulationsart"_s, this);
  Reihe(*rhmModulationsart, QBoxLayout::TopToBottom, u"chkBetriebsart"_s, SendeartNamen, chkBetriebsart);

  txtSelectedModes = new QLineEdit(this);
  txtSelectedModes->setObjectName(u"txtSelectedModes"_s);
  txtSelectedModes->setReadOnly(true);
  txtSelectedModes->setAccessibleName(u"Gewählte Betriebsarten"_s);
  lblSelectedModes = Beschriftung(u"lblSelectedModes"_s, u"Gewählte Betriebsarten: "_s, *txtSelectedModes);

  txtFaktorB = new Zahlenfeld(zustand_.werte, plattform_.ton, this);
  txtFaktorB->setObjectName(u"txtFaktorB"_s);
  txtFaktorB->setAccessibleName(u"Faktor für Sendeart"_s);
  lblFaktorB = Beschriftung(u"lblFaktorB"_s, u"Faktor für Sendeart: "_s, *txtFaktorB);
}

void SendeartTab::ZyklusBauen() {
  rhmCycle = Rahmen(u"rhmCycle"_s, u"Sende/Empfangs- Zyklus"_s, this);
  Reihe(*rhmCycle, QBoxLayout::TopToBottom, u"optDuty"_s, ZyklusNamen, optDuty);
  zyklen_ = new QButtonGroup(this);
  for (QRadioButton* knopf : optDuty) zyklen_->addButton(knopf);
}

void SendeartTab::GrenzwerttypBauen() {
  rhmBetriebsart =
      Rahmen(u"rhmBetriebsart"_s, u"Berechnung für Grenzwerttyp (nur für VDE 0848 Teil 3-1)"_s, this);
  Reihe(*rhmBetriebsart, QBoxLayout::LeftToRight, u"optSSB"_s, TypNamen, optSSB);
}

void SendeartTab::Anordnen() {
  auto* gitter = new QGridLayout(this);
  gitter->addWidget(lblMod1, 0, 0, 1, 2);
  gitter->addWidget(rhmModulationsart, 1, 0);
  gitter->addWidget(rhmCycle, 1, 1);
  gitter->addWidget(rhmBetriebsart, 2, 0, 1, 2);

  const int ziffer = fontMetrics().horizontalAdvance(u'0');
  txtFaktorB->setFixedWidth(9 * ziffer);
  auto* ergebnis = new QHBoxLayout;
  ergebnis->addWidget(lblSelectedModes);
  ergebnis->addWidget(txtSelectedModes, 1);
  ergebnis->addSpacing(2 * ziffer);
  ergebnis->addWidget(lblFaktorB);
  ergebnis->addWidget(txtFaktorB);
  gitter->addLayout(ergebnis, 3, 0, 1, 2);
  gitter->setRowStretch(4, 1);
  gitter->setColumnStretch(0, 1);
  gitter->setColumnStretch(1, 1);

  QWidget* vorher = chkBetriebsart.back();
  for (QRadioButton* knopf : optDuty) setTabOrder(std::exchange(vorher, knopf), knopf);
  for (QRadioButton* knopf : optSSB) setTabOrder(std::exchange(vorher, knopf), knopf);
  setTabOrder(vorher, txtSelectedModes);
  setTabOrder(txtSelectedModes, txtFaktorB);
}

void SendeartTab::Verbinden() {
  // clicked is the user's mouse or keyboard, toggled also a selection by the program.
  for (std::size_t i = 0; i < chkBetriebsart.size(); ++i) {
    connect(chkBetriebsart.at(i), &QCheckBox::clicked, this, [this, i] { BetriebsartGeklickt(int(i)); });
  }
  for (QRadioButton* knopf : optDuty) {
    connect(knopf, &QRadioButton::toggled, this, [this](bool an) {
      if (an) ZyklusfaktorErmitteln();
    });
    connect(knopf, &QRadioButton::clicked, this, [this] { ZyklusGeklickt(); });
  }
  for (std::size_t i = 0; i < optSSB.size(); ++i) {
    connect(optSSB.at(i), &QRadioButton::clicked, this, [this, i] { GrenzwerttypGeklickt(int(i)); });
  }
  // What is typed here is never read; left alone, the field shows the factor in force again.
  connect(txtFaktorB, &Zahlenfeld::verlassen, this, &SendeartTab::FaktorZeigen);
}

}  // namespace vesk
