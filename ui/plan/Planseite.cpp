#include "ui/plan/Planseite.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <iterator>

#include "station/Planbearbeitung.h"
#include "ui/basis/Ablauf.h"
#include "ui/basis/Feldhilfe.h"
#include "ui/plan/Planaenderung.h"
#include "ui/plan/Planfeld.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// One number of the plan. Those of the background count only when there is one.
struct Zahlzeile {
  QStringView name;
  QStringView zugang;
  double von;
  double bis;
  QStringView einheit;
  double& (*wert)(Lageplan& plan);
  bool imBild = false;
  double faktor = 1;                                                                  ///< of what is shown
  double (*ab)(const Lageplan& plan) = [](const Lageplan& /*plan*/) { return 0.0; };  ///< what it counts from
};

constexpr double Ort = plangrenzen::Ort;
constexpr double Bildseite = plangrenzen::Bildseite;

template <std::size_t i>
double& BildX(Lageplan& plan) {
  return plan.hintergrund->bildpunkte[i].x;
}
template <std::size_t i>
double& BildY(Lageplan& plan) {
  return plan.hintergrund->bildpunkte[i].y;
}

constexpr Zahlzeile Zahlen[] = {
    {u"txtNord", u"Nordrichtung, Grad im Uhrzeigersinn von oben", -360, 360, u"Grad",
     [](Lageplan& p) -> double& { return p.nord; }},
    {u"txtBezugX", u"Bezugspunkt x in Metern", -Ort, Ort, u"m",
     [](Lageplan& p) -> double& { return p.bezug.x; }},
    {u"txtBezugY", u"Bezugspunkt y in Metern", -Ort, Ort, u"m",
     [](Lageplan& p) -> double& { return p.bezug.y; }},
    {u"txtBild_0", u"Erster Bildpunkt x", 0, Bildseite, u"Bildpunkte", BildX<0>, true},
    {u"txtBild_1", u"Erster Bildpunkt y, von oben", 0, Bildseite, u"Bildpunkte", BildY<0>, true},
    {u"txtBild_2", u"Zweiter Bildpunkt x", 0, Bildseite, u"Bildpunkte", BildX<1>, true},
    {u"txtBild_3", u"Zweiter Bildpunkt y, von oben", 0, Bildseite, u"Bildpunkte", BildY<1>, true},
    {u"txtBildabstand", u"Abstand der beiden Bildpunkte in Metern", 0, Ort, u"m",
     [](Lageplan& p) -> double& { return p.hintergrund->abstand; }, true},
    {u"txtBildortX", u"Ort des ersten Bildpunkts vom Bezugspunkt aus, x in Metern", -2 * Ort, 2 * Ort, u"m",
     [](Lageplan& p) -> double& { return p.hintergrund->ort.x; }, true, 1,
     [](const Lageplan& p) { return p.bezug.x; }},
    {u"txtBildortY", u"Ort des ersten Bildpunkts vom Bezugspunkt aus, y in Metern", -2 * Ort, 2 * Ort, u"m",
     [](Lageplan& p) -> double& { return p.hintergrund->ort.y; }, true, 1,
     [](const Lageplan& p) { return p.bezug.y; }},
    {u"txtDeckung", u"Deckung des Hintergrundbilds in Prozent", 0, 100, u"%",
     [](Lageplan& p) -> double& { return p.hintergrund->deckung; }, true, 100},
};

QComboBox* Auswahl(const QString& name, const QString& zugang, QWidget* eltern) {
  auto* box = new QComboBox(eltern);
  box->setObjectName(name);
  box->setAccessibleName(zugang);
  return box;
}

}  // namespace

Planseite::Planseite(Ablauf& ablauf, QWidget* eltern) : QWidget(eltern), ablauf_(ablauf) {
  auto* zeilen = new QFormLayout(this);
  BezugAnlegen(*zeilen);
  PapierAnlegen(*zeilen);
  HintergrundAnlegen(*zeilen);
}

