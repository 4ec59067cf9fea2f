#include "ui/preview/frmVorschau.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QScreen>
#include <QSpinBox>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

#include "station/Vorschau.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Menue.h"
#include "ui/preview/Seitenblick.h"
#include "ui/preview/Seitenliste.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr Menueeintrag Dateimenue[] = {
    {u"mnuPdfSpeichern", u"PDF &speichern …", Befehlend<Befehl::PdfSpeichern>, {}, false, u"Ctrl+S"},
    {u"mnuPapiereDrucken", u"&Drucken …", Befehlend<Befehl::PapiereDrucken>, {}, false, u"Ctrl+P"},
    {u"mnuDruckerEinrichten", u"Drucker &einrichten …", Befehlend<Befehl::DruckerEinrichten>},
    {},
    {u"mnuVorschauSchliessen", u"S&chließen", Tuend<VorschauSchliessen>, {}, false, u"Esc"},
};

struct Papiereintrag {
  Papierart art;
  const char16_t* text;
};
constexpr Papiereintrag Papierliste[] = {
    {Papierart::Mappe, u"Alle Unterlagen"},      {Papierart::Antrag, u"Antrag"},
    {Papierart::Benutzer, u"Persönliche Daten"}, {Papierart::Datenblatt, u"Datenblatt"},
    {Papierart::RegTP, u"Formblatt RegTP"},      {Papierart::Rechenweg, u"Rechenweg"},
    {Papierart::Winkel, u"Winkeldiagramm"},
};

struct Kurveneintrag {
  std::optional<Winkelkurve> kurve;
  const char16_t* text;
};
constexpr Kurveneintrag Kurvenliste[] = {
    {std::nullopt, u"Winkel: alle"},
    {Winkelkurve::OhneHSM, u"Winkel: ohne HSM"},
    {Winkelkurve::HSM306, u"Winkel: HSM 306"},
    {Winkelkurve::HSMvde, u"Winkel: HSM VDE"},
};

constexpr const char16_t* Passend = u"passend";
constexpr int Massstaebe[] = {50, 100, 200, 250, 500, 1000};

struct Zoomeintrag {
  double wert;
  const char16_t* text;
};
constexpr Zoomeintrag Zoomliste[] = {
    {Seitenblick::GanzeSeite, u"Ganze Seite"},
    {Seitenblick::Seitenbreite, u"Seitenbreite"},
    {0.5, u"50 %"},
    {0.75, u"75 %"},
    {1, u"100 %"},
    {1.5, u"150 %"},
    {2, u"200 %"},
    {3, u"300 %"},
};

constexpr Feldhilfe Tooltips[] = {
    {u"cboPapier", u"Welche Unterlagen die Vorschau zeigt"},
    {u"cboKurve", u"Welche Winkeldiagramme dabei sind"},
    {u"cboMassstab",
     u"Maßstab der Winkeldiagramme, zum Beispiel 1:200; passend: der größte, der auf das Blatt paßt"},
    {u"txtSeite", u"Seite, die gezeigt wird"},
    {u"cboZoom", u"Vergrößerung"},
    {u"lstOffen", u"Doppelklick oder Enter führt zu der Stelle."},
};

/// A box of the tool bar that one chooses from, with the texts of a table.
template <typename Tabelle>
QComboBox* Auswahl(QToolBar& leiste, const QString& name, const QString& hilfe, const Tabelle& tabelle) {
  auto* box = new QComboBox(&leiste);
  box->setObjectName(name);
  box->setAccessibleName(hilfe);
  for (const auto& eintrag : tabelle) box->addItem(QString::fromUtf16(eintrag.text));
  leiste.addWidget(box);
  return box;
}

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
  rechts->setSizes({600, 130});
  auto* mitte = new QSplitter(this);
  mitte->addWidget(lstSeiten);
  mitte->addWidget(rechts);
  setCentralWidget(mitte);
  connect(lstSeiten, &QListWidget::currentRowChanged, this, &frmVorschau::SeiteZeigen);

  pause_.setSingleShot(true);
  pause_.setInterval(200);  // ms
  connect(&pause_, &QTimer::timeout, this, &frmVorschau::Neubilden);
  resize(QSize(1000, 760).boundedTo(screen()->availableSize() * 0.95));
  rolSeite->setFocus();
}

