#include "ui/plan/Objektseite.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <cmath>

#include "ui/basis/Ablauf.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/plan/Objektwerte.h"
#include "ui/plan/Planaenderung.h"
#include "ui/plan/Zahlenzelle.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

enum Punktspalte { X, Y, Kante, Punktspalten };

void ZelleSchreiben(QTableWidget& tabelle, int zeile, int spalte, const QString& text, bool fest) {
  QTableWidgetItem* zelle = tabelle.item(zeile, spalte);
  if (zelle == nullptr) {
    zelle = new QTableWidgetItem;
    if (fest) zelle->setFlags(zelle->flags() & ~Qt::ItemIsEditable);
    tabelle.setItem(zeile, spalte, zelle);
  }
  if (zelle->text() != text) zelle->setText(text);
}

void Einrichten(QTableWidget& tabelle, const QString& name, const QString& zugang, int zeilen) {
  tabelle.setObjectName(name);
  tabelle.setAccessibleName(zugang);
  tabelle.setSelectionMode(QAbstractItemView::SingleSelection);
  tabelle.setTabKeyNavigation(false);
  tabelle.setWordWrap(false);
  tabelle.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  tabelle.horizontalHeader()->setHighlightSections(false);
  MitSchrift(tabelle, [&tabelle, zeilen] {
    const int hoehe = tabelle.fontMetrics().height() * 5 / 4;
    tabelle.verticalHeader()->setMinimumSectionSize(hoehe);
    tabelle.verticalHeader()->setDefaultSectionSize(hoehe);
    tabelle.setMinimumHeight(zeilen * hoehe + 2 * tabelle.frameWidth());
  });
}

QPushButton* Knopf(QBoxLayout& reihe, const QString& name, const QString& text) {
  auto* knopf = new QPushButton(text);
  knopf->setObjectName(name);
  knopf->setAutoDefault(false);
  reihe.addWidget(knopf);
  return knopf;
}

/// Keeps a table's number of rows without moving the user's cursor from where it is.
void Zeilen(QTableWidget& tabelle, std::size_t anzahl) {
  if (tabelle.rowCount() != static_cast<int>(anzahl)) tabelle.setRowCount(static_cast<int>(anzahl));
}

}  // namespace

Objektseite::Objektseite(Ablauf& ablauf, QWidget* eltern)
    : QWidget(eltern),
      ablauf_(ablauf),
      tblObjekte(new QTableWidget(this)),
      tblPunkte(new QTableWidget(this)) {
  auto* spalte = new QVBoxLayout(this);
  QWidget* leiste = LeisteAnlegen();
  ObjekteAnlegen();
  werte_ = new Objektwerte(ablauf, this);
  connect(werte_, &Objektwerte::hinweis, this, &Objektseite::hinweis);
  PunkteAnlegen();
  auto* ecken = new QHBoxLayout;
  cmdEckeEinfuegen = Knopf(*ecken, u"cmdEckeEinfuegen"_s, u"Ecke dahinter"_s);
  cmdEckeLoeschen = Knopf(*ecken, u"cmdEckeLoeschen"_s, u"Ecke weg"_s);
  ecken->addStretch();
  connect(cmdEckeEinfuegen, &QPushButton::clicked, this, &Objektseite::eckeEinfuegen);
  connect(cmdEckeLoeschen, &QPushButton::clicked, this, [this] {
    if (!wahl_->ecke) Q_EMIT gewaehlt(Planstelle{wahl_->objekt, std::max(0, tblPunkte->currentRow())});
    Q_EMIT loeschen();
  });
  spalte->addWidget(leiste);
  spalte->addWidget(tblObjekte, 2);
  spalte->addWidget(werte_);
  spalte->addWidget(tblPunkte, 3);
  spalte->addLayout(ecken);
}

QWidget* Objektseite::LeisteAnlegen() {
  auto* leiste = new QWidget(this);
  auto* reihe = new QHBoxLayout(leiste);
  reihe->setContentsMargins(0, 0, 0, 0);
  cboNeu = new QComboBox(leiste);
  cboNeu->setObjectName(u"cboNeu"_s);
  cboNeu->setAccessibleName(u"Art des neuen Objekts"_s);
  cboNeu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  for (const Planartzeile& zeile : Planarten) cboNeu->addItem(QString::fromUtf8(zeile.name));
  reihe->addWidget(cboNeu, 1);
  auto* hinzu = Knopf(*reihe, u"cmdHinzufuegen"_s, u"&Hinzufügen"_s);
  connect(hinzu, &QPushButton::clicked, this, &Objektseite::Hinzufuegen);
  cmdObjektLoeschen = Knopf(*reihe, u"cmdObjektLoeschen"_s, u"&Löschen"_s);
  connect(cmdObjektLoeschen, &QPushButton::clicked, this, [this] {
    Q_EMIT gewaehlt(Planstelle{wahl_->objekt, std::nullopt});
    Q_EMIT loeschen();
  });
  return leiste;
}

void Objektseite::ObjekteAnlegen() {
  tblObjekte->setColumnCount(2);
  tblObjekte->setHorizontalHeaderLabels({u"Art"_s, u"Name"_s});
  Einrichten(*tblObjekte, u"tblObjekte"_s, u"Objekte des Plans"_s, 4);
  tblObjekte->setSelectionBehavior(QAbstractItemView::SelectRows);
  tblObjekte->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tblObjekte->verticalHeader()->hide();
  connect(tblObjekte, &QTableWidget::itemSelectionChanged, this, [this] {
    const int zeile = tblObjekte->currentRow();
    if (zeile < 0 || tblObjekte->selectedItems().isEmpty()) return;
    Q_EMIT gewaehlt(Planstelle{static_cast<std::size_t>(zeile), std::nullopt});
  });
}

