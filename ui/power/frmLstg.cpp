#include "ui/power/frmLstg.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "engine/Version.h"
#include "station/Leistungsumrechnung.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Feldfolge.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Zahlenfeld.h"
#include "ui/basis/Zugang.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr QStringView Tooltip = u"Diese Felder dienen zur Umrechnung von Watt, dBW und dbm. ";
constexpr Feldhilfe Tooltips[] = {{u"txtWatt", Tooltip}, {u"txtDBW", Tooltip}, {u"txtDBm", Tooltip}};

constexpr Hilfenummer Hilfenummern[] = {
    {u"txtDBm", 3001}, {u"txtDBW", 3002}, {u"txtWatt", 3003}, {u"rhmLeistung", 3004}, {u"lblReferat", 3005},
};

struct Feldart {
  QStringView einheit;
  QStringView beschriftung;
};

/// By Leistungseinheit.
constexpr Feldart Feldarten[] = {
    {u"DBm", u"Leistung in dBm"}, {u"DBW", u"Leistung in dBW"}, {u"Watt", u"Leistung in Watt"}};

Meldungen Abgelehnt(const char* text) {
  return {Meldung{MitHilfe({"Hinweis", text}, HilfeUmrechnung)}};
}

}  // namespace

frmLstg::frmLstg(Ablauf& ablauf, Signalton& ton, char trenner, QWidget* eltern)
    : QDialog(eltern), ablauf_(ablauf), trenner_(trenner) {
  setObjectName(u"frmLstg"_s);
  setWindowTitle(u"Leistungsumrechnung"_s);
  setProperty(HilfekontextEigenschaft, 3001);
  Aufbauen(ton);
  HilfenummernSetzen(*this, Hilfenummern);
  new Feldfolge({felder_.begin(), felder_.end()}, this, Folgetasten::Auf);
  ansage_ = new Ansage(this);
  for (Zahlenfeld* feld : felder_) FeldVerbinden(*feld);
  Einpassen(*this);
}

void frmLstg::Aufbauen(Signalton& ton) {
  auto* rhmLeistung = new QGroupBox(u"Leistungsumrechnung"_s, this);
  rhmLeistung->setObjectName(u"rhmLeistung"_s);
  auto* gitter = new QGridLayout(rhmLeistung);
  gitter->setColumnStretch(1, 1);
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    const QString einheit = Feldarten[i].einheit.toString();
    const QString beschriftung = Feldarten[i].beschriftung.toString();
    auto* feld = new Zahlenfeld(ton, rhmLeistung);
    feld->setObjectName(u"txt"_s + einheit);
    feld->setAccessibleName(beschriftung);
    feld->setAlignment(Qt::AlignRight);
    MindestensBreit(*feld, 16);
    feld->VorzeichenErlauben(Leistungseinheit{i} != Leistungseinheit::Watt);
    auto* label = new QLabel(beschriftung, rhmLeistung);
    label->setObjectName(u"lbl"_s + einheit);
    label->setBuddy(feld);
    gitter->addWidget(label, int(i), 0);
    gitter->addWidget(feld, int(i), 1);
    felder_[i] = feld;
  }
  auto* lblReferat = new QLabel(this);
  lblReferat->setObjectName(u"lblReferat"_s);
  lblReferat->setText(QString::fromUtf8(Produktname.data(), Produktname.size()) + u' ' +
                      QString::fromStdString(VersionLang()) + u" – Alle Angaben ohne Gewähr"_s);
  lblReferat->setAlignment(Qt::AlignHCenter);

  auto* spalte = new QVBoxLayout(this);
  spalte->addWidget(rhmLeistung);
  spalte->addWidget(lblReferat);
  spalte->addStretch();
}

void frmLstg::FeldVerbinden(Zahlenfeld& feld) {
  feld.installEventFilter(this);
  connect(&feld, &Zahlenfeld::betreten, this, [this, &feld] { Betreten(feld); });
  connect(&feld, &Zahlenfeld::verlassen, this, [this, &feld] { Verlassen(feld); });
  connect(&feld, &Zahlenfeld::gefiltert, this, [this](int zeichen) {
    if (ergebnisGezeigt_ && zeichen != 0) Leeren();
  });
  connect(&feld, &QLineEdit::textEdited, this, [this, &feld] {
    ergebnisGezeigt_ = false;
    erledigt_.reset();
    for (Zahlenfeld* anderes : felder_) {
      if (anderes != &feld) anderes->clear();
    }
  });
}

