#include "ui/options/AntennenTab.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <utility>

#include "station/Optionen.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Auswahlliste.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/options/Listenrahmen.h"

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

/// A list of lines whose columns stand below each other; their blank right end needs no scroll bar.
template <typename Liste>
Liste* Spaltenliste(const QString& name, const QString& beschreibung, QWidget* eltern) {
  auto* liste = new Liste(eltern);
  liste->setObjectName(name);
  liste->setAccessibleName(beschreibung);
  liste->setUniformItemSizes(true);
  liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  liste->setTextElideMode(Qt::ElideNone);
  liste->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
  // Counted by items the scroll range goes wrong with hidden lines.
  liste->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  return liste;
}

QLabel* Label(const QString& name, const QString& text, QWidget* eltern) {
  auto* label = new QLabel(text, eltern);
  label->setObjectName(name);
  return label;
}

QStringList Qtexte(const std::vector<std::string>& zeilen) {
  QStringList texte;
  texte.reserve(qsizetype(zeilen.size()));
  for (const std::string& zeile : zeilen) texte << QString::fromStdString(zeile);
  return texte;
}

/// The line with the maker in its place.
QString MitHersteller(QString zeile, const std::string& hersteller) {
  const QString name = QString::fromStdString(hersteller).left(HerstellerSpalten);
  return zeile.replace(0, name.size(), name);
}

void ListeSchreiben(QListWidget& liste, const QStringList& zeilen) {
  bool gleich = liste.count() == zeilen.size();
  for (int i = 0; gleich && i < liste.count(); ++i) gleich = liste.item(i)->text() == zeilen.at(i);
  if (gleich) return;
  liste.clear();
  liste.addItems(zeilen);
}

}  // namespace

AntennenTab::AntennenTab(Ablauf& ablauf, const Kataloge& kataloge)
    : ablauf_(ablauf), katalog_(kataloge.antennen), suche_(katalog_.Antennen) {
  Bauen();
  Anordnen();
  Verbinden();
  ListeEingrenzen();
}

void AntennenTab::Bauen() {
  txtSuche = new QLineEdit(this);
  txtSuche->setObjectName(u"txtSuche"_s);
  txtSuche->setAccessibleName(u"Antenne suchen"_s);
  txtSuche->setPlaceholderText(u"z. B. yagi 144"_s);
  txtSuche->setClearButtonEnabled(true);
  lblTreffer = Label(u"lblTreffer"_s, {}, this);

  LstAntennen = Spaltenliste<Auswahlliste>(u"LstAntennen"_s, u"Antennen: Hersteller und Typ"_s, this);
  LstAntennen->addItems(Qtexte(katalog_.zeilen));
  List1 = Spaltenliste<Anzeigeliste>(u"List1"_s, u"Bänder der Antenne: MHz, Gewinn in dBi, Elemente"_s, this);

  lblGewaehlt = Label(u"lblGewaehlt"_s, {}, this);
  lblAntenne = Label(u"lblAntenne"_s, {}, this);
  lblAntenne->setFrameShape(QFrame::StyledPanel);
  cmdAntenne = new QPushButton(u"Antenne nehmen"_s, this);
  cmdAntenne->setObjectName(u"cmdAntenne"_s);
  cmdAntenne->setAutoDefault(true);
}

void AntennenTab::Anordnen() {
  auto* lblSuche = Label(u"lblSuche"_s, u"&Suchen:"_s, this);
  lblSuche->setBuddy(txtSuche);
  auto* suche = new QHBoxLayout;
  suche->addWidget(lblSuche);
  suche->addWidget(txtSuche, 1);
  suche->addWidget(lblTreffer);

  auto* rhmAntennen = new Listenrahmen(QString::fromStdString(Antennenkopf()), this);
  rhmAntennen->setObjectName(u"rhmAntennen"_s);
  rhmAntennen->Ausrichten({{LstAntennen, 0}, {LstAntennen, 10}, {List1, 2}, {List1, 12}, {List1, 21}});
  auto* listen = new QHBoxLayout(rhmAntennen);
  listen->addWidget(LstAntennen);
  listen->addWidget(List1, 1);
  MitSchrift(*this, [this] { ListenBemessen(); });

  auto* lblAntDaten = Label(u"lblAntDaten"_s,
                            u"Antennendaten ohne Gewähr. "
                            "Die Daten be- ruhen auf Herstelleran- gaben und Anzeigen."_s,
                            this);
  lblAntDaten->setWordWrap(true);
  auto* nehmen = new QHBoxLayout;
  nehmen->addStretch();
  nehmen->addWidget(lblGewaehlt);
  nehmen->addWidget(cmdAntenne);
  nehmen->addWidget(new QLabel(u"Übernommen:"_s, this));
  nehmen->addWidget(lblAntenne);
  MindestensBreit(*lblAntenne, 14);

  auto* flaeche = new QVBoxLayout(this);
  flaeche->addLayout(suche);
  flaeche->addWidget(rhmAntennen, 1);
  flaeche->addLayout(nehmen);
  flaeche->addWidget(lblAntDaten);
}

