#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "Auswahlliste.h"
#include "Farben.h"
#include "Feldfolge.h"
#include "KabelTab.h"
#include "Plattform.h"
#include "Zahlenfeld.h"
#include "Zustand.h"

namespace vesk {

using namespace Qt::StringLiterals;

KabelTab::KabelTab(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern)
    : QWidget(eltern), zustand_(zustand), plattform_(plattform), umgebung_(umgebung) {
  Bauen();
  Anordnen();
  Verbinden();
}

QLabel* KabelTab::Zeile(Zahlenfeld*& feld, const QString& name, const QString& text) {
  feld = new Zahlenfeld(zustand_.werte, plattform_.ton, this);
  feld->setObjectName(u"txt"_s + name);
  feld->setAccessibleName(text);
  feld->setAlignment(Qt::AlignRight);
  feld->setFixedWidth(fontMetrics().horizontalAdvance(u"0000000000.00"_s));
  auto* label = new QLabel(text, this);
  label->setObjectName(u"lbl"_s + name);
  label->setBuddy(feld);
  return label;
}

void KabelTab::Bauen() {
  rhmKabel = new QGroupBox(u"Kabeltyp"_s, this);
  rhmKabel->setObjectName(u"rhmKabel"_s);
  lstKabel = new Auswahlliste(rhmKabel);
  lstKabel->setObjectName(u"lstKabel"_s);
  lstKabel->setAccessibleName(u"Kabeltyp"_s);
  auto* rahmen = new QVBoxLayout(rhmKabel);
  rahmen->addWidget(lstKabel);

  lblQRG = Zeile(txtQRG, u"QRG"_s, u"Frequenz [MHz]"_s);
  lblD100 = Zeile(txtD100, u"D100"_s, u"Kabeldämpfung je 100m"_s);
  lblKabelLaenge = Zeile(txtKabelLaenge, u"KabelLaenge"_s, u"Kabellänge [m]"_s);
  lblKabeldaempfung = Zeile(txtKabeldaempfung, u"Kabeldaempfung"_s, u"Kabeldämpfung [dB]"_s);
  lblStecker = Zeile(txtStecker, u"Stecker"_s, u"zusätzliche Dämpfung durch Stecker etc. [dB]"_s);
  lblGesamtdaempfung = Zeile(txtGesamtdaempfung, u"Gesamtdaempfung"_s, u"Dämpfung gesamt [dB]"_s);
  txtD100->setAccessibleName(u"Kabeldämpfung je 100m [dB]"_s);
  D100Sperren(true);

  cmdGleich = new QPushButton(u"="_s, this);
  cmdGleich->setObjectName(u"cmdGleich"_s);
  cmdGleich->setAccessibleName(u"Kabeldämpfung berechnen und übernehmen"_s);
  cmdGleich->setAutoDefault(true);
}

void KabelTab::Anordnen() {
  auto* zeilen = new QGridLayout;
  int zeile = 0;
  const auto dazu = [&](QLabel* label, QWidget* feld) {
    zeilen->addWidget(label, zeile, 0);
    zeilen->addWidget(feld, zeile++, 1);
  };
  dazu(lblQRG, txtQRG);
  dazu(lblKabelLaenge, txtKabelLaenge);
  dazu(lblD100, txtD100);
  dazu(lblKabeldaempfung, txtKabeldaempfung);
  dazu(lblStecker, txtStecker);
  zeilen->addWidget(cmdGleich, zeile++, 1);
  dazu(lblGesamtdaempfung, txtGesamtdaempfung);
  zeilen->setRowStretch(zeile, 1);

  auto* flaeche = new QHBoxLayout(this);
  flaeche->addWidget(rhmKabel, 1);
  flaeche->addSpacing(fontMetrics().height());
  flaeche->addLayout(zeilen);
  flaeche->addStretch(1);

  const std::vector<QWidget*> folge = {txtQRG,     txtKabelLaenge, txtD100,           txtKabeldaempfung,
                                       txtStecker, cmdGleich,      txtGesamtdaempfung};
  setTabOrder(lstKabel, txtQRG);
  new Feldfolge(zustand_.werte, folge, this);
}

void KabelTab::Verbinden() {
  connect(lstKabel, &Auswahlliste::gewaehlt, this, &KabelTab::KabelGewaehlt);
  connect(lstKabel, &Auswahlliste::bestaetigt, txtQRG, [this] { txtQRG->setFocus(Qt::OtherFocusReason); });
  connect(cmdGleich, &QPushButton::clicked, this, &KabelTab::GleichGeklickt);
  connect(txtQRG, &QLineEdit::textChanged, this, &KabelTab::FrequenzGeaendert);
  connect(txtQRG, &Zahlenfeld::verlassen, this, &KabelTab::FrequenzVerlassen);
  for (Zahlenfeld* feld : {txtKabelLaenge, txtQRG, txtD100, txtKabeldaempfung}) {
    connect(feld, &Zahlenfeld::gedrueckt, feld, &QLineEdit::clear);
  }
}

}  // namespace vesk
