#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "AntennenTab.h"
#include "Auswahlliste.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// A list of lines whose columns stand below each other; their blank right end needs no scroll bar.
template <typename Liste>
Liste* Spaltenliste(const QString& name, const QString& beschreibung, QWidget* eltern) {
  auto* liste = new Liste(eltern);
  liste->setObjectName(name);
  liste->setAccessibleName(beschreibung);
  liste->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  liste->setUniformItemSizes(true);
  liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  liste->setTextElideMode(Qt::ElideNone);
  // Counted by items the scroll range goes wrong with hidden lines.
  liste->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  return liste;
}

}  // namespace

AntennenTab::AntennenTab(Zustand& zustand, Plattform& plattform, OptionenUmgebung& umgebung, QWidget* eltern)
    : QWidget(eltern), zustand_(zustand), plattform_(plattform), umgebung_(umgebung) {
  Bauen();
  Anordnen();
  Verbinden();
}

void AntennenTab::Bauen() {
  txtSuche = new QLineEdit(this);
  txtSuche->setObjectName(u"txtSuche"_s);
  txtSuche->setAccessibleName(u"Antenne suchen"_s);
  txtSuche->setPlaceholderText(u"z. B. yagi 144"_s);
  txtSuche->setClearButtonEnabled(true);
  lblSuche = new QLabel(u"&Suchen:"_s, this);
  lblSuche->setObjectName(u"lblSuche"_s);
  lblSuche->setBuddy(txtSuche);
  lblTreffer = new QLabel(this);
  lblTreffer->setObjectName(u"lblTreffer"_s);

  rhmAntennen = new QGroupBox(u"Antennen"_s, this);
  rhmAntennen->setObjectName(u"rhmAntennen"_s);
  LstAntennen = Spaltenliste<Auswahlliste>(u"LstAntennen"_s, u"Antennen: Hersteller und Typ"_s, rhmAntennen);
  List1 = Spaltenliste<Anzeigeliste>(u"List1"_s, u"Bänder der Antenne: MHz, Gewinn in dBi, Elemente"_s,
                                     rhmAntennen);

  lblAntenne = new QLabel(this);
  lblAntenne->setObjectName(u"lblAntenne"_s);
  lblAntenne->setFrameShape(QFrame::StyledPanel);
  cmdAntenne = new QPushButton(u"Antenne nehmen"_s, this);
  cmdAntenne->setObjectName(u"cmdAntenne"_s);
  cmdAntenne->setAutoDefault(true);
  cmdAntenne->setEnabled(false);
  lblAntDaten = new QLabel(this);
  lblAntDaten->setObjectName(u"lblAntDaten"_s);
  lblAntDaten->setWordWrap(true);
}

void AntennenTab::Anordnen() {
  auto* suche = new QHBoxLayout;
  suche->addWidget(lblSuche);
  suche->addWidget(txtSuche, 1);
  suche->addWidget(lblTreffer);

  // The frame's caption is the head of both lists: the bands stand below its "MHz".
  const QString kopf = QString::fromStdString(Antennenkopf());
  auto* listen = new QHBoxLayout(rhmAntennen);
  listen->addWidget(LstAntennen);
  listen->addWidget(List1, 1);
  LstAntennen->setFixedWidth(fontMetrics().horizontalAdvance(kopf.left(kopf.indexOf(u"MHz"_s))));
  const int zeichen = List1->fontMetrics().horizontalAdvance(u'0');
  List1->setMinimumWidth(32 * zeichen);
  LstAntennen->setMinimumHeight(14 * LstAntennen->fontMetrics().height());

  auto* nehmen = new QHBoxLayout;
  nehmen->addWidget(lblAntDaten, 1);
  nehmen->addWidget(new QLabel(u"Übernommen:"_s, this));
  nehmen->addWidget(lblAntenne);
  nehmen->addWidget(cmdAntenne);
  lblAntenne->setMinimumWidth(14 * zeichen);

  auto* flaeche = new QVBoxLayout(this);
  flaeche->addLayout(suche);
  flaeche->addWidget(rhmAntennen, 1);
  flaeche->addLayout(nehmen);

  setTabOrder(txtSuche, LstAntennen);
  setTabOrder(LstAntennen, List1);
  setTabOrder(List1, cmdAntenne);
}

void AntennenTab::Verbinden() {
  txtSuche->installEventFilter(this);
  connect(txtSuche, &QLineEdit::textChanged, this, &AntennenTab::ListeEingrenzen);
  connect(LstAntennen, &Auswahlliste::gewaehlt, this, &AntennenTab::AntenneGewaehlt);
  connect(LstAntennen, &Auswahlliste::bestaetigt, cmdAntenne,
          [this] { cmdAntenne->setFocus(Qt::OtherFocusReason); });
  connect(cmdAntenne, &QPushButton::clicked, this, &AntennenTab::AntenneNehmen);
}

}  // namespace vesk
