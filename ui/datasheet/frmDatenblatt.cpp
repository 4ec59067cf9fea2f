#include "frmDatenblatt.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <cmath>
#include <string>

#include "Datenblatt.h"
#include "Datenblatthilfe.h"
#include "Farben.h"
#include "Meldung.h"
#include "Spaltenkopf.h"
#include "UserDatei.h"
#include "Zahlen.h"
#include "Zelle.h"
#include "Zustand.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

QString Text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

std::size_t Index(std::int16_t spalte, std::int16_t zeile) {
  return static_cast<std::size_t>(Gitterindex(spalte, zeile));
}

const QColor& Faktorfarbe(float faktor) {
  return faktor < 1.0F ? farben::Gruen : farben::HellGruen;
}

/// A record may hold a number beyond all bounds; like every factor above 1 it does not count.
QString Faktortext(float faktor) {
  return u"Faktor für Sendeart: "_s + Text(Formatieren(std::isfinite(faktor) ? faktor : 1.0F));
}

}  // namespace

frmDatenblatt::frmDatenblatt(Zustand& zustand, Plattform& plattform, QWidget* eltern)
    : QMainWindow(eltern), zustand_(zustand), plattform_(plattform) {
  setObjectName(u"frmDatenblatt"_s);
  setWindowTitle(u"Datenblatt  Vfg 306/97 Anlage Blatt 5.2"_s);
  MenueAnlegen();

  auto* flaeche = new QWidget(this);
  auto* gitter = new QGridLayout(flaeche);
  gitter->setHorizontalSpacing(fontMetrics().averageCharWidth() / 2);
  gitter->setVerticalSpacing(fontMetrics().height() / 8);
  for (std::int16_t spalte = 1; spalte <= AnzahlSpalten; ++spalte) SpalteAnlegen(*gitter, spalte);
  for (std::int16_t zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    auto* beschriftung = new QLabel(Text(Zeilenarten[std::size_t(zeile) - 1].beschriftung), flaeche);
    beschriftung->setBuddy(txtA[Index(1, zeile)]);
    gitter->addWidget(beschriftung, zeile, 0);
  }
  gitter->addWidget(OptionsrahmenAnlegen(), AnzahlZeilen + 1, 0, 1, AnzahlSpalten + 1);
  gitter->setRowStretch(AnzahlZeilen + 2, 1);
  setCentralWidget(flaeche);
  resize(sizeHint().boundedTo(screen()->availableSize()));

  HilfenummernSetzen(*this, DatenblattHilfenummern);
  txtA[0]->setFocus();
}

void frmDatenblatt::MenueAnlegen() {
  struct Eintrag {
    QStringView name;
    QStringView beschriftung;
    void (frmDatenblatt::*tun)();
    bool druck = false;
  };
  static constexpr std::array<Eintrag, 14> eintraege = {{
      {u"mnuDateiLaden", u"Datenblatt &Laden", &frmDatenblatt::dateiLaden},
      {u"mnuDateiSpeichern", u"Datenblatt &Speichern", &frmDatenblatt::dateiSpeichern},
      {u"mnuDateiSpeichernUnter", u"Datenblatt speichern &Unter", &frmDatenblatt::dateiSpeichernUnter},
      {},
      {u"mnuDelete", u"Datenblatt l&öschen", &frmDatenblatt::mnuDelete_Click},
      {u"mnuNoChange", u"Änderungen &rückgängig machen", &frmDatenblatt::noChange},
      {u"mnuSpalteKopieren", u"Spalte &kopieren", &frmDatenblatt::mnuSpalteKopieren_Click},
      {},
      {u"mnuFormblattDrucken", u"Formblatt &drucken", &frmDatenblatt::formblattDrucken, true},
      {u"mnuFormblattRegTPdrucken", u"Formblatt Reg&TP drucken", &frmDatenblatt::formblattRegTPdrucken, true},
      {u"mnuDruckerEinrichten", u"Drucker &einrichten", &frmDatenblatt::druckerEinrichten, true},
      {},
      {u"mnuBeenden", u"Datenblatt s&chließen", &frmDatenblatt::mnuBeenden_Click},
      {u"mnuEnde", u"Programm &Beenden", &frmDatenblatt::ende},
  }};
  QMenu* menue = menuBar()->addMenu(u"&Datei"_s);
  menue->setObjectName(u"mnuDatei"_s);
  menue->setToolTipsVisible(true);
  for (const Eintrag& eintrag : eintraege) {
    if (eintrag.tun == nullptr) {
      menue->addSeparator();
      continue;
    }
    QAction* aktion = menue->addAction(eintrag.beschriftung.toString());
    aktion->setObjectName(eintrag.name.toString());
    connect(aktion, &QAction::triggered, this, [this, tun = eintrag.tun] { (this->*tun)(); });
    if (eintrag.druck) {
      aktion->setEnabled(false);
      aktion->setToolTip(u"Das Drucken kommt mit einer späteren Version."_s);
    }
  }
}

