#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "print/Planbild.h"
#include "station/Lageplanhandlungen.h"
#include "ui/basis/Menue.h"
#include "ui/basis/Rollseite.h"
#include "ui/plan/Befundseite.h"
#include "ui/plan/Objektseite.h"
#include "ui/plan/Planblick.h"
#include "ui/plan/Planfarben.h"
#include "ui/plan/Planfeld.h"
#include "ui/plan/Planriss.h"
#include "ui/plan/Planseite.h"
#include "ui/plan/frmLageplan.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

void BereichSetzen(Ablauf& ablauf) {
  ablauf.Tun([](Station& s, const Kataloge& k) -> Meldungen {
    const auto& objekte = s.lageplan.objekte;
    const bool da = std::any_of(objekte.begin(), objekte.end(),
                                [](const Planobjekt& o) { return o.art == Planart::Grundstueck; });
    if (da) return LageplanSetzen(s, k, BereichWieGrundstueck(s.lageplan));
    return {{.hinweis = {.titel = "Lageplan", .text = "Das Grundstück ist noch nicht eingezeichnet."}}};
  });
}

constexpr Menueeintrag Dateimenue[] = {
    {u"mnuGeojson", u"&GeoJSON einlesen …", Befehlend<Befehl::GeojsonEinlesen>},
    {u"mnuHintergrund", u"&Hintergrundbild wählen …", Befehlend<Befehl::HintergrundWaehlen>},
    {},
    {u"mnuLageplanSchliessen", u"S&chließen", Tuend<LageplanSchliessen>},
};
constexpr Menueeintrag Bearbeiten[] = {
    {u"mnuWiederholen", u"&Wiederholen", Befehlend<Befehl::Wiederholen>, {}, false, u"Ctrl+Y"},
    {},
    {u"mnuBereich", u"&Bereich wie Grundstück", BereichSetzen},
};

constexpr std::array<QStringView, AnzahlPlanschichten> Schichten = {
    u"Hintergrundbild", u"Raster",        u"Grundstücke",    u"Kontrollierter Bereich",
    u"Gebäude",         u"Bäume",         u"Beschriftungen", u"Antennen",
    u"Zonen ohne HSM",  u"Zonen HSM 306", u"Zonen HSM VDE",  u"Maße der Zonen"};

constexpr double Rasterweiten[] = {0, 0.1, 0.25, 0.5, 1, 2, 5};

/// The line of a kind of zone, as it is drawn on the plan.
QIcon Linienbild(const QWidget& fenster, Winkelkurve art) {
  const double mm = Bildschirmmass(fenster);
  const QSize groesse(qRound(10 * mm), qRound(3 * mm));
  QPixmap bild(groesse * fenster.devicePixelRatioF());
  bild.setDevicePixelRatio(fenster.devicePixelRatioF());
  const Planfarben farben = PlanfarbenAus(fenster.palette());
  bild.fill(farben.grund);
  QPainter maler(&bild);
  maler.setRenderHint(QPainter::Antialiasing);
  Planbild linie;
  const double weit = groesse.width();
  linie.plan.objekte.emplace_back();
  linie.plan.objekte.back().art = Planart::Antenne;
  linie.plan.objekte.back().punkte = {{weit / 2, -weit}};
  linie.zonen = {{art, 0, {{{-1, 0}, {weit, 0}, {weit, -3 * weit}, {-1, -3 * weit}}}, 1, false}};
  PlanMalen(
      maler, linie, {{0, groesse.height() / 2.0}, 1, mm},
      Planschichten().set(static_cast<std::size_t>(Planschicht::OhneHSM) + static_cast<std::size_t>(art)),
      farben);
  return bild;
}

}  // namespace

