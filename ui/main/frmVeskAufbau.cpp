#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>

#include "Farben.h"
#include "Haupthilfe.h"
#include "Hauptmenue.h"
#include "Klicklabel.h"
#include "Plattform.h"
#include "Programmbild.h"
#include "Rollseite.h"
#include "Version.h"
#include "Zustand.h"
#include "frmVesk.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

int Feldbreite(const QWidget& widget) {
  return widget.fontMetrics().horizontalAdvance(u"0000000000.00"_s);
}

QLabel* Titel(const QString& name, const QString& text, QWidget* eltern) {
  auto* label = new QLabel(text, eltern);
  label->setObjectName(name);
  return label;
}

/// Long titles break into a second line, so that the window fits a small screen at 150 %.
void Umbrechen(QLabel& label) {
  label.setWordWrap(true);
  label.setMinimumWidth(label.fontMetrics().horizontalAdvance(u"Verluste zwischen Sender "_s));
}

}  // namespace

frmVesk::~frmVesk() = default;

frmVesk::frmVesk(Zustand& zustand, Plattform& plattform) : zustand_(zustand), plattform_(plattform) {
  setObjectName(u"frmVesk"_s);
  setWindowTitle(u"EMVU Sicherheitsabstand (Hauptprogramm)"_s);
  HauptmenueAnlegen(*menuBar());

  auto* flaeche = new QWidget(this);
  auto* raster = new QGridLayout(flaeche);
  raster->addWidget(ModusAnlegen(), 0, 0, 1, 2);
  raster->addWidget(EingabenAnlegen(), 1, 0);
  raster->addWidget(AusgabenAnlegen(), 1, 1);
  auto* lblReferat =
      Titel(u"lblReferat"_s,
            u"%1 %2  -  %3"_s.arg(QString::fromUtf8(Produktname.data(), Produktname.size()),
                                  QString::fromStdString(VersionLang()),
                                  QString::fromUtf8(Rechtshinweis.data(), Rechtshinweis.size())),
            flaeche);
  raster->addWidget(lblReferat, 2, 0, 1, 2, Qt::AlignRight);
  raster->setRowStretch(3, 1);
  List1 = new QListWidget(flaeche);
  List1->setObjectName(u"List1"_s);
  List1->hide();
  setCentralWidget(new Rollseite(flaeche));

  eingaben_ = {{{txtQRG, &Rechenwerte::QRGText},
                {txtPWR, &Rechenwerte::PWRText},
                {txtGewinn, &Rechenwerte::GewinnText},
                {txtDaempfung, &Rechenwerte::DaempfungText},
                {txtWinkelDaempfung, &Rechenwerte::WinkelDaempfungText}}};
  lblModus->setProperty("Tag", u"Abstand"_s);
  lblQRG->setProperty("Tag", u"AFu"_s);
  lblGewinn->setProperty("Tag", u"dBi"_s);
  Textfarbe(*lblModus, BGR(0xFF0000));
  WertAusgabeNull();
  HilfenummernSetzen(*this, HauptHilfenummern());
  EreignisseVerbinden();
  Tabfolge();
  txtQRG->setFocus();
  resize(sizeHint().boundedTo(screen()->availableSize() * 0.95));
}

QWidget* frmVesk::ModusAnlegen() {
  auto* rhmSicherheit = new QFrame(this);
  rhmSicherheit->setObjectName(u"rhmSicherheit"_s);
  rhmSicherheit->setFrameShape(QFrame::StyledPanel);
  auto* zeile = new QHBoxLayout(rhmSicherheit);
  auto* Picture1 = new QLabel(rhmSicherheit);
  Picture1->setObjectName(u"Picture1"_s);
  Picture1->setPixmap(Programmbild(2 * fontMetrics().height(), devicePixelRatioF()));
  Picture1->setAccessibleName(u"Vesk"_s);
  zeile->addWidget(Picture1);
  lblModus = new Klicklabel(u"Berechnung  Sicherheitsabstand"_s, rhmSicherheit);
  lblModus->setObjectName(u"lblModus"_s);
  lblModus->setAlignment(Qt::AlignCenter);
  lblModus->setCursor(Qt::PointingHandCursor);
  QFont schrift = lblModus->font();
  schrift.setPointSizeF(schrift.pointSizeF() * 1.4);
  schrift.setBold(true);
  lblModus->setFont(schrift);
  // Blue and green are told for a light ground; a dark theme would swallow them.
  Hintergrund(*lblModus, farben::HellGrau);
  zeile->addWidget(lblModus, 1);
  return rhmSicherheit;
}

