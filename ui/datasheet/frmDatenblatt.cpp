#include "ui/datasheet/frmDatenblatt.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <algorithm>
#include <cmath>

#include "engine/Zahlen.h"
#include "station/Datenblatt.h"
#include "station/Ergebniswerte.h"
#include "station/Operator.h"
#include "station/Papiere.h"
#include "station/Spalten.h"
#include "station/Spaltenstand.h"
#include "station/Vorschau.h"
#include "ui/basis/Anzeige.h"
#include "ui/basis/Einpassen.h"
#include "ui/basis/Farben.h"
#include "ui/basis/Feldfolge.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/basis/Menue.h"
#include "ui/basis/Zugang.h"
#include "ui/datasheet/Spaltenkopf.h"
#include "ui/datasheet/Zellenfeld.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr std::array<Menueeintrag, 14> Menue = {{
    {u"mnuDateiLaden", u"Datenblatt &Laden", Befehlend<Befehl::DateiLaden>},
    {u"mnuDateiSpeichern", u"Datenblatt &Speichern", Befehlend<Befehl::DateiSpeichern>},
    {u"mnuDateiSpeichernUnter", u"Datenblatt speichern &Unter", Befehlend<Befehl::DateiSpeichernUnter>},
    {},
    {u"mnuDelete", u"Datenblatt l&öschen", Tuend<DatenblattLoeschen>},
    {u"mnuNoChange", u"Änderungen &rückgängig machen", Befehlend<Befehl::AenderungenVerwerfen>},
    {u"mnuSpalteKopieren", u"Spalte &kopieren", Tuend<SpalteKopieren>},
    {},
    {u"mnuFormblattDrucken", u"Formblatt &drucken", Tuend<FormblattZeigen>},
    {u"mnuFormblattRegTPdrucken", u"Formblatt Reg&TP drucken", Tuend<FormblattRegTPZeigen>},
    {u"mnuDruckerEinrichten", u"Drucker &einrichten", Befehlend<Befehl::DruckerEinrichten>},
    {},
    {u"mnuBeenden", u"Datenblatt s&chließen", Tuend<DatenblattSchliessen>},
    {u"mnuEnde", u"Programm &Beenden", Befehlend<Befehl::Beenden>},
}};

constexpr Feldhilfe Zeilenhilfe(Zeile zeile, QStringView text) {
  return {u"txtA", text, AnzahlZeilen, zeile - 1};
}

constexpr Feldhilfe Tooltips[] = {
    {u"lblSpalte", u"Linke Taste berechnet die Spalte, rechte Taste löscht die Spalte"},
    Zeilenhilfe(ZeileHoehe, u"Montagehöhe der Sendeantennenunterkante über Grund [m]"),
    Zeilenhilfe(
        ZeileRichtung,
        u"Rundstrahler = ND; rundum betriebener Richtstrahler = ND; sonst Strahlungsrichtung in Grad"),
    Zeilenhilfe(ZeileFrequenz, u"Amateurfunkband in MHz eingeben"),
    Zeilenhilfe(ZeileBetriebsarten, u"Betriebsarten: cw ssb am fm pr atv gsm alle"),
    Zeilenhilfe(ZeileVerluste, u"Kabelverluste einfach im Optionsmenü Kabel berechnen"),
    Zeilenhilfe(ZeileGewinn, u"Antennengewin in dBi eingeben! (dBi = dBd + 2,15) (Optionsmenü Antennen)"),
    Zeilenhilfe(ZeileWinkel, u"Winkeldämpfung in dB eingeben! (Doppelklick im Optionsmenü Winkel)"),
};

constexpr Hilfenummer Hilfenummern[] = {
    {u"lblSpalte", 2001}, {u"txtA", 2002},       {u"chkOptionen", 2003},
    {u"lblModIdx", 2004}, {u"cmdRechnen", 2005},
};

QString Text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

QColor Grundfarbe(const Spaltenfarben& spalte, int zeile) {
  if (zeile == ZeileOhneHSM) {
    if (spalte.ohneHSM == Toenung::Keine) return farben::Weiss;
    return spalte.ohneHSM == Toenung::Blass ? farben::HellGruen : farben::Gruen;
  }
  if (zeile < ZeileOhneHSM || !spalte.hsm) return farben::Weiss;
  return zeile == ZeileHSM306 ? farben::HellRot : farben::HellGelb;
}

}  // namespace