void frmVorschau::MenueAufbauen() {
  QMenu* datei = menuBar()->addMenu(u"&Datei"_s);
  MenueFuellen(*datei, Dateimenue, ablauf_);
  ausgeben_ = {datei->actions().at(0), datei->actions().at(1)};
  QMenu* ansicht = menuBar()->addMenu(u"&Ansicht"_s);
  const auto eintrag = [&](const QString& name, const QString& text, const QKeySequence& taste, auto tun) {
    QAction* aktion = ansicht->addAction(text, this, tun);
    aktion->setObjectName(name);
    aktion->setShortcut(taste);
  };
  const auto zu = [this](int seite) {
    lstSeiten->setCurrentRow(std::clamp(seite, 0, lstSeiten->count() - 1));
  };
  eintrag(u"mnuNaechste"_s, u"&Nächste Seite"_s, Qt::Key_PageDown, [=, this] { zu(seite_ + 1); });
  eintrag(u"mnuVorige"_s, u"&Vorige Seite"_s, Qt::Key_PageUp, [=, this] { zu(seite_ - 1); });
  eintrag(u"mnuErste"_s, u"&Erste Seite"_s, Qt::CTRL | Qt::Key_Home, [=] { zu(0); });
  eintrag(u"mnuLetzte"_s, u"&Letzte Seite"_s, Qt::CTRL | Qt::Key_End,
          [=, this] { zu(lstSeiten->count() - 1); });
  ansicht->addSeparator();
  eintrag(u"mnuGroesser"_s, u"&Größer"_s, QKeySequence::ZoomIn, [this] { Vergroessern(1.25); });
  eintrag(u"mnuKleiner"_s, u"&Kleiner"_s, QKeySequence::ZoomOut, [this] { Vergroessern(0.8); });
  eintrag(u"mnuGanz"_s, u"Ganze &Seite"_s, Qt::CTRL | Qt::Key_0, [this] { Q_EMIT cboZoom->activated(0); });
}

void frmVorschau::WahlAufbauen(QToolBar& leiste) {
  cboPapier = Auswahl(leiste, u"cboPapier"_s, u"Welche Unterlagen"_s, Papierliste);
  connect(cboPapier, &QComboBox::activated, this,
          [this](int i) { ablauf_.Tun(Mit(PapierWaehlen, Papierliste[i].art)); });
  cboKurve = Auswahl(leiste, u"cboKurve"_s, u"Welche Winkeldiagramme"_s, Kurvenliste);
  connect(cboKurve, &QComboBox::activated, this,
          [this](int i) { ablauf_.Tun(Mit(KurveWaehlen, Kurvenliste[i].kurve)); });
  leiste.addWidget(new QLabel(u" Maßstab: "_s, &leiste));
  cboMassstab =
      Auswahl(leiste, u"cboMassstab"_s, u"Maßstab der Winkeldiagramme"_s, std::array<Zoomeintrag, 0>{});
  cboMassstab->addItem(QString::fromUtf16(Passend));
  for (const int massstab : Massstaebe) cboMassstab->addItem(u"1:%1"_s.arg(massstab));
  cboMassstab->setEditable(true);
  cboMassstab->lineEdit()->setAccessibleName(cboMassstab->accessibleName());
  cboMassstab->setInsertPolicy(QComboBox::NoInsert);
  const auto waehlen = [this] {
    ablauf_.Tun(Mit(MassstabWaehlen, cboMassstab->currentText().toStdString()));
  };
  connect(cboMassstab, &QComboBox::activated, this, waehlen);
  connect(cboMassstab->lineEdit(), &QLineEdit::editingFinished, this, waehlen);
  leiste.addSeparator();
}

void frmVorschau::BlaetternAufbauen(QToolBar& leiste) {
  txtSeite = new QSpinBox(&leiste);
  txtSeite->setObjectName(u"txtSeite"_s);
  txtSeite->setAccessibleName(u"Seite"_s);
  txtSeite->setPrefix(u"Seite "_s);
  txtSeite->setMinimum(1);
  txtSeite->findChild<QLineEdit*>()->setAccessibleName(u"Seite"_s);
  connect(txtSeite, &QSpinBox::valueChanged, this,
          [this](int seite) { lstSeiten->setCurrentRow(seite - 1); });
  leiste.addWidget(txtSeite);
  cboZoom = Auswahl(leiste, u"cboZoom"_s, u"Vergrößerung"_s, Zoomliste);
  connect(cboZoom, &QComboBox::activated, this, [this](int i) {
    cboZoom->setCurrentIndex(i);
    rolSeite->Vergroesserung(Zoomliste[i].wert);
  });
  leiste.addSeparator();
  for (QAction* aktion : ausgeben_) leiste.addAction(aktion);
}