Klicklabel* frmVesk::Eingabezeile(QGridLayout& raster, const QString& label, const QString& text,
                                  Zahlenfeld* feld) {
  auto* titel = new Klicklabel(text, this);
  titel->setObjectName(label);
  titel->setBuddy(feld);
  Umbrechen(*titel);
  feld->setMinimumWidth(Feldbreite(*this));
  feld->setAlignment(Qt::AlignRight);
  feld->setAccessibleName(text);
  const int zeile = raster.rowCount();
  raster.addWidget(titel, zeile, 0);
  raster.addWidget(feld, zeile, 1);
  return titel;
}

QWidget* frmVesk::EingabenAnlegen() {
  auto* flaeche = new QWidget(this);
  auto* raster = new QGridLayout(flaeche);
  raster->setContentsMargins(0, 0, 0, 0);
  const auto feld = [&](const QString& name) {
    auto* neu = new Zahlenfeld(zustand_.werte, plattform_.ton, flaeche);
    neu->setObjectName(name);
    return neu;
  };
  txtQRG = feld(u"txtQRG"_s);
  txtPWR = feld(u"txtPWR"_s);
  txtGewinn = feld(u"txtGewinn"_s);
  txtDaempfung = feld(u"txtDaempfung"_s);
  txtWinkelDaempfung = feld(u"txtWinkelDaempfung"_s);
  lblQRG = Eingabezeile(*raster, u"lblQRG"_s, u"AFu-Band [MHz]"_s, txtQRG);
  lblQRG->setCursor(Qt::PointingHandCursor);
  lblPWR = Eingabezeile(*raster, u"lblPWR"_s, u"Sendeleistung [W]"_s, txtPWR);
  lblGewinn = Eingabezeile(*raster, u"lblGewinn"_s, u"Antennengewinn [dBi]"_s, txtGewinn);
  Eingabezeile(*raster, u"lblDaempfung"_s, u"Verluste zwischen Sender und Antenne [dB]"_s, txtDaempfung);
  Eingabezeile(*raster, u"lblWDaempfung"_s, u"Winkeldämpfung [dB]"_s, txtWinkelDaempfung);

  cmdBerechnen = new QPushButton(u"="_s, flaeche);
  cmdBerechnen->setObjectName(u"cmdBerechnen"_s);
  cmdBerechnen->setAccessibleName(u"Berechnen"_s);
  Hintergrund(*cmdBerechnen, farben::Grau);
  cmdCopy = new QPushButton(u"Kopieren in Spalte"_s, flaeche);
  cmdCopy->setObjectName(u"cmdCopy"_s);
  cmdCopy->setEnabled(false);
  raster->addWidget(cmdBerechnen, raster->rowCount(), 1);
  raster->addWidget(cmdCopy, raster->rowCount() - 1, 0, Qt::AlignLeft);
  raster->setRowStretch(raster->rowCount(), 1);
  return flaeche;
}

QLineEdit* frmVesk::Ausgabefeld(const QString& name, const QString& beschreibung) {
  auto* feld = new QLineEdit(this);
  feld->setObjectName(name);
  feld->setReadOnly(true);
  feld->setAlignment(Qt::AlignRight);
  feld->setMinimumWidth(Feldbreite(*this));
  feld->setAccessibleName(beschreibung);
  return feld;
}

void frmVesk::DreierzeileAnlegen(QGridLayout& raster, int zeile, QLabel*& titel, const QString& name,
                                 const QString& text, std::array<QLineEdit*, 3> felder) {
  titel = Titel(name, text, this);
  Umbrechen(*titel);
  raster.addWidget(titel, zeile, 0);
  for (int spalte = 0; spalte < 3; ++spalte) {
    if (QLineEdit* feld = felder.at(static_cast<std::size_t>(spalte)))
      raster.addWidget(feld, zeile, spalte + 1);
  }
}