void AntennenTab::ListenBemessen() {
  QFont schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  schrift.setPointSizeF(fontInfo().pointSizeF());
  for (QListWidget* liste : {static_cast<QListWidget*>(LstAntennen), static_cast<QListWidget*>(List1)}) {
    liste->setFont(schrift);
  }
  const int zeichen = List1->fontMetrics().horizontalAdvance(u'0');
  const int rollbalken = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  LstAntennen->setFixedWidth(24 * zeichen + rollbalken);
  LstAntennen->setMinimumHeight(14 * LstAntennen->fontMetrics().height());
  List1->setMinimumWidth(30 * zeichen);
  List1->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

void AntennenTab::Verbinden() {
  txtSuche->installEventFilter(this);
  connect(txtSuche, &QLineEdit::textChanged, this, &AntennenTab::ListeEingrenzen);
  connect(LstAntennen, &Auswahlliste::gewaehlt, this, &AntennenTab::Waehlen);
  connect(LstAntennen, &Auswahlliste::bestaetigt, cmdAntenne,
          [this] { cmdAntenne->setFocus(Qt::OtherFocusReason); });
  connect(cmdAntenne, &QPushButton::clicked, this, [this] {
    // A button that is disabled hands its focus on to anywhere.
    LstAntennen->setFocus(Qt::OtherFocusReason);
    ablauf_.Tun(AntenneNehmen);
  });
}

void AntennenTab::Zeigen(const Station& s) {
  const auto index = static_cast<std::size_t>(s.AntennenIndex);
  const bool gewaehlt = s.AntennenIndex >= 0 && index < katalog_.Antennen.size();
  const Antenne antenne = gewaehlt ? katalog_.Antennen.at(index) : Antenne();
  const Antennenwahl wahl = AntenneWaehlen(antenne, s.werte.QRGText);
  LstAntennen->setCurrentRow(gewaehlt ? s.AntennenIndex : -1);
  ListeSchreiben(*List1, Qtexte(wahl.zeilen));
  List1->setCurrentRow(wahl.markiert);
  Schreiben(*lblGewaehlt, gewaehlt ? "Gewählt: " + antenne.hersteller + ' ' + antenne.typ : std::string());
  Schreiben(*lblAntenne, s.Datenblattspalten.front().Antenne);
  const QString grund =
      gewaehlt ? u"Die gewählte Antenne ist schon genommen."_s : u"Erst eine Antenne wählen."_s;
  Sperren(*cmdAntenne, s.antenneNehmbar ? QString() : grund);
}

void AntennenTab::ListeEingrenzen() {
  const std::vector<bool> treffer = suche_.Treffer(txtSuche->text().toStdString());
  const std::string* gruppe = nullptr;
  int anzahl = 0;
  for (int i = 0; i < LstAntennen->count(); ++i) {
    const auto k = static_cast<std::size_t>(i);
    const bool zeigen = treffer[k];
    if (LstAntennen->isRowHidden(i) == zeigen) LstAntennen->setRowHidden(i, !zeigen);
    if (!zeigen) continue;
    ++anzahl;
    // The line that names the maker may be hidden; the first of its group that is left names it then.
    const std::string& hersteller = katalog_.Antennen[k].hersteller;
    const bool neueGruppe = gruppe == nullptr || *gruppe != hersteller;
    gruppe = &hersteller;
    QString zeile = QString::fromStdString(katalog_.zeilen[k]);
    if (neueGruppe) zeile = MitHersteller(std::move(zeile), hersteller);
    if (LstAntennen->item(i)->text() != zeile) LstAntennen->item(i)->setText(zeile);
  }
  // A pending layout would scroll by the places that the lines had before.
  LstAntennen->doItemsLayout();
  const int gewaehlt = LstAntennen->currentRow();
  if (gewaehlt >= 0 && !LstAntennen->isRowHidden(gewaehlt)) {
    LstAntennen->scrollToItem(LstAntennen->item(gewaehlt));
  }
  lblTreffer->setText(u"%1 von %2"_s.arg(anzahl).arg(LstAntennen->count()));
}

void AntennenTab::ErsteWaehlen() {
  for (int i = 0; i < LstAntennen->count(); ++i) {
    if (LstAntennen->isRowHidden(i)) continue;
    Waehlen(i);
    LstAntennen->setFocus(Qt::OtherFocusReason);
    return;
  }
}

void AntennenTab::Waehlen(int zeile) {
  ablauf_.Tun(Mit(AntenneGewaehlt, zeile));
}

bool AntennenTab::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (objekt == txtSuche && ereignis->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(ereignis)->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Down:
        ErsteWaehlen();
        return true;
      case Qt::Key_Escape:
        txtSuche->clear();
        return true;
      default:
        break;
    }
  }
  return QWidget::eventFilter(objekt, ereignis);
}

}  // namespace vesk