void frmDatenblatt::SpalteAnlegen(QGridLayout& gitter, std::int16_t spalte) {
  QWidget* flaeche = gitter.parentWidget();
  const QString name = u"Spalte "_s + QLatin1Char(Spaltenbuchstabe(spalte));
  auto* kopf = new Spaltenkopf(flaeche);
  kopf->setObjectName(u"lblSpalte_"_s + QString::number(spalte - 1));
  kopf->setText(QString(QLatin1Char(Spaltenbuchstabe(spalte))));
  kopf->setAccessibleName(name);
  kopf->setAccessibleDescription(u"Eingabetaste berechnet die Spalte, Entfernen löscht die Spalte"_s);
  kopf->Markieren(false);
  connect(kopf, &Spaltenkopf::geklickt, this,
          [this, spalte](Qt::MouseButton taste) { KopfDruecken(spalte, taste); });
  lblSpalte[std::size_t(spalte) - 1] = kopf;
  gitter.addWidget(kopf, 0, spalte);
  gitter.setColumnStretch(spalte, 1);

  const int breite = fontMetrics().averageCharWidth() * 9;
  for (std::int16_t zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    const Zeilenart& art = Zeilenarten[std::size_t(zeile) - 1];
    const std::size_t index = Index(spalte, zeile);
    auto* zelle = new Zelle(plattform_.ton, flaeche);
    zelle->setObjectName(u"txtA_"_s + QString::number(index));
    zelle->setAccessibleName(name + u", "_s + Text(art.beschriftung));
    zelle->setMaxLength(int(MaxZellenlaenge));
    zelle->setMinimumWidth(breite);
    zelle->kommaWirdPunkt = art.numerisch;
    zelle->Faerben(farben::Weiss, Qt::black);
    connect(zelle, &Zelle::textChanged, this, [this, index] { ZelleGeaendert(index); });
    connect(zelle, &Zelle::zeilenwechsel, this,
            [this, index](int schritt) { ZeileWechseln(index, schritt); });
    connect(zelle, &Zelle::geklickt, this, [this, spalte] {
      SpalteWaehlen(spalte);
      Q_EMIT zelleGeklickt();
    });
    txtA[index] = zelle;
    gitter.addWidget(zelle, zeile, spalte);
  }
  SpalteToenen(spalte, 1.0F);
}

QWidget* frmDatenblatt::OptionsrahmenAnlegen() {
  auto* rahmen = new QGroupBox(this);
  rahmen->setObjectName(u"rhmOptionen"_s);
  chkOptionen = new QCheckBox(u"Optionen berücksichtigen"_s, rahmen);
  chkOptionen->setObjectName(u"chkOptionen"_s);
  lblModIdx = new QLabel(rahmen);
  lblModIdx->setObjectName(u"lblModIdx"_s);
  cmdRechnen = new QPushButton(u"Rechnen"_s, rahmen);
  cmdRechnen->setObjectName(u"cmdRechnen"_s);
  cmdRechnen->setAutoDefault(true);  // Enter presses it
  connect(cmdRechnen, &QPushButton::clicked, this, &frmDatenblatt::rechnen);

  auto* zeile = new QHBoxLayout(rahmen);
  const int rand = fontMetrics().height() / 4;
  zeile->setContentsMargins(3 * rand, rand, 3 * rand, rand);
  zeile->addWidget(chkOptionen);
  zeile->addSpacing(fontMetrics().averageCharWidth() * 4);
  zeile->addWidget(lblModIdx);
  zeile->addStretch();
  zeile->addWidget(cmdRechnen);
  ModIdxAusSatz();
  return rahmen;
}