void Objektseite::PunkteAnlegen() {
  tblPunkte->setColumnCount(Punktspalten);
  tblPunkte->setHorizontalHeaderLabels({u"x [m]"_s, u"y [m]"_s, u"Kante [m]"_s});
  Einrichten(*tblPunkte, u"tblPunkte"_s, u"Punkte des Objekts, vom Bezugspunkt aus"_s, 4);
  auto* zahlen = new Zahlenzelle(ablauf_, ZahlVon(-2 * plangrenzen::Ort, 2 * plangrenzen::Ort, u"m"_s), this);
  tblPunkte->setItemDelegate(zahlen);
  connect(zahlen, &Zahlenzelle::beanstandet, this, &Objektseite::hinweis);
  connect(zahlen, &Zahlenzelle::eingegeben, this,
          [this](const QWidget* feld, int zeile, int spalte, const QString& wert) {
            const auto ecke = static_cast<std::size_t>(zeile);
            const double zahl = Zahlwert(wert);
            ablauf_.TunBeimTippen(*feld, PlanAendern([=, objekt = wahl_->objekt](Lageplan& plan) {
              Punkt& punkt = plan.objekte.at(objekt).punkte.at(ecke);
              (spalte == X ? punkt.x : punkt.y) = zahl + (spalte == X ? plan.bezug.x : plan.bezug.y);
            }));
          });
  connect(tblPunkte, &QTableWidget::itemSelectionChanged, this, [this] {
    if (!wahl_ || tblPunkte->selectedItems().isEmpty()) return;
    Q_EMIT gewaehlt(Planstelle{wahl_->objekt, static_cast<std::size_t>(tblPunkte->currentRow())});
  });
}

void Objektseite::Hinzufuegen() {
  const auto art = static_cast<Planart>(cboNeu->currentIndex());
  const auto neues = static_cast<std::size_t>(tblObjekte->rowCount());
  ablauf_.Tun(
      PlanAendern([art](Lageplan& plan) { plan.objekte.push_back(NeuesPlanobjekt(art, plan.bezug)); }));
  if (static_cast<std::size_t>(tblObjekte->rowCount()) > neues)
    Q_EMIT gewaehlt(Planstelle{neues, std::nullopt});
}

void Objektseite::Zeigen(const Station& s, const std::optional<Planstelle>& wahl) {
  wahl_ = wahl;
  ObjekteZeigen(s.lageplan);
  werte_->Zeigen(s, wahl ? std::optional(wahl->objekt) : std::nullopt);
  PunkteZeigen(s.lageplan);
  const QString keins = wahl ? QString() : u"Es ist kein Objekt gewählt."_s;
  Sperren(*cmdObjektLoeschen, keins);
  const bool umriss = wahl && Artzeile(s.lageplan.objekte.at(wahl->objekt).art).umriss;
  const bool ecken = umriss && !s.lageplan.objekte[wahl->objekt].punkte.empty();
  const QString keiner = ecken ? QString() : u"Es ist kein Umriß mit Ecken gewählt."_s;
  Sperren(*cmdEckeEinfuegen, keiner);
  Sperren(*cmdEckeLoeschen, keiner);
}

void Objektseite::ObjekteZeigen(const Lageplan& plan) {
  const QSignalBlocker sperre(tblObjekte);
  Zeilen(*tblObjekte, plan.objekte.size());
  for (std::size_t i = 0; i < plan.objekte.size(); ++i) {
    const Planobjekt& o = plan.objekte[i];
    ZelleSchreiben(*tblObjekte, static_cast<int>(i), 0, QString::fromUtf8(Artzeile(o.art).name), true);
    ZelleSchreiben(*tblObjekte, static_cast<int>(i), 1, QString::fromStdString(o.name), true);
  }
  if (!wahl_) return tblObjekte->clearSelection();
  const int zeile = static_cast<int>(wahl_->objekt);
  if (tblObjekte->currentRow() != zeile) tblObjekte->setCurrentCell(zeile, 0);
  if (tblObjekte->selectedItems().isEmpty()) tblObjekte->selectRow(zeile);
}

void Objektseite::PunkteZeigen(const Lageplan& plan) {
  const QSignalBlocker sperre(tblPunkte);
  if (!wahl_) return tblPunkte->setRowCount(0);
  const Planobjekt& objekt = plan.objekte.at(wahl_->objekt);
  const Umriss& punkte = objekt.punkte;
  Zeilen(*tblPunkte, punkte.size());
  for (std::size_t i = 0; i < punkte.size(); ++i) {
    const int zeile = static_cast<int>(i);
    const Punkt folgender = punkte[(i + 1) % punkte.size()];
    const double kante = std::hypot(folgender.x - punkte[i].x, folgender.y - punkte[i].y);
    ZelleSchreiben(*tblPunkte, zeile, X, Zahltext(punkte[i].x - plan.bezug.x), false);
    ZelleSchreiben(*tblPunkte, zeile, Y, Zahltext(punkte[i].y - plan.bezug.y), false);
    ZelleSchreiben(*tblPunkte, zeile, Kante, Artzeile(objekt.art).umriss ? Zahltext(kante) : QString(), true);
  }
  if (!wahl_->ecke) return tblPunkte->clearSelection();
  const int zeile = static_cast<int>(*wahl_->ecke);
  if (tblPunkte->currentRow() != zeile)
    tblPunkte->setCurrentCell(zeile, std::max(0, tblPunkte->currentColumn()));
  if (tblPunkte->selectedItems().isEmpty())
    tblPunkte->setCurrentCell(zeile, std::max(0, tblPunkte->currentColumn()), QItemSelectionModel::Select);
}

}  // namespace vesk
