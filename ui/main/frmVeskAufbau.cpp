#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>

#include "engine/Version.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Ausgabefeld.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Farben.h"
#include "ui/basis/Klicklabel.h"
#include "ui/basis/Programmbild.h"
#include "ui/basis/Rollseite.h"
#include "ui/basis/Zugang.h"
#include "ui/main/Haupthilfe.h"
#include "ui/main/Hauptmenue.h"
#include "ui/main/Statuszeile.h"
#include "ui/main/frmVesk.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr int Feldbreite = 13;  // digits

template <typename Label = QLabel>
Label* Titel(const QString& name, const QString& text) {
  auto* label = new Label(text);
  label->setObjectName(name);
  return label;
}

/// Long titles break into a second line, so that the window fits a small screen at 150 %.
void Umbrechen(QLabel& label) {
  label.setWordWrap(true);
  MitSchrift(label, [&label] {
    label.setMinimumWidth(label.fontMetrics().horizontalAdvance(u"Verluste zwischen Sender "_s));
  });
}

struct Eingabezeile {
  QStringView feld;
  QStringView label;
  QStringView text;
};

/// In the order of Eingabefeld.
constexpr std::array<Eingabezeile, Eingabetexte.size()> Eingabezeilen = {{
    {u"txtQRG", u"lblQRG", u"AFu-Band [MHz]"},
    {u"txtPWR", u"lblPWR", u"Sendeleistung [W]"},
    {u"txtGewinn", u"lblGewinn", u"Antennengewinn [dBi]"},
    {u"txtDaempfung", u"lblDaempfung", u"Verluste zwischen Sender und Antenne [dB]"},
    {u"txtWinkelDaempfung", u"lblWDaempfung", u"Winkeldämpfung [dB]"},
}};

}  // namespace

frmVesk::frmVesk(Ablauf& ablauf, const Kataloge& kataloge, Signalton& ton)
    : ablauf_(ablauf), kataloge_(kataloge) {
  setObjectName(u"frmVesk"_s);
  setWindowTitle(u"EMVU Sicherheitsabstand (Hauptprogramm)"_s);
  HauptmenueAnlegen(*menuBar(), ablauf);

  auto* flaeche = new QWidget(this);
  auto* raster = new QGridLayout(flaeche);
  raster->addWidget(ModusAnlegen(), 0, 0, 1, 2);
  raster->addWidget(EingabenAnlegen(ton), 1, 0);
  raster->addWidget(AusgabenAnlegen(), 1, 1);
  auto* lblReferat = Titel(
      u"lblReferat"_s, u"%1 %2  -  %3"_s.arg(QString::fromUtf8(Produktname.data(), Produktname.size()),
                                             QString::fromStdString(VersionLang()),
                                             QString::fromUtf8(Rechtshinweis.data(), Rechtshinweis.size())));
  raster->addWidget(lblReferat, 2, 0, 1, 2, Qt::AlignRight);
  raster->setRowStretch(3, 1);
  List1 = new QListWidget(flaeche);
  List1->setObjectName(u"List1"_s);
  List1->hide();
  setCentralWidget(new Rollseite(flaeche));

  status_ = new Statuszeile(this);
  statusBar()->addWidget(status_, 1);
  statusBar()->setSizeGripEnabled(false);

  ansage_ = new Ansage(this);
  setProperty(HilfekontextEigenschaft, 1001);
  HilfenummernSetzen(*this, HauptHilfenummern());
  EreignisseVerbinden();
  TastenVerbinden();
  Eingabe(Eingabefeld::QRG).setFocus();
  Einpassen(*this);
}

QWidget* frmVesk::ModusAnlegen() {
  auto* rhmSicherheit = new QFrame(this);
  rhmSicherheit->setObjectName(u"rhmSicherheit"_s);
  rhmSicherheit->setFrameShape(QFrame::StyledPanel);
  auto* zeile = new QHBoxLayout(rhmSicherheit);
  auto* Picture1 = Titel(u"Picture1"_s, {});
  MitSchrift(*Picture1, [=] {
    Picture1->setPixmap(Programmbild(2 * Picture1->fontMetrics().height(), Picture1->devicePixelRatioF()));
  });
  Picture1->setAccessibleName(u"Vesk"_s);
  zeile->addWidget(Picture1);
  lblModus = Titel<Klicklabel>(u"lblModus"_s, u"Berechnung  Sicherheitsabstand"_s);
  lblModus->setAlignment(Qt::AlignCenter);
  lblModus->setCursor(Qt::PointingHandCursor);
  lblModus->setFocusPolicy(Qt::TabFocus);
  ZugangsrolleSetzen(*lblModus, QAccessible::Button);
  MitSchrift(*rhmSicherheit, [=, this] { lblModus->setFont(Vergroessert(rhmSicherheit->font(), 1.4)); });
  zeile->addWidget(lblModus, 1);
  return rhmSicherheit;
}