void frmDatenblatt::closeEvent(QCloseEvent* ereignis) {
  ereignis->ignore();
  hide();
}

// --- cells ---

Zelle& frmDatenblatt::ZelleBei(std::int16_t spalte, Zeile zeile) const {
  return *txtA.at(Index(spalte, zeile));
}

void frmDatenblatt::Fuellen(std::bitset<AnzahlSpalten> gelesen) {
  fuellt_ = true;
  for (std::size_t index = 0; index < txtA.size(); ++index) {
    txtA[index]->Schriftfarbe(Qt::black);
    if (index % AnzahlZeilen < ZeileOhneHSM - 1) txtA[index]->Grundfarbe(farben::Weiss);
    txtA[index]->Zeigen(Text(zustand_.Zellen[index]));
    zustand_.Zellen[index] = txtA[index]->text().toStdString();  // a longer one has been cut
  }
  for (std::int16_t spalte = 1; spalte <= AnzahlSpalten; ++spalte) {
    if (!gelesen[std::size_t(spalte) - 1]) continue;
    SpalteToenen(spalte, Faktorprodukt(zustand_.Datenblattspalten[std::size_t(spalte)]));
  }
  fuellt_ = false;
}

void frmDatenblatt::ZelleSetzen(std::int16_t spalte, Zeile zeile, const QString& text) {
  ZelleBei(spalte, zeile).Zeigen(text);
}

void frmDatenblatt::ZellfarbeSetzen(std::int16_t spalte, Zeile zeile, const QColor& farbe) {
  ZelleBei(spalte, zeile).Grundfarbe(farbe);
}

void frmDatenblatt::SpaltenschriftSetzen(std::int16_t spalte, const QColor& farbe) {
  for (std::int16_t zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    ZelleBei(spalte, Zeile(zeile)).Schriftfarbe(farbe);
  }
}

void frmDatenblatt::SpalteToenen(std::int16_t spalte, float faktor) {
  ZelleBei(spalte, ZeileOhneHSM).Grundfarbe(Faktorfarbe(faktor));
  ZelleBei(spalte, ZeileHSM306).Grundfarbe(farben::HellRot);
  ZelleBei(spalte, ZeileHSMvde).Grundfarbe(farben::HellGelb);
}

void frmDatenblatt::ZelleGeaendert(std::size_t index) {
  std::string text = txtA[index]->text().toStdString();
  if (text == zustand_.Zellen[index]) return;
  zustand_.Zellen[index] = std::move(text);
  if (fuellt_) return;
  zustand_.UserGeaendert = true;
  const auto zeile = index % AnzahlZeilen + 1;
  if (zeile == ZeileFrequenz || zeile == ZeileLeistung) Q_EMIT belegungGeaendert();
}

void frmDatenblatt::ZeileWechseln(std::size_t index, int schritt) {
  const int zeile = int(index % AnzahlZeilen) + schritt;
  if (zeile < 0 || zeile >= AnzahlZeilen) return;
  // As with the tab key the text is selected, so that typing replaces it.
  txtA[index - index % AnzahlZeilen + std::size_t(zeile)]->setFocus(Qt::TabFocusReason);
}

// --- factor, options ---

void frmDatenblatt::FaktorZeigen(std::int16_t spalte, float faktor) {
  ModIdxSetzen(Faktortext(faktor));
  ZelleBei(spalte, ZeileOhneHSM).Grundfarbe(Faktorfarbe(faktor));
}

void frmDatenblatt::ModIdxSetzen(const QString& text) {
  lblModIdx->setText(text);
}

void frmDatenblatt::ModIdxAusSatz() {
  const auto spalte = std::size_t(zustand_.werte.Spalte);
  const float faktor =
      spalte == 0 ? Faktor(zustand_.werte) : Faktorprodukt(zustand_.Datenblattspalten.at(spalte));
  ModIdxSetzen(Faktortext(faktor));
}

bool frmDatenblatt::OptionenBeruecksichtigen() const {
  return chkOptionen->isChecked();
}

void frmDatenblatt::OptionenBeruecksichtigenSetzen(bool an) {
  chkOptionen->setChecked(an);
}

// --- the current column ---

void frmDatenblatt::SpalteWaehlen(std::int16_t spalte) {
  zustand_.werte.LetzteSpalte = zustand_.werte.Spalte;
  zustand_.werte.Spalte = spalte;
  AktuelleSpalteMarkieren();
}

