#include "ui/plan/frmLageplan.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include "station/Lageplanhandlungen.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Rollseite.h"
#include "ui/basis/Zugang.h"
#include "ui/plan/Befundseite.h"
#include "ui/plan/Objektseite.h"
#include "ui/plan/Planblick.h"
#include "ui/plan/Planfeld.h"
#include "ui/plan/Planriss.h"
#include "ui/plan/Planseite.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Feldhilfe Tooltips[] = {
    {u"cmdBereich", u"Der kontrollierte Bereich bekommt den Umriß des Grundstücks"},
    {u"cboRaster", u"Schrittweite beim Zeichnen, Ziehen und bei den Pfeiltasten"},
    {u"chkFang", u"Mit der Alt-Taste fängt der Zeiger einmal nicht"},
    {u"txtMass", u"Länge in Metern, wenn nötig mit Richtung: 12.5 oder 12.5;90; Enter setzt die Ecke"},
    {u"sldBlick", u"Himmelsrichtung, aus der die Seitenansicht gesehen wird"},
    {u"txtBlick", u"Himmelsrichtung, aus der die Seitenansicht gesehen wird"},
    {u"tblPunkte", u"F2 oder Doppelklick ändert einen Wert, Komma oder Punkt trennt die Dezimalen"},
    {u"cboEbene", u"In welcher Ebene die Winkeltabellen der Spalten gelten"},
    {u"txtVon", u"Beginn des Drehbereichs, im Uhrzeigersinn von Nord"},
    {u"txtBis", u"Ende des Drehbereichs, im Uhrzeigersinn von Nord"},
    {u"txtNord", u"Wohin Norden auf der Zeichnung zeigt: Grad im Uhrzeigersinn von oben"},
    {u"chkSumme", u"Zeichnet auch, wie weit die Felder aller Antennen zusammen reichen"},
    {u"txtBildabstand", u"Wie weit die beiden Bildpunkte in Wirklichkeit auseinanderliegen"},
    {u"lstBefunde", u"Leertaste oder Klick zeigt, worum es geht"},
    {u"cmdAbhilfe", u"Berechnet Leistung, Höhe und Ort, mit denen die Zonen der Antenne passen"},
};

}  // namespace

frmLageplan::frmLageplan(Ablauf& ablauf, QWidget* eltern)
    : QMainWindow(eltern),
      ablauf_(ablauf),
      picPlan(new Planblick(ablauf, this)),
      picSeite(new Planriss(this)),
      lblOrt(new QLabel(this)),
      lblPlanhinweis(new QLabel(this)),
      ansage_(new Ansage(this)) {
  setObjectName(u"frmLageplan"_s);
  setWindowTitle(u"Lageplan"_s);
  setProperty(HilfekontextEigenschaft, 7100);
  MenueAufbauen();
  auto* mitte = new QSplitter(Qt::Vertical, this);
  mitte->addWidget(picPlan);
  mitte->addWidget(BlickAufbauen());
  mitte->setStretchFactor(0, 1);
  mitte->setChildrenCollapsible(false);
  auto* werkzeuge = new Rollseite(WerkzeugeAufbauen());
  MitSchrift(*werkzeuge, [werkzeuge] {
    werkzeuge->setMinimumWidth(werkzeuge->widget()->minimumSizeHint().width() +
                               werkzeuge->fontMetrics().height());
  });
  QTabWidget* seiten = SeitenAufbauen();
  auto* ganz = new QSplitter(this);
  for (QWidget* teil : std::initializer_list<QWidget*>{werkzeuge, mitte, seiten}) ganz->addWidget(teil);
  ganz->setStretchFactor(1, 1);
  ganz->setChildrenCollapsible(false);
  auto* zeile = new QHBoxLayout;
  lblOrt->setObjectName(u"lblOrt"_s);
  lblPlanhinweis->setObjectName(u"lblPlanhinweis"_s);
  lblPlanhinweis->setTextFormat(Qt::PlainText);
  zeile->addWidget(lblPlanhinweis, 1);
  zeile->addWidget(lblOrt);
  auto* alles = new QWidget(this);
  auto* untereinander = new QVBoxLayout(alles);
  untereinander->addWidget(ganz, 1);
  untereinander->addLayout(zeile);
  setCentralWidget(alles);
  Verbinden();
  Einpassen(*this);
  resize(QSize(1180, 800).boundedTo(Fensterplatz(*this)));
  mitte->setSizes({height() * 3 / 4, height() / 4});
  optWerkzeug[0]->setFocus();
}

void frmLageplan::Verbinden() {
  connect(picPlan, &Planblick::gewaehlt, this, &frmLageplan::Waehlen);
  connect(picPlan, &Planblick::hinweis, this, &frmLageplan::Hinweisen);
  connect(picPlan, &Planblick::fertig, this, [this] { optWerkzeug[0]->click(); });
  connect(picPlan, &Planblick::ueber, this, [this](Punkt ort) {
    const Punkt bezug = gezeigt_ ? gezeigt_->lageplan.bezug : Punkt{};
    lblOrt->setText(u"x %1 m, y %2 m"_s.arg(ort.x - bezug.x, 0, 'f', 2).arg(ort.y - bezug.y, 0, 'f', 2));
  });
  connect(objekte_, &Objektseite::gewaehlt, this, &frmLageplan::Waehlen);
  connect(objekte_, &Objektseite::hinweis, this, &frmLageplan::Hinweisen);
  connect(objekte_, &Objektseite::loeschen, picPlan, &Planblick::WahlLoeschen);
  connect(objekte_, &Objektseite::eckeEinfuegen, picPlan, &Planblick::EckeEinfuegen);
  connect(allgemeines_, &Planseite::hinweis, this, &frmLageplan::Hinweisen);
  connect(befunde_, &Befundseite::gewaehlt, this, [this](std::size_t objekt) { Hinzeigen({objekt}); });
  pause_.setSingleShot(true);
  pause_.setInterval(100);  // ms
  connect(&pause_, &QTimer::timeout, this, [this] {
    picSeite->Zeigen(*gezeigt_);
    befunde_->Zeigen(*gezeigt_);
  });
  FangNehmen();
}