QWidget* frmVorschau::BefundeAufbauen() {
  auto* rahmen = new QWidget(this);
  lblOffen = new QLabel(rahmen);
  lblOffen->setObjectName(u"lblOffen"_s);
  lstOffen = new QListWidget(rahmen);
  lstOffen->setObjectName(u"lstOffen"_s);
  lstOffen->setAccessibleName(u"Vor dem Einreichen offen"_s);
  lstOffen->setWordWrap(true);
  lblOffen->setBuddy(lstOffen);
  connect(lstOffen, &QListWidget::itemActivated, this,
          [this] { ablauf_.Hinzeigen(befunde_.at(static_cast<std::size_t>(lstOffen->currentRow())).ort); });
  auto* spalte = new QVBoxLayout(rahmen);
  spalte->addWidget(lblOffen);
  spalte->addWidget(lstOffen);
  lstOffen->setMinimumHeight(3 * fontMetrics().lineSpacing());
  return rahmen;
}

void frmVorschau::Zeigen(const Station& s) {
  if (tooltips_ != s.einstellungen.ToolTips) {
    tooltips_ = s.einstellungen.ToolTips;
    TooltipsSetzen(*this, Tooltips, *tooltips_);
  }
  if (!s.fenster.vorschau) {
    gezeigt_.reset();  // nobody waits for the pages of a closed window
    return pause_.stop();
  }
  if (gezeigt_ == s) return;
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
  for (std::size_t i = 0; i < std::size(Papierliste); ++i) {
    if (Papierliste[i].art == wahl.art) cboPapier->setCurrentIndex(static_cast<int>(i));
  }
  for (std::size_t i = 0; i < std::size(Kurvenliste); ++i) {
    if (Kurvenliste[i].kurve == wahl.kurve) cboKurve->setCurrentIndex(static_cast<int>(i));
  }
  const QString massstab =
      wahl.passend ? QString::fromUtf16(Passend) : u"1:%1"_s.arg(Massstabszahl(s), 0, 'g', 7);
  if (cboMassstab->currentText() != massstab) cboMassstab->setEditText(massstab);
  const bool winkel = wahl.art == Papierart::Winkel || wahl.art == Papierart::Mappe;
  cboKurve->setEnabled(winkel);
  cboMassstab->setEnabled(winkel);
}

void frmVorschau::BefundeZeigen(const Station& s) {
  befunde_ = PapierePruefen(s);
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
  txtSeite->setMaximum(std::max(zahl, 1));
  txtSeite->setSuffix(u" von %1"_s.arg(zahl));
  for (QAction* aktion : ausgeben_) aktion->setEnabled(zahl > 0);
  if (zahl > 0) return SeiteZeigen(std::max(seite, 0));
  rolSeite->Leeren(HatWinkeltabelle(*gezeigt_)
                       ? u"Für diese Sicherheitsabstände gibt es bei der Frequenz keinen Grenzwert."_s
                       : u"Keine Spalte und keine Seite der Optionen hat eine Winkeltabelle."_s);
}

void frmVorschau::SeiteZeigen(int seite) {
  if (seite < 0 || seite >= static_cast<int>(Seitenzahl(mappe_))) return;
  seite_ = seite;
  txtSeite->setValue(seite + 1);
  rolSeite->Zeigen(mappe_, static_cast<std::size_t>(seite));
}

void frmVorschau::Vergroessern(double faktor) {
  rolSeite->Vergroesserung(
      std::clamp(rolSeite->Jetzt() * faktor, Seitenblick::Kleinste, Seitenblick::Groesste));
  cboZoom->setCurrentIndex(-1);
  cboZoom->setPlaceholderText(u"%1 %"_s.arg(qRound(rolSeite->Jetzt() * 100)));
}

void frmVorschau::closeEvent(QCloseEvent* ereignis) {
  ereignis->ignore();
  ablauf_.Tun(VorschauSchliessen);
}

}  // namespace vesk