frmDatenblatt::frmDatenblatt(Ablauf& ablauf, Signalton& ton, QWidget* eltern)
    : QMainWindow(eltern), ablauf_(ablauf), lblSpaltenstand(new QLabel(this)) {
  setObjectName(u"frmDatenblatt"_s);
  setWindowTitle(u"Datenblatt  Vfg 306/97 Anlage Blatt 5.2"_s);
  MenueAnlegen(*menuBar(), u"mnuDatei"_s, u"&Datei"_s, Menue, ablauf_);

  auto* flaeche = new QWidget(this);
  auto* gitter = new QGridLayout(flaeche);
  gitter->setHorizontalSpacing(fontMetrics().averageCharWidth() / 2);
  gitter->setVerticalSpacing(fontMetrics().height() / 8);
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) SpalteAnlegen(*gitter, spalte, ton);
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    auto* beschriftung = new QLabel(Text(Zeilenarten[std::size_t(zeile) - 1].beschriftung), flaeche);
    beschriftung->setBuddy(txtA[Zellenindex(1, Zeile(zeile))]);
    gitter->addWidget(beschriftung, zeile, 0);
  }
  lblSpaltenstand->setObjectName(u"lblSpaltenstand"_s);
  lblSpaltenstand->setWordWrap(true);
  gitter->addWidget(lblSpaltenstand, AnzahlZeilen + 1, 0, 1, AnzahlSpalten + 1);
  gitter->addWidget(OptionsrahmenAnlegen(), AnzahlZeilen + 2, 0, 1, AnzahlSpalten + 1);
  gitter->setRowStretch(AnzahlZeilen + 3, 1);
  setCentralWidget(flaeche);
  ansage_ = new Ansage(this);
  setProperty(HilfekontextEigenschaft, 2001);
  Einpassen(*this);

  HilfenummernSetzen(*this, Hilfenummern);
  txtA[0]->setFocus();
}

void frmDatenblatt::Hinzeigen(const InZelle& ort) {
  activateWindow();
  txtA[Zellenindex(ort.spalte, ort.zeile)]->setFocus(Qt::TabFocusReason);
}

void frmDatenblatt::SpalteAnlegen(QGridLayout& gitter, int spalte, Signalton& ton) {
  QWidget* flaeche = gitter.parentWidget();
  const QString buchstabe = QChar::fromLatin1(Spaltenbuchstabe(std::int16_t(spalte)));
  auto* kopf = new Spaltenkopf(flaeche);
  kopf->setObjectName(u"lblSpalte_"_s + QString::number(spalte - 1));
  kopf->setText(buchstabe);
  kopf->setAccessibleDescription(u"Eingabetaste berechnet die Spalte, Entfernen löscht die Spalte"_s);
  connect(kopf, &Spaltenkopf::geklickt, this, [this, spalte](Qt::MouseButton taste) {
    // What is typed next belongs to the column that is now current.
    const auto* zelle = std::find(txtA.begin(), txtA.end(), focusWidget());
    const int zeile = static_cast<int>((zelle - txtA.begin()) % AnzahlZeilen) + 1;
    if (zelle != txtA.end()) txtA[Zellenindex(spalte, Zeile(zeile))]->setFocus(Qt::OtherFocusReason);
    ablauf_.Tun(Mit(taste == Qt::LeftButton ? KopfGeklickt : SpalteLoeschen, spalte));
  });
  lblSpalte[std::size_t(spalte) - 1] = kopf;
  gitter.addWidget(kopf, 0, spalte);
  gitter.setColumnStretch(spalte, 1);

  std::vector<QWidget*> folge;
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    const Zeilenart& art = Zeilenarten[std::size_t(zeile) - 1];
    const std::size_t index = Zellenindex(spalte, Zeile(zeile));
    auto* zelle = new Zellenfeld(ton, flaeche);
    zelle->setObjectName(u"txtA_"_s + QString::number(index));
    zelle->setAccessibleName(Text(Zellentitel(spalte, Zeile(zeile))));
    zelle->setMaxLength(int(MaxZellenlaenge));
    MindestensBreit(*zelle, 9);
    zelle->kommaWirdPunkt = art.numerisch;
    connect(zelle, &QLineEdit::textEdited, this, [this, index](const QString& text) {
      ablauf_.TunBeimTippen(*txtA[index], Mit(ZelleGetippt, index, text.toStdString()));
    });
    connect(zelle, &Zellenfeld::geklickt, this, [this, spalte] { ablauf_.Tun(Mit(ZelleGeklickt, spalte)); });
    txtA[index] = zelle;
    folge.push_back(zelle);
    gitter.addWidget(zelle, zeile, spalte);
  }
  new Feldfolge(folge, this);
}