void frmLageplan::Zeigen(const Station& s) {
  if (tooltips_ != s.einstellungen.ToolTips) {
    tooltips_ = s.einstellungen.ToolTips;
    TooltipsSetzen(*this, Tooltips, *tooltips_);
    for (std::size_t i = 0; i < optWerkzeug.size(); ++i) {
      const QString text = Werkzeuge.at(i).hilfe.toString();
      optWerkzeug.at(i)->setAccessibleDescription(text);
      optWerkzeug.at(i)->setToolTip(*tooltips_ ? text : QString());
    }
  }
  if (!s.fenster.lageplan) {
    pause_.stop();
    bildort_.clear();
    return gezeigt_.reset();
  }
  if (gezeigt_ == s) return;
  const bool andereDatei = gezeigt_ && (gezeigt_->UserDatei != s.UserDatei ||
                                        gezeigt_->Arbeitsverzeichnis != s.Arbeitsverzeichnis);
  const QString fehler = Wahlfehler();
  gezeigt_ = s;
  picPlan->Zeigen(s);
  HintergrundLaden(s);
  allgemeines_->Zeigen(s);
  if (andereDatei) {
    picPlan->AllesZeigen();
    Waehlen(std::nullopt);
  }
  WahlZeigen();
  if (!fehler.isEmpty() && lblPlanhinweis->text() == fehler) Hinweisen(Wahlfehler());
  pause_.start();
}

void frmLageplan::Hinzeigen(const ImLageplan& ort) {
  // What was found may be gone by now.
  if (!gezeigt_ || !ort.objekt || *ort.objekt >= gezeigt_->lageplan.objekte.size()) return;
  Waehlen(Planstelle{*ort.objekt, std::nullopt});
  const Umriss& punkte = gezeigt_->lageplan.objekte[*ort.objekt].punkte;
  if (!punkte.empty()) picPlan->Hinzeigen(punkte.front());
}

void frmLageplan::HintergrundLaden(const Station& s) {
  const auto& bild = s.lageplan.hintergrund;
  const std::string ort = bild ? s.Arbeitsverzeichnis + '\n' + bild->datei : "kein Bild";
  if (ort == bildort_) return;
  bildort_ = ort;
  QString grund;
  picPlan->HintergrundZeigen(bild ? PlanhintergrundLaden(s, grund) : QImage());
  const QString datei = bild ? QString::fromStdString(bild->datei) : u"kein Bild"_s;
  allgemeines_->BildgrundZeigen(grund.isEmpty() ? datei : datei + u'\n' + grund);
}

void frmLageplan::Waehlen(const std::optional<Planstelle>& stelle) {
  if (stelle == wahl_) return;
  // Moves of another object are another step.
  ablauf_.TunBeimVerlassen([](Station&, const Kataloge&) { return Meldungen{}; });
  wahl_ = stelle;
  WahlZeigen();
  Hinweisen(Wahlfehler());
}

/// Why the chosen object does not count.
QString frmLageplan::Wahlfehler() const {
  if (!gezeigt_ || !wahl_ || wahl_->objekt >= gezeigt_->lageplan.objekte.size()) return {};
  const auto fehler = Planfehler(gezeigt_->lageplan.objekte[wahl_->objekt]);
  return fehler ? QString::fromStdString(*fehler) : QString();
}

void frmLageplan::WahlZeigen() {
  if (!gezeigt_) return;
  const auto& objekte = gezeigt_->lageplan.objekte;
  if (wahl_ && wahl_->objekt >= objekte.size()) wahl_.reset();
  if (wahl_ && wahl_->ecke.value_or(0) >= objekte[wahl_->objekt].punkte.size()) wahl_->ecke.reset();
  picPlan->WahlZeigen(wahl_);
  objekte_->Zeigen(*gezeigt_, wahl_);
}

void frmLageplan::Hinweisen(const QString& text) {
  if (lblPlanhinweis->text() == text) return;
  lblPlanhinweis->setText(text);
  if (!text.isEmpty()) ansage_->Sagen({text});
}

void frmLageplan::FangNehmen() {
  picPlan->Fangen({.raster = cboRaster->currentData().toDouble(),
                   .winkel = chkFang[0]->isChecked(),
                   .ecken = chkFang[1]->isChecked()});
}

void frmLageplan::SchichtenNehmen() {
  Planschichten schichten;
  for (std::size_t i = 0; i < chkSchicht.size(); ++i) schichten.set(i, chkSchicht.at(i)->isChecked());
  picPlan->SchichtenZeigen(schichten);
  picSeite->SchichtenZeigen(schichten);
}

void frmLageplan::changeEvent(QEvent* ereignis) {
  QMainWindow::changeEvent(ereignis);
  if (ereignis->type() == QEvent::PaletteChange) SchichtbilderMalen();
}

/// Enter goes with the tool to the drawing.
bool frmLageplan::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() == QEvent::KeyPress) {
    const int taste = static_cast<QKeyEvent*>(ereignis)->key();
    if (taste == Qt::Key_Return || taste == Qt::Key_Enter) {
      picPlan->setFocus();
      return true;
    }
  }
  return QMainWindow::eventFilter(objekt, ereignis);
}

void frmLageplan::closeEvent(QCloseEvent* ereignis) {
  ereignis->ignore();
  ablauf_.Tun(LageplanSchliessen);
}

}  // namespace vesk