void frmLstg::Zeigen(const Station& station) {
  if (tooltips_ == station.einstellungen.ToolTips) return;
  tooltips_ = station.einstellungen.ToolTips;
  TooltipsSetzen(*this, Tooltips, *tooltips_);
}

void frmLstg::showEvent(QShowEvent* ereignis) {
  if (!ereignis->spontaneous()) Leeren();
  QDialog::showEvent(ereignis);
}

bool frmLstg::eventFilter(QObject* objekt, QEvent* ereignis) {
  auto* feld = qobject_cast<Zahlenfeld*>(objekt);
  if (feld != nullptr && ereignis->type() == QEvent::KeyPress) {
    const auto* taste = static_cast<QKeyEvent*>(ereignis);
    const auto zusatz = taste->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (zusatz == Qt::NoModifier && TasteUnten(*feld, taste->key())) return true;
  }
  return QDialog::eventFilter(objekt, ereignis);
}

void frmLstg::Betreten(Zahlenfeld& feld) {
  // The focus is told to the new field first.
  if (inArbeit_ != nullptr && inArbeit_ != &feld) Verlassen(*inArbeit_);
  inArbeit_ = &feld;
  Leeren();
}

void frmLstg::Verlassen(Zahlenfeld& feld) {
  if (inArbeit_ != &feld) return;
  inArbeit_ = nullptr;
  // A window that is hidden takes the focus away; that is no leaving.
  if (!isHidden() && feld.text() != erledigt_) ablauf_.TunBeimVerlassen(Umwandelnd(feld));
}

bool frmLstg::TasteUnten(Zahlenfeld& feld, int taste) {
  switch (taste) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      ablauf_.Tun(Umwandelnd(feld));
      ergebnisGezeigt_ = true;
      feld.selectAll();
      return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      // Moving on would clear the result at once, so the first Tab only converts.
      if (feld.text().isEmpty() || feld.text() == erledigt_) return false;
      ablauf_.Tun(Umwandelnd(feld));
      return true;
    case Qt::Key_Down:
      ablauf_.Tun(Umwandelnd(feld));
      return true;
    default:
      return false;
  }
}

Handlung frmLstg::Umwandelnd(Zahlenfeld& feld) {
  return [this, &feld](Station&, const Kataloge&) { return Umwandeln(feld); };
}

Meldungen frmLstg::Umwandeln(Zahlenfeld& feld) {
  const auto quelle =
      static_cast<std::size_t>(std::find(felder_.begin(), felder_.end(), &feld) - felder_.begin());
  erledigt_ = feld.text();
  const Leistungsumrechnung umrechnung =
      Umrechnen(Leistungseinheit{quelle}, feld.text().toStdString(), trenner_);
  switch (umrechnung.ergebnis) {
    case Umrechnungsergebnis::Leer:
      break;
    case Umrechnungsergebnis::Umgerechnet:
      Umgerechnet(umrechnung, quelle);
      break;
    case Umrechnungsergebnis::ZuGross:
      return Abgelehnt("Der eingegebene Wert ist zu groß\n10 Mega Watt = 70 dBW oder 100 dBm");
    case Umrechnungsergebnis::NichtPositiv:
      return Abgelehnt("Der eingegebene Wert muß größer Null sein");
  }
  return {};
}

void frmLstg::Umgerechnet(const Leistungsumrechnung& umrechnung, std::size_t quelle) {
  QStringList texte;
  for (std::size_t i = 0; i < felder_.size(); ++i) {
    if (i == quelle) continue;
    const QString text = QString::fromStdString(umrechnung.texte[i]);
    felder_[i]->setText(text);
    texte << Feldarten[i].beschriftung.toString() + u' ' + text;
  }
  ansage_->Sagen(texte);
}

void frmLstg::Leeren() {
  for (Zahlenfeld* feld : felder_) feld->clear();
  ergebnisGezeigt_ = false;
  erledigt_.reset();
}

}  // namespace vesk
