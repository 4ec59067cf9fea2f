#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "Farben.h"
#include "Feldfolge.h"
#include "Meldung.h"
#include "Plattform.h"
#include "WinkelTab.h"
#include "Winkelbild.h"
#include "Zahlenfeld.h"
#include "Zustand.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

QString Sektorname(std::size_t i) {
  const auto grad = [](std::size_t zehner) { return QString::number(10 * zehner).rightJustified(2, u'0'); };
  return grad(i) + u" - "_s + grad(i + 1);
}

QLabel* Beschriftung(QGroupBox& rahmen, const QString& text, QWidget* feld = nullptr) {
  auto* label = new QLabel(text, &rahmen);
  if (feld != nullptr) label->setBuddy(feld);
  return label;
}

}  // namespace

WinkelTab::WinkelTab(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern)
    : QWidget(eltern), zustand_(zustand), plattform_(plattform), umgebung_(umgebung) {
  rhmWinkel = new QGroupBox(u"Winkeldämpfung von Richtantennen"_s, this);
  rhmWinkel->setObjectName(u"rhmWinkel"_s);
  Bauen();
  auto* links = new QVBoxLayout;
  auto* kopf = new QGridLayout;
  KopfAnordnen(*kopf);
  links->addLayout(kopf);
  links->addWidget(TabelleAnordnen());
  links->addStretch();
  auto* rahmen = new QHBoxLayout(rhmWinkel);
  rahmen->addLayout(links);
  rahmen->addWidget(bild_, 1);
  auto* flaeche = new QVBoxLayout(this);
  flaeche->addWidget(rhmWinkel);
  Verbinden();
  BildAuffrischen();
}

void WinkelTab::Bauen() {
  const int ziffer = fontMetrics().horizontalAdvance(u'0');
  const auto einrichten = [&](QLineEdit* feld, const QString& name, const QString& beschreibung) {
    feld->setObjectName(name);
    feld->setAccessibleName(beschreibung);
    feld->setAlignment(Qt::AlignRight);
    feld->setFixedWidth(11 * ziffer);
  };
  const auto eingabe = [&](const QString& name, const QString& beschreibung) {
    auto* feld = new Zahlenfeld(zustand_.werte, plattform_.ton, rhmWinkel);
    einrichten(feld, name, beschreibung);
    return feld;
  };
  txtWAntenne = new QLineEdit(rhmWinkel);
  txtWAntenne->setObjectName(u"txtWAntenne"_s);
  txtWAntenne->setAccessibleName(u"Antenne"_s);
  txtWGewinn0 = eingabe(u"txtWGewinn0"_s, u"Gewinn [dBi]"_s);
  txtWMHZ = eingabe(u"txtWMHZ"_s, u"Frequenz [MHz]"_s);
  txtWAntEinPWR = eingabe(u"txtWAntEinPWR"_s, u"Antenneneingangsleistung [W]"_s);
  txtWPolar = eingabe(u"txtWPolar"_s, u"Maßstab des gedruckten Diagramms"_s);

  const auto ausgabe = [&](const QString& name, std::size_t i, const QString& groesse, const QColor& farbe) {
    auto* feld = new QLineEdit(rhmWinkel);
    einrichten(feld, name + u'_' + QString::number(i), groesse.arg(Sektorname(i)));
    feld->setReadOnly(true);
    feld->setFocusPolicy(Qt::ClickFocus);
    Hintergrund(*feld, farbe);
    return feld;
  };
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    txtWDaempfung.at(i) =
        eingabe(u"txtWDaempfung_"_s + QString::number(i), u"Dämpfung %1 Grad [dB]"_s.arg(Sektorname(i)));
    txtWDaempfung.at(i)->setAccessibleDescription(u"Strg+Enter übernimmt den Wert in die Berechnung"_s);
    txtWEIRP.at(i) = ausgabe(u"txtWEIRP"_s, i, u"EIRP %1 Grad [W]"_s, farben::HellGrau);
    txtWAbstand.at(i) = ausgabe(u"txtWAbstand"_s, i, u"Abstand ohne HSM %1 Grad [m]"_s, farben::HellGruen);
    txtWHSM306.at(i) = ausgabe(u"txtWHSM306"_s, i, u"Abstand HSM 306 %1 Grad [m]"_s, farben::HellRot);
    txtWHSMvde.at(i) = ausgabe(u"txtWHSMvde"_s, i, u"Abstand HSM VDE %1 Grad [m]"_s, farben::HellGelb);
  }
  Command1 = new QPushButton(u"Berechnen"_s, rhmWinkel);
  Command1->setObjectName(u"Command1"_s);
  Command1->setAutoDefault(true);
  lblDatei = new QLabel(rhmWinkel);
  lblDatei->setObjectName(u"lblWDatei"_s);
  bild_ = new Winkelbild(rhmWinkel);
  bild_->setObjectName(u"picWinkel"_s);
  bild_->setAccessibleName(u"Polardiagramm der Dämpfung und der Sicherheitsabstände"_s);
}