void frmLageplan::MenueAufbauen() {
  MenueAnlegen(*menuBar(), u"mnuDatei"_s, u"&Datei"_s, Dateimenue, ablauf_);
  QMenu& bearbeiten = MenueAnlegen(*menuBar(), u"mnuPlanBearbeiten"_s, u"&Bearbeiten"_s, {}, ablauf_);
  const auto eintrag = [this](QMenu& menue, const QString& name, const QString& text,
                              const QKeySequence& taste, auto tun) {
    QAction* aktion = menue.addAction(text, this, tun);
    aktion->setObjectName(name);
    aktion->setShortcut(taste);
    return aktion;
  };
  QAction* zurueck = eintrag(bearbeiten, u"mnuRueckgaengig"_s, u"&Rückgängig"_s, QKeySequence::Undo, [this] {
    if (!picPlan->SchrittZurueck()) ablauf_.Befehlen(Befehl::Rueckgaengig);
  });
  zurueck->setShortcutContext(Qt::WidgetShortcut);
  EintraegeAnlegen(bearbeiten, Bearbeiten, ablauf_);
  // The keys of these two are those of the drawing alone; a field deletes its own letters.
  for (QAction* aktion : {eintrag(bearbeiten, u"mnuWahlLoeschen"_s, u"&Löschen"_s, Qt::Key_Delete,
                                  [this] { picPlan->WahlLoeschen(); }),
                          eintrag(bearbeiten, u"mnuEckeEinfuegen"_s, u"&Ecke einfügen"_s, Qt::Key_Insert,
                                  [this] { picPlan->EckeEinfuegen(); })}) {
    aktion->setShortcutContext(Qt::WidgetShortcut);
  }
  QMenu& ansicht = MenueAnlegen(*menuBar(), u"mnuAnsicht"_s, u"&Ansicht"_s, {}, ablauf_);
  eintrag(ansicht, u"mnuGroesser"_s, u"&Größer"_s, QKeySequence::ZoomIn,
          [this] { picPlan->Vergroessern(1.25); });
  eintrag(ansicht, u"mnuKleiner"_s, u"&Kleiner"_s, QKeySequence::ZoomOut,
          [this] { picPlan->Vergroessern(0.8); });
  eintrag(ansicht, u"mnuAlles"_s, u"&Alles zeigen"_s, Qt::CTRL | Qt::Key_0,
          [this] { picPlan->AllesZeigen(); });
}

QWidget* frmLageplan::WerkzeugeAufbauen() {
  auto* inhalt = new QWidget;
  auto* spalte = new QVBoxLayout(inhalt);
  spalte->setContentsMargins(0, 0, 0, 0);
  auto* rahmen = new QGroupBox(u"Werkzeug"_s, inhalt);
  auto* untereinander = new QVBoxLayout(rahmen);
  untereinander->setSpacing(2);
  for (std::size_t i = 0; i < optWerkzeug.size(); ++i) {
    auto* knopf = optWerkzeug.at(i) = new QRadioButton(Werkzeuge.at(i).name.toString(), rahmen);
    knopf->setObjectName(u"optWerkzeug_%1"_s.arg(i));
    knopf->installEventFilter(this);
    untereinander->addWidget(knopf);
    connect(knopf, &QRadioButton::toggled, this, [this, i](bool an) {
      if (an) picPlan->WerkzeugNehmen(static_cast<Planwerkzeug>(i));
    });
  }
  optWerkzeug[0]->setChecked(true);
  auto* bereich = new QPushButton(u"Bereich wie\nGrundstück"_s, inhalt);
  bereich->setObjectName(u"cmdBereich"_s);
  bereich->setAccessibleName(u"Bereich wie Grundstück"_s);
  connect(bereich, &QPushButton::clicked, this, [this] { BereichSetzen(ablauf_); });
  spalte->addWidget(rahmen);
  spalte->addWidget(bereich);
  spalte->addWidget(FangAufbauen());
  spalte->addStretch();
  return inhalt;
}

QWidget* frmLageplan::FangAufbauen() {
  auto* rahmen = new QGroupBox(u"Fangen"_s);
  auto* untereinander = new QVBoxLayout(rahmen);
  untereinander->setSpacing(2);
  cboRaster = new QComboBox(rahmen);
  cboRaster->setObjectName(u"cboRaster"_s);
  cboRaster->setAccessibleName(u"Raster"_s);
  for (const double weite : Rasterweiten) {
    cboRaster->addItem(weite > 0 ? u"Raster %1 m"_s.arg(Zahltext(weite)) : u"kein Raster"_s, weite);
  }
  cboRaster->setCurrentIndex(cboRaster->findData(0.5));
  connect(cboRaster, &QComboBox::activated, this, &frmLageplan::FangNehmen);
  untereinander->addWidget(cboRaster);
  const std::array<QString, 2> texte = {u"rechte Winkel"_s, u"Ecken"_s};
  for (std::size_t i = 0; i < chkFang.size(); ++i) {
    auto* kreuz = chkFang.at(i) = new QCheckBox(texte.at(i), rahmen);
    kreuz->setObjectName(u"chkFang_%1"_s.arg(i));
    kreuz->setChecked(true);
    connect(kreuz, &QCheckBox::toggled, this, &frmLageplan::FangNehmen);
    untereinander->addWidget(kreuz);
  }
  return rahmen;
}

