#include "ui/preview/frmVorschau.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QSplitter>
#include <QToolBar>
#include <algorithm>

#include "station/Vorschau.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Modalfolge.h"
#include "ui/preview/Seitenblick.h"
#include "ui/preview/Seitenliste.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Feldhilfe Tooltips[] = {
    {u"cboPapier", u"Welche Unterlagen die Vorschau zeigt"},
    {u"cboKurve", u"Welche Winkeldiagramme dabei sind"},
    {u"cboMassstab",
     u"Maßstab der Winkeldiagramme, zum Beispiel 1:200; passend: der größte, der auf das Blatt paßt"},
    {u"txtSeite", u"Seite, die gezeigt wird"},
    {u"cboZoom", u"Vergrößerung"},
    {u"lstOffen", u"Doppelklick oder Enter führt zu der Stelle."},
};

constexpr QStringView KeinPlan =
    u"Der Lageplan ist noch nicht gezeichnet (Hauptfenster, „Bearbeiten“, „Lageplan“).";

}  // namespace

frmVorschau::frmVorschau(Ablauf& ablauf, const Kataloge& kataloge, QWidget* eltern)
    : QMainWindow(eltern),
      ablauf_(ablauf),
      kataloge_(kataloge),
      lstSeiten(new Seitenliste(this)),
      rolSeite(new Seitenblick(this)) {
  setObjectName(u"frmVorschau"_s);
  setWindowTitle(u"Unterlagen"_s);
  setProperty(HilfekontextEigenschaft, 5001);
  MenueAufbauen();
  auto* leiste = addToolBar(u"Seiten"_s);
  leiste->setMovable(false);
  WahlAufbauen(*leiste);
  BlaetternAufbauen(*leiste);

  auto* rechts = new QSplitter(Qt::Vertical, this);
  rechts->addWidget(rolSeite);
  rechts->addWidget(BefundeAufbauen());
  rechts->setStretchFactor(0, 1);
  auto* mitte = new QSplitter(this);
  mitte->addWidget(lstSeiten);
  mitte->addWidget(rechts);
  setCentralWidget(mitte);
  connect(lstSeiten, &QListWidget::currentRowChanged, this, &frmVorschau::SeiteZeigen);

  pause_.setSingleShot(true);
  pause_.setInterval(200);  // ms
  connect(&pause_, &QTimer::timeout, this, &frmVorschau::Neubilden);
  connect(rolSeite, &Seitenblick::geblaettert, this, [this](int seiten) { SeiteZeigen(seite_ + seiten); });
  Einpassen(*this);
  resize(QSize(1000, 760).boundedTo(Fensterplatz(*this)));
  rechts->setSizes({height() * 4 / 5, height() / 5});
  rolSeite->setFocus();
}

/// A field in use loses the focus when its window goes; that is no entry.
frmVorschau::~frmVorschau() {
  cboMassstab->lineEdit()->disconnect(this);
  txtSeite->disconnect(this);
}

void frmVorschau::Zeigen(const Station& s) {
  if (gezeigt_ == s) return;
  TooltipsSetzen(*this, Tooltips, s.einstellungen.ToolTips);
  if (!s.fenster.vorschau) {
    gezeigt_.reset();  // nobody waits for the pages of a closed window
    return pause_.stop();
  }
  const bool gerufen = !gezeigt_ || gezeigt_->fenster.vorschauRufe != s.fenster.vorschauRufe;
  // The personal data are modal: opened from there the papers belong to them, and to nobody after them.
  if (gerufen || (gezeigt_->fenster.benutzer && !s.fenster.benutzer)) ZuModalemFenster(*this);
  if (gerufen) activateWindow();
  const bool sofort = !gezeigt_ || gezeigt_->papiere != s.papiere;
  if (!gezeigt_ || gezeigt_->papiere.art != s.papiere.art) seite_ = 0;
  gezeigt_ = s;
  WahlZeigen(s);
  if (!sofort) return pause_.start();
  pause_.stop();
  Neubilden();
}