QWidget* frmDatenblatt::OptionsrahmenAnlegen() {
  auto* rahmen = new QGroupBox(this);
  rahmen->setAccessibleName(u"Optionen"_s);
  rahmen->setObjectName(u"rhmOptionen"_s);
  chkOptionen = new QCheckBox(u"Optionen berücksichtigen"_s, rahmen);
  chkOptionen->setObjectName(u"chkOptionen"_s);
  connect(chkOptionen, &QCheckBox::clicked, this,
          [this](bool an) { ablauf_.Tun(Mit(OptionenSchalten, an)); });
  lblModIdx = new QLabel(rahmen);
  lblModIdx->setObjectName(u"lblModIdx"_s);
  cmdRechnen = new QPushButton(u"Rechnen"_s, rahmen);
  cmdRechnen->setObjectName(u"cmdRechnen"_s);
  cmdRechnen->setAutoDefault(true);  // Enter presses it
  connect(cmdRechnen, &QPushButton::clicked, this, [this] { ablauf_.Tun(SpalteRechnen); });

  auto* zeile = new QHBoxLayout(rahmen);
  const int rand = fontMetrics().height() / 4;
  zeile->setContentsMargins(3 * rand, rand, 3 * rand, rand);
  zeile->addWidget(chkOptionen);
  zeile->addSpacing(fontMetrics().averageCharWidth() * 4);
  zeile->addWidget(lblModIdx);
  zeile->addStretch();
  zeile->addWidget(cmdRechnen);
  return rahmen;
}

void frmDatenblatt::closeEvent(QCloseEvent* ereignis) {
  ereignis->ignore();
  ablauf_.Tun(DatenblattVerbergen);
}

void frmDatenblatt::changeEvent(QEvent* ereignis) {
  QMainWindow::changeEvent(ereignis);
  if (ereignis->type() != QEvent::FontChange) return;
  for (Zellenfeld* zelle : txtA) zelle->Einpassen(font());
}

void frmDatenblatt::Zeigen(const Station& station) {
  for (int spalte = 1; spalte <= AnzahlSpalten; ++spalte) SpalteZeigen(station, spalte);
  // A record may hold a number beyond all bounds; like every factor above 1 it does not count.
  const float faktor = Spaltenfaktor(station, station.werte.Spalte);
  Schreiben(*lblModIdx, "Faktor für Sendeart: " + Formatieren(std::isfinite(faktor) ? faktor : 1.0F));
  const int aktuell = station.werte.Spalte;
  Schreiben(*lblSpaltenstand, aktuell != 0
                                  ? Spaltenstand(station, aktuell)
                                  : "Keine Spalte ist aktuell; ein Klick oder Strg+1 bis 7 wählt eine.");
  // Disabling it would send the focus anywhere.
  if (aktuell == 0 && focusWidget() == cmdRechnen) chkOptionen->setFocus(Qt::OtherFocusReason);
  Sperren(*cmdRechnen, aktuell != 0 ? QString() : u"Keine Spalte ist aktuell."_s);
  ansage_->Zeigen(Blattwerte(station));
  chkOptionen->setChecked(station.OptionenBeruecksichtigen);
  if (station.titelGesetzt) setWindowTitle(Text(TitelDatenblatt(station)));
  if (tooltips_ != station.einstellungen.ToolTips) {
    tooltips_ = station.einstellungen.ToolTips;
    TooltipsSetzen(*this, Tooltips, *tooltips_);
  }
}

void frmDatenblatt::SpalteZeigen(const Station& station, int spalte) {
  const Spaltenfarben& toene = station.spaltenfarben.at(std::size_t(spalte) - 1);
  const QColor schrift = toene.rueckwaerts ? farben::Tuerkis : QColor(Qt::black);
  const bool veraltet = SpalteVeraltet(station, spalte);
  Spaltenkopf& kopf = *lblSpalte.at(std::size_t(spalte) - 1);
  const bool aktuell = spalte == station.werte.Spalte;
  kopf.Markieren(aktuell);
  kopf.Zeichnen((toene.ohneHSM == Toenung::Kraeftig ? u"<1"_s : QString()) +
                (toene.rueckwaerts ? u" ↩"_s : QString()));
  kopf.setAccessibleName(Text(Spaltenstand(station, spalte)) + (aktuell ? u", aktuell"_s : QString()));
  for (int zeile = 1; zeile <= AnzahlZeilen; ++zeile) {
    const std::size_t index = Zellenindex(spalte, Zeile(zeile));
    Schreiben(*txtA[index], station.Zellen[index]);
    const QColor grund = station.rot[index] ? farben::Rot : Grundfarbe(toene, zeile);
    if (zeile < ZeileOhneHSM) {
      Faerben(*txtA[index], grund, schrift);
    } else {
      ErgebnisFaerben(*txtA[index], grund, veraltet, schrift);
    }
  }
}

}  // namespace vesk