QWidget* frmLageplan::BlickAufbauen() {
  auto* rahmen = new QWidget(this);
  auto* untereinander = new QVBoxLayout(rahmen);
  untereinander->setContentsMargins(0, 0, 0, 0);
  auto* reihe = new QHBoxLayout;
  auto* lblBlick = new QLabel(u"Seitenansicht aus"_s, rahmen);
  sldBlick = new QSlider(Qt::Horizontal, rahmen);
  sldBlick->setObjectName(u"sldBlick"_s);
  sldBlick->setAccessibleName(u"Richtung der Seitenansicht"_s);
  sldBlick->setRange(0, 359);
  sldBlick->setPageStep(45);
  txtBlick = new QSpinBox(rahmen);
  txtBlick->setObjectName(u"txtBlick"_s);
  txtBlick->setAccessibleName(u"Richtung der Seitenansicht in Grad"_s);
  txtBlick->findChild<QLineEdit*>()->setAccessibleName(txtBlick->accessibleName());
  txtBlick->setRange(0, 359);
  txtBlick->setWrapping(true);
  txtBlick->setSingleStep(5);
  txtBlick->setSuffix(u"° N"_s);
  lblBlick->setBuddy(sldBlick);
  for (QWidget* teil : std::initializer_list<QWidget*>{lblBlick, sldBlick, txtBlick}) reihe->addWidget(teil);
  connect(sldBlick, &QSlider::valueChanged, txtBlick, &QSpinBox::setValue);
  connect(txtBlick, &QSpinBox::valueChanged, this, [this](int azimut) {
    sldBlick->setValue(azimut);
    txtBlick->setSuffix(u"° %1"_s.arg(QString::fromLatin1(Himmelsrichtung(azimut))));
    picSeite->BlickAus(azimut);
  });
  txtBlick->setValue(180);
  untereinander->addLayout(reihe);
  untereinander->addWidget(picSeite, 1);
  setTabOrder(picPlan, sldBlick);
  setTabOrder(sldBlick, txtBlick);
  setTabOrder(txtBlick, picSeite);
  return rahmen;
}

QWidget* frmLageplan::SchichtenAufbauen() {
  auto* seite = new QWidget;
  auto* untereinander = new QVBoxLayout(seite);
  for (std::size_t i = 0; i < chkSchicht.size(); ++i) {
    auto* kreuz = chkSchicht.at(i) = new QCheckBox(Schichten.at(i).toString(), seite);
    kreuz->setObjectName(u"chkSchicht_%1"_s.arg(i));
    kreuz->setChecked(true);
    connect(kreuz, &QCheckBox::toggled, this, &frmLageplan::SchichtenNehmen);
    untereinander->addWidget(kreuz);
  }
  untereinander->addStretch();
  SchichtbilderMalen();
  return seite;
}

void frmLageplan::SchichtbilderMalen() {
  for (const Winkelkurve art : {Winkelkurve::OhneHSM, Winkelkurve::HSM306, Winkelkurve::HSMvde}) {
    QCheckBox* kreuz =
        chkSchicht.at(static_cast<std::size_t>(Planschicht::OhneHSM) + static_cast<std::size_t>(art));
    if (kreuz == nullptr) continue;
    kreuz->setIcon(Linienbild(*this, art));
    const double mm = Bildschirmmass(*this);
    kreuz->setIconSize({qRound(10 * mm), qRound(3 * mm)});
  }
}

QTabWidget* frmLageplan::SeitenAufbauen() {
  auto* karten = new QTabWidget(this);
  karten->setObjectName(u"tabLageplan"_s);
  karten->setAccessibleName(u"Angaben zum Plan"_s);
  objekte_ = new Objektseite(ablauf_, karten);
  allgemeines_ = new Planseite(ablauf_, karten);
  befunde_ = new Befundseite(karten);
  karten->addTab(new Rollseite(objekte_), u"&Objekte"_s);
  karten->addTab(new Rollseite(SchichtenAufbauen()), u"&Schichten"_s);
  karten->addTab(new Rollseite(allgemeines_), u"&Plan"_s);
  karten->addTab(new Rollseite(befunde_), u"Prü&fung"_s);
  // Its access key leads there, too.
  connect(karten, &QTabWidget::currentChanged, karten,
          [karten] { karten->tabBar()->setFocus(Qt::ShortcutFocusReason); });
  return karten;
}

}  // namespace vesk
