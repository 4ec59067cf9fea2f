#include "ui/bands/frmBaender.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <bitset>
#include <utility>

#include "engine/Bandlogik.h"
#include "ui/bands/Bandtexte.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Lesbarkeit.h"
#include "ui/charts/Kurvenblick.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Feldhilfe Tooltips[] = {
    {u"tblBaender", u"Leertaste kreuzt ein Band an, Enter kopiert die angekreuzten Bänder"},
    {u"cmdAlle", u"Kreuzt alle Bänder an, die sich berechnen lassen"},
    {u"cmdKeine", u"Nimmt alle Kreuze zurück"},
    {u"cmdBaenderKopieren", u"Jedes angekreuzte Band in die nächste freie Spalte des Datenblatts"},
};

/// Asks for the height of all its rows, and for little width.
class Bandtabelle : public QTableWidget {
 public:
  using QTableWidget::QTableWidget;
  QSize sizeHint() const override {
    const int zeilen = verticalHeader()->defaultSectionSize() * rowCount();
    return {QTableWidget::sizeHint().width(),
            horizontalHeader()->sizeHint().height() + zeilen + 2 * frameWidth()};
  }
};

/// Whether it was another one.
bool TextSetzen(QTableWidgetItem& zelle, const QString& text) {
  if (zelle.text() == text) return false;
  zelle.setText(text);
  return true;
}

}  // namespace

frmBaender::frmBaender(Ablauf& ablauf, const Kataloge& kataloge, QWidget* eltern)
    : QDialog(eltern, Qt::Window),
      ablauf_(ablauf),
      kataloge_(kataloge),
      lblGrundlage(new QLabel(this)),
      lblHinweis(new QLabel(this)),
      lblAnzahl(new QLabel(this)),
      tblBaender(new Bandtabelle(this)),
      imgBaender(new Kurvenblick(this)) {
  setObjectName(u"frmBaender"_s);
  setWindowTitle(u"Alle Bänder"_s);
  setProperty(HilfekontextEigenschaft, 6001);
  lblGrundlage->setObjectName(u"lblGrundlage"_s);
  lblGrundlage->setWordWrap(true);
  lblHinweis->setObjectName(u"lblHinweis"_s);
  lblHinweis->setWordWrap(true);
  lblAnzahl->setObjectName(u"lblAnzahl"_s);
  imgBaender->setObjectName(u"imgBaender"_s);
  imgBaender->setAccessibleName(u"Diagramm aller Bänder"_s);
  // What they tell of the next row or another antenna shall not push the table up and down.
  for (QLabel* text : {lblGrundlage, lblHinweis}) {
    text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    MitSchrift(*text, [text] { text->setMinimumHeight(2 * text->fontMetrics().lineSpacing()); });
  }
  TabelleAnlegen();

  auto* tabelle = new QWidget(this);
  auto* untereinander = new QVBoxLayout(tabelle);
  untereinander->setContentsMargins(0, 0, 0, 0);
  untereinander->addWidget(tblBaender, 1);
  untereinander->addWidget(lblHinweis);
  auto* karten = new QTabWidget(this);
  karten->setObjectName(u"SSTab1"_s);
  karten->addTab(tabelle, u"&Tabelle"_s);
  karten->addTab(imgBaender, u"&Diagramm"_s);
  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(lblGrundlage);
  spalte->addWidget(karten, 1);
  spalte->addWidget(KnoepfeAnlegen());
  Einpassen(*this);
  resize(QSize(1000, height()).boundedTo(Fensterplatz(*this)));
  tblBaender->setFocus();
}