void frmDatenblatt::AktuelleSpalteMarkieren() {
  MarkierungAufheben();
  const std::int16_t aktuell = zustand_.werte.Spalte;
  if (aktuell != 0) lblSpalte.at(std::size_t(aktuell) - 1)->Markieren(true);
  ModIdxAusSatz();
  for (std::size_t index = 0; index < txtA.size(); ++index) {
    if (index % AnzahlZeilen < ZeileOhneHSM - 1) txtA[index]->Grundfarbe(farben::Weiss);
  }
}

void frmDatenblatt::MarkierungAufheben() {
  for (Spaltenkopf* kopf : lblSpalte) kopf->Markieren(false);
}

void frmDatenblatt::KopfDruecken(std::int16_t spalte, Qt::MouseButton taste) {
  SpalteWaehlen(spalte);
  if (taste == Qt::LeftButton) {
    Q_EMIT kopfGeklickt();
    return;
  }
  SpalteLoeschen(Spaltenbuchstabe(spalte));
  Q_EMIT optionenAnzeigen();
}

// --- clearing and copying ---

bool frmDatenblatt::Gefragt(const QString& frage) {
  return Bestaetigt(plattform_.boxen, zustand_.werte, u"Vesk"_s, frage);
}

/// Texts, records and white, black-lettered cells.
void frmDatenblatt::SpalteLeeren(std::int16_t spalte) {
  for (std::int16_t zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    Zelle& zelle = ZelleBei(spalte, Zeile(zeile));
    zelle.clear();
    zelle.Faerben(farben::Weiss, Qt::black);
  }
  zustand_.Datenblattspalten[std::size_t(spalte)] = LeereSpalte();
}

void frmDatenblatt::SpalteLoeschen(char buchstabe) {
  // A refused question counts as a change, too; so the next save writes the file in any case.
  zustand_.UserGeaendert = true;
  if (!Gefragt(u"Spalte "_s + QLatin1Char(buchstabe) + u" wirklich löschen?"_s)) return;
  const auto spalte = std::int16_t(buchstabe - 'A' + 1);
  SpalteLeeren(spalte);
  SpalteToenen(spalte, 1.0F);
  ModIdxAusSatz();
  Q_EMIT belegungGeaendert();
}

bool frmDatenblatt::DatenblattLoeschen() {
  if (!Gefragt(u"Datenblatt wirklich löschen?"_s)) return false;
  for (std::int16_t spalte = 1; spalte <= AnzahlSpalten; ++spalte) SpalteLeeren(spalte);
  zustand_.Datenblattspalten[0] = LeereSpalte();
  zustand_.UserGeaendert = true;
  ModIdxAusSatz();
  Q_EMIT optionenAnzeigen();
  Q_EMIT belegungGeaendert();
  return true;
}

void frmDatenblatt::mnuDelete_Click() {
  DatenblattLoeschen();
  Q_EMIT kopierenFreigeben();
}

void frmDatenblatt::mnuSpalteKopieren_Click() {
  const std::int16_t quelle = zustand_.werte.Spalte;
  const std::string frei = NaechsteFreieSpalte(zustand_.Zellen);
  if (quelle == 0 || frei.empty()) return;
  const auto ziel = std::int16_t(frei.front() - 'A' + 1);
  if (ziel == quelle) return;

  for (std::int16_t zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    const Zelle& von = ZelleBei(quelle, Zeile(zeile));
    Zelle& nach = ZelleBei(ziel, Zeile(zeile));
    nach.Zeigen(von.text());
    nach.Schriftfarbe(von.Schriftfarbe());
  }
  ZelleBei(ziel, ZeileOhneHSM).Grundfarbe(ZelleBei(quelle, ZeileOhneHSM).Grundfarbe());
  auto& saetze = zustand_.Datenblattspalten;
  if (saetze[std::size_t(ziel)] != saetze[std::size_t(quelle)]) {
    saetze[std::size_t(ziel)] = saetze[std::size_t(quelle)];
    zustand_.UserGeaendert = true;
  }
  Q_EMIT belegungGeaendert();
}

void frmDatenblatt::mnuBeenden_Click() {
  hide();
  Q_EMIT beenden();
}

}  // namespace vesk
