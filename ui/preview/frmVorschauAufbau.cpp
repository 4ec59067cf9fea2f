#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <span>

#include "station/Vorschau.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Menue.h"
#include "ui/preview/Seitenblick.h"
#include "ui/preview/Seitenliste.h"
#include "ui/preview/frmVorschau.h"

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

/// What a box offers: a text, and what it stands for as a number.
struct Eintrag {
  double wert;
  const char16_t* text;
};

constexpr Eintrag Papierliste[] = {
    {double(Papierart::Mappe), u"Alle Unterlagen"},      {double(Papierart::Antrag), u"Antrag"},
    {double(Papierart::Benutzer), u"Persönliche Daten"}, {double(Papierart::Datenblatt), u"Datenblatt"},
    {double(Papierart::RegTP), u"Formblatt RegTP"},      {double(Papierart::Blockbild), u"Stationsblockbild"},
    {double(Papierart::Rechenweg), u"Rechenweg"},        {double(Papierart::Lageplan), u"Lageplan"},
    {double(Papierart::Winkel), u"Winkeldiagramm"},      {double(Papierart::Diagramme), u"Diagramme"},
};
constexpr Eintrag Kurvenliste[] = {
    {frmVorschau::AlleKurven, u"Winkel: alle"},
    {double(Winkelkurve::OhneHSM), u"Winkel: ohne HSM"},
    {double(Winkelkurve::HSM306), u"Winkel: HSM 306"},
    {double(Winkelkurve::HSMvde), u"Winkel: HSM VDE"},
};
constexpr int Massstaebe[] = {50, 100, 200, 250, 500, 1000};

constexpr Eintrag Zoomliste[] = {
    {Seitenblick::GanzeSeite, u"Ganze Seite"},
    {Seitenblick::Seitenbreite, u"Seitenbreite"},
    {0.5, u"50 %"},
    {0.75, u"75 %"},
    {1, u"100 %"},
    {1.5, u"150 %"},
    {2, u"200 %"},
    {3, u"300 %"},
};

/// A box of the tool bar that one chooses from, with the texts of a table.
QComboBox* Auswahl(QToolBar& leiste, const QString& name, const QString& hilfe,
                   std::span<const Eintrag> tabelle) {
  auto* box = new QComboBox(&leiste);
  box->setObjectName(name);
  box->setAccessibleName(hilfe);
  for (const Eintrag& eintrag : tabelle) box->addItem(QString::fromUtf16(eintrag.text), eintrag.wert);
  // It keeps the least size that it had in another font, but not in another style.
  MitSchrift(*box, [box] {
    QEvent neu(QEvent::StyleChange);
    QCoreApplication::sendEvent(box, &neu);
  });
  leiste.addWidget(box);
  return box;
}

}  // namespace

void frmVorschau::MenueAufbauen() {
  const QMenu& datei = MenueAnlegen(*menuBar(), u"mnuDatei"_s, u"&Datei"_s, Dateimenue, ablauf_);
  ausgeben_ = {datei.actions().at(0), datei.actions().at(1)};
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
          [this] { ablauf_.Tun(Mit(PapierWaehlen, Papierart{cboPapier->currentData().toInt()})); });
  cboKurve = Auswahl(leiste, u"cboKurve"_s, u"Welche Winkeldiagramme"_s, Kurvenliste);
  connect(cboKurve, &QComboBox::activated, this, [this] {
    std::optional<Winkelkurve> kurve;
    if (const int wert = cboKurve->currentData().toInt(); wert != AlleKurven) kurve = Winkelkurve{wert};
    ablauf_.Tun(Mit(KurveWaehlen, kurve));
  });
  auto* lblMassstab = new QLabel(u" &Maßstab: "_s, &leiste);
  leiste.addWidget(lblMassstab);
  cboMassstab = Auswahl(leiste, u"cboMassstab"_s, u"Maßstab der Winkeldiagramme"_s, {});
  lblMassstab->setBuddy(cboMassstab);
  cboMassstab->addItem(Passend.toString());
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
    rolSeite->Vergroesserung(cboZoom->currentData().toDouble());
  });
  leiste.addSeparator();
  ausgeben_[0]->setIconText(u"PDF …"_s);
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
  MitSchrift(*lstOffen, [this] { lstOffen->setMinimumHeight(3 * lstOffen->fontMetrics().lineSpacing()); });
  return rahmen;
}

}  // namespace vesk