QWidget* frmVesk::AusgabenAnlegen() {
  auto* rhmAusgabe = new QGroupBox(u"Datenausgabe"_s, this);
  rhmAusgabe->setObjectName(u"rhmAusgabe"_s);
  auto* raster = new QGridLayout(rhmAusgabe);
  raster->addWidget(Titel(u"Label1"_s, u"Berechnung für  f  [MHz]"_s, rhmAusgabe), 0, 0);
  const auto kopf = [&](const QString& name, int spalte) {
    QLabel* label = Titel(name, {}, rhmAusgabe);
    label->setAlignment(Qt::AlignCenter);
    raster->addWidget(label, 0, spalte);
    return label;
  };
  lblOhneHSM = kopf(u"lblOhneHSM"_s, 1);
  lblMitHSM = kopf(u"lblMitHSM"_s, 2);
  lblHSM306 = kopf(u"lblHSM306"_s, 3);
  lblOhneHSM->setMinimumHeight(2 * fontMetrics().lineSpacing());

  txtGrenzwert = Ausgabefeld(u"txtGrenzwert"_s, u"Grenzwert ohne HSM [V/m]"_s);
  txtGrenzwertHSMvde = Ausgabefeld(u"txtGrenzwertHSMvde"_s, u"Grenzwert HSM VDE [V/m]"_s);
  txtGrenzwertHSM306 = Ausgabefeld(u"txtGrenzwertHSM306"_s, u"Grenzwert HSM 306 [V/m]"_s);
  txtUssVDE = Ausgabefeld(u"txtUssVDE"_s, u"Spitzenspannung Uss HSM VDE [V]"_s);
  txtUssHSM306 = Ausgabefeld(u"txtUssHSM306"_s, u"Spitzenspannung Uss HSM 306 [V]"_s);
  txtAusgabe = Ausgabefeld(u"txtAusgabe"_s, u"Ergebnis ohne HSM"_s);
  txtAusgabeHSMvde = Ausgabefeld(u"txtAusgabeHSMvde"_s, u"Ergebnis HSM VDE"_s);
  txtAusgabeHSM306 = Ausgabefeld(u"txtAusgabeHSM306"_s, u"Ergebnis HSM 306"_s);
  DreierzeileAnlegen(*raster, 1, lblGrenzwert, u"lblGrenzwert"_s,
                     u"Grenzwert der Ersatzfeldstärke Eg [V/m]"_s,
                     {txtGrenzwert, txtGrenzwertHSMvde, txtGrenzwertHSM306});
  DreierzeileAnlegen(*raster, 2, lblUss, u"lblUss"_s, u"Spitzenspannung Uss [V]"_s,
                     {nullptr, txtUssVDE, txtUssHSM306});
  DreierzeileAnlegen(*raster, 3, lblSicherheit, u"lblSicherheit"_s,
                     u"Erforderlicher Sicherheitsabstand [m]"_s,
                     {txtAusgabe, txtAusgabeHSMvde, txtAusgabeHSM306});
  raster->setRowMinimumHeight(4, fontMetrics().height());

  txtStrahlung = Ausgabefeld(u"txtStrahlung"_s, u"Strahlungsleistung EIRP [W]"_s);
  txtNahfeld = Ausgabefeld(u"txtNahfeld"_s, u"Nahfeld bis [m]"_s);
  txtFernfeld = Ausgabefeld(u"txtFernfeld"_s, u"Fernfeld ab [m]"_s);
  lblStrahlung = Titel(u"lblStrahlung"_s, u"Strahlungsleistung EIRP [W]"_s, rhmAusgabe);
  raster->addWidget(lblStrahlung, 5, 0);
  raster->addWidget(txtStrahlung, 6, 0);
  raster->addWidget(Titel(u"lblNahfeld"_s, u"Nahfeld bis [m]"_s, rhmAusgabe), 5, 1);
  raster->addWidget(txtNahfeld, 6, 1);
  raster->addWidget(Titel(u"lblFernfeld"_s, u"Fernfeld ab [m]"_s, rhmAusgabe), 5, 2);
  raster->addWidget(txtFernfeld, 6, 2);

  for (QLineEdit* feld : {txtStrahlung, txtFernfeld}) Hintergrund(*feld, farben::HellGrau);
  Hintergrund(*txtGrenzwert, farben::HellGruen);
  for (QLineEdit* feld : {txtUssHSM306, txtGrenzwertHSM306}) Hintergrund(*feld, farben::HellRot);
  for (QLineEdit* feld : {txtUssVDE, txtGrenzwertHSMvde}) Hintergrund(*feld, farben::HellGelb);
  return rhmAusgabe;
}

void frmVesk::Tabfolge() {
  QWidget* vorher = nullptr;
  for (QWidget* widget : std::initializer_list<QWidget*>{
           txtQRG, txtPWR, txtGewinn, txtDaempfung, txtWinkelDaempfung, cmdBerechnen, cmdCopy, txtGrenzwert,
           txtGrenzwertHSMvde, txtGrenzwertHSM306, txtUssVDE, txtUssHSM306, txtAusgabe, txtAusgabeHSMvde,
           txtAusgabeHSM306, txtStrahlung, txtNahfeld, txtFernfeld}) {
    if (vorher != nullptr) setTabOrder(vorher, widget);
    vorher = widget;
  }
}

}  // namespace vesk