void frmBaender::TabelleAnlegen() {
  tblBaender->setObjectName(u"tblBaender"_s);
  tblBaender->setAccessibleName(u"Alle Bänder"_s);
  KaestchenDeutlich(*tblBaender);
  tblBaender->setRowCount(static_cast<int>(Amateurbaender().size()));
  tblBaender->setColumnCount(static_cast<int>(Bandspalten));
  for (int i = 0; i < tblBaender->columnCount(); ++i)
    tblBaender->setHorizontalHeaderItem(i, new QTableWidgetItem(Kopftext(i, Modus::Abstand)));
  for (int zeile = 0; zeile < tblBaender->rowCount(); ++zeile) {
    for (int i = 0; i < tblBaender->columnCount(); ++i) {
      auto* zelle = new QTableWidgetItem;
      const bool zahl = i != Band && i != Hinweisspalte;
      zelle->setTextAlignment((zahl ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
      tblBaender->setItem(zeile, i, zelle);
    }
  }
  tblBaender->setSelectionBehavior(QAbstractItemView::SelectRows);
  tblBaender->setSelectionMode(QAbstractItemView::SingleSelection);
  tblBaender->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tblBaender->setTabKeyNavigation(false);
  tblBaender->setWordWrap(false);
  tblBaender->verticalHeader()->hide();
  MitSchrift(*tblBaender, [this] {
    tblBaender->verticalHeader()->setMinimumSectionSize(tblBaender->fontMetrics().height());
    tblBaender->verticalHeader()->setDefaultSectionSize(tblBaender->fontMetrics().height() * 5 / 4);
  });
  QHeaderView* kopf = tblBaender->horizontalHeader();
  // A header that fits its columns by itself measures all of them for every cell that changes.
  kopf->setSectionResizeMode(QHeaderView::Fixed);
  kopf->setSectionResizeMode(Hinweisspalte, QHeaderView::Stretch);
  kopf->setMinimumSectionSize(fontMetrics().averageCharWidth() * 6);
  kopf->setHighlightSections(false);
  tblBaender->installEventFilter(this);
  tblBaender->setCurrentCell(0, Band);
  connect(tblBaender, &QTableWidget::currentCellChanged, this, &frmBaender::HinweisZeigen);
  connect(tblBaender, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* zelle) {
    if (zelle->column() == Band) Umschalten(zelle->row());
  });
}

QWidget* frmBaender::KnoepfeAnlegen() {
  auto* leiste = new QWidget(this);
  auto* reihe = new QHBoxLayout(leiste);
  reihe->setContentsMargins(0, 0, 0, 0);
  const auto knopf = [&](const QString& name, const QString& text, auto tun) {
    auto* neu = new QPushButton(text, leiste);
    neu->setObjectName(name);
    neu->setAutoDefault(false);
    connect(neu, &QPushButton::clicked, this, tun);
    return neu;
  };
  reihe->addWidget(knopf(u"cmdAlle"_s, u"&Alle"_s, [this] {
    ablauf_.Tun(Mit(BaenderAnkreuzen, KopierbareBaender(zeilen_, Baenderwahl().set())));
  }));
  reihe->addWidget(
      knopf(u"cmdKeine"_s, u"&Keine"_s, [this] { ablauf_.Tun(Mit(BaenderAnkreuzen, Baenderwahl())); }));
  reihe->addWidget(lblAnzahl, 1);
  cmdBaenderKopieren = knopf(u"cmdBaenderKopieren"_s, u"In &Spalten kopieren"_s, [this] {
    ablauf_.Tun([](Station& s, const Kataloge& k) { return BaenderKopieren(s, k, s.schaubilder.baender); });
  });
  cmdBaenderKopieren->setDefault(true);
  reihe->addWidget(cmdBaenderKopieren);
  return leiste;
}

void frmBaender::Zeigen(const Station& s) {
  if (tooltips_ != s.einstellungen.ToolTips) {
    tooltips_ = s.einstellungen.ToolTips;
    TooltipsSetzen(*this, Tooltips, *tooltips_);
  }
  if (!s.fenster.baender) return gezeigt_.reset();
  if (gezeigt_ == s) return;
  const bool geoeffnet = !gezeigt_;
  gezeigt_ = s;
  zeilen_ = AlleBaender(s, kataloge_);
  Schreiben(*lblGrundlage, Bandgrundlage(s, kataloge_));
  TabelleZeigen(s);
  if (geoeffnet) BandAufsuchen(s);
  HinweisZeigen();
  AnzahlZeigen(s);
  Baenderbild bild = BaenderbildVon(s, zeilen_);
  if (bild_ == bild) return;
  imgBaender->Zeigen([bild](Blatt& blatt, const QRectF& flaeche,
                            const Bildfarben& farben) { BaenderbildMalen(blatt, flaeche, bild, farben); },
                     u"Die Tabelle nennt die Werte. "_s + Bildtext(bild.abstaende));
  bild_ = std::move(bild);
}

void frmBaender::TabelleZeigen(const Station& s) {
  const QSignalBlocker sperre(tblBaender);
  std::bitset<Bandspalten> anders;
  for (std::size_t i = 0; i < Bandspalten; ++i) {
    const int spalte = static_cast<int>(i);
    anders[i] = TextSetzen(*tblBaender->horizontalHeaderItem(spalte), Kopftext(spalte, s.modus));
  }
  for (std::size_t i = 0; i < zeilen_.size(); ++i) {
    const Bandzeile& zeile = zeilen_[i];
    const auto texte = Zellen(zeile);
    for (std::size_t spalte = 0; spalte < Bandspalten; ++spalte) {
      QTableWidgetItem& zelle = *tblBaender->item(static_cast<int>(i), static_cast<int>(spalte));
      if (TextSetzen(zelle, texte.at(spalte))) anders.set(spalte);
      zelle.setForeground(
          palette().brush(zeile.rechenbar ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    }
    QTableWidgetItem& erste = *tblBaender->item(static_cast<int>(i), Band);
    if (erste.data(Qt::CheckStateRole).isValid() != zeile.rechenbar) anders.set(Band);
    const QVariant kreuz = s.schaubilder.baender.test(i) ? Qt::Checked : Qt::Unchecked;
    erste.setData(Qt::CheckStateRole, zeile.rechenbar ? kreuz : QVariant());
  }
  for (std::size_t i = 0; i < Bandspalten; ++i) {
    if (anders.test(i)) Anpassen(static_cast<int>(i));
  }
}

void frmBaender::Anpassen(int spalte) {
  if (spalte != Hinweisspalte) tblBaender->resizeColumnToContents(spalte);
}

void frmBaender::AnzahlZeigen(const Station& s) {
  const auto zahl = static_cast<int>(KopierbareBaender(zeilen_, s.schaubilder.baender).count());
  const int frei = FreieSpalten(s);
  QString text =
      u"%1 angekreuzt, %2 %3 frei"_s.arg(zahl).arg(frei).arg(frei == 1 ? u"Spalte"_s : u"Spalten"_s);
  Schreiben(*lblAnzahl, text.toStdString());
  const bool moeglich = zahl > 0 && zahl <= frei;
  // Disabling it would send the focus anywhere.
  if (!moeglich && focusWidget() == cmdBaenderKopieren) tblBaender->setFocus();
  const QString grund =
      zahl > 0 ? u"Es sind mehr Bänder angekreuzt als Spalten frei."_s : u"Es ist kein Band angekreuzt."_s;
  Sperren(*cmdBaenderKopieren, moeglich ? QString() : grund);
}

void frmBaender::HinweisZeigen() {
  const int zeile = tblBaender->currentRow();
  if (zeilen_.empty() || zeile < 0) return;
  Schreiben(*lblHinweis, Zeilentext(zeilen_.at(static_cast<std::size_t>(zeile))).toStdString());
}

void frmBaender::BandAufsuchen(const Station& s) {
  const Amateurband* band = Hauptband(s);
  const auto zeile =
      std::find_if(zeilen_.begin(), zeilen_.end(), [&](const Bandzeile& z) { return z.band == band; });
  if (zeile != zeilen_.end()) tblBaender->setCurrentCell(static_cast<int>(zeile - zeilen_.begin()), Band);
}

void frmBaender::Umschalten(int zeile) {
  const auto band = static_cast<std::size_t>(zeile);
  if (!zeilen_.at(band).rechenbar) return;
  ablauf_.Tun([band](Station& s, const Kataloge& k) {
    return BandAnkreuzen(s, k, band, !s.schaubilder.baender.test(band));
  });
}

bool frmBaender::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (objekt == tblBaender && ereignis->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(ereignis)->key()) {
      case Qt::Key_Space:
        Umschalten(tblBaender->currentRow());
        return true;
      case Qt::Key_Return:
      case Qt::Key_Enter:
        cmdBaenderKopieren->click();
        return true;
      case Qt::Key_Home:
        tblBaender->setCurrentCell(0, Band);
        return true;
      case Qt::Key_End:
        tblBaender->setCurrentCell(tblBaender->rowCount() - 1, Band);
        return true;
      default:
        break;
    }
  }
  return QDialog::eventFilter(objekt, ereignis);
}

/// In a narrow window the distances need the room; the line below the table tells the rest.
void frmBaender::resizeEvent(QResizeEvent* ereignis) {
  QDialog::resizeEvent(ereignis);
  constexpr int Zeichen = 125;
  const bool schmal = width() < Zeichen * fontMetrics().averageCharWidth();
  for (const int spalte : {Frequenz, Grenzwert, Nahfeld}) {
    if (tblBaender->isColumnHidden(spalte) == schmal) continue;
    tblBaender->setColumnHidden(spalte, schmal);
    Anpassen(spalte);
  }
}

void frmBaender::changeEvent(QEvent* ereignis) {
  QDialog::changeEvent(ereignis);
  if (ereignis->type() != QEvent::FontChange && ereignis->type() != QEvent::StyleChange) return;
  for (int spalte = 0; spalte < tblBaender->columnCount(); ++spalte) Anpassen(spalte);
}

void frmBaender::reject() {
  ablauf_.Tun(BaenderSchliessen);
}

}  // namespace vesk