void frmVorschau::WahlZeigen(const Station& s) {
  const Papierwahl& wahl = s.papiere;
  cboPapier->setCurrentIndex(cboPapier->findData(double(wahl.art)));
  cboKurve->setCurrentIndex(cboKurve->findData(wahl.kurve ? double(*wahl.kurve) : double(AlleKurven)));
  const QString massstab = wahl.passend ? Passend.toString() : u"1:%1"_s.arg(Massstabszahl(s), 0, 'g', 7);
  if (cboMassstab->currentText() != massstab) cboMassstab->setEditText(massstab);
  const bool winkel = wahl.art == Papierart::Winkel || wahl.art == Papierart::Mappe;
  for (QComboBox* box : {cboKurve, cboMassstab}) {
    Sperren(*box, winkel ? QString() : u"Diese Unterlagen haben kein Winkeldiagramm."_s);
  }
}

void frmVorschau::BefundeZeigen(const Station& s) {
  befunde_ = PapierePruefen(s, kataloge_);
  lstOffen->clear();
  for (const Befund& befund : befunde_) lstOffen->addItem(QString::fromStdString(befund.text));
  const bool offen = !befunde_.empty();
  lblOffen->setText(offen ? u"Vor dem Einreichen &offen (%1):"_s.arg(befunde_.size())
                          : u"Geprüft: Es ist nichts offen."_s);
  lstOffen->setVisible(offen);
}

void frmVorschau::Neubilden() {
  mappe_ = MappeBilden(*gezeigt_, kataloge_, AuftragAus(*gezeigt_, QDate::currentDate()));
  setWindowTitle(mappe_.titel);
  BefundeZeigen(*gezeigt_);
  const int zahl = static_cast<int>(Seitenzahl(mappe_));
  const int seite = std::min(seite_, zahl - 1);
  const QSignalBlocker sperre(lstSeiten);
  lstSeiten->Zeigen(mappe_);
  lstSeiten->setCurrentRow(std::max(seite, 0));
  SeitenzahlZeigen(zahl);
  if (zahl > 0) return SeiteZeigen(std::max(seite, 0));
  if (gezeigt_->papiere.art == Papierart::Lageplan) return rolSeite->Leeren(KeinPlan.toString());
  rolSeite->Leeren(HatWinkeltabelle(*gezeigt_)
                       ? u"Für diese Sicherheitsabstände gibt es bei der Frequenz keinen Grenzwert."_s
                       : u"Keine Spalte und keine Seite der Optionen hat eine Winkeltabelle."_s);
}

void frmVorschau::SeitenzahlZeigen(int zahl) {
  const QString keine = u"Diese Unterlagen haben keine Seite."_s;
  txtSeite->setSpecialValueText(zahl > 0 ? QString() : u"keine Seite"_s);
  txtSeite->setRange(std::min(zahl, 1), zahl);
  txtSeite->setSuffix(u" von %1"_s.arg(zahl));
  Sperren(*txtSeite, zahl > 0 ? QString() : keine);
  for (QAction* aktion : ausgeben_) {
    aktion->setEnabled(zahl > 0);
    aktion->setToolTip(zahl > 0 ? QString() : keine);
  }
}

void frmVorschau::SeiteZeigen(int seite) {
  if (seite < 0 || seite >= static_cast<int>(Seitenzahl(mappe_))) return;
  seite_ = seite;
  txtSeite->setValue(seite + 1);
  lstSeiten->setCurrentRow(seite);
  rolSeite->Zeigen(mappe_, static_cast<std::size_t>(seite));
}

void frmVorschau::Vergroessern(double faktor) {
  rolSeite->Vergroesserung(
      std::clamp(rolSeite->Jetzt() * faktor, Seitenblick::Kleinste, Seitenblick::Groesste));
  cboZoom->setCurrentIndex(-1);
  cboZoom->setPlaceholderText(u"%1 %"_s.arg(qRound(rolSeite->Jetzt() * 100)));
}

/// Esc leaves a field that is being filled in as it was, and from anywhere else the window.
void frmVorschau::keyPressEvent(QKeyEvent* ereignis) {
  if (ereignis->key() != Qt::Key_Escape) return QMainWindow::keyPressEvent(ereignis);
  if (!txtSeite->hasFocus() && !cboMassstab->lineEdit()->hasFocus()) return ablauf_.Tun(VorschauSchliessen);
  txtSeite->setValue(seite_ + 1);
  WahlZeigen(*gezeigt_);
  rolSeite->setFocus();
}

void frmVorschau::closeEvent(QCloseEvent* ereignis) {
  ereignis->ignore();
  ablauf_.Tun(VorschauSchliessen);
}

}  // namespace vesk