QWidget* frmVesk::EingabenAnlegen(Signalton& ton) {
  auto* flaeche = new QWidget(this);
  auto* raster = new QGridLayout(flaeche);
  raster->setContentsMargins(0, 0, 0, 0);
  std::array<Klicklabel*, Eingabezeilen.size()> titel{};
  for (std::size_t i = 0; i < Eingabezeilen.size(); ++i) {
    const Eingabezeile& zeile = Eingabezeilen.at(i);
    auto* feld = new Zahlenfeld(ton, flaeche);
    feld->setObjectName(zeile.feld.toString());
    MindestensBreit(*feld, Feldbreite);
    feld->setAlignment(Qt::AlignRight);
    feld->setAccessibleName(zeile.text.toString());
    titel.at(i) = Titel<Klicklabel>(zeile.label.toString(), zeile.text.toString());
    titel.at(i)->setBuddy(feld);
    Umbrechen(*titel.at(i));
    raster->addWidget(titel.at(i), static_cast<int>(i), 0);
    raster->addWidget(feld, static_cast<int>(i), 1);
    eingaben_.at(i) = feld;
  }
  Eingabe(Eingabefeld::Gewinn).VorzeichenErlauben(true);
  lblQRG = titel[0];
  lblQRG->setCursor(Qt::PointingHandCursor);
  lblQRG->setFocusPolicy(Qt::TabFocus);
  ZugangsrolleSetzen(*lblQRG, QAccessible::Button);
  lblQRG->setProperty("Tag", u"AFu"_s);
  lblPWR = titel[1];
  titel[2]->setProperty("Tag", u"dBi"_s);

  const auto knopf = [&](const QString& name, const QString& text) {
    auto* neu = new QPushButton(text, flaeche);
    neu->setObjectName(name);
    raster->addWidget(neu, raster->rowCount(), 1);
    return neu;
  };
  cmdBerechnen = knopf(u"cmdBerechnen"_s, u"="_s);
  cmdBerechnen->setAccessibleName(u"Berechnen"_s);
  cmdBerechnen->setDefault(true);
  Faerben(*cmdBerechnen, farben::Grau);
  cmdCopy = knopf(u"cmdCopy"_s, u"Kopieren in Spalte"_s);
  cmdCopy->setEnabled(false);
  raster->setRowStretch(raster->rowCount(), 1);
  return flaeche;
}

QWidget* frmVesk::AusgabenAnlegen() {
  auto* rhmAusgabe = new QGroupBox(u"Datenausgabe"_s, this);
  rhmAusgabe->setObjectName(u"rhmAusgabe"_s);
  auto* raster = new QGridLayout(rhmAusgabe);
  const auto name = [](std::size_t feld) {
    return QString::fromUtf8(Feldnamen.at(feld).data(), std::ssize(Feldnamen.at(feld)));
  };
  for (std::size_t i = 0; i < ausgaben_.size(); ++i) {
    auto* feld = new Ausgabefeld(rhmAusgabe);
    feld->setObjectName(name(i));
    feld->setAlignment(Qt::AlignRight);
    MindestensBreit(*feld, Feldbreite);
    ausgaben_.at(i) = feld;
  }
  raster->addWidget(Titel(u"Label1"_s, u"Berechnung für  f  [MHz]"_s), 0, 0);
  for (std::size_t i = 0; i < koepfe_.size(); ++i) {
    koepfe_.at(i) = Titel(name(static_cast<std::size_t>(Feld::KopfOhneHSM) + i), {});
    koepfe_.at(i)->setAlignment(Qt::AlignCenter);
    raster->addWidget(koepfe_.at(i), 0, static_cast<int>(i) + 1);
  }
  MitSchrift(*koepfe_[0],
             [kopf = koepfe_[0]] { kopf->setMinimumHeight(2 * kopf->fontMetrics().lineSpacing()); });

  const auto zeile = [&](int nummer, QLabel* titel, std::initializer_list<Feld> felder, int spalte) {
    Umbrechen(*titel);
    raster->addWidget(titel, nummer, 0);
    for (const Feld feld : felder) raster->addWidget(&Ausgabe(feld), nummer, spalte++);
  };
  zeile(1, Titel(u"lblGrenzwert"_s, u"Grenzwert der Ersatzfeldstärke Eg [V/m]"_s),
        {Feld::GrenzwertOhneHSM, Feld::GrenzwertHSMvde, Feld::GrenzwertHSM306}, 1);
  zeile(2, Titel(u"lblUss"_s, u"Spitzenspannung Uss [V]"_s), {Feld::UssVDE, Feld::Uss306}, 2);
  lblSicherheit = Titel(u"lblSicherheit"_s, u"Erforderlicher Sicherheitsabstand [m]"_s);
  zeile(3, lblSicherheit, {Feld::AusgabeOhneHSM, Feld::AusgabeHSMvde, Feld::AusgabeHSM306}, 1);

  const auto unten = [&](QLabel* titel, Feld feld, int spalte) {
    raster->addWidget(titel, 4, spalte, Qt::AlignBottom);
    raster->addWidget(&Ausgabe(feld), 5, spalte);
  };
  lblStrahlung = Titel(u"lblStrahlung"_s, u"Strahlungsleistung EIRP [W]"_s);
  unten(lblStrahlung, Feld::Strahlung, 0);
  unten(Titel(u"lblNahfeld"_s, u"Nahfeld bis [m]"_s), Feld::Nahfeld, 1);
  unten(Titel(u"lblFernfeld"_s, u"Fernfeld ab [m]"_s), Feld::Fernfeld, 2);
  lblHinweis = Titel(u"lblHinweis"_s, {});
  lblHinweis->setWordWrap(true);
  lblHinweis->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  lblHinweis->setTextFormat(Qt::PlainText);
  raster->addWidget(lblHinweis, 6, 0, 1, 4, Qt::AlignTop);
  raster->setRowStretch(4, 1);
  MitSchrift(*lblHinweis,
             [this] { lblHinweis->setMinimumHeight(2 * lblHinweis->fontMetrics().lineSpacing()); });
  return rhmAusgabe;
}

}  // namespace vesk
