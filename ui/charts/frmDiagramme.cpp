#include "ui/charts/frmDiagramme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "print/Kurven.h"
#include "station/Diagramme.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Auswahlliste.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Lesbarkeit.h"
#include "ui/charts/Kurvenblick.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Feldhilfe Tooltips[] = {
    {u"lstDiagramme", u"Welches Diagramm gezeigt wird"},
    {u"lstKabel", u"Leertaste oder Maus wählt ein Kabel, höchstens fünf"},
    {u"cmdDiagrammeDrucken", u"Alle Diagramme in der Vorschau, zum Drucken oder als PDF"},
};

}  // namespace

frmDiagramme::frmDiagramme(Ablauf& ablauf, const Kataloge& kataloge, QWidget* eltern)
    : QDialog(eltern, Qt::Window),
      ablauf_(ablauf),
      kataloge_(kataloge),
      lstDiagramme(new Auswahlliste(this)),
      lblKabel(new QLabel(u"&Kabel (höchstens fünf)"_s, this)),
      lstKabel(new QListWidget(this)),
      imgDiagramm(new Kurvenblick(this)) {
  setObjectName(u"frmDiagramme"_s);
  setWindowTitle(u"Diagramme"_s);
  setProperty(HilfekontextEigenschaft, 7001);
  imgDiagramm->setObjectName(u"imgDiagramm"_s);
  auto* nebeneinander = new QHBoxLayout(this);
  nebeneinander->addWidget(WahlAnlegen());
  nebeneinander->addWidget(imgDiagramm, 1);
  const QSize platz = screen()->availableSize();
  resize(QSize(960, 620).boundedTo({platz.width() * 19 / 20, platz.height() * 7 / 8}));
  lstDiagramme->setFocus();
}

QWidget* frmDiagramme::WahlAnlegen() {
  auto* wahl = new QWidget(this);
  lstDiagramme->setObjectName(u"lstDiagramme"_s);
  lstDiagramme->setAccessibleName(u"Diagramme"_s);
  for (std::size_t i = 0; i < AnzahlDiagramme; ++i)
    lstDiagramme->addItem(Diagrammname(static_cast<Diagrammart>(i)));
  lstDiagramme->setFixedHeight(lstDiagramme->sizeHintForRow(0) * static_cast<int>(AnzahlDiagramme) +
                               2 * lstDiagramme->frameWidth() + 2);
  connect(lstDiagramme, &Auswahlliste::gewaehlt, this,
          [this](int zeile) { ablauf_.Tun(Mit(DiagrammWaehlen, static_cast<Diagrammart>(zeile))); });
  lblKabel->setObjectName(u"lblKabel"_s);
  lblKabel->setBuddy(lstKabel);
  lstKabel->setObjectName(u"lstKabel"_s);
  lstKabel->setAccessibleName(u"Kabel des Diagramms"_s);
  KaestchenDeutlich(*lstKabel);
  for (int i = 0; i < kataloge_.kabel.Kabelanzahl; ++i) {
    auto* eintrag =
        new QListWidgetItem(QString::fromStdString(kataloge_.kabel.liste.at(std::size_t(i))), lstKabel);
    eintrag->setCheckState(Qt::Unchecked);
  }
  connect(lstKabel, &QListWidget::itemChanged, this, [this](const QListWidgetItem* eintrag) {
    ablauf_.Tun(Mit(KabelAnkreuzen, lstKabel->row(eintrag), eintrag->checkState() == Qt::Checked));
    if (gezeigt_) KabelZeigen(*gezeigt_);  // a cable too many has changed nothing
  });
  auto* cmdDrucken = new QPushButton(u"&Drucken, PDF …"_s, wahl);
  cmdDrucken->setObjectName(u"cmdDiagrammeDrucken"_s);
  connect(cmdDrucken, &QPushButton::clicked, this, [this] { ablauf_.Tun(DiagrammeDrucken); });

  auto* spalte = new QVBoxLayout(wahl);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->addWidget(lstDiagramme);
  spalte->addWidget(lblKabel);
  spalte->addWidget(lstKabel, 1);
  spalte->addStretch();
  spalte->addWidget(cmdDrucken);
  setTabOrder(lstKabel, cmdDrucken);
  setTabOrder(cmdDrucken, imgDiagramm);
  wahl->setFixedWidth(lstDiagramme->sizeHintForColumn(0) + 3 * fontMetrics().averageCharWidth());
  return wahl;
}

void frmDiagramme::Zeigen(const Station& s) {
  if (tooltips_ != s.einstellungen.ToolTips) {
    tooltips_ = s.einstellungen.ToolTips;
    TooltipsSetzen(*this, Tooltips, *tooltips_);
  }
  if (!s.fenster.diagramme) return gezeigt_.reset();
  if (gezeigt_ == s) return;
  gezeigt_ = s;
  const Diagrammart art = s.schaubilder.diagramm;
  lstDiagramme->setCurrentRow(static_cast<int>(art));
  KabelZeigen(s);
  Kurvenbild bild = Diagramm(s, kataloge_, art);
  if (bild_ == bild) return;
  imgDiagramm->setAccessibleName(bild.titel);
  imgDiagramm->Zeigen([bild](Blatt& blatt, const QRectF& flaeche,
                             const Bildfarben& farben) { KurvenbildMalen(blatt, flaeche, bild, farben); },
                      Bildtext(bild));
  bild_ = std::move(bild);
}

void frmDiagramme::KabelZeigen(const Station& s) {
  const bool zeigen = s.schaubilder.diagramm == Diagrammart::Kabel;
  lblKabel->setVisible(zeigen);
  lstKabel->setVisible(zeigen);
  const QSignalBlocker sperre(lstKabel);
  const std::vector<int> gezeigt = GezeigteKabel(s, kataloge_);
  for (int i = 0; i < lstKabel->count(); ++i) {
    const bool an = std::find(gezeigt.begin(), gezeigt.end(), i) != gezeigt.end();
    lstKabel->item(i)->setCheckState(an ? Qt::Checked : Qt::Unchecked);
  }
}

void frmDiagramme::reject() {
  ablauf_.Tun(DiagrammeSchliessen);
}

}  // namespace vesk
