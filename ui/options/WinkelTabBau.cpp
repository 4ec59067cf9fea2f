#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "ui/basis/Ablauf.h"
#include "ui/basis/Ausgabefeld.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Feldfolge.h"
#include "ui/basis/Textfeld.h"
#include "ui/basis/Zahlenfeld.h"
#include "ui/basis/Zugang.h"
#include "ui/options/WinkelTab.h"
#include "ui/options/Winkelbild.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

struct Ausgabeart {
  QStringView name;
  QStringView kopf;
  QStringView einheit;
};

/// In the order of Winkelwerte.
constexpr std::array<Ausgabeart, AnzahlWinkelspalten> Ausgabearten = {{
    {u"txtWEIRP", u"EIRP", u"[W]"},
    {u"txtWAbstand", u"ohne HSM", u"[m]"},
    {u"txtWHSMvde", u"HSM VDE", u"[m]"},
    {u"txtWHSM306", u"HSM 306", u"[m]"},
}};

QString Sektortext(std::size_t sektor) {
  return QString::fromStdString(Sektorname(sektor));
}

QLabel* Beschriftung(QWidget* rahmen, const QString& text, QWidget* feld = nullptr) {
  auto* label = new QLabel(text, rahmen);
  if (feld != nullptr) label->setBuddy(feld);
  return label;
}

void Einrichten(QLineEdit& feld, const QString& name) {
  feld.setObjectName(name);
  feld.setAlignment(Qt::AlignRight);
  GenauBreit(feld, 11);
}

}  // namespace

WinkelTab::WinkelTab(Ablauf& ablauf, Signalton& ton) : ablauf_(ablauf) {
  rhmWinkel = new QGroupBox(QString::fromUtf8(Ebenentitel(Winkelebene::Keine)), this);
  rhmWinkel->setObjectName(u"rhmWinkel"_s);
  KopfBauen(ton);
  TabelleBauen(ton);
  auto* links = new QVBoxLayout;
  auto* kopf = new QGridLayout;
  KopfAnordnen(*kopf);
  links->addLayout(kopf);
  auto* tabelle = new QGridLayout;
  TabelleAnordnen(*tabelle);
  links->addLayout(tabelle);
  links->addStretch();
  auto* rahmen = new QHBoxLayout(rhmWinkel);
  rahmen->addLayout(links);
  rahmen->addWidget(picWinkel, 1);
  auto* flaeche = new QVBoxLayout(this);
  flaeche->addWidget(rhmWinkel);
  Verbinden();
}

void WinkelTab::KopfBauen(Signalton& ton) {
  const auto zahl = [&](const QString& name, const QString& beschreibung) {
    auto* feld = new Zahlenfeld(ton, rhmWinkel);
    Einrichten(*feld, name);
    feld->setAccessibleName(beschreibung);
    return feld;
  };
  auto* txtWAntenne = new Textfeld(ton, rhmWinkel);
  txtWAntenne->setObjectName(u"txtWAntenne"_s);
  txtWAntenne->setAccessibleName(u"Antenne"_s);
  auto* txtWGewinn0 = zahl(u"txtWGewinn0"_s, u"Gewinn [dBi]"_s);
  txtWGewinn0->VorzeichenErlauben(true);  // of a short antenna
  kopf_ = {txtWAntenne, txtWGewinn0, zahl(u"txtWMHZ"_s, u"Frequenz [MHz]"_s),
           zahl(u"txtWAntEinPWR"_s, u"Antenneneingangsleistung [W]"_s),
           zahl(u"txtWPolar"_s, u"Maßstab des gedruckten Diagramms"_s)};
}

void WinkelTab::TabelleBauen(Signalton& ton) {
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    const QString nummer = u'_' + QString::number(i);
    txtWDaempfung.at(i) = new Zahlenfeld(ton, rhmWinkel);
    Einrichten(*txtWDaempfung.at(i), u"txtWDaempfung"_s + nummer);
    txtWDaempfung.at(i)->setAccessibleName(u"Dämpfung %1 Grad [dB]"_s.arg(Sektortext(i)));
    for (std::size_t spalte = 0; spalte < Ausgabearten.size(); ++spalte) {
      auto* feld = ausgaben_.at(i * AnzahlWinkelspalten + spalte) = new Ausgabefeld(rhmWinkel);
      Einrichten(*feld, Ausgabearten.at(spalte).name.toString() + nummer);
      feld->setFocusPolicy(Qt::ClickFocus);
    }
  }
  Command1 = new QPushButton(u"Berechnen"_s, rhmWinkel);
  Command1->setObjectName(u"Command1"_s);
  Command1->setAutoDefault(true);
  lblWDatei = new QLabel(rhmWinkel);
  lblWDatei->setObjectName(u"lblWDatei"_s);
  picWinkel = new Winkelbild(rhmWinkel);
  picWinkel->setObjectName(u"picWinkel"_s);
  picWinkel->setAccessibleName(u"Polardiagramm der Dämpfung und der Sicherheitsabstände"_s);
}