QWidget* Planseite::Felderreihe(std::size_t erstes, std::size_t anzahl) {
  auto* reihe = new QWidget(this);
  auto* nebeneinander = new QHBoxLayout(reihe);
  nebeneinander->setContentsMargins(0, 0, 0, 0);
  for (std::size_t i = erstes; i < erstes + anzahl; ++i) {
    const Zahlzeile& zeile = Zahlen[i];
    auto* feld = new Planfeld(ablauf_, zeile.name.toString(), zeile.zugang.toString(),
                              ZahlVon(zeile.von, zeile.bis, zeile.einheit.toString()), reihe);
    connect(feld, &Planfeld::eingegeben, this, [this, feld, &zeile](const QString& text) {
      ablauf_.TunBeimTippen(*feld, PlanAendern([&zeile, zahl = Zahlwert(text)](Lageplan& plan) {
        const Punkt vorher = plan.bezug;
        if (!zeile.imBild || plan.hintergrund) zeile.wert(plan) = zahl / zeile.faktor + zeile.ab(plan);
        plan.geo = GeoVersetzt(plan, vorher);
      }));
    });
    connect(feld, &Planfeld::beanstandet, this, &Planseite::hinweis);
    nebeneinander->addWidget(feld);
    felder_.push_back(feld);
  }
  return reihe;
}

void Planseite::BezugAnlegen(QFormLayout& zeilen) {
  txtBezugsname = new Planfeld(ablauf_, u"txtBezugsname"_s, u"Was der Bezugspunkt ist"_s, Plantext(), this);
  connect(txtBezugsname, &Planfeld::eingegeben, this, [this](const QString& text) {
    ablauf_.TunBeimTippen(
        *txtBezugsname, PlanAendern([name = text.toStdString()](Lageplan& plan) { plan.bezugsname = name; }));
  });
  txtGeo = new Planfeld(ablauf_, u"txtGeo"_s, u"Breite und Länge des Bezugspunkts in Grad"_s, Geoort(), this);
  connect(txtGeo, &Planfeld::eingegeben, this, [this](const QString& text) {
    ablauf_.TunBeimTippen(
        *txtGeo, PlanAendern([geo = GeoLesen(text.toStdString())](Lageplan& plan) { plan.geo = geo; }));
  });
  connect(txtGeo, &Planfeld::beanstandet, this, &Planseite::hinweis);
  zeilen.addRow(u"Nord [°]"_s, Felderreihe(0, 1));
  zeilen.addRow(u"Bezugspunkt x, y [m]"_s, Felderreihe(1, 2));
  zeilen.addRow(u"Bezugspunkt, Name"_s, txtBezugsname);
  zeilen.addRow(u"Breite; Länge [°]"_s, txtGeo);
}

void Planseite::PapierAnlegen(QFormLayout& zeilen) {
  chkSumme = new QCheckBox(u"Antennen gleichzeitig"_s, this);
  chkSumme->setObjectName(u"chkSumme"_s);
  connect(chkSumme, &QCheckBox::clicked, this,
          [this](bool an) { ablauf_.Tun(PlanAendern([an](Lageplan& plan) { plan.summe = an; })); });
  cboPlanformat = Auswahl(u"cboPlanformat"_s, u"Papierformat"_s, this);
  cboPlanformat->addItems({u"A4"_s, u"A3"_s});
  connect(cboPlanformat, &QComboBox::activated, this, [this](int wahl) {
    ablauf_.Tun(PlanAendern([wahl](Lageplan& plan) { plan.format = static_cast<Planformat>(wahl); }));
  });
  cboPlanmassstab = Auswahl(u"cboPlanmassstab"_s, u"Maßstab auf dem Papier"_s, this);
  for (const int massstab : Planmassstaebe) {
    cboPlanmassstab->addItem(massstab == 0 ? u"passend"_s : u"1:%1"_s.arg(massstab));
  }
  connect(cboPlanmassstab, &QComboBox::activated, this, [this](int wahl) {
    const int massstab = Planmassstaebe.at(static_cast<std::size_t>(wahl));
    ablauf_.Tun(PlanAendern([massstab](Lageplan& plan) { plan.massstab = massstab; }));
  });
  zeilen.addRow(u"Summe"_s, chkSumme);
  zeilen.addRow(u"Papier"_s, cboPlanformat);
  zeilen.addRow(u"Maßstab"_s, cboPlanmassstab);
}