void WinkelTab::KopfAnordnen(QGridLayout& raster) {
  raster.addWidget(Beschriftung(*rhmWinkel, u"Antenne"_s, txtWAntenne), 0, 0);
  raster.addWidget(txtWAntenne, 0, 1, 1, 3);
  raster.addWidget(Beschriftung(*rhmWinkel, u"Gewinn [dBi]"_s, txtWGewinn0), 1, 0);
  raster.addWidget(txtWGewinn0, 1, 1);
  raster.addWidget(Beschriftung(*rhmWinkel, u"Frequenz [MHz]"_s, txtWMHZ), 1, 2, Qt::AlignRight);
  raster.addWidget(txtWMHZ, 1, 3);
  raster.addWidget(Beschriftung(*rhmWinkel, u"Antenneneingangsleistung [W]"_s, txtWAntEinPWR), 2, 0, 1, 3,
                   Qt::AlignRight);
  raster.addWidget(txtWAntEinPWR, 2, 3);
  raster.setColumnStretch(1, 1);
}

QWidget* WinkelTab::TabelleAnordnen() {
  auto* tabelle = new QWidget(rhmWinkel);
  auto* raster = new QGridLayout(tabelle);
  raster->setContentsMargins(0, 0, 0, 0);
  raster->setVerticalSpacing(2);
  const std::array<QString, 6> koepfe = {u"Winkel °"_s, u"Dämpfung"_s, u"EIRP"_s,
                                         u"ohne HSM"_s, u"HSM 306"_s,  u"HSM VDE"_s};
  for (std::size_t i = 0; i < koepfe.size(); ++i) {
    raster->addWidget(Beschriftung(*rhmWinkel, koepfe.at(i)), 0, int(i), Qt::AlignCenter);
  }
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    const int zeile = int(i) + 1;
    raster->addWidget(Beschriftung(*rhmWinkel, Sektorname(i), txtWDaempfung.at(i)), zeile, 0);
    int spalte = 1;
    for (QWidget* feld : std::initializer_list<QWidget*>{
             txtWDaempfung.at(i), txtWEIRP.at(i), txtWAbstand.at(i), txtWHSM306.at(i), txtWHSMvde.at(i)}) {
      raster->addWidget(feld, zeile, spalte++);
    }
  }
  const int unten = int(AnzahlSektoren) + 1;
  auto* hinweis =
      Beschriftung(*rhmWinkel, u"Doppelklick oder Strg+Enter übernimmt eine Dämpfung in die Berechnung."_s);
  hinweis->setWordWrap(true);
  raster->addWidget(hinweis, unten, 0, 1, 4);
  raster->addWidget(Command1, unten, 4, 1, 2);
  raster->addWidget(lblDatei, unten + 1, 0, 1, 4);
  raster->addWidget(Beschriftung(*rhmWinkel, u"Maßstab 1:"_s, txtWPolar), unten + 1, 4, Qt::AlignRight);
  raster->addWidget(txtWPolar, unten + 1, 5);
  return tabelle;
}

void WinkelTab::Verbinden() {
  std::vector<QWidget*> folge = {txtWAntenne, txtWGewinn0, txtWMHZ, txtWAntEinPWR};
  folge.insert(folge.end(), txtWDaempfung.begin(), txtWDaempfung.end());
  folge.push_back(Command1);
  folge.push_back(txtWPolar);
  new Feldfolge(zustand_.werte, folge, this);

  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    txtWDaempfung.at(i)->installEventFilter(this);
    connect(txtWDaempfung.at(i), &Zahlenfeld::doppelklick, this, [this, i] { DaempfungUebernehmen(i); });
    // What is typed survives a look at another column, computed or not.
    connect(txtWDaempfung.at(i), &QLineEdit::textEdited, this,
            [this] { Abgefangen(plattform_.boxen, zustand_.werte, [this] { SaetzeFortschreiben(); }); });
    connect(txtWDaempfung.at(i), &QLineEdit::textChanged, this, [this] { BildAuffrischen(); });
  }
  connect(Command1, &QPushButton::clicked, this, &WinkelTab::SektorenBerechnen);
  // The gain of a short antenna is negative.
  Rechenwerte& werte = zustand_.werte;
  connect(txtWGewinn0, &Zahlenfeld::betreten, this, [&werte] { werte.MinusErlaubt = true; });
  connect(txtWGewinn0, &Zahlenfeld::verlassen, this, [&werte] { werte.MinusErlaubt = false; });
}

}  // namespace vesk