void WinkelTab::KopfAnordnen(QGridLayout& raster) {
  const auto dazu = [&](const QString& text, Winkelfeld feld, int zeile, int spalte, int breite,
                        Qt::Alignment rand = {}) {
    raster.addWidget(Beschriftung(rhmWinkel, text, KopfVon(feld)), zeile, spalte, 1, breite, rand);
  };
  dazu(u"Antenne"_s, Winkelfeld::Antenne, 0, 0, 1);
  raster.addWidget(KopfVon(Winkelfeld::Antenne), 0, 1, 1, 3);
  dazu(u"Gewinn [dBi]"_s, Winkelfeld::Gewinn, 1, 0, 1);
  raster.addWidget(KopfVon(Winkelfeld::Gewinn), 1, 1);
  dazu(u"Frequenz [MHz]"_s, Winkelfeld::Frequenz, 1, 2, 1, Qt::AlignRight);
  raster.addWidget(KopfVon(Winkelfeld::Frequenz), 1, 3);
  dazu(u"Antenneneingangsleistung [W]"_s, Winkelfeld::AntEinPWR, 2, 0, 3, Qt::AlignRight);
  raster.addWidget(KopfVon(Winkelfeld::AntEinPWR), 2, 3);
  raster.setColumnStretch(1, 1);
}

void WinkelTab::TabelleAnordnen(QGridLayout& raster) {
  raster.setVerticalSpacing(2);
  const auto kopf = [&](const QString& text, const QString& einheit, int spalte) {
    raster.addWidget(Beschriftung(rhmWinkel, text), 0, spalte, Qt::AlignCenter);
    raster.addWidget(Beschriftung(rhmWinkel, einheit), 1, spalte, Qt::AlignCenter);
  };
  constexpr int Erste = 2;  // row of the first sector
  kopf(u"Winkel °"_s, {}, 0);
  kopf(u"Dämpfung"_s, u"[dB]"_s, 1);
  for (std::size_t spalte = 0; spalte < Ausgabearten.size(); ++spalte) {
    const int stelle = static_cast<int>(spalte) + 2;
    kopf(Ausgabearten.at(spalte).kopf.toString(), Ausgabearten.at(spalte).einheit.toString(), stelle);
    for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
      raster.addWidget(ausgaben_.at(i * AnzahlWinkelspalten + spalte), static_cast<int>(i) + Erste, stelle);
    }
  }
  int zeile = Erste;
  for (std::size_t i = 0; i < AnzahlSektoren; ++i, ++zeile) {
    raster.addWidget(Beschriftung(rhmWinkel, Sektortext(i), txtWDaempfung.at(i)), zeile, 0);
    raster.addWidget(txtWDaempfung.at(i), zeile, 1);
  }
  auto* hinweis =
      Beschriftung(rhmWinkel, u"Doppelklick oder Strg+Enter übernimmt eine Dämpfung in die Berechnung."_s);
  hinweis->setWordWrap(true);
  raster.addWidget(hinweis, zeile, 0, 1, 4);
  raster.addWidget(Command1, zeile++, 4, 1, 2);
  raster.addWidget(lblWDatei, zeile, 0, 1, 4);
  QWidget* txtWPolar = KopfVon(Winkelfeld::Massstab);
  raster.addWidget(Beschriftung(rhmWinkel, u"Maßstab 1:"_s, txtWPolar), zeile, 4, Qt::AlignRight);
  raster.addWidget(txtWPolar, zeile, 5);
}

void WinkelTab::Verbinden() {
  ansage_ = new Ansage(this);
  std::vector<QWidget*> folge(kopf_.begin(), kopf_.end() - 1);
  folge.insert(folge.end(), txtWDaempfung.begin(), txtWDaempfung.end());
  folge.insert(folge.end(), {Command1, KopfVon(Winkelfeld::Massstab)});
  new Feldfolge(folge, this);

  for (std::size_t i = 0; i < kopf_.size(); ++i) {
    connect(kopf_.at(i), &QLineEdit::textEdited, this, [this, i](const QString& text) {
      ablauf_.TunBeimTippen(*kopf_.at(i), Mit(WinkelGetippt, static_cast<Winkelfeld>(i), text.toStdString()));
    });
  }
  for (std::size_t i = 0; i < AnzahlSektoren; ++i) {
    txtWDaempfung.at(i)->installEventFilter(this);
    connect(txtWDaempfung.at(i), &Zahlenfeld::doppelklick, this, [this, i] { Nehmen(i); });
    connect(txtWDaempfung.at(i), &QLineEdit::textEdited, this, [this, i](const QString& text) {
      ablauf_.TunBeimTippen(*txtWDaempfung.at(i), Mit(WinkeldaempfungGetippt, i, text.toStdString()));
    });
  }
  connect(Command1, &QPushButton::clicked, this, [this] { ablauf_.Tun(SektorenBerechnen); });
}

}  // namespace vesk