void Planseite::HintergrundAnlegen(QFormLayout& zeilen) {
  lblHintergrund = new QLabel(this);
  lblHintergrund->setObjectName(u"lblHintergrund"_s);
  lblHintergrund->setTextFormat(Qt::PlainText);
  lblHintergrund->setWordWrap(true);
  auto* knoepfe = new QWidget(this);
  auto* reihe = new QHBoxLayout(knoepfe);
  reihe->setContentsMargins(0, 0, 0, 0);
  auto* waehlen = new QPushButton(u"Bild wählen …"_s, knoepfe);
  waehlen->setObjectName(u"cmdHintergrundWaehlen"_s);
  connect(waehlen, &QPushButton::clicked, this, [this] { ablauf_.Befehlen(Befehl::HintergrundWaehlen); });
  cmdHintergrundEntfernen = new QPushButton(u"Entfernen"_s, knoepfe);
  cmdHintergrundEntfernen->setObjectName(u"cmdHintergrundEntfernen"_s);
  connect(cmdHintergrundEntfernen, &QPushButton::clicked, this, [this, waehlen] {
    waehlen->setFocus();
    ablauf_.Tun(PlanAendern([](Lageplan& plan) { plan.hintergrund.reset(); }));
  });
  reihe->addWidget(waehlen);
  reihe->addWidget(cmdHintergrundEntfernen);
  zeilen.addRow(u"Hintergrund"_s, lblHintergrund);
  zeilen.addRow(QString(), knoepfe);
  zeilen.addRow(u"1. Bildpunkt x, y"_s, Felderreihe(3, 2));
  zeilen.addRow(u"2. Bildpunkt x, y"_s, Felderreihe(5, 2));
  zeilen.addRow(u"Ihr Abstand [m]"_s, Felderreihe(7, 1));
  zeilen.addRow(u"Ort des ersten x, y"_s, Felderreihe(8, 2));
  zeilen.addRow(u"Deckung [%]"_s, Felderreihe(10, 1));
}

void Planseite::Zeigen(const Station& s) {
  Lageplan plan = s.lageplan;
  const bool bild = plan.hintergrund.has_value();
  const QString grund = bild ? QString() : u"Der Plan hat kein Hintergrundbild."_s;
  for (std::size_t i = 0; i < std::size(Zahlen); ++i) {
    const Zahlzeile& zeile = Zahlen[i];
    if (zeile.imBild) Sperren(*felder_.at(i), grund);
    if (zeile.imBild && !bild) {
      felder_.at(i)->Zeigen({});
    } else {
      felder_.at(i)->Zeigen(Zahltext((zeile.wert(plan) - zeile.ab(plan)) * zeile.faktor));
    }
  }
  Sperren(*cmdHintergrundEntfernen, grund);
  txtBezugsname->Zeigen(QString::fromStdString(plan.bezugsname));
  txtGeo->Zeigen(plan.geo ? QString::fromStdString(Geotext(*plan.geo)) : QString());
  chkSumme->setChecked(plan.summe);
  cboPlanformat->setCurrentIndex(static_cast<int>(plan.format));
  const auto massstab = std::find(Planmassstaebe.begin(), Planmassstaebe.end(), plan.massstab);
  cboPlanmassstab->setCurrentIndex(static_cast<int>(massstab - Planmassstaebe.begin()));
}

void Planseite::BildgrundZeigen(const QString& grund) {
  lblHintergrund->setText(grund);
}

}  // namespace vesk
